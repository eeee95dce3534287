#pragma once
// Conversion between the program's wide text and the machine's 8-bit code
// page, in which every data file is kept.
#include <string>
#include <string_view>

namespace qs::win {

std::string ToAnsi(const std::wstring& text);
std::wstring FromAnsi(std::string_view bytes);

}  // namespace qs::win
