#pragma once
// The operating system as the unit tests see it: drive letters mapped onto
// temporary folders of the real file system, a registry in memory, and a
// record of every launch.
#include <atomic>
#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "common/failure.h"
#include "platform/system.h"

namespace qs::test {

// Thrown by EndProgram; deliberately not a std::exception, so that no
// failure handler of the program can swallow it.
struct ProgramEnded {};

struct Launch {
    enum class Kind { Open, Run } kind;
    std::wstring target;
};

class FakeSystem : public System {
public:
    FakeSystem();
    ~FakeSystem() override;

    // Maps a drive letter onto a fresh folder under the test's temporary root
    // and returns that folder.
    std::filesystem::path MapDrive(wchar_t letter, DriveType type);
    // The Linux path of a Windows path on a mapped drive.
    std::filesystem::path HostPath(const std::wstring& windowsPath) const;
    // Writes a file at a Windows path, making its folders.
    void PutFile(const std::wstring& windowsPath, const std::string& bytes = "x");
    std::string FileBytes(const std::wstring& windowsPath) const;

    std::vector<Launch> launches;
    std::map<std::wstring, std::wstring> registry;
    std::map<std::wstring, std::wstring> environment;
    std::map<std::wstring, std::wstring> specialFolders;
    std::wstring applicationFolder = L"C:\\Tools\\";
    bool anotherCopyRunning = false;
    int surfaced = 0;
    // Whether a second start finds the running copy's bar.
    bool runningBarFound = true;
    int screenSaverStarts = 0;
    std::vector<ShortcutDetails> shortcuts;
    std::int32_t screenWidthTwips = 1920 * 15;
    std::int32_t screenHeightTwips = 1080 * 15;
    std::int32_t twipsPerPixel = 15;
    // The vertical ratio where it differs from the horizontal one; 0: the same.
    std::int32_t twipsPerPixelY = 0;
    PixelRect workArea{0, 0, 1920, 1040};
    CalendarDate today{2026, 11, 15};
    // When set, every shell call throws as a broken shell would.
    bool shellThrows = false;
    // Called with each launch as it is recorded, so a test can see the
    // program's state at the moment of the launch.
    std::function<void(const Launch&)> onLaunch;
    // When not 0, ShellOpen records the launch and returns this instead.
    std::int32_t shellOpenResult = 0;

    std::int32_t ShellOpen(const std::wstring& target) override;
    void ShellRun(const std::wstring& commandLine) override;
    std::wstring SpecialFolder(const std::wstring& key) override;
    std::wstring WindowsDirectory() override { return L"C:\\Windows"; }
    std::wstring Environment(const std::wstring& name) override;
    void RegWrite(const std::wstring& key, const std::wstring& value) override;
    std::wstring RegRead(const std::wstring& key) override;
    void RegDelete(const std::wstring& key) override;
    std::wstring GetDriveName(const std::wstring& path) override;
    DriveInfo GetDrive(const std::wstring& driveName) override;
    // How many times a drive's type was asked.
    std::atomic<int> drivesAsked = 0;
    bool FileExists(const std::wstring& path) override;
    bool FolderExists(const std::wstring& path) override;
    // Each parent folder is listed once; names compare as the host file
    // system compares them, as the single tests do.
    std::vector<bool> FilesExist(const std::vector<std::wstring_view>& paths) override;
    std::vector<bool> FoldersExist(const std::vector<std::wstring_view>& paths) override;
    // How many folder listings the bulk tests have made, counted atomically:
    // the list load tests its targets on threads of its own.
    std::atomic<int> folderListings = 0;
    void CreateFolder(const std::wstring& path) override;
    std::int32_t GetAttributes(const std::wstring& path) override;
    void DeleteFile(const std::wstring& path) override;
    std::wstring ReadTextFile(const std::wstring& path) override;
    // Every file is read into memory, wherever it lies.
    std::unique_ptr<qs::FileBytes> ReadFileBytes(const std::wstring& path, bool onFixedDisk) override;
    std::wstring TextOfBytes(std::string_view bytes) override;
    // The files hold Latin-1, one character per byte; a test may say
    // otherwise, so that the readers take the road of other code pages.
    bool OneCharacterPerByte() override { return oneCharacterPerByte; }
    bool oneCharacterPerByte = true;
    void WriteTextFile(const std::wstring& path, const std::wstring& text) override;
    std::wstring ApplicationFolder() override { return applicationFolder; }
    bool AnotherCopyRunning() override { return anotherCopyRunning; }
    bool SurfaceRunningCopy() override {
        ++surfaced;
        return runningBarFound;
    }
    std::int32_t ScreenWidthTwips() override { return screenWidthTwips; }
    std::int32_t ScreenHeightTwips() override { return screenHeightTwips; }
    std::int32_t TwipsPerPixelX() override { return twipsPerPixel; }
    std::int32_t TwipsPerPixelY() override { return twipsPerPixelY != 0 ? twipsPerPixelY : twipsPerPixel; }
    PixelRect WorkArea() override { return workArea; }
    CalendarDate Today() override { return today; }
    void StartScreenSaver() override { ++screenSaverStarts; }
    void CreateShortcut(const ShortcutDetails& shortcut) override;
    [[noreturn]] void EndProgram() override { throw ProgramEnded{}; }
    std::vector<DriveEntry> ListDrives() override;
    FolderListing ListFolder(const std::wstring& folder) override;

