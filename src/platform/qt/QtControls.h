// The toolkit's side of everything inside a form.
#pragma once

#include "platform/Controls.h"
#include "platform/qt/QtForm.h"

#include <QAction>
#include <QMenu>
#include <QTimer>
#include <QWidget>

#include <memory>

namespace tessarin::qt {

/// The peer of a control that is a widget of its own.
class QtPeer : public ControlPeer {
public:
    /// Takes over the design of `control`.
    QtPeer(Control& control, std::unique_ptr<QWidget> widget, QtForm& form);
    void Changed(Property property) override;
    QWidget* Widget() { return mWidget.get(); }

protected:
    virtual void SetCaption() {}
    /// What the control paints itself looks different now.
    virtual void LookChanged() { mWidget->update(); }

    Control& mControl;
    std::unique_ptr<QWidget> mWidget;

private:
    void SetAccessibleName();

    QtForm& mForm;
};

std::unique_ptr<ControlPeer> CreateLabel(Control& control, QWidget* parent, QtForm& form);
std::unique_ptr<ControlPeer> CreateCommandButton(Control& control, QWidget* parent, QtForm& form);
std::unique_ptr<ControlPeer> CreateOptionButton(Control& control, QWidget* parent, QtForm& form);
std::unique_ptr<ControlPeer> CreateFrame(Control& control, QWidget* parent, QtForm& form);
std::unique_ptr<ControlPeer> CreateUserControl(Control& control, QWidget* parent, QtForm& form);
std::unique_ptr<ControlPeer> CreatePicture(Control& control, QWidget* parent, QtForm& form);

/// An action, and the menu behind it as soon as it gets entries.
class QtMenuPeer : public ControlPeer {
public:
    /// `parent` is the menu that the entry belongs to; none for an entry of the menu bar.
    QtMenuPeer(Control& control, QtMenuPeer* parent, QtForm& form);
    void Changed(Property property) override;

private:
    Control& mControl;
    QAction mAction;
    std::unique_ptr<QMenu> mMenu;
};

class QtTimerPeer : public ControlPeer {
public:
    explicit QtTimerPeer(Control& control);

    /// While set, no timer ticks; one that would have is due as soon as it is not.
    inline static bool Held = false;

    void Changed(Property property) override;

private:
    void Tick();

    Control& mControl;
    QTimer mTimer;
    int mlDepth = 0;
};

} // namespace tessarin::qt
