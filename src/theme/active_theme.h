#pragma once
// The theme engine: the seven colourings, the choice of pictures from the
// holders, and one apply routine per window.
#include <cstdint>

#include "ui/color.h"

namespace qs {

struct Application;

// Fills the form and box colours of the seven themes; once, at start.
void AtStartDefaultColor(Application& app);
// Makes theme t current: colours, picture sets, then every window that
// exists. An index outside 0 to 6 is a bounds failure, reported.
void ThemeCreate(Application& app, std::int16_t& t);

void ThemeApplyOnMain(Application& app, std::int16_t t);
void ThemeApplyOnBrowse(Application& app, std::int16_t t);
void ThemeApplyOnChoose(Application& app, std::int16_t t);
void ThemeApplyOnQuick(Application& app, std::int16_t t);
// Help exists only while open: applied at its Load, and by ThemeCreate
// while it is open.
void ThemeApplyOnHelp(Application& app, std::int16_t t);
// The colour of Help's online link at rest in theme t.
ui::Color HelpOnlineColor(std::int16_t t);
// Called by the message system for each message, not by ThemeCreate.
void ThemeApplyOnMessage(Application& app, std::int16_t t);

}  // namespace qs
