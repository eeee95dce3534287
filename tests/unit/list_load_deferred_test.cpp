// The list load walks its files before the bar shows and makes their
// records and tests the File, Folder and Program targets on a thread of its
// own once the bar is drawn; the records join the lists before any input
// is taken. These tests hold that input back to look in between, and check
// that the end is exactly what a load that waited for each file gives.
#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <filesystem>
#include <mutex>
#include <set>
#include <stdexcept>
#include <thread>

#include "command/default_values.h"
#include "data/launch_list.h"
#include "data/list_file_reads.h"
#include "data_setup.h"
#include "dialog_backend.h"
#include "shown_messages.h"
#include "theme/active_theme.h"

namespace qs::test {
namespace {

using Names = std::vector<std::wstring>;

// Every list of the store, in a fixed order, for comparing two runs.
std::vector<Names> AllLists(TestApp& t) {
    std::vector<Names> lists;
    for (int group = 0; group < 5; ++group) {
        lists.push_back(Entries(MergedNames(t, group)));
        lists.push_back(Entries(MergedPaths(t, group)));
    }
    for (int group = 0; group < 3; ++group) {
        lists.push_back(Entries(ComputerNames(t, group)));
        lists.push_back(Entries(ComputerPaths(t, group)));
        lists.push_back(Entries(FlashNames(t, group)));
        lists.push_back(Entries(FlashPaths(t, group)));
    }
    return lists;
}

// A flash-drive run whose computer and flash drive both hold items of every
// tested group, some with their targets gone, and Email and Web items.
void SeedMixedFlashRun(TestApp& t) {
    SetUpFlashRun(t, L'E');
    t.sys.PutFile(L"C:\\Docs\\plan.txt");
    t.sys.PutFile(L"E:\\Docs\\notes.txt");
    std::filesystem::create_directories(t.sys.HostPath(L"C:\\Work"));
    std::filesystem::create_directories(t.sys.HostPath(L"E:\\Music"));
    t.sys.PutFile(L"C:\\Apps\\edit.exe");
    t.sys.PutFile(L"E:\\Tools\\zip.exe");
    const auto& p = t.app.place;
    t.sys.PutFile(p.FileListFile, ListFileBytes({{"gone", "C:\\Docs\\gone.txt"}, {"plan", "C:\\Docs\\plan.txt"}}));
    t.sys.PutFile(p.FileListFold, ListFileBytes({{"work", "C:\\Work"}, {"x", "C:\\Docs\\plan.txt"}}));
    t.sys.PutFile(p.FileListProg, ListFileBytes({{"edit", "C:\\Apps\\edit.exe"}}));
    t.sys.PutFile(p.FileListMail, ListFileBytes({{"ann", "ann@a.example"}}));
    t.sys.PutFile(p.FileListWeb, ListFileBytes({{"site", "http://a.example"}}));
    t.sys.PutFile(p.FileListUsbFile, ListFileBytes({{"notes", "#:\\Docs\\notes.txt"}, {"old", "#:\\old.txt"}}));
    t.sys.PutFile(p.FileListUsbFold, ListFileBytes({{"music", "#:\\Music"}}));
    t.sys.PutFile(p.FileListUsbProg, ListFileBytes({{"edit", "#:\\Tools\\zip.exe"}, {"zip", "#:\\Tools\\zip.exe"}}));
    StoreListCounts(t.app.settings, {.file = 1, .folder = 1, .program = 0, .email = 0,
                                     .web = 0, .usbFile = 1, .usbFolder = 0, .usbProgram = 1});
}

// A fixed-disk run whose Program file holds one item, "a", loaded with its
// counter at `lastIndex`, input held back.
void LoadOneProgramHoldingInput(TestApp& t, std::int16_t lastIndex) {
    SetUpFixedDiskRun(t);
    t.sys.PutFile(L"C:\\Apps\\a.exe");
    t.sys.PutFile(t.app.place.FileListProg, ListFileBytes({{"a", "C:\\Apps\\a.exe"}}));
    t.app.settings.HDDProgramLast = lastIndex;
    t.dialogs.holdInputWork = true;
    LaunchListLoad(t.app);
}

TEST(ListFileReads, EachFilesTargetsAreAnsweredAsTheSingleTestsAnswerAndTheEndIsToldOnce) {
    TestApp t;
    SeedMixedFlashRun(t);
    std::atomic<int> ends = 0;
    ListFileReads reads(t.app, [&ends] { ++ends; });
    reads.Wait();
    EXPECT_EQ(ends.load(), 1);
    ASSERT_EQ(reads.Files().size(), 8u);
    for (std::size_t i = 0; i < reads.Files().size(); ++i) {
        const ListFileOfLoad& file = reads.Files()[i];
        if (file.group > 2) continue;
        const std::vector<ui::SharedText>& targets = reads.Records(i)->targets;
        ASSERT_EQ(reads.Passes(i).size(), targets.size()) << i;
        for (std::size_t r = 0; r < targets.size(); ++r) {
            const std::wstring target(targets[r].Text());
            const bool single = file.group == 1 ? t.sys.FolderExists(target) : t.sys.FileExists(target);
            EXPECT_EQ(reads.Passes(i)[r], single) << target;
        }
    }
}

TEST(ListFileReads, NoFilesToReadTellTheEndAsWell) {
    TestApp t;
    SetUpFixedDiskRun(t);
    StoreListCounts(t.app.settings, {});
    std::atomic<bool> ended = false;
    ListFileReads reads(t.app, [&ended] { ended = true; });
    reads.Wait();
    EXPECT_TRUE(reads.Files().empty());
    EXPECT_TRUE(ended.load());
    EXPECT_THROW(reads.Records(0), std::out_of_range);
}

// A fixed-disk run with a File list naming a missing file and a Folder list
// naming a folder that is there.
void SeedPlanAndWork(FakeSystem& sys, Application& app) {
    SetUpFixedDiskRun(sys, app);
    std::filesystem::create_directories(sys.HostPath(L"C:\\Work"));
    sys.PutFile(app.place.FileListFile, ListFileBytes({{"plan", "C:\\plan.txt"}}));
    sys.PutFile(app.place.FileListFold, ListFileBytes({{"work", "C:\\Work"}}));
}

// A system whose bulk file test breaks, as one out of memory would.
struct BreakingBulkSystem : FakeSystem {
    std::vector<bool> FilesExist(const std::vector<std::wstring_view>&) override {
        throw std::runtime_error("broken");
    }
};

TEST(ListFileReads, AFileWhoseSystemCallThrowsGivesTheFailureWhenItsAnswersAreAsked) {
    BreakingBulkSystem sys;
    Application app(sys);
    SeedPlanAndWork(sys, app);
    StoreListCounts(app.settings, {.file = 0, .folder = 0});
    ListFileReads reads(app, {});
    reads.Wait();
    EXPECT_THROW(reads.Passes(0), std::runtime_error);
    EXPECT_EQ(reads.Passes(1), std::vector<bool>{true});
}

// A system whose bulk tests each wait, up to two seconds, for a second bulk
// test to be under way at the same time, and note the threads that call.
struct MeetingSystem : FakeSystem {
    std::mutex mutex;
    std::condition_variable met;
    int inside = 0;
    bool twoAtOnce = false;
    std::set<std::thread::id> callers;
    std::vector<bool> FilesExist(const std::vector<std::wstring_view>& paths) override {
        Meet();
        return FakeSystem::FilesExist(paths);
    }
    std::vector<bool> FoldersExist(const std::vector<std::wstring_view>& paths) override {
        Meet();
        return FakeSystem::FoldersExist(paths);
    }
    void Meet() {
        std::unique_lock<std::mutex> lock(mutex);
        callers.insert(std::this_thread::get_id());
        if (++inside == 2) twoAtOnce = true;
        met.notify_all();
        met.wait_for(lock, std::chrono::seconds(2), [this] { return twoAtOnce; });
        --inside;
    }
};

TEST(ListFileReads, TheThreadThatWaitsTestsFilesAlongsideTheTestingThread) {
    MeetingSystem sys;
    Application app(sys);
    SeedPlanAndWork(sys, app);
    sys.PutFile(app.place.FileListProg, ListFileBytes({{"edit", "C:\\edit.exe"}}));
    StoreListCounts(app.settings, {.file = 0, .folder = 0, .program = 0});
    std::atomic<int> ends = 0;
    ListFileReads reads(app, [&ends] { ++ends; });
    reads.Wait();
    EXPECT_TRUE(sys.twoAtOnce);
    EXPECT_EQ(sys.callers.size(), 2u);
    EXPECT_EQ(sys.callers.count(std::this_thread::get_id()), 1u);
    EXPECT_EQ(ends.load(), 1);
    EXPECT_EQ(reads.Passes(0), std::vector<bool>{false});
    EXPECT_EQ(reads.Passes(1), std::vector<bool>{true});
    EXPECT_EQ(reads.Passes(2), std::vector<bool>{false});
}

// A system whose bulk file tests of targets in one folder wait until the
// test opens that folder's gate.
struct GatedSystem : FakeSystem {
    std::mutex mutex;
    std::condition_variable opened;
    std::set<std::wstring> open;
    bool allOpen = false;
    // Bulk file tests begun, and their beginning told.
    int calls = 0;
    std::condition_variable called;
    std::vector<bool> FilesExist(const std::vector<std::wstring_view>& paths) override {
        {
            const std::lock_guard<std::mutex> lock(mutex);
            ++calls;
        }
        called.notify_all();
        if (!paths.empty()) {
            const std::wstring folder(paths[0].substr(0, paths[0].find_last_of(L'\\')));
            std::unique_lock<std::mutex> lock(mutex);
            opened.wait(lock, [this, &folder] { return allOpen || open.count(folder) > 0; });
        }
        return FakeSystem::FilesExist(paths);
    }
    void Open(const std::wstring& folder) {
        {
            const std::lock_guard<std::mutex> lock(mutex);
            open.insert(folder);
        }
        opened.notify_all();
    }
    // Whether a bulk file test has begun, or begins within `limit`.
    bool WaitForCall(std::chrono::milliseconds limit) {
        std::unique_lock<std::mutex> lock(mutex);
        return called.wait_for(lock, limit, [this] { return calls > 0; });
    }
    void OpenAll() {
        {
            const std::lock_guard<std::mutex> lock(mutex);
            allOpen = true;
        }
        opened.notify_all();
    }
};

// The program of a test over a gated system, with the bar loaded as after
// start-up and input held back as before the first message.
struct GatedApp {
    GatedApp() {
        app.AttachBackend(&dialogs);
        app.WindowsFolder = L"C:\\Windows\\";
        AtStartDefaultValue(app);
        AtStartDefaultColor(app);
        app.frmMain.Load();
        ThemeCreate(app, app.settings.ThemeIndex);
        app.frmMain.SetTextMainQuietly(L"");
        dialogs.holdInputWork = true;
    }
    // A test that ends early leaves no test waiting at a closed gate.
    ~GatedApp() { sys.OpenAll(); }
    GatedSystem sys;
    Application app{sys};
    DialogBackend dialogs{app};
};

TEST(DeferredListLoad, AutoFillAndEnterOfAGroupWaitOnlyForItsOwnTestsAndAnswerWhenTheyEnd) {
    GatedApp t;
    SetUpFixedDiskRun(t.sys, t.app);
    t.sys.PutFile(L"C:\\Docs\\plan.txt");
    t.sys.PutFile(L"C:\\Apps\\player.exe");
    t.sys.PutFile(t.app.place.FileListFile, ListFileBytes({{"plan", "C:\\Docs\\plan.txt"}}));
    t.sys.PutFile(t.app.place.FileListProg, ListFileBytes({{"player", "C:\\Apps\\player.exe"}}));
    StoreListCounts(t.app.settings, {.file = 0, .program = 0});
    LaunchListLoad(t.app);
    // The File list's test never ends while the Program list is searched;
    // the Program list's ends a moment after the search began.
    std::thread opener([&t] {
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
        t.sys.Open(L"C:\\Apps");
    });
    t.app.frmMain.TextMain.TypeText(L"p-pl");
    opener.join();
    EXPECT_EQ(t.app.frmMain.TextMain.Text(), L"p-player");
    EXPECT_EQ(t.app.PendingItemIndex, 0);
    EXPECT_EQ(t.app.frmChoose.ComboListItemName(0).ListCount(), 0);
    // Enter launches from the Program list while the File list's test
    // still runs; that list joins at the next input.
    t.app.frmMain.TextMain.TypeKey(13);
    ASSERT_EQ(t.sys.launches.size(), 1u);
    EXPECT_EQ(t.sys.launches[0].target, L"C:\\Apps\\player.exe");
    EXPECT_EQ(t.app.frmChoose.ComboListItemName(0).ListCount(), 0);
    t.sys.Open(L"C:\\Docs");
    EXPECT_TRUE(t.dialogs.RunHeldWork());
    EXPECT_EQ(Entries(t.app.frmChoose.ComboListItemName(0)), (Names{L"plan"}));
}

// A fixed-disk run whose File list holds "plan", its target there, loaded
// with the gates open and the idle moment not yet come.
void LoadPlanBeforeTheIdleMoment(GatedApp& t) {
    SetUpFixedDiskRun(t.sys, t.app);
    t.sys.OpenAll();
    t.sys.PutFile(L"C:\\Docs\\plan.txt");
    t.sys.PutFile(t.app.place.FileListFile, ListFileBytes({{"plan", "C:\\Docs\\plan.txt"}}));
    StoreListCounts(t.app.settings, {.file = 0});
    t.dialogs.holdIdleWork = true;
    LaunchListLoad(t.app);
}

TEST(DeferredListLoad, TheTargetTestsBeginAtTheFirstIdleMomentAfterTheBarShows) {
    GatedApp t;
    LoadPlanBeforeTheIdleMoment(t);
    // The files are read and the bar may be made and drawn, with both cores.
    EXPECT_FALSE(t.sys.WaitForCall(std::chrono::milliseconds(200)));
    ASSERT_TRUE(t.dialogs.RunHeldIdleWork());
    EXPECT_TRUE(t.sys.WaitForCall(std::chrono::seconds(10)));
    ASSERT_TRUE(t.dialogs.RunHeldWork());
    EXPECT_EQ(Entries(t.app.frmChoose.ComboListItemName(0)), (Names{L"plan"}));
}

TEST(DeferredListLoad, TypingBeforeTheIdleMomentBeginsTheTestsItsSearchWaitsFor) {
    GatedApp t;
    LoadPlanBeforeTheIdleMoment(t);
    t.app.frmMain.TextMain.TypeText(L"f-pl");
    EXPECT_EQ(t.app.frmMain.TextMain.Text(), L"f-plan");
    EXPECT_EQ(t.sys.calls, 1);
    // The idle moment that comes later finds the load's tests under way.
    EXPECT_TRUE(t.dialogs.RunHeldIdleWork());
    ASSERT_TRUE(t.dialogs.RunHeldWork());
    EXPECT_EQ(Entries(t.app.frmChoose.ComboListItemName(0)), (Names{L"plan"}));
}

TEST(DeferredListLoad, EnterOnACommandOfNoListGroupWaitsForEveryGroup) {
    GatedApp t;
    SetUpFixedDiskRun(t.sys, t.app);
    t.sys.PutFile(L"C:\\Docs\\plan.txt");
    t.sys.PutFile(t.app.place.FileListFile, ListFileBytes({{"plan", "C:\\Docs\\plan.txt"}}));
    StoreListCounts(t.app.settings, {.file = 0});
    LaunchListLoad(t.app);
    std::thread opener([&t] {
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
        t.sys.Open(L"C:\\Docs");
    });
    t.app.frmMain.TextMain.TypeText(L"w;example.org");
    EXPECT_EQ(t.app.frmChoose.ComboListItemName(0).ListCount(), 0);
    t.app.frmMain.TextMain.TypeKey(13);
    opener.join();
    EXPECT_EQ(Entries(t.app.frmChoose.ComboListItemName(0)), (Names{L"plan"}));
    EXPECT_EQ(t.sys.launches.size(), 1u);
    // The next input finds nothing left to join.
    t.dialogs.RunHeldWork();
    EXPECT_EQ(Entries(t.app.frmChoose.ComboListItemName(0)), (Names{L"plan"}));
}

// Nothing on screen shows a list before the first input, so no group is
// filled before it: the tested ones wait for their answers, and Email and
// Web URL join with them.
// A system that notes which threads read list files and which test targets.
struct ThreadNotingSystem : FakeSystem {
    std::mutex mutex;
    std::condition_variable called;
    std::vector<std::thread::id> readers;
    std::vector<std::thread::id> testers;
    std::unique_ptr<qs::FileBytes> ReadFileBytes(const std::wstring& path, bool onFixedDisk) override {
        Note(readers);
        return FakeSystem::ReadFileBytes(path, onFixedDisk);
    }
    std::vector<bool> FilesExist(const std::vector<std::wstring_view>& paths) override {
        Note(testers);
        return FakeSystem::FilesExist(paths);
    }
    std::vector<bool> FoldersExist(const std::vector<std::wstring_view>& paths) override {
        Note(testers);
        return FakeSystem::FoldersExist(paths);
    }
    void Note(std::vector<std::thread::id>& threads) {
        {
            const std::lock_guard<std::mutex> lock(mutex);
            threads.push_back(std::this_thread::get_id());
        }
        called.notify_all();
    }
    // Waits up to `limit` for a call; whether one came.
    bool CalledWithin(const std::vector<std::thread::id>& threads, std::chrono::milliseconds limit) {
        std::unique_lock<std::mutex> lock(mutex);
        return called.wait_for(lock, limit, [&threads] { return !threads.empty(); });
    }
};

TEST(ListFileReads, NoThreadReadsBeforeAFileIsAskedForAndTheAskingThreadReadsAndWalksIt) {
    ThreadNotingSystem sys;
    Application app(sys);
    SeedPlanAndWork(sys, app);
    StoreListCounts(app.settings, {.file = 0, .folder = 0});
    ListFileReads reads(app, {});
    // A thread made before the bar's window slows the making of that
    // window, so the files wait for the load to ask for them.
    EXPECT_FALSE(sys.CalledWithin(sys.readers, std::chrono::milliseconds(200)));
    EXPECT_TRUE(reads.Walked(1).exists);
    {
        const std::lock_guard<std::mutex> lock(sys.mutex);
        EXPECT_EQ(sys.readers, (std::vector<std::thread::id>(2, std::this_thread::get_id())));
        EXPECT_TRUE(sys.testers.empty());
    }
    reads.Wait();
}

TEST(ListFileReads, OnceAllowedTheTestsRunOnAThreadOfTheirOwn) {
    ThreadNotingSystem sys;
    Application app(sys);
    SeedPlanAndWork(sys, app);
    StoreListCounts(app.settings, {.file = 0, .folder = 0});
    ListFileReads reads(app, {});
    reads.Walked(1);
    EXPECT_FALSE(sys.CalledWithin(sys.testers, std::chrono::milliseconds(200)));
    reads.AllowTests();
    ASSERT_TRUE(sys.CalledWithin(sys.testers, std::chrono::seconds(10)));
    {
        const std::lock_guard<std::mutex> lock(sys.mutex);
        EXPECT_NE(sys.testers.front(), std::this_thread::get_id());
    }
    reads.Wait();
    EXPECT_EQ(std::wstring(reads.Records(0)->names[0].Text()), L"plan");
    EXPECT_EQ(std::wstring(reads.Records(1)->names[0].Text()), L"work");
}

TEST(DeferredListLoad, EveryGroupJoinsTheListsAtTheFirstInputTheTestedOnesWithTheirAnswers) {
    TestApp t;
    SeedMixedFlashRun(t);
    t.dialogs.holdInputWork = true;
    LaunchListLoad(t.app);
    for (int group = 0; group < 5; ++group) EXPECT_EQ(MergedNames(t, group).ListCount(), 0) << group;
    EXPECT_EQ(FlashNames(t, 2).ListCount(), 0);
    ASSERT_TRUE(t.dialogs.RunHeldWork());
    EXPECT_EQ(Entries(MergedNames(t, 0)), (Names{L"notes", L"plan"}));
    EXPECT_EQ(Entries(MergedPaths(t, 1)), (Names{L"E:\\Music", L"C:\\Work"}));
    EXPECT_EQ(Entries(MergedNames(t, 2)), (Names{L"edit", L"edit", L"zip"}));
    EXPECT_EQ(Entries(MergedNames(t, 3)), (Names{L"ann"}));
    EXPECT_EQ(Entries(MergedNames(t, 4)), (Names{L"site"}));
    EXPECT_FALSE(t.dialogs.RunHeldWork());
}

TEST(DeferredListLoad, EndsWithExactlyTheListsOfALoadThatWaitsForEachFile) {
    TestApp waited;
    SeedMixedFlashRun(waited);
    LaunchListLoad(waited.app);
    TestApp deferred;
    SeedMixedFlashRun(deferred);
    deferred.dialogs.holdInputWork = true;
    LaunchListLoad(deferred.app);
    deferred.dialogs.RunHeldWork();
    EXPECT_EQ(AllLists(deferred), AllLists(waited));
    // The flash drive's "edit" went in step with the computer's "edit".
    EXPECT_EQ(Entries(MergedPaths(deferred, 2)),
              (Names{L"E:\\Tools\\zip.exe", L"C:\\Apps\\edit.exe", L"E:\\Tools\\zip.exe"}));
}

TEST(DeferredListLoad, AFileThatBreaksOffIsReportedAtTheLoadAndItsRecordsReadJoinLater) {
    TestApp t;
    LoadOneProgramHoldingInput(t, 3);
    EXPECT_EQ(BugCount(t), 1);
    EXPECT_TRUE(BugShown(t, L"Quillstart:Bug:ActionLaunchListGet"));
    EXPECT_EQ(MergedNames(t, 2).ListCount(), 0);
    t.dialogs.RunHeldWork();
    EXPECT_EQ(Entries(MergedNames(t, 2)), (Names{L"a"}));
    EXPECT_EQ(BugCount(t), 1);
}

TEST(DeferredListLoad, TheExitSaveWaitsForTheTestsAndWritesEveryItem) {
    TestApp t;
    SetUpFixedDiskRun(t);
    t.sys.PutFile(L"C:\\Apps\\a.exe");
    t.sys.PutFile(L"C:\\Apps\\b.exe");
    const std::string records = ListFileBytes({{"a", "C:\\Apps\\a.exe"}, {"b", "C:\\Apps\\b.exe"}});
    t.sys.PutFile(t.app.place.FileListProg, records);
    t.app.settings.HDDProgramLast = 1;
    t.dialogs.holdInputWork = true;
    LaunchListLoad(t.app);
    // The session ends before any input came.
    EXPECT_THROW(t.app.frmMain.Unload(), ProgramEnded);
    EXPECT_EQ(t.sys.FileBytes(t.app.place.FileListProg), records);
    EXPECT_EQ(t.app.settings.HDDProgramLast, 1);
}

TEST(DeferredListLoad, ASecondLoadFirstFinishesTheOneBefore) {
    TestApp t;
    LoadOneProgramHoldingInput(t, 0);
    LaunchListLoad(t.app);
    EXPECT_EQ(Entries(MergedNames(t, 2)), (Names{L"a"}));
    t.dialogs.RunHeldWork();
    EXPECT_EQ(Entries(MergedNames(t, 2)), (Names{L"a", L"a"}));
}

// The panes that hold lists get their windows when they first show, so a
// start with full lists makes no list window at all.
TEST(DeferredListLoad, ThePanesThatHoldTheListsMakeTheirWindowsOnlyWhenTheyFirstShow) {
    TestApp t;
    EXPECT_TRUE(t.app.frmChoose.WindowWaitsForShow());
    EXPECT_TRUE(t.app.frmBrowse.WindowWaitsForShow());
}

}  // namespace
}  // namespace qs::test
