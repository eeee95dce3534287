#include "control_kinds.h"

#include "dpi.h"
#include "form_window.h"

namespace qs::win {

void LabelWindow::Create() {
    CreateChild(L"STATIC", SS_LEFT | SS_NOPREFIX);
    if (Handle() != nullptr) ::SetWindowTextW(Handle(), label_.Caption().c_str());
}

HFONT LabelWindow::ControlFont() {
    if (label_.FontSize() == 0 && !label_.FontBold()) return ControlWindow::ControlFont();
    const UINT dpi = Form().Dpi();
    if (!font_ || fontDpi_ != dpi || fontSize_ != label_.FontSize() || fontBold_ != label_.FontBold()) {
        LOGFONTW font = MessageFontAt(dpi);
        if (label_.FontSize() > 0) font.lfHeight = -::MulDiv(label_.FontSize(), static_cast<int>(dpi), 72);
        font.lfWeight = label_.FontBold() ? FW_BOLD : FW_NORMAL;
        font.lfQuality = CLEARTYPE_QUALITY;
        font_.Reset(::CreateFontIndirectW(&font));
        fontDpi_ = dpi;
        fontSize_ = label_.FontSize();
        fontBold_ = label_.FontBold();
    }
    return font_ ? font_.Get() : ControlWindow::ControlFont();
}

void LabelWindow::OnChanged(ui::Property what) {
    if (Handle() == nullptr) return;
    if (what == ui::Property::Text) ::SetWindowTextW(Handle(), label_.Caption().c_str());
    if (what == ui::Property::Font) ::SendMessageW(Handle(), WM_SETFONT, reinterpret_cast<WPARAM>(ControlFont()), TRUE);
}

}  // namespace qs::win
