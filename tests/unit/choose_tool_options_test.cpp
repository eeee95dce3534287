// The Preferences pane's boxes and options: what each changes at once, and
// whether Save is called for, by the sums each handler compares.
#include <gtest/gtest.h>

#include "choose_tool_setup.h"
#include "theme/holders.h"
#include "theme/theme_colors.h"

namespace qs::test {
namespace {

struct ChooseToolOptions : ::testing::Test {
    // Saved: word 57 (Start With Windows, both bolds, always on top), size
    // 8, the Program group first, theme 0.
    PrefsApp t;
    PreferencesPane& pane = t.pane();
    Settings& s = t.settings();
    void SetUp() override { t.OpenPane(); }
    void ExpectClean() {
        EXPECT_FALSE(t.SaveShown());
        EXPECT_FALSE(t.CallShown());
    }
    void ExpectDirty() {
        EXPECT_TRUE(t.SaveShown());
        EXPECT_TRUE(t.CallShown());
        EXPECT_FALSE(t.NoteShown());
        EXPECT_EQ(pane.ImageOptionSave.Picture(), t.app.theme.ImageZeroSet[0]);
    }
};

TEST_F(ChooseToolOptions, ABoxSetsItsBitItsFlagAndTheEditWordButNotTheSavedWord) {
    t.Click(1);
    EXPECT_EQ(s.OptionBits[1], 2);
    EXPECT_EQ(s.OptionShowAddUrlBox, 1);
    EXPECT_EQ(s.OptionWordEdit, 59);
    EXPECT_EQ(s.OptionBaseEdit, 67);
    EXPECT_EQ(s.OptionTotalEdit, 69);
    EXPECT_EQ(s.OptionWord, 57);
    ExpectDirty();
    t.Click(5);
    EXPECT_EQ(s.OptionBits[5], 0);
    EXPECT_EQ(s.OptionAlwaysOnTop, 0);
    EXPECT_EQ(s.OptionWordEdit, 27);
}

TEST_F(ChooseToolOptions, ABoxClickedBackIsCleanWithTheNote) {
    t.Click(2);
    ExpectDirty();
    t.Click(2);
    ExpectClean();
    EXPECT_TRUE(t.NoteShown());
    EXPECT_EQ(pane.ImageOptionSave.Picture(), t.app.theme.ImageZeroBlank);
}

TEST_F(ChooseToolOptions, TickingAndUntickingStartWithWindowsEndsCleanAndKeepsAutostartChanged) {
    t.Click(0);
    EXPECT_TRUE(pane.IsAutostartChanged());
    EXPECT_EQ(s.OptionStartWithWindows, 0);
    ExpectDirty();
    t.Click(0);
    ExpectClean();
    EXPECT_EQ(s.OptionStartWithWindows, 1);
    EXPECT_TRUE(pane.IsAutostartChanged());
}

TEST_F(ChooseToolOptions, ALaterSaveForAnotherReasonStillRunsTheRunKeyLogic) {
    t.sys.registry[AutostartValueName] = L"D:\\Old\\Quillstart.exe";
    t.Click(0);
    t.Click(0);
    t.Click(1);
    t.Save();
    EXPECT_EQ(t.Autostart(), t.app.ProgramFile);
    EXPECT_FALSE(pane.IsAutostartChanged());
}

TEST_F(ChooseToolOptions, ALaterSaveFindsNothingToChangeWhenTheRunKeyIsAlreadyRight) {
    t.sys.registry[AutostartValueName] = t.app.ProgramFile;
    t.Click(0);
    t.Click(0);
    t.Click(1);
    t.Save();
    EXPECT_EQ(t.Autostart(), t.app.ProgramFile);
}

TEST_F(ChooseToolOptions, TheBoldBoxesActAtOnceOnTheBoxesOfTheBar) {
    FrmMain& bar = t.app.frmMain;
    ASSERT_TRUE(bar.TextMain.FontBold());
    ASSERT_TRUE(bar.TextWebUrl.FontBold());
    t.Click(4);
    EXPECT_FALSE(bar.TextMain.FontBold());
    EXPECT_TRUE(bar.TextWebUrl.FontBold());
    t.Click(3);
    EXPECT_FALSE(bar.TextWebUrl.FontBold());
    EXPECT_FALSE(bar.TextWebName.FontBold());
    t.Click(4);
    EXPECT_TRUE(bar.TextMain.FontBold());
    EXPECT_EQ(bar.TextMain.FontSize(), 8);
}

TEST_F(ChooseToolOptions, TheFontSizeActsAtOnceAndKeepsTheWeight) {
    t.ChooseFontSize(2);
    EXPECT_EQ(t.app.frmMain.TextMain.FontSize(), 12);
    EXPECT_TRUE(t.app.frmMain.TextMain.FontBold());
    EXPECT_EQ(s.FontSizeEdit, 12);
    EXPECT_EQ(s.OptionBaseEdit, 69);
    EXPECT_EQ(s.OptionTotalEdit, 71);
    EXPECT_EQ(s.FontSizeSetting, 8);
    ExpectDirty();
    t.ChooseFontSize(0);
    ExpectClean();
    EXPECT_TRUE(t.NoteShown());
}

TEST_F(ChooseToolOptions, UnsavedBoldAndSizeStayOnScreenWhileTheSavedValuesStayTheOld) {
    t.Click(4);
    t.ChooseFontSize(1);
    t.choose().PictureHideTool.Press();
    EXPECT_FALSE(t.choose().Visible());
    EXPECT_FALSE(t.app.frmMain.TextMain.FontBold());
    EXPECT_EQ(t.app.frmMain.TextMain.FontSize(), 10);
    EXPECT_EQ(s.OptionWord, 57);
    EXPECT_EQ(s.FontSizeSetting, 8);
}

TEST_F(ChooseToolOptions, TheQuickGroupChangesOnlyItsEditCopy) {
    t.ChooseQuick(0);
    EXPECT_EQ(s.QuickDefaultEdit, 0);
    EXPECT_EQ(s.QuickDefaultItem, 2);
    EXPECT_EQ(s.OptionTotalEdit, 65);
    ExpectDirty();
    t.ChooseQuick(2);
    ExpectClean();
}

TEST_F(ChooseToolOptions, NoneIsALegalQuickGroupAndTheHighestIndex) {
    EXPECT_EQ(pane.OptionQuickItem.Count(), 6);
    EXPECT_EQ(pane.OptionQuickItem(5).Caption(), L"None");
    t.ChooseQuick(5);
    EXPECT_EQ(s.QuickDefaultEdit, 5);
    t.Save();
    EXPECT_EQ(s.QuickDefaultItem, 5);
    PrefsApp again({.quick = 5});
    EXPECT_TRUE(again.pane().OptionQuickItem(5).Value());
}

TEST_F(ChooseToolOptions, ASizeTwoPointsUpAndAQuickIndexTwoDownCancelInTheSumAndCountAsNoChange) {
    t.ChooseFontSize(1);
    ExpectDirty();
    t.ChooseQuick(0);
    EXPECT_EQ(s.OptionTotalEdit, s.OptionTotalSaved);
    ExpectClean();
    EXPECT_TRUE(t.NoteShown());
    EXPECT_EQ(s.FontSizeEdit, 10);
    EXPECT_EQ(s.QuickDefaultEdit, 0);
}

TEST_F(ChooseToolOptions, ABoxComparesTheWordTooSoACancellingSumStillCallsForSave) {
    t.ChooseQuick(0);
    t.Click(1);
    EXPECT_EQ(s.OptionTotalEdit, s.OptionTotalSaved);
    ExpectDirty();
}

TEST_F(ChooseToolOptions, TheQuickGroupComparesOnlyTheTotalSoAChangedWordCanHideSave) {
    t.Click(1);
    ExpectDirty();
    t.ChooseQuick(0);
    EXPECT_NE(s.OptionWordEdit, s.OptionWord);
    EXPECT_EQ(s.OptionTotalEdit, s.OptionTotalSaved);
    ExpectClean();
}

TEST_F(ChooseToolOptions, TheFontSizeComparesOnlyTheTotalSoAChangedWordCanHideSave) {
    t.Click(1);
    t.ChooseQuick(0);
    t.ChooseFontSize(1);
    ExpectDirty();
    t.ChooseFontSize(0);
    EXPECT_NE(s.OptionWordEdit, s.OptionWord);
    ExpectClean();
}

TEST_F(ChooseToolOptions, TheSumsOverflowIn16Bits) {
    PrefsApp high({.word = 32757, .fontSize = 8, .quick = 2});
    high.OpenPane();
    EXPECT_EQ(high.settings().OptionTotalSaved, 32767);
    EXPECT_THROW(high.ChooseQuick(3), Overflow);
}

TEST_F(ChooseToolOptions, ABoxDoesNothingWhileTheCommandBoxIsBeingWritten) {
    t.app.TextMainBusy = true;
    t.Click(1);
    t.app.TextMainBusy = false;
    EXPECT_EQ(s.OptionBits[1], 0);
    EXPECT_EQ(s.OptionShowAddUrlBox, 0);
    ExpectClean();
}

TEST_F(ChooseToolOptions, AThemeClickTakesEffectAtOnceWithoutSaveAndShowsTheNote) {
    t.ChooseTheme(4);
    EXPECT_EQ(s.ThemeIndex, 4);
    EXPECT_EQ(t.app.theme.CurrentFormColor, ThemeFormColors[4]);
    EXPECT_EQ(t.app.frmMain.TextMain.BackColor(), ThemeBoxColors[4]);
    EXPECT_EQ(t.app.frmChoose.PictureHideTool.Picture(), OneOfTheme(ui::PictureSlot::ImageMX, 4));
    ExpectClean();
    EXPECT_TRUE(t.NoteShown());
}

TEST_F(ChooseToolOptions, AThemeClickWhileAChangeIsPendingLeavesOnlyTheCallToSave) {
    t.Click(2);
    t.ChooseTheme(6);
    EXPECT_EQ(s.ThemeIndex, 6);
    EXPECT_TRUE(t.SaveShown());
    EXPECT_TRUE(t.CallShown());
    EXPECT_FALSE(t.NoteShown());
}

TEST_F(ChooseToolOptions, AlwaysOnTopTakesEffectWhenThePaneCloses) {
    t.Click(5);
    EXPECT_FALSE(t.app.frmMain.TimerOnTop.Enabled());
    t.choose().PictureHideTool.Press();
    EXPECT_FALSE(t.app.frmMain.TimerOnTop.Enabled());
    t.OpenPane();
    t.Click(5);
    t.choose().PictureHideTool.Press();
    EXPECT_TRUE(t.app.frmMain.TimerOnTop.Enabled());
}

}  // namespace
}  // namespace qs::test
