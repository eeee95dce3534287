#include "art/emblem.h"

namespace qs::win::art {

namespace {

struct EmblemColors {
    Rgba tileTop;
    Rgba tileBottom;
    Rgba tileRim;
    Rgba body;
    Rgba bodyLight;
    Rgba bodyShade;
};

EmblemColors OwnColors() {
    const Rgba yellow = Opaque(ui::Rgb(244, 192, 72));
    return {Opaque(ui::Rgb(92, 128, 176)), Opaque(ui::Rgb(48, 76, 118)), Opaque(ui::Rgb(34, 52, 82)), yellow,
            Lighter(yellow, 0.35), Darker(yellow, 0.18)};
}

EmblemColors ThemeColors(const ThemeArt& t) {
    const Rgba tile = t.dark ? Darker(t.form, 0.15) : Lighter(t.box, 0.3);
    // The pencil stands out from the tile: warm on a dark tile, the
    // theme's own body on a light one.
    const Rgba body = t.dark ? Opaque(ui::Rgb(244, 192, 72)) : Darker(t.body, 0.25);
    return {Lighter(tile, 0.12), Darker(tile, 0.10), t.outline, body, Lighter(body, 0.35), Darker(body, 0.18)};
}

}  // namespace

PixelImage RenderEmblem(int width, int height, double scale, const ThemeArt* theme) {
    const EmblemColors c = theme != nullptr ? ThemeColors(*theme) : OwnColors();
    const double size = std::min(width, height);
    const double ox = (width - size) / 2;
    const double oy = (height - size) / 2;
    const double rim = std::max(1.0, std::round(scale));
    const double radius = size * 0.22;
    const Rgba graphite = Opaque(ui::Rgb(52, 56, 64));
    const Rgba wood = Opaque(ui::Rgb(238, 212, 172));
    const Rgba metal = Opaque(ui::Rgb(200, 205, 212));
    const Rgba eraser = Opaque(ui::Rgb(228, 150, 148));
    const Rgba outline = Opaque(ui::Rgb(40, 36, 34));
    // The pencil runs from the bottom left (its point) to the top right.
    const double axis = std::sqrt(0.5);
    const double half = size * 0.12;
    const double from = -size * 0.40;
    const double to = size * 0.40;
    const double cone = size * 0.22;
    return Render(width, height, [&](double x, double y) {
        const double px = x - ox;
        const double py = y - oy;
        const double d = RoundRectDistance(px, py, 0.5 * scale, 0.5 * scale, size - 0.5 * scale, size - 0.5 * scale,
                                           radius);
        if (d > 0) return Clear;
        if (d > -rim) return c.tileRim;
        const double t = std::clamp((px + py) / (2 * size), 0.0, 1.0);
        Rgba out = Mix(c.tileTop, c.tileBottom, t);
        // Pencil coordinates: u along it from the point, v across it.
        const double cx = px - size / 2;
        const double cy = py - size / 2;
        const double u = (cx - cy) * axis;
        const double v = (cx + cy) * axis;
        if (u < from || u > to) return out;
        const double along = u - from;
        const double width2 = along < cone ? half * along / cone : half;
        if (std::abs(v) > width2) return out;
        if (std::abs(v) > width2 - rim * 0.9) return outline;
        if (along < cone * 0.35) return graphite;
        if (along < cone) return wood;
        if (u > to - size * 0.10) return eraser;
        if (u > to - size * 0.17) return metal;
        if (v < -half / 3) return c.bodyLight;
        return v < half / 3 ? c.body : c.bodyShade;
    });
}

PixelImage RenderWindowFace(int width, int height, double scale, const ThemeArt& theme) {
    const double rim = std::max(1.0, std::round(scale));
    const Rgba top = Lighter(theme.form, 0.07);
    const Rgba bottom = Darker(theme.form, 0.06);
    const Rgba frame = Darker(theme.form, 0.38);
    const Rgba light = Lighter(theme.form, 0.22);
    const double w = width;
    const double h = height;
    // Edges lie on whole pixels, so one sample a pixel is exact.
    return Render(
        width, height,
        [&](double x, double y) {
            const double edge = std::min({x, y, w - x, h - y});
            if (edge < rim) return frame;
            if (edge < 2 * rim) return light;
            return Mix(top, bottom, y / h);
        },
        1);
}

}  // namespace qs::win::art
