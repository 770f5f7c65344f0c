// SPDX-License-Identifier: MIT
// What the main window does and shows, written a second time, plainly, to compare the program with.
#pragma once

#include "Logic.h"

#include <map>
#include <utility>

namespace tessarin::model {

struct Control {
    string Caption, Spoken, Font, Back = "face", Fore = "text";
    bool Enabled = true, Visible = true;
};

inline void ShowBox(const string& prompt, const string& title = "") {
    Platform::Current().ShowMessage({.Prompt = prompt, .Title = title});
}

inline string Name(const string& controls, int index) {
    return controls + "(" + to_string(index) + ")";
}

class Window {
public:
    Window() {
        moGame.Raise = [this](const string& event, int index) {
            Handle(event, index);
            Told(event, index);
        };
        LayoutWindow();
        Activate();
    }
    Window(const Window&) = delete;

    /// Called after the window has handled an event itself.
    std::function<void(const string& event, int index)> Told = [](const string&, int) {};
    /// Asks for a file; "" when cancelled.
    std::function<string(const string& title)> Dialog;
    /// Called when the window has closed.
    std::function<void()> TellClosed;

    Game moGame;
    std::map<string, Control> Controls;
    float Width = 8850;
    bool Hourglass = false, Closed = false;
    int Keyboard = 0; // the field whose label the keyboard and the screen reader follow

    void Click(const string& control) {
        const size_t open = control.find('(');
        const string name = control.substr(0, open);
        string frame;
        if (name.starts_with("btn") || name == "lblDeadEnd") frame = "fraAction";
        if (name == "btnNumPad") frame = "fraNumPad";
        if (name.starts_with("mnu")) frame = name.substr(0, 7); // mnuFile, mnuEdit, mnuView
        if (Closed || !IsUsable(control) || !IsUsable(frame)) return;
        Run(name, open == string::npos ? 0 : std::stoi(control.substr(open + 1)));
    }

    void Activate() {
        if (Closed || Activating) return;
        Activating = true;
        Finally(
            [&] {
                ShowInTaskBar();
                RefreshAll();
            },
            [&] { Activating = false; });
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

    void Unload() {
        if (Closed || Solving) return;
        moGame.gbCancel = true; // a solve in step mode can still be under way
        Closed = true;
        TellClosed();
    }

    void Tick() {
        if (Closed || FrameIndex < 0) return;
        FrameIndex = (FrameIndex + 1) % 12;
        ShowFrame();
    }

private:
    void LayoutWindow() {
        for (int k = 1; k <= 81; ++k)
            Controls[Name("lblField", k)].Font = "Arial Black 20";
        for (int key = 0; key < 12; ++key) {
            Control& button = Controls[Name("btnNumPad", key)];
            button.Caption = key == 10 ? "X" : key == 11 ? "C" : to_string(key);
            button.Font = "Arial 20";
        }
        Controls["fraNumPad"].Back = Controls["fraAction"].Back = "normal";
        Controls["lblFile"] = Controls["lblInfo"] = {};
        for (const string menu : {"File", "Edit", "View"})
            Controls["mnu" + menu].Caption = menu;
        for (int i = 0; i < 12; ++i)
            Controls[Name("Image1", i)].Visible = false;
        for (int i = 0; i < 7; ++i)
            Controls[Name("optChill", i)].Spoken =
                i == 0   ? "only show result"
                : i == 6 ? "stop after every move / continue with solve"
                         : "pause " + to_string(ChillDelays[i]) + " milliseconds";
        Indicate("lblDeadEnd", "normal");
        Indicate("lblWinner", "normal");
    }

    bool IsUsable(const string& control) const {
        const auto found = Controls.find(control);
        return found == Controls.end() || (found->second.Enabled && found->second.Visible);
    }

    /// Runs the steps. What they set for a time is taken back, also when an error ends them.
    template <class Steps, class TakeBack>
    static void Finally(Steps steps, TakeBack takeBack) {
        try {
            steps();
        } catch (...) {
            takeBack();
            throw;
        }
        takeBack();
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
        if (name == "mnuFileQuit") Unload();
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
        if (name == "btnInfo") {
            InfoVisible = !InfoVisible;
            Width += InfoVisible ? 2775.0F : -2775.0F;
        }
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
        Finally(
            [&] {
                Solving = true;
                Finally([&] { moGame.Play.Solve(); }, [&] { Solving = false; });
                if (ChillDelay == -1) RefreshAll();
            },
            [&] {
                EnableFrames(true);
                StopRotor();
            });
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
        const string path = ChooseFile("Import File");
        if (!path.empty())
            RunAll({[&] { moGame.Fields.Clear(); }, [&] { RefreshAll(); },
                    [&] { Controls["lblFile"].Caption = ""; }, [&] { moGame.FileImportCSV(path); },
                    [&] { RefreshAll(); }, [&] { moGame.Play.SetTracing(true); },
                    [&] { Controls["lblFile"].Caption = path; }});
        Indicate("lblDeadEnd", "normal");
        Indicate("lblWinner", "normal");
    }

    void Export() {
        const string path = ChooseFile("Export File");
        if (!path.empty())
            RunAll({[&] { moGame.FileExportCSV(path); }, [&] { moGame.Play.SetTracing(true); }});
    }

    void View(void (Window::*view)()) {
        SetViewRunning(true);
        Finally([&] { (this->*view)(); }, [&] { SetViewRunning(false); });
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
            PumpEvents();
            Platform::Current().Sleep(1000);
            PumpEvents();
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
        return found == Controls.end() ? nullptr : &found->second;
    }

    void RefreshAll() {
        if (!moGame.Fields.Cursor) moGame.Fields.SetIndex(1);
        const int count = moGame.Fields.Count();
        for (int k = 1; k <= count; ++k)
            PaintField(k);
        RefreshNumPad();
    }

    /// A copy of the list, as each painting can pump.
    void PaintFields(const vector<int> fields, bool marked) {
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
        ShowInfo(*Find(fields.Items, index));
        if (index == PaintedCurrent && index != cursor) {
            if (Control* label = Label(cursor)) {
                label->Spoken = SpokenName(*fields.Cursor, false);
                Keyboard = cursor;
            }
            PaintedCurrent = 0;
        }
        ShowField(index, marked);
        if (index == cursor) {
            Keyboard = cursor;
            const int previous = std::exchange(PaintedCurrent, cursor);
            if (previous != cursor && Label(previous)) ShowField(previous, false);
        }
        if (!PauseIsDue()) return;
        PumpEvents();
        if (!PauseIsDue()) return; // the pump can end the solve or choose another pace
        Platform::Current().Sleep(ChillDelay);
        PumpEvents();
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
        const Field& field = *Find(fields.Items, index);
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
        Hourglass = true;
        FrameIndex = 0;
    }

    void StopRotor() {
        Hourglass = false;
        FrameIndex = -1;
        ShowFrame();
    }

    void ShowFrame() {
        for (int i = 0; i < 12; ++i)
            Controls[Name("Image1", i)].Visible = i == FrameIndex;
        PumpEvents();
    }

    static constexpr int ChillDelays[] = {-1, 0, 100, 200, 400, 800, -2}; // quiet, ms, step
    int ChillDelay = 0;
    int PreviousIndex = 0;
    int PaintedCurrent = 0;
    int FrameIndex = -1; // while the rotor stands
    bool Solving = false, ViewRunning = false, InfoVisible = false, Activating = false;
};

} // namespace tessarin::model
