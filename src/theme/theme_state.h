#pragma once
// The current theme: five colours and the picture sets that the windows
// read. The sets only refer to pictures of the holders; a theme change
// re-points them.
#include <array>
#include <cstdint>

#include "ui/color.h"
#include "ui/picture.h"

namespace qs {

inline constexpr std::int16_t ThemeCount = 7;

struct ThemeState {
    // Filled once at start by AtStartDefaultColor; index is the theme.
    std::array<ui::Color, ThemeCount> ThemeFormColor{};
    std::array<ui::Color, ThemeCount> ThemeBoxColor{};

    ui::Color CurrentFormColor = 0;
    ui::Color CurrentBoxColor = 0;
    ui::Color CurrentTextColor = 0;
    ui::Color CurrentAccentColor = 0;
    ui::Color CurrentAlertColor = 0;

    // Bar buttons: 0 to 4 PictureMenu, 5 PictureWeb, 6 PictureHelp,
    // 7 PictureHide, 8 PictureExit.
    std::array<ui::PictureRef, 9> ButtonNormal{};
    std::array<ui::PictureRef, 9> ButtonOver{};
    std::array<ui::PictureRef, 9> ButtonActive{};
    // Five-entry sets, by group; ImageZeroSet 2 and 3 are also the round
    // button of the bar, wide and minimised.
    std::array<ui::PictureRef, 5> ImageChoiceSet{};
    std::array<ui::PictureRef, 5> ImageBigSet{};
    std::array<ui::PictureRef, 5> ImageZeroSet{};
    std::array<ui::PictureRef, 5> ImageSmallSet{};
    ui::PictureRef ImageBigDown;
    ui::PictureRef ImageZeroOver;
    ui::PictureRef ImageQuickOver;
    ui::PictureRef ImageBigBlank;
    ui::PictureRef ImageZeroBlank;
    ui::PictureRef ImageSmallBlank;
    ui::PictureRef ImageQuickClosed;
    ui::PictureRef ImageQuickOpen;
    ui::PictureRef ImageQuickOverOpen;
    ui::PictureRef ImageQuickDown;
};

}  // namespace qs
