#pragma once
// A list of strings, sorted or in insertion order, as the list and combo
// controls keep them. A sorted list inserts each new item at its place by the
// program's case rule, after any equal items.
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "ui/block_list.h"
#include "ui/control.h"

namespace qs::ui {

class ListBox : public Control {
public:
    ListBox(Form& owner, std::wstring name, bool sorted);

    bool Sorted() const { return sorted_; }

    // Adds an item and returns the position it took. Without an index a sorted
    // list finds the place; an unsorted one appends.
    std::int32_t AddItem(const std::wstring& item);
    std::int32_t AddItem(const std::wstring& item, std::int32_t index);
    // The same with a text that other lists may hold too: the list keeps a
    // share of it, not a copy.
    std::int32_t AddItem(const SharedText& item);
    std::int32_t AddItem(const SharedText& item, std::int32_t index);
    void RemoveItem(std::int32_t index);
    void Clear();

    // Throws SubscriptOutOfRange outside 0..ListCount-1.
    std::wstring_view List(std::int32_t index) const;
    void SetList(std::int32_t index, const std::wstring& item);
    std::int32_t ListCount() const { return items_.Size(); }
    // All entries in order; read it again after the list changes.
    const std::vector<std::wstring>& Items() const { return items_.Flat(); }

    // Position of the first entry, from the top, exactly equal to `item`
    // (case-sensitive); -1 when there is none.
    std::int32_t FindExact(std::wstring_view item) const;
    // In a sorted list: the first position among 0..end-1 whose entry does not
    // sort before `item` by the case rule; `end` when there is none.
    std::int32_t FirstNotBelow(std::wstring_view item, std::int32_t end) const;

    // -1 when nothing is selected; setting it fires Click.
    std::int32_t ListIndex() const { return listIndex_; }
    void SetListIndex(std::int32_t index);

    std::function<void()> Click;

    // The user picked an entry in the real control.
    void UserSelected(std::int32_t index);

protected:
    // For the kinds built on a list (the drive, folder and file boxes).
    ListBox(Form& owner, ControlKind kind, std::wstring name, bool sorted);

private:
    std::int32_t SortedPlace(std::wstring_view item) const;
    void Inserted(std::int32_t index);

    BlockList items_;
    std::int32_t listIndex_ = -1;
    bool sorted_;
};

}  // namespace qs::ui
