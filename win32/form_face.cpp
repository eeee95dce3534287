#include "form_face.h"

#include <algorithm>

#include "picture_cache.h"

namespace qs::win {

namespace {

std::uint32_t OpaquePixel(COLORREF c) {
    return 0xFF000000u | (static_cast<std::uint32_t>(GetRValue(c)) << 16) |
           (static_cast<std::uint32_t>(GetGValue(c)) << 8) | GetBValue(c);
}

std::uint32_t BlendPixel(std::uint32_t below, std::uint32_t above) {
    const std::uint32_t alpha = above >> 24;
    if (alpha == 255) return above;
    if (alpha == 0) return below;
    const std::uint32_t keep = 255 - alpha;
    std::uint32_t out = 0;
    for (int shift = 0; shift <= 24; shift += 8) {
        const std::uint32_t a = (above >> shift) & 0xFF;
        const std::uint32_t b = (below >> shift) & 0xFF;
        out |= std::min<std::uint32_t>(255, a + (b * keep + 127) / 255) << shift;
    }
    return out;
}

void FrameInto(PixelImage& image, const RECT& r, COLORREF color) {
    const std::uint32_t pixel = OpaquePixel(color);
    const auto put = [&](LONG x, LONG y) {
        if (x >= 0 && y >= 0 && x < image.width && y < image.height) {
            image.pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(image.width) +
                         static_cast<std::size_t>(x)] = pixel;
        }
    };
    for (LONG x = r.left; x < r.right; ++x) {
        put(x, r.top);
        put(x, r.bottom - 1);
    }
    for (LONG y = r.top; y < r.bottom; ++y) {
        put(r.left, y);
        put(r.right - 1, y);
    }
}

}  // namespace

void BlendInto(PixelImage& image, const PixelImage& picture, int left, int top) {
    for (int y = std::max(0, -top); y < picture.height && top + y < image.height; ++y) {
        for (int x = std::max(0, -left); x < picture.width && left + x < image.width; ++x) {
            std::uint32_t& below = image.pixels[static_cast<std::size_t>(top + y) * static_cast<std::size_t>(image.width) +
                                                static_cast<std::size_t>(left + x)];
            below = BlendPixel(below, picture.pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(picture.width) +
                                                     static_cast<std::size_t>(x)]);
        }
    }
}

bool FormFace::Update(const FaceDesign& design) {
    if (composed_ && design == design_) return false;
    design_ = design;
    Compose();
    return true;
}

void FormFace::Compose() {
    composed_ = true;
    bitmap_.Reset();
    brush_.Reset();
    image_ = PixelImage{};
    if (design_.width <= 0 || design_.height <= 0) return;
    image_.width = design_.width;
    image_.height = design_.height;
    image_.pixels.assign(static_cast<std::size_t>(image_.width) * static_cast<std::size_t>(image_.height),
                         OpaquePixel(design_.back));
    PictureCache& cache = PictureCache::Shared();
    if (!design_.picture.Empty()) {
        BlendInto(image_, cache.Get(design_.picture, image_.width, image_.height, design_.dpi), 0, 0);
    }
    for (const FaceStrip& strip : design_.strips) {
        const PixelImage& picture = cache.Get(strip.picture, strip.rect.right - strip.rect.left,
                                              strip.rect.bottom - strip.rect.top, design_.dpi);
        BlendInto(image_, picture, strip.rect.left, strip.rect.top);
    }
    for (const FaceLine& line : design_.lines) FrameInto(image_, line.rect, line.color);
}

void FormFace::PaintTo(HDC dc) const {
    if (image_.pixels.empty()) return;
    const BITMAPINFO info = TopDownInfo(image_.width, image_.height);
    ::SetDIBitsToDevice(dc, 0, 0, static_cast<DWORD>(image_.width), static_cast<DWORD>(image_.height), 0, 0, 0,
                        static_cast<UINT>(image_.height), image_.pixels.data(), &info, DIB_RGB_COLORS);
}

HBRUSH FormFace::Brush() {
    if (brush_) return brush_.Get();
    if (Plain() || image_.pixels.empty()) {
        brush_.Reset(::CreateSolidBrush(design_.back));
        return brush_.Get();
    }
    bitmap_ = BitmapOf(image_);
    if (bitmap_) brush_.Reset(::CreatePatternBrush(bitmap_.Get()));
    return brush_.Get();
}

}  // namespace qs::win
