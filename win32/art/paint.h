#pragma once
// The drawing kit of the picture catalogue: premultiplied colours, shapes
// measured as distances, and one renderer that samples every pixel on a
// 4 x 4 grid, so each edge is smooth at any size. Everything is drawn at the
// pixel size asked for; no picture is ever scaled.
#include <algorithm>
#include <cmath>
#include <cstdint>

#include "pixel_image.h"
#include "ui/color.h"

namespace qs::win::art {

// A premultiplied colour, every channel 0 to 1; a = 0 is clear.
struct Rgba {
    double r = 0;
    double g = 0;
    double b = 0;
    double a = 0;
};

inline constexpr Rgba Clear{};

constexpr Rgba Opaque(ui::Color c) {
    return {ui::RedOf(c) / 255.0, ui::GreenOf(c) / 255.0, ui::BlueOf(c) / 255.0, 1.0};
}

// Straight interpolation between two colours.
inline Rgba Mix(const Rgba& a, const Rgba& b, double t) {
    return {a.r + (b.r - a.r) * t, a.g + (b.g - a.g) * t, a.b + (b.b - a.b) * t, a.a + (b.a - a.a) * t};
}
inline Rgba Lighter(const Rgba& c, double t) { return Mix(c, {1, 1, 1, c.a}, t); }
inline Rgba Darker(const Rgba& c, double t) { return Mix(c, {0, 0, 0, c.a}, t); }
// The colour with its strength multiplied by alpha.
inline Rgba Faded(const Rgba& c, double alpha) { return {c.r * alpha, c.g * alpha, c.b * alpha, c.a * alpha}; }
// One colour laid over another.
inline Rgba Over(const Rgba& below, const Rgba& above) {
    const double keep = 1 - above.a;
    return {above.r + below.r * keep, above.g + below.g * keep, above.b + below.b * keep, above.a + below.a * keep};
}
// Perceived brightness of an opaque colour, 0 to 1.
inline double Luma(const Rgba& c) { return 0.299 * c.r + 0.587 * c.g + 0.114 * c.b; }
// Takes some of the colour's saturation away, for a calmer tone.
inline Rgba Calm(const Rgba& c, double t) {
    const double y = Luma(c);
    return Mix(c, {y, y, y, c.a}, t);
}

// The length of (dx, dy). std::hypot guards against overflow that distances
// of a few hundred pixels never come near, and is a library call in the
// innermost loop of every picture: sixteen samples a pixel.
inline double Distance(double dx, double dy) { return std::sqrt(dx * dx + dy * dy); }

// Distance from a point to the segment a-b.
inline double SegmentDistance(double x, double y, double ax, double ay, double bx, double by) {
    const double dx = bx - ax;
    const double dy = by - ay;
    const double length = dx * dx + dy * dy;
    const double t = length > 0 ? std::clamp(((x - ax) * dx + (y - ay) * dy) / length, 0.0, 1.0) : 0.0;
    return Distance(x - (ax + t * dx), y - (ay + t * dy));
}

// Signed distance to a rectangle with rounded corners: negative inside.
inline double RoundRectDistance(double x, double y, double left, double top, double right, double bottom,
                                double radius) {
    const double cx = (left + right) / 2;
    const double cy = (top + bottom) / 2;
    const double hx = (right - left) / 2 - radius;
    const double hy = (bottom - top) / 2 - radius;
    const double qx = std::abs(x - cx) - hx;
    const double qy = std::abs(y - cy) - hy;
    const double outside = Distance(std::max(qx, 0.0), std::max(qy, 0.0));
    return outside + std::min(std::max(qx, qy), 0.0) - radius;
}

// Packs a premultiplied colour as the 0xAARRGGBB pixel of a 32-bit DIB.
inline std::uint32_t ToPixel(const Rgba& c) {
    // Rounded half away from zero, as std::lround does, but without a call
    // into the C library for every channel of every pixel; a negative
    // channel comes out as 0 either way.
    const auto channel = [](double v) {
        const double scaled = v * 255.0;
        if (!(scaled > 0)) return std::uint32_t{0};
        if (scaled >= 255) return std::uint32_t{255};
        auto whole = static_cast<std::uint32_t>(scaled);
        if (scaled - whole >= 0.5) ++whole;
        return whole;
    };
    const std::uint32_t a = channel(c.a);
    const auto premultiplied = [a](std::uint32_t v) { return std::min(v, a); };
    return (a << 24) | (premultiplied(channel(c.r)) << 16) | (premultiplied(channel(c.g)) << 8) |
           premultiplied(channel(c.b));
}

// Draws width x height pixels; shade(x, y) gives the colour at a point in
// pixel units, sampled samples x samples times per pixel.
template <typename Shade>
PixelImage Render(int width, int height, Shade&& shade, int samples = 4) {
    PixelImage image;
    if (width <= 0 || height <= 0) return image;
    image.width = width;
    image.height = height;
    image.pixels.resize(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    const double count = static_cast<double>(samples) * samples;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            Rgba sum;
            for (int sy = 0; sy < samples; ++sy) {
                for (int sx = 0; sx < samples; ++sx) {
                    const Rgba c = shade(x + (sx + 0.5) / samples, y + (sy + 0.5) / samples);
                    sum.r += c.r;
                    sum.g += c.g;
                    sum.b += c.b;
                    sum.a += c.a;
                }
            }
            image.pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + static_cast<std::size_t>(x)] =
                ToPixel({sum.r / count, sum.g / count, sum.b / count, sum.a / count});
        }
    }
    return image;
}

// The one stroke width of every line and letter, in pixels at 96 DPI.
inline constexpr double kStroke = 1.5;

}  // namespace qs::win::art
