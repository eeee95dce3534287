// A text added to several lists is stored once: each list holds a share of
// it, and the text lives until the last list lets go.
#include <gtest/gtest.h>

#include "data/launch_list.h"
#include "data_setup.h"
#include "ui/form.h"
#include "ui/list_box.h"
#include "ui/shared_text.h"

namespace qs::test {
namespace {

TEST(SharedTextLists, OneTextInTwoListsIsOneBodyUntilBothLetGo) {
    ui::Form form(L"frmTest", ui::FormStyle::Borderless);
    ui::ListBox sorted(form, L"Names", true);
    ui::ListBox plain(form, L"Paths", false);
    sorted.AddItem(L"zed");
    const ui::SharedText text(L"alpha");
    EXPECT_EQ(sorted.AddItem(text), 0);
    EXPECT_EQ(plain.AddItem(text, 0), 0);
    EXPECT_EQ(text.Holders(), 3);
    EXPECT_EQ(sorted.List(0).data(), plain.List(0).data());
    EXPECT_EQ(sorted.List(0), L"alpha");
    sorted.RemoveItem(0);
    EXPECT_EQ(text.Holders(), 2);
    plain.Clear();
    EXPECT_EQ(text.Holders(), 1);
    EXPECT_EQ(sorted.List(0), L"zed");
}

TEST(SharedTextLists, ReplacingAnEntryLeavesTheOtherListsShareAlone) {
    ui::Form form(L"frmTest", ui::FormStyle::Borderless);
    ui::ListBox first(form, L"A", false);
    ui::ListBox second(form, L"B", false);
    const ui::SharedText text(L"C:\\Apps\\a.exe");
    first.AddItem(text);
    second.AddItem(text);
    first.SetList(0, L"C:\\Apps\\b.exe");
    EXPECT_EQ(first.List(0), L"C:\\Apps\\b.exe");
    EXPECT_EQ(second.List(0), L"C:\\Apps\\a.exe");
    EXPECT_EQ(text.Holders(), 2);
}

TEST(SharedTextLists, LoadStoresEachNameAndTargetOnceForTheMergedAndTheSideLists) {
    TestApp t;
    SetUpFixedDiskRun(t);
    t.sys.PutFile(L"C:\\Apps\\a.exe");
    t.sys.PutFile(L"C:\\Apps\\b.exe");
    t.sys.PutFile(t.app.place.FileListProg, ListFileBytes({{"Alpha", "C:\\Apps\\a.exe"}, {"beta", "C:\\Apps\\b.exe"}}));
    t.app.settings.HDDProgramLast = 1;
    LaunchListLoad(t.app);
    ASSERT_EQ(MergedNames(t, 2).ListCount(), 2);
    for (std::int32_t i = 0; i < 2; ++i) {
        EXPECT_EQ(MergedNames(t, 2).List(i).data(), ComputerNames(t, 2).List(i).data());
        EXPECT_EQ(MergedPaths(t, 2).List(i).data(), ComputerPaths(t, 2).List(i).data());
    }
}

TEST(SharedTextLists, FlashLoadStoresEachNameAndTargetOnceForTheMergedAndTheFlashLists) {
    TestApp t;
    SetUpFlashRun(t, L'E');
    t.sys.PutFile(L"C:\\Apps\\b.exe");
    t.sys.PutFile(L"E:\\Tools\\a.exe");
    t.sys.PutFile(t.app.place.FileListProg, ListFileBytes({{"bee", "C:\\Apps\\b.exe"}}));
    t.sys.PutFile(t.app.place.FileListUsbProg, ListFileBytes({{"ant", "#:\\Tools\\a.exe"}}));
    t.app.settings.HDDProgramLast = 0;
    t.app.settings.USBProgramLast = 0;
    LaunchListLoad(t.app);
    ASSERT_EQ(MergedNames(t, 2).ListCount(), 2);
    EXPECT_EQ(MergedNames(t, 2).List(0).data(), FlashNames(t, 2).List(0).data());
    EXPECT_EQ(MergedPaths(t, 2).List(0).data(), FlashPaths(t, 2).List(0).data());
    EXPECT_EQ(MergedPaths(t, 2).List(0), L"E:\\Tools\\a.exe");
}

}  // namespace
}  // namespace qs::test
