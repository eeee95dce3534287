#include "data/list_files.h"

#include "common/application.h"

namespace qs {

const std::wstring& ComputerSideFile(const Application& app, std::int16_t group) {
    switch (group) {
        case 0: return app.place.FileListFile;
        case 1: return app.place.FileListFold;
        case 2: return app.place.FileListProg;
        case 3: return app.place.FileListMail;
        case 4: return app.place.FileListWeb;
        default: throw SubscriptOutOfRange();
    }
}

const std::wstring& FlashSideFile(const Application& app, std::int16_t group) {
    switch (group) {
        case 0: return app.place.FileListUsbFile;
        case 1: return app.place.FileListUsbFold;
        case 2: return app.place.FileListUsbProg;
        default: throw SubscriptOutOfRange();
    }
}

std::vector<bool> TargetsPass(Application& app, std::int16_t group, const std::vector<std::wstring_view>& targets) {
    return group == 1 ? app.sys.FoldersExist(targets) : app.sys.FilesExist(targets);
}

std::wstring ToStoredFlashTarget(const Application& app, const std::wstring& target) {
    std::wstring stored = target;
    if (!stored.empty() && stored.compare(0, 1, app.place.ProgramDriveLetter) == 0) stored[0] = L'#';
    return stored;
}

std::wstring FromStoredFlashTarget(const Application& app, std::wstring_view stored) {
    if (stored.empty() || stored[0] != L'#') return std::wstring(stored);
    return app.place.ProgramDriveLetter + std::wstring(stored.substr(1));
}

}  // namespace qs
