#pragma once
// The operating-system services of the program, from Windows.
#include <windows.h>

#include <functional>

#include "handles.h"
#include "platform/system.h"

namespace qs::win {

class Win32System : public System {
public:
    std::int32_t ShellOpen(const std::wstring& target) override;
    void ShellRun(const std::wstring& commandLine) override;
    std::wstring SpecialFolder(const std::wstring& key) override;
    std::wstring WindowsDirectory() override;
    std::wstring Environment(const std::wstring& name) override;

    void RegWrite(const std::wstring& key, const std::wstring& value) override;
    std::wstring RegRead(const std::wstring& key) override;
    void RegDelete(const std::wstring& key) override;

    std::wstring GetDriveName(const std::wstring& path) override;
    DriveInfo GetDrive(const std::wstring& driveName) override;
    bool FileExists(const std::wstring& path) override;
    bool FolderExists(const std::wstring& path) override;
    std::vector<bool> FilesExist(const std::vector<std::wstring_view>& paths) override;
    std::vector<bool> FoldersExist(const std::vector<std::wstring_view>& paths) override;
    void CreateFolder(const std::wstring& path) override;
    std::int32_t GetAttributes(const std::wstring& path) override;
    void DeleteFile(const std::wstring& path) override;
    std::wstring ReadTextFile(const std::wstring& path) override;
    std::unique_ptr<FileBytes> ReadFileBytes(const std::wstring& path, bool onFixedDisk) override;
    std::wstring TextOfBytes(std::string_view bytes) override;
    bool OneCharacterPerByte() override;
    void WriteTextFile(const std::wstring& path, const std::wstring& text) override;

    std::wstring ApplicationFolder() override;
    bool AnotherCopyRunning() override;
    bool SurfaceRunningCopy() override;

    std::int32_t ScreenWidthTwips() override;
    std::int32_t ScreenHeightTwips() override;
    std::int32_t TwipsPerPixelX() override;
    std::int32_t TwipsPerPixelY() override;
    PixelRect WorkArea() override;

    CalendarDate Today() override;

    void StartScreenSaver() override;
    void CreateShortcut(const ShortcutDetails& shortcut) override;

    PixelPoint CursorPosition() override;
    void TrayIconAdd(const ui::Form& form, const TrayIconData& data) override;
    void TrayIconDelete(const ui::Form& form, const TrayIconData& data) override;
    void DragBySurface(const ui::Form& form) override;

    [[noreturn]] void EndProgram() override;

    qs::WindowHandle WindowFromPoint(PixelPoint point) override;
    std::uint32_t WindowProcessId(qs::WindowHandle window) override;
    bool LeftButtonDown() override;
    std::optional<std::vector<ProcessEntry>> ProcessSnapshot(std::uint32_t flags, std::uint32_t processId) override;
    std::wstring ProcessExecutablePath(std::uint32_t processId) override;

    std::vector<DriveEntry> ListDrives() override;
    FolderListing ListFolder(const std::wstring& folder) override;
    // How the system finds the window of a form: the window backend's.
    void SetWindowLookup(std::function<HWND(const ui::Form&)> lookup);

private:
    // The single-instance mutex, held from the first check to the end.
    KernelHandle runningMutex_;
    bool anotherCopy_ = false;
    std::function<HWND(const ui::Form&)> windowOf_;

    HWND WindowOf(const ui::Form& form) const;
};

}  // namespace qs::win
