#pragma once

#include "ScriptedPlatform.h"
#include "WindowScript.h"

namespace tessarin {

/// A window toolkit that shows nothing. Its peers do nothing; Find looks controls up by name.
class FakeToolkit : public Toolkit {
public:
    explicit FakeToolkit(ScriptedPlatform& platform) : mPlatform(platform) {}

    Control& Find(const std::string& name) { return *mControls.at(name); }

    std::unique_ptr<FormPeer> Create(Form& form) override { return Add(form); }
    std::unique_ptr<ControlPeer> Create(Timer& timer) override { return Add(timer); }
    std::unique_ptr<ControlPeer> Create(Control& control, Kind /*kind*/) override {
        return Add(control);
    }
    std::optional<std::string> RunFileDialog(const CommonDialog& /*dialog*/, bool saving) override {
        mPlatform.Tell(saving ? "Save" : "Open");
        std::vector<std::string>& answers = mPlatform.Answers;
        if (answers.empty() || !answers.back().starts_with('/')) return std::nullopt;
        const std::string file = answers.back();
        answers.pop_back();
        return file;
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
class FakeWindow : public WindowParts<ScriptedPlatform, FakeToolkit>, public WindowScript {
public:
    FakeWindow() : WindowScript(platform, OwnWindow) {
        window.Show();
        window.RaiseActivate();
        mRecorder.Record.clear();
    }
    void Click(const std::string& control) override { toolkit.Find(control).RaiseClick(); }
    void Answer(const std::string& answer) override { platform.Answers.push_back(answer); }
};

class WindowFixture : public testing::Test, protected FakeWindow {
protected:
    WindowFixture() {
        Add("file", [this](int, auto&) { Tell(window.lblFile.Caption()); });
        Add("pad", [this](int, auto&) { Tell(Pad()); });
        Add("info", [this](int, auto&) { Tell(window.lblInfo.Caption()); });
        Add("hear", [this](int, auto& name) { Tell(toolkit.Find(name).AccessibleName()); });
        Add("hourglass", [this](int, auto&) { Tell(platform.Hourglass); });
        Add("esc", [this](int, auto& presses) { platform.Esc = Numbers(presses); });
        Add("fail", [](int, auto&) { throw "something that is no exception"; });
        Add("activate", [this](int, auto&) { window.RaiseActivate(); });
        Add("marked", [this](int, auto&) {
            for (int i = 1; i <= 81; ++i)
                if (Field(i).find("yellow") != std::string::npos) Tell(i);
        });
    }
    void TearDown() override { EXPECT_TRUE(platform.Answers.empty()) << "not asked"; }
};

} // namespace tessarin
