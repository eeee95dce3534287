// Moving a window with the pointer while the left button is held.
#pragma once

#include <windows.h>

namespace qs::win {

// Notes where the left button went down on a window's face, in screen
// pixels: a drag that starts at a later move still follows the pointer from
// there.
void NotePress(HWND window, POINT screen);

// Moves the window by the pointer's travel from where the button went down
// (noted for this window, else where the pointer is now) until the button
// comes up, then returns. Esc puts the window back.
//
// The program runs the loop itself rather than hand the window to the
// system's move: a window shown without being activated (the panes and the
// QuickLauncher beside the bar) is not managed by some window managers, and
// there the system's move never starts. The button press already gives the
// window every pointer move until the release, so the loop needs nothing
// the window manager owns.
void MoveWithPointer(HWND window);

}  // namespace qs::win
