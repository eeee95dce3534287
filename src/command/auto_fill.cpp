#include "command/auto_fill.h"

#include "command/find_predefined.h"
#include "common/application.h"
#include "common/failure.h"
#include "common/text_case.h"
#include "data/launch_list.h"
#include "startup/active_message.h"
#include "windows/frm_main.h"

namespace qs {

namespace {

bool HasPrefix(std::wstring_view name, const std::wstring& lowerTyped) {
    if (name.size() < lowerTyped.size()) return false;
    for (std::size_t k = 0; k < lowerTyped.size(); ++k) {
        if (LowerChar(name[k]) != lowerTyped[k]) return false;
    }
    return true;
}


void SelectTail(Application& app, std::size_t typedLength, std::size_t nameLength) {
    if (nameLength <= typedLength) return;
    app.frmMain.TextMain.SetSelStart(static_cast<std::int32_t>(typedLength) + 2);
    app.frmMain.TextMain.SetSelLength(static_cast<std::int32_t>(nameLength - typedLength));
}

}  // namespace

std::int32_t FirstNameWithPrefix(const ui::ListBox& combo, const std::wstring& lowerTyped, std::int32_t lastIndex) {
    if (lastIndex >= combo.ListCount()) throw SubscriptOutOfRange();
    if (!combo.Sorted()) {
        for (std::int32_t i = 0; i <= lastIndex; ++i) {
            if (HasPrefix(combo.List(i), lowerTyped)) return i;
        }
        return -1;
    }
    // In a list sorted by the case rule every name that begins with the typed
    // text follows every name that sorts before it, so the first name not
    // below the typed text is the first match of a scan from the top.
    const std::int32_t at = combo.FirstNotBelow(lowerTyped, lastIndex + 1);
    if (at > lastIndex || !HasPrefix(combo.List(at), lowerTyped)) return -1;
    return at;
}

void ActionFindLaunchName(Application& app, std::wstring& code, std::wstring& typed, const ui::ListBox& combo,
                          std::int16_t& lastIndex) {
    try {
        LowerInPlace(typed);
        const std::int32_t i = FirstNameWithPrefix(combo, typed, lastIndex);
        if (i < 0) return;
        const std::wstring name(combo.List(i));
        app.frmMain.SetTextMainQuietly(code + name);
        app.PendingItemIndex = ToInt16(i);
        SelectTail(app, typed.size(), name.size());
    } catch (const std::exception&) {
        app.MessageToShow = L"Quillstart:Bug:ActionFindLaunchName";
        MessageBug(app);
    }
}

void ActionFindFamilyMember(Application& app, std::wstring& code, std::wstring& typed) {
    try {
        LowerInPlace(typed);
        for (std::int32_t i = 0; i <= app.FamilyMemberCount; ++i) {
            const std::wstring& name = app.FamilyMembers.at(i).MemberName;
            // The program never offers to start itself.
            if (name == L"Quillstart") continue;
            if (!HasPrefix(name, typed)) continue;
            app.frmMain.SetTextMainQuietly(code + name);
            app.PendingFamilyIndex = ToInt16(i);
            SelectTail(app, typed.size(), name.size());
            return;
        }
    } catch (const std::exception&) {
        app.MessageToShow = L"Quillstart:Bug:ActionFindFamilyMember";
        MessageBug(app);
    }
}

void FrmMain::TextMainChange() {
    // The box's own text, not a copy: nothing below changes it before it has
    // been read for the last time.
    const std::wstring& text = TextMain.Text();
    if (text.empty()) return;
    app_.MessageToShow = L"";
    app_.PendingItemIndex = -1;
    app_.PendingFamilyIndex = -1;
    app_.PendingFeedbackIndex = -1;
    if (app_.TextMainBusy) return;
    if (BackspaceTyped) {
        BackspaceTyped = false;
        return;
    }
    const std::int16_t n = ToInt16(static_cast<long long>(text.size()));
    if (n < 2) return;
    if (text.compare(text.size() - 2, 2, L"--") == 0) {
        SetTextMainQuietly(L"");
        return;
    }
    try {
        if (n < 3) return;
        TextMainChangeSearch(text);
    } catch (const std::exception&) {
        // A failure in the search ends the event silently.
    }
}

void FrmMain::TextMainChangeSearch(const std::wstring& text) {
    std::wstring rawCode = text.substr(0, 2);
    const std::wstring code = LCase(rawCode);
    std::wstring typed = text.substr(2);
    if (code == L"c.") {
        ActionFindPanel(app_, rawCode, typed);
    } else if (code == L"d.") {
        ActionFindSpecialFolder(app_, rawCode, typed);
    } else if (code == L"e.") {
        ActionFindFeedbackMail(app_, rawCode, typed);
    } else if (code == L"a.") {
        ActionFindSpecialApps(app_, rawCode, typed);
    } else if (code == L"r.") {
        if (app_.FamilyMemberCount >= 1 && text.size() >= 5) ActionFindFamilyMember(app_, rawCode, typed);
    } else if (const std::int16_t group = GroupOfListCode(code); group >= 0) {
        ListSearch(rawCode, typed, group);
    }
}

void FrmMain::ListSearch(std::wstring& rawCode, std::wstring& typed, std::int16_t group) {
    // Typing goes on while the lists are still being tested: the search
    // waits only for its own group's answers.
    LaunchListSettleGroup(app_, group);
    const ui::ListBox& combo = app_.frmChoose.ComboListItemName(group);
    std::int16_t lastIndex = ToInt16(combo.ListCount() - 1);
    if (lastIndex == -1) return;
    ActionFindLaunchName(app_, rawCode, typed, combo, lastIndex);
}

}  // namespace qs
