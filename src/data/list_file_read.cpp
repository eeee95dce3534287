#include "data/list_file_read.h"

#include <algorithm>
#include <exception>
#include <map>
#include <string>

#include "common/application.h"
#include "data/file_channel.h"
#include "data/list_files.h"

namespace qs {

namespace {

// Where a file's texts are made: carved from shared blocks when the file is
// large enough to fill a good part of one, else each with an allocation of
// its own, so that a short list does not hold a whole block.
class FileTexts {
public:
    explicit FileTexts(std::size_t fileLength) {
        if (fileLength * sizeof(wchar_t) >= ui::TextBlocks::kBlockBytes / 4) blocks_.emplace();
    }

    ui::SharedText Make(std::wstring_view text) {
        return blocks_ ? ui::SharedText(*blocks_, text) : ui::SharedText(text);
    }

private:
    std::optional<ui::TextBlocks> blocks_;
};

// Room for the records up to the stored last index, or as many as the file
// can hold when that is fewer: every value read takes at least one of its
// characters, so a record takes two. An index below -1 asks for more room
// than there is, and fails the reading (std::length_error) as it always has.
ReadRecords RoomFor(std::int16_t lastIndex, std::size_t fileLength) {
    ReadRecords records;
    const std::size_t asked = static_cast<std::size_t>(lastIndex) + 1;
    const std::size_t count = lastIndex < 0 ? asked : std::min(asked, fileLength / 2 + 1);
    records.names.reserve(count);
    records.targets.reserve(count);
    return records;
}

// The values of a file's text, or of its bytes, read in place as
// RecordReader reads them.
template <typename Char>
class Values {
public:
    explicit Values(std::basic_string_view<Char> text) : text_(text) {}
    std::basic_string_view<Char> ReadView() { return NextValue<Char>(text_, at_); }

private:
    std::basic_string_view<Char> text_;
    std::size_t at_ = 0;
};

// Walks a computer-side file's records up to the stored last index, giving
// each name and target to `keep`; returns the failure that ended the walk
// early, if any. The records kept before a failure stay kept.
template <typename Reader, typename Keep>
std::exception_ptr WalkComputerSide(Reader& reader, std::int16_t lastIndex, Keep keep) {
    try {
        for (std::int16_t i = 0; i <= lastIndex; i = NextIndex(i)) {
            const auto name = reader.ReadView();
            const auto target = reader.ReadView();
            keep(name, target);
        }
    } catch (const std::exception&) {
        return std::current_exception();
    }
    return nullptr;
}

// The same for a flash-side file, which ends early, without a word, at an
// empty name or target.
template <typename Reader, typename Keep>
std::exception_ptr WalkFlashSide(Reader& reader, std::int16_t lastIndex, Keep keep) {
    try {
        for (std::int16_t i = 0; i <= lastIndex; i = NextIndex(i)) {
            const auto name = reader.ReadView();
            const auto stored = reader.ReadView();
            if (name.empty() || stored.empty()) break;
            keep(name, stored);
        }
    } catch (const std::exception&) {
        return std::current_exception();
    }
    return nullptr;
}

template <typename Reader, typename Keep>
std::exception_ptr Walk(Reader& reader, const ListFileOfLoad& file, Keep keep) {
    return file.flashSide ? WalkFlashSide(reader, file.lastIndex, keep)
                          : WalkComputerSide(reader, file.lastIndex, keep);
}

// Every record of the file is kept, up to the stored last index; the
// records read before a failure are still added, and only then is the
// failure raised. Flash-side targets come back with the program's drive
// letter.
ReadRecords Records(const Application& app, RecordReader& reader, const ListFileOfLoad& file) {
    ReadRecords records = RoomFor(file.lastIndex, reader.Length());
    FileTexts texts(reader.Length());
    records.failure = Walk(reader, file, [&](std::wstring_view name, std::wstring_view target) {
        ui::SharedText keptName = texts.Make(name);
        ui::SharedText keptTarget = texts.Make(file.flashSide ? FromStoredFlashTarget(app, target) : target);
        records.names.push_back(std::move(keptName));
        records.targets.push_back(std::move(keptTarget));
    });
    return records;
}

const std::wstring& ListFilePath(const Application& app, const ListFileOfLoad& file) {
    return file.flashSide ? FlashSideFile(app, file.group) : ComputerSideFile(app, file.group);
}

std::optional<RecordReader> ReadText(const Application& app, const ListFileOfLoad& file) {
    const std::wstring& path = ListFilePath(app, file);
    if (!app.sys.FileExists(path)) return std::nullopt;
    return RecordReader(ReadDataFile(app, path));
}

}  // namespace

std::vector<ListFileOfLoad> ListFilesOfLoad(const Application& app) {
    const Settings& c = app.settings;
    std::vector<ListFileOfLoad> files;
    const auto add = [&files](std::int16_t group, std::int16_t lastIndex, bool flashSide) {
        if (lastIndex > -1) files.push_back({group, lastIndex, flashSide});
    };
    add(0, c.HDDFileLast, false);
    add(1, c.HDDFolderLast, false);
    add(2, c.HDDProgramLast, false);
    add(3, c.EmailLast, false);
    add(4, c.WebLast, false);
    // The flash side comes last: it merges into lists the computer side filled.
    if (app.place.OnRemovable) {
        add(0, c.USBFileLast, true);
        add(1, c.USBFolderLast, true);
        add(2, c.USBProgramLast, true);
    }
    return files;
}

std::optional<ReadRecords> ReadListFile(const Application& app, const ListFileOfLoad& file) {
    std::optional<RecordReader> reader = ReadText(app, file);
    if (!reader) return std::nullopt;
    return Records(app, *reader, file);
}

std::vector<bool> ListFilesOnFixedDisk(const Application& app, const std::vector<ListFileOfLoad>& files) {
    // Under Wine the type of a drive takes about half a millisecond to ask,
    // and the files of a load lie on one drive or two.
    std::map<std::wstring, bool> drives;
    const auto fixed = [&app](const std::wstring& name) {
        if (name.empty()) return false;
        if (name == app.place.ProgramDriveName) return app.place.ProgramDrive.type == DriveType::Fixed;
        try {
            return app.sys.GetDrive(name).type == DriveType::Fixed;
        } catch (const std::exception&) {
            return false;
        }
    };
    std::vector<bool> onFixedDisk;
    onFixedDisk.reserve(files.size());
    for (const ListFileOfLoad& file : files) {
        const std::wstring name = app.sys.GetDriveName(ListFilePath(app, file));
        auto at = drives.find(name);
        if (at == drives.end()) at = drives.emplace(name, fixed(name)).first;
        onFixedDisk.push_back(at->second);
    }
    return onFixedDisk;
}

std::optional<WalkedListFile> WalkListFile(const Application& app, const ListFileOfLoad& file, bool onFixedDisk) {
    const std::wstring& path = ListFilePath(app, file);
    if (!app.sys.FileExists(path)) return std::nullopt;
    WalkedListFile walked;
    walked.bytes = app.sys.ReadFileBytes(path, onFixedDisk);
    const auto nothing = [](auto, auto) {};
    if (app.sys.OneCharacterPerByte()) {
        // The values lie where they lie in the text: no text is made yet.
        Values<char> values(walked.bytes->View());
        walked.failure = Walk(values, file, nothing);
    } else {
        walked.text = app.sys.TextOfBytes(walked.bytes->View());
        walked.bytes.reset();
        Values<wchar_t> values(walked.text);
        walked.failure = Walk(values, file, nothing);
    }
    return walked;
}

ReadRecords MakeRecords(const Application& app, const ListFileOfLoad& file, WalkedListFile& walked) {
    RecordReader reader(walked.bytes ? app.sys.TextOfBytes(walked.bytes->View()) : std::move(walked.text));
    walked.bytes.reset();
    walked.text = std::wstring();
    return Records(app, reader, file);
}

std::vector<std::wstring_view> TargetViews(const std::vector<ui::SharedText>& targets) {
    std::vector<std::wstring_view> views;
    views.reserve(targets.size());
    for (const ui::SharedText& target : targets) views.push_back(target.Text());
    return views;
}

}  // namespace qs
