#include "WindowScript.h"

#include "model/Fields.h"
#include "ui/Colors.h"

namespace tessarin {

namespace {

std::string NameOf(Color color) {
    for (const auto& [known, name] : {std::pair{WindowBackground, "normal"},
                                      {ButtonText, "text"},
                                      {Red, "red"},
                                      {Green, "green"},
                                      {Yellow, "yellow"}})
        if (color == known) return name;
    return std::to_string(color);
}

} // namespace

const std::vector<std::string> WindowScript::Commands{
    "click lblField(#)",       "click btnNumPad(*)",       "click btnNumPad(10)",
    "click btnNumPad(11)",     "click btnNextFree",        "click btnNextFreeAuto",
    "click btnGoBack",         "click btnGoBackToFreedom", "click btnNextFreeValue",
    "click btnSolve",          "click optChill(*)",        "click btnInfo",
    "click lblDeadEnd",        "click mnuViewFreedom",     "click mnuViewGroups",
    "click mnuViewNeighbours", "click mnuEditClearFree",   "click mnuEditClearAll",
    "click mnuEditLockAllSet", "click mnuEditLockClear",   "click mnuFileExportCSV",
    "click mnuAbout",          "import 3;7;1|#;4;0",       "click mnuFileQuit"};

WindowScript::WindowScript(Recorder& recorder, frmTessarin& worked)
    : Script(recorder, *goGame), window(worked) {
    const auto add = [this](const char* name, auto command) { mCommands[name] = command; };
    for (const char* const name : {"fill", "full"})
        add(name, [this, fill = mCommands.at(name)](int first, auto& text) {
            fill(first, text);
            window.RefreshAll();
        });
    add("click", [this](int, auto& name) { Click(name); });
    add("answer", [this](int, auto& answer) { Answer(answer); });
    add("choose", [this](int, auto& file) { Answer(folder + file); });
    add("import", [this](int, auto& lines) {
        Told("write import.csv Index;Value;Locked|" + lines);
        Answer(folder + "import.csv");
        Click("mnuFileImportCSV");
    });
    add("fields", [this](int, auto& indices) {
        for (const int index : Numbers(indices))
            Tell(Field(index));
    });
    // The dead-end and the winner light.
    add("lights", [this](int, auto&) {
        Tell(NameOf(window.lblDeadEnd.BackColor()), " ", NameOf(window.lblWinner.BackColor()));
    });
    add("export", [this](int, auto& file) {
        Answer(folder + file);
        Click("mnuFileExportCSV");
    });
    add("faults", [this](int, auto&) { Tell(Faults()); });
}

std::string WindowScript::Field(int index) {
    const Label& label = window.lblField(index);
    const auto& [font, size, italic] = label.Font();
    std::ostringstream look;
    look << (label.Caption().empty() ? "." : label.Caption());
    if (label.BackColor() != WindowBackground) look << ":" << NameOf(label.BackColor());
    if (label.ForeColor() != ButtonText) look << "/" << NameOf(label.ForeColor());
    if (label.Font() != FieldFont) look << ":" << font << " " << size << (italic ? " italic" : "");
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
    for (const Control* const control :
         std::initializer_list<Control*>{&window.mnuFile, &window.mnuEdit, &window.mnuView,
                                         &window.mnuHelp, &window.fraAction, &window.fraNumPad})
        if (!control->Enabled()) faults << control->Name() << " is disabled; ";
    if (window.ViewRunning()) faults << "a view runs; ";
    if (window.ctlRotor1.Running()) faults << "the rotor turns; ";
    std::vector counts{0, 0, 0};
    for (const auto& field : grid.Items) {
        const bool empty = field->Value() == 0;
        counts[0] += empty ? 1 : 0;
        counts[1] += field->Locked() ? 1 : 0;
        counts[2] += empty && field->Freedom() == 0 ? 1 : 0;
    }
    if (std::vector{grid.FreeCount(), grid.LockedCount(), grid.DeadCount()} != counts)
        faults << "wrong counts; ";
    // The red of a dead field and the lights may be older than the grid.
    const auto text = [this](int index) {
        const Label& label = window.lblField(index);
        return label.Caption() + "/" + NameOf(label.ForeColor()) + "/" + label.Font().Name;
    };
    std::vector<std::string> before{Pad()};
    for (int i = 1; i <= 81; ++i) {
        const Label& label = window.lblField(i);
        const bool spoken = label.AccessibleName().find(", current") != std::string::npos;
        const bool wrong = label.BackColor() == Yellow || (label.BackColor() == Green && !spoken);
        if (wrong || spoken != (i == grid.Index()))
            faults << "not current or marked: " << i << "; ";
        before.push_back(text(i));
    }
    window.RefreshAll();
    if (before[0] != Pad()) faults << "wrong pad: " << before[0] << "; ";
    for (int i = 1; i <= 81; ++i)
        if (text(i) != before[static_cast<std::size_t>(i)]) faults << "not painted: " << i << "; ";
    return faults.str();
}

} // namespace tessarin
