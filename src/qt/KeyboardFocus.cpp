#include "qt/KeyboardFocus.h"

#include "qt/QtLabel.h"

#include <QHash>
#include <QKeyEvent>

#include <utility>

namespace tessarin::qt {

QRect KeyboardFocus::GridBounds() const {
    QRect bounds;
    for (const QtLabel* const label : mGrid)
        if (!label->isHidden()) bounds |= label->geometry();
    return bounds;
}

void KeyboardFocus::MakeCurrent(QtLabel& label) {
    QtLabel* const before = std::exchange(mCurrent, &label);
    if (before != nullptr) before->setFocusPolicy(Qt::NoFocus);
    label.setFocusPolicy(Qt::TabFocus);
    // The first current label gets the focus, so that the window opens with it in the grid.
    if (before == nullptr || mWindow.focusWidget() == before) label.setFocus();
}

// The step of an arrow is as long as a label, which leads across the gap between two boxes, too.
QtLabel* KeyboardFocus::Target(const QKeyEvent& key) const {
    const QRect grid = GridBounds();
    const QRect here = mCurrent->geometry();
    const int x = here.center().x();
    const int y = here.center().y();
    const QHash<QKeyCombination, QPoint> places{
        {Qt::Key_Left, {x - here.width(), y}},     {Qt::Key_Right, {x + here.width(), y}},
        {Qt::Key_Up, {x, y - here.height()}},      {Qt::Key_Down, {x, y + here.height()}},
        {Qt::Key_Home, {grid.left(), y}},          {Qt::Key_End, {grid.right(), y}},
        {Qt::CTRL | Qt::Key_Home, grid.topLeft()}, {Qt::CTRL | Qt::Key_End, grid.bottomRight()},
    };
    const QKeyCombination keys(key.modifiers() & ~Qt::KeypadModifier, Qt::Key(key.key()));
    constexpr QPoint outside(-1, -1);
    QWidget* const found = mCurrent->parentWidget()->childAt(places.value(keys, outside));
    auto* const label = dynamic_cast<QtLabel*>(found);
    return mGrid.contains(label) ? label : nullptr;
}

void KeyboardFocus::ToGrid() {
    mLender.clear();
    if (mCurrent == nullptr) return;
    mCurrent->setFocus();
    mCurrent->update(); // its frame was not shown while the focus was lent
}

void KeyboardFocus::SetVisible(QWidget& widget, bool visible) {
    if (!visible && IsIn(widget)) ToGrid();
    widget.setVisible(visible);
}

void KeyboardFocus::SetEnabled(QWidget& widget, bool enabled) {
    if (!enabled && IsIn(widget)) {
        QWidget* const lender = mWindow.focusWidget();
        ToGrid();
        if (lender != &widget) mLender = lender;
    }
    widget.setEnabled(enabled);
    // Back to the lender, once its panel is enabled.
    if (!mLender || !mLender->parentWidget()->isEnabled()) return;
    if (mWindow.focusWidget() != mCurrent) return mLender.clear();
    QWidget* const lender = mLender;
    ToGrid();
    if (lender->isEnabled() && lender->isVisible()) lender->setFocus();
}

bool KeyboardFocus::IsIn(const QWidget& widget) const {
    const QWidget* const focus = mWindow.focusWidget();
    return focus != nullptr && (focus == &widget || widget.isAncestorOf(focus));
}

} // namespace tessarin::qt
