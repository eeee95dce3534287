#pragma once
// A picture drawn by the program pixel by pixel, and the GDI forms it takes
// on screen: the header that describes it as a top-down 32-bit DIB, and a
// DIB section holding a copy of its pixels.
#include <windows.h>

#include <cstdint>
#include <vector>

#include "handles.h"

namespace qs::win {

struct PixelImage {
    int width = 0;
    int height = 0;
    // 0x00RRGGBB or premultiplied 0xAARRGGBB, rows from the top.
    std::vector<std::uint32_t> pixels;
};

BITMAPINFO TopDownInfo(int width, int height);

// A DIB section with the image's pixels; empty when GDI refuses one.
BitmapHandle BitmapOf(const PixelImage& image);

}  // namespace qs::win
