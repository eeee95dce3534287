#include "common/text_case.h"

namespace qs {

namespace {

// Latin Extended-A pairs upper/lower as even/odd code units, except in the
// ranges where the pairing is shifted by one.
bool IsExtendedAUpper(wchar_t c) {
    if (c >= 0x0100 && c <= 0x0137) return (c % 2) == 0;
    if (c >= 0x0139 && c <= 0x0148) return (c % 2) == 1;
    if (c >= 0x014A && c <= 0x0177) return (c % 2) == 0;
    if (c == 0x0179 || c == 0x017B || c == 0x017D) return true;
    return false;
}

bool IsExtendedALower(wchar_t c) {
    if (c >= 0x0101 && c <= 0x0137) return (c % 2) == 1;
    if (c >= 0x013A && c <= 0x0148) return (c % 2) == 0;
    if (c >= 0x014B && c <= 0x0177) return (c % 2) == 1;
    if (c == 0x017A || c == 0x017C || c == 0x017E) return true;
    return false;
}

}  // namespace

wchar_t LowerChar(wchar_t c) {
    if (c < 0x80) return (c >= L'A' && c <= L'Z') ? static_cast<wchar_t>(c + 32) : c;
    if (c >= 0x00C0 && c <= 0x00DE && c != 0x00D7) return static_cast<wchar_t>(c + 32);
    if (IsExtendedAUpper(c)) return static_cast<wchar_t>(c + 1);
    if (c == 0x0178) return 0x00FF;
    if (c >= 0x0391 && c <= 0x03A9 && c != 0x03A2) return static_cast<wchar_t>(c + 32);
    if (c >= 0x0410 && c <= 0x042F) return static_cast<wchar_t>(c + 32);
    if (c >= 0x0400 && c <= 0x040F) return static_cast<wchar_t>(c + 80);
    return c;
}

wchar_t UpperChar(wchar_t c) {
    if (c < 0x80) return (c >= L'a' && c <= L'z') ? static_cast<wchar_t>(c - 32) : c;
    if (c >= 0x00E0 && c <= 0x00FE && c != 0x00F7) return static_cast<wchar_t>(c - 32);
    if (c == 0x00FF) return 0x0178;
    if (IsExtendedALower(c)) return static_cast<wchar_t>(c - 1);
    if (c >= 0x03B1 && c <= 0x03C9 && c != 0x03C2) return static_cast<wchar_t>(c - 32);
    if (c >= 0x0430 && c <= 0x044F) return static_cast<wchar_t>(c - 32);
    if (c >= 0x0450 && c <= 0x045F) return static_cast<wchar_t>(c - 80);
    return c;
}

std::wstring LCase(std::wstring_view text) {
    std::wstring lower(text);
    for (auto& c : lower) c = LowerChar(c);
    return lower;
}

void LowerInPlace(std::wstring& text) {
    for (auto& c : text) c = LowerChar(c);
}

std::wstring UCase(std::wstring_view text) {
    std::wstring upper(text);
    for (auto& c : upper) c = UpperChar(c);
    return upper;
}

int CompareNoCase(std::wstring_view a, std::wstring_view b) {
    const std::size_t n = a.size() < b.size() ? a.size() : b.size();
    for (std::size_t i = 0; i < n; ++i) {
        const wchar_t x = LowerChar(a[i]);
        const wchar_t y = LowerChar(b[i]);
        if (x != y) return x < y ? -1 : 1;
    }
    if (a.size() == b.size()) return 0;
    return a.size() < b.size() ? -1 : 1;
}

}  // namespace qs
