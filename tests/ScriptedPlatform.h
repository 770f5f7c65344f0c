#pragma once

#include "platform/NullPlatform.h"

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <sstream>
#include <string>
#include <utility>

namespace tessarin {

/// Records the calls of a platform as text, in order.
class CallLog {
public:
    /// Returns the calls since the last TakeCalls. The new record begins with `instead`.
    std::string TakeCalls(const std::string& instead = "") {
        return std::exchange(mCalls, instead);
    }

protected:
    template <class First, class... Rest>
    void Note(const char* call, const First& first, const Rest&... rest) {
        std::ostringstream text;
        text << call << '(' << first;
        ((text << '|' << rest), ...);
        mCalls += text.str() + ") ";
    }
    std::string mCalls;
};

/// A platform that follows a test's script and records the calls. It is the current platform while
/// it lives.
class ScriptedPlatform : public NullPlatform, public CallLog {
public:
    ScriptedPlatform() { Platform::SetCurrent(this); }
    ~ScriptedPlatform() override { Platform::SetCurrent(nullptr); }

    int Pumps = 0;
    Pump LastPump = Pump::WhenDue; ///< the argument of the last pump
    bool Hourglass = false;        ///< the mouse pointer
    std::deque<bool> Esc;          ///< the next answers to EscPressed; not pressed after them
    std::deque<bool> Answers;      ///< the next answers to questions, true for Yes; No after them
    std::string Folder;
    int WindowStyle = 0;
    std::function<void()> Meanwhile = [] {}; ///< runs while a box is open and during a sleep
    bool Closed = false;        ///< the window is closed: no pumps, sleeps and questions
    bool ErrorExpected = false; ///< the next error in a handler does not fail the test

    /// Runs `action` inside the n-th pump from now, once.
    void AtPump(int n, std::function<void()> action) {
        mPumpOfAction = Pumps + n;
        mAction = std::move(action);
    }

    void PumpEvents(Pump pump) override {
        if (Closed) return;
        LastPump = pump;
        if (++Pumps == mPumpOfAction && mAction) std::exchange(mAction, nullptr)();
    }
    void Sleep(int milliseconds) override {
        if (Closed) return;
        Note("Sleep", milliseconds);
        Meanwhile();
    }
    bool EscPressed() override { return Next(Esc); }
    Message::Answer ShowMessage(const Message& box) override {
        const bool yesNo = box.ButtonSet == Message::Buttons::YesNo;
        if (Closed) return yesNo ? Message::Answer::No : Message::Answer::Ok;
        Note("Box", box.Prompt, box.Title, yesNo ? "YesNo" : "Ok", box.QuestionIcon ? "?" : "-");
        Meanwhile();
        if (!yesNo) return Message::Answer::Ok;
        return Next(Answers) ? Message::Answer::Yes : Message::Answer::No;
    }
    void Beep() override { mCalls += "Beep "; }
    void SetMousePointer(MousePointer pointer) override {
        Hourglass = pointer == MousePointer::Hourglass;
    }
    void ReportError(const std::string& what) override {
        if (!std::exchange(ErrorExpected, false))
            ADD_FAILURE() << "a handler ended with an error: " << what;
    }
    std::string ProgramFolder() override { return Folder; }
    VersionRecord Version() override { return {"Solves", "by X", "https://x", 1, 6, 48}; }
    DateTime Now() override { return {2022, 4, 29, 6, 49, 52}; }
    int GetDesktopWindow() override { return 77; }
    void LockWindowUpdate(int handle) override { Note("Lock", handle); }
    void ShowWindow(int handle, int command) override { Note("Show", handle, command); }
    int GetWindowLongA(int handle, int index) override {
        Note("Get", handle, index);
        return WindowStyle;
    }
    void SetWindowLongA(int handle, int index, int value) override {
        Note("Set", handle, index, value);
    }

private:
    static bool Next(std::deque<bool>& script) {
        const bool next = !script.empty() && script.front();
        if (!script.empty()) script.pop_front();
        return next;
    }
    int mPumpOfAction = 0;
    std::function<void()> mAction;
};

} // namespace tessarin
