// The bar's controls, their places on the form and their tooltips, and what
// Load makes of the options.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "bar_app.h"

namespace {

using qs::test::BarApp;

struct Place {
    const qs::ui::Control* control;
    std::int32_t left, top, width, height;
    std::wstring tip;
};

std::vector<Place> BarTable(qs::FrmMain& f) {
    return {
        {&f.CommandMainClick, 7200, 0, 372, 252, L""},
        {&f.PictureBackZero, 0, 0, 480, 372, L""},
        {&f.PictureZero, 144, 72, 168, 168, L"Minimize Window On Screen"},
        {&f.PictureBackMain, 600, 0, 5640, 372, L""},
        {&f.TextMain, 720, 0, 1812, 372, L""},
        {&f.PictureMenu(0), 2640, 30, 235, 235, L"Add Items To Launch List"},
        {&f.PictureMenu(1), 3000, 30, 235, 235, L"Browse To Open File | Run Program"},
        {&f.PictureMenu(2), 3360, 30, 235, 235, L"Show|HIde   Launch List"},
        {&f.PictureMenu(3), 3720, 30, 235, 235, L"Show|Hide   Command Code|Predefined Launch Names"},
        {&f.PictureMenu(4), 4080, 30, 235, 235, L"Show|Hide    Preferences Window"},
        {&f.PictureHelp, 4440, 30, 235, 235, L"Show|Hide Help"},
        {&f.PictureWeb, 4800, 30, 235, 235, L"Show|Hide   Add Web URL Window"},
        {&f.PictureShowQuick, 5215, 90, 120, 120, L"Show|Hide QuickLauncher"},
        {&f.PictureHide, 5520, 30, 235, 235, L"Hide Window In Tray"},
        {&f.PictureExit, 5880, 30, 235, 235, L"Exit"},
        {&f.PictureBackWeb, 6360, 0, 5940, 372, L""},
        {&f.LabelWebURL, 6480, 24, 372, 192, L""},
        {&f.TextWebUrl, 6960, 0, 2400, 300, L""},
        {&f.LabelWebName, 9600, 24, 1140, 192, L""},
        {&f.TextWebName, 10800, 0, 1092, 300, L""},
        {&f.ImageApp, 11910, 0, 336, 336, L""},
        {&f.PictureNo, 960, 0, 360, 372, L""},
    };
}

TEST(BarLayout, EveryControlStandsInItsPlaceOnTheFormWithItsStripsLeftAdded) {
    BarApp t;
    for (const Place& p : BarTable(t.bar())) {
        SCOPED_TRACE(std::string(p.control->Name().begin(), p.control->Name().end()));
        EXPECT_EQ(p.control->Left(), p.left);
        EXPECT_EQ(p.control->Top(), p.top);
        EXPECT_EQ(p.control->Width(), p.width);
        EXPECT_EQ(p.control->Height(), p.height);
    }
}

TEST(BarLayout, TooltipsReadByteForByte) {
    BarApp t;
    for (const Place& p : BarTable(t.bar())) {
        SCOPED_TRACE(std::string(p.control->Name().begin(), p.control->Name().end()));
        EXPECT_EQ(p.control->ToolTipText(), p.tip);
    }
}

TEST(BarLayout, ControlNamesAreTheProgramsOwn) {
    BarApp t;
    EXPECT_EQ(t.bar().PictureMenu.Count(), 5);
    EXPECT_EQ(t.bar().PictureMenu(3).Name(), L"PictureMenu(3)");
    EXPECT_EQ(t.bar().Caption(), L"Quillstart");
    EXPECT_EQ(t.bar().LabelWebURL.Caption(), L"URL");
    EXPECT_EQ(t.bar().LabelWebName.Caption(), L"Launch Name");
}

TEST(BarLayout, TimersHaveTheirIntervalsAndOnlyTheHoverPollRunsAtDesign) {
    qs::test::FakeSystem sys;
    qs::Application app(sys);
    EXPECT_EQ(app.frmMain.TimerMouseOver.Interval(), 100);
    EXPECT_TRUE(app.frmMain.TimerMouseOver.Enabled());
    EXPECT_EQ(app.frmMain.TimerOnTop.Interval(), 1000);
    EXPECT_FALSE(app.frmMain.TimerOnTop.Enabled());
    EXPECT_EQ(app.frmMain.TimerWatchOnTop.Interval(), 1000);
    EXPECT_FALSE(app.frmMain.TimerWatchOnTop.Enabled());
}

TEST(BarLayout, TheCommandBoxAndTheUrlBoxTakeDroppedText) {
    BarApp t;
    EXPECT_TRUE(t.bar().TextMain.AcceptsTextDrop());
    EXPECT_TRUE(t.bar().TextWebUrl.AcceptsTextDrop());
    EXPECT_FALSE(t.bar().TextWebName.AcceptsTextDrop());
}

TEST(BarLayout, TheLaunchNameBoxStartsHiddenAndTheProgramsPictureShows) {
    BarApp t;
    EXPECT_FALSE(t.bar().TextWebName.Visible());
    EXPECT_EQ(qs::ui::PictureName(t.bar().ImageApp.Picture()), L"ImageApp(0)");
}

TEST(BarLoad, ANormalStartGivesTheFullBarAtTheSavedPlace) {
    BarApp t;
    t.app.settings.MainLeft = 3000;
    t.app.settings.MainTop = 1200;
    t.Reload();
    EXPECT_EQ(t.app.MainWidth, qs::MainWidthCommand);
    EXPECT_EQ(t.bar().LastWideWidth, qs::MainWidthCommand);
    EXPECT_EQ(t.bar().Width(), 6360);
    EXPECT_EQ(t.bar().Height(), 348);
    EXPECT_EQ(t.bar().Left(), 3000);
    EXPECT_EQ(t.bar().Top(), 1200);
    EXPECT_EQ(t.app.MainWidthPixels, 424);
    EXPECT_EQ(t.bar().WebSavedLeft, -1);
    EXPECT_EQ(t.bar().ZeroSavedLeft, -1);
}

TEST(BarLoad, TheWebPaneOptionWinsOverStartMinimized) {
    BarApp t;
    t.app.settings.OptionShowAddUrlBox = 1;
    t.app.settings.OptionStartMinimized = 1;
    t.Reload();
    EXPECT_TRUE(t.bar().WebPaneAtStart);
    EXPECT_EQ(t.bar().Width(), qs::MainWidthWeb);
    EXPECT_EQ(t.bar().LastWideWidth, qs::MainWidthWeb);
    EXPECT_EQ(t.app.MainWidthPixels, 822);
}

TEST(BarLoad, StartMinimizedGivesTheRoundButtonAndTheBoxOnly) {
    BarApp t;
    t.app.settings.OptionStartMinimized = 1;
    t.Reload();
    EXPECT_EQ(t.bar().Width(), qs::MainWidthZero);
    EXPECT_EQ(t.bar().LastWideWidth, qs::MainWidthZero);
    // No control is hidden: the window's edge cuts the buttons off.
    EXPECT_TRUE(t.bar().PictureExit.Visible());
}

TEST(BarLoad, FontsFollowTheOptionsAndTheCommandBoxIsNeverBelowEightPoints) {
    BarApp t;
    t.app.settings.FontSizeSetting = 5;
    t.app.settings.OptionMainFontBold = 1;
    t.app.settings.OptionAddUrlFontBold = 0;
    t.Reload();
    EXPECT_EQ(t.bar().TextMain.FontSize(), 8);
    EXPECT_TRUE(t.bar().TextMain.FontBold());
    EXPECT_FALSE(t.bar().TextWebUrl.FontBold());
    t.app.settings.FontSizeSetting = 12;
    t.app.settings.OptionMainFontBold = 0;
    t.app.settings.OptionAddUrlFontBold = 1;
    t.Reload();
    EXPECT_EQ(t.bar().TextMain.FontSize(), 12);
    EXPECT_FALSE(t.bar().TextMain.FontBold());
    EXPECT_TRUE(t.bar().TextWebUrl.FontBold());
    EXPECT_TRUE(t.bar().TextWebName.FontBold());
}

TEST(BarLoad, TheBoxShowsTheProgramsNameWithoutAutoFillAndNoClickIsPending) {
    BarApp t;
    t.AddItem(2, L"Quillstart Helper", L"C:\\Helper.exe");
    t.app.PendingClick = 3;
    t.Reload();
    EXPECT_EQ(t.Text(), L"Quillstart");
    EXPECT_EQ(t.app.PendingItemIndex, -1);
    EXPECT_EQ(t.app.PendingClick, -1);
    EXPECT_FALSE(t.app.TextMainBusy);
}

}  // namespace
