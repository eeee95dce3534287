// Registry values by full path, with the scripting host's rules: a path
// ending in a backslash names a key (its default value; the key itself for
// a delete).
#include <algorithm>
#include <string>
#include <vector>

#include "registry_path.h"
#include "system_error.h"
#include "win32_system.h"

namespace qs::win {

void Win32System::RegWrite(const std::wstring& key, const std::wstring& value) {
    const RegistryPath path = ParseRegistryPath(key);
    HKEY raw = nullptr;
    LSTATUS status = ::RegCreateKeyExW(path.root, path.subKey.c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE,
                                       KEY_SET_VALUE, nullptr, &raw, nullptr);
    if (status != ERROR_SUCCESS) ThrowSystemError("RegCreateKeyExW", static_cast<DWORD>(status));
    RegKey opened(raw);
    const auto bytes = static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t));
    status = ::RegSetValueExW(opened.Get(), path.valueName.c_str(), 0, REG_SZ,
                              reinterpret_cast<const BYTE*>(value.c_str()), bytes);
    if (status != ERROR_SUCCESS) ThrowSystemError("RegSetValueExW", static_cast<DWORD>(status));
}

std::wstring Win32System::RegRead(const std::wstring& key) {
    const RegistryPath path = ParseRegistryPath(key);
    HKEY raw = nullptr;
    LSTATUS status = ::RegOpenKeyExW(path.root, path.subKey.c_str(), 0, KEY_QUERY_VALUE, &raw);
    if (status != ERROR_SUCCESS) ThrowSystemError("RegOpenKeyExW", static_cast<DWORD>(status));
    RegKey opened(raw);
    DWORD type = 0;
    DWORD size = 0;
    status = ::RegQueryValueExW(opened.Get(), path.valueName.c_str(), nullptr, &type, nullptr, &size);
    if (status != ERROR_SUCCESS) ThrowSystemError("RegQueryValueExW", static_cast<DWORD>(status));
    std::vector<BYTE> data(size + sizeof(wchar_t), 0);
    status = ::RegQueryValueExW(opened.Get(), path.valueName.c_str(), nullptr, &type, data.data(), &size);
    if (status != ERROR_SUCCESS) ThrowSystemError("RegQueryValueExW", static_cast<DWORD>(status));
    switch (type) {
        case REG_SZ:
        case REG_EXPAND_SZ: {
            std::wstring text(reinterpret_cast<const wchar_t*>(data.data()), size / sizeof(wchar_t));
            while (!text.empty() && text.back() == L'\0') text.pop_back();
            return text;
        }
        case REG_DWORD: {
            DWORD number = 0;
            std::copy(data.begin(), data.begin() + sizeof(number), reinterpret_cast<BYTE*>(&number));
            return std::to_wstring(number);
        }
        default:
            ThrowSystemError("RegQueryValueExW (type)", ERROR_UNSUPPORTED_TYPE);
    }
}

void Win32System::RegDelete(const std::wstring& key) {
    const RegistryPath path = ParseRegistryPath(key);
    if (path.valueName.empty()) {
        const LSTATUS status = ::RegDeleteKeyW(path.root, path.subKey.c_str());
        if (status != ERROR_SUCCESS) ThrowSystemError("RegDeleteKeyW", static_cast<DWORD>(status));
        return;
    }
    HKEY raw = nullptr;
    LSTATUS status = ::RegOpenKeyExW(path.root, path.subKey.c_str(), 0, KEY_SET_VALUE, &raw);
    if (status != ERROR_SUCCESS) ThrowSystemError("RegOpenKeyExW", static_cast<DWORD>(status));
    RegKey opened(raw);
    status = ::RegDeleteValueW(opened.Get(), path.valueName.c_str());
    if (status != ERROR_SUCCESS) ThrowSystemError("RegDeleteValueW", static_cast<DWORD>(status));
}

}  // namespace qs::win
