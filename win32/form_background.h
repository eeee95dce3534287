#pragma once
// The picture behind a borderless form's controls: drawn once per size, DPI
// and set of text-box fields, painted into the form, and lent to labels as a
// brush so a label's background is the very part of the picture it covers.
#include <windows.h>

#include <vector>

#include "handles.h"
#include "pencil_art.h"

namespace qs::win {

class FormBackground {
public:
    // Draws the picture again unless it is already drawn for these values.
    void Update(int width, int height, UINT dpi, const std::vector<FieldRect>& fields);
    void PaintTo(HDC dc) const;
    // A brush of the picture; align it with SetBrushOrgEx to the control.
    HBRUSH Brush() const { return brush_.Get(); }

private:
    bool Same(int width, int height, UINT dpi, const std::vector<FieldRect>& fields) const;

    UINT dpi_ = 0;
    std::vector<FieldRect> fields_;
    PixelImage image_;
    BitmapHandle bitmap_;
    BrushHandle brush_;
};

}  // namespace qs::win
