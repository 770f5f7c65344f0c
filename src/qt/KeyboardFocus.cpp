// SPDX-License-Identifier: MIT
#include "qt/KeyboardFocus.h"

#include "toolkit/Controls.h"

#include <QHash>
#include <QKeyEvent>

#include <utility>

namespace tessarin::qt {

void KeyboardFocus::AddToGrid(Label& label, QWidget& widget) {
    mGrid.emplace(*label.Cell, GridLabel{label, &widget});
}

QRect KeyboardFocus::GridBounds() const {
    QRect bounds;
    for (const auto& [cell, label] : mGrid)
        bounds |= label.Widget->geometry();
    return bounds;
}

QWidget* KeyboardFocus::Current() const {
    return mCurrent == nullptr ? nullptr : mCurrent->Widget.data();
}

void KeyboardFocus::MakeCurrent(const Label& label) {
    QWidget* const before = Current();
    mCurrent = &mGrid.at(*label.Cell);
    if (before != nullptr) before->setFocusPolicy(Qt::NoFocus);
    Current()->setFocusPolicy(Qt::TabFocus);
    // The first current label gets the focus, so that the window opens with it in the grid.
    if (before == nullptr || mWindow.focusWidget() == before) Current()->setFocus();
}

Label* KeyboardFocus::Target(const QKeyEvent& key) const {
    if (mCurrent == nullptr) return nullptr;
    const auto [row, column] = *mCurrent->Control.Cell;
    const GridCell first = mGrid.begin()->first;
    const GridCell last = mGrid.rbegin()->first;
    const QHash<QKeyCombination, GridCell> cells{
        {Qt::Key_Left, {row, column - 1}},   {Qt::Key_Right, {row, column + 1}},
        {Qt::Key_Up, {row - 1, column}},     {Qt::Key_Down, {row + 1, column}},
        {Qt::Key_Home, {row, first.Column}}, {Qt::Key_End, {row, last.Column}},
        {Qt::CTRL | Qt::Key_Home, first},    {Qt::CTRL | Qt::Key_End, last},
    };
    const QKeyCombination keys(key.modifiers() & ~Qt::KeypadModifier, Qt::Key(key.key()));
    const auto cell = cells.find(keys);
    if (cell == cells.end()) return nullptr;
    const auto label = mGrid.find(*cell);
    return label == mGrid.end() ? nullptr : &label->second.Control;
}

void KeyboardFocus::ToGrid() {
    mWaiting.clear();
    if (Current() == nullptr) return;
    Current()->setFocus();
    Current()->update(); // its focus ring was not shown while a control waited
}

void KeyboardFocus::SetVisible(QWidget& widget, bool visible) {
    if (!visible && FocusIsIn(widget)) ToGrid();
    widget.setVisible(visible);
}

void KeyboardFocus::SetEnabled(QWidget& widget, bool enabled) {
    if (!enabled && FocusIsIn(widget)) {
        QWidget* const loser = mWindow.focusWidget();
        ToGrid();
        if (loser != &widget) mWaiting = loser;
    }
    widget.setEnabled(enabled);
    if (enabled && mWaiting && mWaiting->parentWidget()->isEnabled()) GiveBack();
}

void KeyboardFocus::GiveBack() {
    QWidget* const waiting = mWaiting;
    mWaiting.clear();
    const bool userHasMovedIt = mWindow.focusWidget() != Current();
    if (userHasMovedIt) return;
    ToGrid(); // shows the focus ring there, if the control cannot take the focus
    if (waiting->isEnabled() && waiting->isVisible()) waiting->setFocus();
}

bool KeyboardFocus::FocusIsIn(const QWidget& widget) const {
    const QWidget* const focus = mWindow.focusWidget();
    return focus != nullptr && (focus == &widget || widget.isAncestorOf(focus));
}

} // namespace tessarin::qt
