#include "qt/QtToolkit.h"

#include "qt/QtForm.h"
#include "qt/QtLabel.h"
#include "qt/QtLook.h"
#include "qt/QtPeer.h"
#include "qt/QtPlatform.h"
#include "toolkit/Controls.h"

#include <QAccessibleWidget>
#include <QGroupBox>
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

// Reports every click, even on an option that is selected already.
template <class Button>
class QtButton : public Button, public QtPeer {
public:
    QtButton(Control& control, QWidget& parent) : Button(&parent), QtPeer(control, *this) {
        Button::setFocusPolicy(Qt::TabFocus);
        QObject::connect(this, &QAbstractButton::clicked, [&control] { control.RaiseClick(); });
    }

protected:
    void ShowCaption() override { this->setText(EscapeAmpersands(mControl.Caption())); }
};

class QtOption : public QtButton<QRadioButton> {
public:
    // Tab stops at the selected one, also when the mouse has selected it.
    QtOption(Control& control, QWidget& parent) : QtButton(control, parent) {
        setFocusPolicy(Qt::NoFocus);
        QObject::connect(this, &QAbstractButton::toggled, [this](bool selected) {
            setFocusPolicy(selected ? Qt::TabFocus : Qt::NoFocus);
        });
    }

    void Select() override { setChecked(true); }

protected:
    // Can be clicked in its whole rectangle, not only on circle and text.
    bool hitButton(const QPoint& position) const override { return rect().contains(position); }
};

// Paints a frame's background and, with a border, a line around its edge that the caption
// interrupts. It is a QGroupBox only for screen readers.
class QtFrame : public QGroupBox, public QtPeer {
public:
    QtFrame(Control& frame, QWidget& parent) : QGroupBox(&parent), QtPeer(frame, *this) {}

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        const ControlProperties& look = mControl.Properties();
        QPainter painter(this);
        painter.fillRect(rect(), ToQt(look.BackColor));
        if (look.Border == BorderStyle::None) return;
        const QString caption = ToQt(look.Caption);
        const int textHeight = caption.isEmpty() ? 0 : painter.fontMetrics().height();
        const QRect line = rect().adjusted(0, textHeight / 2, 0, 0);
        painter.fillRect(line, LineColor());
        painter.fillRect(line.adjusted(1, 1, -1, -1), ToQt(look.BackColor));
        const QRect text(8, 0, painter.fontMetrics().horizontalAdvance(caption) + 6, textHeight);
        painter.fillRect(text, ToQt(look.BackColor));
        painter.setPen(TextColor(look.ForeColor, look.BackColor));
        painter.drawText(text, Qt::AlignCenter, caption);
    }
};

// Reads the picture's file when it paints, because twelve of them would slow down the start. Qt's
// cache keeps what is read.
class QtPicture : public QWidget, public QtPeer {
public:
    QtPicture(Control& picture, QWidget& parent) : QWidget(&parent), QtPeer(picture, *this) {}

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        const QString file = ResourcePath(mControl.Properties().PictureFile);
        QPainter(this).drawPixmap(rect(), QPixmap(file));
    }
};

// A QTimer does not fire again before its handler has returned. But a tick pumps window events, and
// a whole command may run in them: the rotor would stand still until that command ends. Restarting
// the timer before the tick is handled makes it fire all the same, so ticks nest.
class QtTimer : public QTimer, public ControlPeer {
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
        if (!mTimer.Enabled()) return stop();
        start(mTimer.Interval());
    }

private:
    Timer& mTimer;
};

// The control's container has its widget already.
template <class Widget>
std::unique_ptr<Widget> Make(Control& control) {
    ControlPeer& container = control.Container()->Peer();
    auto* const form = dynamic_cast<QtForm*>(&container);
    auto widget = std::make_unique<Widget>(
        control, form != nullptr ? form->Client() : dynamic_cast<QWidget&>(container));
    widget->Changed(Property::Texts);
    return widget;
}

} // namespace

std::unique_ptr<FormPeer> QtToolkit::Create(Form& form) {
    QAccessible::installFactory(CreateAccessible);
    return std::make_unique<QtForm>(form, mPlatform);
}

std::unique_ptr<ControlPeer> QtToolkit::Create(Timer& timer) {
    return std::make_unique<QtTimer>(timer, mPlatform);
}

std::unique_ptr<ControlPeer> QtToolkit::Create(Control& control, Kind kind) {
    switch (kind) {
    case Kind::CommandButton: {
        auto button = Make<QtButton<QPushButton>>(control);
        button->setAutoDefault(true); // Enter presses it as Space does
        return button;
    }
    case Kind::Frame:
        return Make<QtFrame>(control);
    case Kind::Label:
        return Make<QtLabel>(control);
    case Kind::MenuItem:
        return CreateMenuPeer(control, mPlatform.CurrentForm().MenuBar());
    case Kind::OptionButton:
        return Make<QtOption>(control);
    case Kind::Picture:
        break;
    }
    return Make<QtPicture>(control);
}

} // namespace tessarin::qt
