// "Set.Morvane": loading, the defaults of a first run, the upgrade of a short
// file, and the save that writes only what differs.
#include <gtest/gtest.h>

#include "data/control_data.h"
#include "data/registry_value.h"
#include "records_app.h"
#include "shown_messages.h"
#include "startup/saved_options.h"

namespace {

using qs::test::BugShown;
using qs::test::RecordsApp;
using qs::test::ShownMessages;

const std::wstring RunValue =
    L"HKEY_CURRENT_USER\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run\\Morvane Quillstart";

const std::string DefaultFixedFile = "10\r\n57\r\n0\r\n0\r\n\"\"\r\n-1\r\n-1\r\n-1\r\n8\r\n2\r\n0\r\n";

void Get(RecordsApp& r) { qs::ControlDataGet(r.app, r.app.place.OnRemovable); }

qs::RecordValue Int(std::int16_t value) { return value; }
qs::RecordValue Text(const wchar_t* value) { return std::wstring(value); }

TEST(RecordsSet, FirstSaveOnAFixedDiskWritesExactlyTheDefaults) {
    RecordsApp r;
    Get(r);
    EXPECT_FALSE(r.sys.FileExists(r.app.place.FileSet));
    qs::ControlDataSave(r.app);
    EXPECT_EQ(r.sys.FileBytes(r.app.place.FileSet), DefaultFixedFile);
}

TEST(RecordsSet, FirstSaveWritesChangedValuesInOrder) {
    RecordsApp r;
    Get(r);
    auto& s = r.app.settings;
    s.MainLeft = 1500;
    s.MainTop = -30;
    s.LastFolder = L"C:\\Music\\";
    s.HDDProgramLast = 4;
    s.ThemeIndex = 6;
    qs::ControlDataSave(r.app);
    EXPECT_EQ(r.sys.FileBytes(r.app.place.FileSet),
              "10\r\n57\r\n1500\r\n-30\r\n\"C:\\Music\\\"\r\n-1\r\n-1\r\n4\r\n8\r\n2\r\n6\r\n");
}

TEST(RecordsSet, SecondSaveWithNothingChangedLeavesTheFileUntouched) {
    RecordsApp r;
    Get(r);
    qs::ControlDataSave(r.app);
    const auto written = r.Age(r.app.place.FileSet);
    qs::ControlDataSave(r.app);
    EXPECT_EQ(r.Modified(r.app.place.FileSet), written);
    EXPECT_EQ(r.sys.FileBytes(r.app.place.FileSet), DefaultFixedFile);
}

TEST(RecordsSet, LoadingAndSavingUnchangedValuesLeavesTheFileUntouched) {
    RecordsApp r;
    const std::string bytes = "10\r\n49\r\n1200\r\n300\r\n\"D:\\Docs\\\"\r\n3\r\n-1\r\n12\r\n10\r\n4\r\n2\r\n";
    r.sys.PutFile(r.app.place.FileSet, bytes);
    const auto before = r.Age(r.app.place.FileSet);
    Get(r);
    qs::ControlDataSave(r.app);
    EXPECT_EQ(r.Modified(r.app.place.FileSet), before);
    EXPECT_EQ(r.sys.FileBytes(r.app.place.FileSet), bytes);
    EXPECT_TRUE(ShownMessages(r).empty());
}

TEST(RecordsSet, LoadFillsEveryWorkingVariable) {
    RecordsApp r;
    r.sys.PutFile(r.app.place.FileSet,
                  "10\r\n49\r\n1200\r\n300\r\n\"D:\\Docs\\\"\r\n3\r\n-1\r\n12\r\n10\r\n4\r\n2\r\n");
    Get(r);
    const auto& s = r.app.settings;
    EXPECT_EQ(s.OptionWord, 49);
    EXPECT_EQ(s.MainLeft, 1200);
    EXPECT_EQ(s.MainTop, 300);
    EXPECT_EQ(s.LastFolder, L"D:\\Docs\\");
    EXPECT_EQ(s.HDDFileLast, 3);
    EXPECT_EQ(s.HDDFolderLast, -1);
    EXPECT_EQ(s.HDDProgramLast, 12);
    EXPECT_EQ(s.FontSizeSetting, 10);
    EXPECT_EQ(s.QuickDefaultItem, 4);
    EXPECT_EQ(s.ThemeIndex, 2);
}

TEST(RecordsSet, MovingTheBarRewritesTheFile) {
    RecordsApp r;
    r.sys.PutFile(r.app.place.FileSet, DefaultFixedFile);
    Get(r);
    r.app.settings.MainLeft = 600;
    qs::ControlDataSave(r.app);
    EXPECT_EQ(r.sys.FileBytes(r.app.place.FileSet),
              "10\r\n57\r\n600\r\n0\r\n\"\"\r\n-1\r\n-1\r\n-1\r\n8\r\n2\r\n0\r\n");
}

TEST(RecordsSet, FileWithVersionSevenIsRewrittenAtLoadWithElevenValues) {
    RecordsApp r;
    r.sys.PutFile(r.app.place.FileSet, "7\r\n25\r\n900\r\n450\r\n\"C:\\Data\\\"\r\n5\r\n6\r\n7\r\n");
    Get(r);
    const auto& s = r.app.settings;
    EXPECT_EQ(s.FontSizeSetting, 8);
    EXPECT_EQ(s.QuickDefaultItem, 2);
    EXPECT_EQ(s.ThemeIndex, 0);
    EXPECT_EQ(s.OptionWord, 25);
    EXPECT_EQ(s.LastFolder, L"C:\\Data\\");
    EXPECT_EQ(r.sys.FileBytes(r.app.place.FileSet), "10\r\n25\r\n900\r\n450\r\n\"C:\\Data\\\"\r\n5\r\n6\r\n7\r\n8\r\n2\r\n0\r\n");
    const std::array<qs::RecordValue, 11> image = {Int(10), Int(25), Int(900), Int(450), Text(L"C:\\Data\\"), Int(5),
                                                   Int(6),  Int(7),  Int(8),   Int(2),   Int(0)};
    for (std::size_t i = 0; i < image.size(); ++i) EXPECT_EQ(s.SetRecord[i], image[i]) << i;
    EXPECT_TRUE(ShownMessages(r).empty());
}

TEST(RecordsSet, UpgradedFileIsNotWrittenAgainAtExit) {
    RecordsApp r;
    r.sys.PutFile(r.app.place.FileSet, "7\r\n25\r\n900\r\n450\r\n\"\"\r\n5\r\n6\r\n7\r\n");
    Get(r);
    const auto upgraded = r.Age(r.app.place.FileSet);
    qs::ControlDataSave(r.app);
    EXPECT_EQ(r.Modified(r.app.place.FileSet), upgraded);
}

TEST(RecordsSet, ShortVersionOnAFlashDriveTakesTheFlashDefaultOptionWord) {
    RecordsApp r(true);
    r.sys.PutFile(r.app.place.FileSet, "0\r\n");
    Get(r);
    EXPECT_EQ(r.app.settings.OptionWord, 56);
    EXPECT_EQ(r.app.settings.HDDFileLast, -1);
    EXPECT_EQ(r.sys.FileBytes(r.app.place.FileSet),
              "10\r\n56\r\n0\r\n0\r\n\"\"\r\n-1\r\n-1\r\n-1\r\n8\r\n2\r\n0\r\n");
}

TEST(RecordsSet, FlashDriveRunStartsWith56AndWritesNoRegistryValue) {
    RecordsApp r(true);
    Get(r);
    EXPECT_EQ(r.app.settings.OptionWord, 56);
    EXPECT_TRUE(r.sys.registry.empty());
}

TEST(RecordsSet, FixedDiskRunStartsWith57AndWritesTheRegistryValue) {
    RecordsApp r;
    Get(r);
    EXPECT_EQ(r.app.settings.OptionWord, 57);
    ASSERT_EQ(r.sys.registry.count(RunValue), 1u);
    EXPECT_EQ(r.sys.registry[RunValue], L"C:\\Tools\\Quillstart.exe");
}

TEST(RecordsSet, MissingFileGivesTheDefaultsOfAFirstRun) {
    RecordsApp r;
    Get(r);
    const auto& s = r.app.settings;
    EXPECT_EQ(s.MainLeft, 0);
    EXPECT_EQ(s.MainTop, 0);
    EXPECT_EQ(s.LastFolder, L"");
    EXPECT_EQ(s.HDDFileLast, -1);
    EXPECT_EQ(s.HDDFolderLast, -1);
    EXPECT_EQ(s.HDDProgramLast, -1);
    EXPECT_EQ(s.FontSizeSetting, 8);
    EXPECT_EQ(s.QuickDefaultItem, 2);
    EXPECT_EQ(s.ThemeIndex, 0);
    EXPECT_TRUE(ShownMessages(r).empty());
}

TEST(RecordsSet, MissingFileWritesTheAutostartValueAgain) {
    RecordsApp r;
    r.sys.registry[RunValue] = L"C:\\Old\\Quillstart.exe";
    Get(r);
    EXPECT_EQ(r.sys.registry[RunValue], L"C:\\Tools\\Quillstart.exe");
}

TEST(RecordsSet, CreateNowLeavesTheImageEmptyAndWritesNoFile) {
    RecordsApp r;
    bool onRemovable = false;
    qs::ControlDataCreateNow(r.app, onRemovable);
    for (const auto& value : r.app.settings.SetRecord) EXPECT_FALSE(value.has_value());
    EXPECT_FALSE(r.sys.FileExists(r.app.place.FileSet));
}

TEST(RecordsSet, CreateNowTakesTheOptionWordFromItsArgument) {
    RecordsApp r;
    bool onRemovable = true;
    qs::ControlDataCreateNow(r.app, onRemovable);
    EXPECT_EQ(r.app.settings.OptionWord, 56);
    EXPECT_TRUE(r.sys.registry.empty());
}

TEST(RecordsSet, FlashDriveFileAlwaysHoldsAnEmptyLastFolder) {
    RecordsApp r(true);
    Get(r);
    r.app.settings.LastFolder = L"E:\\Photos\\";
    qs::ControlDataSave(r.app);
    EXPECT_EQ(r.sys.FileBytes(r.app.place.FileSet),
              "10\r\n56\r\n0\r\n0\r\n\"\"\r\n-1\r\n-1\r\n-1\r\n8\r\n2\r\n0\r\n");
    r.app.settings.LastFolder = L"E:\\Music\\";
    const auto before = r.Age(r.app.place.FileSet);
    qs::ControlDataSave(r.app);
    EXPECT_EQ(r.Modified(r.app.place.FileSet), before);
    EXPECT_EQ(r.app.settings.LastFolder, L"");
}

TEST(RecordsSet, FixedDiskFileHoldsTheLastFolder) {
    RecordsApp r;
    Get(r);
    r.app.settings.LastFolder = L"C:\\Photos\\";
    qs::ControlDataSave(r.app);
    EXPECT_NE(r.sys.FileBytes(r.app.place.FileSet).find("\r\n\"C:\\Photos\\\"\r\n"), std::string::npos);
}

TEST(RecordsSet, OptionWordZeroIsLegal) {
    RecordsApp r;
    r.sys.PutFile(r.app.place.FileSet, "10\r\n0\r\n0\r\n0\r\n\"\"\r\n-1\r\n-1\r\n-1\r\n8\r\n2\r\n0\r\n");
    Get(r);
    EXPECT_EQ(r.app.settings.OptionWord, 0);
    EXPECT_TRUE(ShownMessages(r).empty());
    qs::AtStartsavedOptions(r.app, r.app.settings.OptionWord);
    const auto& s = r.app.settings;
    for (const std::int16_t flag : {s.OptionStartWithWindows, s.OptionShowAddUrlBox, s.OptionStartMinimized,
                                    s.OptionAddUrlFontBold, s.OptionMainFontBold, s.OptionAlwaysOnTop})
        EXPECT_EQ(flag, 0);
}

TEST(RecordsSet, FontSizeFiveIsKeptAsFiveInTheRecord) {
    RecordsApp r;
    const std::string bytes = "10\r\n57\r\n0\r\n0\r\n\"\"\r\n-1\r\n-1\r\n-1\r\n5\r\n2\r\n0\r\n";
    r.sys.PutFile(r.app.place.FileSet, bytes);
    Get(r);
    EXPECT_EQ(r.app.settings.FontSizeSetting, 5);
    qs::ControlDataSave(r.app);
    EXPECT_EQ(r.sys.FileBytes(r.app.place.FileSet), bytes);
}

TEST(RecordsSet, StoredPositionEndsAt32767Twips) {
    RecordsApp r;
    Get(r);
    r.app.settings.MainLeft = 32767;
    r.app.settings.MainTop = 32767;
    qs::ControlDataSave(r.app);
    RecordsApp again;
    again.sys.PutFile(again.app.place.FileSet, r.sys.FileBytes(r.app.place.FileSet));
    Get(again);
    EXPECT_EQ(again.app.settings.MainLeft, 32767);
    EXPECT_EQ(again.app.settings.MainTop, 32767);
}

TEST(RecordsSet, PositionBeyond32767InTheFileIsABug) {
    RecordsApp r;
    r.sys.PutFile(r.app.place.FileSet, "10\r\n57\r\n32768\r\n0\r\n\"\"\r\n-1\r\n-1\r\n-1\r\n8\r\n2\r\n0\r\n");
    Get(r);
    EXPECT_TRUE(BugShown(r, L"Quillstart:Bug:ControlDataGet"));
    EXPECT_EQ(r.app.settings.OptionWord, 57);
    EXPECT_EQ(r.app.settings.MainLeft, 0);
}

TEST(RecordsSet, ShortFileIsABugKeepsWhatWasReadAndLeavesTheRestZero) {
    RecordsApp r;
    const std::string bytes = "10\r\n49\r\n700\r\n80\r\n\"C:\\A\\\"\r\n4\r\n";
    r.sys.PutFile(r.app.place.FileSet, bytes);
    Get(r);
    const auto& s = r.app.settings;
    EXPECT_TRUE(BugShown(r, L"Quillstart:Bug:ControlDataGet"));
    EXPECT_EQ(s.OptionWord, 49);
    EXPECT_EQ(s.MainLeft, 700);
    EXPECT_EQ(s.MainTop, 80);
    EXPECT_EQ(s.LastFolder, L"C:\\A\\");
    EXPECT_EQ(s.HDDFileLast, 4);
    EXPECT_EQ(s.HDDFolderLast, 0);
    EXPECT_EQ(s.HDDProgramLast, 0);
    EXPECT_EQ(s.FontSizeSetting, 0);
    EXPECT_EQ(s.QuickDefaultItem, 0);
    EXPECT_EQ(s.ThemeIndex, 0);
    EXPECT_EQ(s.SetRecord[0], Int(10));
    EXPECT_EQ(s.SetRecord[4], Text(L"C:\\A\\"));
    EXPECT_EQ(s.SetRecord[5], Int(4));
    for (std::size_t i = 6; i < s.SetRecord.size(); ++i) EXPECT_FALSE(s.SetRecord[i].has_value()) << i;
    EXPECT_EQ(r.sys.FileBytes(r.app.place.FileSet), bytes);
}

TEST(RecordsSet, ShortFileIsRewrittenWholeAtTheNextExit) {
    RecordsApp r;
    r.sys.PutFile(r.app.place.FileSet, "10\r\n49\r\n700\r\n80\r\n\"C:\\A\\\"\r\n4\r\n");
    Get(r);
    qs::ControlDataSave(r.app);
    EXPECT_EQ(r.sys.FileBytes(r.app.place.FileSet),
              "10\r\n49\r\n700\r\n80\r\n\"C:\\A\\\"\r\n4\r\n0\r\n0\r\n0\r\n0\r\n0\r\n");
}

TEST(RecordsSet, VersionAboveTenReadsElevenValuesAndIgnoresTheRest) {
    RecordsApp r;
    const std::string bytes = "12\r\n57\r\n10\r\n20\r\n\"\"\r\n1\r\n2\r\n3\r\n12\r\n5\r\n3\r\n99\r\n\"extra\"\r\n";
    r.sys.PutFile(r.app.place.FileSet, bytes);
    const auto before = r.Age(r.app.place.FileSet);
    Get(r);
    const auto& s = r.app.settings;
    EXPECT_TRUE(ShownMessages(r).empty());
    EXPECT_EQ(s.ThemeIndex, 3);
    EXPECT_EQ(s.QuickDefaultItem, 5);
    ASSERT_TRUE(s.SetRecord[0].has_value());
    EXPECT_EQ(*s.SetRecord[0], qs::RecordValue(std::int16_t{10}));
    qs::ControlDataSave(r.app);
    EXPECT_EQ(r.Modified(r.app.place.FileSet), before);
    EXPECT_EQ(r.sys.FileBytes(r.app.place.FileSet), bytes);
}

TEST(RecordsSet, TextInANumberFieldIsABugLikeAShortFile) {
    RecordsApp r;
    const std::string bytes = "10\r\n57\r\n100\r\nleft\r\n\"\"\r\n-1\r\n-1\r\n-1\r\n8\r\n2\r\n0\r\n";
    r.sys.PutFile(r.app.place.FileSet, bytes);
    Get(r);
    EXPECT_TRUE(BugShown(r, L"Quillstart:Bug:ControlDataGet"));
    EXPECT_EQ(r.app.settings.MainLeft, 100);
    EXPECT_EQ(r.app.settings.MainTop, 0);
    EXPECT_EQ(r.app.settings.HDDFileLast, 0);
    EXPECT_EQ(r.app.settings.SetRecord[2], Int(100));
    EXPECT_FALSE(r.app.settings.SetRecord[3].has_value());
    EXPECT_EQ(r.sys.FileBytes(r.app.place.FileSet), bytes);
}

TEST(RecordsSet, FailedWriteIsABugAndTheFileKeepsWhatItHeld) {
    RecordsApp r;
    r.sys.PutFile(r.app.place.FileSet, DefaultFixedFile);
    Get(r);
    r.app.settings.MainTop = 120;
    r.sys.readOnlyPrefixes.push_back(L"C:\\Morvane\\");
    qs::ControlDataSave(r.app);
    EXPECT_TRUE(BugShown(r, L"Quillstart:Bug:ControlDataSave"));
    EXPECT_EQ(r.sys.FileBytes(r.app.place.FileSet), DefaultFixedFile);
    // The image took the new values before the write, so the next save
    // finds nothing to write.
    EXPECT_EQ(r.app.settings.SetRecord[3], Int(120));
}

TEST(RecordsSet, UnreadableFileIsABug) {
    RecordsApp r;
    r.sys.PutFile(r.app.place.FileSet, "");
    Get(r);
    EXPECT_TRUE(BugShown(r, L"Quillstart:Bug:ControlDataGet"));
}

TEST(RecordsSet, AddNewBelowTheFirstValueIsABug) {
    RecordsApp r;
    qs::ControlDataAddNew(r.app, -3);
    EXPECT_TRUE(BugShown(r, L"Quillstart:Bug:ControlDataAddNew"));
}

TEST(RecordsSet, AddNewCompletesOnlyTheValuesAfterTheVersion) {
    RecordsApp r;
    r.app.settings.MainLeft = 77;
    r.app.settings.LastFolder = L"C:\\Kept\\";
    qs::ControlDataAddNew(r.app, 4);
    const auto& s = r.app.settings;
    EXPECT_EQ(s.MainLeft, 77);
    EXPECT_EQ(s.LastFolder, L"C:\\Kept\\");
    EXPECT_EQ(s.HDDFileLast, -1);
    EXPECT_EQ(s.FontSizeSetting, 8);
    EXPECT_FALSE(s.SetRecord[4].has_value());
    ASSERT_TRUE(s.SetRecord[5].has_value());
    EXPECT_EQ(*s.SetRecord[5], qs::RecordValue(std::int16_t{-1}));
}

}  // namespace
