#include "system_error.h"

#include <string>

#include "common/failure.h"

namespace qs::win {

void ThrowSystemError(const char* call, DWORD code) {
    throw SystemCallFailed(std::string(call) + " failed with error " + std::to_string(code));
}

void ThrowLastError(const char* call) { ThrowSystemError(call, ::GetLastError()); }

}  // namespace qs::win
