#include "art/palette.h"

#include <array>

#include "theme/theme_colors.h"

namespace qs::win::art {

namespace {

// Under the pointer: a little more light and a glowing rim; on a dark
// button only a little, so its light letter keeps its contrast.
ButtonColors Brighter(const ButtonColors& c, const Rgba& glow, double light) {
    return {Lighter(c.top, light), Lighter(c.bottom, light * 0.8), Mix(c.rim, glow, 0.65), c.ink};
}

ButtonColors Sunk(const ButtonColors& c) {
    // Pressed in: the light falls on the lower edge now, and all is darker.
    return {Darker(c.bottom, 0.16), Darker(c.top, 0.06), Darker(c.rim, 0.10), c.ink};
}

}  // namespace

ThemeArt ThemeArtOf(std::int16_t theme) {
    const auto t = static_cast<std::size_t>(std::clamp<std::int16_t>(theme, 0, 6));
    ThemeArt a;
    a.dark = t > 1;
    a.form = Opaque(ThemeFormColors[t]);
    a.box = Opaque(ThemeBoxColors[t]);
    const Rgba form = Calm(a.form, 0.22);
    const Rgba box = Calm(a.box, 0.22);
    if (a.dark) {
        a.ink = Opaque(ui::Rgb(242, 244, 246));
        a.rest = {Lighter(box, 0.24), Darker(form, 0.14), Darker(form, 0.50), a.ink};
        a.over = Brighter(a.rest, Opaque(ui::Rgb(190, 235, 190)), 0.12);
        a.body = Mix(form, box, 0.55);
        a.bodyLight = Lighter(a.body, 0.20);
        a.bodyShade = Darker(a.body, 0.18);
        a.outline = Darker(form, 0.55);
        a.alert = Opaque(ui::Rgb(255, 150, 135));
    } else {
        a.ink = Opaque(ui::Rgb(46, 52, 62));
        a.rest = {Lighter(box, 0.55), Darker(form, 0.10), Darker(form, 0.42), a.ink};
        a.over = Brighter(a.rest, Opaque(ui::Rgb(70, 120, 200)), 0.30);
        a.body = Mix(form, box, 0.65);
        a.bodyLight = Lighter(a.body, 0.35);
        a.bodyShade = Darker(a.body, 0.10);
        a.outline = Darker(form, 0.45);
        a.alert = Opaque(ui::Rgb(185, 45, 45));
    }
    a.pressed = Sunk(a.over);
    return a;
}

ButtonColors ActiveColors() {
    return {Opaque(ui::Rgb(255, 221, 140)), Opaque(ui::Rgb(226, 164, 58)), Opaque(ui::Rgb(150, 100, 28)),
            Opaque(ui::Rgb(58, 40, 12))};
}

ButtonColors NeutralColors() {
    return {Opaque(ui::Rgb(214, 224, 236)), Opaque(ui::Rgb(128, 146, 170)), Opaque(ui::Rgb(78, 92, 112)),
            Opaque(ui::Rgb(34, 42, 54))};
}

ButtonColors NeutralPressedColors() { return Sunk(NeutralColors()); }

ButtonColors TintedByGroup(const ButtonColors& colors, std::int16_t group) {
    static constexpr std::array<ui::Color, 5> kHues{ui::Rgb(80, 130, 205), ui::Rgb(222, 172, 70), 0,
                                                    ui::Rgb(205, 110, 135), ui::Rgb(70, 168, 158)};
    if (group < 0 || group > 4 || group == 2) return colors;
    const Rgba hue = Opaque(kHues[static_cast<std::size_t>(group)]);
    return {Mix(colors.top, hue, 0.30), Mix(colors.bottom, hue, 0.45), Mix(colors.rim, Darker(hue, 0.4), 0.5),
            colors.ink};
}

}  // namespace qs::win::art
