#include "ui/picture.h"

#include "common/failure.h"

namespace qs::ui {

std::wstring_view SlotName(PictureSlot slot) {
    switch (slot) {
        case PictureSlot::None: return L"None";
        case PictureSlot::ImageMenu: return L"ImageMenu";
        case PictureSlot::ImageDown: return L"ImageDown";
        case PictureSlot::ImageActive: return L"ImageActive";
        case PictureSlot::ImageMQChoice: return L"ImageMQChoice";
        case PictureSlot::ImageBU: return L"ImageBU";
        case PictureSlot::ImageMU: return L"ImageMU";
        case PictureSlot::ImageSU: return L"ImageSU";
        case PictureSlot::ImageBD: return L"ImageBD";
        case PictureSlot::ImageMD: return L"ImageMD";
        case PictureSlot::ImageSD: return L"ImageSD";
        case PictureSlot::ImageBZ: return L"ImageBZ";
        case PictureSlot::ImageMZ: return L"ImageMZ";
        case PictureSlot::ImageSZ: return L"ImageSZ";
        case PictureSlot::ImageSSpUR: return L"ImageSSpUR";
        case PictureSlot::ImageSSpUG: return L"ImageSSpUG";
        case PictureSlot::ImageSSpAG: return L"ImageSSpAG";
        case PictureSlot::ImageSSpMO: return L"ImageSSpMO";
        case PictureSlot::ImageSSpMD: return L"ImageSSpMD";
        case PictureSlot::ImageMX: return L"ImageMX";
        case PictureSlot::ImageMStar: return L"ImageMStar";
        case PictureSlot::ImageMForward: return L"ImageMForward";
        case PictureSlot::ImageMBackward: return L"ImageMBackward";
        case PictureSlot::ImageMe: return L"ImageMe";
        case PictureSlot::ImageMQChoiceDown: return L"ImageMQChoiceDown";
        case PictureSlot::ImageMQSelected: return L"ImageMQSelected";
        case PictureSlot::ImageBackZero: return L"ImageBackZero";
        case PictureSlot::ImageBackMain: return L"ImageBackMain";
        case PictureSlot::ImageBackWeb: return L"ImageBackWeb";
        case PictureSlot::ImageQBackS: return L"ImageQBackS";
        case PictureSlot::ImageQBackM: return L"ImageQBackM";
        case PictureSlot::ImageQBackB: return L"ImageQBackB";
        case PictureSlot::ImageBack: return L"ImageBack";
        case PictureSlot::ImageApp: return L"ImageApp";
    }
    return L"?";
}

std::wstring PictureName(const PictureRef& picture) {
    if (picture.Empty()) return L"";
    return std::wstring(SlotName(picture.slot)) + L"(" + std::to_wstring(picture.index) + L")";
}

PictureRef HolderPicture(PictureSlot slot, std::int32_t index) {
    if (index < 0 || index >= SlotCount(slot)) throw SubscriptOutOfRange();
    return {slot, static_cast<std::int16_t>(index)};
}

}  // namespace qs::ui
