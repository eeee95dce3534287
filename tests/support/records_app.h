#pragma once
// A test program whose record files lie in the data folder of a fixed-disk
// run, or of a flash-drive run on drive E:.
#include <chrono>
#include <filesystem>
#include <string>

#include "test_app.h"

namespace qs::test {

struct RecordsApp : TestApp {
    explicit RecordsApp(bool onRemovable = false) {
        const std::wstring drive = onRemovable ? L"E:" : L"C:";
        if (onRemovable) sys.MapDrive(L'E', DriveType::Removable);
        app.place.OnRemovable = onRemovable;
        app.ProgramFolder = drive + L"\\Tools\\";
        app.ProgramFile = drive + L"\\Tools\\Quillstart.exe";
        const std::wstring shared = drive + L"\\Morvane\\Morvane Apps\\Quillstart\\";
        const std::wstring computer = onRemovable ? drive + L"\\Morvane\\DESK1\\Quillstart\\" : shared;
        std::filesystem::create_directories(sys.HostPath(shared));
        std::filesystem::create_directories(sys.HostPath(computer));
        app.place.FileSet = computer + L"Set.Morvane";
        app.place.FileComData = shared + L"COMData.Morvane";
        app.place.FileUsbData = shared + L"USBData.Morvane";
    }

    // Makes a file look as if it was written an hour ago and returns that time.
    std::filesystem::file_time_type Age(const std::wstring& path) {
        const auto host = sys.HostPath(path);
        const auto old = std::filesystem::last_write_time(host) - std::chrono::hours(1);
        std::filesystem::last_write_time(host, old);
        return old;
    }
    std::filesystem::file_time_type Modified(const std::wstring& path) {
        return std::filesystem::last_write_time(sys.HostPath(path));
    }
};

}  // namespace qs::test
