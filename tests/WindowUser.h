// SPDX-License-Identifier: MIT
#pragma once

#include "User.h"
#include "ui/frmTessarin.h"

namespace tessarin {

/// What has to exist before the user.
template <class PlatformType, class ToolkitType>
struct WindowParts {
    PlatformType platform;
    ToolkitType toolkit{platform};
    frmTessarin window{toolkit};
};

/// Works the window, on any toolkit.
class WindowUser : public User {
public:
    WindowUser(Recorder& recorder, frmTessarin& worked)
        : User(recorder, *goGame), mWindow(worked) {}

    /// Clicks a control: "btnSolve", "lblField(40)"; "btnNumPad(10)" is the key X, which locks, and
    /// (11) is C, which clears. The box or dialog that opens is closed by `answer`: a button, or
    /// the path of a file.
    void Click(const std::string& control, const std::string& answer = "") {
        if (!answer.empty()) mRecorder.Answers.push_front(answer);
        ClickControl(control);
    }
    /// Clicks a field.
    void Click(int field) { Click("lblField(" + std::to_string(field) + ")"); }
    /// Chooses a pace by its caption.
    void Pace(const std::string& caption) { Click(mWindow.PaceOption(caption).Name()); }
    /// Opens a file with these lines of CSV: see Load. Returns its path.
    std::string Import(const std::string& lines) {
        const std::string path = Write("import.csv", "Index;Value;Locked|" + lines);
        Click("mnuFileImportCSV", path);
        return path;
    }

protected:
    virtual void ClickControl(const std::string& control) = 0;
    void Refresh() override { mWindow.RefreshAll(); }

private:
    frmTessarin& mWindow;
};

} // namespace tessarin
