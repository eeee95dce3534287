#pragma once
// The window of three panes, opened from the bar's PictureMenu(2) to (4):
// 2 Launch List, 3 Code And Command, 4 Preferences. Each pane lies on its own
// picture, one over the other, with its own close button; one shows at a
// time. The window also owns the merged name and path lists of the five
// groups, which everything that reads items reads. ActionSetChoose
// (choose_set.cpp) prepares and shows it.
#include <cstdint>

#include "ui/combo_box.h"
#include "ui/control_array.h"
#include "ui/form.h"
#include "ui/frame.h"
#include "ui/picture_box.h"
#include "windows/choose_code_pane.h"
#include "windows/choose_list_pane.h"
#include "windows/choose_tool_pane.h"

namespace qs {

struct Application;

inline constexpr std::int32_t ChooseWidth = 5400;
inline constexpr std::int32_t ChooseHeight = 8652;

class FrmChoose : public ui::Form {
public:
    explicit FrmChoose(Application& app);

    // Index is the group: 0 File, 1 Folder, 2 Program, 3 Email, 4 Web URL.
    // Names are sorted; paths follow their names position by position.
    ui::ControlArray<ui::ComboBox> ComboListItemName;
    ui::ControlArray<ui::ComboBox> ComboListItemPath;

    // The three panes' pictures, at one place, and their close buttons. A
    // pane's picture only holds its controls, so it is an area without a
    // border that groups them and hides them with it.
    ui::Frame PictureList;
    ui::Frame PictureCode;
    ui::Frame PictureTool;
    ui::PictureBox PictureHideList;
    ui::PictureBox PictureHideCode;
    ui::PictureBox PictureHideTool;

    // The Launch List pane, on PictureList.
    LaunchListPane List;
    // The Code And Command pane, on PictureCode.
    CodeCommandPane Code;
    // The Preferences pane, on PictureTool.
    PreferencesPane Preferences;

    // The close buttons, and Esc anywhere in a pane: the bar clicks the open
    // pane's button again, which closes it.
    void PictureHideClick();
    // Key handler shared by the pane's picture buttons: Enter or Space
    // clicks, Esc closes the pane.
    void PictureButtonKeyPress(ui::PictureBox& button, std::int16_t& key);
    // Closes the window from within a pane that has done its work: the bar
    // gets back its place, the Command box the focus and the on-top timer
    // its option.
    void ClosePane();

private:
    // Lays out the frame; first step of the load.
    void ChooseSetUp();

    Application& app_;
};

// Prepares and shows the window with pane 2, 3 or 4 in front, or hides it
// for -1.
void ActionSetChoose(Application& app, std::int16_t& pane);

}  // namespace qs
