// A QuickLauncher button launches its item by group, without the Command
// run, and hides until the page is drawn again.
#include <gtest/gtest.h>

#include "quick_app.h"
#include "shown_messages.h"

namespace {

using qs::test::Launch;
using qs::test::QuickApp;
using qs::ui::PictureRef;
using qs::ui::PictureSlot;

struct QuickItems : ::testing::Test {
    QuickApp t;
    qs::FrmQuick& q() { return t.quick(); }
    void ShowGroup(int group, int count) {
        t.AddItems(group, count);
        t.LoadQuick();
        q().ImageQuickChoice(group).Press();
    }
};

TEST_F(QuickItems, AFileOpensByItsAssociation) {
    ShowGroup(0, 3);
    q().ImageQuick(1).Press();
    ASSERT_EQ(t.sys.launches.size(), 1u);
    EXPECT_EQ(t.sys.launches[0].kind, Launch::Kind::Open);
    EXPECT_EQ(t.sys.launches[0].target, QuickApp::ItemPath(0, 2));
}

TEST_F(QuickItems, AFolderOpensInTheFileManagerOfTheWindowsFolder) {
    ShowGroup(1, 3);
    q().ImageQuick(2).Press();
    ASSERT_EQ(t.sys.launches.size(), 1u);
    EXPECT_EQ(t.sys.launches[0].kind, Launch::Kind::Run);
    EXPECT_EQ(t.sys.launches[0].target, L"C:\\Windows\\explorer.exe " + QuickApp::ItemPath(1, 3));
}

TEST_F(QuickItems, AProgramStarts) {
    ShowGroup(2, 1);
    q().ImageQuick(0).Press();
    ASSERT_EQ(t.sys.launches.size(), 1u);
    EXPECT_EQ(t.sys.launches[0].kind, Launch::Kind::Open);
    EXPECT_EQ(t.sys.launches[0].target, QuickApp::ItemPath(2, 1));
}

TEST_F(QuickItems, AnEmailAddressStartsAMail) {
    ShowGroup(3, 2);
    q().ImageQuick(1).Press();
    ASSERT_EQ(t.sys.launches.size(), 1u);
    EXPECT_EQ(t.sys.launches[0].kind, Launch::Kind::Open);
    EXPECT_EQ(t.sys.launches[0].target, L"mailto:" + QuickApp::ItemPath(3, 2));
}

TEST_F(QuickItems, AWebAddressOpensInTheBrowser) {
    ShowGroup(4, 2);
    q().ImageQuick(0).Press();
    ASSERT_EQ(t.sys.launches.size(), 1u);
    EXPECT_EQ(t.sys.launches[0].kind, Launch::Kind::Open);
    EXPECT_EQ(t.sys.launches[0].target, QuickApp::ItemPath(4, 1));
}

TEST_F(QuickItems, AButtonOnALaterPageLaunchesTheItemOfThatPage) {
    ShowGroup(2, 25);
    q().ImageQuickForward.Press();
    q().ImageQuick(3).Press();
    EXPECT_EQ(t.LastTarget(), QuickApp::ItemPath(2, 24));
    EXPECT_EQ(q().QuickItemClicked, 3);
}

TEST_F(QuickItems, ALaunchedItemsButtonIsHiddenUntilARedraw) {
    ShowGroup(2, 25);
    q().ImageQuick(4).Press();
    EXPECT_FALSE(q().ImageQuick(4).Visible());
    EXPECT_EQ(q().ImageQuick(4).Picture(), (PictureRef{PictureSlot::ImageMStar, t.app.settings.ThemeIndex}));
    EXPECT_EQ(q().ImageQuick(4).ToolTipText(), QuickApp::ItemName(5));
    // A hidden button takes no second click.
    q().ImageQuick(4).Press();
    EXPECT_EQ(t.sys.launches.size(), 1u);
    q().ImageQuickForward.Press();
    q().ImageQuickBack.Press();
    EXPECT_TRUE(q().ImageQuick(4).Visible());
    EXPECT_EQ(q().ImageQuick(4).Picture(), t.app.theme.ImageZeroSet[2]);
}

TEST_F(QuickItems, TheLaunchDoesNotGoThroughTheCommandBoxButEmptiesIt) {
    ShowGroup(2, 1);
    t.Type(L"p-x");
    q().ImageQuick(0).Press();
    EXPECT_EQ(t.Text(), L"");
    EXPECT_EQ(t.sys.launches.size(), 1u);
}

TEST_F(QuickItems, AFailedStartOffersTheBugReportAfterTheButtonIsHidden) {
    ShowGroup(0, 2);
    t.sys.shellOpenResult = 2;
    bool hiddenAtReport = false;
    t.dialogs.Answer([&](qs::FrmMessage&) { hiddenAtReport = !q().ImageQuick(0).Visible(); });
    q().ImageQuick(0).Press();
    EXPECT_TRUE(qs::test::BugShown(t, L"Quillstart:Bug:ActionProgramStartA"));
    EXPECT_TRUE(hiddenAtReport);
}

TEST_F(QuickItems, ASuccessfulStartShowsNoMessage) {
    ShowGroup(4, 1);
    q().ImageQuick(0).Press();
    EXPECT_TRUE(qs::test::ShownMessages(t).empty());
    EXPECT_EQ(t.app.MessageToShow, L"");
}

}  // namespace
