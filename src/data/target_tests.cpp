#include "data/target_tests.h"

#include <atomic>
#include <memory>
#include <system_error>

#include "platform/system.h"

namespace qs {

TargetTests::~TargetTests() { Wait(); }

std::size_t TargetTests::Add(std::int16_t group, std::vector<std::wstring_view> targets) {
    batches_.push_back({group == 1, std::move(targets), {}, nullptr});
    return batches_.size() - 1;
}

void TargetTests::Start(System& sys, std::function<void()> finished) {
    auto left = std::make_shared<std::atomic<std::size_t>>(batches_.size());
    auto done = std::make_shared<std::function<void()>>(std::move(finished));
    if (batches_.empty()) {
        if (*done) (*done)();
        return;
    }
    for (Batch& batch : batches_) {
        auto answer = [&sys, &batch, left, done] {
            try {
                batch.passes = batch.folders ? sys.FoldersExist(batch.targets) : sys.FilesExist(batch.targets);
            } catch (...) {
                batch.failure = std::current_exception();
            }
            if (left->fetch_sub(1) == 1 && *done) (*done)();
        };
        try {
            threads_.emplace_back(answer);
        } catch (const std::system_error&) {
            answer();  // no thread to be had: answer here
        }
    }
}

const std::vector<bool>& TargetTests::Passes(std::size_t batch) const {
    const Batch& answered = batches_.at(batch);
    if (answered.failure) std::rethrow_exception(answered.failure);
    return answered.passes;
}

void TargetTests::Wait() {
    for (std::thread& thread : threads_) {
        if (thread.joinable()) thread.join();
    }
}

}  // namespace qs
