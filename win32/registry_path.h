#pragma once
// A registry path as the scripting host writes it: a root key by full name
// or abbreviation, the key path, and the value name after the last
// backslash ("" for the key's default value).
#include <windows.h>

#include <string>

namespace qs::win {

struct RegistryPath {
    HKEY root = nullptr;
    std::wstring subKey;
    std::wstring valueName;
};

// Throws SystemCallFailed for an unknown root or a path with no key.
RegistryPath ParseRegistryPath(const std::wstring& path);

}  // namespace qs::win
