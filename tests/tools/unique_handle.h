#pragma once
// Owns a kernel handle and closes it when it goes out of scope.
#include <windows.h>

namespace qs::tools {

class UniqueHandle {
public:
    explicit UniqueHandle(HANDLE h = nullptr) noexcept : h_(h) {}
    UniqueHandle(const UniqueHandle&) = delete;
    UniqueHandle& operator=(const UniqueHandle&) = delete;
    UniqueHandle(UniqueHandle&& other) noexcept : h_(other.h_) { other.h_ = nullptr; }
    UniqueHandle& operator=(UniqueHandle&& other) noexcept {
        if (this != &other) {
            Reset();
            h_ = other.h_;
            other.h_ = nullptr;
        }
        return *this;
    }
    ~UniqueHandle() { Reset(); }

    HANDLE Get() const noexcept { return h_; }
    bool Valid() const noexcept { return h_ != nullptr && h_ != INVALID_HANDLE_VALUE; }

private:
    void Reset() noexcept {
        if (Valid()) CloseHandle(h_);
        h_ = nullptr;
    }
    HANDLE h_;
};

}  // namespace qs::tools
