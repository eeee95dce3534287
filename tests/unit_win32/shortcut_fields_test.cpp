// Hotkey and icon texts of a shortcut.
#include <gtest/gtest.h>

#include <windows.h>
#include <commctrl.h>

#include "shortcut_fields.h"

namespace {

using qs::win::HotkeyFromText;
using qs::win::IconLocationFromText;

TEST(Hotkey, CtrlShiftLetter) { EXPECT_EQ(HotkeyFromText(L"CTRL+SHIFT+L"), MAKEWORD('L', HOTKEYF_CONTROL | HOTKEYF_SHIFT)); }

TEST(Hotkey, ModifiersInAnyOrderAndCase) {
    EXPECT_EQ(HotkeyFromText(L"shift+Alt+q"), MAKEWORD('Q', HOTKEYF_SHIFT | HOTKEYF_ALT));
    EXPECT_EQ(HotkeyFromText(L"Ctrl + 7"), MAKEWORD('7', HOTKEYF_CONTROL));
}

TEST(Hotkey, FunctionKeys) {
    EXPECT_EQ(HotkeyFromText(L"CTRL+F1"), MAKEWORD(VK_F1, HOTKEYF_CONTROL));
    EXPECT_EQ(HotkeyFromText(L"ALT+F12"), MAKEWORD(VK_F12, HOTKEYF_ALT));
}

TEST(Hotkey, EmptyOrUnreadableIsNone) {
    EXPECT_EQ(HotkeyFromText(L""), 0);
    EXPECT_EQ(HotkeyFromText(L"CTRL+SHIFT"), 0);
    EXPECT_EQ(HotkeyFromText(L"CTRL+??"), 0);
    EXPECT_EQ(HotkeyFromText(L"CTRL+F99"), 0);
}

TEST(IconLocation, PathAndIndex) {
    const auto icon = IconLocationFromText(L"C:\\Tools\\Quillstart.exe, 0");
    EXPECT_EQ(icon.path, L"C:\\Tools\\Quillstart.exe");
    EXPECT_EQ(icon.index, 0);
    EXPECT_EQ(IconLocationFromText(L"C:\\a,b\\x.dll,3").index, 3);
    EXPECT_EQ(IconLocationFromText(L"C:\\a,b\\x.dll,3").path, L"C:\\a,b\\x.dll");
}

TEST(IconLocation, WithoutCommaIndexIsZero) {
    const auto icon = IconLocationFromText(L"C:\\Tools\\Quillstart.exe");
    EXPECT_EQ(icon.path, L"C:\\Tools\\Quillstart.exe");
    EXPECT_EQ(icon.index, 0);
}

}  // namespace
