#pragma once
// Conversion between the program's wide text and the machine's 8-bit code
// page, in which every data file is kept.
#include <string>

namespace qs::win {

std::string ToAnsi(const std::wstring& text);
std::wstring FromAnsi(const std::string& bytes);

}  // namespace qs::win
