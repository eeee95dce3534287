#include "form_window.h"

#include <commctrl.h>
#include <windows.h>
#include <windowsx.h>

#include <algorithm>

#include "common/startup_marks.h"
#include "dpi.h"
#include "move_loop.h"
#include "res/resource_ids.h"
#include "styled_controls.h"
#include "window_hook.h"
#include "window_names.h"

namespace qs::win {

namespace {

// Ids of the child windows start here; a timer's id is its control's id.
constexpr int kFirstControlId = 100;

// Set on a form's window at its first showing, to make what only matters on
// screen: a timer's message comes only when no input and no painting waits,
// so the user's first keys and the first paint go before that work.
constexpr UINT_PTR kFirstShownTimer = 1;

UINT SurfaceMessage() {
    static const UINT message = ::RegisterWindowMessageW(kSurfaceMessage);
    return message;
}

bool IsBorderless(const ui::Form& form) { return form.Style() == ui::FormStyle::Borderless; }

// The program's own icon at a system size; the stock one where the module
// carries none.
HICON ProgramIcon(HINSTANCE instance, int widthMetric, int heightMetric) {
    const int width = ::GetSystemMetrics(widthMetric);
    const int height = ::GetSystemMetrics(heightMetric);
    auto* icon = static_cast<HICON>(::LoadImageW(instance, MAKEINTRESOURCEW(IDI_QUILLSTART), IMAGE_ICON, width, height,
                                                 LR_DEFAULTCOLOR | LR_SHARED));
    return icon != nullptr ? icon : ::LoadIconW(nullptr, IDI_APPLICATION);
}

bool RunsUnderWine() {
    const HMODULE ntdll = ::GetModuleHandleW(L"ntdll.dll");
    return ntdll != nullptr && ::GetProcAddress(ntdll, "wine_get_version") != nullptr;
}

}  // namespace

void FormWindow::RegisterClasses(HINSTANCE instance) {
    for (const wchar_t* name : {kBorderlessClass, kDialogClass}) {
        WNDCLASSEXW windowClass{};
        windowClass.cbSize = sizeof(windowClass);
        windowClass.style = CS_DBLCLKS;
        windowClass.lpfnWndProc = WindowProc;
        windowClass.hInstance = instance;
        windowClass.hCursor = ::LoadCursorW(nullptr, IDC_ARROW);
        // No icons here: reading them would delay the bar. Each window
        // gets them once it has first been drawn.
        windowClass.lpszClassName = name;
        ::RegisterClassExW(&windowClass);
    }
}

FormWindow::FormWindow(HINSTANCE instance, ui::Form& form) : form_(form) {
    dpi_ = SystemDpi();
    const bool borderless = IsBorderless(form_);
    // Neither style has a caption or a close box: a dialog's title is a
    // label of its own, and only its own buttons answer it.
    ::CreateWindowExW(0, borderless ? kBorderlessClass : kDialogClass, form_.Caption().c_str(),
                      WS_POPUP | WS_CLIPCHILDREN, TwipsToPixels(form_.Left(), dpi_), TwipsToPixels(form_.Top(), dpi_),
                      TwipsToPixels(form_.Width(), dpi_), TwipsToPixels(form_.Height(), dpi_), nullptr, nullptr,
                      instance, this);
    if (!window_) return;
    const UINT actual = WindowDpi(Handle());
    if (actual != dpi_) {
        dpi_ = actual;
        ApplyGeometry();
    }
    MakeFont();
    picturesOnFace_ = form_.Visible();
    CreateControls();
    form_.AttachPeer(this);
    // A new window is not topmost.
    if (form_.TopMost()) ApplyTopMost();
    marks::Mark("window", form_.Name());
    if (form_.Visible()) ApplyVisible();
}

FormWindow::~FormWindow() { Detach(); }

void FormWindow::Detach() {
    if (detached_) return;
    detached_ = true;
    for (auto& control : controls_) control->Detach();
    if (form_.Peer() == this) form_.AttachPeer(nullptr);
    // The tip window is owned by the form's window and goes with it.
    toolTips_.Release();
    window_.Reset();
}

void FormWindow::CreateControls() {
    int id = kFirstControlId;
    for (ui::Control* control : form_.Controls()) controls_.push_back(MakeControlWindow(*this, *control, id++));
    // The tab order starts as the controls' tab indexes give it; equal
    // indexes keep the order in which the controls were declared.
    for (auto& control : controls_) tabOrder_.push_back(control.get());
    std::stable_sort(tabOrder_.begin(), tabOrder_.end(), [](const ControlWindow* a, const ControlWindow* b) {
        return a->Model().TabIndex() < b->Model().TabIndex();
    });
    // A new child window goes beneath the ones made before it, and Tab
    // follows that order: made in tab order, the windows need no moving.
    for (ControlWindow* control : tabOrder_) control->CreateWhenOnForm();
    PutFramesBeneath();
    created_ = true;
}

void FormWindow::TabIndexChanged(ControlWindow& control) {
    // A control given tab index n takes place n of the order and the others
    // keep theirs around it, as the form designer renumbers them.
    const auto found = std::find(tabOrder_.begin(), tabOrder_.end(), &control);
    if (found == tabOrder_.end()) return;
    tabOrder_.erase(found);
    const auto place =
        std::min<std::size_t>(static_cast<std::size_t>(std::max<int>(control.Model().TabIndex(), 0)), tabOrder_.size());
    tabOrder_.insert(tabOrder_.begin() + static_cast<std::ptrdiff_t>(place), &control);
    ApplyTabOrder();
}

void FormWindow::ChildCreated() {
    // A new window may bring a field the face draws a line round.
    faceDirty_ = true;
    if (created_) ApplyTabOrder();
}

void FormWindow::ApplyTabOrder() {
    // Tab and Shift+Tab follow the order of the child windows. The windows
    // do not overlap, so the order changes nothing on screen: no erase of
    // the form and its windows, a round trip each under Wine, is asked.
    HWND after = HWND_TOP;
    for (const ControlWindow* control : tabOrder_) {
        if (control->Handle() == nullptr) continue;
        ::SetWindowPos(control->Handle(), after, 0, 0, 0, 0,
                       SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_DEFERERASE);
        after = control->Handle();
    }
    PutFramesBeneath();
}

void FormWindow::PutFramesBeneath() {
    // A frame lies beneath the controls it holds.
    for (const ControlWindow* control : tabOrder_) {
        if (control->Handle() == nullptr || control->Model().Kind() != ui::ControlKind::Frame) continue;
        ::SetWindowPos(control->Handle(), HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    }
}

ControlWindow* FormWindow::ControlById(int id) const {
    const int index = id - kFirstControlId;
    if (index < 0 || index >= static_cast<int>(controls_.size())) return nullptr;
    return controls_[static_cast<std::size_t>(index)].get();
}

ControlWindow* FormWindow::ControlOfWindow(HWND child) const {
    ControlWindow* control = ControlById(::GetDlgCtrlID(child));
    if (control != nullptr && control->Handle() == child) return control;
    for (const auto& candidate : controls_) {
        if (candidate->OwnsPart(child)) return candidate.get();
    }
    return nullptr;
}

const ui::Control* FormWindow::ControlAt(HWND child) const {
    const ControlWindow* control = ControlOfWindow(child);
    return control != nullptr ? &control->Model() : nullptr;
}

LONG FormWindow::ClientHeight() const {
    RECT client{};
    ::GetClientRect(Handle(), &client);
    return client.bottom;
}

namespace {

std::uint64_t repaintsAsked = 0;

}  // namespace

std::uint64_t FormWindow::RepaintsAsked() { return repaintsAsked; }

void FormWindow::FieldsMoved() {
    faceDirty_ = true;
    if (Handle() == nullptr || repaintAsked_) return;
    ::InvalidateRect(Handle(), nullptr, FALSE);
    repaintAsked_ = true;
    ++repaintsAsked;
}

void FormWindow::SetToolTip(HWND child, const std::wstring& text) {
    if (child == nullptr || Handle() == nullptr) return;
    if (!shown_) {
        waitingTips_[child] = text;
        return;
    }
    if (!toolTips_) {
        if (text.empty()) return;
        const StyledControlsScope styled;
        toolTips_.Reset(::CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr,
                                          WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, CW_USEDEFAULT, CW_USEDEFAULT,
                                          CW_USEDEFAULT, CW_USEDEFAULT, Handle(), nullptr,
                                          ::GetModuleHandleW(nullptr), nullptr));
        if (!toolTips_) return;
    }
    TTTOOLINFOW tool{};
    tool.cbSize = sizeof(tool);
    tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    tool.hwnd = Handle();
    tool.uId = reinterpret_cast<UINT_PTR>(child);
    ::SendMessageW(toolTips_.Get(), TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
    if (text.empty()) return;
    tool.lpszText = const_cast<wchar_t*>(text.c_str());
    ::SendMessageW(toolTips_.Get(), TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

void FormWindow::FirstShown() {
    shown_ = true;
    const HINSTANCE instance = ::GetModuleHandleW(nullptr);
    ::SendMessageW(Handle(), WM_SETICON, ICON_BIG,
                   reinterpret_cast<LPARAM>(ProgramIcon(instance, SM_CXICON, SM_CYICON)));
    ::SendMessageW(Handle(), WM_SETICON, ICON_SMALL,
                   reinterpret_cast<LPARAM>(ProgramIcon(instance, SM_CXSMICON, SM_CYSMICON)));
    MakeFaceWindows();
    std::map<HWND, std::wstring> waiting;
    waiting.swap(waitingTips_);
    for (const auto& [child, text] : waiting) {
        if (::IsChild(Handle(), child)) SetToolTip(child, text);
    }
    for (auto& control : controls_) control->FormShown();
}

void FormWindow::MakeFont() {
    LOGFONTW font = MessageFontAt(dpi_);
    font.lfQuality = CLEARTYPE_QUALITY;
    font_.Reset(::CreateFontIndirectW(&font));
    WindowDc dc(Handle());
    SelectScope select(dc.Get(), font_.Get());
    TEXTMETRICW metrics{};
    ::GetTextMetricsW(dc.Get(), &metrics);
    lineHeight_ = metrics.tmHeight + ::MulDiv(2, static_cast<int>(dpi_), USER_DEFAULT_SCREEN_DPI);
}

void FormWindow::Changed(ui::Property what) {
    if (detached_) return;
    switch (what) {
        case ui::Property::Text:
            ::SetWindowTextW(Handle(), form_.Caption().c_str());
            break;
        case ui::Property::Geometry:
            ApplyGeometry();
            break;
        case ui::Property::Visible:
            ApplyVisible();
            break;
        case ui::Property::TopMost:
            ApplyTopMost();
            break;
        case ui::Property::MousePointer:
            ::SetCursor(PointerCursor());
            break;
        case ui::Property::Colors:
        case ui::Property::Picture:
            FieldsMoved();
            break;
        default:
            break;
    }
}

void FormWindow::ApplyGeometry() {
    placing_ = true;
    ::SetWindowPos(Handle(), nullptr, TwipsToPixels(form_.Left(), dpi_), TwipsToPixels(form_.Top(), dpi_),
                   TwipsToPixels(form_.Width(), dpi_), TwipsToPixels(form_.Height(), dpi_),
                   SWP_NOZORDER | SWP_NOACTIVATE);
    placing_ = false;
    for (auto& control : controls_) control->Relayout();
    FieldsMoved();
}

void FormWindow::ApplyVisible() {
    if (form_.Visible() && form_.IsModal()) {
        // A modal form belongs to the window it was opened from, so it stays
        // above it even when that window is topmost.
        const HWND opener = ::GetActiveWindow();
        if (opener != nullptr && opener != Handle()) {
            ::SetWindowLongPtrW(Handle(), GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(opener));
        }
    }
    if (!form_.Visible() && !form_.TakesFocusWhenShown() && ::GetActiveWindow() == Handle() &&
        activatedFrom_ != nullptr && ::IsWindowVisible(activatedFrom_)) {
        // The user had clicked into this window: the window that was active
        // before it is active again before this one goes, so the window
        // manager does not count this one as the last active window and
        // hand it the focus when it shows again.
        ::SetActiveWindow(activatedFrom_);
    }
    Show(ShowCommand());
    if (form_.Visible() && !firstShowingPosted_) marks::Mark("shown", form_.Name());
    // What only matters on screen (tips, drop targets) is made once the
    // window has been drawn, so the window shows without waiting for it.
    if (form_.Visible() && !shown_ && !firstShowingPosted_) {
        firstShowingPosted_ = true;
        ::SetTimer(Handle(), kFirstShownTimer, USER_TIMER_MINIMUM, nullptr);
    }
}

void FormWindow::Show(int command) {
    if (command == SW_HIDE || ::IsWindowVisible(Handle())) {
        ::ShowWindow(Handle(), command);
        return;
    }
    // Shown as ShowWindow would show it, but without erasing the window and
    // each of its child windows before the call returns: under Wine every
    // child's erase is a round trip to the server, which held the bar's
    // show for a dozen milliseconds. The first paint, a moment later,
    // erases and draws each window anyway.
    UINT flags = SWP_SHOWWINDOW | SWP_NOMOVE | SWP_NOSIZE | SWP_DEFERERASE;
    if (command == SW_SHOWNOACTIVATE) flags |= SWP_NOACTIVATE | SWP_NOZORDER;
    ::SetWindowPos(Handle(), HWND_TOP, 0, 0, 0, 0, flags);
}

int FormWindow::ShowCommand() const {
    if (!form_.Visible()) return SW_HIDE;
    // A window manager activates a window shown with SW_SHOW a moment after
    // ShowWindow has returned, and takes the keyboard focus with it: a form
    // that leaves the focus where the program put it is shown inactive.
    return form_.TakesFocusWhenShown() || form_.IsModal() ? SW_SHOW : SW_SHOWNOACTIVATE;
}

void FormWindow::ControlFocused(HWND child) { lastFocus_ = child; }

HCURSOR FormWindow::PointerCursor() const {
    // 12 is the "no drop" shape; every other value the arrow.
    return ::LoadCursorW(nullptr, form_.MousePointer() == 12 ? IDC_NO : IDC_ARROW);
}

void FormWindow::ApplyTopMost() {
    ::SetWindowPos(Handle(), form_.TopMost() ? HWND_TOPMOST : HWND_NOTOPMOST, 0, 0, 0, 0,
                   SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

void FormWindow::ApplyDpi(UINT dpi, const RECT* suggested) {
    dpi_ = dpi;
    MakeFont();
    if (suggested != nullptr) {
        placing_ = true;
        ::SetWindowPos(Handle(), nullptr, suggested->left, suggested->top, TwipsToPixels(form_.Width(), dpi_),
                       TwipsToPixels(form_.Height(), dpi_), SWP_NOZORDER | SWP_NOACTIVATE);
        placing_ = false;
        ReportMove();
    }
    for (auto& control : controls_) control->ApplyDpi();
    FieldsMoved();
}

void FormWindow::ReportMove() {
    RECT r{};
    ::GetWindowRect(Handle(), &r);
    form_.UserMoved(PixelsToTwips(r.left, dpi_), PixelsToTwips(r.top, dpi_));
}

void FormWindow::FocusFirstControl() {
    for (const ControlWindow* control : tabOrder_) {
        const HWND child = control->Handle();
        if (control->TakesFocus() && child != nullptr && ::IsWindowVisible(child) && ::IsWindowEnabled(child)) {
            ::SetFocus(child);
            return;
        }
    }
}

void FormWindow::Surface() {
    form_.Show();
    // Under Wine the X window manager decides who is active and refuses a
    // program's own request; a window it restores from the minimised state
    // it activates, so there the form goes down and comes back up.
    const bool wine = RunsUnderWine();
    if (wine && !::IsIconic(Handle())) ::ShowWindow(Handle(), SW_MINIMIZE);
    if (wine || ::IsIconic(Handle())) ::ShowWindow(Handle(), SW_RESTORE);
    ::SetForegroundWindow(Handle());
    if (lastFocus_ != nullptr && ::IsChild(Handle(), lastFocus_) && ::IsWindowVisible(lastFocus_)) {
        ::SetFocus(lastFocus_);
    } else {
        FocusFirstControl();
    }
}

void FormWindow::Paint() {
    UpdateFace();
    // The paint validates the whole window: a change from here on asks anew.
    repaintAsked_ = false;
    PaintScope paint(Handle());
    face_.PaintTo(paint.Get());
    if (!painted_) {
        painted_ = true;
        marks::Mark("painted", form_.Name());
    }
}

void FormWindow::MakeFaceWindows() {
    if (!picturesOnFace_) return;
    picturesOnFace_ = false;
    // Made in tab order, then put in it once for them all.
    created_ = false;
    bool made = false;
    for (ControlWindow* control : tabOrder_) {
        if (!control->OnFace()) continue;
        control->LeaveFace();
        made = true;
    }
    created_ = true;
    if (!made) return;
    ApplyTabOrder();
    // The face no longer carries what the new windows show. What shows of
    // the face itself is the same, and the new windows paint anyway, so
    // nothing is drawn again for it.
    faceDirty_ = false;
    face_.Update(DesignFace());
}

LRESULT FormWindow::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    const HWND window = Handle();
    if (message == SurfaceMessage()) {
        Surface();
        return 1;
    }
    switch (message) {
        case WM_PAINT:
            Paint();
            return 0;
        case WM_ERASEBKGND:
            return 1;
        case WM_SETCURSOR:
            // The form's own pointer shape holds over all its windows; a
            // child asks its form first through the default handling.
            if (form_.MousePointer() == 0) break;
            ::SetCursor(PointerCursor());
            return TRUE;
        case WM_SIZE:
            FieldsMoved();
            break;
        case WM_CTLCOLOREDIT:
        case WM_CTLCOLORSTATIC:
        case WM_CTLCOLORBTN:
        case WM_CTLCOLORLISTBOX:
            // Each control answers for its own colours.
            if (ControlWindow* control = ControlOfWindow(reinterpret_cast<HWND>(lParam))) {
                if (const HBRUSH brush = control->ControlColor(reinterpret_cast<HDC>(wParam))) {
                    return reinterpret_cast<LRESULT>(brush);
                }
            }
            break;
        case WM_COMMAND:
            if (lParam != 0) {
                if (ControlWindow* control = ControlById(LOWORD(wParam))) control->OnCommand(HIWORD(wParam));
                return 0;
            }
            break;
        case WM_TIMER:
            if (wParam == kFirstShownTimer) {
                ::KillTimer(window, kFirstShownTimer);
                FirstShown();
                return 0;
            }
            if (ControlWindow* control = ControlById(static_cast<int>(wParam))) {
                control->OnTimer();
                return 0;
            }
            break;
        case WM_MOUSEMOVE:
            // Also the tray icon's callback: the bar asked for its icon's
            // mouse messages to come as its own mouse moves.
            // Only the bare surface between the strips delivers it while the
            // form shows, and the pointer anywhere while the button pressed
            // there is held; a hidden bar hears its tray icon.
            if (form_.MouseMove && ::IsWindowVisible(window) && ::GetCapture() != window &&
                OverStrip({GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)})) {
                return 0;
            }
            if (form_.MouseMove) {
                const std::int16_t button = (wParam & MK_LBUTTON) != 0 ? 1 : (wParam & MK_RBUTTON) != 0 ? 2 : 0;
                const std::int16_t shift = ((wParam & MK_SHIFT) != 0 ? 1 : 0) | ((wParam & MK_CONTROL) != 0 ? 2 : 0);
                form_.UserMouseMove(button, shift, PixelsToTwips(GET_X_LPARAM(lParam), dpi_),
                                    PixelsToTwips(GET_Y_LPARAM(lParam), dpi_));
                return 0;
            }
            break;
        case WM_MOUSEACTIVATE:
            // A press on the bare face of a window beside the bar starts a
            // drag, not a visit: the keyboard stays where it was.
            if (!form_.TakesFocusWhenShown() && LOWORD(lParam) == HTCLIENT && OverBareFace()) return MA_NOACTIVATE;
            break;
        case WM_LBUTTONDOWN:
            // A form with a mouse-move handler drags itself from there: the
            // moves keep coming to it while the button is held, even over
            // the strips the pointer crosses on its way.
            if (form_.MouseMove) {
                POINT at{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
                if (OverStrip(at)) break;
                ::SetCapture(window);
                ::ClientToScreen(window, &at);
                NotePress(window, at);
                break;
            }
            // The bare body of a form is its caption: dragging it moves the
            // window. The strips lying on it are not bare.
            if (OverStrip({GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)})) return 0;
            MoveWithPointer(window);
            return 0;
        case WM_LBUTTONUP:
            // A press that ended without a drag leaves no place behind for a
            // later drag to start from.
            NotePress(nullptr, {});
            if (::GetCapture() == window) ::ReleaseCapture();
            break;
        case WM_WINDOWPOSCHANGED: {
            const auto* position = reinterpret_cast<const WINDOWPOS*>(lParam);
            if ((position->flags & SWP_NOMOVE) == 0 && !placing_ && !detached_) ReportMove();
            break;
        }
        case WM_ACTIVATE:
            if (LOWORD(wParam) == WA_INACTIVE) {
                const HWND focus = ::GetFocus();
                if (focus != nullptr && ::IsChild(window, focus)) lastFocus_ = focus;
                return 0;
            }
            activatedFrom_ = reinterpret_cast<HWND>(lParam);
            if (lastFocus_ != nullptr && ::IsChild(window, lastFocus_) && ::IsWindowVisible(lastFocus_)) {
                ::SetFocus(lastFocus_);
            } else {
                FocusFirstControl();
            }
            return 0;
        case WM_DPICHANGED:
            ApplyDpi(HIWORD(wParam), reinterpret_cast<const RECT*>(lParam));
            return 0;
        case WM_CLOSE:
            form_.Unload();
            return 0;
        case WM_ENDSESSION:
            // Windows is logging off or shutting down: unload as the exit
            // button does, so everything the user changed is saved.
            if (wParam != FALSE) form_.Unload();
            return 0;
        default:
            break;
    }
    return ::DefWindowProcW(window, message, wParam, lParam);
}

LRESULT CALLBACK FormWindow::WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCCREATE) {
        auto* self = static_cast<FormWindow*>(reinterpret_cast<CREATESTRUCTW*>(lParam)->lpCreateParams);
        self->window_.Reset(window);
        ::SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(self));
        return ::DefWindowProcW(window, message, wParam, lParam);
    }
    auto* self = reinterpret_cast<FormWindow*>(::GetWindowLongPtrW(window, GWLP_USERDATA));
    if (message == WM_NCDESTROY) {
        ::SetWindowLongPtrW(window, GWLP_USERDATA, 0);
        if (self != nullptr) self->window_.Release();
        return ::DefWindowProcW(window, message, wParam, lParam);
    }
    if (self == nullptr || self->detached_) return ::DefWindowProcW(window, message, wParam, lParam);
    // The controls' notifications and timers reach the program from here.
    return AtEventBoundary([&] { return self->HandleMessage(message, wParam, lParam); });
}

}  // namespace qs::win
