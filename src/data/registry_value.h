#pragma once
// The one door to the registry: write, read or delete a value by its full
// path. Every failure is ignored; a failed read gives "".
#include <cstdint>
#include <string>

namespace qs {

struct Application;

// The value that starts the program with Windows; its data is ProgramFile.
inline constexpr const wchar_t* AutostartValueName =
    L"HKEY_CURRENT_USER\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run\\Morvane Quillstart";

inline constexpr std::int16_t RegistryWrite = 1;
inline constexpr std::int16_t RegistryRead = 2;
inline constexpr std::int16_t RegistryDelete = 3;

// Action 1 writes value under key, 2 reads it, 3 deletes it. Returns the
// data read, or "" for the other actions and for any failure.
std::wstring RegistryValue(Application& app, std::int16_t& action, std::wstring& key, std::wstring& value);

}  // namespace qs
