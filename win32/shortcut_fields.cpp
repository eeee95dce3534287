#include "shortcut_fields.h"

#include <windows.h>
#include <commctrl.h>

#include <cwchar>

#include "common/text_case.h"

namespace qs::win {

namespace {

std::wstring Trimmed(const std::wstring& text) {
    const auto first = text.find_first_not_of(L" \t");
    if (first == std::wstring::npos) return L"";
    const auto last = text.find_last_not_of(L" \t");
    return text.substr(first, last - first + 1);
}

// The virtual key of a key name, 0 when it names none.
BYTE KeyFromName(const std::wstring& name) {
    if (name.size() == 1) {
        const wchar_t c = name[0];
        if ((c >= L'A' && c <= L'Z') || (c >= L'0' && c <= L'9')) return static_cast<BYTE>(c);
        return 0;
    }
    if (name.size() >= 2 && name[0] == L'F') {
        int number = 0;
        for (std::size_t i = 1; i < name.size(); ++i) {
            if (name[i] < L'0' || name[i] > L'9') return 0;
            number = number * 10 + (name[i] - L'0');
        }
        if (number >= 1 && number <= 24) return static_cast<BYTE>(VK_F1 + number - 1);
    }
    return 0;
}

}  // namespace

WORD HotkeyFromText(const std::wstring& text) {
    BYTE modifiers = 0;
    BYTE key = 0;
    std::size_t start = 0;
    while (start <= text.size()) {
        const auto plus = text.find(L'+', start);
        const std::wstring part = UCase(Trimmed(text.substr(start, plus == std::wstring::npos ? std::wstring::npos : plus - start)));
        if (part == L"CTRL") {
            modifiers |= HOTKEYF_CONTROL;
        } else if (part == L"SHIFT") {
            modifiers |= HOTKEYF_SHIFT;
        } else if (part == L"ALT") {
            modifiers |= HOTKEYF_ALT;
        } else if (part == L"EXT") {
            modifiers |= HOTKEYF_EXT;
        } else {
            key = KeyFromName(part);
            if (key == 0) return 0;
        }
        if (plus == std::wstring::npos) break;
        start = plus + 1;
    }
    return key == 0 ? 0 : MAKEWORD(key, modifiers);
}

IconLocation IconLocationFromText(const std::wstring& text) {
    const auto comma = text.rfind(L',');
    if (comma == std::wstring::npos) return {Trimmed(text), 0};
    const std::wstring number = Trimmed(text.substr(comma + 1));
    return {Trimmed(text.substr(0, comma)), static_cast<int>(std::wcstol(number.c_str(), nullptr, 10))};
}

}  // namespace qs::win
