#pragma once
// The checks and decisions of start-up: running copy, screen, the program's
// own file, the Windows folder, the drive, and the data folders.
#include <cstdint>
#include <string>

namespace qs {

struct Application;

void AtStartPrevInstance(Application& app);
void AtStartConfirmScreen(Application& app);
std::wstring AtStartProgramFile(Application& app);
std::wstring AtStartSysPath(Application& app, std::wstring& programFolderUpper);
std::wstring AtStartPathRoot(Application& app, std::wstring& path);
std::wstring AtStartDriveType(Application& app, std::wstring& root);
void AtStartSetFileFolder(Application& app, bool& onRemovable);

}  // namespace qs
