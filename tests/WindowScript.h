#pragma once

#include "FakeToolkit.h"
#include "GameFixture.h"
#include "ui/Colors.h"
#include "ui/frmTessarin.h"

#include <filesystem>

namespace tessarin {

struct WindowParts {
    WindowParts() {
        OwnToolkit.OnClosed = [this] { OwnPlatform.Closed = true; };
    }
    ScriptedPlatform OwnPlatform;
    FakeToolkit OwnToolkit;
    frmTessarin window{OwnToolkit};
};

/// The window, active, on a toolkit that shows nothing. Executes commands given as text.
class WindowScript : protected WindowParts, public GameScript {
public:
    WindowScript() : GameScript(OwnPlatform, *goGame) {
        window.Show();
        window.RaiseActivate();
        mCommands["click"] = [this](int, auto& name) { Click(name); };
        mCommands["answer"] = [this](int yes, auto&) { platform.Answers.push_back(yes == 1); };
        mCommands["choose"] = [this](int, auto& name) {
            toolkit.Files.push_back(folder.File(name));
        };
        mCommands["import"] = [this](int, auto& lines) {
            toolkit.Files.push_back(folder.Write("import.csv", "Index;Value;Locked\r\n" +
                                                                   ReplaceAll(lines, "|", "\r\n")));
            Click("mnuFileImportCSV");
        };
        mCommands["fields"] = [this](int, auto& indices) {
            std::istringstream words(indices);
            for (int index = 0; words >> index;)
                Tell(Shows(index));
        };
        mCommands["cursor"] = [this](int, auto&) { Tell(std::to_string(grid.Index())); };
        mCommands["pad"] = [this](int, auto&) { Tell(Pad()); };
        mCommands["lights"] = [this](int, auto&) {
            Tell(NameOf(window.lblDeadEnd.BackColor()) + " " +
                 NameOf(window.lblWinner.BackColor()));
        };
        mCommands["file"] = [this](int, auto&) {
            Tell(std::filesystem::path(window.lblFile.Caption()).filename().string());
        };
    }

    void Click(const std::string& name) { toolkit.Find(name).RaiseClick(); }

    /// The look of a field's label: caption, background and text colour, and the font if it is not
    /// that of values: "7:green/text", ":yellow/red:Arial:12:italic".
    std::string Shows(int index) {
        const Label& label = window.lblField(index);
        const auto& [name, size, italic] = label.Font();
        const std::string look =
            label.Caption() + ":" + NameOf(label.BackColor()) + "/" + NameOf(label.ForeColor());
        if (name == "Arial Black" && size == 20 && !italic) return look;
        return look + ":" + name + ":" + std::to_string(static_cast<int>(size)) +
               (italic ? ":italic" : "");
    }

    std::string YellowFields() {
        std::vector<int> fields;
        for (int k = 1; k <= 81; ++k)
            if (window.lblField(k).BackColor() == Yellow) fields.push_back(k);
        return Text(fields);
    }

    ScriptedPlatform& platform = OwnPlatform;
    FakeToolkit& toolkit = OwnToolkit;

private:
    static std::string NameOf(Color color) {
        static const std::map<Color, std::string> names{{WindowBackground, "normal"},
                                                        {ButtonText, "text"},
                                                        {Red, "red"},
                                                        {Green, "green"},
                                                        {Yellow, "yellow"}};
        return names.contains(color) ? names.at(color) : "?";
    }

    // The visible keys, the enabled keys and the background colour.
    std::string Pad() {
        std::string visible, enabled;
        for (int key = 0; key <= 11; ++key) {
            const CommandButton& button = window.btnNumPad(key);
            if (button.Visible()) visible += button.Caption();
            if (button.Enabled()) enabled += button.Caption();
        }
        return visible + " " + enabled + " " + NameOf(window.fraNumPad.BackColor());
    }
};

class WindowFixture : public testing::Test, protected WindowScript {};

} // namespace tessarin
