#include "WindowUser.h"

#include "support/modStringLibrary.h"
#include "ui/Colors.h"

#include <map>

namespace tessarin {

std::string NameOf(Color color) {
    static const std::map<Color, std::string> names{{WindowBackground, "normal"},
                                                    {ButtonText, "text"},
                                                    {ButtonFace, "face"},
                                                    {Red, "red"},
                                                    {Green, "green"},
                                                    {Yellow, "yellow"}};
    return names.contains(color) ? names.at(color) : std::to_string(color);
}

WindowUser::WindowUser(Recorder& recorder, frmTessarin& worked)
    : User(recorder, *goGame), window(worked) {}

void WindowUser::Click(const std::string& control, const std::string& answer) {
    if (!answer.empty()) mRecorder.Answers.push_front(answer);
    ClickControl(control);
}

void WindowUser::Pace(const std::string& caption) {
    Click(window.PaceOption(caption).Name());
}

std::string WindowUser::Import(const std::string& lines) {
    const std::string path = Write("import.csv", "Index;Value;Locked|" + lines);
    Click("mnuFileImportCSV", path);
    return path;
}

std::string WindowUser::Seen(const std::vector<int>& indices) {
    std::ostringstream seen;
    for (const int index : indices) {
        const Label& label = window.lblField(index);
        if (index != indices.front()) seen << " ";
        seen << (label.Caption().empty() ? "." : label.Caption());
        if (label.BackColor() != WindowBackground) seen << ":" << NameOf(label.BackColor());
        if (label.ForeColor() != ButtonText) seen << "/" << NameOf(label.ForeColor());
        if (label.Font() != FieldFont) seen << ":" << label.Font().Name << " " << label.Font().Size;
    }
    return seen.str();
}

std::vector<int> WindowUser::Marked() {
    std::vector<int> marked;
    for (int i = 1; i <= 81; ++i)
        if (window.lblField(i).BackColor() == Yellow) marked.push_back(i);
    return marked;
}

std::string WindowUser::Lights() {
    return NameOf(window.lblDeadEnd.BackColor()) + " " + NameOf(window.lblWinner.BackColor());
}

std::string WindowUser::Pad() {
    std::string visible, enabled;
    for (int key = 0; key <= 11; ++key) {
        const CommandButton& button = window.btnNumPad(key);
        if (button.Visible()) visible += button.Caption();
        if (button.Enabled()) enabled += button.Caption();
    }
    return visible + " " + enabled + " " + NameOf(window.fraNumPad.BackColor());
}

std::string WindowUser::Faults() {
    std::ostringstream faults;
    const bool enabled = window.mnuFile.Enabled() && window.mnuView.Enabled() &&
                         window.fraAction.Enabled() && window.fraNumPad.Enabled();
    if (!enabled) faults << "a menu or panel is disabled; ";
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
    const std::vector<std::string> painted = SeenAndHeard();
    window.RefreshAll();
    const std::vector<std::string> right = SeenAndHeard();
    for (std::size_t i = 0; i < right.size(); ++i)
        if (painted[i] != right[i]) faults << painted[i] << " instead of " << right[i] << "; ";
    return faults.str();
}

// The pad, and what is seen and heard of the fields. What is dead may be older than the grid.
std::vector<std::string> WindowUser::SeenAndHeard() {
    std::vector<std::string> all{Pad()};
    for (int i = 1; i <= 81; ++i) {
        const Label& label = window.lblField(i);
        all.push_back(label.Caption() + "/" + NameOf(label.ForeColor()) + "/" + label.Font().Name +
                      "/" + ReplaceAll(label.AccessibleName(), ", dead", ""));
    }
    return all;
}

} // namespace tessarin
