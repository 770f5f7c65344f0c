// SPDX-License-Identifier: MIT
// What the main window does and shows, written a second time, plainly, to compare the program with.
// Which controls there are, and what they look like before the first command, is given.
#pragma once

#include "Logic.h"

#include <map>
#include <utility>

namespace tessarin::model {

/// Takes back what was set for a time, also when an error ends it.
struct AtEnd {
    std::function<void()> TakeBack;
    ~AtEnd() { TakeBack(); }
};

/// What is seen and heard of a control.
struct Control {
    string Caption, Spoken, Font, Back, Fore;
    bool Enabled = true, Visible = true;

    bool operator==(const Control&) const = default;
};
using Controls = std::map<string, Control>;

inline void ShowBox(const string& prompt, const string& title = "") {
    Platform::Current().ShowMessage({.Prompt = prompt, .Title = title});
}

inline string Name(const string& controls, int index) {
    return controls + "(" + to_string(index) + ")";
}

class Window {
public:
    explicit Window(const model::Controls& layout) : Controls(layout) {
        moGame.Listeners.push_back([this](const string& e, int index) { Handle(e, index); });
        Activate();
    }
    Window(const Window&) = delete;

    /// Asks for a file; "" when cancelled.
    std::function<string(const string& title)> Dialog;
    /// Called when the window has closed.
    std::function<void()> TellClosed;

    Game moGame;
    model::Controls Controls;

    float Width() const { return InfoVisible ? 8850.0F + 2775.0F : 8850.0F; }
    const model::Controls& Looks() const { return Controls; }
    const Control& Look(const string& control) const { return Controls.at(control); }
    /// The label that the keyboard and the screen reader follow.
    string Keyboard() const { return Name("lblField", Current); }

    // ---- What the user does ----

    void Click(const string& control) {
        const size_t open = control.find('(');
        const string name = control.substr(0, open);
        string frame;
        if (name.starts_with("btn") || name == "lblDeadEnd") frame = "fraAction";
        if (name == "btnNumPad") frame = "fraNumPad";
        if (name.starts_with("mnu")) frame = name.substr(0, 7); // mnuFile, mnuEdit, mnuView
        if (Closed || !IsUsable(control) || !IsUsable(frame)) return;
        const int index = open == string::npos ? 0 : std::stoi(control.substr(open + 1));
        Guarded([&] { Run(name, index); });
    }

    void Activate() {
        if (Closed || Activating) return;
        Activating = true;
        const AtEnd ended{[&] { Activating = false; }};
        Guarded([&] {
            ShowInTaskBar();
            RefreshAll();
        });
    }

    void Close() {
        if (Closed || Solving) return;
        moGame.gbCancel = true; // a solve in step mode can still be under way
        Closed = true;
        TellClosed();
    }

    void Tick() {
        if (Closed || !Look("Timer1").Enabled) return;
        FrameIndex = (FrameIndex + 1) % 12;
        Guarded([&] { ShowFrame(); });
    }

private:
    /// No error leaves the window.
    static void Guarded(const std::function<void()>& handler) {
        try {
            handler();
        } catch (const std::exception& error) {
            Platform::Current().ReportError(error.what());
        }
    }

    /// A taskbar entry is bit 0x40000 of the extended style, which has the index -20.
    static void ShowInTaskBar() {
        Platform& platform = Platform::Current();
        constexpr int handle = 5;
        platform.LockWindowUpdate(platform.GetDesktopWindow());
        platform.ShowWindow(handle, 0);
        platform.SetWindowLongA(handle, -20, platform.GetWindowLongA(handle, -20) | 0x40000);
        platform.ShowWindow(handle, 5);
        platform.LockWindowUpdate(0);
    }

    bool IsUsable(const string& control) const {
        const auto found = Controls.find(control);
        return found == Controls.end() || (found->second.Enabled && found->second.Visible);
    }

    // ---- Commands ----

