// "COMData.Morvane" and "USBData.Morvane": a version and the list counters,
// one 16-bit integer a line.
#include <array>
#include <vector>

#include "common/application.h"
#include "common/failure.h"
#include "data/control_data.h"
#include "data/file_channel.h"
#include "startup/active_message.h"

namespace qs {

namespace {

// The reading loop of COMData runs to this limit; only the version ends it
// earlier, so a higher version overruns the image first.
constexpr std::size_t ComDataReadLimit = 10;

// One integer record: its image, the working variables of values 1 and up,
// its version and its file.
struct CounterRecord {
    std::int16_t* image;
    std::size_t imageSize;
    std::vector<std::int16_t*> counters;
    std::int16_t version;
    const std::wstring& file;

    std::int16_t& ImageAt(std::size_t index) const {
        if (index >= imageSize) throw SubscriptOutOfRange();
        return image[index];
    }
    // The working value of a position: the version for value 0.
    std::int16_t Working(std::size_t index) const { return index == 0 ? version : *counters[index - 1]; }
};

CounterRecord ComData(Application& app) {
    Settings& s = app.settings;
    return {s.ComDataRecord.data(), s.ComDataRecord.size(), {&s.EmailLast, &s.WebLast}, ComDataVersion, app.place.FileComData};
}

CounterRecord USBData(Application& app) {
    Settings& s = app.settings;
    return {s.USBDataRecord.data(),
            s.USBDataRecord.size(),
            {&s.USBFileLast, &s.USBFolderLast, &s.USBProgramLast},
            USBDataVersion,
            app.place.FileUsbData};
}

void ReportBug(Application& app, const wchar_t* tag) {
    app.MessageToShow = tag;
    MessageBug(app);
}

// Reads values 0 to the limit into the image and the counters, stopping
// when the index equals the version read. Returns the version.
std::int16_t ReadCounters(Application& app, const CounterRecord& record, std::size_t limit) {
    RecordReader reader(ReadDataFile(app, record.file));
    std::int16_t version = -1;
    for (std::size_t i = 0; i <= limit; ++i) {
        std::int16_t& slot = record.ImageAt(i);
        slot = reader.ReadInt16();
        if (i == 0) {
            version = slot;
        } else {
            *record.counters[i - 1] = slot;
        }
        if (static_cast<int>(i) == version) break;
    }
    return version;
}

// Completes a short image from the counters as they stand; a counter the
// file did not hold keeps its value in memory.
void AddNewCounters(const CounterRecord& record, std::int16_t version) {
    for (int i = version + 1; i <= record.version; ++i) {
        if (i < 0) throw SubscriptOutOfRange();
        record.ImageAt(static_cast<std::size_t>(i)) = record.Working(static_cast<std::size_t>(i));
    }
    record.ImageAt(0) = record.version;
}

void SaveCounters(Application& app, const CounterRecord& record) {
    bool same = true;
    for (std::size_t i = 0; i <= static_cast<std::size_t>(record.version); ++i)
        same = same && record.ImageAt(i) == record.Working(i);
    if (same) return;
    RecordWriter writer;
    for (std::size_t i = 0; i <= static_cast<std::size_t>(record.version); ++i) {
        record.ImageAt(i) = record.Working(i);
        writer.Integer(record.ImageAt(i)).EndLine();
    }
    WriteDataFile(app, record.file, writer.Text());
}

}  // namespace

void ControlComDataGet(Application& app) {
    Settings& s = app.settings;
    try {
        if (!app.sys.FileExists(app.place.FileComData)) {
            s.EmailLast = -1;
            s.WebLast = -1;
            return;
        }
        const std::int16_t version = ReadCounters(app, ComData(app), ComDataReadLimit);
        if (version < ComDataVersion) ControlComDataAddNew(app, version);
    } catch (const std::exception&) {
        ReportBug(app, L"Quillstart:Bug:ControlComDataGet");
    }
}

void ControlComDataAddNew(Application& app, std::int16_t version) {
    try {
        AddNewCounters(ComData(app), version);
    } catch (const std::exception&) {
        ReportBug(app, L"Quillstart:Bug:ControlComDataAddNew");
    }
}

void ControlComDataSave(Application& app) {
    try {
        SaveCounters(app, ComData(app));
    } catch (const std::exception&) {
        ReportBug(app, L"Quillstart:Bug:ControlComDataSave");
    }
}

void ControlUSBDataGet(Application& app) {
    Settings& s = app.settings;
    try {
        if (!app.sys.FileExists(app.place.FileUsbData)) {
            s.USBFileLast = -1;
            s.USBFolderLast = -1;
            s.USBProgramLast = -1;
            return;
        }
        const std::int16_t version = ReadCounters(app, USBData(app), USBDataVersion);
        if (version < USBDataVersion) ControlUSBDataAddNew(app, version);
    } catch (const std::exception&) {
        ReportBug(app, L"Quillstart:Bug:ControlUSBDataGet");
    }
}

void ControlUSBDataAddNew(Application& app, std::int16_t version) {
    try {
        AddNewCounters(USBData(app), version);
    } catch (const std::exception&) {
        ReportBug(app, L"Quillstart:Bug:ControlUSBDataAddNew");
    }
}

void ControlUSBDataSave(Application& app) {
    try {
        SaveCounters(app, USBData(app));
    } catch (const std::exception&) {
        ReportBug(app, L"Quillstart:Bug:ControlUSBDataSave");
    }
}

}  // namespace qs
