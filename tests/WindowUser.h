// SPDX-License-Identifier: MIT
#pragma once

#include "User.h"
#include "ui/frmTessarin.h"

namespace tessarin {

std::string NameOf(Color color);

/// What has to exist before the user.
template <class PlatformType, class ToolkitType>
struct WindowParts {
    PlatformType platform;
    ToolkitType toolkit{platform};
    frmTessarin OwnWindow{toolkit};
};

/// Works the window, on any toolkit.
class WindowUser : public User {
public:
    frmTessarin& window;

    WindowUser(Recorder& recorder, frmTessarin& worked);

    /// Clicks a control: "btnSolve", "lblField(40)"; "btnNumPad(10)" is the key X, which locks, and
    /// (11) is C, which clears. The box or dialog that opens is closed by `answer`: a button, or
    /// the path of a file.
    void Click(const std::string& control, const std::string& answer = "");
    /// Clicks a field.
    void Click(int field) { Click("lblField(" + std::to_string(field) + ")"); }
    /// Chooses a pace by its caption.
    void Pace(const std::string& caption);
    /// Opens a file with these lines of CSV: see Load. Returns its path.
    std::string Import(const std::string& lines);

    /// How these fields look: caption:background/text:font, each part only if it is not that of a
    /// value on the normal background: "7:green 8/red 2:yellow/red:Arial 12", "." for an empty one.
    std::string Seen(const std::vector<int>& indices);
    /// The fields that are yellow.
    std::vector<int> Marked();
    /// The dead-end and the winner light: "red normal".
    std::string Lights();

protected:
    virtual void ClickControl(const std::string& control) = 0;
    void Refresh() override { window.RefreshAll(); }
};

} // namespace tessarin
