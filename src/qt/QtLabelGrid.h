#pragma once

#include <QList>
#include <QRect>

class QKeyEvent;

namespace tessarin::qt {

class QtLabel;

/// The labels of a form that the arrow keys walk through. Together they are one stop of the Tab
/// key: at the current one.
class QtLabelGrid {
public:
    void Add(QtLabel& label) { mLabels.append(&label); }

    /// The current label; nullptr before the first SetCurrent.
    QtLabel* Current() const { return mCurrent; }
    /// Returns the label that was current before.
    QtLabel* SetCurrent(QtLabel& label);
    /// The label to which the key leads from the current one: an arrow to the label beside it, Home
    /// and End to the ends of its row, with Ctrl to the first and last of all. nullptr for another
    /// key or beyond the edge of the grid.
    QtLabel* Target(const QKeyEvent& key) const;
    /// The rectangle around all visible labels, in coordinates of their parent.
    QRect Bounds() const;

private:
    QList<QtLabel*> mLabels;
    QtLabel* mCurrent = nullptr;
};

} // namespace tessarin::qt
