#include "pencil_art.h"

#include <algorithm>
#include <cmath>

namespace qs::win {

namespace {

struct Color {
    double r = 0;
    double g = 0;
    double b = 0;
};

constexpr Color FromRgb(std::uint32_t rgb) {
    return {static_cast<double>((rgb >> 16) & 0xFF), static_cast<double>((rgb >> 8) & 0xFF),
            static_cast<double>(rgb & 0xFF)};
}

const Color kGap = FromRgb(0xDCE2E8);
const Color kGraphite = FromRgb(0x3C4148);
const Color kWood = FromRgb(0xEBCFA6);
const Color kWoodShade = FromRgb(0xD9B98C);
const Color kFacetTop = FromRgb(0xE3B54F);
const Color kFacetMiddle = FromRgb(0xF0CB6A);
const Color kFacetBottom = FromRgb(0xCFA043);
const Color kEdge = FromRgb(0xA87F2E);
const Color kMetal = FromRgb(0xC3C8CF);
const Color kMetalRidge = FromRgb(0x98A0AA);
const Color kEraser = FromRgb(0xE7A3A0);
const Color kEraserShade = FromRgb(0xD28C8A);
const Color kField = FromRgb(kPencilFieldColor);
const Color kFieldEdge = FromRgb(0xB99343);

// Inside a rectangle with rounded corners of radius r.
bool InRoundRect(double x, double y, double left, double top, double right, double bottom, double r) {
    if (x < left || x >= right || y < top || y >= bottom) return false;
    const double cx = std::clamp(x, left + r, right - r);
    const double cy = std::clamp(y, top + r, bottom - r);
    const double dx = x - cx;
    const double dy = y - cy;
    return dx * dx + dy * dy <= r * r;
}

// The shapes, measured in pixels of the image.
struct Layout {
    double width;
    double height;
    double scale;
    double inset;        // body's distance from the top and bottom edges
    double apex;         // x of the graphite point
    double coneEnd;      // x where the cone meets the body
    double graphiteEnd;  // x where the graphite gives way to wood
    double metalStart;
    double eraserStart;
};

Layout MakeLayout(int width, int height, double scale) {
    Layout l{};
    l.width = width;
    l.height = height;
    l.scale = scale;
    l.inset = std::max(1.0, std::round(1.0 * scale));
    l.apex = 1.5 * scale;
    l.coneEnd = std::round(34.0 * scale);
    l.graphiteEnd = l.apex + (l.coneEnd - l.apex) * 0.36;
    l.eraserStart = width - std::round(15.0 * scale);
    l.metalStart = l.eraserStart - std::round(11.0 * scale);
    return l;
}

// The colour at one point of the bar, fields not included.
Color PencilAt(const Layout& l, double x, double y) {
    const double top = l.inset;
    const double bottom = l.height - l.inset;
    const double bodyHeight = bottom - top;
    const double middle = l.height / 2.0;
    if (y < top || y >= bottom) return kGap;

    if (x < l.coneEnd) {
        // The cone narrows linearly from the body to the point.
        const double t = (x - l.apex) / (l.coneEnd - l.apex);
        if (t < 0) return kGap;
        const double halfHeight = t * bodyHeight / 2.0;
        if (std::abs(y - middle) > halfHeight) return kGap;
        if (x < l.graphiteEnd) return kGraphite;
        return (y > middle + halfHeight * 0.35) ? kWoodShade : kWood;
    }
    if (x < l.metalStart) {
        // Three facets and a thin darker edge along the top and the bottom.
        const double edge = std::max(1.0, std::round(l.scale));
        if (y < top + edge || y >= bottom - edge) return kEdge;
        const double f = (y - top) / bodyHeight;
        if (f < 0.30) return kFacetTop;
        if (f < 0.70) return kFacetMiddle;
        return kFacetBottom;
    }
    if (x < l.eraserStart) {
        const double ridge = std::max(1.0, std::round(l.scale));
        const double span = l.eraserStart - l.metalStart;
        const double inBand = x - l.metalStart;
        if (std::abs(inBand - span / 3.0) < ridge / 2.0 || std::abs(inBand - 2.0 * span / 3.0) < ridge / 2.0) {
            return kMetalRidge;
        }
        return kMetal;
    }
    const double radius = std::min(5.0 * l.scale, bodyHeight / 2.0);
    if (!InRoundRect(x, y, l.eraserStart - radius, top, l.width - l.inset, bottom, radius)) return kGap;
    return (y - top) / bodyHeight > 0.70 ? kEraserShade : kEraser;
}

Color ColorAt(const Layout& l, const std::vector<FieldRect>& fields, double x, double y) {
    const double radius = 3.0 * l.scale;
    const double border = std::max(1.0, std::round(l.scale));
    for (const FieldRect& f : fields) {
        if (!InRoundRect(x, y, f.left, f.top, f.right, f.bottom, radius)) continue;
        const bool inner =
            InRoundRect(x, y, f.left + border, f.top + border, f.right - border, f.bottom - border, radius - border);
        return inner ? kField : kFieldEdge;
    }
    return PencilAt(l, x, y);
}

std::uint32_t ToRgb(const Color& c) {
    auto channel = [](double v) { return static_cast<std::uint32_t>(std::clamp(std::lround(v), 0L, 255L)); };
    return (channel(c.r) << 16) | (channel(c.g) << 8) | channel(c.b);
}

}  // namespace

PixelImage RenderPencilBar(int width, int height, double scale, const std::vector<FieldRect>& fields) {
    PixelImage image;
    image.width = std::max(width, 0);
    image.height = std::max(height, 0);
    image.pixels.resize(static_cast<std::size_t>(image.width) * static_cast<std::size_t>(image.height));
    const Layout layout = MakeLayout(image.width, image.height, scale);
    constexpr int kSamples = 4;
    for (int py = 0; py < image.height; ++py) {
        for (int px = 0; px < image.width; ++px) {
            Color sum;
            for (int sy = 0; sy < kSamples; ++sy) {
                for (int sx = 0; sx < kSamples; ++sx) {
                    const Color c = ColorAt(layout, fields, px + (sx + 0.5) / kSamples, py + (sy + 0.5) / kSamples);
                    sum.r += c.r;
                    sum.g += c.g;
                    sum.b += c.b;
                }
            }
            constexpr double kCount = kSamples * kSamples;
            image.pixels[static_cast<std::size_t>(py) * image.width + px] =
                ToRgb({sum.r / kCount, sum.g / kCount, sum.b / kCount});
        }
    }
    return image;
}

}  // namespace qs::win
