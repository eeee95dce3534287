// The QuickLauncher's pages: the group click, Forward and Back, over groups
// of every size that matters.
#include <gtest/gtest.h>

#include "quick_app.h"

namespace {

using qs::test::QuickApp;
using qs::ui::PictureRef;
using qs::ui::PictureSlot;

struct QuickPages : ::testing::Test {
    QuickApp t;
    qs::FrmQuick& q() { return t.quick(); }
    PictureRef Star() const { return {PictureSlot::ImageMStar, t.app.settings.ThemeIndex}; }
    PictureRef Forward() const { return {PictureSlot::ImageMForward, t.app.settings.ThemeIndex}; }
    PictureRef Backward() const { return {PictureSlot::ImageMBackward, t.app.settings.ThemeIndex}; }
    // Fills a group, loads the window and clicks the group's button.
    void ShowGroup(int group, int count) {
        t.AddItems(group, count);
        t.LoadQuick();
        q().ImageQuickChoice(group).Press();
    }
    // The item names of `count` numbers from `first`, as the buttons show them.
    static std::vector<std::wstring> Names(int first, int count) {
        std::vector<std::wstring> names;
        for (int n = first; n < first + count; ++n) names.push_back(QuickApp::ItemName(n));
        return names;
    }
    void ExpectEmptyFrom(std::int16_t from) {
        for (std::int16_t i = from; i < 20; ++i) {
            EXPECT_FALSE(q().ImageQuick(i).Visible()) << i;
            EXPECT_EQ(q().ImageQuick(i).ToolTipText(), L"Empty") << i;
            EXPECT_EQ(q().ImageQuick(i).Picture(), Star()) << i;
            EXPECT_EQ(q().LabelQIndex(i).Caption(), L"xx") << i;
        }
    }
};

TEST_F(QuickPages, AGroupWithNoItemsShowsAnEmptyPageWithNoArrows) {
    t.AddItems(2, 1);
    t.LoadQuick();
    q().ImageQuickChoiceClick(0);
    EXPECT_TRUE(t.ShownItems().empty());
    ExpectEmptyFrom(0);
    EXPECT_EQ(q().LabelQuickShowing.Caption(), L"Showing: 1-0");
    EXPECT_EQ(q().LabelQuickTotal.Caption(), L"0");
    EXPECT_FALSE(q().ImageQuickForward.Visible());
    EXPECT_EQ(q().ImageQuickForward.Picture(), Star());
    EXPECT_FALSE(q().ImageQuickBack.Visible());
}

TEST_F(QuickPages, OneItemShowsOneButtonNumberedWithALeadingZero) {
    ShowGroup(2, 1);
    EXPECT_EQ(t.ShownItems(), Names(1, 1));
    EXPECT_EQ(q().ImageQuick(0).Picture(), t.app.theme.ImageZeroSet[2]);
    EXPECT_EQ(q().LabelQIndex(0).Caption(), L"01");
    ExpectEmptyFrom(1);
    EXPECT_EQ(q().LabelQuickShowing.Caption(), L"Showing: 1-1");
    EXPECT_EQ(q().LabelQuickTotal.Caption(), L"1");
    EXPECT_FALSE(q().ImageQuickForward.Visible());
    EXPECT_FALSE(q().ImageQuickBack.Visible());
}

TEST_F(QuickPages, AGroupWithTwentyItemsShowsOnePageAndNoForwardArrow) {
    ShowGroup(0, 20);
    EXPECT_EQ(t.ShownItems(), Names(1, 20));
    EXPECT_EQ(q().LabelQIndex(8).Caption(), L"09");
    EXPECT_EQ(q().LabelQIndex(9).Caption(), L"10");
    EXPECT_EQ(q().LabelQIndex(19).Caption(), L"20");
    EXPECT_EQ(q().LabelQuickShowing.Caption(), L"Showing: 1-20");
    EXPECT_FALSE(q().ImageQuickForward.Visible());
    EXPECT_EQ(q().ImageQuickForward.Picture(), Star());
}

TEST_F(QuickPages, TwentyOneItemsShowForwardAndTheSecondPageShowsOneButtonAndNineteenEmpty) {
    ShowGroup(0, 21);
    EXPECT_EQ(q().LabelQuickShowing.Caption(), L"Showing: 1-20");
    EXPECT_TRUE(q().ImageQuickForward.Visible());
    EXPECT_EQ(q().ImageQuickForward.Picture(), Forward());
    q().ImageQuickForward.Press();
    EXPECT_EQ(t.ShownItems(), Names(21, 1));
    EXPECT_EQ(q().LabelQIndex(0).Caption(), L"21");
    ExpectEmptyFrom(1);
    EXPECT_EQ(q().LabelQuickShowing.Caption(), L"Showing: 21-21");
    EXPECT_TRUE(q().ImageQuickBack.Visible());
    EXPECT_FALSE(q().ImageQuickForward.Visible());
}

TEST_F(QuickPages, GoingBackFromAShortLastPageAlwaysYieldsAFullPage) {
    ShowGroup(4, 45);
    q().ImageQuickForward.Press();
    EXPECT_EQ(q().LabelQuickShowing.Caption(), L"Showing: 21-40");
    EXPECT_TRUE(q().ImageQuickForward.Visible());
    q().ImageQuickForward.Press();
    EXPECT_EQ(t.ShownItems(), Names(41, 5));
    EXPECT_EQ(q().LabelQuickShowing.Caption(), L"Showing: 41-45");
    EXPECT_FALSE(q().ImageQuickForward.Visible());
    q().ImageQuickBack.Press();
    EXPECT_EQ(t.ShownItems(), Names(21, 20));
    EXPECT_EQ(q().LabelQIndex(0).Caption(), L"21");
    EXPECT_EQ(q().LabelQIndex(19).Caption(), L"40");
    EXPECT_EQ(q().LabelQuickShowing.Caption(), L"Showing: 21-40");
    EXPECT_TRUE(q().ImageQuickBack.Visible());
    EXPECT_EQ(q().ImageQuickBack.Picture(), Backward());
    EXPECT_TRUE(q().ImageQuickForward.Visible());
    EXPECT_EQ(q().ImageQuickForward.Picture(), Forward());
    q().ImageQuickBack.Press();
    EXPECT_EQ(t.ShownItems(), Names(1, 20));
    EXPECT_EQ(q().LabelQIndex(0).Caption(), L"01");
    EXPECT_EQ(q().LabelQuickShowing.Caption(), L"Showing: 1-20");
    EXPECT_FALSE(q().ImageQuickBack.Visible());
    EXPECT_EQ(q().ImageQuickBack.Picture(), Star());
}

TEST_F(QuickPages, ForwardShowsTheBackArrowWithThePictureItHad) {
    ShowGroup(4, 45);
    ASSERT_EQ(q().ImageQuickBack.Picture(), Star());
    // Forward only makes the arrow visible; its picture changes when it is
    // pressed or a Back click draws it.
    q().ImageQuickForwardClick();
    EXPECT_TRUE(q().ImageQuickBack.Visible());
    EXPECT_EQ(q().ImageQuickBack.Picture(), Star());
    q().ImageQuickBack.UserMouseDown(1, 0, 0, 0);
    EXPECT_EQ(q().ImageQuickBack.Picture(), t.app.theme.ImageZeroOver);
    q().ImageQuickBack.UserMouseUp(1, 0, 0, 0);
    EXPECT_EQ(q().ImageQuickBack.Picture(), Backward());
}

TEST_F(QuickPages, TheNineHundredNinetyNinthItemIsTheLastReachable) {
    ShowGroup(2, 999);
    for (int page = 1; page < 50; ++page) {
        ASSERT_TRUE(q().ImageQuickForward.Visible()) << page;
        q().ImageQuickForward.Press();
    }
    EXPECT_EQ(q().LabelQuickShowing.Caption(), L"Showing: 981-999");
    EXPECT_EQ(t.ShownItems(), Names(981, 19));
    EXPECT_EQ(q().LabelQIndex(18).Caption(), L"999");
    ExpectEmptyFrom(19);
    EXPECT_FALSE(q().ImageQuickForward.Visible());
}

TEST_F(QuickPages, AGroupWithTwelveHundredItemsStopsAtTheNineHundredNinetyNinthWithNoForwardArrow) {
    ShowGroup(3, 1200);
    EXPECT_EQ(q().LabelQuickTotal.Caption(), L"1200");
    for (int page = 1; page < 50; ++page) q().ImageQuickForward.Press();
    EXPECT_EQ(q().LabelQuickShowing.Caption(), L"Showing: 981-999");
    EXPECT_EQ(t.ShownItems(), Names(981, 19));
    ExpectEmptyFrom(19);
    EXPECT_FALSE(q().ImageQuickForward.Visible());
    // Back from there is a full page again.
    q().ImageQuickBack.Press();
    EXPECT_EQ(q().LabelQuickShowing.Caption(), L"Showing: 961-980");
    EXPECT_EQ(t.ShownItems(), Names(961, 20));
}

TEST_F(QuickPages, TheGroupClickNamesTheGroupInTheTooltips) {
    ShowGroup(0, 3);
    EXPECT_EQ(q().ImageQuickBack.ToolTipText(), L"File List Go Back");
    EXPECT_EQ(q().ImageQuickForward.ToolTipText(), L"File List Go Frorward");
    EXPECT_EQ(q().LabelQuickTotal.ToolTipText(), L"Total File In Launch List");
    EXPECT_EQ(q().ImageQuickSelected.ToolTipText(), L"Showing File Group");
    EXPECT_EQ(q().ImageQuickSelected.Picture(), t.app.theme.ImageChoiceSet[0]);
}

TEST_F(QuickPages, EachGroupHasItsOwnNameInTheTooltips) {
    const wchar_t* names[] = {L"File", L"Directory (Folder)", L"Program", L"Email", L"Web URL"};
    for (int g = 0; g < 5; ++g) t.AddItems(g, 1);
    t.LoadQuick();
    for (std::int16_t g = 0; g < 5; ++g) {
        q().ImageQuickChoiceClick(g);
        const std::wstring name = names[g];
        EXPECT_EQ(q().ImageQuickBack.ToolTipText(), name + L" List Go Back");
        EXPECT_EQ(q().ImageQuickForward.ToolTipText(), name + L" List Go Frorward");
        EXPECT_EQ(q().LabelQuickTotal.ToolTipText(), L"Total " + name + L" In Launch List");
        EXPECT_EQ(q().ImageQuickSelected.ToolTipText(), L"Showing " + name + L" Group");
    }
}

TEST_F(QuickPages, TheChosenGroupsButtonHidesWithItsSelectedPictureAndTheOthersShowTheirOwn) {
    t.AddItems(0, 2);
    t.AddItems(1, 2);
    t.AddItems(4, 2);
    t.LoadQuick();
    q().ImageQuickChoice(1).Press();
    EXPECT_FALSE(q().ImageQuickChoice(1).Visible());
    EXPECT_EQ(q().ImageQuickChoice(1).Picture(), (PictureRef{PictureSlot::ImageMQSelected, 1}));
    EXPECT_TRUE(q().ImageQuickChoice(0).Visible());
    EXPECT_EQ(q().ImageQuickChoice(0).Picture(), t.app.theme.ImageChoiceSet[0]);
    EXPECT_TRUE(q().ImageQuickChoice(4).Visible());
    EXPECT_EQ(q().ImageQuickChoice(4).Picture(), t.app.theme.ImageChoiceSet[4]);
    EXPECT_FALSE(q().ImageQuickChoice(2).Visible());
    EXPECT_EQ(q().ImageQuickChoice(2).Picture(), Star());
    // Another group brings the first one's button back.
    q().ImageQuickChoice(4).Press();
    EXPECT_TRUE(q().ImageQuickChoice(1).Visible());
    EXPECT_EQ(q().ImageQuickChoice(1).Picture(), t.app.theme.ImageChoiceSet[1]);
    EXPECT_EQ(q().QuickGroup, 4);
}

TEST_F(QuickPages, AGroupChangeRedrawsFromTheFirstPage) {
    t.AddItems(0, 30);
    t.AddItems(2, 2);
    t.LoadQuick();
    q().ImageQuickChoice(0).Press();
    q().ImageQuickForward.Press();
    q().ImageQuickChoice(2).Press();
    EXPECT_EQ(t.ShownItems(), Names(1, 2));
    EXPECT_EQ(q().LabelQuickShowing.Caption(), L"Showing: 1-2");
    EXPECT_FALSE(q().ImageQuickBack.Visible());
    EXPECT_EQ(q().ImageQuickBack.Picture(), Star());
}

TEST_F(QuickPages, TheListsAreReadLiveAtEachPageChange) {
    ShowGroup(0, 2);
    t.AddItem(0, L"Item 0003", QuickApp::ItemPath(0, 3));
    EXPECT_EQ(t.ShownItems(), Names(1, 2));
    q().ImageQuickChoiceClick(0);
    EXPECT_EQ(t.ShownItems(), Names(1, 3));
}

}  // namespace
