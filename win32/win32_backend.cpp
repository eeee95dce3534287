#include "win32_backend.h"

#include <algorithm>

#include "common/startup_marks.h"
#include "form_window.h"
#include "window_hook.h"
#include "ui/form.h"
#include "window_hook.h"

namespace qs::win {

namespace {

// The enabled, visible top-level windows of this thread but one.
std::vector<HWND> OtherEnabledWindows(HWND except) {
    struct Search {
        HWND except;
        std::vector<HWND> found;
    } search{except, {}};
    ::EnumThreadWindows(
        ::GetCurrentThreadId(),
        [](HWND window, LPARAM data) -> BOOL {
            auto* s = reinterpret_cast<Search*>(data);
            if (window != s->except && ::IsWindowVisible(window) && ::IsWindowEnabled(window)) {
                s->found.push_back(window);
            }
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&search));
    return search.found;
}

bool IsKey(UINT message) {
    return message == WM_KEYDOWN || message == WM_CHAR || message == WM_SYSKEYDOWN || message == WM_SYSCHAR;
}

// Messages that only draw: they may go on while input waits for the work.
bool OnlyPaints(UINT message) {
    return message == WM_PAINT || message == WM_NCPAINT || message == WM_ERASEBKGND || message == WM_SYNCPAINT;
}

}  // namespace

Win32Backend::Win32Backend(HINSTANCE instance) : instance_(instance) { FormWindow::RegisterClasses(instance); }

Win32Backend::~Win32Backend() {
    if (idleTimer_ != 0) ::KillTimer(nullptr, idleTimer_);
    windows_.clear();
    unloaded_.clear();
}

void Win32Backend::FormLoaded(ui::Form& form) {
    if (form.WindowWaitsForShow() && !form.Visible()) {
        waiting_.insert(&form);
        return;
    }
    windows_[&form] = std::make_unique<FormWindow>(instance_, form);
}

void Win32Backend::FormShowing(ui::Form& form) {
    if (waiting_.erase(&form) == 0) return;
    windows_[&form] = std::make_unique<FormWindow>(instance_, form);
}

void Win32Backend::FormUnloaded(ui::Form& form) {
    if (waiting_.erase(&form) == 0) {
        const auto found = windows_.find(&form);
        if (found == windows_.end()) return;
        // The form may be unloaded from inside one of its own window's
        // messages, so the peer object lives on until that message has returned.
        found->second->Detach();
        unloaded_.push_back(std::move(found->second));
        windows_.erase(found);
    }
    // As with every program of its kind: when no form is left loaded, the
    // program ends; a loaded form still waiting for its window counts.
    if (windows_.empty() && waiting_.empty()) ::PostQuitMessage(0);
}

HWND Win32Backend::WindowOf(const ui::Form& form) const {
    const auto found = windows_.find(&form);
    return found == windows_.end() ? nullptr : found->second->Handle();
}

bool Win32Backend::MoveFocusByKey(const MSG& message) const {
    if (message.message != WM_KEYDOWN || message.wParam != VK_TAB || message.hwnd == nullptr) return false;
    if ((::GetKeyState(VK_CONTROL) & 0x8000) != 0 || (::GetKeyState(VK_MENU) & 0x8000) != 0) return false;
    const HWND form = ::GetAncestor(message.hwnd, GA_ROOT);
    const bool ours = std::any_of(windows_.begin(), windows_.end(),
                                  [form](const auto& entry) { return entry.second->Handle() == form; });
    if (!ours || form == message.hwnd) return false;
    const bool backward = (::GetKeyState(VK_SHIFT) & 0x8000) != 0;
    const HWND next = ::GetNextDlgTabItem(form, message.hwnd, backward ? TRUE : FALSE);
    if (next == nullptr || next == message.hwnd) return false;
    ::SetFocus(next);
    return true;
}

bool Win32Backend::PreviewKeyDown(const MSG& message) {
    if (message.message != WM_KEYDOWN || message.hwnd == nullptr) return false;
    const HWND root = ::GetAncestor(message.hwnd, GA_ROOT);
    const auto found = std::find_if(windows_.begin(), windows_.end(),
                                    [root](const auto& entry) { return entry.second->Handle() == root; });
    if (found == windows_.end() || !found->second->Model().KeyDown) return false;
    std::int16_t shift = 0;
    if ((::GetKeyState(VK_SHIFT) & 0x8000) != 0) shift |= 1;
    if ((::GetKeyState(VK_CONTROL) & 0x8000) != 0) shift |= 2;
    if ((::GetKeyState(VK_MENU) & 0x8000) != 0) shift |= 4;
    ui::Form& form = found->second->Model();
    const auto key = static_cast<std::int16_t>(message.wParam);
    return AtEventBoundary([&form, key, shift]() -> LRESULT { return form.UserKeyDown(key, shift) == 0 ? 1 : 0; }) != 0;
}

void Win32Backend::RunBeforeInput(std::function<void()> work) { pendingWork_ = std::move(work); }

std::function<void()> Win32Backend::PendingWorkWaker() {
    return [thread = ::GetCurrentThreadId()] { ::PostThreadMessageW(thread, WM_NULL, 0, 0); };
}

void Win32Backend::RunWhenIdle(std::function<void()> work) {
    idleWork_.push_back(std::move(work));
    if (idleTimer_ == 0) idleTimer_ = ::SetTimer(nullptr, 0, USER_TIMER_MINIMUM, nullptr);
    // Without a timer the work runs now rather than never.
    if (idleTimer_ == 0) {
        std::vector<std::function<void()>> now;
        now.swap(idleWork_);
        for (const auto& step : now) step();
    }
}

bool Win32Backend::RunIdleWork(const MSG& message) {
    if (message.message != WM_TIMER || message.hwnd != nullptr || idleTimer_ == 0 || message.wParam != idleTimer_) {
        return false;
    }
    ::KillTimer(nullptr, idleTimer_);
    idleTimer_ = 0;
    std::vector<std::function<void()>> work;
    work.swap(idleWork_);
    for (const auto& step : work) {
        AtEventBoundary([&step] {
            step();
            return LRESULT{0};
        });
    }
    return true;
}

bool Win32Backend::PassesInputWork(const MSG& message) const {
    if (message.message == WM_TIMER) return true;
    if (message.message != WM_KEYDOWN && message.message != WM_KEYUP && message.message != WM_CHAR) return false;
    if (message.hwnd == nullptr) return false;
    const HWND form = ::GetAncestor(message.hwnd, GA_ROOT);
    for (const auto& entry : windows_) {
        if (entry.second->Handle() != form) continue;
        const ui::Control* control = entry.second->ControlAt(message.hwnd);
        return control != nullptr && control->KeysPassInputWork();
    }
    return false;
}

void Win32Backend::RunPendingWork() {
    // What is on screen is drawn before the wait, whatever came first.
    for (const auto& entry : windows_) {
        if (::IsWindowVisible(entry.second->Handle())) ::UpdateWindow(entry.second->Handle());
    }
    const std::function<void()> work = std::move(pendingWork_);
    pendingWork_ = nullptr;
    work();
}

bool Win32Backend::PumpOne(MSG& message) {
    const BOOL got = ::GetMessageW(&message, nullptr, 0, 0);
    if (got == 0 || got == -1) return false;
    if (pendingWork_ && !OnlyPaints(message.message) && !PassesInputWork(message)) RunPendingWork();
    if (!keyTaken_ && IsKey(message.message)) {
        // The first key taken ends the start-up that the marks measure.
        keyTaken_ = true;
        marks::Mark("key taken");
        marks::Write();
    }
    if (RunIdleWork(message)) return true;
    if (MoveFocusByKey(message)) return true;
    if (PreviewKeyDown(message)) {
        ReleaseUnloaded();
        return true;
    }
    ::TranslateMessage(&message);
    ::DispatchMessageW(&message);
    ReleaseUnloaded();
    return true;
}

void Win32Backend::ReleaseUnloaded() {
    if (modalDepth_ == 0) unloaded_.clear();
}

int Win32Backend::RunMessageLoop() {
    MSG message{};
    while (PumpOne(message)) {
    }
    return message.message == WM_QUIT ? static_cast<int>(message.wParam) : 0;
}

void Win32Backend::RunModal(ui::Form& form) {
    const HWND modal = WindowOf(form);
    const std::vector<HWND> disabled = OtherEnabledWindows(modal);
    for (HWND window : disabled) ::EnableWindow(window, FALSE);
    if (modal != nullptr) ::SetForegroundWindow(modal);
    MSG message{};
    bool quit = false;
    ++modalDepth_;
    while (form.IsLoaded() && form.Visible()) {
        if (!PumpOne(message)) {
            quit = message.message == WM_QUIT;
            break;
        }
    }
    --modalDepth_;
    for (HWND window : disabled) {
        if (::IsWindow(window)) ::EnableWindow(window, TRUE);
    }
    // The outer loop must see the quit too.
    if (quit) ::PostQuitMessage(static_cast<int>(message.wParam));
}

}  // namespace qs::win
