#pragma once
// Failures of system calls, turned into the program's SystemCallFailed with
// the call's name and the system's error code.
#include <windows.h>

namespace qs::win {

// Throws SystemCallFailed naming the call and the given error code.
[[noreturn]] void ThrowSystemError(const char* call, DWORD code);
// The same with GetLastError().
[[noreturn]] void ThrowLastError(const char* call);

}  // namespace qs::win
