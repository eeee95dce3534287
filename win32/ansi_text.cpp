#include "ansi_text.h"

#include <windows.h>

#include "system_error.h"

namespace qs::win {

std::string ToAnsi(const std::wstring& text) {
    if (text.empty()) return {};
    const int wideLength = static_cast<int>(text.size());
    const int size = ::WideCharToMultiByte(CP_ACP, 0, text.data(), wideLength, nullptr, 0, nullptr, nullptr);
    if (size <= 0) ThrowLastError("WideCharToMultiByte");
    std::string bytes(static_cast<std::size_t>(size), '\0');
    ::WideCharToMultiByte(CP_ACP, 0, text.data(), wideLength, bytes.data(), size, nullptr, nullptr);
    return bytes;
}

std::wstring FromAnsi(std::string_view bytes) {
    if (bytes.empty()) return {};
    const int byteLength = static_cast<int>(bytes.size());
    const int size = ::MultiByteToWideChar(CP_ACP, 0, bytes.data(), byteLength, nullptr, 0);
    if (size <= 0) ThrowLastError("MultiByteToWideChar");
    std::wstring text(static_cast<std::size_t>(size), L'\0');
    ::MultiByteToWideChar(CP_ACP, 0, bytes.data(), byteLength, text.data(), size);
    return text;
}

}  // namespace qs::win
