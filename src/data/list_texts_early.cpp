#include "data/list_texts_early.h"

#include <exception>
#include <system_error>

#include "common/startup_marks.h"
#include "platform/system.h"
#include "startup/paths.h"

namespace qs {

namespace {

std::wstring EndingInBackslash(std::wstring folder) {
    if (folder.empty() || folder.back() != L'\\') folder += L'\\';
    return folder;
}

// The leading part through the first backslash, as "C:\".
std::wstring RootOf(const std::wstring& path) {
    const std::size_t slash = path.find(L'\\');
    return slash == std::wstring::npos ? std::wstring() : path.substr(0, slash + 1);
}

}  // namespace

EarlyListTexts::EarlyListTexts(System& sys) : sys_(sys) {
    try {
        thread_ = std::thread([this] { Run(); });
    } catch (const std::system_error&) {
        // No thread to be had: nothing is read early, and the load reads.
        const std::lock_guard<std::mutex> lock(mutex_);
        pathsKnown_ = true;
    }
}

EarlyListTexts::~EarlyListTexts() {
    {
        const std::lock_guard<std::mutex> lock(mutex_);
        stopping_ = true;
    }
    if (thread_.joinable()) thread_.join();
}

std::vector<std::wstring> EarlyListTexts::FindPaths() {
    ProgramPlace place;
    try {
        place.ProgramRoot = RootOf(EndingInBackslash(sys_.ApplicationFolder()));
        place.WindowsRoot = RootOf(EndingInBackslash(sys_.WindowsDirectory()));
        place.ComputerName = sys_.Environment(L"computername");
        const std::wstring drive = sys_.GetDriveName(place.ProgramRoot);
        place.OnRemovable = !drive.empty() && sys_.GetDrive(drive).type == DriveType::Removable;
    } catch (const std::exception&) {
        // Start-up will ask again and report what it must; nothing is read.
        return {};
    }
    AssignDataFilePaths(place);
    std::vector<std::wstring> paths = {place.FileListFile, place.FileListFold, place.FileListProg,
                                       place.FileListMail, place.FileListWeb};
    if (place.OnRemovable) {
        paths.insert(paths.end(), {place.FileListUsbFile, place.FileListUsbFold, place.FileListUsbProg});
    }
    return paths;
}

void EarlyListTexts::Run() {
    std::vector<std::wstring> paths = FindPaths();
    {
        const std::lock_guard<std::mutex> lock(mutex_);
        for (std::wstring& path : paths) files_.push_back({std::move(path), State::Waiting, std::nullopt});
        pathsKnown_ = true;
    }
    changed_.notify_all();
    while (File* file = ClaimNext()) {
        std::optional<std::wstring> text;
        try {
            if (sys_.FileExists(file->path)) text = sys_.ReadTextFile(file->path);
        } catch (const std::exception&) {
            // The load reads the file itself and meets the failure there.
        }
        {
            const std::lock_guard<std::mutex> lock(mutex_);
            file->text = std::move(text);
            file->state = State::Read;
        }
        changed_.notify_all();
    }
    marks::Mark("list texts read early");
}

EarlyListTexts::File* EarlyListTexts::ClaimNext() {
    const std::lock_guard<std::mutex> lock(mutex_);
    if (stopping_) return nullptr;
    for (File& file : files_) {
        if (file.state != State::Waiting) continue;
        file.state = State::Reading;
        return &file;
    }
    return nullptr;
}

std::optional<std::wstring> EarlyListTexts::Take(const std::wstring& path) {
    std::unique_lock<std::mutex> lock(mutex_);
    changed_.wait(lock, [this] { return pathsKnown_; });
    for (File& file : files_) {
        if (file.path != path) continue;
        if (file.state == State::Waiting) {
            file.state = State::Skipped;
            return std::nullopt;
        }
        changed_.wait(lock, [&file] { return file.state != State::Reading; });
        std::optional<std::wstring> text = std::move(file.text);
        file.text.reset();
        return text;
    }
    return std::nullopt;
}

std::vector<std::wstring> EarlyListTexts::Paths() {
    std::unique_lock<std::mutex> lock(mutex_);
    changed_.wait(lock, [this] { return pathsKnown_; });
    std::vector<std::wstring> paths;
    for (const File& file : files_) paths.push_back(file.path);
    return paths;
}

}  // namespace qs
