// The picture catalogue: every picture of every theme at 100, 150 and 200 %,
// the themes' colourings, the looks of one button, the letters, and strips
// that join into one pencil.
#include <gtest/gtest.h>

#include <windows.h>

#include <cstdint>
#include <set>
#include <string>

#include "art/catalogue.h"
#include "dpi.h"
#include "theme/holders.h"

namespace {

using qs::ui::PictureRef;
using qs::ui::PictureSlot;
using qs::win::PixelImage;
using qs::win::RenderPicture;

constexpr UINT kDpis[] = {96, 144, 192};

std::uint32_t At(const PixelImage& image, int x, int y) {
    return image.pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(image.width) +
                        static_cast<std::size_t>(x)];
}
std::uint32_t Alpha(std::uint32_t pixel) { return pixel >> 24; }

// The size in twips a picture of the slot is shown at on the forms.
SIZE DesignSize(PictureSlot slot) {
    switch (slot) {
        case PictureSlot::ImageMenu:
        case PictureSlot::ImageDown:
        case PictureSlot::ImageActive:
            return {235, 235};
        case PictureSlot::ImageBU:
        case PictureSlot::ImageBD:
        case PictureSlot::ImageBZ:
            return {480, 480};
        case PictureSlot::ImageSU:
        case PictureSlot::ImageSD:
        case PictureSlot::ImageSZ:
        case PictureSlot::ImageSSpUR:
        case PictureSlot::ImageSSpUG:
        case PictureSlot::ImageSSpAG:
        case PictureSlot::ImageSSpMO:
        case PictureSlot::ImageSSpMD:
            return {120, 120};
        case PictureSlot::ImageMe:
        case PictureSlot::ImageApp:
            return {336, 336};
        case PictureSlot::ImageBackZero:
            return {480, 372};
        case PictureSlot::ImageBackMain:
            return {5640, 372};
        case PictureSlot::ImageBackWeb:
            return {5940, 372};
        case PictureSlot::ImageQBackS:
            return {240, 372};
        case PictureSlot::ImageQBackM:
            return {1452, 372};
        case PictureSlot::ImageQBackB:
            return {7812, 372};
        case PictureSlot::ImageBack:
            return {5400, 8652};
        default:
            return {168, 168};
    }
}

PixelImage Render(const PictureRef& picture, UINT dpi) {
    const SIZE size = DesignSize(picture.slot);
    return RenderPicture(picture, qs::win::TwipsToPixels(size.cx, dpi), qs::win::TwipsToPixels(size.cy, dpi),
                         dpi / 96.0);
}

PixelImage Button(PictureSlot slot, std::int16_t index, int pixels = 32) {
    return RenderPicture({slot, index}, pixels, pixels, 1.0);
}

TEST(PictureCatalogue, EveryPictureOfEveryThemeIsDrawnAtTheAskedSizeAtEveryDpi) {
    for (auto s = static_cast<int>(PictureSlot::ImageMenu); s <= static_cast<int>(PictureSlot::ImageApp); ++s) {
        const auto slot = static_cast<PictureSlot>(s);
        for (std::int16_t index = 0; index < qs::ui::SlotCount(slot); ++index) {
            for (const UINT dpi : kDpis) {
                const PictureRef picture{slot, index};
                const PixelImage image = Render(picture, dpi);
                const SIZE size = DesignSize(slot);
                ASSERT_EQ(image.width, qs::win::TwipsToPixels(size.cx, dpi)) << "slot " << s << " index " << index;
                ASSERT_EQ(image.height, qs::win::TwipsToPixels(size.cy, dpi));
                ASSERT_EQ(image.pixels.size(), static_cast<std::size_t>(image.width) * image.height);
                std::size_t shown = 0;
                for (const std::uint32_t pixel : image.pixels) shown += Alpha(pixel) > 0 ? 1 : 0;
                EXPECT_GT(shown, 0u) << "slot " << s << " index " << index << " dpi " << dpi;
            }
        }
    }
}

TEST(PictureCatalogue, AnEmptyReferenceOrSizeDrawsNothing) {
    EXPECT_TRUE(RenderPicture({}, 20, 20, 1.0).pixels.empty());
    EXPECT_TRUE(RenderPicture({PictureSlot::ImageMU, 2}, 0, 20, 1.0).pixels.empty());
}

