#pragma once

#include "toolkit/Toolkit.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <utility>

namespace tessarin {

class Form;

/// A colour 0x00BBGGRR, or a system colour made by SystemColor.
using Color = std::uint32_t;

/// The system colour `index` (5 window background, 18 button text), looked up when it is painted.
/// All of them are above the fixed colours.
constexpr Color SystemColor(std::uint32_t index) {
    return 0x80000000U | index;
}

/// A typeface by name with its size in points. Without a name it is the toolkit's own.
struct FontStyle {
    std::string Name = {};
    float Size = 9;
    bool Italic = false;
    bool operator==(const FontStyle&) const = default;
};

enum class BorderStyle { None, FixedSingle };
enum class Alignment { Left, Center };
/// Whether the Tab key stops at a label: never; at this label; or, for the labels of the form's
/// grid, at the current one alone, from which the arrow keys move on.
enum class KeyStop { None, Own, Grid };

/// What is set on a control, first by its design. Positions are in twips (1440 to the inch),
/// relative to the inside of the container.
struct ControlProperties {
    std::string Name = {};
    std::string Caption = {};
    std::string ToolTipText = {};
    float Left = 0;
    float Top = 0;
    float Width = 0;
    float Height = 0;
    bool Visible = true;
    BorderStyle Border = BorderStyle::None;
    Alignment Align = Alignment::Left;
    /// Of a label that is aligned left: whether it breaks a long text into lines, after a blank or
    /// a semicolon; if not, it leaves out the middle and shows the whole text in a tool tip.
    bool Wrap = false;
    KeyStop Keys = KeyStop::None;
    FontStyle Font = FontStyle();
    Color BackColor = SystemColor(15);
    Color ForeColor = SystemColor(18);
    /// The file of a picture among the program's pictures. Of a form, the beginning of its icon's
    /// files: "name" stands for all "name-<size>.png".
    std::string PictureFile = {};
    /// Keys that click a button or menu entry, separated by "; ": "Ctrl+O", "Del; Backspace". A
    /// button is also clicked by the character that is its whole caption.
    std::string Shortcuts = {};
};

/// One control of a window. It keeps its properties and tells the toolkit only of those that really
/// change, so setting an equal value costs nothing.
class Control {
public:
    virtual ~Control() = default;

    /// Runs when the user clicks, through the form's gate.
    std::function<void()> Click;

    const std::string& Name() const { return mProperties.Name; }
    const ControlProperties& Properties() const { return mProperties; }

    float Left() const { return mProperties.Left; }
    float Top() const { return mProperties.Top; }
    float Width() const { return mProperties.Width; }
    float Height() const { return mProperties.Height; }
    void SetLeft(float left) { Assign(mProperties.Left, left, Property::Bounds); }
    void SetTop(float top) { Assign(mProperties.Top, top, Property::Bounds); }
    void SetWidth(float width) { Assign(mProperties.Width, width, Property::Bounds); }
    void SetHeight(float height) { Assign(mProperties.Height, height, Property::Bounds); }

    /// The control's own flag: a hidden container hides it all the same.
    bool Visible() const { return mProperties.Visible; }
    void SetVisible(bool visible) { Assign(mProperties.Visible, visible, Property::Visible); }
    bool Enabled() const { return mbEnabled; }
    void SetEnabled(bool enabled) { Assign(mbEnabled, enabled, Property::Enabled); }
    /// Whether a click counts: the control and all its containers are enabled and visible.
    bool Reachable() const;

    const std::string& Caption() const { return mProperties.Caption; }
    /// Forms and menu entries keep the caption of their design.
    void SetCaption(const std::string& text) { Assign(mProperties.Caption, text, Property::Texts); }
    void SetToolTipText(const std::string& text) {
        Assign(mProperties.ToolTipText, text, Property::Texts);
    }
    /// What a screen reader says: the name that was set, else the tool tip, else the caption.
    const std::string& AccessibleName() const;
    void SetAccessibleName(const std::string& name) {
        Assign(msAccessibleName, name, Property::Texts);
    }
    /// Of a button: a menu entry keeps those of its design.
    void SetShortcuts(const std::string& keys) { mProperties.Shortcuts = keys; }
    const FontStyle& Font() const { return mProperties.Font; }
    void SetFont(const FontStyle& font) { Assign(mProperties.Font, font, Property::Font); }
    Color BackColor() const { return mProperties.BackColor; }
    void SetBackColor(Color color) { Assign(mProperties.BackColor, color, Property::Colors); }
    Color ForeColor() const { return mProperties.ForeColor; }
    void SetForeColor(Color color) { Assign(mProperties.ForeColor, color, Property::Colors); }
    /// The control around this one; nullptr for a form.
    Control* Container() const { return mContainer; }

    /// The toolkit's side of the control.
    ControlPeer& Peer() const { return *mPeer; }

    /// Whether clicks on this control may wait in the gate's queue.
    virtual bool ClicksMayWait() const { return true; }

    /// For the toolkit: the user has clicked the control.
    void RaiseClick();

    /// Runs `handler` for something that the toolkit reports: a click, a timer tick, an activation
    /// or a request to close. All of them enter here, because an exception must not unwind the
    /// toolkit's event loop: it goes to Platform::ReportError instead.
    static void RunAndReportErrors(const std::function<void()>& handler) noexcept;

protected:
    /// `container` is nullptr for a form.
    Control(Toolkit& toolkit, Form& form, Control* container, ControlProperties properties);
    Control(Control& container, ControlProperties properties);

    /// Lets the toolkit create the peer of `self`, which is this control. To be called in the
    /// constructor of every kind of control.
    template <class T, class... Kinds>
    auto& CreatePeer(T& self, Kinds... kind) {
        auto peer = mToolkit.Create(self, kind...);
        auto& created = *peer;
        mPeer = std::move(peer);
        return created;
    }

    /// Called when the place or the size has changed.
    virtual void BoundsChanged() {}

    template <class T>
    void Assign(T& member, const T& value, Property property) {
        if (member == value) return;
        member = value;
        mPeer->Changed(property);
        if (property == Property::Bounds) BoundsChanged();
    }

private:
    Toolkit& mToolkit;
    Form& mForm;
    Control* mContainer;
    ControlProperties mProperties;
    std::string msAccessibleName;
    bool mbEnabled = true;
    std::unique_ptr<ControlPeer> mPeer;
};

} // namespace tessarin
