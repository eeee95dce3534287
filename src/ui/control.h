#pragma once
// Base of every control of the runtime. A control keeps its own state, so a
// form works with no window at all; a peer, when one is attached, mirrors each
// property change onto a real window and feeds the user's input back.
#include <cstdint>
#include <string>

#include "ui/color.h"

namespace qs::ui {

class Form;

enum class Property {
    Geometry,
    Visible,
    Enabled,
    Text,
    Selection,
    Locked,
    ListIndex,
    Picture,
    Interval,
    Focus,
    ToolTip,
    TopMost,
    TabIndex,
    Value,
    Font,
    Colors,
    AccessibleName,
    MousePointer,
};

enum class ControlKind {
    TextBox,
    Label,
    CommandButton,
    Timer,
    ListBox,
    ComboBox,
    PictureBox,
    CheckBox,
    OptionButton,
    Frame,
    DriveListBox,
    DirListBox,
    FileListBox,
};

class ControlPeer {
public:
    virtual ~ControlPeer() = default;
    virtual void Changed(Property what) = 0;
    // A list told its window what changed, item by item, so a long list is
    // never copied whole on one change.
    virtual void ItemInserted(std::int32_t /*index*/) {}
    virtual void ItemRemoved(std::int32_t /*index*/) {}
    virtual void ItemChanged(std::int32_t /*index*/) {}
    virtual void ItemsCleared() {}
};

class Control {
public:
    Control(Form& owner, ControlKind kind, std::wstring name);
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;
    virtual ~Control() = default;

    ControlKind Kind() const { return kind_; }
    const std::wstring& Name() const { return name_; }
    Form& Owner() const { return owner_; }

    // Geometry in twips, relative to the form's client area.
    std::int32_t Left() const { return left_; }
    std::int32_t Top() const { return top_; }
    std::int32_t Width() const { return width_; }
    std::int32_t Height() const { return height_; }
    void Move(std::int32_t left, std::int32_t top, std::int32_t width, std::int32_t height);

    bool Visible() const { return visible_; }
    void SetVisible(bool visible);
    // The control that holds this one (a frame), or none; a control is shown
    // on screen when it and every container around it are visible.
    Control* Container() const { return container_; }
    void SetContainer(Control* container) { container_ = container; }
    bool Shown() const { return visible_ && (container_ == nullptr || container_->Shown()); }
    bool Enabled() const { return enabled_; }
    void SetEnabled(bool enabled);
    const std::wstring& ToolTipText() const { return toolTip_; }
    void SetToolTipText(std::wstring text);
    // What screen readers and automation call a control that has no
    // caption or tooltip of its own: the caption of the label beside it.
    const std::wstring& AccessibleName() const { return accessibleName_; }
    void SetAccessibleName(std::wstring name);

    // Colours; DefaultColor leaves the look of the control's kind.
    Color BackColor() const { return backColor_; }
    Color ForeColor() const { return foreColor_; }
    void SetBackColor(Color color);
    void SetForeColor(Color color);

    // The size in points, 0 for the form's own size, and the weight.
    std::int16_t FontSize() const { return fontSize_; }
    bool FontBold() const { return fontBold_; }
    void SetFont(std::int16_t size, bool bold);
    // A caption that acts as a link is underlined while the pointer is on it.
    bool FontUnderline() const { return fontUnderline_; }
    void SetFontUnderline(bool underline);

    // Asks for the keyboard focus; the peer moves it on a real window.
    void SetFocus();

    // Keys typed into the control reach it before the work the window
    // system runs before input (Backend::RunBeforeInput): its own key
    // handlers wait for what they read.
    bool KeysPassInputWork() const { return keysPassInputWork_; }
    void SetKeysPassInputWork(bool pass) { keysPassInputWork_ = pass; }

    // Position in the form's tab order.
    std::int16_t TabIndex() const { return tabIndex_; }
    void SetTabIndex(std::int16_t index);

    void AttachPeer(ControlPeer* peer) { peer_ = peer; }
    ControlPeer* Peer() const { return peer_; }

protected:
    void Notify(Property what) {
        if (peer_ != nullptr) peer_->Changed(what);
    }

private:
    // Tells the controls this one holds that their Shown may have changed.
    void NotifyContents();

    Form& owner_;
    ControlKind kind_;
    std::wstring name_;
    std::int32_t left_ = 0;
    std::int32_t top_ = 0;
    std::int32_t width_ = 0;
    std::int32_t height_ = 0;
    bool visible_ = true;
    bool enabled_ = true;
    std::wstring toolTip_;
    std::wstring accessibleName_;
    std::int16_t tabIndex_ = 0;
    Color backColor_ = DefaultColor;
    Color foreColor_ = DefaultColor;
    std::int16_t fontSize_ = 0;
    bool fontBold_ = false;
    bool fontUnderline_ = false;
    bool keysPassInputWork_ = false;
    Control* container_ = nullptr;
    ControlPeer* peer_ = nullptr;
};

}  // namespace qs::ui
