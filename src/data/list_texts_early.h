#pragma once
// The list files' texts, read from the program's first instruction on a
// thread of its own, while the process is still connecting to the display
// and before start-up has decided where its data lies or which files its
// list load reads. The thread works out the place the way start-up will
// (the program's folder, its drive's type, the Windows folder and the
// computer's name), and reads the list files of that place, in the load's
// order, whole. The load takes a file's text from here when it was read
// from the very path the load reads, and reads the file itself otherwise:
// a guess that start-up later corrects costs nothing but the reading.
#include <condition_variable>
#include <cstddef>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

namespace qs {

class System;

class EarlyListTexts {
public:
    // Starts the thread; only `sys` is used off the calling thread.
    explicit EarlyListTexts(System& sys);
    EarlyListTexts(const EarlyListTexts&) = delete;
    EarlyListTexts& operator=(const EarlyListTexts&) = delete;
    // Stops after the file being read, if any, and waits for the thread.
    ~EarlyListTexts();

    // The text of the file at `path`, read early, handed over once: waits
    // while that file is being read; nothing when the path is not one read
    // early, had no file, could not be read, or has been taken. A path not
    // yet reached is taken from the thread, which then skips it, so the
    // caller never waits for files before it.
    std::optional<std::wstring> Take(const std::wstring& path);

    // The paths the thread reads, in order, once it has worked them out.
    std::vector<std::wstring> Paths();

private:
    enum class State { Waiting, Reading, Read, Skipped };
    struct File {
        std::wstring path;
        State state = State::Waiting;
        std::optional<std::wstring> text;
    };

    void Run();
    // The list files of the place the program finds itself in.
    std::vector<std::wstring> FindPaths();
    // The next file in order still waiting, claimed for reading; null when
    // none is left or the reading is to stop.
    File* ClaimNext();

    System& sys_;
    std::mutex mutex_;
    std::condition_variable changed_;
    bool pathsKnown_ = false;
    bool stopping_ = false;
    std::vector<File> files_;
    std::thread thread_;
};

}  // namespace qs
