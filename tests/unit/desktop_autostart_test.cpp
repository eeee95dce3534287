// Keeping the autostart value in step with the program's file.
#include <gtest/gtest.h>

#include "data/registry_value.h"
#include "startup/always_on_top.h"
#include "startup/desktop.h"
#include "test_app.h"

namespace {

using qs::test::TestApp;

struct CountingRegistry : qs::test::FakeSystem {
    int writes = 0;
    int deletes = 0;
    void RegWrite(const std::wstring& key, const std::wstring& value) override {
        ++writes;
        FakeSystem::RegWrite(key, value);
    }
    void RegDelete(const std::wstring& key) override {
        ++deletes;
        FakeSystem::RegDelete(key);
    }
};

struct Autostart : ::testing::Test {
    CountingRegistry sys;
    qs::Application app{sys};
    void SetUp() override { app.ProgramFile = L"C:\\Tools\\Quillstart.exe"; }
};

TEST_F(Autostart, ValueAlreadyEqualIsNotWritten) {
    sys.registry[qs::AutostartValueName] = L"C:\\Tools\\Quillstart.exe";
    qs::AutostartRegister(app);
    EXPECT_EQ(sys.writes, 0);
    EXPECT_EQ(sys.deletes, 0);
}

TEST_F(Autostart, ValuePointingElsewhereIsDeletedThenWritten) {
    sys.registry[qs::AutostartValueName] = L"D:\\Old\\Quillstart.exe";
    qs::AutostartRegister(app);
    EXPECT_EQ(sys.deletes, 1);
    EXPECT_EQ(sys.writes, 1);
    EXPECT_EQ(sys.registry[qs::AutostartValueName], L"C:\\Tools\\Quillstart.exe");
}

TEST_F(Autostart, MissingValueIsWrittenWithoutADelete) {
    qs::AutostartRegister(app);
    EXPECT_EQ(sys.deletes, 0);
    EXPECT_EQ(sys.registry[qs::AutostartValueName], L"C:\\Tools\\Quillstart.exe");
}

TEST(DesktopTasks, ShortcutCreatedTwiceIsOverwrittenAndAnnouncedTwice) {
    TestApp t;
    t.app.ProgramFolder = L"C:\\Tools\\";
    t.app.ProgramFile = L"C:\\Tools\\Quillstart.exe";
    qs::StartShortcutCreate(t.app);
    qs::StartShortcutCreate(t.app);
    EXPECT_EQ(t.sys.shortcuts.size(), 2u);
    EXPECT_TRUE(t.sys.FileExists(L"C:\\Users\\ann\\Desktop\\Quillstart.lnk"));
    int announced = 0;
    for (const auto& m : t.dialogs.shown)
        if (m.key == L"MessageShortcutCreated") ++announced;
    EXPECT_EQ(announced, 2);
}

TEST(DesktopTasks, ScreenSaverLeavesTheBoxEmpty) {
    TestApp t;
    t.Type(L"w;x");
    qs::StartScreenSaver(t.app);
    EXPECT_EQ(t.Text(), L"");
    EXPECT_EQ(t.sys.screenSaverStarts, 1);
}

}  // namespace

namespace {

// The Preferences' Save goes through the same logic as the start: only the
// option decides whether the value is wanted.
struct AutostartByOption : Autostart {};

TEST_F(AutostartByOption, OptionSetAndTheValueAlreadyEqualWritesNothing) {
    app.settings.OptionStartWithWindows = 1;
    sys.registry[qs::AutostartValueName] = L"C:\\Tools\\Quillstart.exe";
    qs::AutostartFollowOption(app);
    EXPECT_EQ(sys.writes, 0);
    EXPECT_EQ(sys.deletes, 0);
}

TEST_F(AutostartByOption, OptionSetAndTheValuePointingElsewhereIsDeletedThenWritten) {
    app.settings.OptionStartWithWindows = 1;
    sys.registry[qs::AutostartValueName] = L"D:\\Old\\Quillstart.exe";
    qs::AutostartFollowOption(app);
    EXPECT_EQ(sys.deletes, 1);
    EXPECT_EQ(sys.writes, 1);
    EXPECT_EQ(sys.registry[qs::AutostartValueName], L"C:\\Tools\\Quillstart.exe");
}

TEST_F(AutostartByOption, OptionSetAndNoValueWritesWithoutADelete) {
    app.settings.OptionStartWithWindows = 1;
    qs::AutostartFollowOption(app);
    EXPECT_EQ(sys.deletes, 0);
    EXPECT_EQ(sys.writes, 1);
    EXPECT_EQ(sys.registry[qs::AutostartValueName], L"C:\\Tools\\Quillstart.exe");
}

TEST_F(AutostartByOption, OptionClearedDeletesAValueWhereverItPoints) {
    app.settings.OptionStartWithWindows = 0;
    sys.registry[qs::AutostartValueName] = L"C:\\Tools\\Quillstart.exe";
    qs::AutostartFollowOption(app);
    EXPECT_EQ(sys.deletes, 1);
    EXPECT_EQ(sys.writes, 0);
    EXPECT_EQ(sys.registry.count(qs::AutostartValueName), 0u);
}

TEST_F(AutostartByOption, OptionClearedAndNoValueDeletesNothing) {
    app.settings.OptionStartWithWindows = 0;
    qs::AutostartFollowOption(app);
    EXPECT_EQ(sys.deletes, 0);
    EXPECT_EQ(sys.writes, 0);
}

TEST(DesktopTasks, AlwaysOnTopOffOnAnAlreadyPlainWindowChangesNothing) {
    TestApp t;
    ASSERT_FALSE(t.app.frmMain.TopMost());
    qs::ActionAlwaysOnTopOff(t.app);
    EXPECT_FALSE(t.app.frmMain.TopMost());
    EXPECT_TRUE(t.dialogs.shown.empty());
}

}  // namespace
