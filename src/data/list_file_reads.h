#pragma once
// The files of one list load: read and walked, in the load's order, on the
// thread that asks for them, which tells whether a file breaks off without
// making a single record; then, once the tests are allowed, made into
// records and tested on a thread of their own, which asks the system, in
// one bulk call per file, whether the File, Folder and Program targets are
// there. No thread is made before: under Wine a second thread in the
// process, even one long ended, makes the first window's making slower by
// more than the walks take, and the tests wait until the windows shown
// first are drawn so as to take no core from them. A thread that waits for
// the answers or the records allows the tests and makes and tests files
// itself beside the testing thread.
#include <atomic>
#include <condition_variable>
#include <cstddef>
#include <exception>
#include <functional>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

#include "data/list_file_read.h"

namespace qs {

class ListFileReads {
public:
    // Takes the files of the load as the settings stand now; `finished`
    // is called once, on the thread that found the last answer, when every
    // answer is in. Only the program's place and the system are used off the
    // window thread, and neither changes while a load is under way; the
    // system's bulk tests may run on two threads at once.
    ListFileReads(const Application& app, std::function<void()> finished);
    ListFileReads(const ListFileReads&) = delete;
    ListFileReads& operator=(const ListFileReads&) = delete;
    // Waits for the thread.
    ~ListFileReads();

    const std::vector<ListFileOfLoad>& Files() const { return files_; }
    // Starts the thread that makes the records and tests the targets; until
    // then nothing is made or tested. Waiting for answers allows it too.
    void AllowTests();
    // Whether a file is there, and the failure its records break off with.
    struct Walk {
        bool exists = false;
        std::exception_ptr failure;
    };
    // Reads and walks the files up to `i` not yet read, here, and waits
    // for one being read by another thread; throws what the reading threw.
    Walk Walked(std::size_t i);
    // Waits until file `i` is read, and makes its records here unless they
    // are made already: its records, or none when there was no such file;
    // throws what the reading threw.
    const std::optional<ReadRecords>& Records(std::size_t i);
    // Waits until every answer is in, testing files meanwhile.
    void Wait();
    // Waits until the answers for file `i` are in, making its records and
    // testing it here when no thread has taken it yet; the answers of other
    // files are not awaited.
    void WaitFor(std::size_t i);
    // After Wait: the answers for the targets of file `i`, a File, Folder or
    // Program file that was read; throws what the system threw.
    const std::vector<bool>& Passes(std::size_t i) const;

private:
    struct Slot {
        // The file as read and walked, until its records are made.
        std::optional<WalkedListFile> walked;
        Walk walk;
        std::exception_ptr readFailure;
        std::once_flag made;
        std::optional<ReadRecords> records;
        std::exception_ptr makeFailure;
        std::vector<bool> passes;
        std::exception_ptr testFailure;
    };

    void Run();
    // Takes the next file not yet taken and reads it; false when none is left.
    bool ReadUntakenFile();
    void WaitUntilAllRead();
    void Read(std::size_t i);
    // Makes the records of a file read, once, on whichever thread asks first.
    void Make(std::size_t i);
    void Test(std::size_t i);
    // Tests file after file not yet taken by another thread, until none is left.
    void TestUntakenFiles();
    // Takes the first file not yet taken for testing and tests it; false
    // when none is left.
    bool TestUntakenFile();
    // Takes file `i` for testing; false when another thread has.
    bool Take(std::size_t i);
    // Tests a file taken and tells its answers, and the end after the last.
    void TestTaken(std::size_t i);

    const Application& app_;
    std::vector<ListFileOfLoad> files_;
    std::vector<bool> onFixedDisk_;
    std::vector<Slot> slots_;
    std::function<void()> finished_;
    std::mutex mutex_;
    std::condition_variable fileRead_;
    // Which files are read, and how many; the next file to be taken for reading.
    std::vector<bool> read_;
    std::size_t filesRead_ = 0;
    std::atomic<std::size_t> nextRead_ = 0;
    bool testsAllowed_ = false;
    // Which files are taken for testing and which have their answers, and
    // how many are not yet answered.
    std::vector<bool> taken_;
    std::vector<bool> answered_;
    std::condition_variable fileAnswered_;
    std::atomic<std::size_t> filesLeft_;
    std::thread thread_;
};

}  // namespace qs
