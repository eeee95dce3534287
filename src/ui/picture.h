#pragma once
// A picture is named by the holder slot it lies in and its index there, as
// "ImageMU(t * 5 + i)" of the button holder: a typed reference, never text to
// parse. The window layer draws the picture a reference names, once per DPI,
// and caches it; a theme change only re-points references.
#include <cstdint>
#include <string>
#include <string_view>

namespace qs::ui {

enum class PictureSlot : std::uint8_t {
    None,
    // The button holder (frmBut).
    ImageMenu,          // 140: bar buttons at rest, t * 20 + i, i 0..8
    ImageDown,          // 140: bar buttons under the pointer, t * 20 + i
    ImageActive,        // 20: bar buttons of an open pane or window, i
    ImageMQChoice,      // 35: QuickLauncher group buttons, t * 5 + group
    ImageBU,            // 35: big round buttons, t * 5 + i
    ImageMU,            // 35: medium round buttons, t * 5 + i
    ImageSU,            // 35: small round buttons, t * 5 + i
    ImageBD,            // 14: big button pressed, by the two-way rule
    ImageMD,            // 14: medium button pressed, by the two-way rule
    ImageSD,            // 14: small button pressed, by the two-way rule
    ImageBZ,            // 7: big blank
    ImageMZ,            // 7: medium blank
    ImageSZ,            // 7: small blank
    ImageSSpUR,         // 7: small special button, closed, red
    ImageSSpUG,         // 7: small special button, closed, green
    ImageSSpAG,         // 7: small special button, open
    ImageSSpMO,         // 7: small special button under the pointer, open
    ImageSSpMD,         // 7: small special button pressed
    ImageMX,            // 7: the cancel cross
    ImageMStar,         // 7: the blank button
    ImageMForward,      // 7: paging arrow forward
    ImageMBackward,     // 7: paging arrow backward
    ImageMe,            // 7: the Help window's picture
    ImageMQChoiceDown,  // 5: group button pressed, by group
    ImageMQSelected,    // 5: the group now shown, by group
    // The hidden holder (frmHid): one picture a theme.
    ImageBackZero,  // the bar's round-button strip
    ImageBackMain,  // the bar's Command strip
    ImageBackWeb,   // the bar's web strip
    ImageQBackS,    // QuickLauncher strips: small, medium, big
    ImageQBackM,
    ImageQBackB,
    // The background holder (frmBack): one picture a theme.
    ImageBack,
    // The program's own picture (the tray icon's look); one entry.
    ImageApp,
};

// How many entries a slot holds; 0 for None.
constexpr std::int16_t SlotCount(PictureSlot slot) {
    switch (slot) {
        case PictureSlot::None:
            return 0;
        case PictureSlot::ImageMenu:
        case PictureSlot::ImageDown:
            return 140;
        case PictureSlot::ImageActive:
            return 20;
        case PictureSlot::ImageMQChoice:
        case PictureSlot::ImageBU:
        case PictureSlot::ImageMU:
        case PictureSlot::ImageSU:
            return 35;
        case PictureSlot::ImageBD:
        case PictureSlot::ImageMD:
        case PictureSlot::ImageSD:
            return 14;
        case PictureSlot::ImageMQChoiceDown:
        case PictureSlot::ImageMQSelected:
            return 5;
        case PictureSlot::ImageApp:
            return 1;
        default:
            return 7;
    }
}

// The slot's name as the holders spell it, for messages and test output.
std::wstring_view SlotName(PictureSlot slot);

struct PictureRef {
    PictureSlot slot = PictureSlot::None;
    std::int16_t index = 0;

    constexpr bool Empty() const { return slot == PictureSlot::None; }
    friend constexpr bool operator==(const PictureRef&, const PictureRef&) = default;
};

// "ImageMU(17)"; "" for an empty reference.
std::wstring PictureName(const PictureRef& picture);

// A reference into a holder, checked against the slot's size; throws
// SubscriptOutOfRange outside it.
PictureRef HolderPicture(PictureSlot slot, std::int32_t index);

}  // namespace qs::ui
