// What the start leaves until after the bar shows still happens before
// whatever needs it: the Add Item pane's boxes before the pane opens and
// before the exit save, which writes the LastFolder they set; a damaged
// list file's report before the bar; the bar's window after its theme.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "common/application.h"
#include "data/launch_list.h"
#include "dialog_backend.h"
#include "fake_system.h"
#include "startup/active_start.h"
#include "startup/frm_message.h"
#include "windows/frm_browse.h"

namespace {

using qs::test::DialogBackend;
using qs::test::FakeSystem;
using qs::test::ProgramEnded;

constexpr const wchar_t* kProgramList = L"C:\\Morvane\\Morvane Apps\\Quillstart\\ListProg.Morvane";

// A window system that notes, for each form whose window is asked for at
// its showing, whether the theme existed by then.
class ShowingBackend : public DialogBackend {
public:
    explicit ShowingBackend(qs::Application& app) : DialogBackend(app), app_(app) {}
    void FormShowing(qs::ui::Form& form) override {
        showings.push_back({form.Name(), app_.place.StartingUp});
    }
    struct Showing {
        std::wstring form;
        bool startingUp;
    };
    std::vector<Showing> showings;

private:
    qs::Application& app_;
};

// One run of the program over a disk that outlives it.
struct ProgramRun {
    explicit ProgramRun(FakeSystem& disk) : sys(disk) { app.AttachBackend(&windows); }
    FakeSystem& sys;
    qs::Application app{sys};
    ShowingBackend windows{app};

    void Exit() { EXPECT_THROW(app.frmMain.Unload(), ProgramEnded); }
};

struct DeferredStart : ::testing::Test {
    FakeSystem disk;
    void SetUp() override {
        disk.applicationFolder = L"C:\\Tools\\";
        disk.PutFile(L"C:\\Tools\\Quillstart.exe");
        disk.PutFile(L"C:\\Apps\\player.exe");
        // A first start, to have the family, the records and one Program
        // item on disk; it leaves a last folder that has gone since.
        ProgramRun first(disk);
        first.windows.Answer(qs::test::TypeNameAndEnter(0, L"Ann"));
        qs::Main(first.app);
        auto& names = first.app.frmChoose.ComboListItemName(2);
        first.app.frmChoose.ComboListItemPath(2).AddItem(L"C:\\Apps\\player.exe", names.AddItem(L"player"));
        first.app.frmHid.ComboHDDItemPath(2).AddItem(L"C:\\Apps\\player.exe",
                                                     first.app.frmHid.ComboHDDItemName(2).AddItem(L"player"));
        first.app.settings.LastFolder = L"C:\\Gone";
        first.Exit();
    }
    // The LastFolder a start reads, as the last exit saved it.
    std::wstring SavedLastFolder() {
        ProgramRun reader(disk);
        reader.windows.holdIdleWork = true;
        qs::Main(reader.app);
        return reader.app.settings.LastFolder;
    }
};

TEST_F(DeferredStart, TheAddItemPanesBoxesWaitForAnIdleMomentAfterTheBarShows) {
    ProgramRun run(disk);
    run.windows.holdIdleWork = true;
    qs::Main(run.app);
    EXPECT_TRUE(run.app.frmMain.Visible());
    EXPECT_FALSE(run.app.frmBrowse.BoxesLoaded());
    EXPECT_EQ(run.app.settings.LastFolder, L"C:\\Gone");
    EXPECT_TRUE(run.windows.RunHeldIdleWork());
    EXPECT_TRUE(run.app.frmBrowse.BoxesLoaded());
    // The folder of the last run has gone: the boxes stay in the program's.
    EXPECT_EQ(run.app.frmBrowse.CurrentFolder, L"C:\\Tools");
    EXPECT_EQ(run.app.settings.LastFolder, L"C:\\Tools");
}

TEST_F(DeferredStart, ExitWithTheAddItemPaneNeverLoadedSavesTheLastFolderOfAWholeLoad) {
    // A start whose boxes were loaded at once saves what their load set.
    {
        ProgramRun whole(disk);
        qs::Main(whole.app);
        ASSERT_TRUE(whole.app.frmBrowse.BoxesLoaded());
        whole.Exit();
    }
    const std::wstring savedAfterWholeLoad = SavedLastFolder();
    EXPECT_EQ(savedAfterWholeLoad, L"C:\\Tools");
    // The same start again, from the same saved folder, that exits before
    // any idle moment came.
    {
        ProgramRun again(disk);
        qs::Main(again.app);
        again.app.settings.LastFolder = L"C:\\Gone";
        again.Exit();
    }
    ASSERT_EQ(SavedLastFolder(), L"C:\\Gone");
    ProgramRun run(disk);
    run.windows.holdIdleWork = true;
    qs::Main(run.app);
    ASSERT_FALSE(run.app.frmBrowse.BoxesLoaded());
    run.Exit();
    EXPECT_TRUE(run.app.frmBrowse.BoxesLoaded());
    EXPECT_EQ(SavedLastFolder(), savedAfterWholeLoad);
}

TEST_F(DeferredStart, OpeningTheAddItemPaneBeforeTheIdleMomentLoadsItsBoxesFirst) {
    ProgramRun run(disk);
    run.windows.holdIdleWork = true;
    qs::Main(run.app);
    ASSERT_FALSE(run.app.frmBrowse.BoxesLoaded());
    run.app.frmMain.PictureMenu(0).Click();
    EXPECT_TRUE(run.app.frmBrowse.Visible());
    EXPECT_TRUE(run.app.frmBrowse.BoxesLoaded());
    EXPECT_EQ(run.app.frmBrowse.DirWork.Path(), L"C:\\Tools");
    // The idle moment that comes later loads nothing twice.
    run.windows.RunHeldIdleWork();
    EXPECT_EQ(run.app.frmBrowse.DirWork.Path(), L"C:\\Tools");
}

TEST_F(DeferredStart, ADamagedListFilesReportStillComesBeforeTheBar) {
    // A record without its target breaks the file off.
    disk.PutFile(kProgramList, std::string("\"player\""));
    ProgramRun run(disk);
    bool barVisibleAtReport = true;
    bool barWindowAskedAtReport = true;
    run.windows.Answer([&run, &barVisibleAtReport, &barWindowAskedAtReport](qs::FrmMessage&) {
        barVisibleAtReport = run.app.frmMain.Visible();
        barWindowAskedAtReport = false;
        for (const auto& showing : run.windows.showings) barWindowAskedAtReport |= showing.form == L"frmMain";
    });
    qs::Main(run.app);
    ASSERT_EQ(run.windows.shown.size(), 1u);
    EXPECT_EQ(run.windows.shown[0].key, L"Quillstart:Bug:ActionLaunchListGet");
    EXPECT_FALSE(barVisibleAtReport);
    EXPECT_FALSE(barWindowAskedAtReport);
    EXPECT_TRUE(run.app.frmMain.Visible());
}

TEST_F(DeferredStart, TheBarsWindowIsAskedForAtItsFirstShowingOnceTheThemeExists) {
    ProgramRun run(disk);
    qs::Main(run.app);
    EXPECT_TRUE(run.app.frmMain.WindowWaitsForShow());
    ASSERT_FALSE(run.windows.showings.empty());
    EXPECT_EQ(run.windows.showings[0].form, L"frmMain");
    EXPECT_FALSE(run.windows.showings[0].startingUp);
}

}  // namespace
