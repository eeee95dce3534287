#pragma once
// The program's fixed vocabulary: group names, additional tasks, special
// folders, Control Panel applets, the feedback address and the characters of
// a Command Code with their explanations.
#include <array>
#include <cstdint>
#include <string>

namespace qs {

struct AppletCommand {
    const wchar_t* name;         // lower-case form compared
    const wchar_t* commandLine;  // given to the operating system
};

// All 22 applets in compare order, the six typed-only ones among them.
extern const std::array<AppletCommand, 22> AppletTable;

struct CodeCharacter {
    const wchar_t* character;
    const wchar_t* explanation;
};

extern const std::array<CodeCharacter, 14> CodeFirstCharacters;
extern const std::array<CodeCharacter, 6> CodeSecondCharacters;

// The Launch List groups, by the number that indexes every group array.
enum ListGroup : std::int16_t { GroupFile = 0, GroupFolder = 1, GroupProgram = 2, GroupEmail = 3, GroupWeb = 4 };

// The Commands that name an item of the Launch List, with their groups, in
// the order the Command is compared against them.
struct ListCommandCode {
    const wchar_t* code;
    std::int16_t group;
};
extern const std::array<ListCommandCode, 5> ListCommandCodes;
// The group of a lower-case list Command Code ("p-" gives 2); -1 for any
// other code.
std::int16_t GroupOfListCode(const std::wstring& code);

// The tables filled once at start by AtStartDefaultValue.
struct NameTables {
    std::wstring ProgramVersion;
    std::array<std::wstring, 5> ListGroupNames;
    std::array<std::wstring, 5> ATaskNames;
    std::array<std::wstring, 9> SpecialFolderNames;
    std::array<std::wstring, 16> ControlPanelNames;
    std::array<std::wstring, 1> FeedbackMailAddress;
    std::array<std::wstring, 1> FeedbackMailSubject;
};

}  // namespace qs
