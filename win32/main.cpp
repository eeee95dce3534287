// Quillstart.exe: one copy per session; the bar comes up and the program
// lives in its message loop.
#include <windows.h>

#include "common/application.h"
#include "common/startup_marks.h"
#include "startup/active_start.h"
#include "dpi.h"
#include "ole_on_demand.h"
#include "win32_backend.h"
#include "win32_system.h"

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, PWSTR, int) {
    qs::marks::Mark("entry");
    qs::win::EnablePerMonitorDpi();
    qs::win::Win32System system;
    // Started by the first drop target or shell launch, ended at the exit.
    qs::win::OleOnDemand ole;

    qs::Application app(system);
    qs::win::Win32Backend backend(instance);
    app.AttachBackend(&backend);
    system.SetWindowLookup([&backend](const qs::ui::Form& form) { return backend.WindowOf(form); });
    qs::marks::Mark("program and window classes made");

    try {
        qs::Main(app);
    } catch (const std::exception& failure) {
        // Start-up has no handler of its own: report the failure plainly.
        ::MessageBoxA(nullptr, failure.what(), "Run-time error", MB_OK | MB_ICONERROR);
        return 1;
    }
    app.frmMain.TextMain.SetFocus();
    const int exitCode = backend.RunMessageLoop();
    // A start that never took a key still leaves its marks.
    qs::marks::Write();
    return exitCode;
}
