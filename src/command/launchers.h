#pragma once
// The routines that start something. Each returns "" on success or its
// failure tag; the caller decides what to show.
#include <cstdint>
#include <string>

namespace qs {

struct Application;

std::wstring ActionProgramStartA(Application& app, std::wstring target);
std::wstring ActionProgramExplorer(Application& app, std::wstring& commandLine);
std::wstring ActionProgramPanel(Application& app, std::wstring& name);
std::wstring ActionContactMorvane(Application& app, std::wstring address, std::wstring& subject, std::wstring& body);
std::wstring ActionGetSpecialFolder(Application& app, std::wstring& name);

// Opens an item of a Launch List group by the group's kind: a folder through
// the file manager's command line, an address as a mail, anything else by
// its association.
std::wstring LaunchListItem(Application& app, std::int16_t group, const std::wstring& path);

}  // namespace qs
