#pragma once
// Where a pane opens: below the bar if it fits above the work area's
// bottom, else above the bar, else the bar moves to the top of the work area
// (its old Top kept in SavedMainTop) and the pane goes below it.
#include "ui/form.h"

namespace qs {

struct Application;

// Places `pane` by its own Height, Left 600 twips right of the bar's. Sums
// are 16-bit: a position beyond 32,767 twips is an Overflow.
void PlacePaneByTheBar(Application& app, ui::Form& pane);

}  // namespace qs
