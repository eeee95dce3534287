#pragma once
// Round buttons of every size: a body lit from the top left with a soft
// gloss, a rim, a shadow to the bottom right, and a mark in the middle. A
// pressed button sits lower, without shadow or gloss; a blank place is only a
// faint ring.
#include "art/glyphs.h"
#include "art/palette.h"
#include "pixel_image.h"

namespace qs::win::art {

enum class ButtonForm { Raised, Pressed, Blank };

struct ButtonArt {
    ButtonColors colors;
    ButtonForm form = ButtonForm::Raised;
    Glyph glyph = Glyph::None;
    // The mark's strength: 1 for a letter, less for a faint one.
    double glyphStrength = 1.0;
};

// The button centred in a width x height image, transparent around it;
// scale is DPI / 96.
PixelImage RenderRoundButton(int width, int height, double scale, const ButtonArt& art);

}  // namespace qs::win::art
