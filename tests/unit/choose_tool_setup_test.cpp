// The Preferences pane as frmChoose's load leaves it, and as each opening
// shows it: the boxes by their bits, the chosen options, the sums, the
// frames of the three states, and the flash drive's grey box.
#include <gtest/gtest.h>

#include "choose_tool_setup.h"

namespace qs::test {
namespace {

TEST(ChooseToolSetUp, EachBoxTakesTheFlagOfItsBitNotItsPlaceOnScreen) {
    PrefsApp t({.word = 57});
    const std::int16_t expected[6] = {1, 0, 0, 1, 1, 1};
    for (std::int16_t i = 0; i < 6; ++i) EXPECT_EQ(t.pane().CheckOptionMain(i).Value(), expected[i]) << i;
    PrefsApp other({.word = 6});
    const std::int16_t expectedOther[6] = {0, 1, 1, 0, 0, 0};
    for (std::int16_t i = 0; i < 6; ++i) {
        EXPECT_EQ(other.pane().CheckOptionMain(i).Value(), expectedOther[i]) << i;
    }
}

TEST(ChooseToolSetUp, TheThemeTheQuickGroupAndTheFontSizeAreSelectedFromTheSavedValues) {
    PrefsApp t({.word = 57, .fontSize = 12, .quick = 4, .theme = 3});
    for (std::int16_t i = 0; i < 7; ++i) EXPECT_EQ(t.pane().OptionTheme(i).Value(), i == 3) << i;
    for (std::int16_t i = 0; i < 6; ++i) EXPECT_EQ(t.pane().OptionQuickItem(i).Value(), i == 4) << i;
    for (std::int16_t i = 0; i < 3; ++i) EXPECT_EQ(t.pane().RadioOptionFontSize(i).Value(), i == 2) << i;
    EXPECT_EQ(t.app.frmMain.TextMain.FontSize(), 12);
}

TEST(ChooseToolSetUp, ASizeBetweenTheButtonsRoundsHalfToEven) {
    struct Case {
        std::int16_t size;
        std::int16_t button;
    };
    for (const Case c : {Case{9, 0}, Case{10, 1}, Case{11, 2}, Case{12, 2}}) {
        PrefsApp t({.fontSize = c.size});
        for (std::int16_t i = 0; i < 3; ++i) {
            EXPECT_EQ(t.pane().RadioOptionFontSize(i).Value(), i == c.button) << c.size << " " << i;
        }
    }
}

TEST(ChooseToolSetUp, AFontSizeSettingBelowEightSelectsTheFirstRadioButton) {
    PrefsApp t({.fontSize = 5});
    EXPECT_TRUE(t.pane().RadioOptionFontSize(0).Value());
    // The button's own handler ran, but the saved and edited size stay 5
    // and nothing asks for a Save.
    EXPECT_EQ(t.settings().FontSizeSetting, 5);
    EXPECT_EQ(t.settings().FontSizeEdit, 5);
    EXPECT_EQ(t.settings().OptionTotalEdit, t.settings().OptionTotalSaved);
    EXPECT_FALSE(t.SaveShown());
    EXPECT_FALSE(t.CallShown());
}

TEST(ChooseToolSetUp, TheEditCopiesAndTheSumsStartAtTheSavedValues) {
    PrefsApp t({.word = 57, .fontSize = 10, .quick = 3});
    const Settings& s = t.settings();
    EXPECT_EQ(s.OptionWordEdit, 57);
    EXPECT_EQ(s.FontSizeEdit, 10);
    EXPECT_EQ(s.QuickDefaultEdit, 3);
    EXPECT_EQ(s.OptionBaseSaved, 67);
    EXPECT_EQ(s.OptionBaseEdit, 67);
    EXPECT_EQ(s.OptionTotalSaved, 70);
    EXPECT_EQ(s.OptionTotalEdit, 70);
    const std::array<std::int16_t, 6> bits = {1, 0, 0, 8, 16, 32};
    EXPECT_EQ(s.OptionBits, bits);
}

TEST(ChooseToolSetUp, AFreshOpeningIsCleanWithNeitherFrame) {
    PrefsApp t;
    t.OpenPane();
    EXPECT_TRUE(t.choose().PictureTool.Visible());
    EXPECT_FALSE(t.SaveShown());
    EXPECT_FALSE(t.CallShown());
    EXPECT_FALSE(t.NoteShown());
    EXPECT_EQ(t.pane().ImageOptionSave.Picture(), t.app.theme.ImageZeroBlank);
}

TEST(ChooseToolSetUp, AnOpeningWithAChangePendingShowsTheCallToSaveAgain) {
    PrefsApp t;
    t.OpenPane();
    t.Click(1);
    t.choose().PictureHideTool.Press();
    EXPECT_FALSE(t.choose().Visible());
    t.OpenPane();
    EXPECT_TRUE(t.SaveShown());
    EXPECT_TRUE(t.CallShown());
    EXPECT_FALSE(t.NoteShown());
    EXPECT_EQ(t.pane().CheckOptionMain(1).Value(), 1);
}

TEST(ChooseToolSetUp, AnOpeningAfterAThemeClickDropsTheNote) {
    PrefsApp t;
    t.OpenPane();
    t.ChooseTheme(2);
    ASSERT_TRUE(t.NoteShown());
    t.choose().PictureHideTool.Press();
    t.OpenPane();
    EXPECT_FALSE(t.NoteShown());
    EXPECT_FALSE(t.CallShown());
}

TEST(ChooseToolSetUp, RunningFromAFlashDriveGreysStartWithWindowsAndNoRegistryWorkCanFollow) {
    PrefsApp t({.word = 56}, L'E');
    t.sys.registry[AutostartValueName] = L"D:\\Other\\Quillstart.exe";
    t.OpenPane();
    ui::CheckBox& box = t.pane().CheckOptionMain(0);
    EXPECT_EQ(box.Caption(), L"  Start With Windows");
    EXPECT_FALSE(box.Enabled());
    box.UserClicked();
    EXPECT_EQ(box.Value(), 0);
    EXPECT_FALSE(t.pane().IsAutostartChanged());
    t.Click(1);
    t.Save();
    EXPECT_EQ(t.settings().OptionWord, 58);
    EXPECT_EQ(t.Autostart(), L"D:\\Other\\Quillstart.exe");
}

TEST(ChooseToolSetUp, OnAFixedDiskStartWithWindowsCanBeClicked) {
    PrefsApp t;
    EXPECT_TRUE(t.pane().CheckOptionMain(0).Enabled());
}

TEST(ChooseToolSetUp, TheHandlersOfTheBoxesAndOptionsDoNothingWhileTheProgramStarts) {
    PrefsApp t;
    t.app.place.StartingUp = true;
    t.pane().CheckOptionMain(1).SetValue(1);
    t.pane().OptionQuickItem(0).SetValue(true);
    t.pane().OptionTheme(5).SetValue(true);
    EXPECT_EQ(t.settings().OptionBits[1], 0);
    EXPECT_EQ(t.settings().OptionWordEdit, 57);
    EXPECT_EQ(t.settings().QuickDefaultEdit, 2);
    EXPECT_EQ(t.settings().ThemeIndex, 0);
    EXPECT_FALSE(t.SaveShown());
}

TEST(ChooseToolSetUp, EveryCaptionStandsByteForByte) {
    PrefsApp t;
    PreferencesPane& p = t.pane();
    EXPECT_EQ(p.LabelPref.Caption(), L"Preferences");
    const wchar_t* boxes[6] = {L"  Start With Windows",        L"  Show Add URL Box At Start",
                               L"Start Minimized On Screen",   L"Add URL Text Box Font Bold",
                               L"Main Text Box Font Bold",     L"  Always On Top"};
    for (std::int16_t i = 0; i < 6; ++i) EXPECT_EQ(p.CheckOptionMain(i).Caption(), boxes[i]) << i;
    EXPECT_EQ(p.FrameFont.Caption(), L"Main Text Box Font Size");
    const wchar_t* sizes[3] = {L"8", L"10", L"12"};
    for (std::int16_t i = 0; i < 3; ++i) EXPECT_EQ(p.RadioOptionFontSize(i).Caption(), sizes[i]);
    EXPECT_EQ(p.FrameQuick.Caption(), L"Quick Default Item:");
    const wchar_t* quick[6] = {L"File", L"Directory", L"Program", L"Email", L"Web URL", L"None"};
    for (std::int16_t i = 0; i < 6; ++i) EXPECT_EQ(p.OptionQuickItem(i).Caption(), quick[i]);
    EXPECT_EQ(p.FrameTheme.Caption(), L"Interface Color");
    const wchar_t* themes[7] = {L"Color 1", L"Color 2", L"Color 3", L"Color 4", L"Color 5", L"Color 6", L"Color 7"};
    for (std::int16_t i = 0; i < 7; ++i) EXPECT_EQ(p.OptionTheme(i).Caption(), themes[i]);
    EXPECT_EQ(p.LabelOptionSave(0).Caption(),
              L"These setting have already been saved or will be saved while Quillstart exits.");
    EXPECT_EQ(p.LabelOptionSave(1).Caption(), L"Must press \"Save\" button to save Preferences..");
    EXPECT_EQ(p.LabelSavePref.Caption(), L"Preferences - Save");
}

TEST(ChooseToolSetUp, ThePaneLiesInsidePictureToolWithEachGroupOfOptionsInItsOwnFrame) {
    PrefsApp t;
    PreferencesPane& p = t.pane();
    const ui::Frame& tool = t.choose().PictureTool;
    for (const auto& box : p.CheckOptionMain) {
        EXPECT_EQ(box->Container(), &tool);
        EXPECT_GE(box->Left(), tool.Left());
        EXPECT_LE(box->Left() + box->Width(), tool.Left() + tool.Width());
        EXPECT_LE(box->Top() + box->Height(), tool.Top() + tool.Height());
    }
    for (const auto& option : p.RadioOptionFontSize) EXPECT_EQ(option->Container(), &p.FrameFont);
    for (const auto& option : p.OptionQuickItem) EXPECT_EQ(option->Container(), &p.FrameQuick);
    for (const auto& option : p.OptionTheme) EXPECT_EQ(option->Container(), &p.FrameTheme);
    for (const auto& swatch : p.LabelColor) EXPECT_EQ(swatch->Container(), &p.FrameTheme);
    EXPECT_EQ(p.ImageOptionSave.Container(), &p.FrameOptionSave(1));
    for (const ui::Frame* frame : {&p.FrameFont, &p.FrameQuick, &p.FrameTheme, &p.FrameOptionSave(1)}) {
        EXPECT_EQ(frame->Container(), &tool);
        EXPECT_LE(frame->Top() + frame->Height(), tool.Top() + tool.Height());
    }
}

}  // namespace
}  // namespace qs::test

namespace qs::test {
namespace {

TEST(ChooseToolStart, TheStartCopiesTheSavedWordAndSizeIntoTheEditCopiesAndSpreadsTheBits) {
    TestApp t;
    t.app.settings.OptionWord = 42;
    t.app.settings.FontSizeSetting = 12;
    AtStartsavedOptions(t.app, t.app.settings.OptionWord);
    AtStartDefaultValue(t.app);
    EXPECT_EQ(t.app.settings.OptionWordEdit, 42);
    EXPECT_EQ(t.app.settings.FontSizeEdit, 12);
    const std::array<std::int16_t, 6> bits = {0, 2, 0, 8, 0, 32};
    EXPECT_EQ(t.app.settings.OptionBits, bits);
}

}  // namespace
}  // namespace qs::test
