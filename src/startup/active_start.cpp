#include "startup/active_start.h"

#include "command/default_values.h"
#include "common/application.h"
#include "common/startup_marks.h"
#include "common/text_case.h"
#include "data/active_family.h"
#include "data/control_data.h"
#include "data/launch_list.h"
#include "startup/active_message.h"
#include "startup/active_start_checks.h"
#include "startup/desktop.h"
#include "startup/saved_options.h"
#include "theme/active_theme.h"

namespace qs {

void Main(Application& app) {
    ProgramPlace& place = app.place;
    place.StartingUp = true;
    app.frmHid.Load();
    AtStartDefaultColor(app);
    marks::Mark("Main holders and colours");
    place.UserNameEnv = app.sys.Environment(L"username");
    place.ComputerName = app.sys.Environment(L"computername");
    if (app.sys.AnotherCopyRunning()) AtStartPrevInstance(app);
    AtStartConfirmScreen(app);
    app.ProgramFolder = AtStartProgramFile(app);
    marks::Mark("Main copy, screen and file checks");

    place.ProgramDriveName = app.sys.GetDriveName(app.ProgramFolder);
    place.ProgramDrive = app.sys.GetDrive(place.ProgramDriveName);
    place.ProgramDriveLetter = place.ProgramDrive.letter;
    place.ProgramDriveLetterUpper = UCase(place.ProgramDrive.letter);

    std::wstring folderUpper = UCase(app.ProgramFolder);
    app.MessageToShow = AtStartSysPath(app, folderUpper);
    if (!app.MessageToShow.empty()) MessageEnd(app);
    place.WindowsRoot = AtStartPathRoot(app, app.WindowsFolder);
    place.ProgramRoot = AtStartPathRoot(app, app.ProgramFolder);
    app.MessageToShow = AtStartDriveType(app, place.ProgramRoot);
    if (!app.MessageToShow.empty()) MessageEnd(app);
    AtStartSetFileFolder(app, place.OnRemovable);
    marks::Mark("Main drive and folders");

    const bool firstStart = FamilyStart(app);
    marks::Mark("Main family");
    ControlComDataGet(app);
    ControlDataGet(app, place.OnRemovable);
    if (place.OnRemovable) ControlUSBDataGet(app);
    AtStartsavedOptions(app, app.settings.OptionWord);
    AtStartDefaultValue(app);
    // A program found in a new place starts with Windows from there.
    if (app.settings.OptionStartWithWindows == 1 && !place.OnRemovable && app.family.ProgramMoved)
        AutostartRegister(app);
    marks::Mark("Main records and options");

    app.frmMain.Load();
    marks::Mark("Main frmMain loaded");
    app.frmBrowse.Load();
    marks::Mark("Main frmBrowse loaded");
    app.frmChoose.Load();
    marks::Mark("Main frmChoose loaded");
    app.frmQuick.Load();
    marks::Mark("Main frmQuick loaded");
    ThemeCreate(app, app.settings.ThemeIndex);
    marks::Mark("Main theme created");
    place.StartingUp = false;
    app.frmMain.Show();
    app.frmMain.TimerOnTop.SetEnabled(app.settings.OptionAlwaysOnTop != 0);
    marks::Mark("Main bar shown");
    if (firstStart) {
        app.MessageToShow = L"MessageFisrtStart";
        MessageProcess(app);
    }
}

}  // namespace qs
