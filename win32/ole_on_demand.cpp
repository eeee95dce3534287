#include "ole_on_demand.h"

#include <ole2.h>
#include <windows.h>

namespace qs::win {

namespace {

// Whether this program started OLE on the window thread, and so must end it.
bool started = false;

}  // namespace

OleOnDemand::~OleOnDemand() {
    if (!started) return;
    started = false;
    ::OleUninitialize();
}

bool OleOnDemand::Start() {
    if (started) return true;
    started = SUCCEEDED(::OleInitialize(nullptr));
    return started;
}

}  // namespace qs::win
