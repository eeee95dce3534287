#pragma once
// The peer of one control: mirrors the control's properties onto its child
// window and reports the window's input to the control. Child windows are
// owned by the form's window and die with it.
#include <windows.h>

#include <memory>

#include "handles.h"
#include "ui/control.h"

namespace qs::win {

class FormWindow;

class ControlWindow : public ui::ControlPeer {
public:
    ControlWindow(FormWindow& form, ui::Control& control, int id);
    ControlWindow(const ControlWindow&) = delete;
    ControlWindow& operator=(const ControlWindow&) = delete;
    ~ControlWindow() override;

    void Changed(ui::Property what) final;

    ui::Control& Model() const { return control_; }
    HWND Handle() const { return window_.Get(); }
    int Id() const { return id_; }
    // True once the form is unloaded: the control no longer has a window.
    bool Detached() const { return detached_; }
    // Called when the form goes away; from then on nothing reaches the control.
    void Detach();

    // Creates the window if the control has one to show; called once, after
    // every peer of the form exists, or later, once the control shows.
    virtual void Create() = 0;
    // Creates the window now when the control lies on the form, hidden by
    // nothing and within the form's width; otherwise when it first does.
    void CreateWhenOnForm();
    // True while the window waits for the control to show on the form.
    bool WaitsToShow() const { return waitsToShow_; }
    // True while the control is drawn on the form's face, waiting for the
    // form's first-shown moment to get its window.
    bool OnFace() const { return onFace_; }
    // The form's first-shown moment: a control drawn on its face gets its
    // window now.
    void LeaveFace();
    // A WM_COMMAND notification from the window.
    virtual void OnCommand(WORD) {}
    // A WM_TIMER with the control's id.
    virtual void OnTimer() {}
    // The form's window has shown for the first time: what only matters on
    // screen may be made now.
    virtual void FormShown() {}
    // The form's DPI or font changed.
    void ApplyDpi();
    // The form's size changed: the window takes its place again.
    void Relayout() {
        CreateIfNowOnForm();
        ApplyGeometry();
    }
    // True for a window of the control's own that is not its main window
    // (a drop-down's list), which asks the form for its colours too.
    virtual bool OwnsPart(HWND) const { return false; }
    // Whether the keyboard focus may rest on this control.
    virtual bool TakesFocus() const { return false; }
    // The answer to the WM_CTLCOLOR... message the window sent its form:
    // the text and background colours set into dc and the brush to fill
    // with; null leaves the system's own answer.
    HBRUSH ControlColor(HDC dc);

protected:
    // Creates the child window with the control's geometry and state.
    void CreateChild(const wchar_t* windowClass, DWORD style, DWORD exStyle = 0);
    // Destroys the child window; the control goes on without one.
    void DestroyChild();
    virtual void OnChanged(ui::Property) {}
    // The font of the window: the form's, unless the control has a size or
    // weight of its own, which it gets at the form's DPI.
    HFONT ControlFont() const;
    // Height of one line of the window's font in a single-line box.
    LONG LineHeight() const;
    virtual RECT PixelRect() const;
    // The look of the control's kind where the program sets no colour: by
    // default it shows the form's face beneath it in the form's text colour.
    virtual COLORREF DefaultTextColor() const;
    virtual HBRUSH DefaultBackground(HDC dc);
    // A brush of one colour, set as the text's background too.
    HBRUSH SolidBackground(HDC dc, ui::Color back);
    // False for a peer with no window of its own to make (a timer): it is
    // made at once, wherever its control lies.
    virtual bool MakesWindow() const { return true; }
    // True for a window that shows no text of its own (a picture, a list):
    // its window text is the name screen readers give it.
    virtual bool TextIsName() const { return false; }
    // Whether the control, drawn on the form's face, may do without its
    // window until the form's first-shown moment.
    virtual bool StandsOnFaceAtFirst() const { return false; }
    FormWindow& Form() const { return form_; }

private:
    void ApplyGeometry();
    // Whether the control shows on the form: visible with its containers,
    // and starting within the form's width.
    bool OnForm() const;
    // Makes the window of a control that waited, once it is on the form.
    void CreateIfNowOnForm();
    // Makes the window, or, before the form's first-shown moment, leaves a
    // control that can stand on the face there.
    void CreateOrStandOnFace();
    // Writes the control's name into a window whose text is its name: the
    // tooltip, or where there is none the accessible name.
    void WriteName();

    FormWindow& form_;
    ui::Control& control_;
    int id_;
    // Destroyed by DestroyChild, or else with the form's window.
    WindowHandle window_;
    bool detached_ = false;
    bool waitsToShow_ = false;
    bool onFace_ = false;
    // The control's own background brush, made again only when its colour
    // changes.
    BrushHandle brush_;
    COLORREF brushColor_ = 0;
    // The control's own font, when it has one.
    mutable FontHandle font_;
    mutable UINT fontDpi_ = 0;
    mutable std::int16_t fontSize_ = 0;
    mutable bool fontBold_ = false;
    mutable bool fontUnderline_ = false;
    mutable LONG fontLineHeight_ = 0;
};

// The peer for a control of the given kind.
std::unique_ptr<ControlWindow> MakeControlWindow(FormWindow& form, ui::Control& control, int id);

}  // namespace qs::win
