// Adding a running program by pointing at it: the user presses
// PictureFindPath, drags the pointer onto a window of the program and
// releases; the path of the program's file then stands in TextAddPath.
#include "common/application.h"
#include "common/failure.h"
#include "data/report_bug.h"
#include "startup/active_message.h"
#include "windows/cls_active_process.h"
#include "windows/frm_browse.h"

namespace qs {

namespace {

// The form's pointer while the drag goes on: "no drop".
constexpr std::int16_t PointerNoDrop = 12;

}  // namespace

void FrmBrowse::PictureFindPathMouseDown() {
    try {
        PictureFindPath.SetPicture(app_.theme.ImageZeroOver);
        if (FindPathActive) return;
        PictureFindPath.SetPicture(app_.theme.ImageZeroSet[3]);
        {
            clsActiveProcess processes(app_.sys);
            ProcessCount = processes.GetActiveProcess();
            ProcessNames.assign(static_cast<std::size_t>(ProcessCount) + 1, L"");
            ProcessIds.assign(static_cast<std::size_t>(ProcessCount) + 1, 0);
            for (std::int32_t i = 1; i <= ProcessCount; ++i) {
                ProcessNames[static_cast<std::size_t>(i)] = processes.szExeFile(i);
                ProcessIds[static_cast<std::size_t>(i)] = processes.th32ProcessID(i);
            }
        }
        // The picture's window holds the pointer from its press to its
        // release, wherever the pointer goes meanwhile.
        PointedWindow = 0;
        SetMousePointer(PointerNoDrop);
        FindPathActive = true;
        TimerFindPath.SetEnabled(true);
    } catch (const std::exception&) {
        ReportBugTag(app_, L"Bug-Quillstart-FindExecutableDown");
    }
}

void FrmBrowse::TimerFindPathTick() {
    PointerPosition = app_.sys.CursorPosition();
    PointerX = ToInt16(PointerPosition.x);
    PointerY = ToInt16(PointerPosition.y);
    PointedWindow = app_.sys.WindowFromPoint(PointerPosition);
    LeftButtonHeld = app_.sys.LeftButtonDown();
}

void FrmBrowse::PictureFindPathMouseUp() {
    try {
        TimerFindPath.SetEnabled(false);
        FindPathActive = false;
        SetMousePointer(0);
        PictureFindPath.SetPicture(app_.theme.ImageZeroSet[2]);
        // The picture's window let the pointer go as the button came up.
        // The process list taken at the press names the processes, but the
        // path comes from the system alone: a window seen before the first
        // tick (0) or of a process that ended has none.
        const std::uint32_t processId = app_.sys.WindowProcessId(PointedWindow);
        const std::wstring path = app_.sys.ProcessExecutablePath(processId);
        ProcessNames.assign(1, L"");
        ProcessIds.assign(1, 0);
        ProcessCount = 0;
        if (path.empty()) {
            app_.MessageToShow = L"MessageExePathNotFound";
            MessageProcess(app_);
            return;
        }
        // The drive is looked up as for a chosen file; the add checks the
        // place again when OK is pressed.
        ActDeclareDriveType(path.substr(0, 3));
        TextAddPath.SetText(path);
        if (TextAddName.Enabled()) TextAddName.SetFocus();
    } catch (const std::exception&) {
        ReportBugTag(app_, L"Bug-Quillstart-FindExecutableUp");
    }
}

}  // namespace qs
