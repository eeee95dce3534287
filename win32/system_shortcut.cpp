// Shell links: the desktop shortcut of the program.
#include <windows.h>
#include <objbase.h>
#include <objidl.h>
#include <shlobj.h>
#include <shobjidl.h>

#include "com.h"
#include "shortcut_fields.h"
#include "system_error.h"
#include "win32_system.h"

namespace qs::win {

namespace {

void Check(HRESULT result, const char* call) {
    if (FAILED(result)) ThrowSystemError(call, static_cast<DWORD>(result));
}

}  // namespace

void Win32System::CreateShortcut(const ShortcutDetails& shortcut) {
    ComScope com;
    ComPtr<IShellLinkW> link;
    Check(::CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW,
                             reinterpret_cast<void**>(link.Put())),
          "CoCreateInstance(ShellLink)");
    Check(link->SetPath(shortcut.targetPath.c_str()), "IShellLinkW::SetPath");
    Check(link->SetShowCmd(shortcut.windowStyle), "IShellLinkW::SetShowCmd");
    Check(link->SetHotkey(HotkeyFromText(shortcut.hotkey)), "IShellLinkW::SetHotkey");
    const IconLocation icon = IconLocationFromText(shortcut.iconLocation);
    Check(link->SetIconLocation(icon.path.c_str(), icon.index), "IShellLinkW::SetIconLocation");
    Check(link->SetDescription(shortcut.description.c_str()), "IShellLinkW::SetDescription");
    Check(link->SetWorkingDirectory(shortcut.workingDirectory.c_str()), "IShellLinkW::SetWorkingDirectory");
    ComPtr<IPersistFile> file;
    Check(link->QueryInterface(IID_IPersistFile, reinterpret_cast<void**>(file.Put())), "QueryInterface(IPersistFile)");
    Check(file->Save(shortcut.linkPath.c_str(), TRUE), "IPersistFile::Save");
}

}  // namespace qs::win
