#pragma once
// The operations that reach into the desktop: the screen saver and the
// program's desktop shortcut.
namespace qs {

struct Application;

void StartScreenSaver(Application& app);
void StartShortcutCreate(Application& app);
void StartShortcutDelete(Application& app);

// Brings the autostart value up to date with the program's present file.
void AutostartRegister(Application& app);
// Makes the autostart value follow the option "  Start With Windows": the
// program's file when it is set, no value when it is not.
void AutostartFollowOption(Application& app);

}  // namespace qs