    void Run(const string& name, int index) {
        Play& play = moGame.Play;
        Fields& fields = moGame.Fields;
        if (name == "lblField" && !ViewRunning) fields.SetIndex(index);
        if (name == "lblDeadEnd") View(&Window::ViewDeadCells);
        if (name == "mnuAbout") ShowAbout();
        if (name == "mnuFileImportCSV") Import();
        if (name == "mnuFileExportCSV") Export();
        if (name == "mnuFileQuit") Close();
        if (name == "mnuEditClearFree" &&
            IsAnsweredYes({.Prompt = "Clear Free?", .QuestionIcon = true})) {
            fields.Clear(true);
            RefreshAll();
        }
        if (name == "mnuEditClearAll" &&
            IsAnsweredYes({.Prompt = "Clear All?", .QuestionIcon = true})) {
            fields.Clear();
            RefreshAll();
            Controls["lblFile"].Caption = "";
        }
        if (name == "mnuEditLockAllSet" || name == "mnuEditLockClear") {
            fields.SetLockAll(name == "mnuEditLockAllSet");
            RefreshAll();
        }
        if (name == "mnuViewFreedom") View(&Window::ViewFreedom);
        if (name == "mnuViewGroups") View(&Window::ViewGroups);
        if (name == "mnuViewNeighbours") View(&Window::ViewNeighbours);
        if (name == "btnNextFree") play.GotoNextFreeField();
        if (name == "btnNextFreeAuto") play.GotoNextFreeField(true);
        if (name == "btnGoBack") play.GoBack();
        if (name == "btnGoBackToFreedom") play.GoBackToFreedom();
        if (name == "btnNextFreeValue") play.NextFreeValue(true);
        if (name == "btnSolve") Solve();
        if (name == "btnInfo") InfoVisible = !InfoVisible;
        if (name == "btnNumPad" && index == 10)
            play.SetLocked(!play.Locked());
        else if (name == "btnNumPad")
            play.SetValue(index == 11 ? 0 : index);
        if (name == "optChill") {
            moGame.gbCancel = false;
            ChillDelay = ChillDelays[index];
        }
    }

    void ShowAbout() {
        const VersionRecord program = Platform::Current().Version();
        ShowBox("FileDescription: " + program.FileDescription + "\r\nCopyright: " +
                    program.LegalNotice + "\r\nInternet: " + program.WebAddress +
                    "\r\nVersion: 01.06.048\r\nRelease: 29.04.2022 - 06:49:52",
                "About " + Platform::Current().ProgramName());
    }

    void Solve() {
        StartRotor();
        EnableFrames(false);
        const AtEnd ended{[&] {
            EnableFrames(true);
            StopRotor();
        }};
        {
            const AtEnd solved{[&] { Solving = false; }};
            Solving = true;
            moGame.Play.Solve();
        }
        if (ChillDelay == -1) RefreshAll();
    }

    void EnableFrames(bool enabled) {
        Controls["fraAction"].Enabled = Controls["fraNumPad"].Enabled = enabled;
    }

    /// A step that fails ends there, and the next one runs all the same.
    static void RunAll(const vector<std::function<void()>>& steps) {
        for (const auto& step : steps) {
            try {
                step();
            } catch (const std::exception&) {
            }
        }
    }

    string ChooseFile(const string& title) {
        string path;
        RunAll({[&] { path = Dialog(title); }});
        return path;
    }

    void Import() {
        const string path = ChooseFile("Import File which exists");
        if (!path.empty())
            RunAll({[&] { moGame.Fields.Clear(); }, [&] { RefreshAll(); },
                    [&] { Controls["lblFile"].Caption = ""; }, [&] { moGame.FileImportCSV(path); },
                    [&] { RefreshAll(); }, [&] { moGame.Play.SetTracing(true); },
                    [&] { Controls["lblFile"].Caption = path; }});
        Indicate("lblDeadEnd", "normal");
        Indicate("lblWinner", "normal");
    }

    void Export() {
        const string path = ChooseFile("Export File to save");
        if (!path.empty())
            RunAll({[&] { moGame.FileExportCSV(path); }, [&] { moGame.Play.SetTracing(true); }});
    }

    void View(void (Window::*view)()) {
        SetViewRunning(true);
        const AtEnd ended{[&] { SetViewRunning(false); }};
        (this->*view)();
    }

    void SetViewRunning(bool running) {
        ViewRunning = running;
        for (const string menu : {"mnuFile", "mnuEdit", "mnuView"})
            Controls[menu].Enabled = !running;
    }

