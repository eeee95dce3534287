#pragma once
// The program's drive type for a GetDriveTypeW answer.
#include <windows.h>

#include "platform/file_browsing.h"

namespace qs::win {

inline DriveType DriveTypeFromSystem(UINT type) {
    switch (type) {
        case DRIVE_REMOVABLE: return DriveType::Removable;
        case DRIVE_FIXED: return DriveType::Fixed;
        case DRIVE_REMOTE: return DriveType::Network;
        case DRIVE_CDROM: return DriveType::CDRom;
        case DRIVE_RAMDISK: return DriveType::RamDisk;
        default: return DriveType::Unknown;
    }
}

}  // namespace qs::win
