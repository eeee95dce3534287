#pragma once
// The drawn pictures of the process, one for each picture, size and DPI it
// was asked for, each drawn the first time it is needed. A theme change only
// re-points the windows' references, so switching back and forth draws
// nothing twice, and start-up draws only what its windows show.
#include <windows.h>

#include <compare>
#include <cstddef>
#include <cstdint>
#include <map>

#include "pixel_image.h"
#include "ui/picture.h"

namespace qs::win {

class PictureCache {
public:
    // The one cache of the process.
    static PictureCache& Shared();

    // The picture at width x height pixels for the DPI; drawn now if it is
    // not drawn yet. An empty reference or size gives an empty image.
    const PixelImage& Get(const ui::PictureRef& picture, int width, int height, UINT dpi);

    // How many pictures have been drawn since the process started.
    std::size_t Draws() const { return draws_; }
    std::size_t Size() const { return pictures_.size(); }

private:
    struct Key {
        ui::PictureSlot slot;
        std::int16_t index;
        int width;
        int height;
        UINT dpi;
        friend auto operator<=>(const Key&, const Key&) = default;
    };

    std::map<Key, PixelImage> pictures_;
    std::size_t draws_ = 0;
};

}  // namespace qs::win
