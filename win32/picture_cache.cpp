#include "picture_cache.h"

#include "art/catalogue.h"

namespace qs::win {

namespace {

// Sizes come from the forms' designs, so the cache stays small; should a
// run ever gather this many pictures, all are dropped at once and each is
// drawn again when next needed.
constexpr std::size_t kMostPictures = 2048;

}  // namespace

PictureCache& PictureCache::Shared() {
    static PictureCache cache;
    return cache;
}

const PixelImage& PictureCache::Get(const ui::PictureRef& picture, int width, int height, UINT dpi) {
    static const PixelImage empty;
    if (picture.Empty() || width <= 0 || height <= 0) return empty;
    const Key key{picture.slot, picture.index, width, height, dpi};
    const auto found = pictures_.find(key);
    if (found != pictures_.end()) return found->second;
    if (pictures_.size() >= kMostPictures) pictures_.clear();
    ++draws_;
    const double scale = static_cast<double>(dpi) / USER_DEFAULT_SCREEN_DPI;
    return pictures_.emplace(key, RenderPicture(picture, width, height, scale)).first->second;
}

}  // namespace qs::win
