// Replaces the global operator new and delete of the Windows test program,
// so that the soak test can tell the heap bytes the program holds. Each
// block carries its size in a header in front of it; the header is as wide
// as the C runtime's own alignment, so the block keeps that alignment. The
// aligned forms are left to the runtime: nothing of ours asks for them.
#include "soak_heap.h"

#include <atomic>
#include <cstddef>
#include <cstdlib>
#include <new>

namespace {

constexpr std::size_t kHeader = 16;
static_assert(kHeader >= sizeof(std::size_t) && kHeader % alignof(std::max_align_t) == 0);

std::atomic<std::int64_t> bytesHeld{0};
std::atomic<std::int64_t> blocksHeld{0};

void* Take(std::size_t size) {
    if (size > SIZE_MAX - kHeader) return nullptr;
    auto* raw = static_cast<unsigned char*>(std::malloc(size + kHeader));
    if (raw == nullptr) return nullptr;
    *reinterpret_cast<std::size_t*>(raw) = size;
    bytesHeld.fetch_add(static_cast<std::int64_t>(size), std::memory_order_relaxed);
    blocksHeld.fetch_add(1, std::memory_order_relaxed);
    return raw + kHeader;
}

void Give(void* block) noexcept {
    if (block == nullptr) return;
    auto* raw = static_cast<unsigned char*>(block) - kHeader;
    const std::size_t size = *reinterpret_cast<std::size_t*>(raw);
    bytesHeld.fetch_sub(static_cast<std::int64_t>(size), std::memory_order_relaxed);
    blocksHeld.fetch_sub(1, std::memory_order_relaxed);
    std::free(raw);
}

void* TakeOrThrow(std::size_t size) {
    if (size == 0) size = 1;
    for (;;) {
        if (void* block = Take(size)) return block;
        const std::new_handler handler = std::get_new_handler();
        if (handler == nullptr) throw std::bad_alloc();
        handler();
    }
}

void* TakeOrNull(std::size_t size) noexcept {
    try {
        return TakeOrThrow(size);
    } catch (...) {
        return nullptr;
    }
}

}  // namespace

namespace qs::test {

std::int64_t HeapBytesHeld() { return bytesHeld.load(std::memory_order_relaxed); }
std::int64_t HeapBlocksHeld() { return blocksHeld.load(std::memory_order_relaxed); }

}  // namespace qs::test

void* operator new(std::size_t size) { return TakeOrThrow(size); }
void* operator new[](std::size_t size) { return TakeOrThrow(size); }
void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return TakeOrNull(size); }
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept { return TakeOrNull(size); }
void operator delete(void* block) noexcept { Give(block); }
void operator delete[](void* block) noexcept { Give(block); }
void operator delete(void* block, std::size_t) noexcept { Give(block); }
void operator delete[](void* block, std::size_t) noexcept { Give(block); }
void operator delete(void* block, const std::nothrow_t&) noexcept { Give(block); }
void operator delete[](void* block, const std::nothrow_t&) noexcept { Give(block); }
