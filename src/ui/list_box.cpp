#include "ui/list_box.h"

#include "common/failure.h"
#include "common/text_case.h"

namespace qs::ui {

ListBox::ListBox(Form& owner, std::wstring name, bool sorted)
    : Control(owner, ControlKind::ListBox, std::move(name)), sorted_(sorted) {}

ListBox::ListBox(Form& owner, ControlKind kind, std::wstring name, bool sorted)
    : Control(owner, kind, std::move(name)), sorted_(sorted) {}

std::int32_t ListBox::SortedPlace(std::wstring_view item) const {
    // Items mostly come in sorted order, from files written sorted.
    const std::int32_t count = ListCount();
    if (count == 0 || CompareNoCase(item, items_.At(count - 1)) >= 0) return count;
    // Binary search for the first item that sorts after the new one.
    std::int32_t low = 0;
    std::int32_t high = ListCount();
    while (low < high) {
        const std::int32_t mid = low + (high - low) / 2;
        if (CompareNoCase(item, items_.At(mid)) < 0) {
            high = mid;
        } else {
            low = mid + 1;
        }
    }
    return low;
}

std::int32_t ListBox::FirstNotBelow(std::wstring_view item, std::int32_t end) const {
    std::int32_t low = 0;
    std::int32_t high = end;
    while (low < high) {
        const std::int32_t mid = low + (high - low) / 2;
        if (CompareNoCase(items_.At(mid), item) < 0) {
            low = mid + 1;
        } else {
            high = mid;
        }
    }
    return low;
}

std::int32_t ListBox::FindExact(std::wstring_view item) const {
    if (!sorted_) {
        for (std::int32_t i = 0; i < ListCount(); ++i)
            if (items_.At(i) == item) return i;
        return -1;
    }
    // Entries equal to the item by the case rule stand together, and an exact
    // match is one of them, so the first exact match of a scan from the top
    // is the first exact match within that run.
    for (std::int32_t i = FirstNotBelow(item, ListCount()); i < ListCount(); ++i) {
        const std::wstring_view entry = items_.At(i);
        if (entry == item) return i;
        if (CompareNoCase(entry, item) != 0) break;
    }
    return -1;
}

void ListBox::Inserted(std::int32_t index) {
    if (listIndex_ >= index) ++listIndex_;
    if (ControlPeer* peer = Peer()) peer->ItemInserted(index);
}

std::int32_t ListBox::AddItem(const std::wstring& item) { return AddItem(SharedText(item)); }

std::int32_t ListBox::AddItem(const std::wstring& item, std::int32_t index) { return AddItem(SharedText(item), index); }

std::int32_t ListBox::AddItem(const SharedText& item) {
    const std::int32_t index = sorted_ ? SortedPlace(item.Text()) : ListCount();
    items_.Insert(index, item);
    Inserted(index);
    return index;
}

std::int32_t ListBox::AddItem(const SharedText& item, std::int32_t index) {
    if (index < 0 || index > ListCount()) throw SubscriptOutOfRange();
    items_.Insert(index, item);
    Inserted(index);
    return index;
}

void ListBox::RemoveItem(std::int32_t index) {
    if (index < 0 || index >= ListCount()) throw SubscriptOutOfRange();
    items_.Erase(index);
    if (listIndex_ == index) {
        listIndex_ = -1;
    } else if (listIndex_ > index) {
        --listIndex_;
    }
    if (ControlPeer* peer = Peer()) peer->ItemRemoved(index);
}

void ListBox::Clear() {
    items_.Clear();
    listIndex_ = -1;
    if (ControlPeer* peer = Peer()) peer->ItemsCleared();
}

std::wstring_view ListBox::List(std::int32_t index) const {
    if (index < 0 || index >= ListCount()) throw SubscriptOutOfRange();
    return items_.At(index);
}

void ListBox::SetList(std::int32_t index, const std::wstring& item) {
    if (index < 0 || index >= ListCount()) throw SubscriptOutOfRange();
    items_.Set(index, item);
    if (ControlPeer* peer = Peer()) peer->ItemChanged(index);
}

void ListBox::SetListIndex(std::int32_t index) {
    if (index < -1 || index >= ListCount()) throw SubscriptOutOfRange();
    listIndex_ = index;
    Notify(Property::ListIndex);
    if (Click) Click();
}

void ListBox::UserSelected(std::int32_t index) {
    if (index < -1 || index >= ListCount()) return;
    listIndex_ = index;
    if (Click) Click();
}

}  // namespace qs::ui
