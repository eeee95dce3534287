#pragma once
// The Application a fuzz target runs its inputs in, built once per process.
// A new Application makes every form and control of the program, some
// hundreds of allocations: under AddressSanitizer that costs more than a
// reader's whole run. At the end of each input the target puts back, as a
// new Application has it, everything its routines can change, and checks
// that the message dialog is closed, as every run must leave it. Putting it
// back at the end, not at the start of the next input, also gives back
// within the input what it took: libFuzzer counts the allocations and frees
// of each input and runs any input that keeps memory again under the leak
// checker.
#include <cstdint>

#include "common/application.h"
#include "memory_system.h"
#include "message_log.h"

namespace qs::fuzz {

struct KeptApplication {
    MemorySystem sys;
    Application app{sys};
    MessageLog dialogs{app};

    KeptApplication() {
        app.AttachBackend(&dialogs);
        // Every report loads the message dialog, and its Load event lays out
        // the whole form afresh: more work than a reader's run, and the same
        // for every input. The dialog here is never seen, and what the
        // targets check of it (which message, from which entry, closed at
        // the end) does not depend on its layout, so it loads bare.
        app.frmMessage.LoadEvent = nullptr;
        Started();
    }

    // The program's state now is the one each input starts from: a target
    // that takes the program further than a new Application says so here.
    void Started() { timerOnTopAtStart = app.frmMain.TimerOnTop.Enabled(); }

    void EndInput() {
        Require(!app.frmMessage.IsLoaded());
        sys.files.clear();
        sys.launches.clear();
        dialogs.shown.clear();
        app.MessageToShow.clear();
        app.message = MessageState{};
        // A closing dialog lets the bar be topmost again.
        app.frmMain.TimerOnTop.SetEnabled(timerOnTopAtStart);
        ClearLaunchLists();
        app.family = FamilyState{};
        app.FamilyMembers.clear();
        app.FamilyMemberCount = -1;
    }

private:
    // Empties the merged lists and both sides of every group.
    void ClearLaunchLists() {
        for (std::int16_t group = 0; group < 5; ++group) {
            app.frmChoose.ComboListItemName(group).Clear();
            app.frmChoose.ComboListItemPath(group).Clear();
            if (group > 2) continue;
            app.frmHid.ComboHDDItemName(group).Clear();
            app.frmHid.ComboHDDItemPath(group).Clear();
            app.frmHid.ComboUSBItemName(group).Clear();
            app.frmHid.ComboUSBItemPath(group).Clear();
        }
    }

    bool timerOnTopAtStart = false;
};

}  // namespace qs::fuzz
