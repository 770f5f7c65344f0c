// SPDX-License-Identifier: MIT
#pragma once

#include "ScriptedPlatform.h"
#include "WindowUser.h"

#include <map>

namespace tessarin {

/// A window toolkit that shows nothing. Its peers do nothing; controls are clicked by name.
class FakeToolkit : public Toolkit {
public:
    explicit FakeToolkit(ScriptedPlatform& platform) : mPlatform(platform) {}

    const Control* Current = nullptr; ///< the label that was made the current one last

    Control& Named(const std::string& name) {
        if (!mControls.contains(name)) throw std::invalid_argument("no control " + name);
        return *mControls.at(name).first;
    }
    std::vector<std::string> Names() const {
        std::vector<std::string> names;
        for (const auto& [name, control] : mControls)
            names.push_back(name);
        return names;
    }
    /// Whether the user can click it.
    bool IsClickable(const std::string& name) const {
        const auto& [control, click] = mControls.at(name);
        return control->Visible() && click && *click;
    }

    std::unique_ptr<FormPeer> Create(Form& form) override {
        return std::make_unique<QuietForm>(mPlatform, form);
    }
    std::unique_ptr<ControlPeer> Create(CommandButton& button) override { return Add(button); }
    std::unique_ptr<ControlPeer> Create(Frame& frame) override { return Add(frame); }
    std::unique_ptr<LabelPeer> Create(Label& label) override {
        Add(label);
        return std::make_unique<QuietLabel>(*this, label);
    }
    std::unique_ptr<ControlPeer> Create(MenuItem& item) override { return Add(item); }
    std::unique_ptr<OptionPeer> Create(OptionButton& option) override {
        Add(option);
        return std::make_unique<QuietOption>(mPlatform);
    }
    std::unique_ptr<ControlPeer> Create(Picture& picture) override { return Add(picture); }
    std::unique_ptr<ControlPeer> Create(Timer& timer) override { return Add(timer); }
    std::optional<std::string> RunFileDialog(const CommonDialog& dialog,
                                             FileDialogKind kind) override {
        mPlatform.Tell(dialog.DialogTitle, kind == FileDialogKind::Save ? " to save" : "",
                       dialog.FileMustExist ? " which exists" : "",
                       dialog.PathMustExist ? "" : " in any folder");
        const std::string path = mPlatform.TakeAnswer();
        return path.empty() ? std::nullopt : std::optional(path);
    }

private:
    template <class Peer>
    struct Quiet : Peer {
        void Changed(Property /*property*/) override {}
    };
    struct QuietLabel : Quiet<LabelPeer> {
        QuietLabel(FakeToolkit& kit, Label& label) : mKit(kit), mLabel(label) {}
        // A screen reader says the name as soon as the keyboard is there.
        void MakeCurrent() override {
            EXPECT_NE(mLabel.AccessibleName().find(", current"), std::string::npos);
            mKit.Current = &mLabel;
        }
        FakeToolkit& mKit;
        Label& mLabel;
    };
    struct QuietOption : Quiet<OptionPeer> {
        explicit QuietOption(ScriptedPlatform& platform) : mPlatform(platform) {}
        void Select() override { mPlatform.Tell("selected"); }
        ScriptedPlatform& mPlatform;
    };
    struct QuietForm : Quiet<FormPeer> {
        QuietForm(ScriptedPlatform& platform, Form& form) : mPlatform(platform), mForm(form) {}
        void Close() override { mPlatform.Closed = mForm.RaiseUnload(); }
        int Handle() override { return 5; }
        ScriptedPlatform& mPlatform;
        Form& mForm;
    };

    std::unique_ptr<ControlPeer> Add(auto& control) {
        std::function<void()>* click = nullptr;
        if constexpr (requires { control.Click; }) click = &control.Click;
        mControls[control.Name()] = {&control, click};
        return std::make_unique<Quiet<ControlPeer>>();
    }

    ScriptedPlatform& mPlatform;
    std::map<std::string, std::pair<Control*, std::function<void()>*>> mControls;
};

/// The window, active, on the toolkit that shows nothing.
class FakeWindow : public WindowParts<ScriptedPlatform, FakeToolkit>, public WindowUser {
public:
    FakeWindow() : WindowUser(platform, window) {
        window.Show();
        window.RaiseActivate();
        platform.Record.clear();
    }

    /// The time of the rotor's timer has come.
    void Tick() {
        auto& timer = dynamic_cast<Timer&>(toolkit.Named("Timer1"));
        if (timer.Enabled()) timer.RaiseTick();
    }

protected:
    void ClickControl(const std::string& control) override { toolkit.Named(control).RaiseClick(); }
};

} // namespace tessarin
