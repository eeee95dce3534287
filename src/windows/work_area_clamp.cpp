#include "windows/work_area_clamp.h"

#include "common/application.h"
#include "common/failure.h"

namespace qs {

void KeepInWorkArea(Application& app, ui::Form& form, std::int32_t width, std::int32_t height) {
    const ProgramPlace& p = app.place;
    const std::int32_t tx = app.sys.TwipsPerPixelX();
    const std::int32_t ty = app.sys.TwipsPerPixelY();
    // The top limit is worked out with the horizontal ratio, as the bar
    // always has.
    const std::int32_t topLimit = p.WorkAreaTop == 0 ? 0 : ToInt16(p.WorkAreaTop * tx);
    const std::int32_t leftLimit = p.WorkAreaLeft == 0 ? 0 : ToInt16(p.WorkAreaLeft * tx);
    const std::int32_t bottomLimit = ToInt16(ty * p.WorkAreaBottom - height);
    const std::int32_t rightLimit = ToInt16(tx * p.WorkAreaRight - width);
    if (form.Left() < leftLimit) {
        form.SetLeft(leftLimit);
    } else if (form.Left() > rightLimit) {
        form.SetLeft(rightLimit);
    }
    if (form.Top() < topLimit) {
        form.SetTop(topLimit);
    } else if (form.Top() > bottomLimit) {
        form.SetTop(bottomLimit);
    }
}

}  // namespace qs
