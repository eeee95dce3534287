// The windows under the pointer and their processes, asked of the real
// system: this test program's own window, process and file stand in for a
// running program the user points at.
#include <gtest/gtest.h>
#include <windows.h>
#include <tlhelp32.h>

#include <algorithm>

#include "backend_test_form.h"
#include "common/text_case.h"
#include "win32_system.h"

namespace {

std::wstring Lower(const std::wstring& text) { return qs::LCase(text); }

class PointerProcessesTest : public qs::test::Win32BackendTest {
protected:
    void SetUp() override {
        qs::test::Win32BackendTest::SetUp();
        form.Show();
        ASSERT_TRUE(qs::test::PumpUntil([&] { return ::IsWindowVisible(window) != FALSE; }));
    }
    qs::win::Win32System system;
};

TEST_F(PointerProcessesTest, TheWindowUnderAPointIsFoundAndItsOwnerIsThisProcess) {
    RECT r{};
    ::GetWindowRect(edit, &r);
    const qs::WindowHandle found = system.WindowFromPoint({(r.left + r.right) / 2, (r.top + r.bottom) / 2});
    const HWND hwnd = reinterpret_cast<HWND>(found);
    EXPECT_TRUE(hwnd == edit || hwnd == window || ::IsChild(window, hwnd));
    EXPECT_EQ(system.WindowProcessId(found), ::GetCurrentProcessId());
}

TEST_F(PointerProcessesTest, AProcessPathIsItsProgramFilesFullPath) {
    const std::wstring path = system.ProcessExecutablePath(::GetCurrentProcessId());
    ASSERT_GT(path.size(), 3u);
    EXPECT_EQ(path[1], L':');
    const std::wstring lower = Lower(path);
    EXPECT_NE(lower.find(L"quill_unit_tests.exe"), std::wstring::npos) << lower;
}

TEST_F(PointerProcessesTest, NoWindowAndNoProcessGiveNoPath) {
    EXPECT_EQ(system.WindowProcessId(0), 0u);
    EXPECT_EQ(system.ProcessExecutablePath(0), L"");
}

TEST_F(PointerProcessesTest, AProcessWalkWithTheProcessFlagListsThisProcess) {
    const auto walk = system.ProcessSnapshot(TH32CS_SNAPPROCESS, 0);
    ASSERT_TRUE(walk.has_value());
    const DWORD self = ::GetCurrentProcessId();
    EXPECT_TRUE(std::any_of(walk->begin(), walk->end(), [&](const qs::ProcessEntry& e) {
        return e.th32ProcessID == self && Lower(e.szExeFile).find(L"quill_unit_tests") != std::wstring::npos;
    }));
}

TEST_F(PointerProcessesTest, TheFormsNoDropPointerIsTheCursorUntilItIsSetBack) {
    form.SetMousePointer(12);
    EXPECT_EQ(::GetCursor(), ::LoadCursorW(nullptr, IDC_NO));
    form.SetMousePointer(0);
    EXPECT_EQ(::GetCursor(), ::LoadCursorW(nullptr, IDC_ARROW));
}

}  // namespace
