// Shell services: opening by association, command lines, special folders,
// the screen saver.
#include <windows.h>
#include <shellapi.h>
#include <shlobj.h>

#include <array>
#include <vector>

#include "common/text_case.h"
#include "ole_on_demand.h"
#include "system_error.h"
#include "win32_system.h"

namespace qs::win {

std::int32_t Win32System::ShellOpen(const std::wstring& target) {
    // The shell may hand the opening to extensions that need COM.
    OleOnDemand::Start();
    const HINSTANCE result = ::ShellExecuteW(nullptr, L"open", target.c_str(), nullptr, nullptr, SW_SHOW);
    return static_cast<std::int32_t>(reinterpret_cast<INT_PTR>(result));
}

void Win32System::ShellRun(const std::wstring& commandLine) {
    // CreateProcessW may write into the command line, so it gets a copy.
    std::vector<wchar_t> line(commandLine.begin(), commandLine.end());
    line.push_back(L'\0');
    STARTUPINFOW startup{};
    startup.cb = sizeof(startup);
    startup.dwFlags = STARTF_USESHOWWINDOW;
    startup.wShowWindow = SW_SHOWNORMAL;
    PROCESS_INFORMATION process{};
    if (!::CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &process)) {
        ThrowLastError("CreateProcessW");
    }
    KernelHandle processHandle(process.hProcess);
    KernelHandle threadHandle(process.hThread);
}

std::wstring Win32System::SpecialFolder(const std::wstring& key) {
    struct Folder {
        const wchar_t* key;
        int csidl;
    };
    static constexpr std::array<Folder, 9> kFolders{{
        {L"Desktop", CSIDL_DESKTOPDIRECTORY},
        {L"Favorites", CSIDL_FAVORITES},
        {L"Fonts", CSIDL_FONTS},
        {L"MyDocuments", CSIDL_PERSONAL},
        {L"Programs", CSIDL_PROGRAMS},
        {L"Recent", CSIDL_RECENT},
        {L"SendTo", CSIDL_SENDTO},
        {L"StartMenu", CSIDL_STARTMENU},
        {L"Startup", CSIDL_STARTUP},
    }};
    for (const Folder& folder : kFolders) {
        if (CompareNoCase(key, folder.key) != 0) continue;
        std::array<wchar_t, MAX_PATH> path{};
        if (FAILED(::SHGetFolderPathW(nullptr, folder.csidl, nullptr, SHGFP_TYPE_CURRENT, path.data()))) return L"";
        return path.data();
    }
    return L"";
}

void Win32System::StartScreenSaver() { ::SendMessageW(::GetDesktopWindow(), WM_SYSCOMMAND, SC_SCREENSAVE, 0); }

}  // namespace qs::win
