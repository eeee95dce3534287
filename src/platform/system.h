#pragma once
// Everything the program asks of the operating system. The product gets the
// Windows implementation; the tests get one over temporary folders that
// records every launch.
#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/file_browsing.h"

namespace qs {

// A file's bytes as the system holds them for the program, read into memory
// or mapped there: valid while the object lives.
class FileBytes {
public:
    virtual ~FileBytes() = default;
    virtual std::string_view View() const = 0;
};

// Bytes read into memory.
class ReadBytes final : public FileBytes {
public:
    explicit ReadBytes(std::string bytes) : bytes_(std::move(bytes)) {}
    std::string_view View() const override { return bytes_; }

private:
    std::string bytes_;
};

namespace ui {
class Form;
}

struct DriveInfo {
    std::wstring letter;  // "C", as the system spells it
    std::wstring path;    // "C:"
    DriveType type = DriveType::Unknown;
};

struct PixelRect {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t right = 0;
    std::int32_t bottom = 0;
};

struct PixelPoint {
    std::int32_t x = 0;
    std::int32_t y = 0;
};

// The notification-area icon's record, in the order of the Windows record;
// the window and the icon handle are the form's own, filled by the system.
struct TrayIconData {
    std::int32_t cbSize = 0;
    std::int32_t uID = 0;
    std::int32_t uFlags = 0;
    std::int32_t uCallbackMessage = 0;
    std::array<char, 64> szTip{};
};

struct CalendarDate {
    std::int32_t year = 0;
    std::int32_t month = 0;
    std::int32_t day = 0;
};

struct ShortcutDetails {
    std::wstring linkPath;
    std::wstring targetPath;
    std::int32_t windowStyle = 1;
    std::wstring hotkey;
    std::wstring iconLocation;
    std::wstring description;
    std::wstring workingDirectory;
};

// A top-level or child window of any program, as the system names it; 0 is
// no window.
using WindowHandle = std::uintptr_t;

// One process of a process-list walk, field for field as the system's
// record holds it.
struct ProcessEntry {
    std::uint32_t dwSize = 0;
    std::uint32_t cntUsage = 0;
    std::uint32_t th32ProcessID = 0;
    std::uint64_t th32DefaultHeapID = 0;
    std::uint32_t th32ModuleID = 0;
    std::uint32_t cntThreads = 0;
    std::uint32_t th32ParentProcessID = 0;
    std::int32_t pcPriClassBase = 0;
    std::uint32_t dwFlags = 0;
    std::wstring szExeFile;
};

// The windows under the pointer and the processes that own them, for adding
// a running program by pointing at it. Every call answers "not available"
// unless a system overrides it: no window, no process, no path.
class PointerProcesses {
public:
    virtual ~PointerProcesses() = default;
    // The window under a point of the screen, in pixels.
    virtual WindowHandle WindowFromPoint(PixelPoint) { return 0; }
    // The id of the process that owns a window; 0 for none.
    virtual std::uint32_t WindowProcessId(WindowHandle) { return 0; }
    // Whether the left mouse button is down now.
    virtual bool LeftButtonDown() { return false; }
    // A walk of the process list from a snapshot taken with the given flags
    // and process id: none when the snapshot gave no handle, no entries when
    // the walk's first step failed.
    virtual std::optional<std::vector<ProcessEntry>> ProcessSnapshot(std::uint32_t /*flags*/,
                                                                     std::uint32_t /*processId*/) {
        return std::nullopt;
    }
    // The full path of the program file a running process was started from;
    // "" when the system can't give one (a system process, one that ended).
    virtual std::wstring ProcessExecutablePath(std::uint32_t /*processId*/) { return L""; }
};

class System : public FileBrowsing, public PointerProcesses {
public:
    // Shell. ShellOpen opens a target by its association with the verb "open"
    // and shows the result normally; 33 or more is success. ShellRun starts a
    // whole command line with normal focus and throws SystemCallFailed when
    // the program cannot be started.
    virtual std::int32_t ShellOpen(const std::wstring& target) = 0;
    virtual void ShellRun(const std::wstring& commandLine) = 0;
    // Path of a special folder by its key ("Desktop", "MyDocuments", ...);
    // "" for a key the system does not know.
    virtual std::wstring SpecialFolder(const std::wstring& key) = 0;
    // The Windows folder, as the system gives it (no trailing backslash).
    virtual std::wstring WindowsDirectory() = 0;
    virtual std::wstring Environment(const std::wstring& name) = 0;

