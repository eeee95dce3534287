#pragma once
// Lowering the bar from the topmost band, so that a pane or a dialog can
// stand over it.
namespace qs {

struct Application;

void ActionAlwaysOnTopOff(Application& app);

}  // namespace qs
