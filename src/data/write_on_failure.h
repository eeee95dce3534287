#pragma once
// A file is emptied when it is opened for writing. When a failure stops the
// writing part-way, the records written before it stay in the file: this
// writes them, as closing the file in the failure handler would.
#include <string>

#include "data/file_channel.h"

namespace qs {

inline void KeepWhatWasWritten(Application& app, const std::wstring& file, const RecordWriter& writer) {
    try {
        WriteDataFile(app, file, writer.Text());
    } catch (const std::exception&) {
        // The file could not be written at all; the bug report follows anyway.
    }
}

}  // namespace qs
