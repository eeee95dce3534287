#include "windows/choose_tool_pane.h"

#include "common/application.h"
#include "windows/frm_choose.h"
#include "windows/press_pictures.h"

namespace qs {

namespace {

constexpr std::int16_t Options = 6;
constexpr std::int16_t FontSizes = 3;
constexpr std::int16_t QuickChoices = 6;
constexpr std::int16_t Themes = 7;

// The boxes' captions by the option's bit; the blanks before some of them
// are part of the captions.
constexpr const wchar_t* OptionCaptions[Options] = {
    L"  Start With Windows",        L"  Show Add URL Box At Start", L"Start Minimized On Screen",
    L"Add URL Text Box Font Bold", L"Main Text Box Font Bold",     L"  Always On Top",
};
// The boxes from the top of the pane down: start-up, the bar's look, then
// its fonts.
constexpr std::int16_t OptionScreenOrder[Options] = {0, 5, 1, 2, 4, 3};
constexpr const wchar_t* FontSizeCaptions[FontSizes] = {L"8", L"10", L"12"};
constexpr const wchar_t* QuickCaptions[QuickChoices] = {L"File",  L"Directory", L"Program",
                                                        L"Email", L"Web URL",   L"None"};

// Sizes of the pane's rows, in twips.
constexpr std::int32_t FrameLeft = 120;
constexpr std::int32_t FrameWidth = 4920;
constexpr std::int32_t RowHeight = 285;
constexpr std::int32_t ButtonSize = 330;

}  // namespace

PreferencesPane::PreferencesPane(Application& app, FrmChoose& form)
    : LabelPref(form, L"LabelPref", L"Preferences"),
      CheckOptionMain(form, L"CheckOptionMain", Options),
      FrameFont(form, L"FrameFont", L"Main Text Box Font Size"),
      RadioOptionFontSize(form, L"RadioOptionFontSize", FontSizes),
      FrameQuick(form, L"FrameQuick", L"Quick Default Item:"),
      OptionQuickItem(form, L"OptionQuickItem", QuickChoices),
      FrameTheme(form, L"FrameTheme", L"Interface Color"),
      OptionTheme(form, L"OptionTheme", Themes),
      LabelColor(form, L"LabelColor", Themes),
      FrameOptionSave(form, L"FrameOptionSave", 2),
      LabelOptionSave(form, L"LabelOptionSave", 2),
      ImageOptionSave(form, L"ImageOptionSave"),
      LabelSavePref(form, L"LabelSavePref", L"Preferences - Save"),
      app_(app),
      form_(form) {
    for (std::int16_t i = 0; i < Options; ++i) CheckOptionMain(i).SetCaption(OptionCaptions[i]);
    for (std::int16_t i = 0; i < FontSizes; ++i) RadioOptionFontSize(i).SetCaption(FontSizeCaptions[i]);
    for (std::int16_t i = 0; i < QuickChoices; ++i) OptionQuickItem(i).SetCaption(QuickCaptions[i]);
    for (std::int16_t i = 0; i < Themes; ++i) OptionTheme(i).SetCaption(L"Color " + std::to_wstring(i + 1));
    LabelOptionSave(0).SetCaption(L"These setting have already been saved or will be saved while Quillstart exits.");
    LabelOptionSave(1).SetCaption(L"Must press \"Save\" button to save Preferences..");
    WireEvents();
}

void PreferencesPane::Layout() {
    ui::Frame& pane = form_.PictureTool;
    pane.Place(LabelPref, 240, 150, 3300, 315);
    LabelPref.SetFont(10, true);

    for (std::int16_t row = 0; row < Options; ++row) {
        pane.Place(CheckOptionMain(OptionScreenOrder[row]), 240, 660 + row * 345, 4560, RowHeight);
    }

    pane.Place(FrameFont, FrameLeft, 2820, FrameWidth, 660);
    for (std::int16_t i = 0; i < FontSizes; ++i) {
        FrameFont.Place(RadioOptionFontSize(i), 240 + i * 1200, 285, 900, RowHeight);
    }

    pane.Place(FrameQuick, FrameLeft, 3600, FrameWidth, 1005);
    for (std::int16_t i = 0; i < QuickChoices; ++i) {
        FrameQuick.Place(OptionQuickItem(i), 240 + (i % 3) * 1560, 285 + (i / 3) * 345, 1440, RowHeight);
    }

    // Four themes on the first row, three on the second, each with its
    // swatch to the right.
    pane.Place(FrameTheme, FrameLeft, 4725, FrameWidth, 1005);
    for (std::int16_t i = 0; i < Themes; ++i) {
        const std::int32_t left = 150 + (i % 4) * 1185;
        const std::int32_t top = 285 + (i / 4) * 345;
        FrameTheme.Place(OptionTheme(i), left, top, 870, RowHeight);
        FrameTheme.Place(LabelColor(i), left + 885, top + 15, 240, 240);
        // A thin line around each swatch: the current theme's colour is
        // also the frame's, and would not show without it.
        LabelColor(i).SetBorderStyle(1);
    }

    // The note and the call to press Save share one place; the call holds
    // the button.
    for (std::int16_t i = 0; i < 2; ++i) pane.Place(FrameOptionSave(i), FrameLeft, 5850, FrameWidth, 1200);
    FrameOptionSave(0).Place(LabelOptionSave(0), 150, 300, 4620, 600);
    FrameOptionSave(1).Place(LabelOptionSave(1), 150, 270, 4620, 255);
    FrameOptionSave(1).Place(ImageOptionSave, 150, 645, ButtonSize, ButtonSize);
    FrameOptionSave(1).Place(LabelSavePref, 570, 690, 3000, 255);
    ImageOptionSave.SetAccessibleName(LabelSavePref.Caption());
}

void PreferencesPane::SetTabOrder() {
    std::int16_t next = 1;
    for (const std::int16_t i : OptionScreenOrder) CheckOptionMain(i).SetTabIndex(next++);
    for (const auto& option : RadioOptionFontSize) option->SetTabIndex(next++);
    for (const auto& option : OptionQuickItem) option->SetTabIndex(next++);
    for (const auto& option : OptionTheme) option->SetTabIndex(next++);
    ImageOptionSave.SetTabIndex(next++);
    // Areas after everything, the innermost first.
    next = 900;
    for (ui::Control* area : std::initializer_list<ui::Control*>{&FrameFont, &FrameQuick, &FrameTheme,
                                                                 &FrameOptionSave(0), &FrameOptionSave(1)}) {
        area->SetTabIndex(next++);
    }
}

void PreferencesPane::WireEvents() {
    CheckOptionMain.OnEach(&ui::CheckBox::Click, [this](std::int16_t i) { CheckOptionMainClick(i); });
    RadioOptionFontSize.OnEach(&ui::OptionButton::Click, [this](std::int16_t i) { RadioOptionFontSizeClick(i); });
    OptionQuickItem.OnEach(&ui::OptionButton::Click, [this](std::int16_t i) { OptionQuickItemClick(i); });
    OptionTheme.OnEach(&ui::OptionButton::Click, [this](std::int16_t i) { OptionThemeClick(i); });
    ImageOptionSave.Click = [this] { ImageOptionSaveClick(); };
    const ThemeState& theme = app_.theme;
    SetPressPictures(
        ImageOptionSave, [&theme] { return theme.ImageZeroOver; }, [&theme] { return theme.ImageZeroSet[0]; });
    ImageOptionSave.KeyPress = [this](std::int16_t& key) { form_.PictureButtonKeyPress(ImageOptionSave, key); };
}

}  // namespace qs
