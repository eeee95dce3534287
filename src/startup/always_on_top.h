#pragma once
// Raising the bar into the topmost band, and lowering it out of it so that a
// pane or a dialog can stand over it.
namespace qs {

struct Application;

void ActionAlwaysOnTopOn(Application& app);
void ActionAlwaysOnTopOff(Application& app);

}  // namespace qs
