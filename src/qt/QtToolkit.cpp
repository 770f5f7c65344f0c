#include "qt/QtToolkit.h"

#include "qt/QtFileDialog.h"
#include "qt/QtForm.h"
#include "qt/QtFrame.h"
#include "qt/QtLabel.h"
#include "qt/QtLook.h"
#include "qt/QtMenuPeer.h"
#include "qt/QtPicture.h"
#include "qt/QtPlatform.h"
#include "qt/QtTimerPeer.h"

#include <QPushButton>
#include <QRadioButton>

namespace tessarin::qt {

namespace {

template <class Button>
class QtButton : public Button, public QtPeer {
public:
    QtButton(Control& control, QtForm& form, QWidget& parent)
        : Button(&parent), QtPeer(control, *this, form) {
        QtButton::ShowCaption();
        // "clicked" is emitted for every click, even on an option that is selected already.
        QObject::connect(this, &QAbstractButton::clicked, [&control] { control.RaiseClick(); });
    }

protected:
    void ShowCaption() override { this->setText(Plain(mControl.Caption())); }
};

class QtOption : public QtButton<QRadioButton>, public OptionPeer {
public:
    using QtButton::QtButton;
    void Select() override { setChecked(true); }

protected:
    // Can be clicked in its whole rectangle, not only on circle and text.
    bool hitButton(const QPoint& position) const override { return rect().contains(position); }
};

class QtComposite : public QWidget, public QtPeer {
public:
    QtComposite(Control& control, QtForm& form, QWidget& parent)
        : QWidget(&parent), QtPeer(control, *this, form) {}
};

} // namespace

template <class Widget>
std::unique_ptr<Widget> QtToolkit::Make(Control& control) {
    QtForm& form = mPlatform.CurrentForm();
    auto* const container = dynamic_cast<QtPeer*>(&control.Container()->Peer());
    return std::make_unique<Widget>(control, form,
                                    container != nullptr ? container->Inside() : form.Client());
}

std::unique_ptr<FormPeer> QtToolkit::Create(Form& form) {
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
    return std::make_unique<QtTimerPeer>(timer, mPlatform);
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
