// Works the window, on any toolkit, by steps given as text.
//
// A field is told as caption:background/text:font, each part only if it is not that of a value on
// the normal background: "7:green", "8/red", "2:yellow/red:Arial 12 italic", "." for an empty one.
#pragma once

#include "Script.h"
#include "ui/frmTessarin.h"

namespace tessarin {

/// What has to exist before the script.
template <class PlatformType, class ToolkitType>
struct WindowParts {
    PlatformType platform;
    ToolkitType toolkit{platform};
    frmTessarin OwnWindow{toolkit};
};

class WindowScript : public Script {
public:
    frmTessarin& window;

    WindowScript(Recorder& recorder, frmTessarin& worked);

    virtual void Click(const std::string& control) = 0;
    /// The button to be pressed in the next box, or the file to be chosen in the next dialog.
    virtual void Answer(const std::string& answer) = 0;

    /// The commands of the window, as steps: "#" is any field, "*" any digit.
    static const std::vector<std::string> Commands;
    /// What is wrong while no command runs: something is stuck, or grid and window do not agree.
    std::string Faults();

protected:
    void Refresh() override { window.RefreshAll(); }
    std::string Field(int index);
    /// The visible keys, the enabled keys and the background.
    std::string Pad();
    std::vector<std::string> Shown();
};

} // namespace tessarin
