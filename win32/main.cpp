// Quillstart.exe: one copy per session; the bar comes up and the program
// lives in its message loop.
#include <windows.h>
#include <commctrl.h>

#include "command/default_values.h"
#include "common/application.h"
#include "dpi.h"
#include "com.h"
#include "win32_backend.h"
#include "win32_system.h"

namespace {

// The bar centred in the upper part of the work area, on top, with the
// keyboard in its Command box.
void ShowBar(qs::Application& app) {
    qs::FrmMain& bar = app.frmMain;
    bar.Load();
    const qs::PixelRect area = app.sys.WorkArea();
    const std::int32_t perPixelX = app.sys.TwipsPerPixelX();
    const std::int32_t perPixelY = app.sys.TwipsPerPixelY();
    const std::int32_t centre = (area.left + area.right) / 2 * perPixelX;
    const std::int32_t upper = (area.top + (area.bottom - area.top) / 5) * perPixelY;
    bar.Move(centre - bar.Width() / 2, upper, bar.Width(), bar.Height());
    bar.SetTopMost(true);
    bar.Show();
    bar.TextMain.SetFocus();
}

}  // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, PWSTR, int) {
    qs::win::EnablePerMonitorDpi();
    qs::win::Win32System system;
    if (system.AnotherCopyRunning()) {
        system.SurfaceRunningCopy();
        return 0;
    }
    qs::win::ComScope com;
    INITCOMMONCONTROLSEX controls{sizeof(controls), ICC_STANDARD_CLASSES};
    ::InitCommonControlsEx(&controls);

    qs::Application app(system);
    qs::win::Win32Backend backend(instance);
    app.AttachBackend(&backend);

    app.place.UserNameEnv = system.Environment(L"username");
    app.place.ComputerName = system.Environment(L"computername");
    app.WindowsFolder = system.WindowsDirectory() + L"\\";
    app.ProgramFolder = system.ApplicationFolder();
    app.ProgramFile = app.ProgramFolder + L"Quillstart.exe";
    qs::AtStartDefaultValue(app);
    ShowBar(app);

    return backend.RunMessageLoop();
}
