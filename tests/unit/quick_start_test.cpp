// The QuickLauncher at start-up: loaded with the other windows, and told
// about the lists once they are whole.
#include <gtest/gtest.h>

#include "data/launch_list.h"
#include "data_setup.h"
#include "quick_app.h"
#include "startup/active_start.h"

namespace {

using qs::test::QuickApp;

TEST(QuickStart, WithTheFiveListsEmptyTheBarsQuickButtonIsDisabledAtStart) {
    qs::test::FakeSystem sys;
    sys.applicationFolder = L"C:\\Tools\\";
    sys.PutFile(L"C:\\Tools\\Quillstart.exe");
    qs::Application app(sys);
    qs::test::DialogBackend dialogs(app);
    app.AttachBackend(&dialogs);
    dialogs.Answer(qs::test::TypeNameAndEnter(0, L"Ann"));
    qs::Main(app);
    EXPECT_TRUE(app.frmQuick.IsLoaded());
    EXPECT_FALSE(app.frmQuick.Visible());
    EXPECT_FALSE(app.frmMain.PictureShowQuick.Enabled());
    for (const auto& choice : app.frmQuick.ImageQuickChoice) EXPECT_FALSE(choice->Visible());
}

TEST(QuickStart, ListsWhoseTargetsAreStillTestedAtLoadShowTheirGroupsOnceWhole) {
    QuickApp t;
    t.sys.PutFile(L"C:\\Apps\\a.exe");
    t.sys.PutFile(t.app.place.FileListProg, qs::test::ListFileBytes({{"a", "C:\\Apps\\a.exe"}}));
    t.app.settings.HDDProgramLast = 0;
    t.dialogs.holdInputWork = true;
    qs::LaunchListLoad(t.app);
    t.LoadQuick();
    EXPECT_FALSE(t.quick().ImageQuickChoice(2).Visible());
    EXPECT_FALSE(t.bar().PictureShowQuick.Enabled());
    ASSERT_TRUE(t.dialogs.RunHeldWork());
    EXPECT_TRUE(t.quick().ImageQuickChoice(2).Visible());
    EXPECT_TRUE(t.bar().PictureShowQuick.Enabled());
}

TEST(QuickStart, AMergedListLongerThanACountHoldsStillShowsItsGroupAtLoadAndOnceWhole) {
    QuickApp t;
    // A flash drive's items merged into the computer's can pass 32,767; the
    // group buttons ask only whether a list holds an item.
    std::string bytes;
    for (int i = 0; i <= 32767; ++i) bytes += "\"n" + std::to_string(i) + "\",\"m" + std::to_string(i) + "@x\"\r\n";
    t.sys.PutFile(t.app.place.FileListMail, bytes);
    t.app.settings.EmailLast = 32767;
    t.dialogs.holdInputWork = true;
    qs::LaunchListLoad(t.app);
    t.LoadQuick();
    EXPECT_FALSE(t.quick().ImageQuickChoice(3).Visible());
    ASSERT_TRUE(t.dialogs.RunHeldWork());
    ASSERT_EQ(t.app.frmChoose.ComboListItemName(3).ListCount(), 32768);
    EXPECT_TRUE(t.quick().ImageQuickChoice(3).Visible());
    EXPECT_TRUE(t.bar().PictureShowQuick.Enabled());
    t.quick().Load();
    EXPECT_TRUE(t.quick().ImageQuickChoice(3).Visible());
}

}  // namespace