    void ViewDeadCells() {
        const Fields& fields = moGame.Fields;
        for (int k : fields.DeadFields)
            if (Control* label = Label(k)) label->Back = "red";
        ShowBox("Dead cells = " + to_string(fields.DeadCount()));
        for (int k : fields.DeadFields)
            if (Control* label = Label(k)) label->Back = "normal";
    }

    void ViewFreedom() {
        PaintFreedoms();
        ShowBox("Freedoms of fields");
        RefreshAll();
        for (int k : moGame.Fields.DeadFields) {
            if (Control* label = Label(k)) {
                label->Back = "normal";
                label->Fore = "text";
            }
        }
    }

    void ViewGroups() {
        const auto groups = moGame.Groups;
        for (const auto& group : groups) {
            PaintFields(group->Fields, true);
            PumpEvents(Pump::Now);
            Platform::Current().Sleep(1000);
            PumpEvents(Pump::Now);
            PaintFields(group->Fields, false);
        }
        RefreshAll();
    }

    void ViewNeighbours() {
        const auto field = moGame.Fields.Cursor;
        if (!field) return;
        PaintFields(field->Neighbours, true);
        ShowBox("Neigbours = " + to_string(field->Neighbours.size()));
        PaintFields(field->Neighbours, false);
    }

    // ---- Events of the game ----

    void Handle(const string& event, int index) {
        const bool quiet = Solving && ChillDelay == -1;
        if (event == "BeforeIndexChanged") PreviousIndex = index;
        if (event == "IndexChanged" && !quiet) {
            PaintField(PreviousIndex);
            PaintField(index);
            RefreshNumPad();
        }
        if (event == "StatusChanged") {
            if (!quiet) {
                PaintField(index);
                RefreshNumPad();
            }
            if (Solving && ChillDelay == -2) {
                moGame.gbCancel = true;
                StopRotor();
                Solving = false;
            }
        }
        if (event == "IsWinner") Indicate("lblWinner", index == 0 ? "normal" : "green");
        if (event == "IsDeadEnd") Indicate("lblDeadEnd", index == 0 ? "normal" : "red");
    }

    void Indicate(const string& label, const string& colour) {
        Controls[label].Back = colour;
        Controls[label].Spoken = string(label == "lblWinner" ? "winner" : "dead end") +
                                 (colour == "normal" ? ": not lit" : ": lit");
    }

    // ---- Painting ----

    /// None for a field that the window was not laid out for.
    Control* Label(int field) {
        const auto found = Controls.find(Name("lblField", field));
        return field < 1 || found == Controls.end() ? nullptr : &found->second;
    }

    void RefreshAll() {
        if (!moGame.Fields.Cursor) moGame.Fields.SetIndex(1);
        const int count = moGame.Fields.Count();
        for (int k = 1; k <= count; ++k)
            PaintField(k);
        RefreshNumPad();
    }

    void PaintFields(const vector<int>& fields, bool marked) {
        for (int k : fields)
            PaintField(k, marked);
    }

    /// 0 or less is the current field.
    void PaintField(int index, bool marked = false) {
        Fields& fields = moGame.Fields;
        fields.DeadField(); // counts, and pumps: what follows reads what is there after that
        const int cursor = fields.Index();
        if (index <= 0) index = cursor;
        if (!Label(index)) return;
        ShowInfo(*fields.Items.Item(index));
        if (index == PaintedCurrent && index != cursor) {
            if (Control* label = Label(cursor)) {
                label->Spoken = SpokenName(*fields.Cursor, false);
                Current = cursor;
            }
            PaintedCurrent = 0;
        }
        ShowField(index, marked);
        if (index == cursor) {
            Current = cursor;
            const int previous = std::exchange(PaintedCurrent, cursor);
            if (previous != cursor && Label(previous)) ShowField(previous, false);
        }
        if (!PauseIsDue()) return;
        PumpEvents(Pump::Now);
        if (!PauseIsDue()) return; // the pump can end the solve or choose another pace
        Platform::Current().Sleep(ChillDelay);
        PumpEvents(Pump::Now);
    }

    bool PauseIsDue() const { return Solving && ChillDelay > 0; }

