#pragma once
// The form and fixture of the window backend's tests: a borderless form with
// a text box, a timer, a button, a hidden list and a label, loaded with real
// windows before each test and unloaded after it.
#include <gtest/gtest.h>
#include <windows.h>

#include "ui/command_button.h"
#include "ui/form.h"
#include "ui/label.h"
#include "ui/list_box.h"
#include "ui/text_box.h"
#include "ui/timer.h"
#include "win32_backend.h"
#include "window_test_support.h"

namespace qs::test {

class TestForm : public qs::ui::Form {
public:
    explicit TestForm(qs::ui::FormStyle style = qs::ui::FormStyle::Borderless)
        : Form(L"frmTest", style),
          Box(*this, L"TextBox1"),
          Tick(*this, L"Timer1", 20),
          Button(*this, L"Command1"),
          HiddenList(*this, L"List1", true),
          Caption(*this, L"Label1", L"Count 1234") {
        SetCaption(L"QuillstartBackendTest");
        Move(1500, 1500, 6000, 600);
        Box.Move(720, 0, 1812, 372);
        Button.Move(3000, 0, 900, 300);
        HiddenList.SetVisible(false);
        Caption.Move(4200, 0, 1500, 300);
    }
    qs::ui::TextBox Box;
    qs::ui::Timer Tick;
    qs::ui::CommandButton Button;
    qs::ui::ListBox HiddenList;
    qs::ui::Label Caption;
};

// The edit box of the form's window when that window is shown; none otherwise.
inline HWND EditOfShownForm(const qs::win::Win32Backend& backend, const qs::ui::Form& form) {
    const HWND shown = backend.WindowOf(form);
    if (shown == nullptr || !::IsWindowVisible(shown)) return nullptr;
    return ::FindWindowExW(shown, nullptr, L"EDIT", nullptr);
}

class Win32BackendTest : public ::testing::Test {
protected:
    void SetUp() override {
        // A quit left by an earlier test's last unload must not end this one's loops.
        Pump();
        form.SetBackend(&backend);
        form.Load();
        window = backend.WindowOf(form);
        ASSERT_NE(window, nullptr);
        edit = ::FindWindowExW(window, nullptr, L"EDIT", nullptr);
        ASSERT_NE(edit, nullptr);
    }
    void TearDown() override { form.Unload(); }

    qs::win::Win32Backend backend{::GetModuleHandleW(nullptr)};
    TestForm form;
    HWND window = nullptr;
    HWND edit = nullptr;
};

}  // namespace qs::test
