#pragma once
// The common controls in their own look (version 6) for the windows made in
// a scope: push, check and option buttons, lists, drop-down lists and tips.
// The process itself does not ask for them: the bar's windows draw
// themselves, so the bar is made and shown before that library loads.
#include <windows.h>

namespace qs::win {

// Loads the common controls at its first use.
class StyledControlsScope {
public:
    StyledControlsScope();
    StyledControlsScope(const StyledControlsScope&) = delete;
    StyledControlsScope& operator=(const StyledControlsScope&) = delete;
    ~StyledControlsScope();

private:
    ULONG_PTR cookie_ = 0;
    bool active_ = false;
};

// Whether a window of the system class takes the common controls' look.
bool HasStyledLook(const wchar_t* windowClass);

}  // namespace qs::win
