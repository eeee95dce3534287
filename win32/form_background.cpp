#include "form_background.h"

#include <algorithm>

namespace qs::win {

namespace {

bool SameField(const FieldRect& a, const FieldRect& b) {
    return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom;
}

}  // namespace

bool FormBackground::Same(int width, int height, UINT dpi, const std::vector<FieldRect>& fields) const {
    return brush_ && image_.width == width && image_.height == height && dpi_ == dpi &&
           std::equal(fields_.begin(), fields_.end(), fields.begin(), fields.end(), SameField);
}

void FormBackground::Update(int width, int height, UINT dpi, const std::vector<FieldRect>& fields) {
    if (width <= 0 || height <= 0 || Same(width, height, dpi, fields)) return;
    dpi_ = dpi;
    fields_ = fields;
    image_ = RenderPencilBar(width, height, static_cast<double>(dpi) / USER_DEFAULT_SCREEN_DPI, fields);
    bitmap_ = BitmapOf(image_);
    if (!bitmap_) {
        brush_.Reset();
        return;
    }
    brush_.Reset(::CreatePatternBrush(bitmap_.Get()));
}

void FormBackground::PaintTo(HDC dc) const {
    if (image_.pixels.empty()) return;
    const BITMAPINFO info = TopDownInfo(image_.width, image_.height);
    ::SetDIBitsToDevice(dc, 0, 0, static_cast<DWORD>(image_.width), static_cast<DWORD>(image_.height), 0, 0, 0,
                        static_cast<UINT>(image_.height), image_.pixels.data(), &info, DIB_RGB_COLORS);
}

}  // namespace qs::win
