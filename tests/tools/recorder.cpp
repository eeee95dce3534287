// Stands in for a browser, mail program or editor during end-to-end runs:
// appends its own command line, as one UTF-8 line, to a log file and exits.
// The log is named by the environment variable QS_RECORD_LOG, or else
// C:\rec\launches.log.
#include <windows.h>

#include <iterator>
#include <string>

#include "unique_handle.h"
#include "utf8.h"

namespace {

std::wstring LogPath() {
    wchar_t buffer[MAX_PATH * 2];
    const DWORD n = GetEnvironmentVariableW(L"QS_RECORD_LOG", buffer, static_cast<DWORD>(std::size(buffer)));
    if (n > 0 && n < std::size(buffer)) return std::wstring(buffer, n);
    return L"C:\\rec\\launches.log";
}

// Another recorder may be writing at the same moment: retry while the file is
// locked so that no launch goes unrecorded.
qs::tools::UniqueHandle OpenForAppend(const std::wstring& path) {
    for (int attempt = 0; attempt < 200; ++attempt) {
        qs::tools::UniqueHandle file(CreateFileW(path.c_str(), FILE_APPEND_DATA, FILE_SHARE_READ, nullptr,
                                                 OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
        if (file.Valid()) return file;
        Sleep(10);
    }
    return qs::tools::UniqueHandle();
}

}  // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
    std::string line = qs::tools::ToUtf8(GetCommandLineW());
    for (char& c : line) {
        if (c == '\r' || c == '\n') c = ' ';
    }
    line += "\n";
    const qs::tools::UniqueHandle file = OpenForAppend(LogPath());
    if (!file.Valid()) return 1;
    DWORD written = 0;
    const BOOL ok = WriteFile(file.Get(), line.data(), static_cast<DWORD>(line.size()), &written, nullptr);
    return ok && written == line.size() ? 0 : 1;
}
