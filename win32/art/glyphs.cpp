#include "art/glyphs.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <initializer_list>
#include <numbers>

#include "art/paint.h"

namespace qs::win::art {

namespace {

struct Point {
    double x;
    double y;
};

constexpr double kPi = std::numbers::pi;

// Distance to a polyline through the points.
double PathDistance(std::initializer_list<Point> points, double u, double v) {
    double best = 1e9;
    const Point* previous = nullptr;
    for (const Point& p : points) {
        if (previous != nullptr) best = std::min(best, SegmentDistance(u, v, previous->x, previous->y, p.x, p.y));
        previous = &p;
    }
    return best;
}

// Distance to the arc of a circle from angle `from` to angle `to` (radians,
// y downwards, to > from).
double ArcDistance(double cx, double cy, double radius, double from, double to, double u, double v) {
    double angle = std::atan2(v - cy, u - cx);
    while (angle < from) angle += 2 * kPi;
    if (angle <= to) return std::abs(Distance(u - cx, v - cy) - radius);
    const double a = Distance(u - (cx + radius * std::cos(from)), v - (cy + radius * std::sin(from)));
    const double b = Distance(u - (cx + radius * std::cos(to)), v - (cy + radius * std::sin(to)));
    return std::min(a, b);
}

// Distance to an ellipse's outline, near enough for thin strokes.
double EllipseDistance(double rx, double ry, double u, double v) {
    const double f = (u * u) / (rx * rx) + (v * v) / (ry * ry) - 1;
    const double gx = 2 * u / (rx * rx);
    const double gy = 2 * v / (ry * ry);
    const double g = Distance(gx, gy);
    return g > 0 ? std::abs(f) / g : 1e9;
}

double RectDistance(double left, double top, double right, double bottom, double u, double v) {
    return PathDistance({{left, top}, {right, top}, {right, bottom}, {left, bottom}, {left, top}}, u, v);
}

// Inside the triangle a, b, c.
bool InTriangle(Point a, Point b, Point c, double u, double v) {
    const auto side = [u, v](Point p, Point q) { return (q.x - p.x) * (v - p.y) - (q.y - p.y) * (u - p.x); };
    const double d1 = side(a, b);
    const double d2 = side(b, c);
    const double d3 = side(c, a);
    return (d1 >= 0 && d2 >= 0 && d3 >= 0) || (d1 <= 0 && d2 <= 0 && d3 <= 0);
}

bool InStar(double u, double v) {
    // Five points, the top one upright; a point is inside when it lies in
    // one of the five triangles around the centre.
    const double outer = 0.95;
    const double inner = 0.40;
    std::array<Point, 10> corners{};
    for (int k = 0; k < 10; ++k) {
        const double radius = (k % 2 == 0) ? outer : inner;
        const double angle = -kPi / 2 + k * kPi / 5;
        corners[static_cast<std::size_t>(k)] = {radius * std::cos(angle), radius * std::sin(angle) + 0.08};
    }
    const Point centre{0, 0.08};
    for (std::size_t k = 0; k < 10; ++k) {
        if (InTriangle(centre, corners[k], corners[(k + 1) % 10], u, v)) return true;
    }
    return false;
}

// Distance from the point to the glyph's strokes, in glyph units.
double StrokeDistance(Glyph glyph, double u, double v) {
    switch (glyph) {
        case Glyph::Plus:
            return std::min(PathDistance({{-0.8, 0}, {0.8, 0}}, u, v), PathDistance({{0, -0.8}, {0, 0.8}}, u, v));
        case Glyph::Greater:
            return PathDistance({{-0.45, -0.8}, {0.5, 0}, {-0.45, 0.8}}, u, v);
        case Glyph::LetterL:
            return PathDistance({{-0.45, -0.85}, {-0.45, 0.85}, {0.55, 0.85}}, u, v);
        case Glyph::LetterC:
            return ArcDistance(0.1, 0, 0.8, kPi / 4, 7 * kPi / 4, u, v);
        case Glyph::LetterP:
            return std::min({PathDistance({{-0.45, 0.85}, {-0.45, -0.85}, {0.05, -0.85}}, u, v),
                             ArcDistance(0.05, -0.40, 0.45, -kPi / 2, kPi / 2, u, v),
                             PathDistance({{0.05, 0.05}, {-0.45, 0.05}}, u, v)});
        case Glyph::LetterW:
            return PathDistance({{-0.85, -0.8}, {-0.45, 0.8}, {0, -0.25}, {0.45, 0.8}, {0.85, -0.8}}, u, v);
        case Glyph::Question: {
            const double end = 2 * kPi + kPi / 3.5;
            const Point tail{0.5 * std::cos(end), -0.38 + 0.5 * std::sin(end)};
            return std::min({ArcDistance(0, -0.38, 0.5, kPi, end, u, v),
                             PathDistance({tail, {0, 0.12}, {0, 0.35}}, u, v),
                             std::max(0.0, Distance(u, v - 0.82) - 0.06)});
        }
        case Glyph::LetterM:
            return PathDistance({{-0.8, 0.85}, {-0.8, -0.8}, {0, 0.3}, {0.8, -0.8}, {0.8, 0.85}}, u, v);
        case Glyph::LetterX:
            return std::min(PathDistance({{-0.7, -0.7}, {0.7, 0.7}}, u, v),
                            PathDistance({{-0.7, 0.7}, {0.7, -0.7}}, u, v));
        case Glyph::File:
            return PathDistance({{0.15, -0.85}, {-0.6, -0.85}, {-0.6, 0.85}, {0.6, 0.85}, {0.6, -0.4}, {0.15, -0.85},
                                 {0.15, -0.4}, {0.6, -0.4}},
                                u, v);
        case Glyph::Folder:
            return PathDistance({{-0.85, 0.7}, {-0.85, -0.65}, {-0.25, -0.65}, {-0.05, -0.4}, {0.85, -0.4}, {0.85, 0.7},
                                 {-0.85, 0.7}},
                                u, v);
        case Glyph::Program:
            return std::min(RectDistance(-0.85, -0.7, 0.85, 0.7, u, v),
                            PathDistance({{-0.85, -0.3}, {0.85, -0.3}}, u, v));
        case Glyph::Email:
            return std::min(RectDistance(-0.85, -0.6, 0.85, 0.6, u, v),
                            PathDistance({{-0.85, -0.6}, {0, 0.1}, {0.85, -0.6}}, u, v));
        case Glyph::WebUrl:
            return std::min({std::abs(Distance(u, v) - 0.85), EllipseDistance(0.38, 0.85, u, v),
                             PathDistance({{-0.85, 0}, {0.85, 0}}, u, v)});
        default:
            return 1e9;
    }
}

}  // namespace

Glyph BarButtonGlyph(std::int16_t i) {
    static constexpr std::array<Glyph, 9> kLetters{Glyph::Plus,    Glyph::Greater,  Glyph::LetterL,
                                                   Glyph::LetterC, Glyph::LetterP,  Glyph::LetterW,
                                                   Glyph::Question, Glyph::LetterM, Glyph::LetterX};
    return i >= 0 && i < 9 ? kLetters[static_cast<std::size_t>(i)] : Glyph::None;
}

Glyph GroupGlyph(std::int16_t g) {
    static constexpr std::array<Glyph, 5> kGroups{Glyph::File, Glyph::Folder, Glyph::Program, Glyph::Email,
                                                  Glyph::WebUrl};
    return g >= 0 && g < 5 ? kGroups[static_cast<std::size_t>(g)] : Glyph::None;
}

bool GlyphCovers(Glyph glyph, double u, double v, double size, double stroke) {
    switch (glyph) {
        case Glyph::None:
            return false;
        case Glyph::Forward:
            return InTriangle({-0.45, -0.75}, {0.65, 0}, {-0.45, 0.75}, u, v);
        case Glyph::Backward:
            return InTriangle({0.45, -0.75}, {-0.65, 0}, {0.45, 0.75}, u, v);
        case Glyph::Star:
            return InStar(u, v);
        default:
            return StrokeDistance(glyph, u, v) * size <= stroke / 2;
    }
}

}  // namespace qs::win::art