    void ShowInfo(const Field& field) {
        Fields& fields = moGame.Fields;
        const auto flag = [](bool is) { return is ? "True\r\n" : "False\r\n"; };
        Controls["lblInfo"].Caption =
            "Index=" + to_string(field.Index) + "\r\nValue=" + to_string(field.Value()) +
            "\r\n\r\nFreedom=" + to_string(field.Freedom()) +
            "\r\nFreeValuesList=" + field.FreeValuesList() +
            "\r\n\r\nIsCursor=" + flag(field.Index == fields.Index()) +
            "IsLocked=" + flag(field.Locked()) + "IsEmpty=" + flag(field.Value() == 0) +
            "IsDeadCell=" + flag(field.Index == fields.DeadField()) +
            "\r\nRetries=" + to_string(moGame.Play.Retries) +
            "\r\nDeadCount=" + to_string(fields.DeadCount());
    }

    void ShowField(int index, bool marked) {
        Fields& fields = moGame.Fields;
        const Field& field = *fields.Items.Item(index);
        Control& label = *Label(index);
        label.Font = "Arial Black 20";
        label.Back = marked                        ? "yellow"
                     : index == fields.DeadField() ? "red"
                     : index == fields.Index()     ? "green"
                                                   : "normal";
        label.Fore = field.Locked() ? "red" : "text";
        label.Caption = field.Value() == 0 ? "" : to_string(field.Value());
        label.Spoken = SpokenName(field, marked);
    }

    /// "row 2, column 3: 5, locked", as a screen reader says it.
    string SpokenName(const Field& field, bool marked, bool freedom = false) {
        Fields& fields = moGame.Fields;
        const int n = fields.Numbers(), k = field.Index - 1;
        string name = "row " + to_string(k / n + 1) + ", column " + to_string(k % n + 1) + ": ";
        name += field.Value() == 0 ? "empty" : to_string(field.Value());
        if (field.Locked()) name += ", locked";
        if (field.Index == fields.Index()) name += ", current";
        if (!freedom && field.Index == fields.DeadField()) name += ", dead";
        if (marked) name += ", marked";
        if (freedom) name += ", freedom " + to_string(field.Freedom());
        return name;
    }

    void PaintFreedoms() {
        for (const auto& field : moGame.Fields.Items) {
            Control* label = Label(field->Index);
            if (!label || field->Value() != 0) continue;
            const int freedom = field->Freedom();
            label->Font = "Arial 12 italic";
            label->Caption = to_string(freedom);
            label->Back = freedom == 0 ? "red" : freedom == 1 ? "green" : "yellow";
            label->Fore = freedom == 0 ? "normal" : "red";
            label->Spoken = SpokenName(*field, false, true);
        }
    }

    void RefreshNumPad() {
        const auto field = moGame.Fields.Cursor;
        if (!field) return;
        const string list = field->FreeValuesList();
        for (int key = 0; key < 12; ++key) {
            Control& button = Controls[Name("btnNumPad", key)];
            const bool isFree = list.find(to_string(key) + ";") != string::npos;
            button.Visible = key < 1 || key > 9 || isFree;
            button.Enabled = !field->Locked();
        }
        Controls["btnNumPad(10)"].Enabled = field->Locked() || field->Value() != 0;
        Controls["fraNumPad"].Back = field->Locked() ? "red" : "normal";
    }

    // ---- Busy indicator ----

    /// Empty until the first tick.
    void StartRotor() {
        Controls["Timer1"].Enabled = true;
        Platform::Current().SetMousePointer(MousePointer::Hourglass);
        FrameIndex = 0;
    }

    void StopRotor() {
        Controls["Timer1"].Enabled = false;
        Platform::Current().SetMousePointer(MousePointer::Default);
        FrameIndex = -1;
        ShowFrame();
    }

    void ShowFrame() {
        for (int i = 0; i < 12; ++i)
            Controls[Name("Image1", i)].Visible = i == FrameIndex;
        PumpEvents(Pump::Now);
    }

    static constexpr int ChillDelays[] = {-1, 0, 100, 200, 400, 800, -2}; // quiet, ms, step
    int ChillDelay = 0;
    int PreviousIndex = 0;
    int PaintedCurrent = 0, Current = 0;
    int FrameIndex = -1; // no picture
    bool Solving = false, ViewRunning = false, InfoVisible = false, Activating = false,
         Closed = false;
};

} // namespace tessarin::model
