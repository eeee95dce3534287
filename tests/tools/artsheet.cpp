// Writes contact sheets of the program's pictures: for each of 100, 150 and
// 200 %, one sheet with a block per theme showing the bar put together from
// its strips and buttons, every button look, the group pictures, the small
// special button, the QuickLauncher's strips and the program's pictures.
// Usage: artsheet [folder]   (writes artsheet-96.bmp, -144 and -192 there)
#include <windows.h>

#include <chrono>
#include <cstdio>
#include <tuple>
#include <string>
#include <vector>

#include "dpi.h"
#include "form_face.h"
#include "picture_cache.h"
#include "theme/holders.h"
#include "theme/theme_colors.h"

namespace {

using qs::ui::PictureRef;
using qs::ui::PictureSlot;
using qs::win::PixelImage;

constexpr int kBlockHeight = 1980;
constexpr int kSheetWidth = 12900;
constexpr int kMargin = 240;

struct Sheet {
    PixelImage image;
    UINT dpi;
    int Px(int twips) const { return qs::win::TwipsToPixels(twips, dpi); }

    void Fill(int left, int top, int width, int height, qs::ui::Color color) {
        const std::uint32_t pixel = 0xFF000000u | (static_cast<std::uint32_t>(qs::ui::RedOf(color)) << 16) |
                                    (static_cast<std::uint32_t>(qs::ui::GreenOf(color)) << 8) |
                                    qs::ui::BlueOf(color);
        for (int y = Px(top); y < Px(top) + Px(height) && y < image.height; ++y) {
            for (int x = Px(left); x < Px(left) + Px(width) && x < image.width; ++x) {
                image.pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(image.width) +
                             static_cast<std::size_t>(x)] = pixel;
            }
        }
    }
    void Put(const PictureRef& picture, int left, int top, int width, int height) {
        const PixelImage& drawn = qs::win::PictureCache::Shared().Get(picture, Px(width), Px(height), dpi);
        qs::win::BlendInto(image, drawn, Px(left), Px(top));
    }
};

// The bar as the theme shows it: the form's colour, the three strips at
// their places, and the buttons lying on them.
void PutBar(Sheet& s, std::int16_t t, int top) {
    using qs::ButtonOfTheme;
    s.Fill(kMargin, top, 12324, 348, qs::ThemeFormColors[static_cast<std::size_t>(t)]);
    s.Put(qs::OneOfTheme(PictureSlot::ImageBackZero, t), kMargin, top, 480, 372);
    s.Put(qs::OneOfTheme(PictureSlot::ImageBackMain, t), kMargin + 600, top, 5640, 372);
    s.Put(qs::OneOfTheme(PictureSlot::ImageBackWeb, t), kMargin + 6360, top, 5940, 372);
    s.Put(qs::FiveOfTheme(PictureSlot::ImageMU, t, 2), kMargin + 144, top + 72, 168, 168);
    // PictureMenu 0 to 4, then PictureHelp, PictureWeb, PictureHide, PictureExit.
    const int lefts[9] = {2040, 2400, 2760, 3120, 3480, 4200, 3840, 4920, 5280};
    for (std::int16_t i = 0; i < 9; ++i) {
        // The Launch List button shows its active look, as with its pane open.
        const PictureRef picture = i == 2 ? qs::ui::HolderPicture(PictureSlot::ImageActive, i)
                                          : ButtonOfTheme(PictureSlot::ImageMenu, t, i);
        s.Put(picture, kMargin + 600 + lefts[i], top + 30, 235, 235);
    }
    s.Put(qs::OneOfTheme(t == 2 ? PictureSlot::ImageSSpUR : PictureSlot::ImageSSpUG, t), kMargin + 600 + 4615,
          top + 90, 120, 120);
    s.Put({PictureSlot::ImageApp, 0}, kMargin + 6360 + 5550, top, 336, 336);
}

