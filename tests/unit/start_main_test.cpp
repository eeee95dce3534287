// The whole start-up and the save at exit, run after run over one disk.
#include <gtest/gtest.h>

#include <filesystem>
#include <memory>

#include "common/application.h"
#include "data/registry_value.h"
#include "dialog_backend.h"
#include "fake_system.h"
#include "startup/active_start.h"

namespace {

using qs::DriveType;
using qs::MessageEntry;
using qs::test::DialogBackend;
using qs::test::FakeSystem;
using qs::test::ProgramEnded;

// One run of the program over a disk that outlives it.
struct ProgramRun {
    explicit ProgramRun(FakeSystem& disk) : sys(disk) { app.AttachBackend(&dialogs); }
    FakeSystem& sys;
    qs::Application app{sys};
    DialogBackend dialogs{app};

    bool Shown(const std::wstring& key) const {
        for (const auto& m : dialogs.shown)
            if (m.key == key) return true;
        return false;
    }
    void Exit() { EXPECT_THROW(app.frmMain.Unload(), ProgramEnded); }
    void Add(int group, const std::wstring& name, const std::wstring& path) {
        auto& names = app.frmChoose.ComboListItemName(group);
        auto& paths = app.frmChoose.ComboListItemPath(group);
        paths.AddItem(path, names.AddItem(name));
        if (group < 3) {
            auto& sideNames = app.frmHid.ComboHDDItemName(group);
            auto& sidePaths = app.frmHid.ComboHDDItemPath(group);
            sidePaths.AddItem(path, sideNames.AddItem(name));
        }
    }
};

struct StartUp : ::testing::Test {
    FakeSystem disk;
    void SetUp() override {
        disk.applicationFolder = L"C:\\Tools\\";
        disk.PutFile(L"C:\\Tools\\Quillstart.exe");
    }
    // Answers the name prompt of a first start.
    static void AnswerName(ProgramRun& run) {
        run.dialogs.Answer(qs::test::TypeNameAndEnter(0, L"Ann"));
    }
};

TEST_F(StartUp, FirstStartMakesTheFoldersAsksTheNameAndWelcomes) {
    ProgramRun run(disk);
    AnswerName(run);
    qs::Main(run.app);
    EXPECT_TRUE(disk.FolderExists(L"C:\\Morvane\\Kinfold"));
    EXPECT_TRUE(disk.FolderExists(L"C:\\Morvane\\Morvane Apps\\Quillstart"));
    ASSERT_GE(run.dialogs.shown.size(), 2u);
    EXPECT_EQ(run.dialogs.shown.front().key, L"MessageGetUserName");
    EXPECT_EQ(run.dialogs.shown.back().key, L"MessageFisrtStart");
    EXPECT_EQ(run.app.family.UserFirstName, L"Ann");
    EXPECT_TRUE(run.app.frmMain.Visible());
    EXPECT_FALSE(run.app.place.StartingUp);
    EXPECT_FALSE(run.app.place.OnRemovable);
    EXPECT_EQ(run.app.frmMain.TextMain.Text(), L"Quillstart");
    EXPECT_TRUE(run.app.frmMain.TimerOnTop.Enabled());
}

TEST_F(StartUp, SecondStartReadsWhatTheFirstExitWrote) {
    {
        ProgramRun first(disk);
        AnswerName(first);
        qs::Main(first.app);
        first.Add(2, L"myPlayer", L"C:\\Apps\\player.exe");
        first.Add(4, L"news", L"http://news.example");
        first.app.frmMain.Move(1500, 900, first.app.frmMain.Width(), first.app.frmMain.Height());
        first.Exit();
    }
    EXPECT_EQ(disk.FileBytes(L"C:\\Morvane\\Morvane Apps\\Quillstart\\ListProg.Morvane"),
              "\"myPlayer\",\"C:\\Apps\\player.exe\"\r\n");
    EXPECT_EQ(disk.FileBytes(L"C:\\Morvane\\Morvane Apps\\Quillstart\\COMData.Morvane"), "2\r\n-1\r\n0\r\n");
    disk.PutFile(L"C:\\Apps\\player.exe");
    ProgramRun second(disk);
    qs::Main(second.app);
    EXPECT_FALSE(second.Shown(L"MessageFisrtStart"));
    EXPECT_FALSE(second.Shown(L"MessageGetUserName"));
    EXPECT_EQ(second.app.frmChoose.ComboListItemName(2).List(0), L"myPlayer");
    EXPECT_EQ(second.app.frmChoose.ComboListItemPath(4).List(0), L"http://news.example");
    EXPECT_EQ(second.app.frmMain.Left(), 1500);
    EXPECT_EQ(second.app.frmMain.Top(), 900);
    EXPECT_EQ(second.app.family.UserFirstName, L"Ann");
    second.app.frmMain.TextMain.DoubleClick();
    second.app.frmMain.TextMain.TypeText(L"p-m");
    EXPECT_EQ(second.app.frmMain.TextMain.Text(), L"p-myPlayer");
    second.app.frmMain.TextMain.TypeKey(13);
    ASSERT_FALSE(disk.launches.empty());
    EXPECT_EQ(disk.launches.back().target, L"C:\\Apps\\player.exe");
}

TEST_F(StartUp, ExitWithNothingChangedRewritesNoRecord) {
    {
        ProgramRun first(disk);
        AnswerName(first);
        qs::Main(first.app);
        first.Exit();
    }
    const std::wstring set = L"C:\\Morvane\\Morvane Apps\\Quillstart\\Set.Morvane";
    const auto before = std::filesystem::last_write_time(disk.HostPath(set));
    const std::string bytes = disk.FileBytes(set);
    ProgramRun second(disk);
    qs::Main(second.app);
    second.Exit();
    EXPECT_EQ(std::filesystem::last_write_time(disk.HostPath(set)), before);
    EXPECT_EQ(disk.FileBytes(set), bytes);
}

TEST_F(StartUp, AnotherCopyRunningIsSurfacedAndThisOneEndsSilently) {
    disk.anotherCopyRunning = true;
    ProgramRun run(disk);
    EXPECT_THROW(qs::Main(run.app), ProgramEnded);
    EXPECT_EQ(disk.surfaced, 1);
    EXPECT_TRUE(run.dialogs.shown.empty());
    EXPECT_FALSE(disk.FolderExists(L"C:\\Morvane"));
}

TEST_F(StartUp, AFalseAlarmOfTheRunningFlagStartsNormally) {
    disk.anotherCopyRunning = true;
    disk.runningBarFound = false;
    ProgramRun run(disk);
    AnswerName(run);
    qs::Main(run.app);
    EXPECT_EQ(disk.surfaced, 1);
    EXPECT_TRUE(run.app.frmMain.Visible());
    EXPECT_TRUE(disk.FolderExists(L"C:\\Morvane"));
}

TEST_F(StartUp, AfterStartUpTheAddItemButtonOpensThePaneInTheProgramsFolder) {
    ProgramRun run(disk);
    AnswerName(run);
    qs::Main(run.app);
    run.app.frmMain.PictureMenu(0).Press();
    EXPECT_EQ(run.app.OpenMenuIndex, 0);
    EXPECT_TRUE(run.app.frmBrowse.Visible());
    EXPECT_EQ(run.app.frmBrowse.Caption(), L"Add Item");
    EXPECT_EQ(run.app.frmBrowse.CurrentFolder, L"C:\\Tools");
    EXPECT_FALSE(run.Shown(L"Quillstart:Bug:ActionSetBrowse"));
}

TEST_F(StartUp, ProgramInsideTheWindowsFolderStartsNormally) {
    disk.applicationFolder = L"C:\\Windows\\Tools\\";
    disk.PutFile(L"C:\\Windows\\Tools\\Quillstart.exe");
    ProgramRun run(disk);
    AnswerName(run);
    qs::Main(run.app);
    EXPECT_TRUE(run.app.frmMain.Visible());
    EXPECT_FALSE(run.Shown(L"MessageProgInSystem"));
}

TEST_F(StartUp, CdRomIsRefused) {
    disk.MapDrive(L'R', DriveType::CDRom);
    disk.applicationFolder = L"R:\\";
    disk.PutFile(L"R:\\Quillstart.exe");
    ProgramRun run(disk);
    EXPECT_THROW(qs::Main(run.app), ProgramEnded);
    ASSERT_FALSE(run.dialogs.shown.empty());
    EXPECT_EQ(run.dialogs.shown.back().entry, MessageEntry::End);
    EXPECT_EQ(run.dialogs.shown.back().key, L"MessageMediaCDRom");
}

TEST_F(StartUp, FixedDiskRunFromAnotherDriveKeepsItsDataOnTheWindowsDrive) {
    disk.MapDrive(L'D', DriveType::Fixed);
    disk.applicationFolder = L"D:\\Apps\\";
    disk.PutFile(L"D:\\Apps\\Quillstart.exe");
    ProgramRun run(disk);
    AnswerName(run);
    qs::Main(run.app);
    EXPECT_TRUE(disk.FolderExists(L"C:\\Morvane\\Morvane Apps\\Quillstart"));
    EXPECT_FALSE(disk.FolderExists(L"D:\\Morvane"));
}

TEST_F(StartUp, FlashDriveOnTwoComputersSharesWebMailAndFlashItemsOnly) {
    disk.MapDrive(L'E', DriveType::Removable);
    disk.applicationFolder = L"E:\\Quillstart\\";
    disk.PutFile(L"E:\\Quillstart\\Quillstart.exe");
    disk.PutFile(L"E:\\Tools\\tool.exe");
    disk.PutFile(L"C:\\Apps\\local.exe");
    {
        ProgramRun first(disk);
        AnswerName(first);
        qs::Main(first.app);
        EXPECT_TRUE(first.app.place.OnRemovable);
        first.Add(4, L"news", L"http://news.example");
        first.Add(2, L"local", L"C:\\Apps\\local.exe");
        auto& names = first.app.frmChoose.ComboListItemName(2);
        auto& paths = first.app.frmChoose.ComboListItemPath(2);
        paths.AddItem(L"E:\\Tools\\tool.exe", names.AddItem(L"tool"));
        first.app.frmHid.ComboUSBItemPath(2).AddItem(L"E:\\Tools\\tool.exe",
                                                      first.app.frmHid.ComboUSBItemName(2).AddItem(L"tool"));
        first.Exit();
    }
    EXPECT_EQ(disk.FileBytes(L"E:\\Morvane\\Morvane Apps\\Quillstart\\ListUSBProg.Morvane"),
              "\"tool\",\"#:\\Tools\\tool.exe\"\r\n");
    EXPECT_TRUE(disk.FileExists(L"E:\\Morvane\\DESK1\\Quillstart\\ListProg.Morvane"));
    EXPECT_FALSE(disk.FolderExists(L"C:\\Morvane"));

    disk.environment[L"computername"] = L"LAPTOP";
    ProgramRun second(disk);
    qs::Main(second.app);
    EXPECT_TRUE(disk.FolderExists(L"E:\\Morvane\\LAPTOP\\Quillstart"));
    EXPECT_EQ(second.app.frmChoose.ComboListItemPath(4).List(0), L"http://news.example");
    ASSERT_EQ(second.app.frmChoose.ComboListItemName(2).ListCount(), 1);
    EXPECT_EQ(second.app.frmChoose.ComboListItemName(2).List(0), L"tool");
    EXPECT_FALSE(second.Shown(L"MessageGetUserName"));
}

TEST_F(StartUp, MovedProgramWithStartWithWindowsRewritesTheRunValueOnce) {
    disk.MapDrive(L'D', DriveType::Fixed);
    {
        ProgramRun first(disk);
        AnswerName(first);
        qs::Main(first.app);
        first.Exit();
    }
    EXPECT_EQ(disk.registry[qs::AutostartValueName], L"C:\\Tools\\Quillstart.exe");
    // The old copy stays where it was, as a program copied to a new place.
    disk.applicationFolder = L"D:\\New\\";
    disk.PutFile(L"D:\\New\\Quillstart.exe");
    ProgramRun moved(disk);
    qs::Main(moved.app);
    EXPECT_TRUE(moved.app.family.ProgramMoved);
    EXPECT_EQ(disk.registry[qs::AutostartValueName], L"D:\\New\\Quillstart.exe");
}

TEST_F(StartUp, FlashDriveRunNeverTouchesTheRunValue) {
    disk.MapDrive(L'E', DriveType::Removable);
    disk.applicationFolder = L"E:\\Quillstart\\";
    disk.PutFile(L"E:\\Quillstart\\Quillstart.exe");
    ProgramRun run(disk);
    AnswerName(run);
    qs::Main(run.app);
    EXPECT_EQ(run.app.settings.OptionStartWithWindows, 0);
    EXPECT_TRUE(disk.registry.empty());
}

TEST_F(StartUp, FlashDriveRunWithStartWithWindowsOnLeavesTheRunValueAloneEvenWhenMoved) {
    disk.MapDrive(L'E', DriveType::Removable);
    disk.applicationFolder = L"E:\\Quillstart\\";
    disk.PutFile(L"E:\\Quillstart\\Quillstart.exe");
    {
        ProgramRun first(disk);
        AnswerName(first);
        qs::Main(first.app);
        // "Start With Windows" is bit 0 of the saved option word.
        first.app.settings.OptionWord = 1;
        first.Exit();
    }
    disk.applicationFolder = L"E:\\Moved\\";
    disk.PutFile(L"E:\\Moved\\Quillstart.exe");
    ProgramRun moved(disk);
    qs::Main(moved.app);
    EXPECT_EQ(moved.app.settings.OptionStartWithWindows, 1);
    EXPECT_TRUE(moved.app.family.ProgramMoved);
    EXPECT_TRUE(disk.registry.empty());
}

}  // namespace
