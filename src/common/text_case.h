#pragma once
// The program's one case rule: a fixed table, independent of any locale, used
// for every lower-casing, case-insensitive compare and name-list sort.
#include <string>
#include <string_view>

namespace qs {

wchar_t LowerChar(wchar_t c);
wchar_t UpperChar(wchar_t c);
std::wstring LCase(std::wstring_view text);
// LCase of a text in place, for a text that is to be replaced by it anyway.
void LowerInPlace(std::wstring& text);
std::wstring UCase(std::wstring_view text);

// <0, 0, >0 as a sorted name list orders a and b: by the lower-cased text,
// code unit by code unit; a prefix sorts before the longer text.
int CompareNoCase(std::wstring_view a, std::wstring_view b);

}  // namespace qs
