#pragma once
// The maker's addresses: the mailbox that takes bug reports and feedback,
// the web site, and the program's online help page.
namespace qs::maker {

inline constexpr const wchar_t* MailAddress = L"feedback@quillstart.example";
inline constexpr const wchar_t* WebSite = L"http://www.quillstart.example";
inline constexpr const wchar_t* OnlineHelpPage = L"http://www.quillstart.example/help/quillstart.html";

}  // namespace qs::maker
