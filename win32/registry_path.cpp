#include "registry_path.h"

#include <array>

#include "common/failure.h"
#include "common/text_case.h"

namespace qs::win {

namespace {

struct Root {
    const wchar_t* longName;
    const wchar_t* shortName;
    HKEY key;
};

HKEY RootByName(const std::wstring& name) {
    const std::array<Root, 5> roots{{
        {L"HKEY_CURRENT_USER", L"HKCU", HKEY_CURRENT_USER},
        {L"HKEY_LOCAL_MACHINE", L"HKLM", HKEY_LOCAL_MACHINE},
        {L"HKEY_CLASSES_ROOT", L"HKCR", HKEY_CLASSES_ROOT},
        {L"HKEY_USERS", L"HKU", HKEY_USERS},
        {L"HKEY_CURRENT_CONFIG", L"HKCC", HKEY_CURRENT_CONFIG},
    }};
    for (const Root& root : roots) {
        if (CompareNoCase(name, root.longName) == 0 || CompareNoCase(name, root.shortName) == 0) return root.key;
    }
    throw SystemCallFailed("unknown registry root");
}

}  // namespace

RegistryPath ParseRegistryPath(const std::wstring& path) {
    const auto firstSlash = path.find(L'\\');
    const auto lastSlash = path.rfind(L'\\');
    if (firstSlash == std::wstring::npos || firstSlash == lastSlash) throw SystemCallFailed("registry path has no key");
    RegistryPath parsed;
    parsed.root = RootByName(path.substr(0, firstSlash));
    parsed.subKey = path.substr(firstSlash + 1, lastSlash - firstSlash - 1);
    parsed.valueName = path.substr(lastSlash + 1);
    if (parsed.subKey.empty()) throw SystemCallFailed("registry path has no key");
    return parsed;
}

}  // namespace qs::win
