#pragma once
// The one file channel: a data file is read or written whole, in the
// machine's 8-bit code page, within one call. Values are read and written in
// the program's text form: integers in plain decimal, strings between double
// quotes with nothing escaped, values of one line separated by commas, lines
// ended by CR LF.
#include <cstdint>
#include <string>
#include <string_view>

namespace qs {

struct Application;

// Whole-file read and write; failures reach the caller's handler.
std::wstring ReadDataFile(const Application& app, const std::wstring& path);
void WriteDataFile(Application& app, const std::wstring& path, const std::wstring& text);

// The next value of a file's text, or of its bytes where each byte is one
// character, from `at` on, read as RecordReader reads it: `at` moves past
// the value and its delimiter. Throws InputPastEnd at the end.
template <typename Char>
std::basic_string_view<Char> NextValue(std::basic_string_view<Char> text, std::size_t& at);

// Reads values one at a time from a file's text. Spaces before a value are
// skipped; a value that begins with a double quote runs to the next double
// quote; anything else runs up to the next comma or line end. Reading past
// the end throws InputPastEnd; a number field holding text throws
// TypeMismatch, one out of range Overflow.
class RecordReader {
public:
    explicit RecordReader(std::wstring text) : text_(std::move(text)) {}

    std::wstring ReadString();
    // The next string value in place: valid while the reader lives, so a
    // long file's values need no copy of their own on the way to a list.
    std::wstring_view ReadView();
    std::int16_t ReadInt16();
    std::int32_t ReadInt32();
    // True when only blanks and line ends remain.
    bool AtEnd() const;
    // The length of the whole text, in characters.
    std::size_t Length() const { return text_.size(); }

private:
    long long ReadInteger(long long low, long long high);

    std::wstring text_;
    std::size_t at_ = 0;
};

// Builds a file's text value by value.
class RecordWriter {
public:
    RecordWriter& String(std::wstring_view value);
    RecordWriter& Integer(long long value);
    // Ends the current line.
    RecordWriter& EndLine();
    // Makes room at once for `characters` more, so that a long file is
    // written without growing its text again and again.
    void Reserve(std::size_t characters);
    // The text written so far.
    const std::wstring& Text() const;

private:
    // Room for `count` more characters at the end of the text: where to
    // write them.
    wchar_t* Room(std::size_t count);
    // Room for the next field of the line, after its comma when it is not
    // the first: the place to write its `length` characters.
    wchar_t* Field(std::size_t length);

    // Written up to used_; the rest is room, cut off when the text is read.
    mutable std::wstring text_;
    std::size_t used_ = 0;
    bool lineStarted_ = false;
};

}  // namespace qs
