#include "command/tables.h"

namespace qs {

const std::array<AppletCommand, 22> AppletTable = {{
    {L"accessibility", L"rundll32.exe shell32.dll,Control_RunDLL access.cpl"},
    {L"addnewhardware", L"rundll32.exe shell32.dll,Control_RunDLL sysdm.cpl @1"},
    {L"addnewprinter", L"rundll32.exe shell32.dll,SHHelpShortcuts_RunDLL AddPrinter"},
    {L"addremove", L"rundll32.exe shell32.dll,Control_RunDLL appwiz.cpl"},
    {L"appearance", L"rundll32.exe shell32.dll,Control_RunDLL desk.cpl,,2"},
    {L"controlpanel", L"rundll32.exe shell32.dll,Control_RunDLL"},
    {L"datetime", L"rundll32.exe shell32.dll,Control_RunDLL timedate.cpl"},
    {L"desktopicon", L"rundll32.exe shell32.dll,Control_RunDLL desk.cpl,,0"},
    {L"desktopsettings", L"rundll32.exe shell32.dll,Control_RunDLL desk.cpl,,3"},
    {L"dialup", L"rundll32.exe rnaui.dll,RnaWizard"},
    {L"fonts", L"rundll32.exe shell32.dll,Control_RunDLL main.cpl @3"},
    {L"internet", L"rundll32.exe shell32.dll,Control_RunDLL inetcpl.cpl"},
    {L"joystick", L"rundll32.exe shell32.dll,Control_RunDLL joy.cpl"},
    {L"keyboard", L"rundll32.exe shell32.dll,Control_RunDLL main.cpl @1"},
    {L"modem", L"rundll32.exe shell32.dll,Control_RunDLL modem.cpl"},
    {L"mouse", L"rundll32.exe shell32.dll,Control_RunDLL main.cpl @0"},
    {L"multimedia", L"rundll32.exe shell32.dll,Control_RunDLL mmsys.cpl"},
    {L"printers", L"rundll32.exe shell32.dll,Control_RunDLL main.cpl @2"},
    {L"regional", L"rundll32.exe shell32.dll,Control_RunDLL intl.cpl"},
    {L"screensaver", L"rundll32.exe shell32.dll,Control_RunDLL desk.cpl,,1"},
    {L"system", L"rundll32.exe shell32.dll,Control_RunDLL sysdm.cpl"},
    {L"themes", L"rundll32.exe shell32.dll,Control_RunDLL desk.cpl,,4"},
}};

const std::array<CodeCharacter, 14> CodeFirstCharacters = {{
    {L"a", L"Additional Action"},
    {L"c", L"Control Panel Applet"},
    {L"d", L"Directory (Folder)"},
    {L"e", L"Email Address"},
    {L"f", L"File"},
    {L"p", L"Program (Application)"},
    {L"r", L"Morvane's Other Programs"},
    {L"w", L"Web Address (URL)"},
    {L"c", L"If used before \"/\", substitute text \".com\""},
    {L"g", L"If used before \"/\", substitute text \".gov\""},
    {L"i", L"If used before \"/\", substitute text \".info\""},
    {L"n", L"If used before \"/\", substitute text \".net\""},
    {L"o", L"If used before \"/\", substitute text \".org\""},
    {L"t", L"If used before \"/\", substitute text \".tv\""},
}};

const std::array<CodeCharacter, 6> CodeSecondCharacters = {{
    {L".", L"Dot = Predefined Launch Name"},
    {L"-", L"Dash = User Defined Launch Name"},
    {L"=", L"Equal = Complete Path Of The Item"},
    {L"/", L"Slash adds text \"http://www.\" in a Command"},
    {L":", L"Colon if after \"w\", adds \"http://\" in a Command"},
    {L";", L"Semicolon if after \"w\", adds \"http://www.\""},
}};

const std::array<ListCommandCode, 5> ListCommandCodes = {{
    {L"d-", GroupFolder},
    {L"f-", GroupFile},
    {L"p-", GroupProgram},
    {L"e-", GroupEmail},
    {L"w-", GroupWeb},
}};

std::int16_t GroupOfListCode(const std::wstring& code) {
    for (const auto& entry : ListCommandCodes)
        if (code == entry.code) return entry.group;
    return -1;
}

}  // namespace qs
