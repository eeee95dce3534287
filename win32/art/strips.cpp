#include "art/strips.h"

#include <array>
#include <vector>

namespace qs::win::art {

namespace {

// The bar is 348 twips high, its strips 372: the form cuts the strips'
// lowest part, so the body is laid out in the part that shows.
constexpr double kBarShown = 348.0 / 372.0;

// Where the text boxes lie on the strips, as parts of the strip's width
// (the bar's design: TextMain on the Command strip, TextWebUrl and
// TextWebName on the web strip).
struct Span {
    double from;
    double to;
};
constexpr std::array<Span, 1> kCommandFields{{{120.0 / 5640, 1932.0 / 5640}}};
constexpr std::array<Span, 2> kWebFields{{{600.0 / 5940, 3000.0 / 5940}, {4440.0 / 5940, 5532.0 / 5940}}};
// The web strip's metal band and eraser.
constexpr double kBandFrom = 5545.0 / 5940;
constexpr double kEraserFrom = 5625.0 / 5940;

const Rgba kGraphite = Opaque(ui::Rgb(62, 66, 74));
const Rgba kWood = Opaque(ui::Rgb(236, 210, 170));
const Rgba kWoodShade = Opaque(ui::Rgb(214, 184, 140));
const Rgba kMetal = Opaque(ui::Rgb(198, 203, 210));
const Rgba kMetalRidge = Opaque(ui::Rgb(150, 158, 168));
const Rgba kEraser = Opaque(ui::Rgb(228, 160, 156));
const Rgba kEraserShade = Opaque(ui::Rgb(204, 136, 134));

struct Body {
    double top;
    double bottom;
    double rim;
};

// The painted body at height y: outlined above and below, three facets.
Rgba BodyAt(const Body& b, const ThemeArt& theme, double y) {
    if (y < b.top || y >= b.bottom) return Clear;
    if (y < b.top + b.rim || y >= b.bottom - b.rim) return theme.outline;
    const double f = (y - b.top) / (b.bottom - b.top);
    if (f < 0.34) return theme.bodyLight;
    if (f < 0.70) return theme.body;
    return theme.bodyShade;
}

// A light field with a thin outline, where a text box sits flat.
bool FieldAt(const Body& b, const ThemeArt& theme, double scale, double left, double right, double x, double y,
             Rgba& out) {
    const double top = b.top + b.rim;
    const double bottom = b.bottom - b.rim;
    // Beyond the field's bounds its distance is above 0 anyway: most of a
    // strip is body, and is not measured.
    if (x < left || x > right || y < top || y > bottom) return false;
    const double d = RoundRectDistance(x, y, left, top, right, bottom, 3.0 * scale);
    if (d > 0) return false;
    out = d > -b.rim ? theme.outline : theme.box;
    return true;
}

// The pencil's sharpened point: a cone from the apex, graphite first, wood
// after, then the body.
struct Point {
    double apex;
    double coneEnd;
    double graphiteEnd;
    // Turns a vertical distance inside the cone into one square to its
    // slanted edge, which carries the same outline as the body.
    double slant;

    Point(const Body& b, double width, double scale)
        : apex(1.5 * scale),
          coneEnd(std::round(width * 0.62)),
          graphiteEnd(apex + (coneEnd - apex) * 0.30),
          slant(std::cos(std::atan((b.bottom - b.top) / 2 / (coneEnd - apex)))) {}
};

Rgba PointAt(const Body& b, const ThemeArt& theme, const Point& p, double x, double y) {
    if (x >= p.coneEnd) return BodyAt(b, theme, y);
    const double middle = (b.top + b.bottom) / 2;
    const double half = (x - p.apex) / (p.coneEnd - p.apex) * (b.bottom - b.top) / 2;
    const double inside = half - std::abs(y - middle);
    if (x < p.apex || inside < 0) return Clear;
    if (inside * p.slant < b.rim) return theme.outline;
    if (x < p.graphiteEnd) return kGraphite;
    return y > middle + half * 0.30 ? kWoodShade : kWood;
}

// Where the web strip's metal band and eraser begin, in pixels.
struct End {
    double band;
    double eraser;

    explicit End(double width) : band(std::round(width * kBandFrom)), eraser(std::round(width * kEraserFrom)) {}
};

Rgba EndAt(const Body& b, const ThemeArt& theme, const End& e, double width, double scale, double x, double y) {
    const double band = e.band;
    const double eraser = e.eraser;
    if (x < band) return BodyAt(b, theme, y);
    if (y < b.top || y >= b.bottom) return Clear;
    if (x < eraser) {
        if (y < b.top + b.rim || y >= b.bottom - b.rim) return Darker(kMetalRidge, 0.2);
        const double span = eraser - band;
        const double at = x - band;
        const bool ridge = std::abs(at - span / 3) < b.rim / 2 || std::abs(at - 2 * span / 3) < b.rim / 2;
        return ridge ? kMetalRidge : Mix(Lighter(kMetal, 0.3), kMetal, (y - b.top) / (b.bottom - b.top));
    }
    const double radius = std::min(5.0 * scale, (b.bottom - b.top) / 2);
    const double d = RoundRectDistance(x, y, eraser - radius, b.top, width - 1.0 * scale, b.bottom, radius);
    if (d > 0) return Clear;
    if (d > -b.rim) return Darker(kEraserShade, 0.25);
    return (y - b.top) / (b.bottom - b.top) > 0.66 ? kEraserShade : kEraser;
}

Rgba SegmentAt(const Body& b, const ThemeArt& theme, double width, double scale, double x, double y) {
    const double radius = std::min(6.0 * scale, (b.bottom - b.top) / 2);
    const double d = RoundRectDistance(x, y, 0.5 * scale, b.top, width - 0.5 * scale, b.bottom, radius);
    if (d > 0) return Clear;
    if (d > -b.rim) return theme.outline;
    return BodyAt(b, theme, y);
}

}  // namespace

PixelImage RenderStrip(int width, int height, double scale, StripKind kind, const ThemeArt& theme) {
    const double shown = kind == StripKind::Segment ? height : height * kBarShown;
    const double inset = std::max(1.0, std::round(1.0 * scale));
    const Body body{inset, shown - inset, std::max(1.0, std::round(scale))};
    const double w = width;
    // The fields' edges in pixels, once for every sample.
    std::vector<Span> fields;
    const auto inPixels = [&fields, w](const auto& spans) {
        for (const Span& f : spans) fields.push_back({std::round(f.from * w), std::round(f.to * w)});
    };
    if (kind == StripKind::BarCommand) inPixels(kCommandFields);
    if (kind == StripKind::BarWeb) inPixels(kWebFields);
    const Point point(body, w, scale);
    const End end(w);
    return Render(width, height, [&](double x, double y) {
        Rgba out;
        for (const Span& f : fields) {
            if (FieldAt(body, theme, scale, f.from, f.to, x, y, out)) return out;
        }
        switch (kind) {
            case StripKind::BarPoint:
                return PointAt(body, theme, point, x, y);
            case StripKind::BarWeb:
                return EndAt(body, theme, end, w, scale, x, y);
            case StripKind::Segment:
                return SegmentAt(body, theme, w, scale, x, y);
            case StripKind::BarCommand:
                break;
        }
        return BodyAt(body, theme, y);
    });
}

}  // namespace qs::win::art
