#pragma once
// The program's and its maker's names, and the maker's addresses: the
// mailbox that takes bug reports and feedback, the web site, and the
// program's online help page.
namespace qs::maker {

inline constexpr const wchar_t* ProgramName = L"Quillstart";
inline constexpr const wchar_t* MakerName = L"Morvane";
inline constexpr const wchar_t* MailAddress = L"feedback@quillstart.example";
inline constexpr const wchar_t* WebSite = L"http://www.quillstart.example";
inline constexpr const wchar_t* OnlineHelpPage = L"http://www.quillstart.example/help/quillstart.html";

}  // namespace qs::maker
