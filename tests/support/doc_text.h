#pragma once
// Reads a text written as the document writes message bodies: quoted pieces
// (which may hold double quotes themselves) and the word CRLF between them.
// A piece ends at the double quote that is followed by CRLF or by the end.
#include <stdexcept>
#include <string>
#include <string_view>

namespace qs::test {

inline std::wstring Doc(std::wstring_view notation) {
    const auto isSpace = [](wchar_t c) { return c == L' ' || c == L'\n' || c == L'\t'; };
    const auto endsPiece = [&](std::size_t after) {
        while (after < notation.size() && isSpace(notation[after])) ++after;
        return after >= notation.size() || notation.substr(after, 4) == L"CRLF";
    };
    std::wstring text;
    std::size_t i = 0;
    while (i < notation.size()) {
        if (isSpace(notation[i])) {
            ++i;
        } else if (notation.substr(i, 4) == L"CRLF") {
            text += L"\r\n";
            i += 4;
        } else if (notation[i] == L'"') {
            std::size_t close = notation.find(L'"', i + 1);
            while (close != std::wstring_view::npos && !endsPiece(close + 1)) close = notation.find(L'"', close + 1);
            if (close == std::wstring_view::npos) throw std::invalid_argument("unclosed piece");
            text += notation.substr(i + 1, close - i - 1);
            i = close + 1;
        } else {
            throw std::invalid_argument("text outside a piece");
        }
    }
    return text;
}

}  // namespace qs::test
