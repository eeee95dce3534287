// The Launch List pane: opening it, the group rows and panels, the two
// lists stepping each other, removing and clearing, and its keys.
#include <gtest/gtest.h>

#include "choose_setup.h"
#include "shown_messages.h"
#include "theme/holders.h"

namespace qs::test {
namespace {

struct ChooseList : ::testing::Test {
    ChooseApp t;
    LaunchListPane& pane = t.pane();
    const ThemeState& theme = t.app.theme;
};

TEST_F(ChooseList, OpeningSelectsTheFirstItemOfEveryGroupAndStartsOnProgramWhateverWasShownLast) {
    t.FillAllGroups();
    t.OpenPane();
    t.ShowGroup(4);
    MergedNames(t, 1).SetListIndex(1);
    t.OpenPane();
    ASSERT_EQ(t.app.OpenMenuIndex, -1);
    t.OpenPane();
    EXPECT_EQ(t.app.ListGroupShown, 2);
    for (std::int16_t i = 0; i < 5; ++i) {
        EXPECT_EQ(MergedNames(t, i).ListIndex(), 0) << i;
        EXPECT_EQ(MergedPaths(t, i).ListIndex(), 0) << i;
        EXPECT_EQ(pane.PictureGroupList(i).Visible(), i == 2) << i;
    }
    EXPECT_EQ(pane.ImageShowList(2).Picture(), theme.ImageZeroSet[2]);
    EXPECT_EQ(pane.ImageShowList(4).Picture(), theme.ImageZeroSet[0]);
    EXPECT_TRUE(pane.FrameConfirmClearListA.Visible());
}

TEST_F(ChooseList, WithoutProgramsTheGroupChosenFollowsTheOrderFileFolderEmailWebUrl) {
    struct Case {
        std::vector<std::int16_t> groups;
        std::int16_t chosen;
    };
    const Case cases[] = {{{0, 1, 3, 4}, 0}, {{1, 3, 4}, 1}, {{3, 4}, 3}, {{4}, 4}, {{0, 2}, 2}};
    for (const Case& c : cases) {
        ChooseApp u;
        for (const std::int16_t g : c.groups) u.Add(g, L"item", g == 1 ? L"C:\\Docs" : L"C:\\x\\item.exe");
        u.OpenPane();
        EXPECT_EQ(u.app.ListGroupShown, c.chosen);
        EXPECT_TRUE(u.pane().PictureGroupList(c.chosen).Visible());
        EXPECT_FALSE(u.pane().LabelEmptyList.Visible());
    }
}

TEST_F(ChooseList, OpeningShowsTheCountsAndTheLinesOfEachGroup) {
    t.Add(2, L"editor", L"C:\\Apps\\editor.exe");
    t.Add(2, L"player", L"C:\\Apps\\player.exe");
    t.Add(2, L"viewer", L"C:\\Apps\\viewer.exe");
    t.Add(3, L"anna", L"anna@example.com");
    t.OpenPane();
    EXPECT_EQ(pane.LabelListTotalA(2).Caption(), L"3");
    EXPECT_EQ(pane.LabelListTotalB(2).Caption(), L"Program Added To Launch List: 3");
    EXPECT_EQ(pane.LabelListItemNum(2).Caption(), L"Showing Program # 1");
    EXPECT_TRUE(pane.LabelListItemNum(2).Visible());
    EXPECT_EQ(pane.LabelListOpen(2).Caption(), L"Open: editor");
    EXPECT_EQ(pane.LabelListOpen(3).Caption(), L"Write To: anna");
    EXPECT_EQ(pane.LabelListTotalA(0).Caption(), L"0");
    EXPECT_EQ(pane.LabelListTotalB(4).Caption(), L"Web URL Added To Launch List: 0");
    EXPECT_FALSE(pane.LabelListItemNum(0).Visible());
    EXPECT_FALSE(pane.LabelEmptyList.Visible());
}

TEST_F(ChooseList, AGroupWithNoItemsHasNoGroupButtonSoItsPanelCannotBeReached) {
    t.Add(2, L"editor", L"C:\\Apps\\editor.exe");
    t.OpenPane();
    for (std::int16_t i = 0; i < 5; ++i) {
        EXPECT_EQ(pane.ImageShowList(i).Visible(), i == 2) << i;
        if (i != 2) {
            EXPECT_EQ(pane.ImageShowList(i).Picture(), theme.ImageZeroBlank) << i;
        }
    }
    pane.ImageShowList(0).Press();
    EXPECT_FALSE(pane.PictureGroupList(0).Visible());
    EXPECT_EQ(t.app.ListGroupShown, 2);
}

TEST_F(ChooseList, WithEveryListEmptyTheEmptyLabelShowsAndTheGroupShownKeepsItsValue) {
    t.app.ListGroupShown = 3;
    std::int16_t pane2 = 2;
    ActionSetChoose(t.app, pane2);
    EXPECT_TRUE(pane.LabelEmptyList.Visible());
    EXPECT_EQ(pane.LabelEmptyList.Caption(), L"Your List Is Empty.");
    EXPECT_EQ(t.app.ListGroupShown, 3);
    for (std::int16_t i = 0; i < 5; ++i) EXPECT_FALSE(pane.PictureGroupList(i).Visible()) << i;
}

TEST_F(ChooseList, TheFlashDriveCountsShowOnlyOnAFlashDriveRun) {
    t.Add(0, L"notes", L"C:\\Docs\\notes.txt");
    t.OpenPane();
    for (std::int16_t i = 0; i < 3; ++i) {
        EXPECT_FALSE(pane.LabelUSBInfo(i).Visible()) << i;
        EXPECT_FALSE(pane.LabelUSBTotal(i).Visible()) << i;
    }
    ChooseApp flash(L'E');
    flash.Add(0, L"notes", L"C:\\Docs\\notes.txt");
    flash.Add(0, L"song", L"E:\\Music\\song.mp3");
    flash.Add(0, L"tune", L"e:\\Music\\tune.mp3");
    flash.OpenPane();
    for (std::int16_t i = 0; i < 3; ++i) {
        EXPECT_TRUE(flash.pane().LabelUSBInfo(i).Visible()) << i;
        EXPECT_TRUE(flash.pane().LabelUSBTotal(i).Visible()) << i;
        EXPECT_EQ(flash.pane().LabelUSBInfo(i).Caption(), L"Portable: ");
    }
    EXPECT_EQ(flash.pane().LabelUSBTotal(0).Caption(), L"2");
    EXPECT_EQ(flash.pane().LabelUSBTotal(1).Caption(), L"0");
    EXPECT_EQ(flash.pane().LabelListTotalA(0).Caption(), L"3");
}

TEST_F(ChooseList, TheGroupRowsAndPanelsCarryTheirFixedCaptions) {
    const wchar_t* groups[] = {L"File", L"Folder", L"Program", L"Email", L"Web URL"};
    const wchar_t* paths[] = {L"File Path :", L"Folder Path :", L"Program Path :", L"Email Address :",
                              L"Web Page URL :"};
    const wchar_t* removes[] = {L"Remove This File From Launch List", L"Remove This Folder From Launch List",
                                L"Remove This Program From Launch List", L"Remove This Email From Launch List",
                                L"Remove This Web URL From Launch List"};
    const wchar_t* clears[] = {L"Delete All File From Launch List", L"Delete All Folder From Launch List",
                               L"Delete All Program From Launch List", L"Delete All Email From Launch List",
                               L"Delete All Web URL From Launch List"};
    using Row = LaunchListPane::Row;
    for (std::int16_t i = 0; i < 5; ++i) {
        EXPECT_EQ(pane.LabelItemName(i).Caption(), groups[i]);
        EXPECT_EQ(pane.LabelNoList(i).Caption(), L"- Listed -");
        EXPECT_EQ(pane.LabelNoList(LaunchListPane::NoListRow(i, Row::NameRow)).Caption(), L"Launch Name :");
        EXPECT_EQ(pane.LabelNoList(LaunchListPane::NoListRow(i, Row::PathRow)).Caption(), paths[i]);
        EXPECT_EQ(pane.LabelNoList(LaunchListPane::NoListRow(i, Row::RemoveRow)).Caption(), removes[i]);
        EXPECT_EQ(pane.LabelNoList(LaunchListPane::NoListRow(i, Row::ClearRow)).Caption(), clears[i]);
        EXPECT_EQ(pane.LabelNoList(LaunchListPane::NoListRow(i, Row::RenameRow)).Caption(), L"Change Launch Name");
        EXPECT_EQ(pane.FrameListRename(i).Caption(), L"New Name");
        EXPECT_EQ(pane.LabelListRenCancel(i).Caption(), L"Cancel");
        EXPECT_EQ(pane.LabelListRenOK(i).Caption(), L"OK");
        // Buttons are named for screen readers by the caption beside them.
        EXPECT_EQ(pane.ImageShowList(i).AccessibleName(), groups[i]);
        EXPECT_EQ(pane.ImageListRemove(i).AccessibleName(), removes[i]);
        EXPECT_EQ(pane.ImageListClear(i).AccessibleName(), clears[i]);
        EXPECT_EQ(pane.ImageListRename(i).AccessibleName(), L"Change Launch Name");
        EXPECT_EQ(pane.ImageListOKRename(i).AccessibleName(), L"OK");
        EXPECT_EQ(pane.ImageListCancelRename(i).AccessibleName(), L"Cancel");
    }
    EXPECT_EQ(pane.FrameGroupMenu.Caption(), L"Select A Group To View The Group List");
    EXPECT_EQ(pane.FrameConfirmClearListB.Caption(), L"Are You Sure?");
    EXPECT_EQ(pane.LabelListCap.Caption(), L"Launch List:");
    EXPECT_EQ(pane.LabelConfirmYes.Caption(), L"Yes");
    EXPECT_EQ(pane.LabelConfirmNo.Caption(), L"No");
    EXPECT_EQ(pane.ImageConfirmClearList.AccessibleName(), L"Yes");
    EXPECT_EQ(pane.ImageCancelClearList.AccessibleName(), L"No");
}

TEST_F(ChooseList, ThePanelsLieAtTheirCommonPlaceInsideTheLaunchListPicture) {
    const ui::Frame& list = t.choose().PictureList;
    for (std::int16_t i = 0; i < 5; ++i) {
        const ui::Frame& panel = pane.PictureGroupList(i);
        EXPECT_EQ(panel.Container(), &list);
        EXPECT_EQ(panel.Left() - list.Left(), 120);
        EXPECT_EQ(panel.Top() - list.Top(), 3000);
        EXPECT_EQ(panel.Width(), 4932);
        EXPECT_EQ(panel.Height(), 3372);
        EXPECT_EQ(t.choose().ComboListItemName(i).Container(), &panel);
        EXPECT_EQ(t.choose().ComboListItemPath(i).Container(), &panel);
    }
    EXPECT_EQ(pane.FrameGroupMenu.Left() - list.Left(), 120);
    EXPECT_EQ(pane.FrameGroupMenu.Top() - list.Top(), 720);
    EXPECT_EQ(pane.FrameConfirmClearListA.Top() - list.Top(), 6660);
    EXPECT_EQ(pane.FrameConfirmClearListB.Top() - list.Top(), 7080);
    // Everything stays inside the pane's picture.
    for (const ui::Control* c : t.choose().Controls()) {
        if (c->Container() == nullptr || c == &list) continue;
        const ui::Control* outer = c;
        while (outer->Container() != nullptr && outer->Container() != &list) outer = outer->Container();
        if (outer->Container() != &list) continue;
        EXPECT_GE(c->Left(), list.Left()) << std::string(c->Name().begin(), c->Name().end());
        EXPECT_GE(c->Top(), list.Top());
        EXPECT_LE(c->Left() + c->Width(), list.Left() + list.Width());
        EXPECT_LE(c->Top() + c->Height(), list.Top() + list.Height());
    }
}

TEST_F(ChooseList, TheTwoListsStepEachOtherAndNeverPart) {
    t.Add(2, L"editor", L"C:\\Apps\\editor.exe");
    t.Add(2, L"player", L"C:\\Apps\\player.exe");
    t.Add(2, L"viewer", L"C:\\Apps\\viewer.exe");
    t.OpenPane();
    auto& names = t.choose().ComboListItemName(2);
    auto& paths = t.choose().ComboListItemPath(2);
    names.UserSelected(2);
    EXPECT_EQ(paths.ListIndex(), 2);
    EXPECT_EQ(pane.LabelListItemNum(2).Caption(), L"Showing Program # 3");
    EXPECT_EQ(pane.LabelListOpen(2).Caption(), L"Open: viewer");
    EXPECT_EQ(pane.ImageListOpen(2).AccessibleName(), L"Open: viewer");
    paths.UserSelected(1);
    EXPECT_EQ(names.ListIndex(), 1);
    EXPECT_EQ(pane.LabelListItemNum(2).Caption(), L"Showing Program # 2");
    EXPECT_EQ(pane.LabelListOpen(2).Caption(), L"Open: player");
}

TEST_F(ChooseList, TheListsSwallowEveryKeyAndEscClosesThePaneThroughTheBar) {
    t.FillAllGroups();
    t.OpenPane();
    for (const std::int16_t typed : {std::int16_t{'a'}, std::int16_t{13}, std::int16_t{8}, std::int16_t{32}}) {
        std::int16_t key = typed;
        t.choose().ComboListItemName(2).UserKeyPress(key);
        EXPECT_EQ(key, 0);
        key = typed;
        t.choose().ComboListItemPath(2).UserKeyPress(key);
        EXPECT_EQ(key, 0);
    }
    EXPECT_EQ(t.app.OpenMenuIndex, 2);
    std::int16_t esc = 27;
    t.choose().ComboListItemPath(2).UserKeyPress(esc);
    EXPECT_EQ(esc, 0);
    EXPECT_EQ(t.app.OpenMenuIndex, -1);
    EXPECT_FALSE(t.choose().Visible());
}

TEST_F(ChooseList, EscInTheRenameBoxOrOnAButtonClosesThePaneAsTheBarsEscDoes) {
    t.FillAllGroups();
    t.OpenPane();
    pane.ImageListRename(2).Press();
    EXPECT_EQ(pane.TextListRename(2).UserKeyPress(27), 0);
    EXPECT_EQ(t.app.OpenMenuIndex, -1);
    EXPECT_FALSE(t.choose().Visible());
    t.OpenPane();
    EXPECT_EQ(pane.ImageListRemove(2).UserKeyPress(27), 0);
    EXPECT_EQ(t.app.OpenMenuIndex, -1);
}

TEST_F(ChooseList, EnterOrSpaceOnAPictureButtonClicksIt) {
    t.FillAllGroups();
    t.OpenPane();
    EXPECT_EQ(pane.ImageShowList(4).UserKeyPress(L'\r'), 0);
    EXPECT_EQ(t.app.ListGroupShown, 4);
    EXPECT_EQ(pane.ImageListRename(4).UserKeyPress(L' '), 0);
    EXPECT_TRUE(pane.FrameListRename(4).Visible());
}

TEST_F(ChooseList, TheGroupButtonsTabFirstThenThePanelsControlsInOrder) {
    const auto& f = t.choose();
    EXPECT_LT(pane.ImageShowList(4).TabIndex(), f.ComboListItemName(0).TabIndex());
    EXPECT_LT(f.ComboListItemName(2).TabIndex(), f.ComboListItemPath(2).TabIndex());
    EXPECT_LT(f.ComboListItemPath(2).TabIndex(), pane.ImageListOpen(2).TabIndex());
    EXPECT_LT(pane.ImageListOpen(2).TabIndex(), pane.ImageListRemove(2).TabIndex());
    EXPECT_LT(pane.ImageListRename(2).TabIndex(), pane.TextListRename(2).TabIndex());
    EXPECT_LT(pane.TextListRename(2).TabIndex(), pane.ImageListOKRename(2).TabIndex());
    EXPECT_LT(pane.ImageListCancelRename(4).TabIndex(), pane.ImageConfirmClearList.TabIndex());
    EXPECT_LT(pane.ImageCancelClearList.TabIndex(), f.PictureHideList.TabIndex());
    // An area comes after what it holds, so it lies beneath it.
    EXPECT_LT(pane.FrameListRename(2).TabIndex(), pane.PictureGroupList(2).TabIndex());
    EXPECT_LT(pane.PictureGroupList(2).TabIndex(), f.PictureList.TabIndex());
}

TEST_F(ChooseList, AGroupButtonsReleasePaintsTheFileButtonAsChosenSinceTheMarkIsNeverSet) {
    t.FillAllGroups();
    t.OpenPane();
    EXPECT_EQ(t.app.ShowListMark, 0);
    ui::PictureBox& program = pane.ImageShowList(2);
    program.UserMouseDown(ui::LeftButton, 0, 0, 0);
    EXPECT_EQ(program.Picture(), theme.ImageZeroOver);
    program.UserMouseUp(ui::LeftButton, 0, 0, 0);
    // Program is the group shown, yet its release paints the plain picture.
    EXPECT_EQ(program.Picture(), theme.ImageZeroSet[0]);
    ui::PictureBox& file = pane.ImageShowList(0);
    file.UserMouseDown(ui::LeftButton, 0, 0, 0);
    file.UserMouseUp(ui::LeftButton, 0, 0, 0);
    EXPECT_EQ(file.Picture(), theme.ImageZeroSet[2]);
    EXPECT_EQ(t.app.ListGroupShown, 2);
}

TEST_F(ChooseList, ThePanesButtonsSwapTheirPicturesByFamily) {
    t.FillAllGroups();
    t.OpenPane();
    const std::int16_t th = t.app.settings.ThemeIndex;
    struct Case {
        ui::PictureBox& button;
        ui::PictureRef down;
        ui::PictureRef up;
    };
    const ui::PictureRef star = OneOfTheme(ui::PictureSlot::ImageMStar, th);
    const ui::PictureRef cross = OneOfTheme(ui::PictureSlot::ImageMX, th);
    const Case cases[] = {
        {pane.ImageListOpen(2), theme.ImageZeroOver, theme.ImageZeroSet[0]},
        {pane.ImageListRemove(2), theme.ImageZeroOver, theme.ImageZeroSet[0]},
        {pane.ImageListRename(2), theme.ImageZeroOver, theme.ImageZeroSet[0]},
        {pane.ImageListOKRename(2), theme.ImageZeroOver, theme.ImageZeroSet[0]},
        {pane.ImageListCancelRename(2), theme.ImageZeroOver, theme.ImageZeroSet[0]},
        {pane.ImageListClear(2), theme.ImageZeroOver, theme.ImageZeroSet[3]},
        {pane.ImageConfirmClearList, theme.ImageZeroOver, theme.ImageZeroSet[3]},
        {pane.ImageCancelClearList, star, cross},
    };
    for (const Case& c : cases) {
        c.button.UserMouseDown(ui::LeftButton, 0, 0, 0);
        EXPECT_EQ(c.button.Picture(), c.down) << std::string(c.button.Name().begin(), c.button.Name().end());
        c.button.UserMouseUp(ui::LeftButton, 0, 0, 0);
        EXPECT_EQ(c.button.Picture(), c.up) << std::string(c.button.Name().begin(), c.button.Name().end());
    }
}

TEST_F(ChooseList, TheLastItemRemovedLeavesThePanelWithOpenAndRemoveGoneAndItsGroupButtonUntilTheNextClick) {
    t.Add(2, L"editor", L"C:\\Apps\\editor.exe");
    t.Add(4, L"news", L"http://news.example/");
    t.OpenPane();
    pane.ImageListRemove(2).Press();
    pane.ImageConfirmClearList.Press();
    EXPECT_EQ(MergedNames(t, 2).ListCount(), 0);
    EXPECT_TRUE(pane.PictureGroupList(2).Visible());
    EXPECT_FALSE(pane.ImageListOpen(2).Visible());
    EXPECT_FALSE(pane.ImageListRemove(2).Visible());
    EXPECT_EQ(pane.ImageListOpen(2).Picture(), theme.ImageZeroBlank);
    EXPECT_EQ(pane.ImageListRemove(2).Picture(), theme.ImageZeroBlank);
    EXPECT_EQ(pane.LabelListTotalA(2).Caption(), L"0");
    EXPECT_EQ(pane.LabelListTotalB(2).Caption(), L"Program Added To Launch List: 0");
    EXPECT_TRUE(pane.ImageShowList(2).Visible());
    pane.ImageShowList(4).Press();
    EXPECT_FALSE(pane.ImageShowList(2).Visible());
}

TEST_F(ChooseList, RemovingAnItemLeavesTheFirstSelectedAndTheCountsNew) {
    t.Add(2, L"editor", L"C:\\Apps\\editor.exe");
    t.Add(2, L"player", L"C:\\Apps\\player.exe");
    t.Add(2, L"viewer", L"C:\\Apps\\viewer.exe");
    t.OpenPane();
    t.choose().ComboListItemName(2).UserSelected(1);
    pane.ImageListRemove(2).Press();
    EXPECT_EQ(pane.LabelConfirmClearListA.Caption(), L"Remove \"player\" From Launch List?");
    EXPECT_FALSE(pane.LabelConfirmClearListB.Visible());
    pane.ImageConfirmClearList.Press();
    EXPECT_EQ(Entries(MergedNames(t, 2)), (std::vector<std::wstring>{L"editor", L"viewer"}));
    EXPECT_EQ(Entries(MergedPaths(t, 2)),
              (std::vector<std::wstring>{L"C:\\Apps\\editor.exe", L"C:\\Apps\\viewer.exe"}));
    EXPECT_EQ(Entries(ComputerNames(t, 2)), (std::vector<std::wstring>{L"editor", L"viewer"}));
    EXPECT_EQ(MergedNames(t, 2).ListIndex(), 0);
    EXPECT_EQ(MergedPaths(t, 2).ListIndex(), 0);
    EXPECT_EQ(pane.LabelListTotalA(2).Caption(), L"2");
    EXPECT_EQ(pane.LabelListTotalB(2).Caption(), L"Program Added To Launch List: 2");
    EXPECT_EQ(pane.LabelListItemNum(2).Caption(), L"Showing Program # 1");
    EXPECT_TRUE(pane.ImageListOpen(2).Visible());
    EXPECT_TRUE(pane.ImageListRemove(2).Visible());
}

TEST_F(ChooseList, AfterAClearTheOpenRenameAndRemoveButtonsStayAndTheCountsShowTheOldNumbers) {
    t.Add(0, L"notes", L"C:\\Docs\\notes.txt");
    t.Add(0, L"plan", L"C:\\Docs\\plan.doc");
    t.OpenPane();
    pane.ImageListClear(0).Press();
    EXPECT_EQ(pane.LabelConfirmClearListA.Caption(), L"Really Want To Remove From Launch List All ");
    EXPECT_EQ(pane.LabelConfirmClearListB.Caption(), L"File?");
    EXPECT_TRUE(pane.LabelConfirmClearListB.Visible());
    pane.ImageConfirmClearList.Press();
    EXPECT_EQ(MergedNames(t, 0).ListCount(), 0);
    EXPECT_EQ(MergedNames(t, 0).ListIndex(), -1);
    EXPECT_EQ(MergedPaths(t, 0).ListIndex(), -1);
    EXPECT_TRUE(pane.ImageListOpen(0).Visible());
    EXPECT_TRUE(pane.ImageListRename(0).Visible());
    EXPECT_TRUE(pane.ImageListRemove(0).Visible());
    EXPECT_EQ(pane.LabelListTotalA(0).Caption(), L"2");
    EXPECT_EQ(pane.LabelListTotalB(0).Caption(), L"File Added To Launch List: 2");
    EXPECT_TRUE(pane.ImageShowList(0).Visible());
}

TEST_F(ChooseList, AClearAndTheLastRemoveHideTheQuickLaunchersGroupButtonWithTheBlankPicture) {
    t.Add(0, L"notes", L"C:\\Docs\\notes.txt");
    t.Add(2, L"editor", L"C:\\Apps\\editor.exe");
    t.app.settings.ThemeIndex = 3;
    t.app.frmQuick.Load();
    ASSERT_TRUE(t.app.frmQuick.ImageQuickChoice(0).Visible());
    ASSERT_TRUE(t.app.frmQuick.ImageQuickChoice(2).Visible());
    const ui::PictureRef blank = OneOfTheme(ui::PictureSlot::ImageMStar, 3);
    t.OpenPane();
    pane.ImageListRemove(2).Press();
    pane.ImageConfirmClearList.Press();
    EXPECT_FALSE(t.app.frmQuick.ImageQuickChoice(2).Visible());
    EXPECT_EQ(t.app.frmQuick.ImageQuickChoice(2).Picture(), blank);
    EXPECT_TRUE(t.app.frmQuick.ImageQuickChoice(0).Visible());
    t.ShowGroup(0);
    pane.ImageListClear(0).Press();
    pane.ImageConfirmClearList.Press();
    EXPECT_FALSE(t.app.frmQuick.ImageQuickChoice(0).Visible());
    EXPECT_EQ(t.app.frmQuick.ImageQuickChoice(0).Picture(), blank);
}

TEST_F(ChooseList, AClearWipesBothSidesOfTheGroup) {
    ChooseApp flash(L'E');
    flash.Add(1, L"docs", L"C:\\Docs");
    flash.Add(1, L"music", L"E:\\Music");
    flash.Add(2, L"player", L"E:\\Apps\\player.exe");
    flash.OpenPane();
    flash.ShowGroup(1);
    ASSERT_EQ(FlashNames(flash, 1).ListCount(), 1);
    ASSERT_EQ(ComputerNames(flash, 1).ListCount(), 1);
    flash.pane().ImageListClear(1).Press();
    flash.pane().ImageConfirmClearList.Press();
    EXPECT_EQ(MergedNames(flash, 1).ListCount(), 0);
    EXPECT_EQ(MergedPaths(flash, 1).ListCount(), 0);
    EXPECT_EQ(FlashNames(flash, 1).ListCount(), 0);
    EXPECT_EQ(FlashPaths(flash, 1).ListCount(), 0);
    EXPECT_EQ(ComputerNames(flash, 1).ListCount(), 0);
    EXPECT_EQ(ComputerPaths(flash, 1).ListCount(), 0);
    // Only the group shown goes.
    EXPECT_EQ(MergedNames(flash, 2).ListCount(), 1);
    EXPECT_EQ(FlashNames(flash, 2).ListCount(), 1);
}

TEST_F(ChooseList, ASameNamedItemOnBothSidesIsRemovedFromTheSideItsPathNames) {
    ChooseApp flash(L'E');
    flash.Add(2, L"tool", L"C:\\Apps\\tool.exe");
    flash.Add(2, L"tool", L"e:\\Apps\\tool.exe");
    flash.OpenPane();
    auto& names = MergedNames(flash, 2);
    auto& paths = MergedPaths(flash, 2);
    ASSERT_EQ(names.ListCount(), 2);
    // Take the flash drive's entry, whatever its place in the merged list.
    const std::int32_t onDrive = std::wstring(paths.List(0)) == L"e:\\Apps\\tool.exe" ? 0 : 1;
    flash.choose().ComboListItemName(2).UserSelected(onDrive);
    flash.pane().ImageListRemove(2).Press();
    flash.pane().ImageConfirmClearList.Press();
    EXPECT_EQ(Entries(paths), (std::vector<std::wstring>{L"C:\\Apps\\tool.exe"}));
    EXPECT_EQ(FlashNames(flash, 2).ListCount(), 0);
    EXPECT_EQ(Entries(ComputerPaths(flash, 2)), (std::vector<std::wstring>{L"C:\\Apps\\tool.exe"}));
    // The flash count is shown anew, the computer's removal would not.
    EXPECT_EQ(flash.pane().LabelUSBTotal(2).Caption(), L"0");
}

TEST_F(ChooseList, OnAFixedDiskAPathOnTheSameLetterIsStillTheComputersSide) {
    t.Add(2, L"tool", L"C:\\Apps\\tool.exe");
    t.OpenPane();
    pane.ImageListRemove(2).Press();
    pane.ImageConfirmClearList.Press();
    EXPECT_EQ(ComputerNames(t, 2).ListCount(), 0);
    EXPECT_EQ(MergedNames(t, 2).ListCount(), 0);
}

}  // namespace
}  // namespace qs::test
