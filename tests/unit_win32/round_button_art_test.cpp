// The reply buttons' picture: which slot shows which look, and a round,
// smooth, transparent-edged button at any size.
#include <gtest/gtest.h>

#include "round_button_art.h"

namespace {

using qs::win::ButtonLook;
using qs::win::LookOfPicture;
using qs::win::RenderRoundButton;

std::uint32_t At(const qs::win::PixelImage& image, int x, int y) {
    return image.pixels[static_cast<std::size_t>(y) * image.width + x];
}

std::uint32_t Alpha(std::uint32_t argb) { return argb >> 24; }

TEST(RoundButtonArt, SlotsChooseTheLook) {
    using qs::ui::PictureSlot;
    EXPECT_EQ(LookOfPicture({PictureSlot::ImageMU, 2}), ButtonLook::Up);
    EXPECT_EQ(LookOfPicture({PictureSlot::ImageMU, 17}), ButtonLook::Up);
    EXPECT_EQ(LookOfPicture({PictureSlot::ImageMD, 1}), ButtonLook::Down);
    EXPECT_EQ(LookOfPicture({PictureSlot::ImageMD, 7}), ButtonLook::Down);
    EXPECT_EQ(LookOfPicture({PictureSlot::ImageMZ, 0}), ButtonLook::None);
    EXPECT_EQ(LookOfPicture({PictureSlot::ImageMZ, 3}), ButtonLook::None);
    EXPECT_EQ(LookOfPicture({}), ButtonLook::None);
    EXPECT_EQ(LookOfPicture({PictureSlot::ImageMenu, 2}), ButtonLook::None);
}

TEST(RoundButtonArt, ImageHasTheAskedSize) {
    const auto image = RenderRoundButton(32, 30, 1.0, ButtonLook::Up);
    EXPECT_EQ(image.width, 32);
    EXPECT_EQ(image.height, 30);
    EXPECT_EQ(image.pixels.size(), 32u * 30u);
}

TEST(RoundButtonArt, NoLookIsFullyTransparent) {
    const auto image = RenderRoundButton(32, 32, 1.0, ButtonLook::None);
    ASSERT_EQ(image.pixels.size(), 32u * 32u);
    for (const std::uint32_t pixel : image.pixels) EXPECT_EQ(pixel, 0u);
}

TEST(RoundButtonArt, CentreIsOpaqueAndCornersAreClear) {
    const auto image = RenderRoundButton(32, 32, 1.0, ButtonLook::Up);
    EXPECT_EQ(Alpha(At(image, 16, 16)), 255u);
    EXPECT_EQ(At(image, 0, 0), 0u);
    EXPECT_EQ(At(image, 31, 0), 0u);
    EXPECT_EQ(At(image, 0, 31), 0u);
}

TEST(RoundButtonArt, EdgeIsAntialiased) {
    // Along the row through the middle, the button's left edge passes from
    // clear to opaque over at least one partly covered pixel.
    const auto image = RenderRoundButton(32, 32, 1.0, ButtonLook::Up);
    bool partial = false;
    for (int x = 0; x < 16; ++x) {
        const std::uint32_t a = Alpha(At(image, x, 15));
        partial = partial || (a > 10 && a < 245);
    }
    EXPECT_TRUE(partial);
}

TEST(RoundButtonArt, PixelsArePremultiplied) {
    const auto image = RenderRoundButton(40, 40, 1.0, ButtonLook::Hover);
    for (const std::uint32_t pixel : image.pixels) {
        const std::uint32_t a = Alpha(pixel);
        EXPECT_LE((pixel >> 16) & 0xFF, a);
        EXPECT_LE((pixel >> 8) & 0xFF, a);
        EXPECT_LE(pixel & 0xFF, a);
    }
}

TEST(RoundButtonArt, LooksDiffer) {
    const auto up = RenderRoundButton(32, 32, 1.0, ButtonLook::Up);
    const auto hover = RenderRoundButton(32, 32, 1.0, ButtonLook::Hover);
    const auto down = RenderRoundButton(32, 32, 1.0, ButtonLook::Down);
    EXPECT_NE(At(up, 16, 20), At(hover, 16, 20));
    EXPECT_NE(At(up, 16, 20), At(down, 16, 20));
}

TEST(RoundButtonArt, ScalesWithTheDpi) {
    // At twice the DPI the button is twice as large: a point a quarter of the
    // way in from the left on the middle row is inside at both sizes, and
    // the corner is clear at both.
    const auto small = RenderRoundButton(32, 32, 1.0, ButtonLook::Up);
    const auto large = RenderRoundButton(64, 64, 2.0, ButtonLook::Up);
    EXPECT_EQ(Alpha(At(small, 8, 16)), 255u);
    EXPECT_EQ(Alpha(At(large, 16, 32)), 255u);
    EXPECT_EQ(At(large, 2, 2), 0u);
}

}  // namespace
