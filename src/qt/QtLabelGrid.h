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

    /// The current label; nullptr before the first one.
    QtLabel* Current() const { return mCurrent; }
    /// Returns the one that was current before.
    QtLabel* SetCurrent(QtLabel& label);
    /// Where the key leads from the current label: arrows to the one beside it, Home and End to the
    /// ends of its row, with Ctrl to the first and the last of all. nullptr when it is another key
    /// or leads out of the grid.
    QtLabel* Target(const QKeyEvent& key) const;
    /// The rectangle around all visible labels, in their parent.
    QRect Bounds() const;

private:
    QList<QtLabel*> mLabels;
    QtLabel* mCurrent = nullptr;
};

} // namespace tessarin::qt
