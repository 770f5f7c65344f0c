#include "platform/qt/QtControls.h"

#include "platform/qt/QtLabel.h"
#include "platform/qt/QtLook.h"

#include <QImage>
#include <QMenuBar>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>

#include <utility>

namespace tessarin::qt {

QtPeer::QtPeer(Control& control, std::unique_ptr<QWidget> widget, QtForm& form)
    : mControl(control), mWidget(std::move(widget)), mForm(form) {
    mWidget->setObjectName(ToQt(control.Name()));
    mWidget->setGeometry(PixelRect(control.Properties()));
    mWidget->setFont(ToQt(control.Font()));
    mWidget->setToolTip(ToQt(control.Properties().ToolTipText));
    mWidget->setAccessibleName(ToQt(control.AccessibleName()));
    mForm.PlaceWidget(*mWidget, control);
}

// Each name that is set is told to screen readers, also the same one.
void QtPeer::SetAccessibleName() {
    if (const QString name = ToQt(mControl.AccessibleName()); name != mWidget->accessibleName())
        mWidget->setAccessibleName(name);
}

void QtPeer::Changed(Property property) {
    switch (property) {
    case Property::Bounds:
        mWidget->setGeometry(PixelRect(mControl.Properties()));
        mForm.PlaceWidget(*mWidget, mControl);
        break;
    case Property::Caption:
        SetCaption();
        SetAccessibleName();
        LookChanged();
        break;
    case Property::AccessibleName:
        SetAccessibleName();
        break;
    case Property::ToolTipText:
        mWidget->setToolTip(ToQt(mControl.Properties().ToolTipText));
        SetAccessibleName();
        break;
    case Property::Font:
        mWidget->setFont(ToQt(mControl.Font()));
        break;
    case Property::Visible:
        mForm.KeepFocus([this] { mForm.PlaceWidget(*mWidget, mControl); });
        break;
    case Property::Enabled:
        mForm.KeepFocus([this] { mWidget->setEnabled(mControl.Enabled()); });
        break;
    default:
        LookChanged();
    }
}

namespace {

class LabelPeer : public QtPeer {
public:
    using QtPeer::QtPeer;

    void Changed(Property property) override {
        // The label paints itself with the font of its control.
        if (property == Property::Font)
            LookChanged();
        else
            QtPeer::Changed(property);
    }
};

class ButtonPeer : public QtPeer {
public:
    ButtonPeer(Control& control, std::unique_ptr<QAbstractButton> button, QtForm& form)
        : QtPeer(control, std::move(button), form) {
        Button().setText(Plain(control.Caption()));
        // "clicked" comes for every click of the user, also on an option that is selected already.
        QObject::connect(&Button(), &QAbstractButton::clicked,
                         [&control] { control.RaiseClick(); });
    }

    void Changed(Property property) override {
        if (property == Property::Selected)
            Button().setChecked(true);
        else
            QtPeer::Changed(property);
    }

protected:
    void SetCaption() override { Button().setText(Plain(mControl.Caption())); }

private:
    QAbstractButton& Button() { return static_cast<QAbstractButton&>(*mWidget); }
};

// Paints its background and, with a border, a line around its edge that gives way to the caption.
class FrameWidget : public QWidget {
public:
    FrameWidget(Control& control, QWidget* parent) : QWidget(parent), mControl(control) {}

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        const Design& look = mControl.Properties();
        QPainter painter(this);
        painter.fillRect(rect(), ToQt(look.BackColor));
        if (look.Border == BorderStyle::None) return;
        painter.setFont(font());
        const QString caption = ToQt(look.Caption);
        const int textHeight = caption.isEmpty() ? 0 : painter.fontMetrics().height();
        const QRect line = rect().adjusted(0, textHeight / 2, 0, 0);
        painter.fillRect(line, palette().color(QPalette::Mid));
        painter.fillRect(line.adjusted(1, 1, -1, -1), ToQt(look.BackColor));
        if (caption.isEmpty()) return;
        const QRect text(8, 0, painter.fontMetrics().horizontalAdvance(caption) + 6, textHeight);
        painter.fillRect(text, ToQt(look.BackColor));
        painter.setPen(TextColor(look.ForeColor, look.BackColor));
        painter.drawText(text, Qt::AlignCenter, caption);
    }

private:
    Control& mControl;
};

class PictureWidget : public QWidget {
public:
    PictureWidget(Control& control, QWidget* parent) : QWidget(parent), mControl(control) {}

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        const Image& image = static_cast<Picture&>(mControl).Shown();
        QPainter(this).drawImage(rect(), QImage(reinterpret_cast<const uchar*>(image.data()), 32,
                                                32, QImage::Format_ARGB32));
    }

private:
    Control& mControl;
};

} // namespace

