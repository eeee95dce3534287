#pragma once
// Which paths a listing of their parent folder answers exactly as
// GetFileAttributesW answers the path itself.
#include <string>
#include <string_view>

namespace qs::win {

// Views into the path it was split from.
struct ListedPath {
    std::wstring_view parent;  // "C:\Tools" (or "C:" for the root), as written
    std::wstring_view name;    // "a.exe", as written
};

// Splits "X:\folder\...\name" into its parent folder and name when the path
// has nothing Windows would read other than as written: no relative parts,
// no "\\?\" or network form, no wildcards, streams or control characters, no
// part with trailing dots or blanks (Win32 strips them before the lookup), no
// short-name tilde or leading dot in the name, no device name, nothing at or
// past MAX_PATH. False for everything else, which takes the single test.
bool SplitListedPath(std::wstring_view path, ListedPath& out);

// True when the text holds only 7-bit characters, whose case Windows folds
// the same way everywhere.
bool IsPlainAscii(std::wstring_view text);

// A character or a name with A-Z folded to a-z and nothing else changed.
wchar_t FoldAscii(wchar_t c);
std::wstring FoldAscii(std::wstring_view text);

}  // namespace qs::win
