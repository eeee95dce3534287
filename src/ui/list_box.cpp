#include "ui/list_box.h"

#include <algorithm>

#include "common/failure.h"
#include "common/text_case.h"

namespace qs::ui {

ListBox::ListBox(Form& owner, std::wstring name, bool sorted)
    : Control(owner, ControlKind::ListBox, std::move(name)), sorted_(sorted) {}

std::int32_t ListBox::SortedPlace(const std::wstring& item) const {
    // Binary search for the first item that sorts after the new one.
    const auto place = std::upper_bound(items_.begin(), items_.end(), item,
                                        [](const std::wstring& a, const std::wstring& b) { return CompareNoCase(a, b) < 0; });
    return static_cast<std::int32_t>(place - items_.begin());
}

std::int32_t ListBox::AddItem(const std::wstring& item) {
    const std::int32_t index = sorted_ ? SortedPlace(item) : ListCount();
    items_.insert(items_.begin() + index, item);
    if (listIndex_ >= index) ++listIndex_;
    Notify(Property::Items);
    return index;
}

std::int32_t ListBox::AddItem(const std::wstring& item, std::int32_t index) {
    if (index < 0 || index > ListCount()) throw SubscriptOutOfRange();
    items_.insert(items_.begin() + index, item);
    if (listIndex_ >= index) ++listIndex_;
    Notify(Property::Items);
    return index;
}

void ListBox::RemoveItem(std::int32_t index) {
    if (index < 0 || index >= ListCount()) throw SubscriptOutOfRange();
    items_.erase(items_.begin() + index);
    if (listIndex_ == index) {
        listIndex_ = -1;
    } else if (listIndex_ > index) {
        --listIndex_;
    }
    Notify(Property::Items);
}

void ListBox::Clear() {
    items_.clear();
    listIndex_ = -1;
    Notify(Property::Items);
}

const std::wstring& ListBox::List(std::int32_t index) const {
    if (index < 0 || index >= ListCount()) throw SubscriptOutOfRange();
    return items_[static_cast<std::size_t>(index)];
}

void ListBox::SetList(std::int32_t index, const std::wstring& item) {
    if (index < 0 || index >= ListCount()) throw SubscriptOutOfRange();
    items_[static_cast<std::size_t>(index)] = item;
    Notify(Property::Items);
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