std::unique_ptr<ControlPeer> CreateLabel(Control& control, QWidget* parent, QtForm& form) {
    return std::make_unique<LabelPeer>(control, std::make_unique<QtLabel>(control, parent), form);
}

std::unique_ptr<ControlPeer> CreateCommandButton(Control& control, QWidget* parent, QtForm& form) {
    auto button = std::make_unique<QPushButton>(parent);
    button->setAutoDefault(true); // Enter presses it as Space does
    return std::make_unique<ButtonPeer>(control, std::move(button), form);
}

std::unique_ptr<ControlPeer> CreateOptionButton(Control& control, QWidget* parent, QtForm& form) {
    return std::make_unique<ButtonPeer>(control, std::make_unique<QRadioButton>(parent), form);
}

std::unique_ptr<ControlPeer> CreateFrame(Control& control, QWidget* parent, QtForm& form) {
    return std::make_unique<QtPeer>(control, std::make_unique<FrameWidget>(control, parent), form);
}

std::unique_ptr<ControlPeer> CreateUserControl(Control& control, QWidget* parent, QtForm& form) {
    return std::make_unique<QtPeer>(control, std::make_unique<QWidget>(parent), form);
}

std::unique_ptr<ControlPeer> CreatePicture(Control& control, QWidget* parent, QtForm& form) {
    return std::make_unique<QtPeer>(control, std::make_unique<PictureWidget>(control, parent),
                                    form);
}

QtMenuPeer::QtMenuPeer(Control& control, QtMenuPeer* parent, QtForm& form)
    : mControl(control), mAction(&form) {
    mAction.setObjectName(ToQt(control.Name()));
    mAction.setSeparator(control.Caption() == "-");
    if (!mAction.isSeparator()) mAction.setText(Plain(control.Caption()));
    QObject::connect(&mAction, &QAction::triggered, [&control] { control.RaiseClick(); });
    if (parent == nullptr) {
        form.MenuBar().addAction(&mAction);
        return;
    }
    if (!parent->mMenu) {
        parent->mMenu = std::make_unique<QMenu>(&form.MenuBar());
        parent->mMenu->setObjectName(parent->mAction.objectName());
        parent->mAction.setMenu(parent->mMenu.get());
    }
    parent->mMenu->addAction(&mAction);
}

void QtMenuPeer::Changed(Property property) {
    if (property == Property::Caption) mAction.setText(Plain(mControl.Caption()));
    if (property != Property::Enabled) return;
    mAction.setEnabled(mControl.Enabled());
    // The entries of a menu that is open would still answer.
    if (mMenu) mMenu->setEnabled(mControl.Enabled());
}

QtTimerPeer::QtTimerPeer(Control& control) : mControl(control) {
    mTimer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&mTimer, &QTimer::timeout, [this] { Tick(); });
}

void QtTimerPeer::Changed(Property /*property*/) {
    mTimer.setInterval(static_cast<Timer&>(mControl).Interval());
    if (mControl.Enabled())
        mTimer.start();
    else
        mTimer.stop();
}

// A command that runs in the events pumped by a tick would get no more ticks until it ends: a timer
// does not fire inside its own handler unless it is started anew. How deep that nests is bounded;
// a tick above the bound is left out.
void QtTimerPeer::Tick() {
    constexpr int MaxDepth = 4;
    auto& timer = static_cast<Timer&>(mControl);
    if (Held) return mTimer.start(0); // due as soon as it may tick
    mTimer.start(timer.Interval());
    if (mlDepth >= MaxDepth || !timer.Tick) return;
    ++mlDepth;
    timer.Tick();
    --mlDepth;
}

} // namespace tessarin::qt
