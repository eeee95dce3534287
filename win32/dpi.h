#pragma once
// Dots per inch and twips. A twip is 1/1440 inch; the program counts a whole
// number of twips per pixel (1440 / DPI, as the screen object reports it:
// 15 at 96 DPI, 10 at 144, 7 at 192), and every conversion between the two
// units uses that same number so that positions round-trip exactly.
#include <windows.h>

#include <cstdint>

namespace qs::win {

// Asks for per-monitor DPI awareness where the system offers the call; the
// manifest asks for it too, so a refusal is not fatal.
void EnablePerMonitorDpi();

UINT SystemDpi();
// The DPI of a window's monitor, or the system DPI where that is unknown.
UINT WindowDpi(HWND window);

std::int32_t TwipsPerPixelAt(UINT dpi);
std::int32_t TwipsToPixels(std::int32_t twips, UINT dpi);
std::int32_t PixelsToTwips(std::int32_t pixels, UINT dpi);

// The system's message font, sized for the given DPI.
LOGFONTW MessageFontAt(UINT dpi);

}  // namespace qs::win
