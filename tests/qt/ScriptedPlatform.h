#pragma once

#include "platform/NullPlatform.h"

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <sstream>
#include <string>
#include <utility>

namespace tessarin {

/// Records what happens, in order.
class Recorder {
public:
    /// Adds the text of all parts, unless it is empty, and a blank.
    void Tell(const auto&... parts) {
        std::ostringstream text;
        (text << ... << parts);
        if (!text.str().empty()) Told += text.str() + " ";
    }
    std::string Told;
};

/// A platform that follows a test's script and records the calls. It is the current platform while
/// it lives.
class ScriptedPlatform : public NullPlatform, public Recorder {
public:
    ScriptedPlatform() { Platform::SetCurrent(this); }
    ~ScriptedPlatform() override { Platform::SetCurrent(nullptr); }

    int Pumps = 0;
    bool Hourglass = false;   ///< the mouse pointer
    std::deque<bool> Esc;     ///< the next answers to EscPressed; not pressed after them
    std::deque<bool> Answers; ///< the next answers to questions, true for Yes; No after them
    std::string Folder;
    std::function<void()> Meanwhile = [] {}; ///< runs while a box is open and during a sleep
    bool Closed = false;        ///< the window is closed: no pumps, sleeps and questions
    bool ErrorExpected = false; ///< the next error in a handler does not fail the test

    /// Runs `action` inside the n-th pump from now, once.
    void AtPump(int n, std::function<void()> action) {
        mPumpOfAction = Pumps + n;
        mAction = std::move(action);
    }

    void PumpEvents(Pump /*pump*/) override {
        if (Closed) return;
        if (++Pumps == mPumpOfAction && mAction) std::exchange(mAction, nullptr)();
    }
    void Sleep(int milliseconds) override {
        if (Closed) return;
        Tell("Sleep(", milliseconds, ")");
        Meanwhile();
    }
    bool EscPressed() override { return Next(Esc); }
    Message::Answer ShowMessage(const Message& box) override {
        const bool yesNo = box.ButtonSet == Message::Buttons::YesNo;
        if (Closed) return yesNo ? Message::Answer::No : Message::Answer::Ok;
        Tell("Box(", box.Title, "|", box.Prompt, box.QuestionIcon ? "|?" : "|-",
             yesNo ? " Yes No)" : " Ok)");
        Meanwhile();
        if (!yesNo) return Message::Answer::Ok;
        return Next(Answers) ? Message::Answer::Yes : Message::Answer::No;
    }
    void Beep() override { Tell("Beep"); }
    void SetMousePointer(MousePointer p) override { Hourglass = p == MousePointer::Hourglass; }
    void ReportError(const std::string& what) override {
        if (!std::exchange(ErrorExpected, false))
            ADD_FAILURE() << "a handler ended with an error: " << what;
    }
    std::string ProgramFolder() override { return Folder; }
    VersionRecord Version() override { return {"Solves", "by X", "https://x", 1, 6, 48}; }
    DateTime Now() override { return {2022, 4, 29, 6, 49, 52}; }
    int GetDesktopWindow() override { return 77; }
    void LockWindowUpdate(int handle) override { Tell("Lock(", handle, ")"); }
    void ShowWindow(int handle, int command) override { Tell("Show(", handle, "|", command, ")"); }
    int GetWindowLongA(int handle, int index) override {
        Tell("Get(", handle, "|", index, ")");
        return mWindowStyle;
    }
    void SetWindowLongA(int handle, int index, int value) override {
        Tell("Set(", handle, "|", index, "|", mWindowStyle = value, ")");
    }

private:
    static bool Next(std::deque<bool>& script) {
        const bool next = !script.empty() && script.front();
        if (!script.empty()) script.pop_front();
        return next;
    }
    int mPumpOfAction = 0;
    int mWindowStyle = 0x10;
    std::function<void()> mAction;
};

} // namespace tessarin
