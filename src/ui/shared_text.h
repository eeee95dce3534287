#pragma once
// An immutable string that several lists hold at once: copying it shares the
// one body and counts the holders; the last holder to let go frees it. The
// merged Launch List and the side lists hold the same names and targets, so
// each is stored once, and its characters live in the same allocation as its
// count. Counted without atomics: lists live on the one user-interface
// thread, and texts made elsewhere reach it only once their maker is done.
//
// Texts read together in bulk (a list file of tens of thousands of items)
// are carved one after another from large shared blocks (TextBlocks), so
// they pay no allocation and no allocator's overhead each. A block is given
// back when the last text carved from it goes.
#include <atomic>
#include <cstdint>
#include <new>
#include <string_view>
#include <utility>

namespace qs::ui {

class TextBlocks;

class SharedText {
public:
    explicit SharedText(std::wstring_view text) : body_(Body::Make(text)) {}
    // A text carved from the current block of `blocks`.
    SharedText(TextBlocks& blocks, std::wstring_view text);
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
        if (body_ != nullptr && --body_->holders == 0) body_->Free();
    }

    std::wstring_view Text() const { return {body_->Characters(), body_->length}; }
    // How many holders share this body (the tests count them).
    std::int32_t Holders() const { return body_->holders; }

private:
    friend class TextBlocks;

    // The count, the length and, for a carved text, how far into its block
    // it lies; the characters right after them.
    struct Body {
        std::int32_t holders;
        std::uint32_t length;
        // Bytes from the block's start to this body; 0 for a text with an
        // allocation of its own (a block's own count comes first).
        std::uint32_t blockOffset;

        wchar_t* Characters() { return reinterpret_cast<wchar_t*>(this + 1); }
        static std::size_t Bytes(std::size_t length) { return sizeof(Body) + length * sizeof(wchar_t); }
        // Builds a body at `at`, room for the characters included.
        static Body* Place(void* at, std::wstring_view text, std::uint32_t blockOffset);
        static Body* Make(std::wstring_view text) { return Place(::operator new(Bytes(text.size())), text, 0); }
        void Free();
    };
    static_assert(sizeof(Body) % alignof(wchar_t) == 0);

    explicit SharedText(Body* body) : body_(body) {}
    Body* body_;
};

// Hands out space for texts from blocks of a fixed size, each block counting
// the texts carved from it (and this maker while the block is its current
// one). Texts too long for a block get an allocation of their own.
class TextBlocks {
public:
    static constexpr std::size_t kBlockBytes = 1 << 20;

    TextBlocks() = default;
    TextBlocks(const TextBlocks&) = delete;
    TextBlocks& operator=(const TextBlocks&) = delete;
    ~TextBlocks() { LetGoOfCurrent(); }

    // How many blocks are alive in the program, whoever made them.
    static std::int64_t BlocksInUse() { return blocksInUse_.load(); }

    SharedText Carve(std::wstring_view text) {
        const std::size_t bytes = Aligned(SharedText::Body::Bytes(text.size()));
        if (bytes > kBlockBytes - sizeof(Block)) return SharedText(text);
        if (current_ == nullptr || used_ + bytes > kBlockBytes) StartBlock();
        SharedText carved(SharedText::Body::Place(reinterpret_cast<char*>(current_) + used_, text,
                                                  static_cast<std::uint32_t>(used_)));
        ++current_->texts;
        used_ += bytes;
        return carved;
    }

private:
    friend struct SharedText::Body;

    // A block's head: how many texts, and whether its maker, still use it.
    struct Block {
        std::int32_t texts;
    };

    static std::size_t Aligned(std::size_t bytes) {
        constexpr std::size_t unit = alignof(SharedText::Body);
        return (bytes + unit - 1) / unit * unit;
    }
    // Counts one user of the block less; the last gives the block back.
    static void Release(Block* block);
    void StartBlock();
    void LetGoOfCurrent() {
        if (current_ != nullptr) Release(std::exchange(current_, nullptr));
    }

    // Blocks are made on the threads that read list files.
    static std::atomic<std::int64_t> blocksInUse_;
    Block* current_ = nullptr;
    std::size_t used_ = 0;
};

inline SharedText::SharedText(TextBlocks& blocks, std::wstring_view text) : SharedText(blocks.Carve(text)) {}

}  // namespace qs::ui
