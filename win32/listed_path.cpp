#include "listed_path.h"

#include <windows.h>

#include <array>
#include <string_view>

namespace qs::win {

namespace {

bool IsLetter(wchar_t c) { return (c >= L'A' && c <= L'Z') || (c >= L'a' && c <= L'z'); }

bool IsUnusualChar(wchar_t c) { return c < 32 || std::wstring_view(L"/*?\"<>|:").find(c) != std::wstring_view::npos; }

// The part before the first dot names a device ("NUL", "com1.txt"): the
// system opens the device, not a file of that name.
bool NamesDevice(std::wstring_view name) {
    const std::wstring base = FoldAscii(name.substr(0, name.find(L'.')));
    static const std::array<std::wstring_view, 6> devices = {L"con", L"prn", L"aux", L"nul", L"conin$", L"conout$"};
    for (std::wstring_view device : devices)
        if (base == device) return true;
    return base.size() == 4 && (base.compare(0, 3, L"com") == 0 || base.compare(0, 3, L"lpt") == 0);
}

bool IsPlainPart(std::wstring_view part) {
    if (part.empty() || part == L"." || part == L"..") return false;
    return part.front() != L' ' && part.back() != L' ' && part.back() != L'.';
}

}  // namespace

bool IsPlainAscii(std::wstring_view text) {
    for (wchar_t c : text)
        if (c > 0x7F) return false;
    return true;
}

wchar_t FoldAscii(wchar_t c) { return c >= L'A' && c <= L'Z' ? static_cast<wchar_t>(c - L'A' + L'a') : c; }

std::wstring FoldAscii(std::wstring_view text) {
    std::wstring folded(text);
    for (wchar_t& c : folded) c = FoldAscii(c);
    return folded;
}

bool SplitListedPath(std::wstring_view path, ListedPath& out) {
    if (path.size() < 4 || path.size() >= MAX_PATH) return false;
    if (!IsLetter(path[0]) || path[1] != L':' || path[2] != L'\\') return false;
    for (std::size_t i = 3; i < path.size(); ++i)
        if (IsUnusualChar(path[i])) return false;
    std::size_t start = 3;
    for (;;) {
        const std::size_t slash = path.find(L'\\', start);
        if (!IsPlainPart(path.substr(start, slash == std::wstring_view::npos ? slash : slash - start))) return false;
        if (slash == std::wstring_view::npos) break;
        start = slash + 1;
    }
    const std::size_t last = path.rfind(L'\\');
    const std::wstring_view name = path.substr(last + 1);
    if (name.find(L'~') != std::wstring_view::npos || name.front() == L'.' || NamesDevice(name)) return false;
    out.parent = path.substr(0, last);
    out.name = name;
    return true;
}

}  // namespace qs::win
