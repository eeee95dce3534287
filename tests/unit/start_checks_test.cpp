// The checks and decisions made before any window shows.
#include <gtest/gtest.h>

#include "shown_messages.h"
#include "startup/active_start_checks.h"
#include "test_app.h"

namespace {

using qs::DriveType;
using qs::MessageEntry;
using qs::test::ProgramEnded;

// True when the last dialog shown was the fatal one for this key.
bool EndedWith(qs::test::TestApp& t, const std::wstring& key) {
    const auto& shown = qs::test::ShownMessages(t);
    return !shown.empty() && shown.back().entry == MessageEntry::End && shown.back().key == key;
}
using qs::test::TestApp;

struct StartChecks : ::testing::Test {
    TestApp t;
    qs::ProgramPlace& place() { return t.app.place; }
};

TEST_F(StartChecks, PathRootIsThePartThroughTheFirstBackslash) {
    std::wstring path = L"E:\\Tools\\";
    EXPECT_EQ(qs::AtStartPathRoot(t.app, path), L"E:\\");
    std::wstring none = L"nothing";
    EXPECT_EQ(qs::AtStartPathRoot(t.app, none), L"");
}

TEST_F(StartChecks, RunFromADrivesRootDoesNotDoubleTheBackslash) {
    t.sys.MapDrive(L'E', DriveType::Removable);
    t.sys.applicationFolder = L"E:\\";
    t.sys.PutFile(L"E:\\Quillstart.exe");
    EXPECT_EQ(qs::AtStartProgramFile(t.app), L"E:\\");
    EXPECT_EQ(t.app.ProgramFile, L"E:\\Quillstart.exe");
    EXPECT_TRUE(qs::test::ShownMessages(t).empty());
}

TEST_F(StartChecks, RenamedProgramFileIsFatal) {
    t.sys.applicationFolder = L"C:\\Tools";
    t.sys.PutFile(L"C:\\Tools\\Other.exe");
    EXPECT_THROW(qs::AtStartProgramFile(t.app), ProgramEnded);
    EXPECT_EQ(t.app.ProgramFile, L"C:\\Tools\\Quillstart.exe");
    EXPECT_TRUE(EndedWith(t, L"MessageProgFileNameChanged"));
}

TEST_F(StartChecks, SmallScreenIsFatalButTheTestIsLenient) {
    t.sys.screenWidthTwips = 866 * 15;
    t.sys.screenHeightTwips = 640 * 15;
    EXPECT_THROW(qs::AtStartConfirmScreen(t.app), ProgramEnded);
    EXPECT_TRUE(EndedWith(t, L"MessageSmallScreen"));
    TestApp low;
    low.sys.screenWidthTwips = 867 * 15;
    low.sys.screenHeightTwips = 639 * 15;
    EXPECT_THROW(qs::AtStartConfirmScreen(low.app), ProgramEnded);
    EXPECT_TRUE(EndedWith(low, L"MessageSmallScreen"));
    TestApp wide;
    wide.sys.screenWidthTwips = 867 * 15;
    wide.sys.screenHeightTwips = 640 * 15;
    qs::AtStartConfirmScreen(wide.app);
    EXPECT_TRUE(qs::test::ShownMessages(wide).empty());
    EXPECT_EQ(wide.app.place.WorkAreaRight, 1920);
    EXPECT_EQ(wide.app.place.WorkAreaBottom, 1040);
}

TEST_F(StartChecks, WindowsFolderGetsItsBackslashAndAProgramInsideIsNoticed) {
    std::wstring inside = L"C:\\WINDOWS\\TOOLS\\";
    EXPECT_EQ(qs::AtStartSysPath(t.app, inside), L"MessageProgInSystem");
    EXPECT_EQ(t.app.WindowsFolder, L"C:\\Windows\\");
    EXPECT_EQ(place().WindowsFolderLength, 11);
    std::wstring outside = L"C:\\TOOLS\\";
    EXPECT_EQ(qs::AtStartSysPath(t.app, outside), L"");
}

TEST_F(StartChecks, DriveTypeDecidesTheFlashDriveRun) {
    t.sys.MapDrive(L'E', DriveType::Removable);
    t.sys.MapDrive(L'R', DriveType::CDRom);
    t.sys.MapDrive(L'N', DriveType::Network);
    t.sys.MapDrive(L'M', DriveType::RamDisk);
    t.sys.MapDrive(L'U', DriveType::Unknown);
    std::wstring e = L"E:\\";
    EXPECT_EQ(qs::AtStartDriveType(t.app, e), L"");
    EXPECT_TRUE(place().OnRemovable);
    std::wstring c = L"C:\\";
    EXPECT_EQ(qs::AtStartDriveType(t.app, c), L"");
    EXPECT_FALSE(place().OnRemovable);
    std::wstring r = L"R:\\";
    EXPECT_EQ(qs::AtStartDriveType(t.app, r), L"MessageMediaCDRom");
    for (std::wstring other : {L"N:\\", L"M:\\", L"U:\\"}) {
        EXPECT_EQ(qs::AtStartDriveType(t.app, other), L"MessageMediaUnknown");
    }
    EXPECT_FALSE(place().OnRemovable);
}

TEST_F(StartChecks, FailingDriveServiceMeansTheRuntimeIsMissing) {
    std::wstring missing = L"Q:\\";
    EXPECT_THROW(qs::AtStartDriveType(t.app, missing), ProgramEnded);
    EXPECT_TRUE(EndedWith(t, L"MessageNeedSriptRuntime"));
}

TEST_F(StartChecks, FixedDiskRunFromAnotherDriveKeepsDataOnTheWindowsDrive) {
    t.sys.MapDrive(L'D', DriveType::Fixed);
    place().WindowsRoot = L"C:\\";
    place().ProgramRoot = L"D:\\";
    bool onRemovable = false;
    qs::AtStartSetFileFolder(t.app, onRemovable);
    EXPECT_TRUE(t.sys.FolderExists(L"C:\\Morvane\\Kinfold"));
    EXPECT_TRUE(t.sys.FolderExists(L"C:\\Morvane\\Morvane Apps\\Quillstart"));
    EXPECT_FALSE(t.sys.FolderExists(L"D:\\Morvane"));
    EXPECT_EQ(t.app.place.FileSet, L"C:\\Morvane\\Morvane Apps\\Quillstart\\Set.Morvane");
    EXPECT_EQ(t.app.place.FileComData, L"C:\\Morvane\\Morvane Apps\\Quillstart\\COMData.Morvane");
    EXPECT_EQ(t.app.place.FileKinfold, L"C:\\Morvane\\Kinfold\\Kinfold.Morvane");
}

TEST_F(StartChecks, FlashDriveRunKeepsComputerFilesInAFolderPerComputer) {
    t.sys.MapDrive(L'E', DriveType::Removable);
    place().WindowsRoot = L"C:\\";
    place().ProgramRoot = L"E:\\";
    place().ComputerName = L"DESK1";
    bool onRemovable = true;
    qs::AtStartSetFileFolder(t.app, onRemovable);
    EXPECT_EQ(t.app.place.FileSet, L"E:\\Morvane\\DESK1\\Quillstart\\Set.Morvane");
    EXPECT_EQ(t.app.place.FileListProg, L"E:\\Morvane\\DESK1\\Quillstart\\ListProg.Morvane");
    EXPECT_EQ(t.app.place.FileListWeb, L"E:\\Morvane\\Morvane Apps\\Quillstart\\ListWeb.Morvane");
    EXPECT_EQ(t.app.place.FileListUsbProg, L"E:\\Morvane\\Morvane Apps\\Quillstart\\ListUSBProg.Morvane");
    EXPECT_FALSE(t.sys.FolderExists(L"C:\\Morvane"));
}

TEST_F(StartChecks, ExistingFoldersAreLeftAloneSilently) {
    place().WindowsRoot = L"C:\\";
    bool onRemovable = false;
    qs::AtStartSetFileFolder(t.app, onRemovable);
    qs::AtStartSetFileFolder(t.app, onRemovable);
    EXPECT_TRUE(qs::test::ShownMessages(t).empty());
}

TEST_F(StartChecks, ReadOnlyFlashDriveShowsTheBugDialogWithPathsPartlySet) {
    t.sys.MapDrive(L'E', DriveType::Removable);
    t.sys.readOnlyPrefixes = {L"E:\\"};
    place().ProgramRoot = L"E:\\";
    bool onRemovable = true;
    qs::AtStartSetFileFolder(t.app, onRemovable);
    EXPECT_TRUE(qs::test::BugShown(t, L"Quillstart:Bug:AtStartSetFileFolder"));
    EXPECT_EQ(t.app.place.FileGuru, L"");
    EXPECT_EQ(t.app.place.FileSet, L"");
}

}  // namespace
