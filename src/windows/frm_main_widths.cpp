// The bar's three widths: the web pane opened and closed by PictureWeb, the
// bar minimised on screen and widened again by the round PictureZero.
#include "common/application.h"
#include "common/failure.h"
#include "windows/frm_main.h"

namespace qs {

std::int32_t FrmMain::RightmostLeft() const {
    return ToInt16(app_.sys.TwipsPerPixelX() * (app_.place.WorkAreaRight - app_.MainWidthPixels));
}

ui::PictureRef FrmMain::ZeroRestPicture() const {
    return app_.theme.ImageZeroSet[LastWideWidth == MainWidthZero ? 3 : 2];
}

ui::PictureRef FrmMain::QuickRestPicture() const {
    return app_.QuickOpen ? app_.theme.ImageQuickOpen : app_.theme.ImageQuickClosed;
}

void FrmMain::PictureWebClick() {
    app_.MainWidth = app_.MainWidth == MainWidthWeb ? MainWidthCommand : MainWidthWeb;
    LastWideWidth = app_.MainWidth;
    ApplyMainWidth();
    if (app_.MainWidth == MainWidthWeb) {
        // A bar too near the right edge moves left so the pane fits.
        const std::int32_t rightmost = RightmostLeft();
        if (Left() > rightmost) {
            WebSavedLeft = Left();
            SetLeft(rightmost);
        }
        TextWebName.SetText(L"");
        TextWebName.SetVisible(false);
        LabelWebName.SetVisible(false);
        TextWebUrl.SetText(L"");
        TextWebUrl.SetFocus();
        return;
    }
    if (WebSavedLeft != -1) {
        SetLeft(WebSavedLeft);
        WebSavedLeft = -1;
    }
    if (TextMain.Visible()) {
        SetTextMainQuietly(L"");
        TextMain.SetFocus();
    }
}

void FrmMain::PictureZeroClick() {
    if (app_.MainWidth == MainWidthZero) {
        app_.MainWidth = LastWideWidth == MainWidthZero ? MainWidthCommand : LastWideWidth;
    } else {
        app_.MainWidth = MainWidthZero;
    }
    ApplyMainWidth();
    const bool minimised = app_.MainWidth == MainWidthZero;
    PictureZero.SetPicture(app_.theme.ImageZeroSet[minimised ? 3 : 2]);
    if (!minimised) {
        const std::int32_t rightmost = RightmostLeft();
        if (Left() > rightmost) {
            ZeroSavedLeft = Left();
            SetLeft(rightmost);
        }
        TextWebUrl.SetText(L"");
        TextWebName.SetText(L"");
        SetTextMainQuietly(L"");
        FocusTextMain();
    } else if (ZeroSavedLeft != -1) {
        SetLeft(ZeroSavedLeft);
        ZeroSavedLeft = -1;
    }
    PictureZero.SetToolTipText(Width() == MainWidthZero ? L"Quillstart" : L"Minimize On Screen");
}

void FrmMain::PictureZeroMouseDown() { PictureZero.SetPicture(app_.theme.ImageZeroOver); }

void FrmMain::PictureZeroMouseUp() { PictureZero.SetPicture(ZeroRestPicture()); }

void FrmMain::PictureShowQuickMouseDown() { PictureShowQuick.SetPicture(app_.theme.ImageQuickDown); }

void FrmMain::PictureShowQuickMouseUp() { PictureShowQuick.SetPicture(QuickRestPicture()); }

}  // namespace qs
