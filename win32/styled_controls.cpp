#include "styled_controls.h"

#include <commctrl.h>

#include <array>
#include <cwchar>

#include "res/resource_ids.h"

namespace qs::win {

namespace {

// The activation context of the program's styled-controls manifest, made at
// its first use; none where the module carries no such manifest.
HANDLE StyledContext() {
    static const HANDLE context = [] {
        std::array<wchar_t, MAX_PATH> module{};
        ::GetModuleFileNameW(nullptr, module.data(), static_cast<DWORD>(module.size()));
        ACTCTXW request{};
        request.cbSize = sizeof(request);
        request.dwFlags = ACTCTX_FLAG_HMODULE_VALID | ACTCTX_FLAG_RESOURCE_NAME_VALID;
        request.lpSource = module.data();
        request.hModule = ::GetModuleHandleW(nullptr);
        request.lpResourceName = MAKEINTRESOURCEW(IDR_STYLED_CONTROLS);
        const HANDLE made = ::CreateActCtxW(&request);
        // The library loads inside the context, so in its version 6.
        ULONG_PTR cookie = 0;
        const bool active = made != INVALID_HANDLE_VALUE && ::ActivateActCtx(made, &cookie) != FALSE;
        INITCOMMONCONTROLSEX controls{sizeof(controls), ICC_STANDARD_CLASSES | ICC_BAR_CLASSES};
        ::InitCommonControlsEx(&controls);
        if (active) ::DeactivateActCtx(0, cookie);
        return made;
    }();
    return context;
}

}  // namespace

StyledControlsScope::StyledControlsScope() {
    const HANDLE context = StyledContext();
    active_ = context != INVALID_HANDLE_VALUE && ::ActivateActCtx(context, &cookie_) != FALSE;
}

StyledControlsScope::~StyledControlsScope() {
    if (active_) ::DeactivateActCtx(0, cookie_);
}

bool HasStyledLook(const wchar_t* windowClass) {
    for (const wchar_t* styled : {L"BUTTON", L"COMBOBOX", L"LISTBOX"}) {
        if (_wcsicmp(windowClass, styled) == 0) return true;
    }
    return false;
}

}  // namespace qs::win
