#include "pixel_image.h"

#include <algorithm>

namespace qs::win {

BITMAPINFO TopDownInfo(int width, int height) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    return info;
}

BitmapHandle BitmapOf(const PixelImage& image) {
    const BITMAPINFO info = TopDownInfo(image.width, image.height);
    void* bits = nullptr;
    BitmapHandle bitmap(::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    if (!bitmap || bits == nullptr) return BitmapHandle();
    std::copy(image.pixels.begin(), image.pixels.end(), static_cast<std::uint32_t*>(bits));
    return bitmap;
}

}  // namespace qs::win
