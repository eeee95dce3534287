#include "art/special_button.h"

namespace qs::win::art {

namespace {

struct LampColors {
    Rgba top;
    Rgba bottom;
    bool ring;  // lit only round its edge, the middle open
    double glow;
};

LampColors ColorsOf(LampLook look) {
    const Rgba red = Opaque(ui::Rgb(222, 78, 64));
    const Rgba green = Opaque(ui::Rgb(72, 184, 96));
    switch (look) {
        case LampLook::ClosedRed:
            return {Lighter(red, 0.35), Darker(red, 0.20), false, 0};
        case LampLook::ClosedGreen:
            return {Lighter(green, 0.35), Darker(green, 0.20), false, 0};
        case LampLook::Open:
            return {Lighter(green, 0.45), green, true, 0};
        case LampLook::OverOpen:
            return {Lighter(green, 0.65), Lighter(green, 0.25), true, 0.35};
        case LampLook::Pressed:
            return {Darker(green, 0.30), Darker(green, 0.10), false, 0};
    }
    return {green, green, false, 0};
}

}  // namespace

PixelImage RenderLamp(int width, int height, double scale, LampLook look, const ThemeArt& theme) {
    const LampColors c = ColorsOf(look);
    const double margin = std::max(0.5, 0.5 * scale);
    const double radius = std::min(width, height) / 2.0 - margin;
    const double sink = look == LampLook::Pressed ? 0.3 * scale : 0.0;
    const double cx = width / 2.0 + sink;
    const double cy = height / 2.0 + sink;
    const double rim = std::max(0.8, 0.8 * scale);
    const double ring = std::max(1.2, radius * 0.42);
    const Rgba outline = Darker(theme.form, 0.55);
    const Rgba core = Lighter(theme.box, 0.5);
    return Render(width, height, [&](double x, double y) {
        if (radius <= 0) return Clear;
        const double d = Distance(x - cx, y - cy);
        if (d > radius) return c.glow > 0 && d <= radius + margin ? Faded(c.top, c.glow) : Clear;
        if (d > radius - rim) return outline;
        if (c.ring && d < radius - rim - ring) return core;
        const double t = std::clamp(((x - cx) + (y - cy)) / (2.0 * radius) + 0.5, 0.0, 1.0);
        Rgba body = Mix(c.top, c.bottom, t);
        // A small bright spot where the light falls.
        if (Distance(x - (cx - radius * 0.35), y - (cy - radius * 0.35)) < radius * 0.28) {
            body = Over(body, Faded({1, 1, 1, 1}, 0.5));
        }
        return body;
    });
}

}  // namespace qs::win::art
