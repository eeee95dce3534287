#pragma once
// The program's one case rule: a fixed table, independent of any locale, used
// for every lower-casing, case-insensitive compare and name-list sort.
#include <string>

namespace qs {

wchar_t LowerChar(wchar_t c);
wchar_t UpperChar(wchar_t c);
std::wstring LCase(std::wstring text);
std::wstring UCase(std::wstring text);

// <0, 0, >0 as a sorted name list orders a and b: by the lower-cased text,
// code unit by code unit; a prefix sorts before the longer text.
int CompareNoCase(const std::wstring& a, const std::wstring& b);

}  // namespace qs
