#include "art/round_button.h"

namespace qs::win::art {

PixelImage RenderRoundButton(int width, int height, double scale, const ButtonArt& art) {
    const ButtonColors& c = art.colors;
    const bool pressed = art.form == ButtonForm::Pressed;
    const bool blank = art.form == ButtonForm::Blank;
    const double margin = std::max(0.8, 1.0 * scale);
    const double radius = std::min(width, height) / 2.0 - margin;
    // Light comes from the top left: the body sits a little up and left of
    // centre and casts its shadow to the bottom right; pressed, it sinks
    // into the shadow's place.
    const double lift = pressed ? 0.35 * scale : -0.35 * scale;
    const double cx = width / 2.0 + lift;
    const double cy = height / 2.0 + lift;
    const double rim = std::max(1.0, scale);
    const double shadowDx = 0.7 * scale;
    const double shadowDy = 1.0 * scale;
    const double glyphSize = radius * 0.46;
    const double stroke = std::min(std::max(1.0, kStroke * scale), radius * 0.30);
    const double glossStrength = pressed ? 0.08 : 0.38;
    const Rgba white{1, 1, 1, 1};
    const Rgba shadow{0, 0, 0, 0.24};

    return Render(width, height, [&](double x, double y) {
        if (radius <= 0) return Clear;
        const double d = Distance(x - cx, y - cy);
        if (blank) {
            if (d > radius || d < radius - rim) {
                return GlyphCovers(art.glyph, (x - cx) / glyphSize, (y - cy) / glyphSize, glyphSize, stroke)
                           ? Faded(c.rim, art.glyphStrength)
                           : Clear;
            }
            return Faded(c.rim, 0.45);
        }
        Rgba out = Clear;
        if (!pressed && Distance(x - cx - shadowDx, y - cy - shadowDy) <= radius) out = shadow;
        if (d > radius) return out;
        if (d > radius - rim) return Over(out, c.rim);
        const double t = std::clamp(((x - cx) + (y - cy)) / (2.0 * radius) + 0.5, 0.0, 1.0);
        Rgba body = Mix(c.top, c.bottom, t);
        const double gx = (x - (cx - 0.20 * radius)) / (0.64 * radius);
        const double gy = (y - (cy - 0.36 * radius)) / (0.44 * radius);
        if (gx * gx + gy * gy <= 1.0) body = Over(body, Faded(white, glossStrength * (1 - gy) / 2));
        if (GlyphCovers(art.glyph, (x - cx) / glyphSize, (y - cy) / glyphSize, glyphSize, stroke)) {
            body = Over(body, Faded(c.ink, art.glyphStrength));
        }
        return body;
    });
}

}  // namespace qs::win::art
