#include "windows/choose_list_pane.h"

#include "common/application.h"
#include "theme/holders.h"
#include "windows/frm_choose.h"
#include "windows/press_pictures.h"

namespace qs {

namespace {

constexpr std::int16_t Groups = 5;
// The flash drive holds only the three groups of paths.
constexpr std::int16_t SidedGroups = 3;

struct PanelCaptions {
    const wchar_t* group;
    const wchar_t* path;
    const wchar_t* remove;
    const wchar_t* clear;
};

constexpr PanelCaptions Captions[Groups] = {
    {L"File", L"File Path :", L"Remove This File From Launch List", L"Delete All File From Launch List"},
    {L"Folder", L"Folder Path :", L"Remove This Folder From Launch List", L"Delete All Folder From Launch List"},
    {L"Program", L"Program Path :", L"Remove This Program From Launch List",
     L"Delete All Program From Launch List"},
    {L"Email", L"Email Address :", L"Remove This Email From Launch List", L"Delete All Email From Launch List"},
    {L"Web URL", L"Web Page URL :", L"Remove This Web URL From Launch List",
     L"Delete All Web URL From Launch List"},
};

// Sizes of the pane's rows, in twips.
constexpr std::int32_t ButtonSize = 330;
constexpr std::int32_t SmallButton = 270;
constexpr std::int32_t LabelHeight = 255;
constexpr std::int32_t ListHeight = 315;
constexpr std::int32_t PanelWidth = 4932;
constexpr std::int32_t PanelHeight = 3372;

}  // namespace

LaunchListPane::LaunchListPane(Application& app, FrmChoose& form)
    : LabelListCap(form, L"LabelListCap", L"Launch List:"),
      FrameGroupMenu(form, L"FrameGroupMenu", L"Select A Group To View The Group List"),
      ImageShowList(form, L"ImageShowList", Groups),
      LabelItemName(form, L"LabelItemName", Groups),
      LabelListTotalA(form, L"LabelListTotalA", Groups),
      LabelUSBInfo(form, L"LabelUSBInfo", SidedGroups, L"Portable: "),
      LabelUSBTotal(form, L"LabelUSBTotal", SidedGroups),
      LabelEmptyList(form, L"LabelEmptyList", L"Your List Is Empty."),
      PictureGroupList(form, L"PictureGroupList", Groups, L"", false),
      LabelListTotalB(form, L"LabelListTotalB", Groups),
      LabelListItemNum(form, L"LabelListItemNum", Groups),
      ImageListOpen(form, L"ImageListOpen", Groups),
      LabelListOpen(form, L"LabelListOpen", Groups),
      ImageListRemove(form, L"ImageListRemove", Groups),
      ImageListClear(form, L"ImageListClear", Groups),
      ImageListRename(form, L"ImageListRename", Groups),
      FrameListRename(form, L"FrameListRename", Groups, L"New Name"),
      TextListRename(form, L"TextListRename", Groups),
      ImageListOKRename(form, L"ImageListOKRename", Groups),
      LabelListRenOK(form, L"LabelListRenOK", Groups, L"OK"),
      ImageListCancelRename(form, L"ImageListCancelRename", Groups),
      LabelListRenCancel(form, L"LabelListRenCancel", Groups, L"Cancel"),
      LabelNoList(form, L"LabelNoList", Groups * 6),
      FrameConfirmClearListA(form, L"FrameConfirmClearListA"),
      ImagePicture(form, L"ImagePicture"),
      FrameConfirmClearListB(form, L"FrameConfirmClearListB", L"Are You Sure?"),
      LabelConfirmClearListA(form, L"LabelConfirmClearListA"),
      LabelConfirmClearListB(form, L"LabelConfirmClearListB"),
      ImageConfirmClearList(form, L"ImageConfirmClearList"),
      LabelConfirmYes(form, L"LabelConfirmYes", L"Yes"),
      ImageCancelClearList(form, L"ImageCancelClearList"),
      LabelConfirmNo(form, L"LabelConfirmNo", L"No"),
      app_(app),
      form_(form) {
    for (std::int16_t i = 0; i < Groups; ++i) {
        const PanelCaptions& c = Captions[i];
        LabelItemName(i).SetCaption(c.group);
        LabelNoList(i).SetCaption(L"- Listed -");
        LabelNoList(NoListRow(i, NameRow)).SetCaption(L"Launch Name :");
        LabelNoList(NoListRow(i, PathRow)).SetCaption(c.path);
        LabelNoList(NoListRow(i, RemoveRow)).SetCaption(c.remove);
        LabelNoList(NoListRow(i, ClearRow)).SetCaption(c.clear);
        LabelNoList(NoListRow(i, RenameRow)).SetCaption(L"Change Launch Name");
    }
    WireEvents();
}

std::int16_t LaunchListPane::NoListRow(std::int16_t group, Row row) {
    return static_cast<std::int16_t>(Groups + group * 5 + row);
}

void LaunchListPane::SetUp() {
    Layout();
    SetTabOrder();
}

void LaunchListPane::Layout() {
    ui::Frame& pane = form_.PictureList;
    pane.Place(LabelListCap, 240, 150, 3300, 315);
    LabelListCap.SetFont(10, true);

    // One row per group: its button, its name, its count, and on a flash
    // drive the count of the drive's own side.
    pane.Place(FrameGroupMenu, 120, 720, PanelWidth, 2160);
    for (std::int16_t i = 0; i < Groups; ++i) {
        const std::int32_t top = 300 + i * 360;
        FrameGroupMenu.Place(ImageShowList(i), 150, top, ButtonSize, ButtonSize);
        FrameGroupMenu.Place(LabelItemName(i), 600, top + 45, 1050, LabelHeight);
        FrameGroupMenu.Place(LabelListTotalA(i), 1680, top + 45, 600, LabelHeight);
        FrameGroupMenu.Place(LabelNoList(i), 2280, top + 45, 900, LabelHeight);
        ImageShowList(i).SetAccessibleName(LabelItemName(i).Caption());
        if (i < SidedGroups) {
            FrameGroupMenu.Place(LabelUSBInfo(i), 3240, top + 45, 900, LabelHeight);
            FrameGroupMenu.Place(LabelUSBTotal(i), 4140, top + 45, 660, LabelHeight);
        }
    }
    pane.Place(LabelEmptyList, 240, 3120, 4692, LabelHeight);
    for (std::int16_t i = 0; i < Groups; ++i) LayoutPanel(i);

    // Below the panels: the resting panel, or the question in its place.
    pane.Place(FrameConfirmClearListA, 120, 6660, PanelWidth, 1620);
    FrameConfirmClearListA.Place(ImagePicture, 2106, 450, 720, 720);
    ImagePicture.SetPicture(ui::HolderPicture(ui::PictureSlot::ImageApp, 0));
    pane.Place(FrameConfirmClearListB, 120, 7080, PanelWidth, 1200);
    FrameConfirmClearListB.Place(LabelConfirmClearListA, 150, 270, 4632, LabelHeight);
    FrameConfirmClearListB.Place(LabelConfirmClearListB, 150, 555, 4632, LabelHeight);
    FrameConfirmClearListB.Place(ImageConfirmClearList, 150, 855, ButtonSize - 30, ButtonSize - 30);
    FrameConfirmClearListB.Place(LabelConfirmYes, 510, 870, 600, LabelHeight);
    FrameConfirmClearListB.Place(ImageCancelClearList, 1350, 855, ButtonSize - 30, ButtonSize - 30);
    FrameConfirmClearListB.Place(LabelConfirmNo, 1710, 870, 600, LabelHeight);
    ImageConfirmClearList.SetAccessibleName(LabelConfirmYes.Caption());
    ImageCancelClearList.SetAccessibleName(LabelConfirmNo.Caption());
    FrameConfirmClearListB.SetVisible(false);
}

void LaunchListPane::LayoutPanel(std::int16_t group) {
    ui::Frame& panel = PictureGroupList(group);
    form_.PictureList.Place(panel, 120, 3000, PanelWidth, PanelHeight);
    panel.SetVisible(false);
    constexpr std::int32_t Wide = PanelWidth - 240;
    panel.Place(LabelListTotalB(group), 120, 45, Wide, LabelHeight);
    panel.Place(LabelListItemNum(group), 120, 330, Wide, LabelHeight);
    LabelListItemNum(group).SetVisible(false);

    // The two lists, each beside its caption.
    ui::ComboBox& names = form_.ComboListItemName(group);
    ui::ComboBox& paths = form_.ComboListItemPath(group);
    panel.Place(LabelNoList(NoListRow(group, NameRow)), 120, 720, 1380, LabelHeight);
    panel.Place(names, 1500, 675, Wide - 1380, ListHeight);
    panel.Place(LabelNoList(NoListRow(group, PathRow)), 120, 1125, 1380, LabelHeight);
    panel.Place(paths, 1500, 1080, Wide - 1380, ListHeight);
    names.SetAccessibleName(LabelNoList(NoListRow(group, NameRow)).Caption());
    paths.SetAccessibleName(LabelNoList(NoListRow(group, PathRow)).Caption());

    // One button a row, its caption beside it.
    struct ButtonRow {
        ui::PictureBox& button;
        ui::Label& caption;
        std::int32_t top;
    };
    const ButtonRow rows[] = {
        {ImageListOpen(group), LabelListOpen(group), 1485},
        {ImageListRemove(group), LabelNoList(NoListRow(group, RemoveRow)), 1860},
        {ImageListClear(group), LabelNoList(NoListRow(group, ClearRow)), 2235},
        {ImageListRename(group), LabelNoList(NoListRow(group, RenameRow)), 2610},
    };
    for (const ButtonRow& row : rows) {
        panel.Place(row.button, 120, row.top, ButtonSize, ButtonSize);
        panel.Place(row.caption, 540, row.top + 45, Wide - 420, LabelHeight);
        row.button.SetAccessibleName(row.caption.Caption());
    }
    // The rename row's caption is short: the new name is typed beside it.
    LabelNoList(NoListRow(group, RenameRow)).Move(panel.Left() + 540, panel.Top() + 2655, 1650, LabelHeight);

    ui::Frame& rename = FrameListRename(group);
    panel.Place(rename, 2280, 2460, 2532, 870);
    rename.SetVisible(false);
    rename.Place(TextListRename(group), 105, 225, 2322, 285);
    rename.Place(ImageListOKRename(group), 105, 555, SmallButton, SmallButton);
    rename.Place(LabelListRenOK(group), 420, 570, 500, LabelHeight);
    rename.Place(ImageListCancelRename(group), 1020, 555, SmallButton, SmallButton);
    rename.Place(LabelListRenCancel(group), 1335, 570, 900, LabelHeight);
    TextListRename(group).SetAccessibleName(rename.Caption());
    ImageListOKRename(group).SetAccessibleName(LabelListRenOK(group).Caption());
    ImageListCancelRename(group).SetAccessibleName(LabelListRenCancel(group).Caption());
}

void LaunchListPane::SetTabOrder() {
    // The group buttons, then the one panel that shows, then the question.
    std::int16_t next = 1;
    for (std::int16_t i = 0; i < Groups; ++i) ImageShowList(i).SetTabIndex(next++);
    for (std::int16_t i = 0; i < Groups; ++i) {
        for (ui::Control* c : std::initializer_list<ui::Control*>{
                 &form_.ComboListItemName(i), &form_.ComboListItemPath(i), &ImageListOpen(i), &ImageListRemove(i),
                 &ImageListClear(i), &ImageListRename(i), &TextListRename(i), &ImageListOKRename(i),
                 &ImageListCancelRename(i)}) {
            c->SetTabIndex(next++);
        }
    }
    ImageConfirmClearList.SetTabIndex(next++);
    ImageCancelClearList.SetTabIndex(next++);
    // Areas after everything, the innermost first: each lies beneath what
    // it holds, and above the area that holds it.
    next = 900;
    for (std::int16_t i = 0; i < Groups; ++i) FrameListRename(i).SetTabIndex(next++);
    for (std::int16_t i = 0; i < Groups; ++i) PictureGroupList(i).SetTabIndex(next++);
    for (ui::Control* area : {&FrameGroupMenu, &FrameConfirmClearListB, &FrameConfirmClearListA}) {
        area->SetTabIndex(next++);
    }
}

void LaunchListPane::WireEvents() {
    const ThemeState& theme = app_.theme;
    const auto over = [&theme] { return theme.ImageZeroOver; };
    const auto up0 = [&theme] { return theme.ImageZeroSet[0]; };
    const auto up3 = [&theme] { return theme.ImageZeroSet[3]; };
    const auto onKey = [this](ui::PictureBox& button) {
        button.KeyPress = [this, &button](std::int16_t& key) { form_.PictureButtonKeyPress(button, key); };
    };

    ImageShowList.OnEach(&ui::PictureBox::Click, [this](std::int16_t i) { ImageShowListClick(i); });
    for (std::int16_t i = 0; i < Groups; ++i) {
        // The release paints the button of ShowListMark as chosen.
        SetPressPictures(ImageShowList(i), over, [this, i] {
            return i == app_.ShowListMark ? app_.theme.ImageZeroSet[2] : app_.theme.ImageZeroSet[0];
        });
        onKey(ImageShowList(i));
        for (ui::PictureBox* button : {&ImageListOpen(i), &ImageListRemove(i), &ImageListRename(i),
                                       &ImageListOKRename(i), &ImageListCancelRename(i)}) {
            SetPressPictures(*button, over, up0);
            onKey(*button);
        }
        SetPressPictures(ImageListClear(i), over, up3);
        onKey(ImageListClear(i));
    }
    for (std::int16_t i = 0; i < Groups; ++i) {
        form_.ComboListItemName(i).Click = [this, i] { ComboListItemNameClick(i); };
        form_.ComboListItemPath(i).Click = [this, i] { ComboListItemPathClick(i); };
        form_.ComboListItemName(i).KeyPress = [this](std::int16_t& key) { ComboListKeyPress(key); };
        form_.ComboListItemPath(i).KeyPress = [this](std::int16_t& key) { ComboListKeyPress(key); };
    }
    ImageListOpen.OnEach(&ui::PictureBox::Click, [this](std::int16_t i) { ImageListOpenClick(i); });
    ImageListRename.OnEach(&ui::PictureBox::Click, [this](std::int16_t i) { ImageListRenameClick(i); });
    TextListRename.OnEach(&ui::TextBox::Change, [this](std::int16_t i) { TextListRenameChange(i); });
    TextListRename.OnEach(&ui::TextBox::KeyPress,
                          [this](std::int16_t i, std::int16_t& key) { TextListRenameKeyPress(i, key); });
    ImageListOKRename.OnEach(&ui::PictureBox::Click, [this](std::int16_t i) { ImageListOKRenameClick(i); });
    ImageListCancelRename.OnEach(&ui::PictureBox::Click, [this](std::int16_t i) { ImageListCancelRenameClick(i); });
    ImageListRemove.OnEach(&ui::PictureBox::Click, [this](std::int16_t i) { ImageListRemoveClick(i); });
    ImageListClear.OnEach(&ui::PictureBox::Click, [this](std::int16_t i) { ImageListClearClick(i); });

    ImageConfirmClearList.Click = [this] { ImageConfirmClearListClick(); };
    SetPressPictures(ImageConfirmClearList, over, up3);
    onKey(ImageConfirmClearList);
    ImageCancelClearList.Click = [this] { ImageCancelClearListClick(); };
    SetPressPictures(
        ImageCancelClearList,
        [this] { return OneOfTheme(ui::PictureSlot::ImageMStar, app_.settings.ThemeIndex); },
        [this] { return OneOfTheme(ui::PictureSlot::ImageMX, app_.settings.ThemeIndex); });
    onKey(ImageCancelClearList);
}

}  // namespace qs
