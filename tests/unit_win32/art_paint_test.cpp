// The drawing kit under the pictures: a channel is rounded as the C
// library's lround rounds it, half away from zero, and clamped to a byte;
// lengths are those std::hypot gives; a rounded rectangle's distance is
// above 0 everywhere beyond its bounds, which the strips rely on to skip
// measuring most of their samples.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "art/paint.h"

namespace {

using qs::win::art::Distance;
using qs::win::art::RoundRectDistance;
using qs::win::art::Rgba;
using qs::win::art::ToPixel;

std::uint32_t LroundChannel(double v) {
    return static_cast<std::uint32_t>(std::clamp(std::lround(v * 255.0), 0L, 255L));
}

TEST(ArtPaint, ChannelsRoundHalfAwayFromZeroAndClampToAByte) {
    // Every step of a fine sweep, each exact half and its neighbours, and
    // values beyond both ends.
    for (int k = -300; k <= 255 * 64 + 300; ++k) {
        const double v = k / (255.0 * 64);
        const std::uint32_t pixel = ToPixel({v, v, v, 1.0});
        EXPECT_EQ(pixel & 0xFF, LroundChannel(v)) << v;
        EXPECT_EQ((pixel >> 16) & 0xFF, LroundChannel(v)) << v;
    }
    for (int k = -1; k <= 256; ++k) {
        const double half = (k + 0.5) / 255.0;
        for (const double v : {std::nextafter(half, -1.0), half, std::nextafter(half, 2.0)}) {
            EXPECT_EQ(ToPixel({v, v, v, 1.0}) & 0xFF, LroundChannel(v)) << v;
        }
    }
    EXPECT_EQ(ToPixel({0.5, 0.5, 0.5, 1.0}), 0xFF808080u);
    EXPECT_EQ(ToPixel({0.0, 0.0, 0.0, 0.0}), 0u);
}

TEST(ArtPaint, AColourStaysPremultipliedWithinItsAlpha) {
    // A channel above the alpha is held to it.
    EXPECT_EQ(ToPixel({1.0, 0.2, 0.0, 0.5}), 0x80803300u);
}

TEST(ArtPaint, LengthsAreThoseOfHypot) {
    for (double dx = -40; dx <= 40; dx += 0.37) {
        for (double dy = -40; dy <= 40; dy += 0.41) {
            EXPECT_NEAR(Distance(dx, dy), std::hypot(dx, dy), 1e-12) << dx << "," << dy;
        }
    }
    // Along an axis the length is the coordinate itself, exactly.
    for (double v = 0.125; v < 500; v *= 1.7) {
        EXPECT_EQ(Distance(v, 0), v);
        EXPECT_EQ(Distance(0, -v), v);
    }
}

TEST(ArtPaint, ARoundedRectanglesDistanceIsAboveZeroBeyondItsBounds) {
    const double left = 10;
    const double top = 2;
    const double right = 60;
    const double bottom = 14;
    for (const double radius : {0.0, 3.0, 6.0, 9.0}) {
        for (double x = 0; x <= 70; x += 0.25) {
            for (double y = -4; y <= 20; y += 0.25) {
                const bool beyond = x < left || x > right || y < top || y > bottom;
                if (beyond) {
                    EXPECT_GT(RoundRectDistance(x, y, left, top, right, bottom, radius), 0) << x << "," << y;
                }
            }
        }
        // Where the corners fit, the middle of each side lies on the outline.
        if (radius <= (bottom - top) / 2) {
            EXPECT_EQ(RoundRectDistance(left, 8, left, top, right, bottom, radius), 0);
            EXPECT_EQ(RoundRectDistance(35, bottom, left, top, right, bottom, radius), 0);
        }
    }
}

}  // namespace
