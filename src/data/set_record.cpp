// "Set.Morvane": eleven values, the version first, then the settings of this
// computer and the computer-side list counters.
#include <array>

#include "common/application.h"
#include "common/failure.h"
#include "data/control_data.h"
#include "data/file_channel.h"
#include "data/registry_value.h"
#include "startup/active_message.h"

namespace qs {

namespace {

constexpr std::size_t LastFolderIndex = 4;

// The integer working variable of each value; value 0 (the version) and
// value 4 (the string LastFolder) have none.
constexpr std::array<std::int16_t Settings::*, SetRecordVersion + 1> IntegerValues = {
    nullptr,
    &Settings::OptionWord,
    &Settings::MainLeft,
    &Settings::MainTop,
    nullptr,
    &Settings::HDDFileLast,
    &Settings::HDDFolderLast,
    &Settings::HDDProgramLast,
    &Settings::FontSizeSetting,
    &Settings::QuickDefaultItem,
    &Settings::ThemeIndex,
};

std::size_t CheckedIndex(int index) {
    if (index < 0 || index > SetRecordVersion) throw SubscriptOutOfRange();
    return static_cast<std::size_t>(index);
}

RecordValue Working(const Settings& s, std::size_t index) {
    if (index == 0) return SetRecordVersion;
    if (index == LastFolderIndex) return s.LastFolder;
    return s.*IntegerValues[index];
}

void SetWorking(Settings& s, std::size_t index, const RecordValue& value) {
    if (index == 0) return;
    if (index == LastFolderIndex) {
        s.LastFolder = std::get<std::wstring>(value);
    } else {
        s.*IntegerValues[index] = std::get<std::int16_t>(value);
    }
}

RecordValue DefaultValue(std::size_t index, bool onRemovable) {
    constexpr std::array<std::int16_t, SetRecordVersion + 1> Integers = {
        SetRecordVersion, 57, 0, 0, 0, -1, -1, -1, 8, 2, 0};
    if (index == LastFolderIndex) return std::wstring();
    if (index == 1) return std::int16_t{onRemovable ? std::int16_t{56} : std::int16_t{57}};
    return Integers[index];
}

void ReportBug(Application& app, const wchar_t* tag) {
    app.MessageToShow = tag;
    MessageBug(app);
}

}  // namespace

void ControlDataGet(Application& app, bool& onRemovable) {
    Settings& s = app.settings;
    try {
        if (!app.sys.FileExists(app.place.FileSet)) {
            ControlDataCreateNow(app, onRemovable);
            return;
        }
        RecordReader reader(ReadDataFile(app, app.place.FileSet));
        std::int16_t version = -1;
        for (std::size_t i = 0; i <= SetRecordVersion; ++i) {
            const RecordValue value =
                i == LastFolderIndex ? RecordValue(reader.ReadString()) : RecordValue(reader.ReadInt16());
            s.SetRecord[i] = value;
            SetWorking(s, i, value);
            if (i == 0) version = std::get<std::int16_t>(value);
            if (static_cast<int>(i) == version) break;
        }
        if (version < SetRecordVersion) {
            ControlDataAddNew(app, version);
            ControlDataSave(app);
        }
        s.SetRecord[0] = SetRecordVersion;
    } catch (const std::exception&) {
        ReportBug(app, L"Quillstart:Bug:ControlDataGet");
    }
}

void ControlDataAddNew(Application& app, std::int16_t version) {
    Settings& s = app.settings;
    try {
        for (int i = version + 1; i <= SetRecordVersion; ++i) {
            const std::size_t index = CheckedIndex(i);
            const RecordValue value = DefaultValue(index, app.place.OnRemovable);
            s.SetRecord[index] = value;
            SetWorking(s, index, value);
        }
    } catch (const std::exception&) {
        ReportBug(app, L"Quillstart:Bug:ControlDataAddNew");
    }
}

void ControlDataCreateNow(Application& app, bool& onRemovable) {
    Settings& s = app.settings;
    try {
        for (std::size_t i = 1; i <= SetRecordVersion; ++i) SetWorking(s, i, DefaultValue(i, onRemovable));
        if (!onRemovable) {
            std::int16_t action = RegistryWrite;
            std::wstring key = AutostartValueName;
            RegistryValue(app, action, key, app.ProgramFile);
        }
    } catch (const std::exception&) {
        ReportBug(app, L"Quillstart:Bug:ControlDataCreateNow");
    }
}

void ControlDataSave(Application& app) {
    Settings& s = app.settings;
    try {
        bool same = true;
        for (std::size_t i = 0; i <= 3; ++i) same = same && s.SetRecord[i] == Working(s, i);
        // On a flash drive the folder is never remembered.
        if (app.place.OnRemovable) s.LastFolder.clear();
        for (std::size_t i = 4; i <= SetRecordVersion; ++i) same = same && s.SetRecord[i] == Working(s, i);
        if (same) return;

        RecordWriter writer;
        for (std::size_t i = 0; i <= SetRecordVersion; ++i) {
            const RecordValue value = Working(s, i);
            s.SetRecord[i] = value;
            if (const auto* text = std::get_if<std::wstring>(&value)) {
                writer.String(*text);
            } else {
                writer.Integer(std::get<std::int16_t>(value));
            }
            writer.EndLine();
        }
        WriteDataFile(app, app.place.FileSet, writer.Text());
    } catch (const std::exception&) {
        ReportBug(app, L"Quillstart:Bug:ControlDataSave");
    }
}

}  // namespace qs
