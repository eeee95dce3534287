#include <gtest/gtest.h>

#include "data/launch_list.h"
#include "data_setup.h"

namespace qs::test {
namespace {

using Names = std::vector<std::wstring>;

struct ListEdit : ::testing::Test {
    TestApp t;
    void SetUp() override { SetUpFlashRun(t, L'E'); }
    void AddSide(bool flash, int group, const std::wstring& name, const std::wstring& path) {
        AddItemInStep(MergedNames(t, group), MergedPaths(t, group), name, path);
        if (flash) {
            AddItemInStep(FlashNames(t, group), FlashPaths(t, group), name, path);
        } else {
            AddItemInStep(ComputerNames(t, group), ComputerPaths(t, group), name, path);
        }
    }
};

TEST_F(ListEdit, SideOfAnItemIsWorkedOutFromItsPath) {
    EXPECT_TRUE(IsFlashSideItem(t.app, 2, L"E:\\a.exe"));
    EXPECT_TRUE(IsFlashSideItem(t.app, 0, L"e:\\a.txt"));
    EXPECT_FALSE(IsFlashSideItem(t.app, 2, L"C:\\a.exe"));
    EXPECT_FALSE(IsFlashSideItem(t.app, 3, L"E@mail.example"));
    EXPECT_FALSE(IsFlashSideItem(t.app, 2, L""));
    t.app.place.OnRemovable = false;
    EXPECT_FALSE(IsFlashSideItem(t.app, 2, L"E:\\a.exe"));
}

TEST_F(ListEdit, PairingByHandPutsThePathAtTheFirstExactlyEqualName) {
    auto& names = MergedNames(t, 4);
    auto& paths = MergedPaths(t, 4);
    AddItemInStep(names, paths, L"b", L"1");
    AddItemInStep(names, paths, L"a", L"2");
    AddItemInStep(names, paths, L"B", L"3");
    AddItemInStep(names, paths, L"b", L"4");
    EXPECT_EQ(Entries(names), (Names{L"a", L"b", L"B", L"b"}));
    // The second "b" went behind "B", its path to the first "b"'s position,
    // which moves the paths of the first "b" and of "B" one down.
    EXPECT_EQ(Entries(paths), (Names{L"2", L"4", L"1", L"3"}));
}

TEST_F(ListEdit, RemovingAnItemTakesItFromTheMergedListsAndFromItsOwnSide) {
    AddSide(false, 2, L"edit", L"C:\\edit.exe");
    AddSide(true, 2, L"edit", L"E:\\edit.exe");
    AddSide(false, 2, L"calc", L"C:\\calc.exe");
    // Merged: calc, edit (flash, put first), edit (computer).
    ASSERT_EQ(MergedPaths(t, 2).List(1), L"E:\\edit.exe");
    LaunchListRemoveItem(t.app, 2, 1);
    EXPECT_EQ(Entries(MergedNames(t, 2)), (Names{L"calc", L"edit"}));
    EXPECT_EQ(Entries(MergedPaths(t, 2)), (Names{L"C:\\calc.exe", L"C:\\edit.exe"}));
    EXPECT_EQ(FlashNames(t, 2).ListCount(), 0);
    EXPECT_EQ(Entries(ComputerNames(t, 2)), (Names{L"calc", L"edit"}));
    LaunchListRemoveItem(t.app, 2, 1);
    EXPECT_EQ(Entries(ComputerPaths(t, 2)), (Names{L"C:\\calc.exe"}));
}

TEST_F(ListEdit, RemovingFromEmailOrWebTouchesOnlyTheMergedLists) {
    AddItemInStep(MergedNames(t, 3), MergedPaths(t, 3), L"me", L"me@a.example");
    AddItemInStep(ComputerNames(t, 2), ComputerPaths(t, 2), L"me", L"C:\\me.exe");
    LaunchListRemoveItem(t.app, 3, 0);
    EXPECT_EQ(MergedNames(t, 3).ListCount(), 0);
    EXPECT_EQ(MergedPaths(t, 3).ListCount(), 0);
    EXPECT_EQ(ComputerNames(t, 2).ListCount(), 1);
}

TEST_F(ListEdit, ClearingAGroupEmptiesBothSides) {
    AddSide(false, 0, L"a", L"C:\\a.txt");
    AddSide(true, 0, L"b", L"E:\\b.txt");
    AddSide(false, 1, L"keep", L"C:\\keep");
    LaunchListClearGroup(t.app, 0);
    EXPECT_EQ(MergedNames(t, 0).ListCount(), 0);
    EXPECT_EQ(MergedPaths(t, 0).ListCount(), 0);
    EXPECT_EQ(ComputerNames(t, 0).ListCount(), 0);
    EXPECT_EQ(ComputerPaths(t, 0).ListCount(), 0);
    EXPECT_EQ(FlashNames(t, 0).ListCount(), 0);
    EXPECT_EQ(FlashPaths(t, 0).ListCount(), 0);
    EXPECT_EQ(MergedNames(t, 1).ListCount(), 1);
}

TEST_F(ListEdit, AfterTheLastItemIsRemovedAndTheProgramExitsTheOldFileIsStillOnDisk) {
    const std::string old = ListFileBytes({{"only", "C:\\only.txt"}});
    t.sys.PutFile(t.app.place.FileListFile, old);
    t.sys.PutFile(L"C:\\only.txt");
    t.app.settings.HDDFileLast = 0;
    LaunchListLoad(t.app);
    ASSERT_EQ(MergedNames(t, 0).ListCount(), 1);
    LaunchListRemoveItem(t.app, 0, 0);
    LaunchListSaveAtExit(t.app, {});
    EXPECT_EQ(t.app.settings.HDDFileLast, -1);
    EXPECT_EQ(t.sys.FileBytes(t.app.place.FileListFile), old);
}

}  // namespace
}  // namespace qs::test