TEST(PictureCatalogue, ThemeFollowsFromTheIndexByTheHoldersRules) {
    using qs::win::ThemeOfPicture;
    for (std::int16_t t = 0; t < 7; ++t) {
        EXPECT_EQ(ThemeOfPicture(qs::ButtonOfTheme(PictureSlot::ImageMenu, t, 8)), t);
        EXPECT_EQ(ThemeOfPicture(qs::ButtonOfTheme(PictureSlot::ImageDown, t, 0)), t);
        EXPECT_EQ(ThemeOfPicture(qs::FiveOfTheme(PictureSlot::ImageMU, t, 4)), t);
        EXPECT_EQ(ThemeOfPicture(qs::FiveOfTheme(PictureSlot::ImageMQChoice, t, 0)), t);
        EXPECT_EQ(ThemeOfPicture(qs::TwoWayOfTheme(PictureSlot::ImageMD, t)), t);
        EXPECT_EQ(ThemeOfPicture(qs::TwoWayOfTheme(PictureSlot::ImageSD, t)), t);
        EXPECT_EQ(ThemeOfPicture(qs::OneOfTheme(PictureSlot::ImageBack, t)), t);
        EXPECT_EQ(ThemeOfPicture(qs::OneOfTheme(PictureSlot::ImageBackMain, t)), t);
    }
    EXPECT_EQ(ThemeOfPicture({PictureSlot::ImageActive, 5}), -1);
    EXPECT_EQ(ThemeOfPicture({PictureSlot::ImageMQSelected, 3}), -1);
    EXPECT_EQ(ThemeOfPicture({PictureSlot::ImageMQChoiceDown, 3}), -1);
    EXPECT_EQ(ThemeOfPicture({PictureSlot::ImageApp, 0}), -1);
}

TEST(PictureCatalogue, LightAndDarkThemesDiffer) {
    for (std::int16_t light = 0; light <= 1; ++light) {
        for (std::int16_t dark = 2; dark <= 6; ++dark) {
            const PixelImage a = Button(PictureSlot::ImageMenu, static_cast<std::int16_t>(light * 20 + 2));
            const PixelImage b = Button(PictureSlot::ImageMenu, static_cast<std::int16_t>(dark * 20 + 2));
            EXPECT_NE(At(a, 12, 12), At(b, 12, 12)) << light << " " << dark;
            const PixelImage faceA = RenderPicture({PictureSlot::ImageBack, light}, 40, 40, 1.0);
            const PixelImage faceB = RenderPicture({PictureSlot::ImageBack, dark}, 40, 40, 1.0);
            EXPECT_NE(At(faceA, 20, 20), At(faceB, 20, 20));
        }
    }
}

TEST(PictureCatalogue, EveryThemeHasItsOwnColouring) {
    std::set<std::uint32_t> faces;
    std::set<std::uint32_t> buttons;
    for (std::int16_t t = 0; t < 7; ++t) {
        faces.insert(At(RenderPicture({PictureSlot::ImageBack, t}, 40, 40, 1.0), 20, 20));
        buttons.insert(At(Button(PictureSlot::ImageMU, static_cast<std::int16_t>(t * 5 + 2)), 18, 20));
    }
    EXPECT_EQ(faces.size(), 7u);
    EXPECT_EQ(buttons.size(), 7u);
}

TEST(PictureCatalogue, PressedPointedAndActiveDifferFromRest) {
    for (std::int16_t t = 0; t < 7; ++t) {
        const PixelImage rest = Button(PictureSlot::ImageMU, static_cast<std::int16_t>(t * 5 + 2));
        const PixelImage pressed = Button(PictureSlot::ImageMD, qs::TwoWayOfTheme(PictureSlot::ImageMD, t).index);
        EXPECT_NE(rest.pixels, pressed.pixels) << t;
        EXPECT_NE(At(rest, 20, 20), At(pressed, 20, 20)) << t;
        for (std::int16_t i = 0; i < 9; ++i) {
            const auto index = static_cast<std::int16_t>(t * 20 + i);
            const PixelImage normal = Button(PictureSlot::ImageMenu, index);
            EXPECT_NE(normal.pixels, Button(PictureSlot::ImageDown, index).pixels) << t << " " << i;
            EXPECT_NE(normal.pixels, Button(PictureSlot::ImageActive, i).pixels) << t << " " << i;
        }
    }
}

