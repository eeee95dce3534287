#pragma once
// The program's process-wide state, one instance per run, reached by every
// window and routine by reference. Each test builds its own.
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "command/tables.h"
#include "data/family_member.h"
#include "data/family_state.h"
#include "data/settings.h"
#include "platform/system.h"
#include "startup/frm_message.h"
#include "startup/message_state.h"
#include "startup/paths.h"
#include "theme/theme_state.h"
#include "windows/frm_browse.h"
#include "windows/frm_choose.h"
#include "windows/frm_help.h"
#include "windows/frm_hid.h"
#include "windows/frm_main.h"
#include "windows/frm_quick.h"

namespace qs {

namespace ui {
class Backend;
}
struct PendingListLoad;

struct Application {
    explicit Application(System& system);
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;
    ~Application();

    // Gives every form the window system to show itself with.
    void AttachBackend(ui::Backend* backend);

    System& sys;
    // The window system, or none when the forms live in memory only.
    ui::Backend* backend = nullptr;

    // Command state.
    std::wstring MessageToShow;
    bool TextMainBusy = false;
    std::int16_t PendingItemIndex = -1;
    std::int16_t PendingFamilyIndex = -1;
    std::int16_t PendingFeedbackIndex = -1;
    std::int16_t OpenMenuIndex = -1;
    std::int16_t PendingClick = -1;
    bool HelpOpen = false;
    bool QuickOpen = false;
    // The Launch List group whose panel shows; kept between openings.
    std::int16_t ListGroupShown = 0;
    // The group button that a release paints as chosen. Nothing ever
    // changes it, so it stays 0: the File button.
    std::int16_t ShowListMark = 0;

    // The program's place.
    std::wstring WindowsFolder;
    std::wstring ProgramFile;
    std::wstring ProgramFolder;
    // Where the program runs and where its files lie.
    ProgramPlace place;

    // The bar's geometry.
    std::int32_t MainWidth = MainWidthCommand;
    std::int32_t MainWidthPixels = 0;
    std::int32_t SavedMainTop = -1;

    NameTables tables;

    // The maker's other programs; FamilyMemberCount is the last index.
    std::vector<FamilyMember> FamilyMembers;
    std::int16_t FamilyMemberCount = -1;
    FamilyState family;

    MessageState message;
    Settings settings;
    ThemeState theme;

    FrmHid frmHid;
    FrmMain frmMain;
    FrmBrowse frmBrowse;
    FrmChoose frmChoose;
    FrmQuick frmQuick;
    // Loaded only while the user has Help open.
    FrmHelp frmHelp;
    FrmMessage frmMessage;

    // The list load whose target tests are still running, if any. Last, so
    // that its thread ends before the place it reads from goes.
    std::unique_ptr<PendingListLoad> pendingListLoad;
};

}  // namespace qs
