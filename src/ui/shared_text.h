#pragma once
// An immutable string that several lists hold at once: copying it shares the
// one body and counts the holders; the last holder to let go frees it. The
// merged Launch List and the side lists hold the same names and targets, so
// each is stored once, and its characters live in the same allocation as its
// count, so that a list of tens of thousands of items pays one allocation per
// text. Counted without atomics: lists live on the one user-interface thread.
#include <cstdint>
#include <cstring>
#include <new>
#include <string_view>
#include <utility>

namespace qs::ui {

class SharedText {
public:
    explicit SharedText(std::wstring_view text) : body_(Body::Make(text)) {}
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
        if (body_ != nullptr && --body_->holders == 0) Body::Free(body_);
    }

    std::wstring_view Text() const { return {body_->Characters(), body_->length}; }
    // How many holders share this body (the tests count them).
    std::int32_t Holders() const { return body_->holders; }

private:
    // The count and the length, the characters right after them.
    struct Body {
        std::int32_t holders;
        std::uint32_t length;

        wchar_t* Characters() { return reinterpret_cast<wchar_t*>(this + 1); }
        static Body* Make(std::wstring_view text) {
            void* block = ::operator new(sizeof(Body) + text.size() * sizeof(wchar_t));
            Body* body = new (block) Body{1, static_cast<std::uint32_t>(text.size())};
            if (!text.empty()) std::memcpy(body->Characters(), text.data(), text.size() * sizeof(wchar_t));
            return body;
        }
        static void Free(Body* body) {
            body->~Body();
            ::operator delete(body);
        }
    };
    static_assert(sizeof(Body) % alignof(wchar_t) == 0);
    Body* body_;
};

}  // namespace qs::ui
