#include "round_button_art.h"

#include <algorithm>
#include <cmath>

namespace qs::win {

namespace {

// A premultiplied colour: a = 0 is transparent, a = 1 opaque.
struct Color {
    double r = 0;
    double g = 0;
    double b = 0;
    double a = 1;
};

constexpr Color FromRgb(std::uint32_t rgb) {
    return {static_cast<double>((rgb >> 16) & 0xFF), static_cast<double>((rgb >> 8) & 0xFF),
            static_cast<double>(rgb & 0xFF)};
}

Color Mix(const Color& a, const Color& b, double t) {
    return {a.r + (b.r - a.r) * t, a.g + (b.g - a.g) * t, a.b + (b.b - a.b) * t, 1};
}

// Lays an opaque colour with the given strength over a premultiplied one.
Color Over(const Color& below, const Color& above, double strength) {
    return {above.r * strength + below.r * (1 - strength), above.g * strength + below.g * (1 - strength),
            above.b * strength + below.b * (1 - strength), strength + below.a * (1 - strength)};
}

std::uint32_t ToArgb(const Color& c) {
    const auto channel = [](double v) { return static_cast<std::uint32_t>(std::clamp(std::lround(v), 0L, 255L)); };
    return (channel(c.a * 255) << 24) | (channel(c.r) << 16) | (channel(c.g) << 8) | channel(c.b);
}

// The colours of one look: the body runs from top to bottom, the rim rings it.
struct Palette {
    Color top;
    Color bottom;
    Color rim;
    double shadow;     // strength of the shadow below the button
    double highlight;  // strength of the gloss at its top
    double drop;       // how far the body sits below its resting place, in pixels at 96 DPI
};

Palette PaletteOf(ButtonLook look) {
    switch (look) {
        case ButtonLook::Hover:
            return {FromRgb(0x86A8D0), FromRgb(0x5B81B0), FromRgb(0x46698F), 0.20, 0.34, 0.0};
        case ButtonLook::Down:
            return {FromRgb(0x42648F), FromRgb(0x5A7EAA), FromRgb(0x354F72), 0.0, 0.06, 1.0};
        default:
            return {FromRgb(0x779BC6), FromRgb(0x4C71A0), FromRgb(0x3F5F86), 0.18, 0.30, 0.0};
    }
}

}  // namespace

ButtonLook LookOfPicture(const ui::PictureRef& picture) {
    switch (picture.slot) {
        case ui::PictureSlot::ImageMU:
            return ButtonLook::Up;
        case ui::PictureSlot::ImageMD:
            return ButtonLook::Down;
        default:
            return ButtonLook::None;
    }
}

PixelImage RenderRoundButton(int width, int height, double scale, ButtonLook look) {
    PixelImage image;
    if (width <= 0 || height <= 0) return image;
    image.width = width;
    image.height = height;
    image.pixels.assign(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), 0);
    if (look == ButtonLook::None) return image;

    const Palette p = PaletteOf(look);
    const Color clear{0, 0, 0, 0};
    const Color black{};
    const Color white = FromRgb(0xFFFFFF);
    const double margin = 1.5 * scale;
    const double radius = std::min(width, height) / 2.0 - margin;
    if (radius <= 0) return image;
    const double rim = std::max(1.0, scale);
    const double cx = width / 2.0;
    const double cy = height / 2.0 - 0.5 * scale + p.drop * scale;
    const double shadowOffset = 1.2 * scale;
    // The gloss: an ellipse over the upper part of the body.
    const double glossCy = cy - radius * 0.38;
    const double glossRx = radius * 0.66;
    const double glossRy = radius * 0.44;

    constexpr int kSamples = 4;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            Color sum{0, 0, 0, 0};
            for (int sy = 0; sy < kSamples; ++sy) {
                for (int sx = 0; sx < kSamples; ++sx) {
                    const double px = x + (sx + 0.5) / kSamples;
                    const double py = y + (sy + 0.5) / kSamples;
                    const double d = std::hypot(px - cx, py - cy);
                    Color c = clear;
                    if (p.shadow > 0 && std::hypot(px - cx, py - cy - shadowOffset) <= radius) {
                        c = Over(c, black, p.shadow);
                    }
                    if (d <= radius) {
                        c = p.rim;
                        if (d <= radius - rim) {
                            const double t = std::clamp((py - (cy - radius)) / (2 * radius), 0.0, 1.0);
                            c = Mix(p.top, p.bottom, t);
                            const double gx = (px - cx) / glossRx;
                            const double gy = (py - glossCy) / glossRy;
                            // The gloss fades out towards its lower edge.
                            if (gx * gx + gy * gy <= 1.0) c = Over(c, white, p.highlight * (1 - gy) / 2);
                        }
                    }
                    sum.r += c.r;
                    sum.g += c.g;
                    sum.b += c.b;
                    sum.a += c.a;
                }
            }
            constexpr double kCount = kSamples * kSamples;
            image.pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + static_cast<std::size_t>(x)] =
                ToArgb({sum.r / kCount, sum.g / kCount, sum.b / kCount, sum.a / kCount});
        }
    }
    return image;
}

}  // namespace qs::win
