#pragma once
// The target tests of a list load, run on threads of their own so that the
// bar can show while the system answers. Each list file's targets form one
// batch, asked of the system in one bulk call; batches run side by side.
// The system's bulk existence tests are the only calls made off the window
// thread, and the batches' targets are not touched by anyone else until the
// answers are in.
#include <cstddef>
#include <cstdint>
#include <exception>
#include <functional>
#include <string_view>
#include <thread>
#include <vector>

namespace qs {

class System;

class TargetTests {
public:
    TargetTests() = default;
    TargetTests(const TargetTests&) = delete;
    TargetTests& operator=(const TargetTests&) = delete;
    // Waits for the answers still being worked out.
    ~TargetTests();

    // Adds one file's targets, tested as folders (group 1) or as files;
    // returns the batch's number. The texts must stay until Wait. Only
    // before Start.
    std::size_t Add(std::int16_t group, std::vector<std::wstring_view> targets);
    // Starts one thread per batch; `finished` is called once, on the thread
    // that ends last, when every answer is in.
    void Start(System& sys, std::function<void()> finished);
    // Waits until every answer is in.
    void Wait();
    // The answers of one batch, in the order of its targets; throws what the
    // system threw while answering it. After Wait.
    const std::vector<bool>& Passes(std::size_t batch) const;

private:
    struct Batch {
        bool folders = false;
        std::vector<std::wstring_view> targets;
        std::vector<bool> passes;
        std::exception_ptr failure;
    };

    std::vector<Batch> batches_;
    std::vector<std::thread> threads_;
};

}  // namespace qs
