#pragma once
// An immutable string that several lists hold at once: copying it shares the
// one body and counts the holders; the last holder to let go frees it. The
// merged Launch List and the side lists hold the same names and targets, so
// each is stored once. Counted without atomics: lists live on the one
// user-interface thread.
#include <cstdint>
#include <string>
#include <utility>

namespace qs::ui {

class SharedText {
public:
    explicit SharedText(std::wstring text) : body_(new Body{1, std::move(text)}) {}
    SharedText(const SharedText& other) noexcept : body_(other.body_) { ++body_->holders; }
    // A text moved from may only be assigned to or destroyed.
    SharedText(SharedText&& other) noexcept : body_(std::exchange(other.body_, nullptr)) {}
    SharedText& operator=(const SharedText& other) noexcept {
        SharedText copy(other);
        std::swap(body_, copy.body_);
        return *this;
    }
    SharedText& operator=(SharedText&& other) noexcept {
        std::swap(body_, other.body_);
        return *this;
    }
    ~SharedText() {
        if (body_ != nullptr && --body_->holders == 0) delete body_;
    }

    const std::wstring& Text() const { return body_->text; }
    // How many holders share this body (the tests count them).
    std::int32_t Holders() const { return body_->holders; }

private:
    struct Body {
        std::int32_t holders;
        const std::wstring text;
    };
    Body* body_;
};

}  // namespace qs::ui
