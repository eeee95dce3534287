// Quillstart.exe: one copy per session; the bar comes up and the program
// lives in its message loop.
#include <windows.h>
#include <commctrl.h>

#include "common/application.h"
#include "startup/active_start.h"
#include "dpi.h"
#include "drop_target.h"
#include "com.h"
#include "win32_backend.h"
#include "win32_system.h"

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, PWSTR, int) {
    qs::win::EnablePerMonitorDpi();
    qs::win::Win32System system;
    qs::win::ComScope com;
    // Text dropped from other programs needs OLE, not COM alone.
    qs::win::OleScope ole;
    INITCOMMONCONTROLSEX controls{sizeof(controls), ICC_STANDARD_CLASSES};
    ::InitCommonControlsEx(&controls);

    qs::Application app(system);
    qs::win::Win32Backend backend(instance);
    app.AttachBackend(&backend);
    system.SetWindowLookup([&backend](const qs::ui::Form& form) { return backend.WindowOf(form); });

    try {
        qs::Main(app);
    } catch (const std::exception& failure) {
        // Start-up has no handler of its own: report the failure plainly.
        ::MessageBoxA(nullptr, failure.what(), "Run-time error", MB_OK | MB_ICONERROR);
        return 1;
    }
    app.frmMain.TextMain.SetFocus();
    return backend.RunMessageLoop();
}
