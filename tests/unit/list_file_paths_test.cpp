#include <gtest/gtest.h>

#include "startup/paths.h"

namespace {

TEST(ListFilePaths, FixedDiskRunKeepsEveryFileInOneFolderOnTheWindowsDrive) {
    qs::ProgramPlace p;
    p.OnRemovable = false;
    p.WindowsRoot = L"C:\\";
    p.ProgramRoot = L"D:\\";
    p.ComputerName = L"DESK1";
    qs::AssignDataFilePaths(p);
    const std::wstring shared = L"C:\\Morvane\\Morvane Apps\\Quillstart\\";
    EXPECT_EQ(p.FileListFile, shared + L"ListFile.Morvane");
    EXPECT_EQ(p.FileListFold, shared + L"ListFold.Morvane");
    EXPECT_EQ(p.FileListProg, shared + L"ListProg.Morvane");
    EXPECT_EQ(p.FileListMail, shared + L"ListMail.Morvane");
    EXPECT_EQ(p.FileListWeb, shared + L"ListWeb.Morvane");
    EXPECT_EQ(p.FileListUsbFile, shared + L"ListUSBFile.Morvane");
    EXPECT_EQ(p.FileListUsbFold, shared + L"ListUSBFold.Morvane");
    EXPECT_EQ(p.FileListUsbProg, shared + L"ListUSBProg.Morvane");
    EXPECT_EQ(p.FileSet, shared + L"Set.Morvane");
    EXPECT_EQ(p.FileComData, shared + L"COMData.Morvane");
    EXPECT_EQ(p.FileUsbData, shared + L"USBData.Morvane");
    EXPECT_EQ(p.FileKinfold, L"C:\\Morvane\\Kinfold\\Kinfold.Morvane");
    EXPECT_EQ(p.FileGuru, L"C:\\Morvane\\Kinfold\\Guru.Morvane");
}

TEST(ListFilePaths, FlashRunKeepsComputerSideListsInAFolderNamedAfterTheComputer) {
    qs::ProgramPlace p;
    p.OnRemovable = true;
    p.WindowsRoot = L"C:\\";
    p.ProgramRoot = L"E:\\";
    p.ComputerName = L"DESK1";
    qs::AssignDataFilePaths(p);
    const std::wstring shared = L"E:\\Morvane\\Morvane Apps\\Quillstart\\";
    const std::wstring computer = L"E:\\Morvane\\DESK1\\Quillstart\\";
    EXPECT_EQ(p.FileListFile, computer + L"ListFile.Morvane");
    EXPECT_EQ(p.FileListFold, computer + L"ListFold.Morvane");
    EXPECT_EQ(p.FileListProg, computer + L"ListProg.Morvane");
    EXPECT_EQ(p.FileSet, computer + L"Set.Morvane");
    EXPECT_EQ(p.FileListMail, shared + L"ListMail.Morvane");
    EXPECT_EQ(p.FileListWeb, shared + L"ListWeb.Morvane");
    EXPECT_EQ(p.FileListUsbProg, shared + L"ListUSBProg.Morvane");
    EXPECT_EQ(p.FileComData, shared + L"COMData.Morvane");
    EXPECT_EQ(p.FileKinfold, L"E:\\Morvane\\Kinfold\\Kinfold.Morvane");
    const qs::DataFolders f = qs::DataFoldersFor(p);
    EXPECT_EQ(f.computer, L"E:\\Morvane\\DESK1\\");
    EXPECT_EQ(f.computerData, computer);
}

}  // namespace
