#include "qt/KeyboardFocus.h"

#include "qt/QtLabel.h"
#include "qt/QtLabelGrid.h"

namespace tessarin::qt {

void KeyboardFocus::MakeCurrent(QtLabel& label) {
    const QWidget* const before = mGrid.SetCurrent(label);
    // The first current label gets the focus, so that the window opens with it in the grid.
    if (before == nullptr || mWindow.focusWidget() == before) label.setFocus();
}

void KeyboardFocus::ToGrid() {
    mLender.clear();
    if (mGrid.Current() == nullptr) return;
    mGrid.Current()->setFocus();
    mGrid.Current()->update(); // its frame was not shown while the focus was lent
}

void KeyboardFocus::Leave(const QWidget& widget) {
    if (IsIn(widget)) ToGrid();
}

void KeyboardFocus::Lend(const QWidget& panel) {
    if (!IsIn(panel)) return;
    QWidget* const lender = mWindow.focusWidget();
    ToGrid();
    if (lender != &panel) mLender = lender;
}

void KeyboardFocus::Return() {
    if (!mLender || !mLender->isEnabled()) return;
    if (mWindow.focusWidget() == mGrid.Current()) mLender->setFocus();
    mLender.clear();
}

bool KeyboardFocus::IsIn(const QWidget& widget) const {
    const QWidget* const focus = mWindow.focusWidget();
    return focus != nullptr && (focus == &widget || widget.isAncestorOf(focus));
}

} // namespace tessarin::qt
