#include "qt/QtToolkit.h"

#include "qt/QtFileDialog.h"
#include "qt/QtForm.h"
#include "qt/QtFrame.h"
#include "qt/QtLabel.h"
#include "qt/QtLook.h"
#include "qt/QtMenuPeer.h"
#include "qt/QtPeer.h"
#include "qt/QtPlatform.h"
#include "toolkit/Controls.h"

#include <QAccessibleWidget>
#include <QPainter>
#include <QPixmap>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>

namespace tessarin::qt {

namespace {

// Offers the action "press" for a label that is there to be clicked.
class PressableLabel : public QAccessibleWidget {
public:
    explicit PressableLabel(QtLabel& label)
        : QAccessibleWidget(&label, QAccessible::StaticText), mLabel(label) {}

    QStringList actionNames() const override {
        return QStringList(pressAction()) + QAccessibleWidget::actionNames();
    }
    void doAction(const QString& name) override {
        if (name == pressAction()) return mLabel.Press();
        QAccessibleWidget::doAction(name);
    }

private:
    QtLabel& mLabel;
};

// Qt owns what it returns.
QAccessibleInterface* CreateAccessible(const QString& /*className*/, QObject* object) {
    auto* const label = dynamic_cast<QtLabel*>(object);
    return label != nullptr && label->IsClickable() ? new PressableLabel(*label) : nullptr;
}

template <class Button>
class QtButton : public Button, public QtPeer {
public:
    QtButton(Control& control, QtForm& form, QWidget& parent)
        : Button(&parent), QtPeer(control, *this, form) {
        Button::setFocusPolicy(Qt::TabFocus);
        // "clicked" is emitted for every click, even on an option that is selected already.
        QObject::connect(this, &QAbstractButton::clicked, [&control] { control.RaiseClick(); });
    }

protected:
    void ShowCaption() override { this->setText(Plain(mControl.Caption())); }
};

class QtOption : public QtButton<QRadioButton>, public OptionPeer {
public:
    // Tab stops at the selected one, also when the mouse has selected it.
    QtOption(Control& control, QtForm& form, QWidget& parent) : QtButton(control, form, parent) {
        QObject::connect(this, &QAbstractButton::toggled, [this](bool selected) {
            setFocusPolicy(selected ? Qt::TabFocus : Qt::NoFocus);
        });
    }

    void Select() override { setChecked(true); }

protected:
    // Can be clicked in its whole rectangle, not only on circle and text.
    bool hitButton(const QPoint& position) const override { return rect().contains(position); }
};

// Reads the picture's file when it is first painted.
class QtPicture : public QWidget, public QtPeer {
public:
    QtPicture(Control& control, QtForm& form, QWidget& parent)
        : QWidget(&parent), QtPeer(control, *this, form) {}

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        if (mPixmap.isNull()) mPixmap.load(ResourcePath(mControl.Properties().PictureFile));
        QPainter(this).drawPixmap(rect(), mPixmap);
    }

private:
    QPixmap mPixmap;
};

class QtComposite : public QWidget, public QtPeer {
public:
    QtComposite(Control& control, QtForm& form, QWidget& parent)
        : QWidget(&parent), QtPeer(control, *this, form) {}
};

// A QTimer does not fire again before its handler has returned. But a tick pumps window events, and
// a whole command may run in them: the rotor would stand still until that command ends. Restarting
// the timer before the tick is handled makes it fire all the same, so ticks nest.
class QtTimer : public QTimer, public virtual ControlPeer {
public:
    QtTimer(Timer& timer, const QtPlatform& platform) : mTimer(timer) {
        setTimerType(Qt::PreciseTimer);
        callOnTimeout([this, &platform] {
            if (platform.TicksHeld()) return start(0); // try again with the next events
            start(mTimer.Interval());
            mTimer.RaiseTick();
        });
    }
    void Changed(Property /*property*/) override {
        if (mTimer.Enabled())
            start(mTimer.Interval());
        else
            stop();
    }

private:
    Timer& mTimer;
};

} // namespace

template <class Widget>
std::unique_ptr<Widget> QtToolkit::Make(Control& control) {
    QtForm& form = mPlatform.CurrentForm();
    auto* const container = dynamic_cast<QtPeer*>(&control.Container()->Peer());
    auto widget = std::make_unique<Widget>(
        control, form, container != nullptr ? container->Inside() : form.Client());
    widget->Changed(Property::Texts);
    return widget;
}

std::unique_ptr<FormPeer> QtToolkit::Create(Form& form) {
    QAccessible::installFactory(CreateAccessible);
    return std::make_unique<QtForm>(form, mPlatform);
}

std::unique_ptr<LabelPeer> QtToolkit::Create(Label& label) {
    return Make<QtLabel>(label);
}

std::unique_ptr<ControlPeer> QtToolkit::Create(CommandButton& button) {
    auto peer = Make<QtButton<QPushButton>>(button);
    peer->setAutoDefault(true); // Enter presses it as Space does
    return peer;
}

std::unique_ptr<OptionPeer> QtToolkit::Create(OptionButton& option) {
    return Make<QtOption>(option);
}

std::unique_ptr<ControlPeer> QtToolkit::Create(Frame& frame) {
    return Make<QtFrame>(frame);
}

std::unique_ptr<ControlPeer> QtToolkit::Create(UserControl& control) {
    return Make<QtComposite>(control);
}

std::unique_ptr<ControlPeer> QtToolkit::Create(Picture& picture) {
    return Make<QtPicture>(picture);
}

std::unique_ptr<ControlPeer> QtToolkit::Create(Timer& timer) {
    return std::make_unique<QtTimer>(timer, mPlatform);
}

std::unique_ptr<ControlPeer> QtToolkit::Create(MenuItem& item) {
    return std::make_unique<QtMenuPeer>(item, mPlatform.CurrentForm());
}

std::optional<std::string> QtToolkit::RunFileDialog(const CommonDialog& dialog, bool saving) {
    if (mPlatform.Closed()) return std::nullopt;
    QtFileDialog window(dialog, saving, &mPlatform.CurrentForm());
    mPlatform.RunModal(window);
    return window.Chosen();
}

} // namespace tessarin::qt
