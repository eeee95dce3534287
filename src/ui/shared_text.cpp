#include "ui/shared_text.h"

#include <cstring>

namespace qs::ui {

std::atomic<std::int64_t> TextBlocks::blocksInUse_{0};

SharedText::Body* SharedText::Body::Place(void* at, std::wstring_view text, std::uint32_t blockOffset) {
    Body* body = new (at) Body{1, static_cast<std::uint32_t>(text.size()), blockOffset};
    if (!text.empty()) std::memcpy(body->Characters(), text.data(), text.size() * sizeof(wchar_t));
    return body;
}

void SharedText::Body::Free() {
    if (blockOffset == 0) {
        this->~Body();
        ::operator delete(this);
        return;
    }
    auto* block = reinterpret_cast<TextBlocks::Block*>(reinterpret_cast<char*>(this) - blockOffset);
    this->~Body();
    TextBlocks::Release(block);
}

void TextBlocks::Release(Block* block) {
    if (--block->texts == 0) {
        block->~Block();
        ::operator delete(block);
        --blocksInUse_;
    }
}

void TextBlocks::StartBlock() {
    LetGoOfCurrent();
    current_ = new (::operator new(kBlockBytes)) Block{1};
    ++blocksInUse_;
    used_ = Aligned(sizeof(Block));
}

}  // namespace qs::ui
