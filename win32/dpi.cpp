#include "dpi.h"

#include <cmath>

#include "handles.h"

namespace qs::win {

namespace {

// Calls of newer systems, looked up at run time so the program still starts
// where they are missing.
template <typename Function>
Function User32Function(const char* name) {
    HMODULE user32 = ::GetModuleHandleW(L"user32.dll");
    if (user32 == nullptr) return nullptr;
    return reinterpret_cast<Function>(reinterpret_cast<void*>(::GetProcAddress(user32, name)));
}

using SetProcessDpiAwarenessContextFn = BOOL(WINAPI*)(HANDLE);
using SetProcessDpiAwareFn = BOOL(WINAPI*)();
using GetDpiForWindowFn = UINT(WINAPI*)(HWND);
using GetDpiForSystemFn = UINT(WINAPI*)();
using SystemParametersInfoForDpiFn = BOOL(WINAPI*)(UINT, UINT, PVOID, UINT, UINT);

// DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2 and _PER_MONITOR_AWARE.
HANDLE const kPerMonitorV2 = reinterpret_cast<HANDLE>(static_cast<INT_PTR>(-4));
HANDLE const kPerMonitor = reinterpret_cast<HANDLE>(static_cast<INT_PTR>(-3));

}  // namespace

void EnablePerMonitorDpi() {
    if (auto setContext = User32Function<SetProcessDpiAwarenessContextFn>("SetProcessDpiAwarenessContext")) {
        if (setContext(kPerMonitorV2) || setContext(kPerMonitor)) return;
    }
    if (auto setAware = User32Function<SetProcessDpiAwareFn>("SetProcessDPIAware")) setAware();
}

UINT SystemDpi() {
    if (auto forSystem = User32Function<GetDpiForSystemFn>("GetDpiForSystem")) {
        const UINT dpi = forSystem();
        if (dpi != 0) return dpi;
    }
    WindowDc screen(nullptr);
    const int dpi = ::GetDeviceCaps(screen.Get(), LOGPIXELSX);
    return dpi > 0 ? static_cast<UINT>(dpi) : USER_DEFAULT_SCREEN_DPI;
}

UINT WindowDpi(HWND window) {
    if (window != nullptr) {
        if (auto forWindow = User32Function<GetDpiForWindowFn>("GetDpiForWindow")) {
            const UINT dpi = forWindow(window);
            if (dpi != 0) return dpi;
        }
    }
    return SystemDpi();
}

std::int32_t TwipsPerPixelAt(UINT dpi) {
    const std::int32_t perPixel = 1440 / static_cast<std::int32_t>(dpi == 0 ? USER_DEFAULT_SCREEN_DPI : dpi);
    return perPixel < 1 ? 1 : perPixel;
}

std::int32_t TwipsToPixels(std::int32_t twips, UINT dpi) {
    return static_cast<std::int32_t>(std::lround(static_cast<double>(twips) / TwipsPerPixelAt(dpi)));
}

std::int32_t PixelsToTwips(std::int32_t pixels, UINT dpi) { return pixels * TwipsPerPixelAt(dpi); }

LOGFONTW MessageFontAt(UINT dpi) {
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof(metrics);
    if (auto forDpi = User32Function<SystemParametersInfoForDpiFn>("SystemParametersInfoForDpi")) {
        if (forDpi(SPI_GETNONCLIENTMETRICS, sizeof(metrics), &metrics, 0, dpi)) return metrics.lfMessageFont;
    }
    if (!::SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof(metrics), &metrics, 0)) {
        LOGFONTW fallback{};
        fallback.lfHeight = -::MulDiv(9, static_cast<int>(dpi), 72);
        fallback.lfWeight = FW_NORMAL;
        fallback.lfQuality = CLEARTYPE_QUALITY;
        lstrcpynW(fallback.lfFaceName, L"Tahoma", LF_FACESIZE);
        return fallback;
    }
    // The metrics come at the system DPI; scale them to the window's.
    LOGFONTW font = metrics.lfMessageFont;
    font.lfHeight = ::MulDiv(font.lfHeight, static_cast<int>(dpi), static_cast<int>(SystemDpi()));
    return font;
}

}  // namespace qs::win
