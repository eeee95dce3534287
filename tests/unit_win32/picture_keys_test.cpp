// A picture button that answers keys is a tab stop, hears the keys typed
// while it has the focus, and is named by its tooltip.
#include <gtest/gtest.h>

#include <windows.h>

#include <vector>

#include "ui/form.h"
#include "ui/picture_box.h"
#include "win32_backend.h"
#include "window_names.h"
#include "window_test_support.h"

namespace {

using qs::ui::PictureSlot;

class KeyedPictureForm : public qs::ui::Form {
public:
    KeyedPictureForm()
        : Form(L"frmPictureKeysTest", qs::ui::FormStyle::Borderless),
          Keyed(*this, L"ImageQuick(0)"),
          Plain(*this, L"ImageQuickSelected") {
        SetCaption(L"QuillstartPictureKeysTest");
        Move(1500, 1500, 3000, 600);
        Keyed.Move(120, 60, 168, 168);
        Keyed.SetPicture({PictureSlot::ImageMU, 2});
        Keyed.SetToolTipText(L"Item 0001");
        Keyed.KeyPress = [this](std::int16_t& key) { keys.push_back(key); };
        Plain.Move(600, 60, 168, 168);
        Plain.SetPicture({PictureSlot::ImageMU, 3});
        Plain.SetAccessibleName(L"Shown group");
    }
    qs::ui::PictureBox Keyed;
    qs::ui::PictureBox Plain;
    std::vector<std::int16_t> keys;
};

class PictureKeysTest : public ::testing::Test {
protected:
    void SetUp() override {
        qs::test::Pump();
        form.SetBackend(&backend);
        form.Load();
        form.Show();
        window = backend.WindowOf(form);
        ASSERT_NE(window, nullptr);
        keyed = ::FindWindowExW(window, nullptr, qs::win::kPictureClass, nullptr);
        ASSERT_NE(keyed, nullptr);
        plain = ::FindWindowExW(window, keyed, qs::win::kPictureClass, nullptr);
        ASSERT_NE(plain, nullptr);
    }
    void TearDown() override {
        if (form.IsLoaded()) form.Unload();
        qs::test::Pump();
    }
    qs::win::Win32Backend backend{::GetModuleHandleW(nullptr)};
    KeyedPictureForm form;
    HWND window = nullptr;
    HWND keyed = nullptr;
    HWND plain = nullptr;
};

TEST_F(PictureKeysTest, APictureThatAnswersKeysIsATabStopAndOneThatDoesNotIsNot) {
    EXPECT_NE(::GetWindowLongPtrW(keyed, GWL_STYLE) & WS_TABSTOP, 0);
    EXPECT_EQ(::GetWindowLongPtrW(plain, GWL_STYLE) & WS_TABSTOP, 0);
}

TEST_F(PictureKeysTest, EnterAndSpaceTypedOnThePictureReachItsKeyPress) {
    ::SendMessageW(keyed, WM_CHAR, VK_RETURN, 0);
    ::SendMessageW(keyed, WM_CHAR, L' ', 0);
    EXPECT_EQ(form.keys, (std::vector<std::int16_t>{13, 32}));
}

TEST_F(PictureKeysTest, APictureIsNamedByItsTooltipOrElseByItsGivenName) {
    EXPECT_EQ(qs::test::TextOf(keyed), L"Item 0001");
    EXPECT_EQ(qs::test::TextOf(plain), L"Shown group");
    form.Keyed.SetToolTipText(L"Item 0002");
    EXPECT_EQ(qs::test::TextOf(keyed), L"Item 0002");
}

}  // namespace
