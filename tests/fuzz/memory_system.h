#pragma once
// The operating system for the fuzz targets: files in memory, fixed answers
// for everything else, a rule deciding which launch targets exist, and a
// record of everything started, so that each input runs in microseconds
// with no disk at all.
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "common/failure.h"
#include "platform/system.h"

namespace qs::fuzz {

// Something the program asked the system to start.
struct Launch {
    enum class Kind { Open, Run, ScreenSaver } kind;
    std::wstring target;
};

class MemorySystem : public System {
public:
    std::vector<Launch> launches;
    std::map<std::wstring, std::wstring> files;
    // Whether the files are read as the Latin-1 bytes of their text.
    bool latin1 = false;
    // Whether a path that is not among `files` exists, as file or folder.
    std::function<bool(const std::wstring&)> exists = [](const std::wstring&) { return false; };

    // An opening fails (as the shell answers 2, file not found) when the
    // target's length is a multiple of 7, so the program's error paths run.
    std::int32_t ShellOpen(const std::wstring& target) override {
        launches.push_back({Launch::Kind::Open, target});
        return target.size() % 7 == 0 ? 2 : 42;
    }
    void ShellRun(const std::wstring& commandLine) override { launches.push_back({Launch::Kind::Run, commandLine}); }
    std::wstring SpecialFolder(const std::wstring& key) override { return L"C:\\Special\\" + key; }
    std::wstring WindowsDirectory() override { return L"C:\\Windows"; }
    std::wstring Environment(const std::wstring&) override { return L""; }
    void RegWrite(const std::wstring&, const std::wstring&) override {}
    std::wstring RegRead(const std::wstring&) override { throw SystemCallFailed("no such value"); }
    void RegDelete(const std::wstring&) override {}
    std::wstring GetDriveName(const std::wstring& path) override {
        return path.size() >= 2 && path[1] == L':' ? path.substr(0, 2) : L"";
    }
    DriveInfo GetDrive(const std::wstring& name) override { return {name.substr(0, 1), name, DriveType::Fixed}; }
    bool FileExists(const std::wstring& path) override { return files.count(path) > 0 || exists(path); }
    bool FolderExists(const std::wstring& path) override { return exists(path); }
    std::vector<bool> FilesExist(const std::vector<std::wstring_view>& paths) override {
        std::vector<bool> answers;
        for (std::wstring_view path : paths) answers.push_back(FileExists(std::wstring(path)));
        return answers;
    }
    std::vector<bool> FoldersExist(const std::vector<std::wstring_view>& paths) override {
        std::vector<bool> answers;
        for (std::wstring_view path : paths) answers.push_back(FolderExists(std::wstring(path)));
        return answers;
    }
    void CreateFolder(const std::wstring&) override {}
    std::int32_t GetAttributes(const std::wstring&) override { return 32; }
    void DeleteFile(const std::wstring& path) override { files.erase(path); }
    std::wstring ReadTextFile(const std::wstring& path) override {
        if (latin1) return TextOfBytes(ReadFileBytes(path, false)->View());
        const auto at = files.find(path);
        if (at == files.end()) throw SystemCallFailed("cannot open");
        return at->second;
    }
    // With `latin1` the files are Latin-1 bytes, a character above 255
    // read as '?'; without it each character is two bytes, low byte first.
    std::unique_ptr<FileBytes> ReadFileBytes(const std::wstring& path, bool) override {
        const auto at = files.find(path);
        if (at == files.end()) throw SystemCallFailed("cannot open");
        std::string bytes;
        for (const wchar_t c : at->second) {
            if (latin1) {
                bytes.push_back(c <= 0xFF ? static_cast<char>(c) : '?');
            } else {
                bytes.push_back(static_cast<char>(c & 0xFF));
                bytes.push_back(static_cast<char>((c >> 8) & 0xFF));
            }
        }
        return std::make_unique<ReadBytes>(std::move(bytes));
    }
    std::wstring TextOfBytes(std::string_view bytes) override {
        std::wstring text;
        const std::size_t step = latin1 ? 1 : 2;
        for (std::size_t i = 0; i + step <= bytes.size(); i += step) {
            const auto low = static_cast<unsigned char>(bytes[i]);
            text.push_back(latin1 ? low : static_cast<wchar_t>(low | static_cast<unsigned char>(bytes[i + 1]) << 8));
        }
        return text;
    }
    bool OneCharacterPerByte() override { return latin1; }
    void WriteTextFile(const std::wstring& path, const std::wstring& text) override { files[path] = text; }
    std::wstring ApplicationFolder() override { return L"C:\\Tools\\"; }
    bool AnotherCopyRunning() override { return false; }
    bool SurfaceRunningCopy() override { return false; }
    std::int32_t ScreenWidthTwips() override { return 1920 * 15; }
    std::int32_t ScreenHeightTwips() override { return 1080 * 15; }
    std::int32_t TwipsPerPixelX() override { return 15; }
    std::int32_t TwipsPerPixelY() override { return 15; }
    PixelRect WorkArea() override { return {0, 0, 1920, 1040}; }
    CalendarDate Today() override { return {2026, 11, 15}; }
    void StartScreenSaver() override { launches.push_back({Launch::Kind::ScreenSaver, L""}); }
    void CreateShortcut(const ShortcutDetails&) override {}
    PixelPoint CursorPosition() override { return {-1, -1}; }
    void TrayIconAdd(const ui::Form&, const TrayIconData&) override {}
    void TrayIconDelete(const ui::Form&, const TrayIconData&) override {}
    void DragBySurface(const ui::Form&) override {}
    [[noreturn]] void EndProgram() override { __builtin_trap(); }
    // The readers never browse the disk.
    std::vector<DriveEntry> ListDrives() override { throw SystemCallFailed("not available"); }
    FolderListing ListFolder(const std::wstring&) override { throw SystemCallFailed("not available"); }
};

// Input bytes as the 8-bit code page gives them.
inline std::wstring FromBytes(const std::uint8_t* data, std::size_t size) { return std::wstring(data, data + size); }

// A check that must hold for every input.
inline void Require(bool condition) {
    if (!condition) __builtin_trap();
}

}  // namespace qs::fuzz
