#pragma once

#include "Script.h"
#include "platform/NullPlatform.h"

namespace tessarin {

/// A machine that does what a test has set and records the calls. It is the current platform while
/// it lives.
class ScriptedPlatform : public NullPlatform, public Recorder {
public:
    ScriptedPlatform() { Platform::SetCurrent(this); }
    ~ScriptedPlatform() override { Platform::SetCurrent(nullptr); }

    std::vector<int> Esc;             ///< the next answers to EscPressed; not pressed after them
    std::vector<std::string> Answers; ///< to the next questions, "Yes" or "No"; a file for a dialog
    std::string Folder = ".";
    bool Hourglass = false; ///< the mouse pointer
    bool Closed = false;    ///< the window is closed: no pumps, sleeps and questions

    void PumpEvents(Pump /*pump*/) override {
        if (!Closed) Pumped();
    }
    void Sleep(int milliseconds) override {
        if (Closed) return;
        Tell("Sleep(", milliseconds, ")");
        Meanwhile();
    }
    bool EscPressed() override { return Next(Esc) == 1; }
    Message::Answer ShowMessage(const Message& box) override {
        const bool yesNo = box.ButtonSet == Message::Buttons::YesNo;
        if (Closed) return yesNo ? Message::Answer::No : Message::Answer::Ok;
        Tell("Box(", box.Title, "|", box.Prompt, box.QuestionIcon ? "|?" : "|-",
             yesNo ? " Yes No)" : " OK)");
        Meanwhile();
        Pumped();
        if (!yesNo) return Message::Answer::Ok;
        EXPECT_FALSE(Answers.empty() && !Closed) << "no answer to: " << box.Prompt;
        return Next(Answers) == "Yes" ? Message::Answer::Yes : Message::Answer::No;
    }
    void Beep() override { Tell("Beep"); }
    void SetMousePointer(MousePointer p) override { Hourglass = p == MousePointer::Hourglass; }
    void ReportError(const std::string& what) override { Tell("! ", what); }
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
    template <class T>
    static T Next(std::vector<T>& list) {
        if (list.empty()) return {};
        T next = std::move(list.front());
        list.erase(list.begin());
        return next;
    }
    int mWindowStyle = 0x10;
};

} // namespace tessarin
