#pragma once

#include "toolkit/Color.h"
#include "toolkit/Toolkit.h"

#include <functional>
#include <memory>
#include <string>
#include <utility>

namespace tessarin {

class Form;

/// A typeface by name with its size in points. Without a name it is the toolkit's own, without a
/// size the toolkit's own size.
struct FontStyle {
    std::string Name = {};
    float Size = 0;
    bool Italic = false;
    bool operator==(const FontStyle&) const = default;
};

enum class BorderStyle { None, FixedSingle };
enum class Alignment { Left, Center };
/// Whether the Tab key stops at a label: never, at this one, or at the current one of the form's
/// grid of labels, in which the arrow keys go on from there.
enum class KeyStop { None, Own, Grid };

/// The properties of a control as it is designed. Positions are in twips (1440 to the inch),
/// relative to the inside of the container.
struct Design {
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
    /// What a label does with a text that is too long: wrapped, it goes on in the next line, else
    /// its middle is left out.
    bool Wrap = false;
    KeyStop Keys = KeyStop::None;
    FontStyle Font = {};
    Color BackColor = SystemColor(15);
    Color ForeColor = SystemColor(18);
};

/// One control of a window. Its properties are kept here; the toolkit is told of those that really
/// change, so setting what is set already costs nothing.
class Control {
public:
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;
    virtual ~Control();

    /// What the user's click runs, by way of the form's gate.
    std::function<void()> Click;

    const std::string& Name() const { return mProperties.Name; }
    const Design& Properties() const { return mProperties; }

    float Left() const { return mProperties.Left; }
    float Top() const { return mProperties.Top; }
    float Width() const { return mProperties.Width; }
    float Height() const { return mProperties.Height; }
    void SetLeft(float left) { Assign(mProperties.Left, left, Property::Bounds); }
    void SetTop(float top) { Assign(mProperties.Top, top, Property::Bounds); }
    void SetWidth(float width);
    void SetHeight(float height);
    /// Left and Top of another control.
    void MoveTo(const Control& other);
    /// Width and Height of another control.
    void SizeLike(const Control& other);

    /// The control's own flag, whatever its containers say.
    bool Visible() const { return mProperties.Visible; }
    void SetVisible(bool visible) { Assign(mProperties.Visible, visible, Property::Visible); }
    bool Enabled() const { return mbEnabled; }
    void SetEnabled(bool enabled) { Assign(mbEnabled, enabled, Property::Enabled); }
    /// Whether a click counts: the control and all its containers are enabled and visible.
    bool Reachable() const;

    const std::string& Caption() const { return mProperties.Caption; }
    void SetCaption(const std::string& caption) {
        Assign(mProperties.Caption, caption, Property::Caption);
    }
    void SetToolTipText(const std::string& text) {
        Assign(mProperties.ToolTipText, text, Property::ToolTipText);
    }
    /// What a screen reader says: the name that was set, else the tool tip, else the caption.
    const std::string& AccessibleName() const;
    void SetAccessibleName(const std::string& name) {
        Assign(mAccessibleName, name, Property::AccessibleName);
    }
    const FontStyle& Font() const { return mProperties.Font; }
    void SetFont(const FontStyle& font) { Assign(mProperties.Font, font, Property::Font); }
    Color BackColor() const { return mProperties.BackColor; }
    void SetBackColor(Color color) { Assign(mProperties.BackColor, color, Property::Colors); }
    Color ForeColor() const { return mProperties.ForeColor; }
    void SetForeColor(Color color) { Assign(mProperties.ForeColor, color, Property::Colors); }
    void SetBorderStyle(BorderStyle style) {
        Assign(mProperties.Border, style, Property::BorderStyle);
    }

    void SetAlignment(Alignment alignment) {
        Assign(mProperties.Align, alignment, Property::Alignment);
    }

    /// What the control lies in; nullptr for a form.
    Control* Container() const { return mContainer; }

    /// Whether a click may have to wait until handlers of other clicks have ended.
    virtual bool Waits() const { return true; }

    /// For the toolkit: the user has clicked the control.
    void RaiseClick();

protected:
    /// A form.
    Control(Toolkit& toolkit, Form& form, Design design);
    Control(Control& container, Design design);

    Toolkit& Kit() { return mToolkit; }
    /// The last step of every control's constructor.
    void Attach(std::unique_ptr<ControlPeer> peer) { mPeer = std::move(peer); }

    /// The control has got another width or height.
    virtual void Resized() {}

    template <class T>
    void Assign(T& member, const T& value, Property property) {
        if (member == value) return;
        member = value;
        Notify(property);
    }
    /// Tells the toolkit that the property has a new value.
    void Notify(Property property) { mPeer->Changed(property); }

private:
    Toolkit& mToolkit;
    Form& mForm;
    Control* mContainer;
    Design mProperties;
    std::string mAccessibleName;
    bool mbEnabled = true;
    std::unique_ptr<ControlPeer> mPeer;
};

} // namespace tessarin
