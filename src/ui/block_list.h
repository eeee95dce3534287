#pragma once
// An indexed sequence of strings kept in blocks of bounded size, so that an
// insertion or removal in the middle of a long list moves only one block's
// worth of entries. Reading by position finds the block by binary search.
// Entries are shared texts, so a string held by several lists is stored once.
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "ui/shared_text.h"

namespace qs::ui {

class BlockList {
public:
    std::int32_t Size() const { return size_; }
    // Position must lie in 0..Size()-1 (0..Size() for Insert).
    std::wstring_view At(std::int32_t index) const;
    void Set(std::int32_t index, const std::wstring& item);
    void Insert(std::int32_t index, const std::wstring& item);
    void Insert(std::int32_t index, const SharedText& item);
    void Erase(std::int32_t index);
    void Clear();

    // All entries in order, built on demand and kept until the next change.
    const std::vector<std::wstring>& Flat() const;

private:
    // The block holding position `index`, and the position within it.
    std::size_t BlockOf(std::int32_t index, std::int32_t& offset) const;
    void ShiftStarts(std::size_t fromBlock, std::int32_t delta);
    void Changed() {
        if (flatValid_) std::vector<std::wstring>().swap(flat_);
        flatValid_ = false;
    }

    std::vector<std::vector<SharedText>> blocks_;
    std::vector<std::int32_t> starts_;  // position of each block's first entry
    std::int32_t size_ = 0;
    mutable std::vector<std::wstring> flat_;
    mutable bool flatValid_ = true;
};

}  // namespace qs::ui
