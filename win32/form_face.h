#pragma once
// The face of a form: its back colour, or its picture laid over the whole
// face, the strips that lie on it, and thin lines round its edge and its text
// boxes' fields. Composed once for each design and kept, painted into the
// form, and lent to the controls that show the face beneath them: as pixels
// to a picture box, as a brush to a label.
#include <windows.h>

#include <vector>

#include "handles.h"
#include "pixel_image.h"
#include "ui/picture.h"

namespace qs::win {

struct FaceStrip {
    RECT rect;
    ui::PictureRef picture;
    friend bool operator==(const FaceStrip& a, const FaceStrip& b) {
        return ::EqualRect(&a.rect, &b.rect) != FALSE && a.picture == b.picture;
    }
};

struct FaceLine {
    RECT rect;
    COLORREF color;
    friend bool operator==(const FaceLine& a, const FaceLine& b) {
        return ::EqualRect(&a.rect, &b.rect) != FALSE && a.color == b.color;
    }
};

struct FaceDesign {
    int width = 0;
    int height = 0;
    UINT dpi = USER_DEFAULT_SCREEN_DPI;
    COLORREF back = 0;
    ui::PictureRef picture;
    std::vector<FaceStrip> strips;
    std::vector<FaceLine> lines;
    friend bool operator==(const FaceDesign&, const FaceDesign&) = default;
};

class FormFace {
public:
    // Composes the face again unless it already shows this design; true
    // when it changed.
    bool Update(const FaceDesign& design);
    const PixelImage& Image() const { return image_; }
    void PaintTo(HDC dc) const;
    // A brush of the face: of its colour when the face is one colour, else
    // of its picture, to be aligned with SetBrushOrgEx to the control.
    HBRUSH Brush();
    bool Plain() const { return design_.picture.Empty() && design_.strips.empty(); }
    COLORREF Back() const { return design_.back; }

private:
    void Compose();

    FaceDesign design_;
    bool composed_ = false;
    PixelImage image_;
    BitmapHandle bitmap_;
    BrushHandle brush_;
};

// Lays a premultiplied picture over the image with its top-left corner at
// (left, top), clipped to the image.
void BlendInto(PixelImage& image, const PixelImage& picture, int left, int top);

}  // namespace qs::win
