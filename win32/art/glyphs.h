#pragma once
// The marks drawn on buttons: the bar's letters, arrows, the cross, the star
// and the five group pictures. Each is drawn in a square from -1 to 1 (y
// downwards) as strokes of the one stroke width, or as a filled shape.
#include <cstdint>

namespace qs::win::art {

enum class Glyph : std::uint8_t {
    None,
    Plus,
    Greater,
    LetterL,
    LetterC,
    LetterP,
    LetterW,
    Question,
    LetterM,
    LetterX,
    Forward,
    Backward,
    Star,
    File,
    Folder,
    Program,
    Email,
    WebUrl,
};

// The letter of bar button i: 0 "+", 1 ">", 2 "L", 3 "C", 4 "P", 5 "W",
// 6 "?", 7 "M", 8 "X"; none past them.
Glyph BarButtonGlyph(std::int16_t i);
// The picture of Launch List group g: 0 File, 1 Folder, 2 Program, 3 Email,
// 4 Web URL.
Glyph GroupGlyph(std::int16_t g);

// Whether the glyph covers the point (u, v), in glyph units.
// size is the glyph's half width in pixels, stroke the line width in pixels.
bool GlyphCovers(Glyph glyph, double u, double v, double size, double stroke);

}  // namespace qs::win::art
