#pragma once
// Ids of the program's resources, shared by the resource script and the code.
// The icon has the lowest id, so it is the exe's icon number 0.
#define IDI_QUILLSTART 1
// The common controls' own look, taken up only where a window asks for it.
#define IDR_STYLED_CONTROLS 100
