#pragma once

#include <QList>
#include <QPointer>
#include <QRect>
#include <QWidget>

class QKeyEvent;

namespace tessarin::qt {

class QtLabel;

/// Where the keyboard is in a form. It belongs to the form's grid of labels, in which the arrow
/// keys move on from the current label. The whole grid is one stop of the Tab key, which alone
/// takes the focus to a control elsewhere.
class KeyboardFocus {
public:
    explicit KeyboardFocus(QWidget& window) : mWindow(window) {}

    void AddToGrid(QtLabel& label) { mGrid.append(&label); }
    /// The rectangle around all visible labels of the grid, in coordinates of their parent.
    QRect GridBounds() const;

    /// The current label; nullptr before the first MakeCurrent.
    QtLabel* Current() const { return mCurrent; }
    /// Makes a label of the grid the current one. The focus follows if it is in the grid.
    void MakeCurrent(QtLabel& label);
    /// The label to which the key leads from the current one: an arrow to the label beside it, Home
    /// and End to the ends of its row, with Ctrl to the first and last of all. nullptr for another
    /// key or beyond the edge of the grid.
    QtLabel* Target(const QKeyEvent& key) const;

    /// Moves the focus to the grid for good.
    void ToGrid();
    /// Shows or hides a widget. If it is hidden, the focus goes from it, or from a control inside
    /// it, to the grid.
    void SetVisible(QWidget& widget, bool visible);
    /// Enables or disables a widget. If it is disabled, the focus goes as above. A control inside
    /// it gets the focus back when the widget is enabled again, unless the user has moved it
    /// meanwhile or the control itself is disabled or hidden now.
    void SetEnabled(QWidget& widget, bool enabled);
    /// Whether the grid has the focus only until its lender is enabled.
    bool IsLent() const { return mLender != nullptr; }

private:
    bool IsIn(const QWidget& widget) const;

    QWidget& mWindow;
    QList<QtLabel*> mGrid;
    QtLabel* mCurrent = nullptr;
    QPointer<QWidget> mLender;
};

} // namespace tessarin::qt