    // The bar on the desktop: the pointer's place, and a record of every
    // tray call and drag, with the form each was made for.
    PixelPoint cursor{-1, -1};
    struct TrayCall {
        enum class Kind { Add, Delete } kind;
        const ui::Form* form;
        TrayIconData data;
    };
    std::vector<TrayCall> trayCalls;
    std::vector<const ui::Form*> drags;
    // Where a drag leaves the form, in twips; none leaves it where it was.
    std::function<void(const ui::Form&)> onDrag;
    std::int64_t cursorReads = 0;
    PixelPoint CursorPosition() override {
        ++cursorReads;
        return cursor;
    }
    void TrayIconAdd(const ui::Form& form, const TrayIconData& data) override {
        trayCalls.push_back({TrayCall::Kind::Add, &form, data});
    }
    void TrayIconDelete(const ui::Form& form, const TrayIconData& data) override {
        trayCalls.push_back({TrayCall::Kind::Delete, &form, data});
    }
    void DragBySurface(const ui::Form& form) override {
        drags.push_back(&form);
        if (onDrag) onDrag(form);
    }

    // The windows under the pointer: the window at each place (none
    // elsewhere), the process owning each window, each process's program
    // path, and the process list a walk gives (none: no snapshot).
    std::map<std::pair<std::int32_t, std::int32_t>, WindowHandle> windowsAt;
    std::map<WindowHandle, std::uint32_t> windowOwners;
    std::map<std::uint32_t, std::wstring> processPaths;
    std::optional<std::vector<ProcessEntry>> processList = std::vector<ProcessEntry>{};
    std::vector<std::pair<std::uint32_t, std::uint32_t>> snapshotRequests;
    bool leftButton = false;
    // The process services fail, as they may for a process that ended.
    bool processServicesFail = false;
    WindowHandle WindowFromPoint(PixelPoint point) override {
        const auto found = windowsAt.find({point.x, point.y});
        return found == windowsAt.end() ? 0 : found->second;
    }
    std::uint32_t WindowProcessId(WindowHandle window) override {
        if (processServicesFail) throw SystemCallFailed("GetWindowThreadProcessId");
        const auto found = windowOwners.find(window);
        return found == windowOwners.end() ? 0 : found->second;
    }
    bool LeftButtonDown() override { return leftButton; }
    std::optional<std::vector<ProcessEntry>> ProcessSnapshot(std::uint32_t flags, std::uint32_t processId) override {
        snapshotRequests.emplace_back(flags, processId);
        if (processServicesFail) throw SystemCallFailed("CreateToolhelp32Snapshot");
        return processList;
    }
    std::wstring ProcessExecutablePath(std::uint32_t processId) override {
        const auto found = processPaths.find(processId);
        return found == processPaths.end() ? L"" : found->second;
    }

    std::map<wchar_t, DriveType> driveTypes;
    std::map<std::wstring, std::int32_t> attributes;
    // Volume names by upper-case drive letter, and the drives that hold no
    // medium (their folders cannot be read).
    std::map<wchar_t, std::wstring> volumeNames;
    std::vector<wchar_t> notReady;
    // Paths (Windows form, any case) whose writes fail, as on read-only media.
    std::vector<std::wstring> readOnlyPrefixes;

private:
    enum class EntryKind { File, Folder };
    std::vector<bool> ExistInBulk(const std::vector<std::wstring_view>& targets, EntryKind kind);
    bool ExistsSingly(const std::wstring& path, EntryKind kind);

    std::filesystem::path root_;
};

}  // namespace qs::test
