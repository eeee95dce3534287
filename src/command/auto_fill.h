#pragma once
// Completion of Launch Names from the user's lists and the family records.
#include <cstdint>
#include <string>

#include "ui/list_box.h"

namespace qs {

struct Application;

// Completes `typed` from the names of `combo` up to `lastIndex`; on a hit
// writes the box and sets PendingItemIndex. `typed` is lower-cased in place.
void ActionFindLaunchName(Application& app, std::wstring& code, std::wstring& typed, const ui::ListBox& combo,
                          std::int16_t& lastIndex);
// The same over the family members' names, setting PendingFamilyIndex.
void ActionFindFamilyMember(Application& app, std::wstring& code, std::wstring& typed);

// Position of the first name, in list order, that begins with `lowerTyped`
// (already lower-cased) among entries 0..lastIndex; -1 when none does.
std::int32_t FirstNameWithPrefix(const ui::ListBox& combo, const std::wstring& lowerTyped, std::int32_t lastIndex);

}  // namespace qs
