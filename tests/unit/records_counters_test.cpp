// "COMData.Morvane" and "USBData.Morvane": the list counters, their images,
// short and long files, and the save that writes only what differs.
#include <gtest/gtest.h>

#include "data/control_data.h"
#include "records_app.h"
#include "shown_messages.h"

namespace {

using qs::test::BugShown;
using qs::test::RecordsApp;
using qs::test::ShownMessages;

TEST(RecordsCounters, MissingComDataGivesCountersOfMinusOne) {
    RecordsApp r;
    qs::ControlComDataGet(r.app);
    EXPECT_EQ(r.app.settings.EmailLast, -1);
    EXPECT_EQ(r.app.settings.WebLast, -1);
    EXPECT_EQ(r.app.settings.ComDataRecord, (std::array<std::int16_t, 3>{0, 0, 0}));
    EXPECT_TRUE(ShownMessages(r).empty());
}

TEST(RecordsCounters, MissingComDataIsWrittenAtTheNextSave) {
    RecordsApp r;
    qs::ControlComDataGet(r.app);
    qs::ControlComDataSave(r.app);
    EXPECT_EQ(r.sys.FileBytes(r.app.place.FileComData), "2\r\n-1\r\n-1\r\n");
}

TEST(RecordsCounters, ComDataLoadsAndAnUnchangedSaveLeavesItUntouched) {
    RecordsApp r;
    r.sys.PutFile(r.app.place.FileComData, "2\r\n4\r\n17\r\n");
    const auto before = r.Age(r.app.place.FileComData);
    qs::ControlComDataGet(r.app);
    EXPECT_EQ(r.app.settings.EmailLast, 4);
    EXPECT_EQ(r.app.settings.WebLast, 17);
    qs::ControlComDataSave(r.app);
    EXPECT_EQ(r.Modified(r.app.place.FileComData), before);
    EXPECT_EQ(r.sys.FileBytes(r.app.place.FileComData), "2\r\n4\r\n17\r\n");
}

TEST(RecordsCounters, ComDataChangedCounterIsWritten) {
    RecordsApp r;
    r.sys.PutFile(r.app.place.FileComData, "2\r\n4\r\n17\r\n");
    qs::ControlComDataGet(r.app);
    r.app.settings.WebLast = 18;
    qs::ControlComDataSave(r.app);
    EXPECT_EQ(r.sys.FileBytes(r.app.place.FileComData), "2\r\n4\r\n18\r\n");
    EXPECT_EQ(r.app.settings.ComDataRecord, (std::array<std::int16_t, 3>{2, 4, 18}));
}

TEST(RecordsCounters, ComDataVersionAboveTwoOverrunsTheImageAndKeepsTheCountersRead) {
    RecordsApp r;
    r.sys.PutFile(r.app.place.FileComData, "5\r\n3\r\n9\r\n1\r\n1\r\n1\r\n");
    qs::ControlComDataGet(r.app);
    EXPECT_TRUE(BugShown(r, L"Quillstart:Bug:ControlComDataGet"));
    EXPECT_EQ(r.app.settings.EmailLast, 3);
    EXPECT_EQ(r.app.settings.WebLast, 9);
    EXPECT_EQ(r.app.settings.ComDataRecord, (std::array<std::int16_t, 3>{5, 3, 9}));
}

TEST(RecordsCounters, ShortComDataKeepsTheUnreadCounterAtZeroAndIsNotRewrittenAtOnce) {
    RecordsApp r;
    const std::string bytes = "1\r\n6\r\n";
    r.sys.PutFile(r.app.place.FileComData, bytes);
    qs::ControlComDataGet(r.app);
    EXPECT_TRUE(ShownMessages(r).empty());
    EXPECT_EQ(r.app.settings.EmailLast, 6);
    EXPECT_EQ(r.app.settings.WebLast, 0);
    EXPECT_EQ(r.app.settings.ComDataRecord, (std::array<std::int16_t, 3>{2, 6, 0}));
    EXPECT_EQ(r.sys.FileBytes(r.app.place.FileComData), bytes);
}

TEST(RecordsCounters, UpgradedComDataIsWrittenAtExitWhenTheCountersDiffer) {
    RecordsApp r;
    r.sys.PutFile(r.app.place.FileComData, "1\r\n6\r\n");
    qs::ControlComDataGet(r.app);
    r.app.settings.WebLast = -1;
    qs::ControlComDataSave(r.app);
    EXPECT_EQ(r.sys.FileBytes(r.app.place.FileComData), "2\r\n6\r\n-1\r\n");
}

TEST(RecordsCounters, ComDataAddNewTakesTheCountersAsTheyStand) {
    RecordsApp r;
    r.app.settings.EmailLast = 8;
    r.app.settings.WebLast = 9;
    qs::ControlComDataAddNew(r.app, 0);
    EXPECT_EQ(r.app.settings.ComDataRecord, (std::array<std::int16_t, 3>{2, 8, 9}));
    EXPECT_EQ(r.app.settings.EmailLast, 8);
}

TEST(RecordsCounters, ComDataTextInANumberFieldIsABug) {
    RecordsApp r;
    r.sys.PutFile(r.app.place.FileComData, "2\r\nmany\r\n3\r\n");
    qs::ControlComDataGet(r.app);
    EXPECT_TRUE(BugShown(r, L"Quillstart:Bug:ControlComDataGet"));
    EXPECT_EQ(r.app.settings.EmailLast, 0);
}

TEST(RecordsCounters, ComDataFailedWriteIsABug) {
    RecordsApp r;
    qs::ControlComDataGet(r.app);
    r.sys.readOnlyPrefixes.push_back(L"C:\\Morvane\\");
    qs::ControlComDataSave(r.app);
    EXPECT_TRUE(BugShown(r, L"Quillstart:Bug:ControlComDataSave"));
    EXPECT_FALSE(r.sys.FileExists(r.app.place.FileComData));
}

TEST(RecordsCounters, MissingUSBDataGivesCountersOfMinusOne) {
    RecordsApp r(true);
    qs::ControlUSBDataGet(r.app);
    EXPECT_EQ(r.app.settings.USBFileLast, -1);
    EXPECT_EQ(r.app.settings.USBFolderLast, -1);
    EXPECT_EQ(r.app.settings.USBProgramLast, -1);
    qs::ControlUSBDataSave(r.app);
    EXPECT_EQ(r.sys.FileBytes(r.app.place.FileUsbData), "3\r\n-1\r\n-1\r\n-1\r\n");
}

TEST(RecordsCounters, USBDataLoadsAndAnUnchangedSaveLeavesItUntouched) {
    RecordsApp r(true);
    r.sys.PutFile(r.app.place.FileUsbData, "3\r\n2\r\n-1\r\n30\r\n");
    const auto before = r.Age(r.app.place.FileUsbData);
    qs::ControlUSBDataGet(r.app);
    EXPECT_EQ(r.app.settings.USBFileLast, 2);
    EXPECT_EQ(r.app.settings.USBFolderLast, -1);
    EXPECT_EQ(r.app.settings.USBProgramLast, 30);
    qs::ControlUSBDataSave(r.app);
    EXPECT_EQ(r.Modified(r.app.place.FileUsbData), before);
}

TEST(RecordsCounters, USBDataVersionAboveThreeReadsFourValuesAndIgnoresTheRest) {
    RecordsApp r(true);
    r.sys.PutFile(r.app.place.FileUsbData, "6\r\n1\r\n2\r\n3\r\nnot read\r\n");
    qs::ControlUSBDataGet(r.app);
    EXPECT_TRUE(ShownMessages(r).empty());
    EXPECT_EQ(r.app.settings.USBFileLast, 1);
    EXPECT_EQ(r.app.settings.USBFolderLast, 2);
    EXPECT_EQ(r.app.settings.USBProgramLast, 3);
    EXPECT_EQ(r.app.settings.USBDataRecord, (std::array<std::int16_t, 4>{6, 1, 2, 3}));
    qs::ControlUSBDataSave(r.app);
    EXPECT_EQ(r.sys.FileBytes(r.app.place.FileUsbData), "3\r\n1\r\n2\r\n3\r\n");
}

TEST(RecordsCounters, ShortUSBDataKeepsTheUnreadCountersAtZero) {
    RecordsApp r(true);
    r.sys.PutFile(r.app.place.FileUsbData, "1\r\n5\r\n");
    qs::ControlUSBDataGet(r.app);
    EXPECT_EQ(r.app.settings.USBFileLast, 5);
    EXPECT_EQ(r.app.settings.USBFolderLast, 0);
    EXPECT_EQ(r.app.settings.USBProgramLast, 0);
    EXPECT_EQ(r.app.settings.USBDataRecord, (std::array<std::int16_t, 4>{3, 5, 0, 0}));
    EXPECT_EQ(r.sys.FileBytes(r.app.place.FileUsbData), "1\r\n5\r\n");
}

TEST(RecordsCounters, ShortUSBDataReadPastItsEndIsABug) {
    RecordsApp r(true);
    r.sys.PutFile(r.app.place.FileUsbData, "3\r\n5\r\n");
    qs::ControlUSBDataGet(r.app);
    EXPECT_TRUE(BugShown(r, L"Quillstart:Bug:ControlUSBDataGet"));
    EXPECT_EQ(r.app.settings.USBFileLast, 5);
    EXPECT_EQ(r.app.settings.USBFolderLast, 0);
}

TEST(RecordsCounters, USBDataFailedWriteIsABugAndTheFileKeepsWhatItHeld) {
    RecordsApp r(true);
    r.sys.PutFile(r.app.place.FileUsbData, "3\r\n2\r\n-1\r\n30\r\n");
    qs::ControlUSBDataGet(r.app);
    r.app.settings.USBFileLast = 3;
    r.sys.readOnlyPrefixes.push_back(L"E:\\");
    qs::ControlUSBDataSave(r.app);
    EXPECT_TRUE(BugShown(r, L"Quillstart:Bug:ControlUSBDataSave"));
    EXPECT_EQ(r.sys.FileBytes(r.app.place.FileUsbData), "3\r\n2\r\n-1\r\n30\r\n");
}

TEST(RecordsCounters, AddNewBelowTheFirstValueIsABug) {
    RecordsApp r(true);
    qs::ControlUSBDataAddNew(r.app, -2);
    qs::ControlComDataAddNew(r.app, -5);
    EXPECT_TRUE(BugShown(r, L"Quillstart:Bug:ControlUSBDataAddNew"));
    EXPECT_TRUE(BugShown(r, L"Quillstart:Bug:ControlComDataAddNew"));
}

TEST(RecordsCounters, ExitWithNothingChangedLeavesAllThreeFilesUntouched) {
    RecordsApp r(true);
    const std::string set = "10\r\n56\r\n0\r\n0\r\n\"\"\r\n-1\r\n-1\r\n-1\r\n8\r\n2\r\n0\r\n";
    r.sys.PutFile(r.app.place.FileSet, set);
    r.sys.PutFile(r.app.place.FileComData, "2\r\n0\r\n1\r\n");
    r.sys.PutFile(r.app.place.FileUsbData, "3\r\n0\r\n0\r\n0\r\n");
    const auto setTime = r.Age(r.app.place.FileSet);
    const auto comTime = r.Age(r.app.place.FileComData);
    const auto usbTime = r.Age(r.app.place.FileUsbData);
    qs::ControlComDataGet(r.app);
    qs::ControlDataGet(r.app, r.app.place.OnRemovable);
    qs::ControlUSBDataGet(r.app);
    qs::ControlUSBDataSave(r.app);
    qs::ControlDataSave(r.app);
    qs::ControlComDataSave(r.app);
    EXPECT_EQ(r.Modified(r.app.place.FileSet), setTime);
    EXPECT_EQ(r.Modified(r.app.place.FileComData), comTime);
    EXPECT_EQ(r.Modified(r.app.place.FileUsbData), usbTime);
    EXPECT_TRUE(ShownMessages(r).empty());
}

TEST(RecordsCounters, FirstExitOnAFixedDiskWritesNoUSBData) {
    RecordsApp r;
    qs::ControlComDataGet(r.app);
    qs::ControlDataGet(r.app, r.app.place.OnRemovable);
    qs::ControlDataSave(r.app);
    qs::ControlComDataSave(r.app);
    EXPECT_TRUE(r.sys.FileExists(r.app.place.FileSet));
    EXPECT_TRUE(r.sys.FileExists(r.app.place.FileComData));
    EXPECT_FALSE(r.sys.FileExists(r.app.place.FileUsbData));
}

}  // namespace
