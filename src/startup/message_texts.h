#pragma once
// The texts of every message the program can show, looked up by key.
#include <optional>
#include <string>

namespace qs {

// A message of the ordinary table. An empty caption keeps the addressee's
// name as heading; buttons and input are as MessageAAAct takes them.
struct ProcessMessage {
    std::wstring caption;
    std::wstring body;
    std::wstring buttons;
    std::wstring input;
};

// The body of a message that ends the program, or nothing for a key the
// fatal table does not hold.
std::optional<std::wstring> FatalMessageBody(const std::wstring& key);

// An ordinary message by key, or nothing for a key the table does not hold.
// The duplicate's Launch Name completes "MessagePathAlreadyListed".
std::optional<ProcessMessage> OrdinaryMessage(const std::wstring& key, const std::wstring& duplicateItemName);

}  // namespace qs
