// The bar's picture: size, the shapes where they belong, and smooth edges.
#include <gtest/gtest.h>

#include "pencil_art.h"

namespace {

using qs::win::RenderPencilBar;

std::uint32_t At(const qs::win::PixelImage& image, int x, int y) {
    return image.pixels[static_cast<std::size_t>(y) * image.width + x];
}

int Brightness(std::uint32_t rgb) { return ((rgb >> 16) & 0xFF) + ((rgb >> 8) & 0xFF) + (rgb & 0xFF); }

TEST(PencilArt, ImageHasTheAskedSize) {
    const auto image = RenderPencilBar(424, 23, 1.0, {});
    EXPECT_EQ(image.width, 424);
    EXPECT_EQ(image.height, 23);
    EXPECT_EQ(image.pixels.size(), 424u * 23u);
}

TEST(PencilArt, EmptySizeGivesAnEmptyImage) { EXPECT_TRUE(RenderPencilBar(0, 0, 1.0, {}).pixels.empty()); }

TEST(PencilArt, TipIsDarkGraphiteAndCornersAreBackground) {
    const auto image = RenderPencilBar(424, 23, 1.0, {});
    const std::uint32_t corner = At(image, 0, 0);
    const std::uint32_t tip = At(image, 7, 11);
    EXPECT_LT(Brightness(tip), Brightness(corner) / 2);
    // The top left corner is outside the cone, so it shows the gap colour.
    EXPECT_EQ(At(image, 1, 0), corner);
}

TEST(PencilArt, FieldIsPaintedInTheFieldColour) {
    const auto image = RenderPencilBar(424, 23, 1.0, {{44, 3, 172, 20}});
    EXPECT_EQ(At(image, 100, 11), qs::win::kPencilFieldColor);
    EXPECT_NE(At(image, 200, 11), qs::win::kPencilFieldColor);
}

TEST(PencilArt, ConeEdgeIsAntialiased) {
    // Somewhere along the slanted edge of the cone a pixel lies between the
    // gap colour and the wood: a blend, not a hard step.
    const auto image = RenderPencilBar(424, 23, 1.0, {});
    const int gap = Brightness(At(image, 0, 0));
    bool blended = false;
    for (int x = 3; x < 34 && !blended; ++x) {
        for (int y = 0; y < 11 && !blended; ++y) {
            const int b = Brightness(At(image, x, y));
            const int wood = Brightness(At(image, x, 11));
            blended = b != gap && b != wood && std::abs(b - gap) > 6 && std::abs(b - wood) > 6;
        }
    }
    EXPECT_TRUE(blended);
}

TEST(PencilArt, ScalesWithTheDpi) {
    const auto small = RenderPencilBar(424, 23, 1.0, {});
    const auto large = RenderPencilBar(848, 46, 2.0, {});
    // The same point of the pencil has the same colour at both sizes.
    EXPECT_EQ(At(small, 200, 11), At(large, 400, 23));
    EXPECT_EQ(At(small, 415, 11), At(large, 830, 23));
}

}  // namespace
