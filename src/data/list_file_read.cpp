#include "data/list_file_read.h"

#include <algorithm>
#include <exception>
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

// Every record of the file is kept, up to the stored last index; the
// records read before a failure are still added, and only then is the
// failure raised.
ReadRecords ReadComputerSide(RecordReader& reader, std::size_t fileLength, std::int16_t lastIndex) {
    ReadRecords records = RoomFor(lastIndex, fileLength);
    FileTexts texts(fileLength);
    try {
        for (std::int16_t i = 0; i <= lastIndex; i = NextIndex(i)) {
            ui::SharedText name = texts.Make(reader.ReadView());
            ui::SharedText target = texts.Make(reader.ReadView());
            records.names.push_back(std::move(name));
            records.targets.push_back(std::move(target));
        }
    } catch (const std::exception&) {
        records.failure = std::current_exception();
    }
    return records;
}

// A flash-side file ends early, without a word, at an empty name or target;
// targets come back with the program's drive letter.
ReadRecords ReadFlashSide(const Application& app, RecordReader& reader, std::size_t fileLength,
                          std::int16_t lastIndex) {
    ReadRecords records = RoomFor(lastIndex, fileLength);
    FileTexts texts(fileLength);
    try {
        for (std::int16_t i = 0; i <= lastIndex; i = NextIndex(i)) {
            const std::wstring_view name = reader.ReadView();
            const std::wstring_view stored = reader.ReadView();
            if (name.empty() || stored.empty()) break;
            records.names.push_back(texts.Make(name));
            records.targets.push_back(texts.Make(FromStoredFlashTarget(app, stored)));
        }
    } catch (const std::exception&) {
        records.failure = std::current_exception();
    }
    return records;
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
    const std::wstring& path = file.flashSide ? FlashSideFile(app, file.group) : ComputerSideFile(app, file.group);
    if (!app.sys.FileExists(path)) return std::nullopt;
    std::wstring text = ReadDataFile(app, path);
    const std::size_t length = text.size();
    RecordReader reader(std::move(text));
    return file.flashSide ? ReadFlashSide(app, reader, length, file.lastIndex)
                          : ReadComputerSide(reader, length, file.lastIndex);
}

std::vector<std::wstring_view> TargetViews(const std::vector<ui::SharedText>& targets) {
    std::vector<std::wstring_view> views;
    views.reserve(targets.size());
    for (const ui::SharedText& target : targets) views.push_back(target.Text());
    return views;
}

}  // namespace qs
