// Opening and closing the Add Item and Open pane, its option buttons, its
// two text boxes and the close button.
#include "common/application.h"
#include "common/text_main_busy.h"
#include "data/report_bug.h"
#include "theme/dark_theme.h"
#include "theme/holders.h"
#include "theme/theme_colors.h"
#include "windows/frm_browse.h"
#include "windows/pane_placing.h"

namespace qs {

namespace {

struct OptionLook {
    const wchar_t* pattern;
    bool fileWorkEnabled;
    bool findPathEnabled;
    bool selectHintVisible;
    bool pathLocked;
    const wchar_t* frameCaption;
    const wchar_t* labelCaption;
};

constexpr OptionLook OptionLooks[] = {
    {L"*.exe", true, true, true, true, L"Program Path:", L"Do Not Type - Select Program"},
    {L"*.*", true, false, true, true, L"File path:", L"Do Not Type - Select File"},
    {L"*.exe", false, false, false, true, L"Folder path:", L"Do Not Type - Select Folder"},
    {L"*.exe", false, false, false, false, L"Email Address:", L"Type Email Address"},
    {L"*.exe", false, false, false, false, L"Web URL:", L"Type Web Address (URL)"},
    {L"*.*", true, false, false, false, L"", L""},
};

}  // namespace

void ActionSetBrowse(Application& app, std::int16_t& mode) {
    try {
        FrmBrowse& pane = app.frmBrowse;
        pane.LoadBoxes();
        app.SavedMainTop = -1;
        app.frmChoose.Hide();
        if (mode != -1) pane.OptionBrowse(mode).SetValue(true);
        pane.DirWork.SetPath(pane.CurrentFolder);
        {
            const TextMainBusyScope busy(app);
            pane.FileWork.Refresh();
            pane.FileWork.SetListIndex(-1);
        }
        pane.SetOKButton(pane.PictureSelectOK, false);
        const std::wstring title = mode == 0 ? L"Add Item" : L"Open";
        pane.LabelBrowseBack.SetCaption(title + L" :");
        pane.SetCaption(title);
        const bool adding = mode == 0;
        pane.FrameBrowseOption.SetVisible(adding);
        pane.FrameFindPath.SetVisible(adding);
        pane.FrameAddPath.SetVisible(adding);
        pane.FrameAddToList.SetVisible(adding);
        pane.FrameSelect.SetVisible(mode == 1);
        pane.PictureBrowse.Move(pane.PictureBrowse.Left(), pane.PictureBrowse.Top(), pane.PictureBrowse.Width(),
                                mode == 1 ? 5760 : 8412);
        PlacePaneByTheBar(app, pane);
        pane.TextAddPath.SetText(L"");
        pane.TextAddName.SetText(L"");
        if (mode != -1) {
            pane.Show();
        } else {
            pane.Hide();
        }
        ui::TextBox& box = app.frmMain.TextMain;
        if (app.frmMain.Visible() && box.Visible() && box.Enabled()) box.SetFocus();
    } catch (const std::exception&) {
        ReportBug(app, L"ActionSetBrowse");
    }
}

void FrmBrowse::OptionBrowseClick(std::int16_t index) {
    BrowseOption = index;
    const OptionLook& look = OptionLooks[index];
    const ThemeState& theme = app_.theme;
    FileWork.SetPattern(look.pattern);
    FileWork.SetEnabled(look.fileWorkEnabled);
    FileWork.SetBackColor(look.fileWorkEnabled ? theme.CurrentFormColor : ui::SystemButtonText);
    FrameFindPath.SetEnabled(look.findPathEnabled);
    PictureFindPath.SetEnabled(look.findPathEnabled);
    PictureFindPath.SetPicture(look.findPathEnabled ? theme.ImageZeroSet[2] : theme.ImageZeroBlank);
    LabelAddSelectA.SetVisible(look.selectHintVisible);
    LabelOpen.SetCaption(index == 5 ? L"OK" : L"Open");
    TextAddPath.SetBackColor(look.pathLocked ? ui::SystemButtonText : theme.CurrentFormColor);
    if (app_.OpenMenuIndex != 0) return;
    TextAddPath.SetText(index == 2 ? DirWork.Path() : L"");
    FrameAddPath.SetCaption(look.frameCaption);
    LabelAddPath.SetCaption(look.labelCaption);
    TextAddPath.SetLocked(look.pathLocked);
    if (index < 3) {
        if (TextAddName.Enabled()) TextAddName.SetFocus();
    } else {
        TextAddPath.SetFocus();
    }
}

void FrmBrowse::TextAddNameChange() { SetOKButton(PictureAddOK, !TextAddName.Text().empty()); }

void FrmBrowse::TextAddPathChange() {
    const bool known = !TextAddPath.Text().empty();
    if (!known) TextAddName.SetText(L"");
    TextAddName.SetEnabled(known);
    TextAddName.SetBackColor(known ? app_.theme.CurrentFormColor : ui::SystemButtonText);
}

void FrmBrowse::TextAddKeyPress(std::int16_t& key) {
    if (key != 13) return;
    key = 0;
    if (!TextAddName.Text().empty()) PictureAddOKClick();
}

void FrmBrowse::PictureAddCancelClick() {
    app_.PendingClick = app_.OpenMenuIndex;
    app_.frmMain.CommandMainClick.SetValue(true);
}

void FrmBrowse::PictureAddCancelMouse() {
    PictureAddCancel.SetPicture(OneOfTheme(ui::PictureSlot::ImageMX, app_.settings.ThemeIndex));
}

void FrmBrowse::LabelAddCancelMouseMove() {
    LabelAddCancel.SetForeColor(IsDarkTheme(app_.settings.ThemeIndex) ? ColorWhite : ColorBlue);
}

void FrmBrowse::FrameHideWindowMouseMove() {
    LabelAddCancel.SetForeColor(IsDarkTheme(app_.settings.ThemeIndex) ? ColorLime : ColorGreen);
}

}  // namespace qs
