// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/Properties.h"

#include <QPointer>
#include <QRect>
#include <QWidget>

#include <map>

class QKeyEvent;

namespace tessarin {
class Label;
}

namespace tessarin::qt {

/// Where the keyboard is in a form. It belongs to the form's grid of labels, in which the arrow
/// keys move on from the current label. The whole grid is one stop of the Tab key, which alone
/// takes the focus to another control.
///
/// A control that loses the focus because its panel is disabled waits for it: the grid has the
/// focus meanwhile, without showing it, and the control gets it back.
class KeyboardFocus {
public:
    explicit KeyboardFocus(QWidget& window) : mWindow(window) {}

    /// Puts a label into its cell of the grid.
    void AddToGrid(Label& label, QWidget& widget);
    /// The rectangle around all labels of the grid, in coordinates of their parent.
    QRect GridBounds() const;

    /// The widget of the current label; nullptr before the first MakeCurrent, and while the window
    /// ends.
    QWidget* Current() const;
    /// Makes a label of the grid the current one. The focus follows if it is in the grid.
    void MakeCurrent(const Label& label);
    /// The label to which the key leads from the current one: an arrow to the label beside it, Home
    /// and End to the ends of its row, with Ctrl to the first and last of all. nullptr for another
    /// key or beyond the edge of the grid.
    Label* Target(const QKeyEvent& key) const;

    /// Moves the focus to the grid for good: no control waits for it.
    void ToGrid();
    /// Shows or hides a widget. If it is hidden, the focus goes from it, or from a control inside
    /// it, to the grid.
    void SetVisible(QWidget& widget, bool visible);
    /// Enables or disables a widget. If it is disabled, the focus goes as above, and a control
    /// inside it waits. It gets the focus back when the widget is enabled again, unless the user
    /// has moved it meanwhile or the control itself is disabled or hidden now.
    void SetEnabled(QWidget& widget, bool enabled);
    /// Whether a control waits for the focus.
    bool IsAwaited() const { return mWaiting != nullptr; }

private:
    struct GridLabel {
        Label& Control;
        QPointer<QWidget> Widget; // null once deleted: Qt moves the focus while a window ends
    };

    // Whether the focus is on the widget or on a control inside it.
    bool FocusIsIn(const QWidget& widget) const;
    void GiveBack();

    QWidget& mWindow;
    std::map<GridCell, GridLabel> mGrid;
    const GridLabel* mCurrent = nullptr;
    QPointer<QWidget> mWaiting;
};

} // namespace tessarin::qt
