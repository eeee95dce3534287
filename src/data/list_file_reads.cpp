#include "data/list_file_reads.h"

#include <stdexcept>
#include <system_error>

#include "common/application.h"
#include "common/startup_marks.h"

namespace qs {

namespace {

bool Tested(const ListFileOfLoad& file) { return file.group < 3; }

}  // namespace

ListFileReads::ListFileReads(const Application& app, std::function<void()> finished)
    : app_(app),
      files_(ListFilesOfLoad(app)),
      onFixedDisk_(ListFilesOnFixedDisk(app, files_)),
      slots_(files_.size()),
      finished_(std::move(finished)),
      read_(files_.size(), false),
      taken_(files_.size(), false),
      answered_(files_.size(), false),
      filesLeft_(files_.size()) {
    if (!files_.empty()) return;
    // Without a list file there is nothing to wait for.
    marks::Mark("list files read");
    if (finished_) finished_();
}

ListFileReads::~ListFileReads() { Wait(); }

void ListFileReads::Run() {
    // The files the load has not asked for yet are read here first.
    while (ReadUntakenFile()) {
    }
    WaitUntilAllRead();
    TestUntakenFiles();
}

void ListFileReads::AllowTests() {
    {
        const std::lock_guard<std::mutex> lock(mutex_);
        if (testsAllowed_) return;
        testsAllowed_ = true;
    }
    marks::Mark("list tests allowed");
    if (files_.empty()) return;
    try {
        thread_ = std::thread([this] { Run(); });
    } catch (const std::system_error&) {
        // No thread to be had: whoever waits for the answers tests the files.
    }
}

bool ListFileReads::ReadUntakenFile() {
    const std::size_t i = nextRead_.fetch_add(1);
    if (i >= files_.size()) return false;
    Read(i);
    bool all = false;
    {
        const std::lock_guard<std::mutex> lock(mutex_);
        read_[i] = true;
        all = ++filesRead_ == files_.size();
    }
    fileRead_.notify_all();
    if (all) marks::Mark("list files read");
    return true;
}

void ListFileReads::WaitUntilAllRead() {
    std::unique_lock<std::mutex> lock(mutex_);
    fileRead_.wait(lock, [this] { return filesRead_ == files_.size(); });
}

void ListFileReads::TestUntakenFiles() {
    while (TestUntakenFile()) {
    }
}

bool ListFileReads::TestUntakenFile() {
    for (std::size_t i = 0; i < files_.size(); ++i) {
        if (!Take(i)) continue;
        TestTaken(i);
        return true;
    }
    return false;
}

bool ListFileReads::Take(std::size_t i) {
    const std::lock_guard<std::mutex> lock(mutex_);
    if (taken_[i]) return false;
    taken_[i] = true;
    return true;
}

void ListFileReads::TestTaken(std::size_t i) {
    Make(i);
    if (Tested(files_[i]) && slots_[i].records) Test(i);
    {
        const std::lock_guard<std::mutex> lock(mutex_);
        answered_[i] = true;
    }
    fileAnswered_.notify_all();
    // Whoever answers the last file tells the end.
    if (filesLeft_.fetch_sub(1) == 1) {
        marks::Mark("list targets tested");
        if (finished_) finished_();
    }
}

void ListFileReads::WaitFor(std::size_t i) {
    if (i >= files_.size()) throw std::out_of_range("ListFileReads::WaitFor");
    AllowTests();
    // The files are read first, as the testing needs them; then the waiting
    // thread tests this file itself unless another thread has taken it,
    // and waits for no other file's answers.
    while (ReadUntakenFile()) {
    }
    WaitUntilAllRead();
    if (Take(i)) TestTaken(i);
    std::unique_lock<std::mutex> lock(mutex_);
    fileAnswered_.wait(lock, [this, i] { return answered_[i]; });
}

void ListFileReads::Read(std::size_t i) {
    Slot& slot = slots_[i];
    try {
        slot.walked = WalkListFile(app_, files_[i], onFixedDisk_[i]);
        if (slot.walked) slot.walk = {true, slot.walked->failure};
    } catch (...) {
        slot.readFailure = std::current_exception();
    }
}

void ListFileReads::Make(std::size_t i) {
    Slot& slot = slots_[i];
    std::call_once(slot.made, [this, i, &slot] {
        if (!slot.walked) return;
        try {
            slot.records = MakeRecords(app_, files_[i], *slot.walked);
        } catch (...) {
            slot.makeFailure = std::current_exception();
        }
        // The records hold their own copies of the texts.
        slot.walked.reset();
    });
}

void ListFileReads::Test(std::size_t i) {
    Slot& slot = slots_[i];
    try {
        const std::vector<std::wstring_view> targets = TargetViews(slot.records->targets);
        slot.passes = files_[i].group == 1 ? app_.sys.FoldersExist(targets) : app_.sys.FilesExist(targets);
    } catch (...) {
        slot.testFailure = std::current_exception();
    }
}

const std::optional<ReadRecords>& ListFileReads::Records(std::size_t i) {
    Walked(i);
    Make(i);
    const Slot& slot = slots_[i];
    if (slot.makeFailure) std::rethrow_exception(slot.makeFailure);
    return slot.records;
}

ListFileReads::Walk ListFileReads::Walked(std::size_t i) {
    // Asked of a file the load does not read, this throws rather than waits.
    const Slot& slot = slots_.at(i);
    for (;;) {
        {
            std::unique_lock<std::mutex> lock(mutex_);
            if (read_[i]) break;
            // While a file is left untaken, the asking thread reads the
            // next one itself, in the load's order; with none left, the
            // file the testing thread is reading is waited for.
            if (nextRead_.load() >= files_.size()) {
                fileRead_.wait(lock, [this, i] { return read_[i]; });
                break;
            }
        }
        ReadUntakenFile();
    }
    if (slot.readFailure) std::rethrow_exception(slot.readFailure);
    return slot.walk;
}

void ListFileReads::Wait() {
    // The waiting thread has nothing else to do: it reads and then tests
    // the files the testing thread has not taken yet, on a core of its own.
    AllowTests();
    while (ReadUntakenFile()) {
    }
    WaitUntilAllRead();
    TestUntakenFiles();
    if (thread_.joinable()) thread_.join();
}

const std::vector<bool>& ListFileReads::Passes(std::size_t i) const {
    const Slot& slot = slots_.at(i);
    if (slot.testFailure) std::rethrow_exception(slot.testFailure);
    return slot.passes;
}

}  // namespace qs
