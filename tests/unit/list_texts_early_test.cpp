// The list files' texts read from the program's first instruction: the
// thread reads the list files of the place start-up will decide on, in the
// load's order; the load takes each text read from its own path once, and
// fills the lists and reports damaged files exactly as a load that reads
// each file itself.
#include <gtest/gtest.h>

#include <condition_variable>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "data/launch_list.h"
#include "data/list_texts_early.h"
#include "data_setup.h"
#include "shown_messages.h"

namespace qs::test {
namespace {

using Names = std::vector<std::wstring>;

// A flash run with all eight files stored: the File file breaks off after
// its first record.
void SeedEightFiles(TestApp& t) {
    SetUpFlashRun(t, L'E');
    const ProgramPlace& p = t.app.place;
    t.sys.PutFile(p.FileListFile, ListFileBytes({{"doc", "C:\\Docs\\d.txt"}}) + "\"cut\"");
    t.sys.PutFile(p.FileListFold, ListFileBytes({{"docs", "C:\\Docs"}}));
    t.sys.PutFile(p.FileListProg, ListFileBytes({{"ant", "C:\\Apps\\a.exe"}, {"bee", "C:\\Apps\\b.exe"}}));
    t.sys.PutFile(p.FileListMail, ListFileBytes({{"ann", "ann@mail.example"}}));
    t.sys.PutFile(p.FileListWeb, ListFileBytes({{"news", "news.example"}}));
    t.sys.PutFile(p.FileListUsbFile, ListFileBytes({{"notes", "#:\\notes.txt"}}));
    t.sys.PutFile(p.FileListUsbFold, ListFileBytes({{"stick", "#:\\Stick"}}));
    t.sys.PutFile(p.FileListUsbProg, ListFileBytes({{"tool", "#:\\Tools\\t.exe"}, {"zip", "#:\\Tools\\z.exe"}}));
    StoreListCounts(t.app.settings, {.file = 1, .folder = 0, .program = 1, .email = 0,
                                     .web = 0, .usbFile = 0, .usbFolder = 0, .usbProgram = 1});
    for (const wchar_t* file : {L"C:\\Docs\\d.txt", L"C:\\Apps\\a.exe", L"C:\\Apps\\b.exe", L"E:\\notes.txt",
                                L"E:\\Tools\\t.exe", L"E:\\Tools\\z.exe"})
        t.sys.PutFile(file);
    std::filesystem::create_directories(t.sys.HostPath(L"C:\\Docs"));
    std::filesystem::create_directories(t.sys.HostPath(L"E:\\Stick"));
}

std::wstring ListFileBytesText(const std::vector<std::pair<std::string, std::string>>& records) {
    const std::string bytes = ListFileBytes(records);
    return std::wstring(bytes.begin(), bytes.end());
}

Names ComputersFive(const ProgramPlace& p) {
    return {p.FileListFile, p.FileListFold, p.FileListProg, p.FileListMail, p.FileListWeb};
}

TEST(EarlyListTexts, AFixedDiskProgramReadsTheComputersFiveListFilesInTheLoadsOrder) {
    TestApp t;
    SetUpFixedDiskRun(t);
    EarlyListTexts early(t.sys);
    EXPECT_EQ(early.Paths(), ComputersFive(t.app.place));
}

TEST(EarlyListTexts, AFlashDriveProgramReadsTheFlashDrivesThreeAfterTheComputersFive) {
    TestApp t;
    SetUpFlashRun(t, L'E', L"LAPTOP");
    t.sys.environment[L"computername"] = L"LAPTOP";
    EarlyListTexts early(t.sys);
    Names expected = ComputersFive(t.app.place);
    const ProgramPlace& p = t.app.place;
    expected.insert(expected.end(), {p.FileListUsbFile, p.FileListUsbFold, p.FileListUsbProg});
    EXPECT_EQ(early.Paths(), expected);
    EXPECT_NE(p.FileListFile.find(L"\\LAPTOP\\"), std::wstring::npos);
}

TEST(EarlyListTexts, ATextIsHandedOverOnceAndNoneForAPathNotReadEarlyOrWithoutAFile) {
    TestApp t;
    SetUpFixedDiskRun(t);
    t.sys.PutFile(t.app.place.FileListProg, ListFileBytes({{"ant", "C:\\Apps\\a.exe"}}));
    t.sys.PutFile(L"C:\\Elsewhere\\ListProg.Morvane", ListFileBytes({{"bee", "C:\\b.exe"}}));
    EarlyListTexts early(t.sys);
    EXPECT_EQ(early.Take(t.app.place.FileListProg), t.sys.ReadTextFile(t.app.place.FileListProg));
    EXPECT_EQ(early.Take(t.app.place.FileListProg), std::nullopt);
    EXPECT_EQ(early.Take(t.app.place.FileListFile), std::nullopt);
    EXPECT_EQ(early.Take(L"C:\\Elsewhere\\ListProg.Morvane"), std::nullopt);
}

// A system whose reads of one file wait until the test lets them go on,
// counting the reads of every path.
struct HeldReadSystem : FakeSystem {
    std::mutex mutex;
    std::condition_variable changed;
    std::wstring held;
    bool reachedHeld = false;
    bool released = false;
    std::map<std::wstring, int> reads;
    std::wstring ReadTextFile(const std::wstring& path) override {
        {
            std::unique_lock<std::mutex> lock(mutex);
            ++reads[path];
            if (path == held) {
                reachedHeld = true;
                changed.notify_all();
                changed.wait(lock, [this] { return released; });
            }
        }
        return FakeSystem::ReadTextFile(path);
    }
    void Release() {
        {
            const std::lock_guard<std::mutex> lock(mutex);
            released = true;
        }
        changed.notify_all();
    }
};

TEST(EarlyListTexts, AFileTakenBeforeTheThreadReachesItIsLeftToTheTakerAndNeverReadEarly) {
    HeldReadSystem sys;
    Application app(sys);
    SetUpFixedDiskRun(sys, app);
    for (const std::wstring& path : ComputersFive(app.place)) sys.PutFile(path, ListFileBytes({{"a", "b"}}));
    sys.held = app.place.FileListFile;
    auto early = std::make_unique<EarlyListTexts>(sys);
    {
        std::unique_lock<std::mutex> lock(sys.mutex);
        ASSERT_TRUE(sys.changed.wait_for(lock, std::chrono::seconds(10), [&sys] { return sys.reachedHeld; }));
    }
    // The thread is held in the first file: the third is not waited for.
    EXPECT_EQ(early->Take(app.place.FileListProg), std::nullopt);
    sys.Release();
    // The file being read is waited for.
    EXPECT_EQ(early->Take(app.place.FileListFile), ListFileBytesText({{"a", "b"}}));
    early.reset();
    const std::lock_guard<std::mutex> lock(sys.mutex);
    EXPECT_EQ(sys.reads.count(app.place.FileListProg), 0u);
    EXPECT_EQ(sys.reads[app.place.FileListFile], 1);
}

TEST(EarlyListTexts, ALoadOverTextsReadEarlyFillsTheListsAndReportsAsALoadThatReadsEachFile) {
    TestApp reference;
    SeedEightFiles(reference);
    LaunchListLoad(reference.app);

    TestApp t;
    SeedEightFiles(t);
    t.app.earlyListTexts = std::make_unique<EarlyListTexts>(t.sys);
    LaunchListReadAhead(t.app);
    LaunchListLoad(t.app);
    for (int group = 0; group < 5; ++group) {
        EXPECT_EQ(Entries(MergedNames(t, group)), Entries(MergedNames(reference, group))) << group;
        EXPECT_EQ(Entries(MergedPaths(t, group)), Entries(MergedPaths(reference, group))) << group;
    }
    for (int group = 0; group < 3; ++group) {
        EXPECT_EQ(Entries(ComputerPaths(t, group)), Entries(ComputerPaths(reference, group))) << group;
        EXPECT_EQ(Entries(FlashPaths(t, group)), Entries(FlashPaths(reference, group))) << group;
    }
    EXPECT_EQ(Entries(MergedNames(t, 2)), (Names{L"ant", L"bee", L"tool", L"zip"}));
    EXPECT_EQ(BugCount(t), 1);
    EXPECT_TRUE(BugShown(t, L"Quillstart:Bug:ActionLaunchListGet"));
    // The load's lists are whole: what was read early is let go.
    EXPECT_EQ(t.app.earlyListTexts, nullptr);
}

}  // namespace
}  // namespace qs::test
