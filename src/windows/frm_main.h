#pragma once
// The bar: the Command box TextMain, the row of picture buttons, the round
// button that minimises the bar on screen, and the web pane at its right.
//
// Where the handlers live:
//   frm_main.cpp          the controls, their places and tooltips, the wiring
//   frm_main_load.cpp     Load, Unload, PictureExit
//   frm_main_panes.cpp    PictureMenu, PictureHelp, PictureShowQuick,
//                         CommandMainClick
//   frm_main_widths.cpp   PictureWeb, PictureZero and their pictures
//   frm_main_tray.cpp     PictureHide, the form's mouse move, TimerOnTop,
//                         TimerWatchOnTop
//   frm_main_web.cpp      TextWebUrl, TextWebName and the add-web step
//   frm_main_hover.cpp    TimerMouseOver
//   command/text_main_keys.cpp, command/run_command.cpp, command/auto_fill.cpp
//                         TextMain's keys, the Command run and auto-fill
#include <cstdint>
#include <string>

#include "platform/system.h"
#include "ui/command_button.h"
#include "ui/control_array.h"
#include "ui/form.h"
#include "ui/label.h"
#include "ui/picture_box.h"
#include "ui/text_box.h"
#include "ui/timer.h"

namespace qs {

struct Application;

inline constexpr std::int32_t MainWidthZero = 2652;
inline constexpr std::int32_t MainWidthCommand = 6360;
inline constexpr std::int32_t MainWidthWeb = 12324;
inline constexpr std::int32_t MainHeight = 348;

// Where the three strips start on the bar; a control on a strip stands at
// the strip's Left plus its own.
inline constexpr std::int32_t BackZeroLeft = 0;
inline constexpr std::int32_t BackMainLeft = 600;
inline constexpr std::int32_t BackWebLeft = 6360;

// The tray icon's record as the bar fills it before going to the tray.
TrayIconData BarTrayIconData();

class FrmMain : public ui::Form {
public:
    explicit FrmMain(Application& app);

    // Declared top of the stack first: the strips lie under the controls
    // drawn on them, and PictureNo under the strips.
    ui::CommandButton CommandMainClick;
    ui::PictureBox PictureZero;
    ui::TextBox TextMain;
    ui::ControlArray<ui::PictureBox> PictureMenu;
    ui::PictureBox PictureHelp;
    ui::PictureBox PictureWeb;
    ui::PictureBox PictureShowQuick;
    ui::PictureBox PictureHide;
    ui::PictureBox PictureExit;
    ui::Label LabelWebURL;
    ui::TextBox TextWebUrl;
    ui::Label LabelWebName;
    ui::TextBox TextWebName;
    ui::PictureBox ImageApp;
    ui::PictureBox PictureBackZero;
    ui::PictureBox PictureBackMain;
    ui::PictureBox PictureBackWeb;
    ui::PictureBox PictureNo;
    // Hover pictures of the buttons, polled every 100 ms.
    ui::Timer TimerMouseOver;
    // Keeps the bar topmost while the option "  Always On Top" is set.
    ui::Timer TimerOnTop;
    // Waits for the bar to come back from the tray.
    ui::Timer TimerWatchOnTop;

    // Set by a Backspace keystroke; the next Change consumes it.
    bool BackspaceTyped = false;
    // Width to come back to from MainWidthZero; set at Load and by
    // PictureWeb only.
    std::int32_t LastWideWidth = MainWidthCommand;
    // Left before the web pane pushed the bar leftward, -1 none.
    std::int32_t WebSavedLeft = -1;
    // Left before un-minimising pushed the bar leftward, -1 none.
    std::int32_t ZeroSavedLeft = -1;
    // The option "  Show Add URL Box At Start" as read at Load.
    bool WebPaneAtStart = false;
    // TimerOnTop ticks counted with text in TextMain.
    std::int16_t IdleTicks = 0;
    // The QuickLauncher has had its first group chosen in this run.
    bool QuickListShown = false;
    TrayIconData TrayIconRecord;

    // Event handlers.
    void FormLoad();
    void FormUnload();
    void FormMouseMove(std::int16_t button, std::int16_t shift, std::int32_t x, std::int32_t y);
    void TimerOnTopTimer();
    void TimerWatchOnTopTimer();
    void TimerMouseOverTimer();
    void TextMainKeyPress(std::int16_t& key);
    void TextMainChange();
    void TextMainDblClick();
    void CommandMainClickClick();
    void PictureMenuClick(std::int16_t& index);
    void PictureHelpClick();
    void PictureWebClick();
    void PictureZeroClick();
    void PictureZeroMouseDown();
    void PictureZeroMouseUp();
    void PictureShowQuickClick();
    void PictureShowQuickMouseDown();
    void PictureShowQuickMouseUp();
    void PictureHideClick();
    void PictureExitClick();
    void TextWebUrlChange();
    void TextWebKeyPress(std::int16_t& key);

    void RunCommand(std::wstring& code, std::wstring& launchName);

    // Writes TextMain from code under the TextMainBusy guard.
    void SetTextMainQuietly(const std::wstring& text);

    // Applies MainWidth to the form and recomputes MainWidthPixels.
    void ApplyMainWidth();

private:
    void TextMainChangeSearch(const std::wstring& text);
    void ListSearch(std::wstring& rawCode, std::wstring& typed, std::int16_t group);
    // Before a control key acts while the lists are still being filled:
    // Enter on a Command of a list group waits for that group alone, any
    // other for every group.
    void SettleListsForKey(std::int16_t key);
    void PlaceControls();
    void WireEvents();
    // Closes an open pane from Help: both panes hidden, the pushed Top undone.
    void CloseOpenPane();
    void FocusTextMain();
    // Left of a bar pushed in from the work area's right edge:
    // TwipsPerPixelX * (WorkAreaRight - MainWidthPixels).
    std::int32_t RightmostLeft() const;
    void AddWebItem();
    // The round button's picture at rest, by LastWideWidth.
    ui::PictureRef ZeroRestPicture() const;
    ui::PictureRef QuickRestPicture() const;

    Application& app_;
};

}  // namespace qs
