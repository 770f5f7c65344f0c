#include "qt/QtLabelGrid.h"

#include "qt/QtLabel.h"

#include <QKeyEvent>

#include <algorithm>
#include <tuple>
#include <utility>

namespace tessarin::qt {

// With ClickFocus the other labels stay in the tab order, but the Tab key skips them.
QtLabel* QtLabelGrid::SetCurrent(QtLabel& label) {
    if (mCurrent != nullptr) mCurrent->setFocusPolicy(Qt::ClickFocus);
    label.setFocusPolicy(Qt::StrongFocus);
    return std::exchange(mCurrent, &label);
}

QtLabel* QtLabelGrid::Target(const QKeyEvent& key) const {
    const auto modifiers = key.modifiers() & ~Qt::KeypadModifier;
    const bool everywhere = modifiers == Qt::ControlModifier;
    if (mCurrent == nullptr || (modifiers != Qt::NoModifier && !everywhere)) return nullptr;
    const bool isHome = key.key() == Qt::Key_Home;
    const bool isEnd = key.key() == Qt::Key_End;
    if (everywhere && !isHome && !isEnd) return nullptr;
    const bool inColumn = key.key() == Qt::Key_Up || key.key() == Qt::Key_Down;

    QList<QtLabel*> line; // in which the key moves
    std::copy_if(mLabels.begin(), mLabels.end(), std::back_inserter(line), [&](QtLabel* label) {
        return !label->isHidden() && (everywhere || (inColumn ? label->x() == mCurrent->x()
                                                              : label->y() == mCurrent->y()));
    });
    std::sort(line.begin(), line.end(), [](const QtLabel* a, const QtLabel* b) {
        return std::tuple(a->y(), a->x()) < std::tuple(b->y(), b->x());
    });
    const qsizetype here = line.indexOf(mCurrent);
    switch (key.key()) {
    case Qt::Key_Left:
    case Qt::Key_Up:
        return line.value(here - 1);
    case Qt::Key_Right:
    case Qt::Key_Down:
        return line.value(here + 1);
    default:
        return isHome ? line.value(0) : isEnd ? line.value(line.size() - 1) : nullptr;
    }
}

QRect QtLabelGrid::Bounds() const {
    QRect bounds;
    for (const QtLabel* const label : mLabels)
        if (!label->isHidden()) bounds |= label->geometry();
    return bounds;
}

} // namespace tessarin::qt
