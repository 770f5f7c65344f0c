#pragma once

#include "ScriptedPlatform.h"
#include "toolkit/Controls.h"
#include "toolkit/Form.h"

#include <map>

namespace tessarin {

/// A window toolkit that shows nothing. Its peers do nothing; Find looks controls up by name.
class FakeToolkit : public Toolkit {
public:
    explicit FakeToolkit(ScriptedPlatform& platform) : mPlatform(platform) {}

    std::optional<std::string> File; ///< chosen in file dialogs; nothing: they are cancelled
    FileDialogRequest Dialog;        ///< shown last

    Control& Find(const std::string& name) { return *mControls.at(name); }

    std::unique_ptr<FormPeer> Create(Form& form) override {
        mControls[form.Name()] = &form;
        return std::make_unique<Peer>([this, &form] { mPlatform.Closed = form.RaiseUnload(); });
    }
    std::unique_ptr<ControlPeer> Create(Label& label, Control&) override { return Add(label); }
    std::unique_ptr<ControlPeer> Create(CommandButton& b, Control&) override { return Add(b); }
    std::unique_ptr<ControlPeer> Create(OptionButton& o, Control&) override { return Add(o); }
    std::unique_ptr<ControlPeer> Create(Frame& frame, Control&) override { return Add(frame); }
    std::unique_ptr<ControlPeer> Create(UserControl& c, Control&) override { return Add(c); }
    std::unique_ptr<ControlPeer> Create(Picture& p, Control&) override { return Add(p); }
    std::unique_ptr<ControlPeer> Create(Timer& timer) override { return Add(timer); }
    std::unique_ptr<ControlPeer> Create(MenuItem& item, Form&) override { return Add(item); }
    std::unique_ptr<ControlPeer> Create(MenuItem& item, MenuItem&) override { return Add(item); }
    std::optional<std::string> RunFileDialog(const FileDialogRequest& request) override {
        Dialog = request;
        return File;
    }

private:
    struct Peer : FormPeer {
        explicit Peer(std::function<void()> close) : OnClose(std::move(close)) {}
        void Changed(Property /*property*/) override {}
        void Close() override { OnClose(); }
        int Handle() override { return 5; }
        std::function<void()> OnClose;
    };

    std::unique_ptr<ControlPeer> Add(Control& control) {
        mControls[control.Name()] = &control;
        return std::make_unique<Peer>(nullptr);
    }

    ScriptedPlatform& mPlatform;
    std::map<std::string, Control*> mControls;
};

} // namespace tessarin
