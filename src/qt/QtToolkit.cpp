// SPDX-License-Identifier: MIT
#include "qt/QtToolkit.h"

#include "qt/QtButton.h"
#include "qt/QtForm.h"
#include "qt/QtLabel.h"
#include "qt/QtLook.h"
#include "qt/QtPlatform.h"
#include "toolkit/Controls.h"

#include <QAccessibleWidget>
#include <QGroupBox>
#include <QPainter>
#include <QPixmap>
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
        if (name == pressAction())
            mLabel.Press();
        else
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

// Paints a frame's background and, with a border, a line around its edge that the caption
// interrupts. It is a QGroupBox only for screen readers.
class QtFrame : public WidgetOf<QGroupBox>, public ControlPeer {
public:
    QtFrame(Frame& frame, const Site& site) : WidgetOf(frame, site), mFrame(frame) {}

    void Changed(Property property) override { Apply(property); }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        const Color background = mFrame.BackColor();
        QPainter painter(this);
        painter.fillRect(rect(), ToQt(background));
        if (mFrame.Border == BorderStyle::None) return;
        const QString caption = ToQt(mFrame.Caption());
        const int textHeight = caption.isEmpty() ? 0 : painter.fontMetrics().height();
        const QRect line = rect().adjusted(0, textHeight / 2, 0, 0);
        painter.fillRect(line, LineColor());
        painter.fillRect(line.adjusted(1, 1, -1, -1), ToQt(background));
        const QRect text(8, 0, painter.fontMetrics().horizontalAdvance(caption) + 6, textHeight);
        painter.fillRect(text, ToQt(background));
        painter.setPen(TextColor(ButtonText, background));
        painter.drawText(text, Qt::AlignCenter, caption);
    }

private:
    const Frame& mFrame;
};

// Reads the picture's file when it paints, because many of them would slow down the start. Qt's
// cache keeps what is read.
class QtPicture : public WidgetOf<QWidget, ControlWidget>, public ControlPeer {
public:
    QtPicture(Picture& picture, const Site& site) : WidgetOf(picture, site), mPicture(picture) {}

    void Changed(Property property) override { Apply(property); }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter(this).drawPixmap(rect(), QPixmap(ResourcePath(mPicture.File)));
    }

private:
    const Picture& mPicture;
};

// A QTimer does not fire again before its handler has returned. But a tick pumps window events, and
// a whole command may run in them: the rotor would stand still until that command ends. Restarting
// the timer before the tick is handled makes it fire all the same, so ticks nest.
class QtTimer : public QTimer, public ControlPeer {
public:
    QtTimer(Timer& timer, const QtPlatform& platform) : mTimer(timer) {
        setTimerType(Qt::PreciseTimer);
        callOnTimeout([this, &platform] {
            if (platform.TicksHeld()) {
                start(0); // try again with the next events
                return;
            }
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

template <class Widget, class KindOfControl>
std::unique_ptr<Widget> QtToolkit::Make(KindOfControl& control) {
    auto& container = dynamic_cast<QWidget&>(control.Container()->Peer());
    QWidget& parent = &container == mForm ? mForm->Client() : container;
    auto widget =
        std::make_unique<Widget>(control, Site{parent, mForm->Client(), mForm->Focus(), mPlatform});
    widget->ShowAll();
    return widget;
}

std::unique_ptr<FormPeer> QtToolkit::Create(Form& form) {
    QAccessible::installFactory(CreateAccessible);
    auto window = std::make_unique<QtForm>(form, [this] { mPlatform.Close(); });
    mForm = window.get();
    mPlatform.SetWindow(*mForm, [form = mForm] { return form->GridOnScreen(); });
    return window;
}

std::unique_ptr<ControlPeer> QtToolkit::Create(CommandButton& button) {
    return Make<QtCommandButton>(button);
}

std::unique_ptr<ControlPeer> QtToolkit::Create(Frame& frame) {
    return Make<QtFrame>(frame);
}

std::unique_ptr<LabelPeer> QtToolkit::Create(Label& label) {
    return Make<QtLabel>(label);
}

std::unique_ptr<ControlPeer> QtToolkit::Create(MenuItem& item) {
    return CreateMenuPeer(item, mForm->MenuBar());
}

std::unique_ptr<OptionPeer> QtToolkit::Create(OptionButton& option) {
    return Make<QtOption>(option);
}

std::unique_ptr<ControlPeer> QtToolkit::Create(Picture& picture) {
    return Make<QtPicture>(picture);
}

std::unique_ptr<ControlPeer> QtToolkit::Create(Timer& timer) {
    return std::make_unique<QtTimer>(timer, mPlatform);
}

} // namespace tessarin::qt
