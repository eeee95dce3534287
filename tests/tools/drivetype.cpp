// Prints the type of a drive as the program sees it: type=<GetDriveTypeW>
// (2 removable, 3 fixed, 4 network, 5 CD-ROM). Usage: drivetype E:\ (a drive root).
#include <windows.h>

#include <cstdio>

int wmain(int argc, wchar_t** argv) {
    if (argc < 2) {
        std::fputs("usage: drivetype <drive root>\n", stderr);
        return 2;
    }
    std::printf("type=%u\n", GetDriveTypeW(argv[1]));
    return 0;
}
