// The face of a form window: what it is to show (its colour or picture, the
// strips lying on it, the lines round a dialog and its fields), composed when
// that changes and lent to the children that show it beneath them.
#include <windows.h>

#include "art/catalogue.h"
#include "color_ref.h"
#include "dialog_look.h"
#include "dpi.h"
#include "form_window.h"
#include "ui/picture_box.h"

namespace qs::win {

namespace {

bool IsDialog(const ui::Form& form) { return form.Style() == ui::FormStyle::Dialog; }

// The line round a text box's field on a dialog: a shade of the box's own
// colour, darker on a light box and lighter on a dark one.
COLORREF FieldLineColor(ui::Color back) {
    if (back == ui::DefaultColor) return ColorRefOf(kDialogFieldLineColor);
    const COLORREF c = ColorRefOf(back);
    const int r = GetRValue(c);
    const int g = GetGValue(c);
    const int b = GetBValue(c);
    const bool light = (r * 299 + g * 587 + b * 114) / 1000 > 128;
    const auto shade = [light](int v) { return light ? v * 62 / 100 : v + (255 - v) * 40 / 100; };
    return RGB(shade(r), shade(g), shade(b));
}

}  // namespace

RECT FormWindow::ControlRect(const ui::Control& control) const {
    RECT r;
    r.left = TwipsToPixels(control.Left(), dpi_);
    r.top = TwipsToPixels(control.Top(), dpi_);
    r.right = r.left + TwipsToPixels(control.Width(), dpi_);
    r.bottom = r.top + TwipsToPixels(control.Height(), dpi_);
    return r;
}

FaceDesign FormWindow::DesignFace() const {
    FaceDesign design;
    RECT client{};
    ::GetClientRect(Handle(), &client);
    design.width = client.right;
    design.height = client.bottom;
    design.dpi = dpi_;
    const bool dialog = IsDialog(form_);
    // A form the program gives no colour keeps its style's own face.
    const ui::Color back = form_.BackColor();
    if (back != ui::DefaultColor) {
        design.back = ColorRefOf(back);
    } else {
        design.back = dialog ? ColorRefOf(kDialogFaceColor) : ::GetSysColor(COLOR_BTNFACE);
    }
    design.picture = form_.Picture();
    for (const auto& control : controls_) {
        const ui::Control& model = control->Model();
        if (!model.Shown()) continue;
        if (model.Kind() == ui::ControlKind::PictureBox) {
            const ui::PictureRef& picture = static_cast<const ui::PictureBox&>(model).Picture();
            if (IsStripPicture(picture) || control->OnFace()) design.strips.push_back({ControlRect(model), picture});
        }
        // On a dialog a thin line sets each shown text box's field off.
        if (dialog && model.Kind() == ui::ControlKind::TextBox && control->Handle() != nullptr) {
            RECT r{};
            ::GetWindowRect(control->Handle(), &r);
            ::MapWindowPoints(nullptr, Handle(), reinterpret_cast<POINT*>(&r), 2);
            ::InflateRect(&r, 1, 1);
            design.lines.push_back({r, FieldLineColor(model.BackColor())});
        }
    }
    // A dialog without a picture of its own has a thin line all round, to set
    // it off from what lies behind it; a picture brings its own edge.
    if (dialog && design.picture.Empty()) design.lines.push_back({client, ColorRefOf(kDialogBorderColor)});
    return design;
}

namespace {

std::uint64_t faceBuilds = 0;

}  // namespace

std::uint64_t FormWindow::FaceBuilds() { return faceBuilds; }

void FormWindow::UpdateFace() {
    // Every child asks for the face as it paints: it is designed again only
    // after something on it changed.
    if (!faceDirty_) return;
    faceDirty_ = false;
    ++faceBuilds;
    if (face_.Update(DesignFace())) {
        ::RedrawWindow(Handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
    }
}

const PixelImage& FormWindow::Face() {
    UpdateFace();
    return face_.Image();
}

HBRUSH FormWindow::FaceBrushFor(HWND child, HDC dc) {
    UpdateFace();
    RECT r{};
    ::GetWindowRect(child, &r);
    ::MapWindowPoints(nullptr, Handle(), reinterpret_cast<POINT*>(&r), 2);
    ::SetBrushOrgEx(dc, -r.left, -r.top, nullptr);
    ::SetBkColor(dc, face_.Back());
    ::SetBkMode(dc, TRANSPARENT);
    return face_.Brush();
}

bool FormWindow::OverBareFace() const {
    POINT point{};
    if (!::GetCursorPos(&point)) return false;
    ::ScreenToClient(Handle(), &point);
    const HWND child = ::ChildWindowFromPointEx(Handle(), point, CWP_SKIPINVISIBLE);
    return (child == nullptr || child == Handle()) && !OverStrip(point);
}

bool FormWindow::OverStrip(POINT point) const {
    for (const auto& control : controls_) {
        const ui::Control& model = control->Model();
        if (!model.Visible() || model.Kind() != ui::ControlKind::PictureBox) continue;
        if (!IsStripPicture(static_cast<const ui::PictureBox&>(model).Picture()) && !control->OnFace()) continue;
        const RECT r = ControlRect(model);
        if (::PtInRect(&r, point) != FALSE) return true;
    }
    return false;
}

}  // namespace qs::win
