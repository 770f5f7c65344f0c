#pragma once

#include "FakeToolkit.h"
#include "GameFixture.h"
#include "ui/Colors.h"
#include "ui/frmTessarin.h"

namespace tessarin {

struct WindowParts {
    ScriptedPlatform OwnPlatform;
    FakeToolkit OwnToolkit{OwnPlatform};
    frmTessarin window{OwnToolkit};
};

/// The window, active, on a toolkit that shows nothing. Executes commands given as text.
class WindowScript : protected WindowParts, public GameScript {
public:
    WindowScript() : GameScript(OwnPlatform, *goGame) {
        platform.Meanwhile = [this] { Meanwhile(); };
        window.Show();
        window.RaiseActivate();
        const auto add = [this](const char* name, auto command) { mCommands[name] = command; };
        add("click", [this](int, auto& name) { Click(name); });
        add("answer", [this](int yes, auto&) { platform.Answers.push_back(yes == 1); });
        add("esc", [this](int pressed, auto&) { platform.Esc.push_back(pressed == 1); });
        add("choose", [this](int, auto& name) { toolkit.File = folder + name; });
        add("import", [this](int, auto& lines) {
            Write("import.csv Index;Value;Locked|" + lines);
            toolkit.File = folder + "import.csv";
            Click("mnuFileImportCSV");
        });
        // A full grid with some empty fields, and the cursor on the first one.
        add("holes", [this](int first, auto& fields) {
            const std::string sets = "set " + ReplaceAll(fields, " ", " 0 & set ") + " 0 & index ";
            Script("full 81 & reset & " + sets + std::to_string(first));
        });
        // Sets the steps for the next box, pause or change of a field, with "=>" for ">" and "; "
        // between them.
        add("during", [this](int, auto& steps) { mMeanwhile = steps; });
        // Makes the handler fail that runs the steps.
        add("fail", [this](int, auto&) { platform.ErrorExpected = true; });
        // Paints a field, N: marked as a neighbour, G: marked as a member of a group.
        add("paint", [this](int index, auto& text) {
            window.PaintField(index, text.ends_with('N'), text.ends_with('G'));
        });
        add("fields", [this](int, auto& indices) {
            std::istringstream words(indices);
            for (int index = 0; words >> index;)
                Tell(Shows(index));
        });
        add("yellow", [this](int, auto&) { Tell(YellowFields()); });
        add("pad", [this](int, auto&) { Tell(Pad()); });
        add("lights", [this](int, auto&) {
            Tell(NameOf(window.lblDeadEnd.BackColor()), " ", NameOf(window.lblWinner.BackColor()));
        });
        add("caption",
            [this](int, auto& n) { Tell(dynamic_cast<Label&>(toolkit.Find(n)).Caption()); });
        add("size", [this](int, auto&) { Tell(window.Width(), " x ", window.Height()); });
        add("refresh", [this](int, auto&) { window.RefreshAll(); });
        // What is not as it is while no command runs.
        add("busy", [this](int, auto&) {
            for (const char* const name :
                 {"mnuFile", "mnuEdit", "mnuView", "mnuHelp", "fraAction", "fraNumPad"})
                Tell(toolkit.Find(name).Enabled() ? "" : name);
            Tell(window.ViewRunning() ? "view" : "");
            Tell(window.ctlRotor1.Running() ? "rotor" : "");
            Tell(platform.Hourglass ? "hourglass" : "");
            Tell(platform.Closed ? "closed" : "");
        });
    }

    void Click(const std::string& name) { toolkit.Find(name).RaiseClick(); }

    std::string YellowFields() {
        std::vector<int> fields;
        for (int k = 1; k <= 81; ++k)
            if (window.lblField(k).BackColor() == Yellow) fields.push_back(k);
        return Text(fields);
    }

    ScriptedPlatform& platform = OwnPlatform;
    FakeToolkit& toolkit = OwnToolkit;

private:
    // The look of a field's label: caption, background and text colour, and the font if it is not
    // that of values: "7:green/text", ":yellow/red:Arial:12:italic".
    std::string Shows(int index) {
        const Label& label = window.lblField(index);
        const auto& [name, size, italic] = label.Font();
        const std::string look =
            label.Caption() + ":" + NameOf(label.BackColor()) + "/" + NameOf(label.ForeColor());
        if (name == "Arial Black" && size == 20 && !italic) return look;
        return look + ":" + name + (size == 12 ? ":12" : "") + (italic ? ":italic" : "");
    }

    static std::string NameOf(Color color) {
        if (color == WindowBackground) return "normal";
        if (color == ButtonText) return "text";
        return color == Red ? "red" : color == Green ? "green" : color == Yellow ? "yellow" : "?";
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

    void Meanwhile() {
        Script(ReplaceAll(ReplaceAll(std::exchange(mMeanwhile, ""), "; ", "\n"), "=>", ">"));
        if (platform.ErrorExpected) throw std::runtime_error("fail");
    }

    std::string mMeanwhile;
    Connection mChanges = game.Events.StatusChanged.Connect([this](int) { Meanwhile(); });
};

class WindowFixture : public testing::Test, protected WindowScript {};

} // namespace tessarin
