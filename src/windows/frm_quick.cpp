// The QuickLauncher's controls: the strip each lies on, its place and
// tooltip, and which handler each event reaches.
#include "windows/frm_quick.h"

#include "common/application.h"
#include "theme/checked_set.h"
#include "theme/holders.h"
#include "windows/press_pictures.h"

namespace qs {

namespace {

// Puts `control` on `strip` at (left, top) of the strip's corner; places
// stay in the form's coordinates.
void PlaceOn(ui::PictureBox& strip, ui::Control& control, std::int32_t left, std::int32_t top, std::int32_t width,
             std::int32_t height) {
    control.SetContainer(&strip);
    control.Move(strip.Left() + left, strip.Top() + top, width, height);
}

// Enter or Space on a button that has the keyboard focus clicks it.
bool IsClickKey(std::int16_t key) { return key == 13 || key == 32; }

}  // namespace

FrmQuick::FrmQuick(Application& app)
    : ui::Form(L"frmQuick", ui::FormStyle::Borderless),
      CommandQuickClick(*this, L"CommandQuickClick"),
      ImageQuickZero(*this, L"ImageQuickZero"),
      LabelQuickTotal(*this, L"LabelQuickTotal", L"Total"),
      ImageQuickForward(*this, L"ImageQuickForward"),
      ImageQuickBack(*this, L"ImageQuickBack"),
      ImageQuickSelected(*this, L"ImageQuickSelected"),
      ImageQuickChoice(*this, L"ImageQuickChoice", 5),
      LabelQuickShowing(*this, L"LabelQuickShowing", L"Select Item Type"),
      ImageQuick(*this, L"ImageQuick", QuickPageSize),
      ImageQuickHeight(*this, L"ImageQuickHeight"),
      ImageHideQuick(*this, L"ImageHideQuick"),
      LabelQIndex(*this, L"LabelQIndex", QuickPageSize, L"xx"),
      ImageQuickHeightA(*this, L"ImageQuickHeightA"),
      PictureZeroBack(*this, L"PictureZeroBack"),
      PictureTotalBack(*this, L"PictureTotalBack"),
      PictureBrowseBack(*this, L"PictureBrowseBack"),
      PictureTypeBack(*this, L"PictureTypeBack"),
      PictureChoiceBack(*this, L"PictureChoiceBack"),
      PictureRangeBack(*this, L"PictureRangeBack"),
      PictureQuickBack(*this, L"PictureQuickBack"),
      PictureIndexBack(*this, L"PictureIndexBack"),
      app_(app) {
    SetCaption(L"QuickLaunch");
    Move(0, 0, QuickWidthWide, QuickHeightFull);
    // Loaded at start but shown only from the bar's button.
    SetWindowWaitsForShow(true);
    // It stands beside the bar: typing goes on in the Command box.
    SetTakesFocusWhenShown(false);
    PlaceControls();
    WireEvents();
}

void FrmQuick::PlaceControls() {
    CommandQuickClick.Move(2040, 120, 372, 252);
    CommandQuickClick.SetVisible(false);

    PictureZeroBack.Move(0, 0, 492, 372);
    PlaceOn(PictureZeroBack, ImageQuickZero, 150, 90, 168, 168);
    ImageQuickZero.SetToolTipText(L"Minimize QuickLaunch On Screen");
    PictureTotalBack.Move(0, 372, 492, 372);
    PlaceOn(PictureTotalBack, LabelQuickTotal, 24, 60, 372, 156);

    PictureBrowseBack.Move(600, 0, 240, 372);
    PlaceOn(PictureBrowseBack, ImageQuickForward, 24, 0, 168, 168);
    ImageQuickForward.SetToolTipText(L"Items Go Forward");
    PlaceOn(PictureBrowseBack, ImageQuickBack, 24, 192, 168, 168);
    ImageQuickBack.SetToolTipText(L"Items Go Back");
    // No group is shown yet, so there is no page to turn.
    ImageQuickForward.SetVisible(false);
    ImageQuickBack.SetVisible(false);
    PictureTypeBack.Move(600, 372, 240, 372);
    PlaceOn(PictureTypeBack, ImageQuickSelected, 24, 60, 168, 168);

    PictureChoiceBack.Move(840, 0, 1452, 372);
    // The Folder button stands first, left of File.
    static const std::int32_t choiceLefts[] = {360, 120, 600, 840, 1080};
    static const wchar_t* const choiceTips[] = {
        L"Show Buttons Of File List",  L"Show Buttons Of Directory List", L"Show Buttons Of Program List",
        L"Show Buttons Of Email List", L"Show Buttons Of Web URL List",
    };
    for (std::int16_t g = 0; g < ImageQuickChoice.Count(); ++g) {
        PlaceOn(PictureChoiceBack, ImageQuickChoice(g), choiceLefts[g], 90, 168, 168);
        ImageQuickChoice(g).SetToolTipText(choiceTips[g]);
    }
    PictureRangeBack.Move(840, 372, 1452, 372);
    PlaceOn(PictureRangeBack, LabelQuickShowing, 0, 60, 1404, 156);

    PictureQuickBack.Move(2400, 0, 7812, 372);
    PictureIndexBack.Move(2400, 372, 7812, 372);
    for (std::int16_t i = 0; i < QuickPageSize; ++i) {
        PlaceOn(PictureQuickBack, ImageQuick(i), 156 + 360 * i, 60, 168, 168);
        ImageQuick(i).SetToolTipText(L"Empty");
        // A button with no item stays hidden until a group fills it.
        ImageQuick(i).SetVisible(false);
        PlaceOn(PictureIndexBack, LabelQIndex(i), 144 + 360 * i, 36, 204, 192);
    }
    PlaceOn(PictureQuickBack, ImageQuickHeight, 7320, 90, 120, 120);
    ImageQuickHeight.SetToolTipText(L"Show|Hide QuickLauncher Bottom Part");
    PlaceOn(PictureQuickBack, ImageHideQuick, 7560, 90, 120, 120);
    ImageHideQuick.SetToolTipText(L"Hide QuickLauncher");
    PlaceOn(PictureIndexBack, ImageQuickHeightA, 7560, 60, 120, 120);
    ImageQuickHeightA.SetToolTipText(L"Hide QuickLauncher Bottom Part");

    // Tab walks the group buttons, the items, the page arrows, then the
    // window's own buttons.
    std::int16_t tab = 0;
    for (std::int16_t g : {1, 0, 2, 3, 4}) ImageQuickChoice(g).SetTabIndex(tab++);
    for (std::int16_t i = 0; i < QuickPageSize; ++i) ImageQuick(i).SetTabIndex(tab++);
    for (ui::PictureBox* button :
         {&ImageQuickBack, &ImageQuickForward, &ImageQuickZero, &ImageQuickHeight, &ImageQuickHeightA, &ImageHideQuick}) {
        button->SetTabIndex(tab++);
    }
}

void FrmQuick::WireEvents() {
    LoadEvent = [this] { FormLoad(); };
    MouseMove = [this](std::int16_t button, std::int16_t shift, std::int32_t x, std::int32_t y) {
        FormMouseMove(button, shift, x, y);
    };
    CommandQuickClick.Click = [this] { CommandQuickClickClick(); };

    ImageQuickChoice.OnEach(&ui::PictureBox::Click, [this](std::int16_t i) { ImageQuickChoiceClick(i); });
    ImageQuickChoice.OnEach(&ui::PictureBox::KeyPress, [this](std::int16_t i, std::int16_t& key) {
        if (IsClickKey(key)) ImageQuickChoiceClick(i);
    });
    for (std::int16_t g = 0; g < ImageQuickChoice.Count(); ++g) {
        // The released picture is read by the theme's number, not by the
        // button's group: past the fifth theme that read fails.
        SetPressPictures(
            ImageQuickChoice(g), [g] { return ui::HolderPicture(ui::PictureSlot::ImageMQChoiceDown, g); },
            [this] { return FiveSetEntry(app_.theme.ImageChoiceSet, app_.settings.ThemeIndex); });
    }

    ImageQuick.OnEach(&ui::PictureBox::Click, [this](std::int16_t i) { ImageQuickClick(i); });
    ImageQuick.OnEach(&ui::PictureBox::KeyPress, [this](std::int16_t i, std::int16_t& key) {
        if (IsClickKey(key)) ImageQuickClick(i);
    });

    const auto wire = [](ui::PictureBox& button, auto handler) {
        button.Click = handler;
        button.KeyPress = [handler](std::int16_t& key) {
            if (IsClickKey(key)) handler();
        };
    };
    wire(ImageQuickForward, [this] { ImageQuickForwardClick(); });
    wire(ImageQuickBack, [this] { ImageQuickBackClick(); });
    wire(ImageQuickZero, [this] { ImageQuickZeroClick(); });
    wire(ImageQuickHeight, [this] { ImageQuickHeightClick(); });
    wire(ImageQuickHeightA, [this] { ImageQuickHeightClick(); });
    wire(ImageHideQuick, [this] { ImageHideQuickClick(); });

    SetPressPictures(
        ImageQuickBack, [this] { return app_.theme.ImageZeroOver; },
        [this] { return OneOfTheme(ui::PictureSlot::ImageMBackward, app_.settings.ThemeIndex); });
    SetPressPictures(
        ImageQuickForward, [this] { return app_.theme.ImageZeroOver; },
        [this] { return OneOfTheme(ui::PictureSlot::ImageMForward, app_.settings.ThemeIndex); });
    SetPressPictures(
        ImageQuickZero, [this] { return app_.theme.ImageZeroOver; }, [this] { return ZeroRestPicture(); });
}

ui::PictureRef FrmQuick::BlankPicture() const {
    return OneOfTheme(ui::PictureSlot::ImageMStar, app_.settings.ThemeIndex);
}

ui::PictureRef FrmQuick::ZeroRestPicture() const {
    return Width() == QuickWidthWide ? app_.theme.ImageZeroSet[2] : app_.theme.ImageZeroSet[3];
}

std::int16_t FrmQuick::GroupCount(std::int16_t group) const {
    return ToInt16(app_.frmChoose.ComboListItemName(group).ListCount());
}

bool FrmQuick::GroupHasItems(std::int16_t group) const {
    return app_.frmChoose.ComboListItemName(group).ListCount() > 0;
}

}  // namespace qs
