#pragma once
// A test program whose bar stands on a 1920 x 1040 pixel work area at 15
// twips a pixel, with helpers to click its buttons and read its state.
#include <cstdint>

#include "data_setup.h"
#include "test_app.h"

namespace qs::test {

struct BarApp : TestApp {
    BarApp() {
        app.place.WorkAreaLeft = 0;
        app.place.WorkAreaTop = 0;
        app.place.WorkAreaRight = 1920;
        app.place.WorkAreaBottom = 1040;
        // As at start-up on a fixed disk, the Add Item and Open pane is
        // loaded behind the bar.
        SetUpFixedDiskRun(*this);
        app.frmBrowse.Load();
    }
    FrmMain& bar() { return app.frmMain; }
    void ClickMenu(std::int16_t index) { bar().PictureMenu(index).Press(); }
    // Loads the bar again with the options as they now stand.
    void Reload() { bar().FormLoad(); }
};

// Counts what a control tells its window.
class CountingPeer : public ui::ControlPeer {
public:
    void Changed(ui::Property what) override {
        if (what == ui::Property::Picture) ++pictures;
    }
    std::int64_t pictures = 0;
};

}  // namespace qs::test
