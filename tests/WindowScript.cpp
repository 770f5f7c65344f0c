#include "WindowScript.h"

#include "support/modStringLibrary.h"
#include "ui/Colors.h"

namespace tessarin {

static std::string NameOf(Color color) {
    static const std::map<Color, std::string> names{{WindowBackground, "normal"},
                                                    {ButtonText, "text"},
                                                    {Red, "red"},
                                                    {Green, "green"},
                                                    {Yellow, "yellow"}};
    return names.contains(color) ? names.at(color) : std::to_string(color);
}

// In columns, which clang-format gives up because the lengths differ.
// clang-format off
const std::vector<std::string> WindowScript::Commands{
    "click lblField(#)",       "click btnNumPad(*)",       "click btnNumPad(10)",
    "click btnNumPad(11)",     "click btnNextFree",        "click btnNextFreeAuto",
    "click btnGoBack",         "click btnGoBackToFreedom", "click btnNextFreeValue",
    "click btnSolve",          "click btnInfo",            "click lblDeadEnd",
    "click mnuViewFreedom",    "click mnuViewGroups",      "click mnuViewNeighbours",
    "click mnuEditClearFree",  "click mnuEditClearAll",    "click mnuEditLockAllSet",
    "click mnuEditLockClear",  "click mnuFileExportCSV",   "click mnuAbout",
    "import 3;7;1|#;4;0",      "click mnuFileQuit",        "pace Quiet",
    "pace 0",                  "pace 800",                 "pace Step"};
// clang-format on

WindowScript::WindowScript(Recorder& recorder, frmTessarin& worked)
    : Script(recorder, *goGame), window(worked) {
    Add("click", [this](int, auto& name) { Click(name); });
    Add("pace", [this](int, auto& pace) { Click(window.PaceOption(pace).Name()); });
    Add("answer", [this](int, auto& answer) { Answer(answer); });
    Add("choose", [this](int, auto& file) { Answer(folder + file); });
    Add("import", [this](int, auto& lines) {
        Told("write import.csv Index;Value;Locked|" + lines);
        Answer(folder + "import.csv");
        Click("mnuFileImportCSV");
    });
    Add("fields", [this](int, auto& indices) {
        for (const int index : Numbers(indices))
            Tell(Field(index));
    });
    // The dead-end and the winner light.
    Add("lights", [this](int, auto&) {
        Tell(NameOf(window.lblDeadEnd.BackColor()), " ", NameOf(window.lblWinner.BackColor()));
    });
    Add("faults", [this](int, auto&) { Tell(Faults()); });
}

std::string WindowScript::Field(int index) {
    const Label& label = window.lblField(index);
    std::ostringstream look;
    look << (label.Caption().empty() ? "." : label.Caption());
    if (label.BackColor() != WindowBackground) look << ":" << NameOf(label.BackColor());
    if (label.ForeColor() != ButtonText) look << "/" << NameOf(label.ForeColor());
    if (label.Font() != FieldFont) look << ":" << label.Font().Name << " " << label.Font().Size;
    return look.str();
}

std::string WindowScript::Pad() {
    std::string visible, enabled;
    for (int key = 0; key <= 11; ++key) {
        const CommandButton& button = window.btnNumPad(key);
        if (button.Visible()) visible += button.Caption();
        if (button.Enabled()) enabled += button.Caption();
    }
    return visible + " " + enabled + " " + NameOf(window.fraNumPad.BackColor());
}

std::string WindowScript::Faults() {
    std::ostringstream faults;
    for (const Control* const control : std::initializer_list<Control*>{
             &window.mnuFile, &window.mnuView, &window.fraAction, &window.fraNumPad})
        if (!control->Enabled()) faults << control->Name() << " is disabled; ";
    if (window.ViewRunning()) faults << "a view runs; ";
    if (window.ctlRotor1.Running()) faults << "the rotor turns; ";
    int free = 0, locked = 0, dead = 0;
    for (const auto& field : grid.Items) {
        const bool empty = field->Value() == 0;
        free += empty;
        locked += field->Locked();
        dead += empty && field->Freedom() == 0;
    }
    if (grid.FreeCount() != free || grid.LockedCount() != locked || grid.DeadCount() != dead)
        faults << "wrong counts; ";
    const std::vector<std::string> painted = Shown();
    window.RefreshAll();
    const std::vector<std::string> right = Shown();
    for (std::size_t i = 0; i < right.size(); ++i)
        if (painted[i] != right[i]) faults << painted[i] << " instead of " << right[i] << "; ";
    return faults.str();
}

// The pad, and what is seen and heard of the fields. What is dead may be older than the grid.
std::vector<std::string> WindowScript::Shown() {
    std::vector<std::string> shown{Pad()};
    for (int i = 1; i <= 81; ++i) {
        const Label& label = window.lblField(i);
        shown.push_back(label.Caption() + "/" + NameOf(label.ForeColor()) + "/" +
                        label.Font().Name + "/" + ReplaceAll(label.AccessibleName(), ", dead", ""));
    }
    return shown;
}

} // namespace tessarin
