#pragma once
// The common failure handler's report: the routine's tag goes to
// MessageToShow and the bug dialog shows it.
#include <string>

#include "common/application.h"
#include "startup/active_message.h"

namespace qs {

// `routine` is the routine's own name: "ActionListAddNew" reports
// "Quillstart:Bug:ActionListAddNew".
inline void ReportBug(Application& app, const wchar_t* routine) {
    app.MessageToShow = std::wstring(L"Quillstart:Bug:") + routine;
    MessageBug(app);
}


// The same with a whole tag, for the routines whose tags are not of the
// "Quillstart:Bug:" form ("Bug-Quillstart-FindExecutableUp").
inline void ReportBugTag(Application& app, const wchar_t* tag) {
    app.MessageToShow = tag;
    MessageBug(app);
}

}  // namespace qs