TEST(PictureCatalogue, EachBarButtonHasItsOwnLetter) {
    std::set<std::vector<std::uint32_t>> looks;
    for (std::int16_t i = 0; i < 9; ++i) looks.insert(Button(PictureSlot::ImageMenu, i).pixels);
    EXPECT_EQ(looks.size(), 9u);
}

TEST(PictureCatalogue, SmallSpecialButtonShowsFiveStates) {
    std::set<std::vector<std::uint32_t>> looks;
    for (const PictureSlot slot : {PictureSlot::ImageSSpUR, PictureSlot::ImageSSpUG, PictureSlot::ImageSSpAG,
                                   PictureSlot::ImageSSpMO, PictureSlot::ImageSSpMD}) {
        looks.insert(RenderPicture({slot, 0}, 16, 16, 2.0).pixels);
    }
    EXPECT_EQ(looks.size(), 5u);
}

TEST(PictureCatalogue, PixelsArePremultiplied) {
    for (const PictureRef picture : {PictureRef{PictureSlot::ImageMenu, 46}, PictureRef{PictureSlot::ImageSSpMO, 3},
                                     PictureRef{PictureSlot::ImageMStar, 4}, PictureRef{PictureSlot::ImageApp, 0},
                                     PictureRef{PictureSlot::ImageBackWeb, 5}}) {
        for (const std::uint32_t pixel : RenderPicture(picture, 60, 24, 1.5).pixels) {
            const std::uint32_t a = Alpha(pixel);
            ASSERT_LE((pixel >> 16) & 0xFF, a);
            ASSERT_LE((pixel >> 8) & 0xFF, a);
            ASSERT_LE(pixel & 0xFF, a);
        }
    }
}

TEST(PictureCatalogue, RoundEdgesAreSmoothAndCornersClearAtEveryDpi) {
    for (const UINT dpi : kDpis) {
        const int size = qs::win::TwipsToPixels(480, dpi);
        const PixelImage image = RenderPicture({PictureSlot::ImageMU, 2}, size, size, dpi / 96.0);
        EXPECT_EQ(At(image, 0, 0), 0u);
        EXPECT_EQ(Alpha(At(image, size / 2, size / 2)), 255u);
        // Round the rim, pixels the edge passes through are partly covered:
        // about as many as the circle is long.
        int partial = 0;
        for (const std::uint32_t pixel : image.pixels) partial += (Alpha(pixel) > 10 && Alpha(pixel) < 245) ? 1 : 0;
        EXPECT_GT(partial, 2 * size) << dpi;
    }
}

TEST(PictureCatalogue, TheBarStripsJoinIntoOnePencil) {
    for (const UINT dpi : kDpis) {
        for (std::int16_t t = 0; t < 7; ++t) {
            const PixelImage point = Render({PictureSlot::ImageBackZero, t}, dpi);
            const PixelImage command = Render({PictureSlot::ImageBackMain, t}, dpi);
            const PixelImage web = Render({PictureSlot::ImageBackWeb, t}, dpi);
            ASSERT_EQ(point.height, command.height);
            ASSERT_EQ(command.height, web.height);
            std::size_t body = 0;
            for (int y = 0; y < point.height; ++y) {
                EXPECT_EQ(At(point, point.width - 1, y), At(command, 0, y)) << dpi << " " << t << " " << y;
                EXPECT_EQ(At(command, command.width - 1, y), At(web, 0, y)) << dpi << " " << t << " " << y;
                body += Alpha(At(command, 0, y)) == 255 ? 1 : 0;
            }
            // The joint runs through the body, not through empty space.
            EXPECT_GT(body, static_cast<std::size_t>(point.height / 2));
        }
    }
}

TEST(PictureCatalogue, TheCommandStripHoldsAFieldInTheBoxColourWhereTheCommandBoxLies) {
    const PixelImage strip = RenderPicture({PictureSlot::ImageBackMain, 4}, 376, 24, 1.0);
    // TextMain lies from 120 to 1932 of the strip's 5640 twips.
    const std::uint32_t field = At(strip, 376 * 1000 / 5640, 11);
    EXPECT_EQ(field, 0xFF4B4BF0u);
    EXPECT_NE(At(strip, 376 * 3000 / 5640, 11), field);
}

}  // namespace
