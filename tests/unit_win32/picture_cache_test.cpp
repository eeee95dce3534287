// The drawn pictures of the process: each drawn once for its size and DPI,
// a theme switch back and forth drawing nothing twice, and a window drawing
// only the pictures it shows.
#include <gtest/gtest.h>

#include <windows.h>

#include "picture_cache.h"
#include "ui/form.h"
#include "ui/picture_box.h"
#include "win32_backend.h"
#include "window_test_support.h"

namespace {

using qs::ui::PictureSlot;
using qs::win::PictureCache;

TEST(PictureCache, ASecondRequestDrawsNothing) {
    PictureCache& cache = PictureCache::Shared();
    const qs::ui::PictureRef picture{PictureSlot::ImageMenu, 6 * 20 + 7};
    const std::size_t before = cache.Draws();
    const qs::win::PixelImage& first = cache.Get(picture, 23, 21, 144);
    EXPECT_EQ(cache.Draws(), before + 1);
    EXPECT_EQ(first.width, 23);
    EXPECT_EQ(first.height, 21);
    const qs::win::PixelImage& second = cache.Get(picture, 23, 21, 144);
    EXPECT_EQ(cache.Draws(), before + 1);
    EXPECT_EQ(&first, &second);
}

TEST(PictureCache, SwitchingThemesBackAndForthDrawsEachPictureOnce) {
    PictureCache& cache = PictureCache::Shared();
    const std::size_t before = cache.Draws();
    for (int round = 0; round < 3; ++round) {
        for (std::int16_t t : {std::int16_t{1}, std::int16_t{5}}) {
            cache.Get({PictureSlot::ImageMU, static_cast<std::int16_t>(t * 5 + 2)}, 31, 31, 120);
            cache.Get({PictureSlot::ImageBack, t}, 201, 97, 120);
        }
    }
    EXPECT_EQ(cache.Draws(), before + 4);
}

TEST(PictureCache, EachDpiAndSizeIsDrawnForItself) {
    PictureCache& cache = PictureCache::Shared();
    const qs::ui::PictureRef picture{PictureSlot::ImageSSpAG, 4};
    const std::size_t before = cache.Draws();
    cache.Get(picture, 9, 9, 96);
    cache.Get(picture, 13, 13, 144);
    cache.Get(picture, 13, 13, 144);
    cache.Get(picture, 17, 17, 192);
    EXPECT_EQ(cache.Draws(), before + 3);
}

TEST(PictureCache, AnEmptyReferenceDrawsNothing) {
    PictureCache& cache = PictureCache::Shared();
    const std::size_t before = cache.Draws();
    EXPECT_TRUE(cache.Get({}, 20, 20, 96).pixels.empty());
    EXPECT_EQ(cache.Draws(), before);
}

class TwoButtonForm : public qs::ui::Form {
public:
    TwoButtonForm()
        : Form(L"frmCacheTest", qs::ui::FormStyle::Dialog), First(*this, L"ImageOK"), Second(*this, L"ImageCancel") {
        SetCaption(L"QuillstartCacheTest");
        Move(1500, 1500, 3000, 1500);
        // Sizes no other test uses, so every draw counted here is this form's.
        First.Move(300, 300, 451, 451);
        Second.Move(1200, 300, 451, 451);
        SetPicture({PictureSlot::ImageBack, 3});
        First.SetPicture({PictureSlot::ImageMU, 3 * 5 + 2});
        Second.SetPicture({PictureSlot::ImageMU, 3 * 5 + 2});
    }
    qs::ui::PictureBox First;
    qs::ui::PictureBox Second;
};

TEST(PictureCache, AWindowDrawsOnlyThePicturesItShows) {
    qs::test::Pump();
    PictureCache& cache = PictureCache::Shared();
    const std::size_t before = cache.Draws();
    qs::win::Win32Backend backend{::GetModuleHandleW(nullptr)};
    TwoButtonForm form;
    form.SetBackend(&backend);
    form.Load();
    form.Show();
    const HWND window = backend.WindowOf(form);
    ASSERT_NE(window, nullptr);
    ::RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    qs::test::Pump();
    // The face picture and the one button picture that both buttons share;
    // none of the other six themes.
    EXPECT_EQ(cache.Draws(), before + 2);
    // Repainting draws nothing new.
    ::RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    EXPECT_EQ(cache.Draws(), before + 2);
    form.Unload();
    qs::test::Pump();
}

}  // namespace
