#pragma once

#include "ScriptedPlatform.h"
#include "WindowUser.h"

#include <map>
#include <regex>

namespace tessarin {

/// A window toolkit that shows nothing. Its peers do nothing; Find looks controls up by name.
class FakeToolkit : public Toolkit {
public:
    explicit FakeToolkit(ScriptedPlatform& platform) : mPlatform(platform) {}

    Control& Find(const std::string& name) { return *mControls.at(name); }
    /// The names of all controls that can be clicked: one field and one digit stand for all.
    std::vector<std::string> Commands() const {
        std::vector<std::string> names{"lblField(50)", "btnNumPad(5)"};
        const std::regex alike("lblField.*|btnNumPad.[0-9].");
        for (const auto& [name, control] : mControls)
            if (control->Click && !std::regex_match(name, alike)) names.push_back(name);
        return names;
    }

    std::unique_ptr<FormPeer> Create(Form& form) override { return Add(form); }
    std::unique_ptr<ControlPeer> Create(Timer& timer) override { return Add(timer); }
    std::unique_ptr<ControlPeer> Create(Control& control, Kind /*kind*/) override {
        return Add(control);
    }
    std::optional<std::string> RunFileDialog(const CommonDialog& /*dialog*/, bool saving) override {
        mPlatform.Tell(saving ? "Save" : "Open");
        const std::string path = mPlatform.TakeAnswer();
        return path.empty() ? std::nullopt : std::optional(path);
    }

private:
    struct Peer : FormPeer {
        Peer(FakeToolkit& kit, Control& control) : Kit(kit), Own(control) {}
        void Changed(Property /*property*/) override {}
        void Close() override { Kit.mPlatform.Closed = dynamic_cast<Form&>(Own).RaiseUnload(); }
        int Handle() override { return 5; }
        FakeToolkit& Kit;
        Control& Own;
    };

    std::unique_ptr<Peer> Add(Control& control) {
        mControls[control.Name()] = &control;
        return std::make_unique<Peer>(*this, control);
    }

    ScriptedPlatform& mPlatform;
    std::map<std::string, Control*> mControls;
};

/// The window, active, on the toolkit that shows nothing.
class FakeWindow : public WindowParts<ScriptedPlatform, FakeToolkit>, public WindowUser {
public:
    FakeWindow() : WindowUser(platform, OwnWindow) {
        window.Show();
        window.RaiseActivate();
        platform.TakeRecord();
    }

protected:
    void ClickControl(const std::string& control) override { toolkit.Find(control).RaiseClick(); }
};

class WindowFixture : public testing::Test, protected FakeWindow {
protected:
    void TearDown() override { platform.ExpectNothingLeft(); }
};

} // namespace tessarin
