#pragma once
// The three entry points through which the program speaks to the user. Each
// reads the key or failure tag in MessageToShow.
namespace qs {

struct Application;

// An ordinary message.
void MessageProcess(Application& app);
// A fatal message: the program ends when it is dismissed.
void MessageEnd(Application& app);
// The report-this-bug dialog for a failure tag.
void MessageBug(Application& app);

}  // namespace qs