void PutButtons(Sheet& s, std::int16_t t, int top) {
    int left = kMargin;
    const auto next = [&](const PictureRef& picture, int size) {
        s.Put(picture, left + (300 - size) / 2, top + (300 - size) / 2, size, size);
        left += 300;
    };
    for (std::int16_t i = 0; i < 9; ++i) next(qs::ButtonOfTheme(PictureSlot::ImageMenu, t, i), 235);
    for (std::int16_t i = 0; i < 9; ++i) next(qs::ButtonOfTheme(PictureSlot::ImageDown, t, i), 235);
    for (std::int16_t i = 0; i < 9; ++i) next(qs::ui::HolderPicture(PictureSlot::ImageActive, i), 235);
    for (const PictureSlot slot :
         {PictureSlot::ImageMX, PictureSlot::ImageMStar, PictureSlot::ImageMForward, PictureSlot::ImageMBackward}) {
        next(qs::OneOfTheme(slot, t), 235);
    }
    next(qs::OneOfTheme(PictureSlot::ImageMe, t), 300);
    next({PictureSlot::ImageApp, 0}, 300);

    left = kMargin;
    top += 330;
    for (std::int16_t g = 0; g < 5; ++g) next(qs::FiveOfTheme(PictureSlot::ImageMQChoice, t, g), 235);
    for (std::int16_t g = 0; g < 5; ++g) next(qs::ui::HolderPicture(PictureSlot::ImageMQChoiceDown, g), 235);
    for (std::int16_t g = 0; g < 5; ++g) next(qs::ui::HolderPicture(PictureSlot::ImageMQSelected, g), 235);
    for (std::int16_t g = 0; g < 5; ++g) next(qs::FiveOfTheme(PictureSlot::ImageBU, t, g), 300);
    for (std::int16_t g = 0; g < 5; ++g) next(qs::FiveOfTheme(PictureSlot::ImageMU, t, g), 235);
    for (std::int16_t g = 0; g < 5; ++g) next(qs::FiveOfTheme(PictureSlot::ImageSU, t, g), 120);
    next(qs::TwoWayOfTheme(PictureSlot::ImageBD, t), 300);
    next(qs::TwoWayOfTheme(PictureSlot::ImageMD, t), 235);
    next(qs::TwoWayOfTheme(PictureSlot::ImageSD, t), 120);
    next(qs::OneOfTheme(PictureSlot::ImageBZ, t), 300);
    next(qs::OneOfTheme(PictureSlot::ImageMZ, t), 235);
    next(qs::OneOfTheme(PictureSlot::ImageSZ, t), 120);
    for (const PictureSlot slot : {PictureSlot::ImageSSpUR, PictureSlot::ImageSSpUG, PictureSlot::ImageSSpAG,
                                   PictureSlot::ImageSSpMO, PictureSlot::ImageSSpMD}) {
        next(qs::OneOfTheme(slot, t), 180);
    }
}

// The QuickLauncher's top row: the point strip with its round button, the
// small strip, the medium strip with the group buttons, the big strip with
// item buttons.
void PutQuickRow(Sheet& s, std::int16_t t, int top) {
    s.Fill(kMargin, top, 10212, 372, qs::ThemeFormColors[static_cast<std::size_t>(t)]);
    s.Put(qs::OneOfTheme(PictureSlot::ImageBackZero, t), kMargin, top, 492, 372);
    s.Put(qs::FiveOfTheme(PictureSlot::ImageMU, t, 2), kMargin + 150, top + 90, 168, 168);
    s.Put(qs::OneOfTheme(PictureSlot::ImageQBackS, t), kMargin + 600, top, 240, 372);
    s.Put(qs::OneOfTheme(PictureSlot::ImageMForward, t), kMargin + 624, top + 100, 168, 168);
    s.Put(qs::OneOfTheme(PictureSlot::ImageQBackM, t), kMargin + 840, top, 1452, 372);
    for (std::int16_t g = 0; g < 5; ++g) {
        s.Put(qs::FiveOfTheme(PictureSlot::ImageMQChoice, t, g), kMargin + 840 + 120 + 240 * g, top + 90, 168, 168);
    }
    s.Put(qs::OneOfTheme(PictureSlot::ImageQBackB, t), kMargin + 2400, top, 7812, 372);
    for (int i = 0; i < 20; ++i) {
        const PictureRef picture = i < 15 ? qs::FiveOfTheme(PictureSlot::ImageMU, t, static_cast<std::int16_t>(i % 5))
                                          : qs::OneOfTheme(PictureSlot::ImageMStar, t);
        s.Put(picture, kMargin + 2400 + 156 + 360 * i, top + 90, 168, 168);
    }
}

