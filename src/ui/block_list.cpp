#include "ui/block_list.h"

#include <algorithm>

namespace qs::ui {

namespace {

// A block is split in two halves when it grows beyond this.
constexpr std::size_t MaxBlock = 512;

}  // namespace

std::size_t BlockList::BlockOf(std::int32_t index, std::int32_t& offset) const {
    // The last block whose first position is not after `index`.
    const auto after = std::upper_bound(starts_.begin(), starts_.end(), index);
    const std::size_t block = static_cast<std::size_t>(after - starts_.begin()) - 1;
    offset = index - starts_[block];
    return block;
}

void BlockList::ShiftStarts(std::size_t fromBlock, std::int32_t delta) {
    for (std::size_t b = fromBlock; b < starts_.size(); ++b) starts_[b] += delta;
}

std::wstring_view BlockList::At(std::int32_t index) const {
    std::int32_t offset = 0;
    const std::size_t block = BlockOf(index, offset);
    return blocks_[block][static_cast<std::size_t>(offset)].Text();
}

void BlockList::Set(std::int32_t index, const std::wstring& item) {
    std::int32_t offset = 0;
    const std::size_t block = BlockOf(index, offset);
    blocks_[block][static_cast<std::size_t>(offset)] = SharedText(item);
    Changed();
}

void BlockList::Insert(std::int32_t index, const std::wstring& item) { Insert(index, SharedText(item)); }

void BlockList::Insert(std::int32_t index, const SharedText& item) {
    Changed();
    if (blocks_.empty()) {
        blocks_.emplace_back();
        starts_.push_back(0);
    }
    std::size_t block = 0;
    std::int32_t offset = 0;
    if (index == size_) {
        // Appending goes to the end of the last block, or opens a new one
        // when that is full, so that a list loaded in order fills its blocks.
        block = blocks_.size() - 1;
        if (blocks_[block].size() >= MaxBlock) {
            blocks_.emplace_back();
            starts_.push_back(size_);
            ++block;
        }
        offset = index - starts_[block];
    } else {
        block = BlockOf(index, offset);
    }
    auto& entries = blocks_[block];
    entries.insert(entries.begin() + offset, item);
    ++size_;
    ShiftStarts(block + 1, 1);
    if (entries.size() > MaxBlock) {
        const std::size_t half = entries.size() / 2;
        std::vector<SharedText> tail(std::make_move_iterator(entries.begin() + static_cast<std::ptrdiff_t>(half)),
                                       std::make_move_iterator(entries.end()));
        entries.erase(entries.begin() + static_cast<std::ptrdiff_t>(half), entries.end());
        const std::int32_t tailStart = starts_[block] + static_cast<std::int32_t>(half);
        blocks_.insert(blocks_.begin() + static_cast<std::ptrdiff_t>(block) + 1, std::move(tail));
        starts_.insert(starts_.begin() + static_cast<std::ptrdiff_t>(block) + 1, tailStart);
    }
}

void BlockList::Erase(std::int32_t index) {
    Changed();
    std::int32_t offset = 0;
    const std::size_t block = BlockOf(index, offset);
    auto& entries = blocks_[block];
    entries.erase(entries.begin() + offset);
    --size_;
    ShiftStarts(block + 1, -1);
    if (entries.empty()) {
        blocks_.erase(blocks_.begin() + static_cast<std::ptrdiff_t>(block));
        starts_.erase(starts_.begin() + static_cast<std::ptrdiff_t>(block));
    }
}

void BlockList::Clear() {
    // The first block stays, emptied, with its room: a list cleared to be
    // filled again grows its first block anew only past what it held.
    if (blocks_.size() > 1) {
        blocks_.resize(1);
        starts_.resize(1);
    }
    if (!blocks_.empty()) blocks_.front().clear();
    size_ = 0;
    Changed();
}

const std::vector<std::wstring>& BlockList::Flat() const {
    if (!flatValid_) {
        flat_.clear();
        flat_.reserve(static_cast<std::size_t>(size_));
        for (const auto& entries : blocks_)
            for (const SharedText& entry : entries) flat_.emplace_back(entry.Text());
        flatValid_ = true;
    }
    return flat_;
}

}  // namespace qs::ui
