#pragma once
// A top-level window of the program: its controls, its geometry in twips,
// and its life cycle (Load, Show, Hide, modal Show, Unload).
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "ui/color.h"
#include "ui/control.h"
#include "ui/picture.h"

namespace qs::ui {

class Backend;

enum class FormStyle { Borderless, Dialog };

class FormPeer {
public:
    virtual ~FormPeer() = default;
    virtual void Changed(Property what) = 0;
};

class Form {
public:
    Form(std::wstring name, FormStyle style);
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;
    virtual ~Form() = default;

    const std::wstring& Name() const { return name_; }
    FormStyle Style() const { return style_; }
    const std::vector<Control*>& Controls() const { return controls_; }
    void Register(Control& control) { controls_.push_back(&control); }

    const std::wstring& Caption() const { return caption_; }
    void SetCaption(std::wstring caption);

    std::int32_t Left() const { return left_; }
    std::int32_t Top() const { return top_; }
    std::int32_t Width() const { return width_; }
    std::int32_t Height() const { return height_; }
    void SetLeft(std::int32_t v) { Move(v, top_, width_, height_); }
    void SetTop(std::int32_t v) { Move(left_, v, width_, height_); }
    void SetWidth(std::int32_t v) { Move(left_, top_, v, height_); }
    void SetHeight(std::int32_t v) { Move(left_, top_, width_, v); }
    void Move(std::int32_t left, std::int32_t top, std::int32_t width, std::int32_t height);

    // The form's own look: a colour, or a picture laid over its whole face.
    Color BackColor() const { return backColor_; }
    void SetBackColor(Color color);
    const PictureRef& Picture() const { return picture_; }
    void SetPicture(PictureRef picture);

    // The pointer's shape over the form's windows: 0 the system's own, 12
    // "no drop".
    std::int16_t MousePointer() const { return mousePointer_; }
    void SetMousePointer(std::int16_t shape) {
        mousePointer_ = shape;
        Notify(Property::MousePointer);
    }

    bool IsLoaded() const { return loaded_; }
    bool Visible() const { return visible_; }
    bool TopMost() const { return topMost_; }
    void SetTopMost(bool topMost);

    // Loads the form if needed; Load fires once per load, before the
    // backend makes the form's window.
    void Load();
    void Show();
    // Shows the form and returns when it has been hidden or unloaded.
    void ShowModal();
    void Hide();
    void Unload();
    bool IsModal() const { return modal_; }

    // A pane loaded at start and shown only on demand may have its window
    // made at its first showing rather than at its load, so the start does
    // not pay for it.
    bool WindowWaitsForShow() const { return windowWaitsForShow_; }
    void SetWindowWaitsForShow(bool waits) { windowWaitsForShow_ = waits; }

    // A window that stands beside the bar while the user goes on typing in
    // it (a pane, the QuickLauncher) shows without taking the keyboard
    // focus; it becomes active only when the user clicks into it. Every
    // other form (a message, a prompt) takes the focus when it shows.
    bool TakesFocusWhenShown() const { return takesFocusWhenShown_; }
    void SetTakesFocusWhenShown(bool takes) { takesFocusWhenShown_ = takes; }

    void SetBackend(Backend* backend) { backend_ = backend; }
    void AttachPeer(FormPeer* peer) { peer_ = peer; }
    FormPeer* Peer() const { return peer_; }

    std::function<void()> LoadEvent;
    std::function<void()> UnloadEvent;

    // The pointer moved over the form's bare surface (or, for the bar, over
    // its tray icon): Button 1 left, 2 right; X and Y in twips.
    std::function<void(std::int16_t button, std::int16_t shift, std::int32_t x, std::int32_t y)> MouseMove;
    void UserMouseMove(std::int16_t button, std::int16_t shift, std::int32_t x, std::int32_t y) {
        if (MouseMove) MouseMove(button, shift, x, y);
    }

    // A key pressed while the form's window or any of its controls holds
    // the focus, seen by the form before the control: KeyCode is the
    // key's virtual-key number, and a handler that sets it to 0 keeps the
    // key from the control. Arrows, which are never typed characters, reach
    // a handler only here.
    std::function<void(std::int16_t& keyCode, std::int16_t shift)> KeyDown;
    // Returns the key left after the form's handler.
    std::int16_t UserKeyDown(std::int16_t keyCode, std::int16_t shift) {
        if (KeyDown) KeyDown(keyCode, shift);
        return keyCode;
    }

    // The user moved the form (dragged it, or the system placed it).
    void UserMoved(std::int32_t left, std::int32_t top);

private:
    void Notify(Property what) {
        if (peer_ != nullptr) peer_->Changed(what);
    }

    std::wstring name_;
    FormStyle style_;
    std::vector<Control*> controls_;
    std::wstring caption_;
    Color backColor_ = DefaultColor;
    PictureRef picture_;
    std::int32_t left_ = 0;
    std::int32_t top_ = 0;
    std::int32_t width_ = 0;
    std::int32_t height_ = 0;
    bool loaded_ = false;
    // Counts the loads, so a Load event that reloaded the form is known.
    std::uint32_t loads_ = 0;
    bool visible_ = false;
    bool modal_ = false;
    bool topMost_ = false;
    bool windowWaitsForShow_ = false;
    bool takesFocusWhenShown_ = true;
    std::int16_t mousePointer_ = 0;
    Backend* backend_ = nullptr;
    FormPeer* peer_ = nullptr;
};

}  // namespace qs::ui
