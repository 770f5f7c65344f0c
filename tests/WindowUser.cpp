// SPDX-License-Identifier: MIT
#include "WindowUser.h"

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

} // namespace tessarin