    // Registry by full key path, as "HKEY_CURRENT_USER\...\Name". All three
    // throw SystemCallFailed on failure (a missing value included).
    virtual void RegWrite(const std::wstring& key, const std::wstring& value) = 0;
    virtual std::wstring RegRead(const std::wstring& key) = 0;
    virtual void RegDelete(const std::wstring& key) = 0;

    // File system. GetDriveName gives "C:" for a path that starts with a
    // drive, "" otherwise; GetDrive throws SystemCallFailed for a drive that
    // does not exist.
    virtual std::wstring GetDriveName(const std::wstring& path) = 0;
    virtual DriveInfo GetDrive(const std::wstring& driveName) = 0;
    virtual bool FileExists(const std::wstring& path) = 0;
    virtual bool FolderExists(const std::wstring& path) = 0;
    virtual void CreateFolder(const std::wstring& path) = 0;
    virtual std::int32_t GetAttributes(const std::wstring& path) = 0;
    virtual void DeleteFile(const std::wstring& path) = 0;
    // Whole-file text in the machine's 8-bit code page, converted to and
    // from wide text here and nowhere else. Both throw SystemCallFailed.
    virtual std::wstring ReadTextFile(const std::wstring& path) = 0;
    virtual void WriteTextFile(const std::wstring& path, const std::wstring& text) = 0;
    // The same read in two steps, for a reader that looks at a file's bytes
    // long before it needs their text: the bytes, whole (throws
    // SystemCallFailed), then their text, so that ReadTextFile(path) is
    // TextOfBytes(ReadFileBytes(path)->View()). OneCharacterPerByte is true
    // when the code page turns each byte into one character, and each byte
    // below 128 into that same character: byte i of a file is then
    // character i of its text. `onFixedDisk` is the caller's word that the
    // file lies on a fixed disk: the system may then hand out the bytes
    // where it keeps them rather than a copy. A file on a drive that can go
    // away while it is read (a flash drive, a network share) is copied.
    virtual std::unique_ptr<FileBytes> ReadFileBytes(const std::wstring& path, bool onFixedDisk) = 0;
    virtual std::wstring TextOfBytes(std::string_view bytes) = 0;
    virtual bool OneCharacterPerByte() = 0;

    // Existence in bulk, for the thousands of targets a list load tests at
    // once: answer i is exactly what FileExists (FilesExist) or FolderExists
    // (FoldersExist) gives for paths[i], so a caller may use either road and
    // see no difference but the time taken. Neither throws where the single
    // tests do not.
    virtual std::vector<bool> FilesExist(const std::vector<std::wstring_view>& paths) = 0;
    virtual std::vector<bool> FoldersExist(const std::vector<std::wstring_view>& paths) = 0;

    // The program's own place and the single-instance mechanism.
    virtual std::wstring ApplicationFolder() = 0;
    // True when another copy of the program is already running.
    virtual bool AnotherCopyRunning() = 0;
    // Brings the running copy's bar to the front, out of the tray if needed;
    // false when no running bar was found (the flag was a false alarm).
    virtual bool SurfaceRunningCopy() = 0;

    // Screen.
    virtual std::int32_t ScreenWidthTwips() = 0;
    virtual std::int32_t ScreenHeightTwips() = 0;
    virtual std::int32_t TwipsPerPixelX() = 0;
    virtual std::int32_t TwipsPerPixelY() = 0;
    virtual PixelRect WorkArea() = 0;

    virtual CalendarDate Today() = 0;

    // Desktop integration.
    virtual void StartScreenSaver() = 0;
    virtual void CreateShortcut(const ShortcutDetails& shortcut) = 0;

    // The bar on the desktop. The pointer's place on the screen in pixels;
    // the form's icon in the notification area, added (NIM_ADD) and removed
    // (NIM_DELETE); and a drag of the form's window by its surface, which
    // returns when the mouse button is released.
    virtual PixelPoint CursorPosition() = 0;
    virtual void TrayIconAdd(const ui::Form& form, const TrayIconData& data) = 0;
    virtual void TrayIconDelete(const ui::Form& form, const TrayIconData& data) = 0;
    virtual void DragBySurface(const ui::Form& form) = 0;

    // Ends the process at once, nothing saved.
    [[noreturn]] virtual void EndProgram() = 0;
};

}  // namespace qs
