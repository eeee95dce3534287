#pragma once
// The Add Item and Open pane: one window with two faces, opened from the
// bar's PictureMenu(0) and PictureMenu(1).
#include <cstdint>
#include <string>

#include "ui/form.h"

namespace qs {

struct Application;

inline constexpr std::int32_t BrowseWidth = 5400;
inline constexpr std::int32_t BrowseHeight = 8652;

class FrmBrowse : public ui::Form {
public:
    explicit FrmBrowse(Application& app);

    // The option button last clicked: 0 Program, 1 File, 2 Folder, 3 Email,
    // 4 Web URL, 5 Pic.
    std::int16_t BrowseOption = 0;

private:
    Application& app_;
};

// Fills and shows the pane in mode 0 (Add Item) or 1 (Open), or hides it
// for -1.
void ActionSetBrowse(Application& app, std::int16_t& mode);

}  // namespace qs
