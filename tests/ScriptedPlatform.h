// SPDX-License-Identifier: MIT
#pragma once

#include "User.h"
#include "platform/NullPlatform.h"

namespace tessarin {

/// A machine that does what a test has set and records the calls. It is the current platform while
/// it lives.
class ScriptedPlatform : public NullPlatform, public Recorder {
public:
    ScriptedPlatform() { Platform::SetCurrent(this); }
    ~ScriptedPlatform() override { Platform::SetCurrent(nullptr); }

    std::deque<bool> EscPresses; ///< before the next cycles of a solve; none after them
    bool SaysYes = false;        ///< to all questions without an answer in Answers
    bool Hourglass = false;      ///< the mouse pointer
    bool TellsErrors = true;     ///< off: only that there was one
    bool Closed = false;         ///< the window is closed: no pumps, sleeps and questions

    void PumpEvents(Pump pump) override {
        if (Closed) return;
        if (TellsPumps && pump == Pump::Now) Tell("now");
        Pumped();
    }
    void Sleep(int milliseconds) override {
        if (Closed) return;
        Tell("Sleep(", milliseconds, ")");
        Paused();
    }
    bool EscPressed() override {
        if (EscPresses.empty()) return false;
        const bool pressed = EscPresses.front();
        EscPresses.pop_front();
        return pressed;
    }
    Message::Answer ShowMessage(const Message& box) override {
        const bool yesNo = box.ButtonSet == Message::Buttons::YesNo;
        if (Closed) return box.Refusal();
        Tell("Box(", box.Title, "|", box.Prompt, box.QuestionIcon ? "|?" : "|-",
             yesNo ? " Yes No)" : " OK)");
        Paused();
        Pumped();
        if (!yesNo) return Message::Answer::Ok;
        EXPECT_TRUE(SaysYes || Closed || !Answers.empty()) << "no answer to: " << box.Prompt;
        const bool yes = Answers.empty() ? SaysYes : TakeAnswer() == "Yes";
        return yes ? Message::Answer::Yes : Message::Answer::No;
    }
    void Beep() override { Tell("Beep"); }
    void ReportError(const std::string& what) override {
        Tell("! ", TellsErrors ? what : "an error");
    }
    void SetMousePointer(MousePointer pointer) override {
        Hourglass = pointer == MousePointer::Hourglass;
    }
    std::string ProgramFolder() override { return Folder; }
    VersionRecord Version() override { return {"Solves", "by X", "https://x", 1, 6, 48}; }
    DateTime Now() override { return {2023, 1, 2, 3, 4, 5}; }
    int GetDesktopWindow() override { return 77; }
    void LockWindowUpdate(int handle) override { Tell("Lock(", handle, ")"); }
    void ShowWindow(int handle, int command) override {
        Tell(command == HideCommand ? "Hide(" : "Show(", handle, ")");
    }
    int GetWindowLongA(int /*handle*/, int index) override {
        return index == ExtendedStyle ? mlStyle : 0;
    }
    void SetWindowLongA(int handle, int index, int value) override {
        mlStyle = value;
        EXPECT_EQ(index, ExtendedStyle);
        Tell("Style(", handle, "|0x", std::hex, value, ")");
    }

private:
    int mlStyle = 0x10;
};

} // namespace tessarin
