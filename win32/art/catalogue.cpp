#include "art/catalogue.h"

#include "art/emblem.h"
#include "art/round_button.h"
#include "art/special_button.h"
#include "art/strips.h"

namespace qs::win {

using art::ButtonArt;
using art::ButtonForm;
using ui::PictureSlot;

std::int16_t ThemeOfPicture(const ui::PictureRef& picture) {
    const std::int16_t i = picture.index;
    switch (picture.slot) {
        case PictureSlot::None:
        case PictureSlot::ImageActive:
        case PictureSlot::ImageMQChoiceDown:
        case PictureSlot::ImageMQSelected:
        case PictureSlot::ImageApp:
            return -1;
        case PictureSlot::ImageMenu:
        case PictureSlot::ImageDown:
            return static_cast<std::int16_t>(i / 20);
        case PictureSlot::ImageMQChoice:
        case PictureSlot::ImageBU:
        case PictureSlot::ImageMU:
        case PictureSlot::ImageSU:
            return static_cast<std::int16_t>(i / 5);
        case PictureSlot::ImageBD:
        case PictureSlot::ImageMD:
        case PictureSlot::ImageSD:
            // t * 2 + 1 for a dark theme, t * 2 for a light one.
            return static_cast<std::int16_t>(i / 2);
        default:
            return i;
    }
}

namespace {

// The entry within the theme: the button of a nine-entry set, the group of
// a five-entry set.
std::int16_t EntryOf(const ui::PictureRef& picture) {
    switch (picture.slot) {
        case PictureSlot::ImageMenu:
        case PictureSlot::ImageDown:
            return static_cast<std::int16_t>(picture.index % 20);
        case PictureSlot::ImageMQChoice:
        case PictureSlot::ImageBU:
        case PictureSlot::ImageMU:
        case PictureSlot::ImageSU:
            return static_cast<std::int16_t>(picture.index % 5);
        default:
            return picture.index;
    }
}

PixelImage Button(int w, int h, double scale, const art::ButtonColors& colors, ButtonForm form,
                  art::Glyph glyph = art::Glyph::None, double strength = 1.0) {
    return art::RenderRoundButton(w, h, scale, ButtonArt{colors, form, glyph, strength});
}

}  // namespace

PixelImage RenderPicture(const ui::PictureRef& picture, int w, int h, double scale) {
    const art::ThemeArt theme = art::ThemeArtOf(std::max<std::int16_t>(ThemeOfPicture(picture), 0));
    const std::int16_t entry = EntryOf(picture);
    switch (picture.slot) {
        case PictureSlot::None:
            return {};
        case PictureSlot::ImageMenu:
            return Button(w, h, scale, theme.rest, ButtonForm::Raised, art::BarButtonGlyph(entry));
        case PictureSlot::ImageDown:
            return Button(w, h, scale, theme.over, ButtonForm::Raised, art::BarButtonGlyph(entry));
        case PictureSlot::ImageActive:
            return Button(w, h, scale, art::ActiveColors(), ButtonForm::Raised, art::BarButtonGlyph(entry));
        case PictureSlot::ImageMQChoice:
            return Button(w, h, scale, theme.rest, ButtonForm::Raised, art::GroupGlyph(entry));
        case PictureSlot::ImageMQChoiceDown:
            return Button(w, h, scale, art::NeutralPressedColors(), ButtonForm::Pressed, art::GroupGlyph(entry));
        case PictureSlot::ImageMQSelected:
            return Button(w, h, scale, art::ActiveColors(), ButtonForm::Raised, art::GroupGlyph(entry));
        case PictureSlot::ImageBU:
        case PictureSlot::ImageMU:
        case PictureSlot::ImageSU:
            return Button(w, h, scale, art::TintedByGroup(theme.rest, entry), ButtonForm::Raised);
        case PictureSlot::ImageBD:
        case PictureSlot::ImageMD:
        case PictureSlot::ImageSD:
            return Button(w, h, scale, theme.pressed, ButtonForm::Pressed);
        case PictureSlot::ImageBZ:
        case PictureSlot::ImageMZ:
        case PictureSlot::ImageSZ:
            return Button(w, h, scale, theme.rest, ButtonForm::Blank);
        case PictureSlot::ImageSSpUR:
            return art::RenderLamp(w, h, scale, art::LampLook::ClosedRed, theme);
        case PictureSlot::ImageSSpUG:
            return art::RenderLamp(w, h, scale, art::LampLook::ClosedGreen, theme);
        case PictureSlot::ImageSSpAG:
            return art::RenderLamp(w, h, scale, art::LampLook::Open, theme);
        case PictureSlot::ImageSSpMO:
            return art::RenderLamp(w, h, scale, art::LampLook::OverOpen, theme);
        case PictureSlot::ImageSSpMD:
            return art::RenderLamp(w, h, scale, art::LampLook::Pressed, theme);
        case PictureSlot::ImageMX: {
            art::ButtonColors colors = theme.rest;
            colors.ink = theme.alert;
            return Button(w, h, scale, colors, ButtonForm::Raised, art::Glyph::LetterX);
        }
        case PictureSlot::ImageMStar:
            return Button(w, h, scale, theme.rest, ButtonForm::Blank, art::Glyph::Star, 0.45);
        case PictureSlot::ImageMForward:
            return Button(w, h, scale, theme.rest, ButtonForm::Raised, art::Glyph::Forward);
        case PictureSlot::ImageMBackward:
            return Button(w, h, scale, theme.rest, ButtonForm::Raised, art::Glyph::Backward);
        case PictureSlot::ImageMe:
            return art::RenderEmblem(w, h, scale, &theme);
        case PictureSlot::ImageBackZero:
            return art::RenderStrip(w, h, scale, art::StripKind::BarPoint, theme);
        case PictureSlot::ImageBackMain:
            return art::RenderStrip(w, h, scale, art::StripKind::BarCommand, theme);
        case PictureSlot::ImageBackWeb:
            return art::RenderStrip(w, h, scale, art::StripKind::BarWeb, theme);
        case PictureSlot::ImageQBackS:
        case PictureSlot::ImageQBackM:
        case PictureSlot::ImageQBackB:
            return art::RenderStrip(w, h, scale, art::StripKind::Segment, theme);
        case PictureSlot::ImageBack:
            return art::RenderWindowFace(w, h, scale, theme);
        case PictureSlot::ImageApp:
            return art::RenderEmblem(w, h, scale, nullptr);
    }
    return {};
}

}  // namespace qs::win
