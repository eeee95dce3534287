// A Launch List and a family from the input, then keys from the input typed
// into the bar's Command box as the window system delivers them: characters,
// Backspace, Enter and Esc as WM_CHAR (KeyPress, then the edit, then Change),
// Delete and the caret keys as the edit control's own editing and selection.
// Checks after every key: TextMainBusy is down, nothing was started by any key
// but Enter, and whatever Enter started stands in the lists, in the program's
// tables, or is what the Command itself names.
#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "command/default_values.h"
#include "command/tables.h"
#include "common/maker.h"
#include "common/text_case.h"
#include "data/file_channel.h"
#include "data/launch_list.h"
#include "kept_application.h"
#include "theme/active_theme.h"

namespace {

using qs::fuzz::Launch;
using qs::fuzz::Require;

// A text of up to `most` characters of the 8-bit code page.
std::wstring Text(FuzzedDataProvider& input, std::size_t most) {
    const std::size_t length = input.ConsumeIntegralInRange<std::size_t>(0, most);
    // The bytes as a short string, which holds them without an allocation.
    const std::string bytes = input.ConsumeBytesAsString(length);
    return qs::fuzz::FromBytes(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
}

// The bar as after start-up, kept for the whole run; each input puts back
// the Command's state, the lists and the family.
struct Bar {
    qs::fuzz::KeptApplication kept;
    qs::Settings settingsAtStart;

    Bar() {
        qs::Application& app = kept.app;
        app.WindowsFolder = L"C:\\Windows\\";
        app.place.ProgramDriveLetter = app.place.ProgramDriveLetterUpper = L"C";
        app.place.WindowsRoot = app.place.ProgramRoot = L"C:\\";
        app.place.ComputerName = L"DESK1";
        qs::AssignDataFilePaths(app.place);
        qs::AtStartDefaultValue(app);
        qs::AtStartDefaultColor(app);
        app.frmMain.Load();
        qs::ThemeCreate(app, app.settings.ThemeIndex);
        app.frmMain.SetTextMainQuietly(L"");
        settingsAtStart = app.settings;
        kept.Started();
        // A target exists when its length is not a multiple of 5.
        kept.sys.exists = [](const std::wstring& path) { return path.size() % 5 != 0; };
    }

    // Puts back the lists, the family and the Command's state as after
    // start-up; no key opens a pane, so none is open when the keys end.
    void EndInput() {
        qs::Application& app = kept.app;
        kept.EndInput();
        Require(app.OpenMenuIndex == -1);
        app.frmMain.SetTextMainQuietly(L"");
        app.frmMain.BackspaceTyped = false;
        app.PendingItemIndex = app.PendingFamilyIndex = app.PendingFeedbackIndex = -1;
        app.HelpOpen = false;
        app.settings = settingsAtStart;
        if (app.MainWidth != qs::MainWidthCommand) {
            app.MainWidth = qs::MainWidthCommand;
            app.frmMain.ApplyMainWidth();
        }
        app.frmMain.LastWideWidth = qs::MainWidthCommand;
    }
};

const std::wstring& ComputerFile(const qs::ProgramPlace& p, std::int16_t group) {
    const std::wstring* files[] = {&p.FileListFile, &p.FileListFold, &p.FileListProg, &p.FileListMail, &p.FileListWeb};
    return *files[group];
}

// Fills one group: through the list file and the program's loader, or item
// by item through the program's adding routine.
void FillGroup(FuzzedDataProvider& input, qs::fuzz::KeptApplication& kept, std::int16_t group) {
    qs::Application& app = kept.app;
    const bool fromFile = input.ConsumeBool();
    const int count = input.ConsumeIntegralInRange<int>(0, 80);
    qs::RecordWriter file;
    int written = 0;
    for (int i = 0; i < count && input.remaining_bytes() > 0; ++i) {
        const std::wstring name = Text(input, 12);
        const std::wstring path = Text(input, 16);
        if (fromFile) {
            file.String(name).String(path).EndLine();
            ++written;
        } else {
            qs::AddItemInStep(app.frmChoose.ComboListItemName(group), app.frmChoose.ComboListItemPath(group), name,
                              path);
        }
    }
    if (!fromFile || written == 0) return;
    kept.sys.files[ComputerFile(app.place, group)] = file.Text();
    qs::ActionLaunchListGet(app, group, static_cast<std::int16_t>(written - 1));
}

void FillFamily(FuzzedDataProvider& input, qs::Application& app) {
    const int count = input.ConsumeIntegralInRange<int>(0, 4);
    for (int i = 0; i < count; ++i) {
        qs::FamilyMember member;
        member.MemberName = Text(input, 10);
        member.MemberFolder = L"C:\\Morvane\\";
        member.MemberProgramFile = member.MemberFolder + member.MemberName + L".exe";
        app.FamilyMembers.push_back(member);
    }
    app.FamilyMemberCount = static_cast<std::int16_t>(count - 1);
}

bool InList(const qs::ui::ListBox& list, const std::wstring& item) {
    for (std::int32_t i = 0; i < list.ListCount(); ++i)
        if (list.List(i) == item) return true;
    return false;
}

// Whether Enter, pressed on `text`, may have started `launch`.
bool MayStart(const qs::Application& app, const std::wstring& text, const Launch& launch) {
    const std::wstring code = qs::LCase(text.substr(0, 2));
    const std::wstring name = text.size() > 2 ? text.substr(2) : L"";
    const std::wstring explorer = app.WindowsFolder + L"explorer.exe ";
    const std::wstring& target = launch.target;
    if (launch.kind == Launch::Kind::ScreenSaver) return code == L"a." && name == L"StartScreensaver";
    if (launch.kind == Launch::Kind::Run) {
        // The Control Panel's applets, the special folders, a typed folder,
        // a listed folder.
        for (const auto& applet : qs::AppletTable)
            if (target == applet.commandLine) return code == L"c.";
        if (target.rfind(explorer, 0) != 0) return false;
        const std::wstring folder = target.substr(explorer.size());
        if (code == L"d.") return folder.rfind(L"C:\\Special\\", 0) == 0;
        if (code == L"d=") return folder == name;
        return code == L"d-" && InList(app.frmChoose.ComboListItemPath(qs::GroupFolder), folder);
    }
    // What the Command names: the text after its code, in the form its code
    // builds.
    struct NamedForm {
        const wchar_t* code;
        const wchar_t* prefix;
        const wchar_t* suffix;
    };
    static const NamedForm forms[] = {
        {L"f=", L"", L""},           {L"p=", L"", L""},           {L"w=", L"", L""},
        {L"e=", L"mailto:", L""},    {L"w:", L"http://", L""},    {L"w;", L"http://www.", L""},
        {L"c/", L"http://www.", L".com"}, {L"g/", L"http://www.", L".gov"}, {L"i/", L"http://www.", L".info"},
        {L"n/", L"http://www.", L".net"}, {L"o/", L"http://www.", L".org"}, {L"t/", L"http://www.", L".tv"},
    };
    for (const NamedForm& form : forms)
        if (code == form.code) return target == form.prefix + name + form.suffix;
    // The program's tables.
    if (code == L"a." && name == L"Help") return target == qs::maker::OnlineHelpPage;
    const std::wstring& subject = app.tables.FeedbackMailSubject[0];
    const std::wstring feedback =
        L"mailto:" + app.tables.FeedbackMailAddress[0] + (subject.empty() ? L"" : L"?subject=" + subject);
    if (code == L"e.") return target == feedback;
    // The family's programs.
    if (code == L"r.") {
        for (const auto& member : app.FamilyMembers)
            if (target == member.MemberProgramFile) return true;
        return false;
    }
    // The Launch List: files, programs and web addresses as listed, mail
    // addresses as mails.
    const std::int16_t group = qs::GroupOfListCode(code);
    if (group < 0 || group == qs::GroupFolder) return false;
    const qs::ui::ListBox& paths = app.frmChoose.ComboListItemPath(group);
    if (group == qs::GroupEmail) return target.rfind(L"mailto:", 0) == 0 && InList(paths, target.substr(7));
    return InList(paths, target);
}

// The caret keys: the edit control moves the caret or the selection and
// tells the box.
void MoveCaret(qs::ui::TextBox& box, std::uint8_t which) {
    const auto length = static_cast<std::int32_t>(box.Text().size());
    const std::int32_t start = box.SelStart();
    const std::int32_t end = start + box.SelLength();
    switch (which % 6) {
        case 0:  // Left
            box.UserSelected(box.SelLength() > 0 ? start : std::max(start - 1, 0), 0);
            break;
        case 1:  // Right
            box.UserSelected(box.SelLength() > 0 ? end : std::min(end + 1, length), 0);
            break;
        case 2:  // Home
            box.UserSelected(0, 0);
            break;
        case 3:  // End
            box.UserSelected(length, 0);
            break;
        case 4:  // Shift+Left, the selection growing to the left
            box.UserSelected(std::max(start - 1, 0), end - std::max(start - 1, 0));
            break;
        default:  // Shift+Right
            box.UserSelected(start, std::min(end + 1, length) - start);
            break;
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static Bar bar;
    qs::Application& app = bar.kept.app;
    FuzzedDataProvider input(data, size);
    // The keys come first, in order: each byte a character of the code page
    // (Backspace 8, Enter 13 and Esc 27 among them), or, after a zero byte,
    // Delete or a caret key. The rest of the input makes the lists and the
    // family.
    const auto keyCount = input.ConsumeIntegral<std::uint8_t>();
    const std::vector<std::uint8_t> keys = input.ConsumeBytes<std::uint8_t>(keyCount);
    for (std::int16_t group = 0; group < 5; ++group) FillGroup(input, bar.kept, group);
    FillFamily(input, app);
    // The load's own reports are not the Command's.
    bar.kept.dialogs.shown.clear();

    qs::ui::TextBox& box = app.frmMain.TextMain;
    for (std::size_t k = 0; k < keys.size(); ++k) {
        const std::uint8_t key = keys[k];
        // What Enter is pressed on is what its launches are checked against.
        const std::wstring before = key == 13 ? box.Text() : std::wstring();
        if (key != 0) {
            box.TypeKey(static_cast<wchar_t>(key));
        } else if (++k < keys.size()) {
            if (keys[k] % 7 == 6) {
                box.PressDelete();
            } else {
                MoveCaret(box, keys[k]);
            }
        }
        Require(!app.TextMainBusy);
        if (key == 13) {
            for (const Launch& launch : bar.kept.sys.launches) Require(MayStart(app, before, launch));
        } else {
            Require(bar.kept.sys.launches.empty());
        }
        bar.kept.sys.launches.clear();
        Require(!app.frmMessage.IsLoaded());
    }
    bar.EndInput();
    return 0;
}
