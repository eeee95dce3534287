#pragma once
// The colours every picture of one theme is drawn in, all derived from the
// theme's form and box colours, so the seven themes share one look and differ
// only in colouring. Themes 0 and 1 are light, 2 to 6 dark.
#include <cstdint>

#include "art/paint.h"

namespace qs::win::art {

// The colours of one round button look: the body runs from its lit top-left
// to its shaded bottom-right, the rim rings it, the ink draws its letter.
struct ButtonColors {
    Rgba top;
    Rgba bottom;
    Rgba rim;
    Rgba ink;
};

struct ThemeArt {
    bool dark = false;
    Rgba form;
    Rgba box;
    Rgba ink;
    ButtonColors rest;
    ButtonColors over;
    ButtonColors pressed;
    // The pencil's painted body, its lit and shaded facets and its outline.
    Rgba body;
    Rgba bodyLight;
    Rgba bodyShade;
    Rgba outline;
    // The colour of a warning mark (the cancel cross).
    Rgba alert;
};

ThemeArt ThemeArtOf(std::int16_t theme);

// The look of a button that is active, the same in every theme.
ButtonColors ActiveColors();
// The group pictures that belong to no theme: at rest and pressed.
ButtonColors NeutralColors();
ButtonColors NeutralPressedColors();

// The hue a Launch List group tints its buttons with: 0 File, 1 Folder,
// 2 Program, 3 Email, 4 Web URL. Program has none: its button is the plain
// round button.
ButtonColors TintedByGroup(const ButtonColors& colors, std::int16_t group);

}  // namespace qs::win::art
