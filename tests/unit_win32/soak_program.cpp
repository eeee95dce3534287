#include "soak_program.h"

#include "command/default_values.h"
#include "control_window.h"
#include "data/launch_list.h"
#include "data_setup.h"
#include "sample_items.h"
#include "theme/active_theme.h"
#include "window_test_support.h"

namespace qs::test {

namespace {

// The dialog being answered: timers without a window carry no data of
// their own, and one dialog stands at a time.
struct PendingAnswer {
    SoakProgram* program = nullptr;
    WPARAM key = 0;
    int ticks = 0;
    SoakProgram::Dialog dialog;
};
PendingAnswer* g_pending = nullptr;

// Ticks of about 10 ms before a dialog that did not go is closed by force.
constexpr int kAnswerTicks = 300;

// Long enough for every timer of the program to tick a few times.
constexpr DWORD kSettleMilliseconds = 500;

void PressKey(HWND window, WPARAM virtualKey, wchar_t character) {
    ::SendMessageW(window, WM_KEYDOWN, virtualKey, 1);
    ::SendMessageW(window, WM_CHAR, character, 1);
    ::SendMessageW(window, WM_KEYUP, virtualKey, static_cast<LPARAM>(0xC0000001u));
}

WPARAM VirtualKeyOf(wchar_t character) {
    const SHORT scan = ::VkKeyScanW(character);
    return scan == -1 ? 0 : static_cast<WPARAM>(scan & 0xFF);
}

void CALLBACK AnswerTick(HWND, UINT, UINT_PTR, DWORD) {
    if (g_pending == nullptr) return;
    PendingAnswer& pending = *g_pending;
    FrmMessage& dialog = pending.program->app.frmMessage;
    const HWND window = pending.program->WindowOf(dialog);
    const HWND box = SoakProgram::WindowOf(dialog.TextMessage);
    if (!pending.dialog.shown && window != nullptr && box != nullptr && ::IsWindowVisible(window)) {
        pending.dialog.shown = true;
        pending.dialog.text = dialog.TextMessage.Text();
        // Posted, as the keyboard does: the loop turns the key into its character.
        ::PostMessageW(box, WM_KEYDOWN, pending.key, 1);
        ::PostMessageW(box, WM_KEYUP, pending.key, static_cast<LPARAM>(0xC0000001u));
        pending.ticks = 0;
        return;
    }
    if (pending.dialog.shown && ++pending.ticks > kAnswerTicks && dialog.IsLoaded()) {
        pending.dialog.forced = true;
        dialog.Unload();
    }
}

}  // namespace

SoakProgram::SoakProgram() {
    app.AttachBackend(&backend);
    app.WindowsFolder = L"C:\\Windows\\";
    app.place.UserNameEnv = sys.Environment(L"username");
    SetUpFixedDiskRun(sys, app);
    app.place.WorkAreaLeft = 0;
    app.place.WorkAreaTop = 0;
    app.place.WorkAreaRight = 1920;
    app.place.WorkAreaBottom = 1040;
    app.place.StartingUp = true;
    app.frmHid.Load();
    AtStartDefaultColor(app);
    AtStartDefaultValue(app);
    app.frmMain.Load();
    app.frmBrowse.Load();
    app.frmChoose.Load();
    // What the items name exists, and so does the program that opens folders.
    for (const wchar_t* file : {L"C:\\Docs\\notes.txt", L"C:\\Docs\\plan.doc", L"C:\\Music\\song.mp3",
                                L"C:\\Apps\\editor.exe", L"C:\\Apps\\player.exe", L"C:\\Windows\\explorer.exe"}) {
        sys.PutFile(file);
    }
    for (const SampleItem& item : TwoItemsInEveryGroup) Add(item.group, item.name, item.target);
    // The QuickLauncher learns at its load which groups have items.
    app.frmQuick.Load();
    ThemeCreate(app, app.settings.ThemeIndex);
    app.place.StartingUp = false;
    app.frmMain.Show();
    app.frmMain.SetTextMainQuietly(L"");
    app.frmMain.TextMain.SetFocus();
    ReturnToLoop();
}

SoakProgram::~SoakProgram() {
    // The forms outlive the window system: nothing may reach it once it is gone.
    app.AttachBackend(nullptr);
}

void SoakProgram::Add(int group, const std::wstring& name, const std::wstring& path) {
    const auto index = static_cast<std::size_t>(group);
    AddItemInStep(app.frmChoose.ComboListItemName(index), app.frmChoose.ComboListItemPath(index), name, path);
    if (group < 3) {
        AddItemInStep(app.frmHid.ComboHDDItemName(index), app.frmHid.ComboHDDItemPath(index), name, path);
    }
}

void SoakProgram::ReturnToLoop() {
    Pump();
    ::PostThreadMessageW(::GetCurrentThreadId(), WM_NULL, 0, 0);
    ::PostQuitMessage(0);
    backend.RunMessageLoop();
}

void SoakProgram::Settle() {
    const DWORD until = ::GetTickCount() + kSettleMilliseconds;
    while (::GetTickCount() < until) {
        ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 20, QS_ALLINPUT);
        ReturnToLoop();
    }
}

HWND SoakProgram::WindowOf(const ui::Form& form) const { return backend.WindowOf(form); }

HWND SoakProgram::WindowOf(const ui::Control& control) {
    const auto* peer = dynamic_cast<const win::ControlWindow*>(control.Peer());
    return peer == nullptr ? nullptr : peer->Handle();
}

bool SoakProgram::Click(const ui::Control& control) {
    if (control.Shown()) PumpUntil([&control] { return WindowOf(control) != nullptr; });
    const HWND window = WindowOf(control);
    if (window == nullptr || !::IsWindowVisible(window)) return false;
    RECT client{};
    ::GetClientRect(window, &client);
    const LPARAM at = MAKELPARAM(client.right / 2, client.bottom / 2);
    ::SendMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, at);
    ::SendMessageW(window, WM_LBUTTONUP, 0, at);
    return true;
}

void SoakProgram::TypeCommand(const std::wstring& text) {
    const HWND box = WindowOf(app.frmMain.TextMain);
    PressKey(box, VK_ESCAPE, L'\x1b');
    for (const wchar_t character : text) PressKey(box, VirtualKeyOf(character), character);
    PressKey(box, VK_RETURN, L'\r');
}

SoakProgram::Dialog SoakProgram::Answering(const std::function<void()>& step, WPARAM key) {
    PendingAnswer pending{this, key, 0, {}};
    g_pending = &pending;
    const UINT_PTR timer = ::SetTimer(nullptr, 0, USER_TIMER_MINIMUM, AnswerTick);
    step();
    ::KillTimer(nullptr, timer);
    g_pending = nullptr;
    return pending.dialog;
}

}  // namespace qs::test
