#include "startup/paths.h"

namespace qs {

DataFolders DataFoldersFor(const ProgramPlace& place) {
    DataFolders f;
    const std::wstring& base = place.OnRemovable ? place.ProgramRoot : place.WindowsRoot;
    f.maker = base + L"Morvane\\";
    f.family = f.maker + L"Kinfold\\";
    f.applications = f.maker + L"Morvane Apps\\";
    f.sharedData = f.applications + L"Quillstart\\";
    // On a flash drive each computer keeps its own folder, named after it.
    f.computer = place.OnRemovable ? f.maker + place.ComputerName + L"\\" : f.applications;
    f.computerData = f.computer + L"Quillstart\\";
    return f;
}

void AssignFamilyFilePaths(ProgramPlace& place, const DataFolders& f) {
    place.FileGuru = f.family + L"Guru.Morvane";
    place.FileKinfold = f.family + L"Kinfold.Morvane";
}

void AssignSharedFilePaths(ProgramPlace& place, const DataFolders& f) {
    place.FileComData = f.sharedData + L"COMData.Morvane";
    place.FileListMail = f.sharedData + L"ListMail.Morvane";
    place.FileListWeb = f.sharedData + L"ListWeb.Morvane";
    place.FileUsbData = f.sharedData + L"USBData.Morvane";
    place.FileListUsbFile = f.sharedData + L"ListUSBFile.Morvane";
    place.FileListUsbFold = f.sharedData + L"ListUSBFold.Morvane";
    place.FileListUsbProg = f.sharedData + L"ListUSBProg.Morvane";
}

void AssignComputerFilePaths(ProgramPlace& place, const DataFolders& f) {
    place.FileSet = f.computerData + L"Set.Morvane";
    place.FileListFile = f.computerData + L"ListFile.Morvane";
    place.FileListFold = f.computerData + L"ListFold.Morvane";
    place.FileListProg = f.computerData + L"ListProg.Morvane";
}

void AssignDataFilePaths(ProgramPlace& place) {
    const DataFolders f = DataFoldersFor(place);
    AssignFamilyFilePaths(place, f);
    AssignSharedFilePaths(place, f);
    AssignComputerFilePaths(place, f);
}

}  // namespace qs