bool WriteBmp(const std::wstring& path, const PixelImage& image) {
    const int rowBytes = image.width * 3 + (4 - image.width * 3 % 4) % 4;
    BITMAPFILEHEADER file{};
    BITMAPINFOHEADER info{};
    info.biSize = sizeof(info);
    info.biWidth = image.width;
    info.biHeight = -image.height;
    info.biPlanes = 1;
    info.biBitCount = 24;
    info.biCompression = BI_RGB;
    file.bfType = 0x4D42;
    file.bfOffBits = sizeof(file) + sizeof(info);
    file.bfSize = file.bfOffBits + static_cast<DWORD>(rowBytes * image.height);
    std::vector<unsigned char> data(static_cast<std::size_t>(rowBytes) * static_cast<std::size_t>(image.height));
    for (int y = 0; y < image.height; ++y) {
        for (int x = 0; x < image.width; ++x) {
            const std::uint32_t p = image.pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(image.width) +
                                                 static_cast<std::size_t>(x)];
            unsigned char* out = &data[static_cast<std::size_t>(y) * static_cast<std::size_t>(rowBytes) +
                                       static_cast<std::size_t>(x) * 3];
            out[0] = static_cast<unsigned char>(p & 0xFF);
            out[1] = static_cast<unsigned char>((p >> 8) & 0xFF);
            out[2] = static_cast<unsigned char>((p >> 16) & 0xFF);
        }
    }
    FILE* f = _wfopen(path.c_str(), L"wb");
    if (f == nullptr) return false;
    std::fwrite(&file, sizeof(file), 1, f);
    std::fwrite(&info, sizeof(info), 1, f);
    std::fwrite(data.data(), 1, data.size(), f);
    return std::fclose(f) == 0;
}

}  // namespace

int wmain(int argc, wchar_t** argv) {
    const std::wstring folder = argc > 1 ? argv[1] : L".";
    for (const UINT dpi : {96u, 144u, 192u}) {
        const auto start = std::chrono::steady_clock::now();
        const std::size_t drawsBefore = qs::win::PictureCache::Shared().Draws();
        Sheet s{{}, dpi};
        s.image.width = s.Px(kSheetWidth);
        s.image.height = s.Px(kBlockHeight * 7 + kMargin);
        s.image.pixels.assign(static_cast<std::size_t>(s.image.width) * static_cast<std::size_t>(s.image.height),
                              0xFFFFFFFFu);
        for (std::int16_t t = 0; t < 7; ++t) {
            const int top = t * kBlockHeight + kMargin / 2;
            s.Put(qs::OneOfTheme(PictureSlot::ImageBack, t), kMargin / 2, top, kSheetWidth - kMargin,
                  kBlockHeight - kMargin / 2);
            PutBar(s, t, top + 180);
            PutButtons(s, t, top + 660);
            PutQuickRow(s, t, top + 1380);
        }
        const double ms =
            std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
        const std::wstring path = folder + L"\\artsheet-" + std::to_wstring(dpi) + L".bmp";
        if (!WriteBmp(path, s.image)) {
            std::fwprintf(stderr, L"cannot write %ls\n", path.c_str());
            return 1;
        }
        const std::size_t draws = qs::win::PictureCache::Shared().Draws() - drawsBefore;
        std::wprintf(L"%ls: %zu pictures drawn in %.0f ms (%.2f ms each)\n", path.c_str(), draws, ms,
                     draws > 0 ? ms / static_cast<double>(draws) : 0.0);
    }
    // The time of one bar button and of one dialog face at 200 %.
    for (const auto& [picture, width, height] :
         {std::tuple{PictureRef{PictureSlot::ImageMenu, 61}, 31, 31}, std::tuple{PictureRef{PictureSlot::ImageBack, 4}, 720, 1153},
          std::tuple{PictureRef{PictureSlot::ImageBackMain, 5}, 752, 49}}) {
        const auto start = std::chrono::steady_clock::now();
        qs::win::PictureCache::Shared().Get(picture, width, height, 192);
        const double ms =
            std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
        std::wprintf(L"%ls at %dx%d: %.2f ms\n", qs::ui::PictureName(picture).c_str(), width, height, ms);
    }
    return 0;
}
