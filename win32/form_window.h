#pragma once
// The top-level window of a loaded form and the peers of its controls. Every
// form is a popup without caption that the user drags by its bare body. Its
// face is its back colour or its picture, with the strips that lie on it;
// each control answers for its own colours. Geometry is kept in twips by the
// form and turned into pixels at the window's DPI.
#include <windows.h>

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "control_window.h"
#include "form_face.h"
#include "handles.h"
#include "ui/form.h"

namespace qs::win {

class FormWindow : public ui::FormPeer {
public:
    FormWindow(HINSTANCE instance, ui::Form& form);
    FormWindow(const FormWindow&) = delete;
    FormWindow& operator=(const FormWindow&) = delete;
    ~FormWindow() override;

    // Registers the window classes of both form styles; once per process.
    static void RegisterClasses(HINSTANCE instance);

    void Changed(ui::Property what) override;

    ui::Form& Model() const { return form_; }
    HWND Handle() const { return window_.Get(); }
    UINT Dpi() const { return dpi_; }
    HFONT Font() const { return font_.Get(); }
    // Height of one line of the form's font in a single-line box.
    LONG LineHeight() const { return lineHeight_; }
    LONG ClientHeight() const;
    // Something the face shows moved, showed or changed (a strip, a text
    // box's field, the form's colour, picture, size or DPI): the face is
    // designed and composed again when next asked for, and only then.
    void FieldsMoved();
    // How many times a face has been designed, by every form window of the
    // process: the cost that a repaint without changes must not pay.
    static std::uint64_t FaceBuilds();
    // How many times, in all, a change on a form's face has asked its window
    // to repaint.
    static std::uint64_t RepaintsAsked();
    // The face as it is now, in the form's client pixels.
    const PixelImage& Face();
    // A brush of the face for a child window that shows the face beneath
    // it, aligned to the child; its text goes over it transparently.
    HBRUSH FaceBrushFor(HWND child, HDC dc);
    // A control's tab index changed: its window moves in the tab order.
    void TabIndexChanged(ControlWindow& control);
    // A control made its window after the form's: it takes its tab place.
    void ChildCreated();
    // Shows the text as the tip of a child window; "" removes the tip. A tip
    // set before the form's window has first shown waits for that showing.
    void SetToolTip(HWND child, const std::wstring& text);
    // True once the window has shown and been drawn.
    bool HasShown() const { return shown_; }
    // True while a window made as its form showed has not reached its
    // first-shown moment: its pictures are drawn on the face until then.
    bool PicturesOnFace() const { return picturesOnFace_; }

    // Cuts every tie to the form and its controls and destroys the window.
    void Detach();
    // Brings the form up for the user: shown, restored, in front, with the
    // keyboard focus on its last focused control or its first text box.
    void Surface();
    // The program gave the focus to a child: it is the control that gets
    // the focus back whenever the window is activated again.
    void ControlFocused(HWND child);
    // The focus goes to the first control in tab order that may take it.
    void FocusFirstControl();
    // The control whose window, or a part of it, this is; null for none.
    const ui::Control* ControlAt(HWND child) const;

private:
    static LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam);

    void CreateControls();
    void ApplyGeometry();
    void ApplyVisible();
    // The window has been drawn for the first time: the tips that waited
    // for it are made, and the controls hear of it.
    void FirstShown();
    void ApplyTopMost();
    void ApplyDpi(UINT dpi, const RECT* suggested);
    void MakeFont();
    void Paint();
    // What the face is to show now.
    FaceDesign DesignFace() const;
    // Composes the face if its design changed, and repaints the children
    // that show it.
    void UpdateFace();
    // Gives the controls drawn on the face their windows.
    void MakeFaceWindows();
    // The part of the client area a control's design covers.
    RECT ControlRect(const ui::Control& control) const;
    // True when the point lies on one of the form's strips.
    bool OverStrip(POINT point) const;
    // The pointer is on the form itself: on no child window and no strip.
    bool OverBareFace() const;
    // SW_SHOW, SW_SHOWNOACTIVATE or SW_HIDE, as the form asks.
    int ShowCommand() const;
    // Shows or hides the window with a ShowWindow command.
    void Show(int command);
    // The cursor of the form's pointer shape.
    HCURSOR PointerCursor() const;
    // Puts the child windows in the tab order.
    void ApplyTabOrder();
    // Puts the frames beneath the controls they hold.
    void PutFramesBeneath();
    ControlWindow* ControlById(int id) const;
    // The peer whose window, or a part of it (a drop-down's list), this is.
    ControlWindow* ControlOfWindow(HWND child) const;
    void ReportMove();

    ui::Form& form_;
    WindowHandle window_;
    FontHandle font_;
    FormFace face_;
    // True when something the face shows changed since it was last designed.
    bool faceDirty_ = true;
    // True from the moment a change asked the whole window to repaint until
    // it paints: the changes between ask nothing more of the system, so a
    // theme switch that touches every control asks once, not once each.
    bool repaintAsked_ = false;
    UINT dpi_ = USER_DEFAULT_SCREEN_DPI;
    LONG lineHeight_ = 0;
    std::vector<std::unique_ptr<ControlWindow>> controls_;
    // The controls in tab order.
    std::vector<ControlWindow*> tabOrder_;
    // True once every control's first window exists.
    bool created_ = false;
    HWND lastFocus_ = nullptr;
    // The window that was active when this one was activated last.
    HWND activatedFrom_ = nullptr;
    // The form's tooltip window, made at the first tip; owned by the form's window.
    WindowHandle toolTips_;
    // Tips by child window, set before the window first showed.
    std::map<HWND, std::wstring> waitingTips_;
    bool firstShowingPosted_ = false;
    bool shown_ = false;
    bool painted_ = false;
    bool picturesOnFace_ = false;
    // True while the form's own geometry is written to the window.
    bool placing_ = false;
    bool detached_ = false;
};

}  // namespace qs::win
