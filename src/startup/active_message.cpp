#include "startup/active_message.h"

#include "common/application.h"

namespace qs {

void MessageProcess(Application& app) { app.messageRequests.push_back({MessageEntry::Process, app.MessageToShow}); }

void MessageEnd(Application& app) { app.messageRequests.push_back({MessageEntry::End, app.MessageToShow}); }

void MessageBug(Application& app) { app.messageRequests.push_back({MessageEntry::Bug, app.MessageToShow}); }

}  // namespace qs
