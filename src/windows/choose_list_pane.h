#pragma once
// The Launch List pane of frmChoose: the five groups' rows with their
// counts, one panel per group with the name and path lists, open, rename,
// remove and clear, and the one question asked before removing or
// clearing. Its controls live on frmChoose, in PictureList. Handlers:
// choose_list_show.cpp (preparing the pane, the group buttons, the lists),
// choose_list_open.cpp (open), choose_list_rename.cpp (the rename frame),
// choose_list_question.cpp (remove, clear and the question).
#include <array>
#include <cstdint>

#include "ui/control_array.h"
#include "ui/frame.h"
#include "ui/label.h"
#include "ui/picture_box.h"
#include "ui/text_box.h"

namespace qs {

struct Application;
class FrmChoose;

class LaunchListPane {
public:
    LaunchListPane(Application& app, FrmChoose& form);

    // The group rows. Each array is indexed by the group: 0 File, 1 Folder,
    // 2 Program, 3 Email, 4 Web URL; the flash-drive counts by 0 to 2.
    ui::Label LabelListCap;
    ui::Frame FrameGroupMenu;
    ui::ControlArray<ui::PictureBox> ImageShowList;
    ui::ControlArray<ui::Label> LabelItemName;
    ui::ControlArray<ui::Label> LabelListTotalA;
    ui::ControlArray<ui::Label> LabelUSBInfo;
    ui::ControlArray<ui::Label> LabelUSBTotal;
    ui::Label LabelEmptyList;

    // One panel per group. The name and path lists are frmChoose's own.
    ui::ControlArray<ui::Frame> PictureGroupList;
    ui::ControlArray<ui::Label> LabelListTotalB;
    ui::ControlArray<ui::Label> LabelListItemNum;
    ui::ControlArray<ui::PictureBox> ImageListOpen;
    ui::ControlArray<ui::Label> LabelListOpen;
    ui::ControlArray<ui::PictureBox> ImageListRemove;
    ui::ControlArray<ui::PictureBox> ImageListClear;
    ui::ControlArray<ui::PictureBox> ImageListRename;
    ui::ControlArray<ui::Frame> FrameListRename;
    ui::ControlArray<ui::TextBox> TextListRename;
    ui::ControlArray<ui::PictureBox> ImageListOKRename;
    ui::ControlArray<ui::Label> LabelListRenOK;
    ui::ControlArray<ui::PictureBox> ImageListCancelRename;
    ui::ControlArray<ui::Label> LabelListRenCancel;
    // The fixed captions: "- Listed -" beside each group's count (0 to 4),
    // then each panel's five row captions at NoListRow(group, row).
    ui::ControlArray<ui::Label> LabelNoList;

    // The lower part: a resting panel, and the question that replaces it.
    ui::Frame FrameConfirmClearListA;
    ui::PictureBox ImagePicture;
    ui::Frame FrameConfirmClearListB;
    ui::Label LabelConfirmClearListA;
    ui::Label LabelConfirmClearListB;
    ui::PictureBox ImageConfirmClearList;
    ui::Label LabelConfirmYes;
    ui::PictureBox ImageCancelClearList;
    ui::Label LabelConfirmNo;

    // The rows of a panel's captions, for NoListRow.
    enum Row : std::int16_t { NameRow, PathRow, RemoveRow, ClearRow, RenameRow };
    static std::int16_t NoListRow(std::int16_t group, Row row);

    // Lays the pane out inside PictureList; part of frmChoose's set-up.
    void SetUp();
    // The pane's part of ActionSetChoose: counts, labels, the first item of
    // every group, and the group to show.
    void Prepare();

    // Event handlers.
    void ImageShowListClick(std::int16_t index);
    void ComboListItemNameClick(std::int16_t index);
    void ComboListItemPathClick(std::int16_t index);
    void ComboListKeyPress(std::int16_t& key);
    void ImageListOpenClick(std::int16_t index);
    void ImageListRenameClick(std::int16_t index);
    void TextListRenameChange(std::int16_t index);
    void TextListRenameKeyPress(std::int16_t index, std::int16_t& key);
    void ImageListOKRenameClick(std::int16_t index);
    void ImageListCancelRenameClick(std::int16_t index);
    void ImageListClearClick(std::int16_t index);
    void ImageListRemoveClick(std::int16_t index);
    void ImageConfirmClearListClick();
    void ImageCancelClearListClick();

    // The question's state, read by the pane's tests.
    bool IsClearPending(std::int16_t group) const { return ClearPending.at(static_cast<std::size_t>(group)); }
    bool IsRemovePending(std::int16_t group) const { return RemovePending.at(static_cast<std::size_t>(group)); }
    std::int16_t Mode() const { return ConfirmMode; }

private:
    void Layout();
    void LayoutPanel(std::int16_t group);
    void WireEvents();
    void SetTabOrder();
    // "Showing Program # 3".
    void ShowPosition(std::int16_t group, std::int32_t position);
    // The two total lines of a group's rows and panel.
    void ShowTotals(std::int16_t group, std::int32_t count);
    // Asks the question below the panels, or answers it.
    void SwapQuestionFrames(bool asking);
    // Hides the QuickLauncher's button of a group left with no items.
    void HideQuickGroupButton(std::int16_t group);

    Application& app_;
    FrmChoose& form_;
    // A clear, or a remove, question is standing for the group.
    std::array<bool, 5> ClearPending{};
    std::array<bool, 5> RemovePending{};
    // Which button the question belongs to: 1 clear, 0 remove.
    std::int16_t ConfirmMode = 0;
};

}  // namespace qs
