#pragma once
// The bar's look: a pencil lying across the form, its graphite tip at the
// left, a wooden cone, a faceted body, a metal band and an eraser at the
// right, with a light field behind each text box. Drawn pixel by pixel with
// 4 x 4 samples per pixel, so every edge is smooth at any DPI.
#include <cstdint>
#include <vector>

#include "pixel_image.h"

namespace qs::win {

struct FieldRect {
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;
};

// scale is DPI / 96. Fields are in pixels of the image.
PixelImage RenderPencilBar(int width, int height, double scale, const std::vector<FieldRect>& fields);

// The colours the text boxes on the bar use, so they sit flat in their field.
inline constexpr std::uint32_t kPencilFieldColor = 0xFFFDF6;
inline constexpr std::uint32_t kPencilTextColor = 0x2B2F36;

}  // namespace qs::win
