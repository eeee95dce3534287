#pragma once
// Ids of the program's resources, shared by the resource script and the code.
// The icon has the lowest id, so it is the exe's icon number 0.
#define IDI_QUILLSTART 1
