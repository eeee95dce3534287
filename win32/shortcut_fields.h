#pragma once
// The text forms of a shortcut's fields, as the scripting host takes them,
// turned into what the shell link stores.
#include <windows.h>

#include <string>

namespace qs::win {

// "CTRL+SHIFT+L" -> MAKEWORD('L', HOTKEYF_CONTROL | HOTKEYF_SHIFT). Modifiers
// ALT, CTRL, SHIFT, EXT in any order and case; the key is a letter, a digit
// or F1 to F24. 0 for an empty or unreadable text.
WORD HotkeyFromText(const std::wstring& text);

struct IconLocation {
    std::wstring path;
    int index = 0;
};

// "C:\Tools\Quillstart.exe, 0" -> path and index; without a comma the index
// is 0.
IconLocation IconLocationFromText(const std::wstring& text);

}  // namespace qs::win
