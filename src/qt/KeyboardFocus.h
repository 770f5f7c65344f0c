#pragma once

#include <QPointer>
#include <QWidget>

namespace tessarin::qt {

class QtLabel;
class QtLabelGrid;

/// Where the keyboard is in a form. It belongs to the current label of the grid; only the Tab key
/// takes it to a control elsewhere.
class KeyboardFocus {
public:
    KeyboardFocus(QWidget& window, QtLabelGrid& grid) : mWindow(window), mGrid(grid) {}

    /// Makes `label` the grid's current one. The focus follows if it is in the grid.
    void MakeCurrent(QtLabel& label);
    /// Moves the focus to the grid for good.
    void ToGrid();
    /// To be called before `widget` is hidden or disabled: if it has the focus, or a control inside
    /// it, the focus goes to the grid.
    void Leave(const QWidget& widget);
    /// As Leave. But a control inside `panel` gets the focus back from Return.
    void Lend(const QWidget& panel);
    /// To be called after a widget was enabled. If the control that has lent its focus is enabled
    /// again, it gets it back, unless the user has moved it meanwhile.
    void Return();
    /// Whether the grid has the focus only until Return.
    bool IsLent() const { return mLender != nullptr; }

private:
    bool IsIn(const QWidget& widget) const;

    QWidget& mWindow;
    QtLabelGrid& mGrid;
    QPointer<QWidget> mLender;
};

} // namespace tessarin::qt
