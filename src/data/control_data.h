#pragma once
// The three record files beside the Launch List: "Set.Morvane" (this
// computer's settings), "COMData.Morvane" (the Email and Web URL counters)
// and "USBData.Morvane" (the flash drive's counters). Each is read at start,
// and written at exit only when its image differs from the working values.
#include <cstdint>

namespace qs {

struct Application;

void ControlDataGet(Application& app, bool& onRemovable);
void ControlDataSave(Application& app);
void ControlDataAddNew(Application& app, std::int16_t version);
void ControlDataCreateNow(Application& app, bool& onRemovable);

void ControlComDataGet(Application& app);
void ControlComDataSave(Application& app);
void ControlComDataAddNew(Application& app, std::int16_t version);

void ControlUSBDataGet(Application& app);
void ControlUSBDataSave(Application& app);
void ControlUSBDataAddNew(Application& app, std::int16_t version);

}  // namespace qs
