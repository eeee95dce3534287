#pragma once
// A test program with the bar on its work area, and helpers to open Help
// from the bar's "?" and read what it shows.
#include <cstdint>
#include <string>

#include "bar_app.h"

namespace qs::test {

struct HelpApp : BarApp {
    FrmHelp& help() { return app.frmHelp; }

    // Opens (or closes) Help as the user does, by the bar's "?".
    void ClickHelpButton() { bar().PictureHelp.Press(); }
    // Opens Help, which must not be open yet.
    FrmHelp& OpenHelp();
    // Makes theme t current as the Preferences pane does.
    void SwitchTheme(std::int16_t t);
    // Which topic labels are underlined, as a string of 13 "0" and "1".
    std::wstring UnderlinedTopics();
};

}  // namespace qs::test
