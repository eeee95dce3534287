// Hover pictures of the bar's buttons, by polling the pointer ten times a
// second: the buttons have no mouse-move handlers of their own.
#include "common/application.h"
#include "windows/frm_main.h"

namespace qs {

namespace {

// Whether the pointer lies on the button's screen rectangle, its edges
// included, worked out from the form's and the button's twips.
bool PointerOn(const ui::Form& form, const ui::Control& button, PixelPoint pointer, std::int32_t tx,
               std::int32_t ty) {
    const std::int32_t left = (form.Left() + button.Left()) / tx;
    const std::int32_t top = (form.Top() + button.Top()) / ty;
    const std::int32_t right = (form.Left() + button.Left() + button.Width()) / tx;
    const std::int32_t bottom = (form.Top() + button.Top() + button.Height()) / ty;
    return left <= pointer.x && pointer.x <= right && top <= pointer.y && pointer.y <= bottom;
}

}  // namespace

void FrmMain::TimerMouseOverTimer() {
    const ThemeState& s = app_.theme;
    const std::int32_t tx = app_.sys.TwipsPerPixelX();
    const std::int32_t ty = app_.sys.TwipsPerPixelY();
    // Each button reads the pointer afresh, as each pair of calls did.
    auto on = [&](const ui::Control& button) { return PointerOn(*this, button, app_.sys.CursorPosition(), tx, ty); };
    // The picture is set on every tick; the button passes it on to its
    // window only when it differs from the one shown.
    auto button = [&](ui::PictureBox& box, std::size_t i, bool active) {
        box.SetPicture(on(box) ? s.ButtonOver[i] : active ? s.ButtonActive[i] : s.ButtonNormal[i]);
    };

    PictureShowQuick.SetPicture(on(PictureShowQuick) ? s.ImageQuickOver : QuickRestPicture());
    PictureZero.SetPicture(on(PictureZero) ? s.ImageZeroOver : ZeroRestPicture());
    button(PictureWeb, 5, app_.MainWidth == MainWidthWeb);
    button(PictureHelp, 6, app_.HelpOpen);
    button(PictureHide, 7, false);
    button(PictureExit, 8, false);
    for (std::int16_t i = 0; i < PictureMenu.Count(); ++i) {
        button(PictureMenu(i), static_cast<std::size_t>(i), i == app_.OpenMenuIndex);
    }
}

}  // namespace qs
