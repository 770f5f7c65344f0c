#include "qt/QtToolkit.h"

#include "qt/QtFileDialog.h"
#include "qt/QtForm.h"
#include "qt/QtFrame.h"
#include "qt/QtLabel.h"
#include "qt/QtLook.h"
#include "qt/QtMenuPeer.h"
#include "qt/QtPeer.h"
#include "qt/QtPicture.h"
#include "qt/QtPlatform.h"
#include "qt/QtTimerPeer.h"

#include <QPushButton>
#include <QRadioButton>

#include <utility>

namespace tessarin::qt {

namespace {

// Holds the widget of a peer. It is a base class so that the widget exists before the QtPeer does.
template <class Widget>
struct Holder {
    template <class... Args>
    explicit Holder(Args&&... args) : Own(std::forward<Args>(args)...) {}

    Widget Own;
};

class LabelPeer : Holder<QtLabel>, public QtPeer {
public:
    LabelPeer(Label& label, QtForm& form, QWidget& parent)
        : Holder(label, form, parent), QtPeer(label, Own, form), mForm(form) {}

    void Changed(Property property) override {
        if (property == Property::Current)
            mForm.MakeCurrent(Own);
        else
            QtPeer::Changed(property);
    }

protected:
    // The label paints itself with the font of its control.
    void SetFont() override { LookChanged(); }

private:
    QtForm& mForm;
};

// Can be clicked in its whole rectangle, not only on circle and text.
class RadioButton : public QRadioButton {
public:
    using QRadioButton::QRadioButton;

protected:
    bool hitButton(const QPoint& position) const override { return rect().contains(position); }
};

template <class Button>
class ButtonPeer : Holder<Button>, public QtPeer {
public:
    ButtonPeer(Control& control, QtForm& form, QWidget& parent)
        : Holder<Button>(&parent), QtPeer(control, this->Own, form), mControl(control) {
        ButtonPeer::SetCaption();
        // "clicked" is emitted for every click, even on an option that is selected already.
        QObject::connect(&this->Own, &QAbstractButton::clicked,
                         [&control] { control.RaiseClick(); });
    }

    void Changed(Property property) override {
        if (property == Property::Selected)
            this->Own.setChecked(true);
        else
            QtPeer::Changed(property);
    }

    Button& Widget() { return this->Own; }

protected:
    void SetCaption() override { this->Own.setText(Plain(mControl.Caption())); }

private:
    const Control& mControl;
};

class FramePeer : Holder<QtFrame>, public QtPeer {
public:
    FramePeer(const Frame& frame, QtForm& form, QWidget& parent)
        : Holder(frame, parent), QtPeer(frame, Own, form) {
        form.AddContainer(frame, Own);
    }
};

class CompositePeer : Holder<QWidget>, public QtPeer {
public:
    CompositePeer(const UserControl& control, QtForm& form, QWidget& parent)
        : Holder(&parent), QtPeer(control, Own, form) {
        form.AddContainer(control, Own);
    }
};

class PicturePeer : Holder<QtPicture>, public QtPeer {
public:
    PicturePeer(const Picture& picture, QtForm& form, QWidget& parent)
        : Holder(picture, parent), QtPeer(picture, Own, form) {}

    void Changed(Property property) override {
        if (property == Property::PictureFile)
            Own.FileChanged();
        else
            QtPeer::Changed(property);
    }
};

template <class Peer, class Kind>
std::unique_ptr<Peer> Make(Kind& control, const Control& container, QtPlatform& platform) {
    QtForm& form = platform.CurrentForm();
    return std::make_unique<Peer>(control, form, form.Inside(container));
}

} // namespace

std::unique_ptr<FormPeer> QtToolkit::Create(Form& form) {
    return std::make_unique<QtForm>(form, mPlatform);
}

std::unique_ptr<ControlPeer> QtToolkit::Create(Label& label, Control& container) {
    return Make<LabelPeer>(label, container, mPlatform);
}

std::unique_ptr<ControlPeer> QtToolkit::Create(CommandButton& button, Control& container) {
    auto peer = Make<ButtonPeer<QPushButton>>(button, container, mPlatform);
    peer->Widget().setAutoDefault(true); // Enter presses it as Space does
    return peer;
}

std::unique_ptr<ControlPeer> QtToolkit::Create(OptionButton& option, Control& container) {
    return Make<ButtonPeer<RadioButton>>(option, container, mPlatform);
}

std::unique_ptr<ControlPeer> QtToolkit::Create(Frame& frame, Control& container) {
    return Make<FramePeer>(frame, container, mPlatform);
}

std::unique_ptr<ControlPeer> QtToolkit::Create(UserControl& control, Control& container) {
    return Make<CompositePeer>(control, container, mPlatform);
}

std::unique_ptr<ControlPeer> QtToolkit::Create(Picture& picture, Control& container) {
    return Make<PicturePeer>(picture, container, mPlatform);
}

std::unique_ptr<ControlPeer> QtToolkit::Create(Timer& timer) {
    return std::make_unique<QtTimerPeer>(timer, mPlatform);
}

std::unique_ptr<ControlPeer> QtToolkit::Create(MenuItem& item, Form& /*form*/) {
    return std::make_unique<QtMenuPeer>(item, mPlatform.CurrentForm());
}

std::unique_ptr<ControlPeer> QtToolkit::Create(MenuItem& item, MenuItem& menu) {
    QtForm& form = mPlatform.CurrentForm();
    return std::make_unique<QtMenuPeer>(item, form, form.Menu(menu));
}

std::optional<std::string> QtToolkit::RunFileDialog(const FileDialogRequest& request) {
    if (mPlatform.Closed()) return std::nullopt;
    QtFileDialog dialog(request, &mPlatform.CurrentForm());
    mPlatform.RunModal(dialog);
    return dialog.Chosen();
}

} // namespace tessarin::qt
