#include "fake_system.h"

#include <algorithm>
#include <fstream>
#include <random>
#include <sstream>

#include "common/failure.h"
#include "common/text_case.h"

namespace qs::test {

namespace fs = std::filesystem;

namespace {

std::string ToLatin1(const std::wstring& text) {
    std::string out;
    out.reserve(text.size());
    for (wchar_t c : text) out.push_back(c <= 0xFF ? static_cast<char>(c) : '?');
    return out;
}

std::wstring FromLatin1(std::string_view bytes) {
    std::wstring out;
    out.reserve(bytes.size());
    for (char c : bytes) out.push_back(static_cast<wchar_t>(static_cast<unsigned char>(c)));
    return out;
}

bool StartsWith(const std::wstring& text, const std::wstring& prefix) {
    return text.size() >= prefix.size() && LCase(text.substr(0, prefix.size())) == LCase(prefix);
}

}  // namespace

FakeSystem::FakeSystem() {
    std::random_device rd;
    root_ = fs::temp_directory_path() / ("quillstart-test-" + std::to_string(rd()) + std::to_string(rd()));
    fs::create_directories(root_);
    MapDrive(L'C', DriveType::Fixed);
    specialFolders = {{L"Desktop", L"C:\\Users\\ann\\Desktop"},
                      {L"Favorites", L"C:\\Users\\ann\\Favorites"},
                      {L"Fonts", L"C:\\Windows\\Fonts"},
                      {L"MyDocuments", L"C:\\Users\\ann\\Documents"},
                      {L"Programs", L"C:\\Users\\ann\\Start Menu\\Programs"},
                      {L"Recent", L"C:\\Users\\ann\\Recent"},
                      {L"SendTo", L"C:\\Users\\ann\\SendTo"},
                      {L"StartMenu", L"C:\\Users\\ann\\Start Menu"},
                      {L"Startup", L"C:\\Users\\ann\\Start Menu\\Programs\\Startup"}};
    environment = {{L"username", L"ann"}, {L"computername", L"DESK1"}};
    PutFile(L"C:\\Windows\\explorer.exe");
    fs::create_directories(HostPath(L"C:\\Users\\ann\\Desktop"));
}

FakeSystem::~FakeSystem() {
    std::error_code ignored;
    fs::remove_all(root_, ignored);
}

fs::path FakeSystem::MapDrive(wchar_t letter, DriveType type) {
    const wchar_t upper = UpperChar(letter);
    fs::path folder = root_ / std::string(1, static_cast<char>(upper));
    fs::create_directories(folder);
    driveTypes[upper] = type;
    return folder;
}

fs::path FakeSystem::HostPath(const std::wstring& windowsPath) const {
    if (windowsPath.size() < 2 || windowsPath[1] != L':') throw SystemCallFailed("not a drive path");
    const wchar_t letter = UpperChar(windowsPath[0]);
    if (driveTypes.find(letter) == driveTypes.end()) throw SystemCallFailed("no such drive");
    fs::path result = root_ / std::string(1, static_cast<char>(letter));
    std::wstring rest = windowsPath.substr(2);
    std::wstring part;
    for (wchar_t c : rest + L"\\") {
        if (c == L'\\' || c == L'/') {
            if (!part.empty()) result /= fs::path(part);
            part.clear();
        } else {
            part.push_back(c);
        }
    }
    return result;
}

void FakeSystem::PutFile(const std::wstring& windowsPath, const std::string& bytes) {
    const fs::path host = HostPath(windowsPath);
    fs::create_directories(host.parent_path());
    std::ofstream(host, std::ios::binary) << bytes;
}

std::string FakeSystem::FileBytes(const std::wstring& windowsPath) const {
    std::ifstream in(HostPath(windowsPath), std::ios::binary);
    std::ostringstream out;
    out << in.rdbuf();
    return out.str();
}

std::int32_t FakeSystem::ShellOpen(const std::wstring& target) {
    if (shellThrows) throw SystemCallFailed("shell");
    launches.push_back({Launch::Kind::Open, target});
    if (onLaunch) onLaunch(launches.back());
    if (shellOpenResult != 0) return shellOpenResult;
    if (StartsWith(target, L"http://") || StartsWith(target, L"https://") || StartsWith(target, L"mailto:")) return 42;
    try {
        return fs::exists(HostPath(target)) ? 42 : 2;
    } catch (const SystemCallFailed&) {
        return 2;
    }
}

void FakeSystem::ShellRun(const std::wstring& commandLine) {
    if (shellThrows) throw SystemCallFailed("shell");
    const std::wstring program = commandLine.substr(0, commandLine.find(L' '));
    // A program named by full path must exist; a bare name is found on the path.
    if (program.size() > 1 && program[1] == L':' && !FileExists(program)) throw SystemCallFailed("cannot start");
    launches.push_back({Launch::Kind::Run, commandLine});
    if (onLaunch) onLaunch(launches.back());
}

std::wstring FakeSystem::SpecialFolder(const std::wstring& key) {
    if (shellThrows) throw SystemCallFailed("shell");
    const auto at = specialFolders.find(key);
    return at == specialFolders.end() ? L"" : at->second;
}

std::wstring FakeSystem::Environment(const std::wstring& name) {
    const auto at = environment.find(LCase(name));
    return at == environment.end() ? L"" : at->second;
}

void FakeSystem::RegWrite(const std::wstring& key, const std::wstring& value) { registry[key] = value; }

std::wstring FakeSystem::RegRead(const std::wstring& key) {
    const auto at = registry.find(key);
    if (at == registry.end()) throw SystemCallFailed("no such value");
    return at->second;
}

void FakeSystem::RegDelete(const std::wstring& key) {
    if (registry.erase(key) == 0) throw SystemCallFailed("no such value");
}

std::wstring FakeSystem::GetDriveName(const std::wstring& path) {
    if (path.size() >= 2 && path[1] == L':') return path.substr(0, 2);
    return L"";
}

DriveInfo FakeSystem::GetDrive(const std::wstring& driveName) {
    ++drivesAsked;
    if (driveName.size() < 2 || driveName[1] != L':') throw SystemCallFailed("bad drive name");
    const wchar_t letter = UpperChar(driveName[0]);
    const auto at = driveTypes.find(letter);
    if (at == driveTypes.end()) throw SystemCallFailed("no such drive");
    return {std::wstring(1, letter), std::wstring(1, letter) + L":", at->second};
}

std::vector<DriveEntry> FakeSystem::ListDrives() {
    std::vector<DriveEntry> drives;
    for (const auto& [letter, type] : driveTypes) {
        DriveEntry drive;
        drive.letter = letter;
        drive.type = type;
        drive.ready = std::find(notReady.begin(), notReady.end(), letter) == notReady.end();
        if (drive.ready && volumeNames.count(letter) > 0) drive.volumeName = volumeNames.at(letter);
        drives.push_back(drive);
    }
    return drives;
}

FolderListing FakeSystem::ListFolder(const std::wstring& folder) {
    if (folder.empty() || std::find(notReady.begin(), notReady.end(), UpperChar(folder[0])) != notReady.end()) {
        throw SystemCallFailed("drive not ready");
    }
    const fs::path host = HostPath(folder);
    if (!fs::is_directory(host)) throw SystemCallFailed("no such folder");
    const std::wstring slash = folder.back() == L'\\' ? folder : folder + L"\\";
    FolderListing listing;
    for (const auto& entry : fs::directory_iterator(host)) {
        FolderEntry item;
        item.name = FromLatin1(entry.path().filename().string());
        const auto at = attributes.find(LCase(slash + item.name));
        item.attributes = at != attributes.end() ? at->second : (entry.is_directory() ? 16 : 32);
        (entry.is_directory() ? listing.folders : listing.files).push_back(item);
    }
    return listing;
}

bool FakeSystem::FileExists(const std::wstring& path) {
    try {
        return fs::is_regular_file(HostPath(path));
    } catch (const SystemCallFailed&) {
        return false;
    }
}

bool FakeSystem::FolderExists(const std::wstring& path) {
    try {
        return fs::is_directory(HostPath(path));
    } catch (const SystemCallFailed&) {
        return false;
    }
}

void FakeSystem::CreateFolder(const std::wstring& path) {
    for (const auto& prefix : readOnlyPrefixes)
        if (StartsWith(path, prefix)) throw SystemCallFailed("read-only");
    const fs::path host = HostPath(path);
    if (fs::exists(host)) throw SystemCallFailed("exists");
    if (!fs::is_directory(host.parent_path())) throw SystemCallFailed("no parent");
    fs::create_directory(host);
}

std::int32_t FakeSystem::GetAttributes(const std::wstring& path) {
    const auto at = attributes.find(LCase(path));
    if (at != attributes.end()) return at->second;
    const fs::path host = HostPath(path);
    if (fs::is_directory(host)) return 16;
    if (fs::is_regular_file(host)) return 32;
    throw SystemCallFailed("no such item");
}

void FakeSystem::DeleteFile(const std::wstring& path) {
    if (!fs::is_regular_file(HostPath(path))) throw SystemCallFailed("no such file");
    fs::remove(HostPath(path));
}

std::wstring FakeSystem::ReadTextFile(const std::wstring& path) { return TextOfBytes(ReadFileBytes(path, false)->View()); }

std::unique_ptr<FileBytes> FakeSystem::ReadFileBytes(const std::wstring& path, bool) {
    const fs::path host = HostPath(path);
    if (!fs::is_regular_file(host)) throw SystemCallFailed("cannot open");
    std::ifstream in(host, std::ios::binary);
    std::ostringstream bytes;
    bytes << in.rdbuf();
    return std::make_unique<ReadBytes>(bytes.str());
}

std::wstring FakeSystem::TextOfBytes(std::string_view bytes) { return FromLatin1(bytes); }

void FakeSystem::WriteTextFile(const std::wstring& path, const std::wstring& text) {
    for (const auto& prefix : readOnlyPrefixes)
        if (StartsWith(path, prefix)) throw SystemCallFailed("read-only");
    const fs::path host = HostPath(path);
    std::ofstream out(host, std::ios::binary | std::ios::trunc);
    if (!out) throw SystemCallFailed("cannot write");
    const std::string bytes = ToLatin1(text);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (!out) throw SystemCallFailed("cannot write");
}

void FakeSystem::CreateShortcut(const ShortcutDetails& shortcut) {
    if (shellThrows) throw SystemCallFailed("shell");
    PutFile(shortcut.linkPath, "lnk");
    shortcuts.push_back(shortcut);
}

}  // namespace qs::test
