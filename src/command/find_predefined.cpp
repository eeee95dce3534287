#include "command/find_predefined.h"

#include <cstdint>
#include <span>
#include <string_view>

#include "common/application.h"
#include "common/failure.h"
#include "common/text_case.h"
#include "startup/active_message.h"

namespace qs {

namespace {

// Whether `entry`, lowered by the case rule, begins with `lowerTyped`; the
// entry is lowered a character at a time, without a lowered copy of it.
bool BeginsWithLowered(std::wstring_view entry, std::wstring_view lowerTyped) {
    if (entry.size() < lowerTyped.size()) return false;
    for (std::size_t k = 0; k < lowerTyped.size(); ++k)
        if (LowerChar(entry[k]) != lowerTyped[k]) return false;
    return true;
}

// Writes the first entry of the table that begins with `typed` into the box,
// selecting the completed tail. Returns the entry's index, or -1.
std::int16_t CompleteFromTable(Application& app, const std::wstring& code, std::wstring& typed,
                               std::span<const std::wstring> table) {
    LowerInPlace(typed);
    const std::int16_t n = ToInt16(static_cast<long long>(typed.size()));
    for (std::size_t i = 0; i < table.size(); ++i) {
        const std::wstring& entry = table[i];
        const std::int16_t m = ToInt16(static_cast<long long>(entry.size()));
        if (m >= n && BeginsWithLowered(entry, typed)) {
            app.frmMain.SetTextMainQuietly(code + table[i]);
            return static_cast<std::int16_t>(i);
        }
    }
    return -1;
}

void SelectTail(Application& app, std::size_t typedLength, std::size_t entryLength) {
    if (entryLength <= typedLength) return;
    app.frmMain.TextMain.SetSelStart(static_cast<std::int32_t>(typedLength) + 2);
    app.frmMain.TextMain.SetSelLength(static_cast<std::int32_t>(entryLength - typedLength));
}

template <std::size_t N>
void FindIn(Application& app, std::wstring& code, std::wstring& typed, const std::array<std::wstring, N>& table,
            const wchar_t* tag, bool storesFeedbackIndex) {
    try {
        const std::int16_t i = CompleteFromTable(app, code, typed, table);
        if (i < 0) return;
        if (storesFeedbackIndex) app.PendingFeedbackIndex = i;
        SelectTail(app, typed.size(), table[static_cast<std::size_t>(i)].size());
    } catch (const std::exception&) {
        app.MessageToShow = tag;
        MessageBug(app);
    }
}

}  // namespace

void ActionFindPanel(Application& app, std::wstring& code, std::wstring& typed) {
    FindIn(app, code, typed, app.tables.ControlPanelNames, L"Quillstart:Bug:ActionFindPanel", false);
}

void ActionFindSpecialApps(Application& app, std::wstring& code, std::wstring& typed) {
    FindIn(app, code, typed, app.tables.ATaskNames, L"Quillstart:Bug:ActionFindSpecialApps", false);
}

void ActionFindSpecialFolder(Application& app, std::wstring& code, std::wstring& typed) {
    FindIn(app, code, typed, app.tables.SpecialFolderNames, L"Quillstart:Bug:ActionFindSpecialFolder", false);
}

void ActionFindFeedbackMail(Application& app, std::wstring& code, std::wstring& typed) {
    FindIn(app, code, typed, app.tables.FeedbackMailAddress, L"Quillstart:Bug:ActionFindFeedbackMail", true);
}

}  // namespace qs
