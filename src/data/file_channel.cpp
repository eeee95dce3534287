#include "data/file_channel.h"

#include <algorithm>
#include <bit>
#include <iterator>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

#include "common/application.h"
#include "common/failure.h"

namespace qs {

std::wstring ReadDataFile(const Application& app, const std::wstring& path) { return app.sys.ReadTextFile(path); }

void WriteDataFile(Application& app, const std::wstring& path, const std::wstring& text) {
    app.sys.WriteTextFile(path, text);
}

namespace {

// The characters around a value: blanks before and after it, and what
// ends an unquoted one.
template <typename Char>
bool IsBlank(Char c) {
    return c == Char(' ') || c == Char('\t');
}
template <typename Char>
bool IsLineEnd(Char c) {
    return c == Char('\r') || c == Char('\n');
}
template <typename Char>
bool EndsValue(Char c) {
    return c == Char(',') || IsLineEnd(c);
}

// The next double quote at or after `from`, or npos.
template <typename Char>
std::size_t FindQuote(std::basic_string_view<Char> text, std::size_t from) {
    return text.find(Char('"'), from);
}

#if defined(__SSE2__)
// A list file is walked byte by byte before the bar shows, and is mostly
// quoted values, whose closing quotes are found here sixteen bytes at a
// time: the C library's search under Wine goes one byte at a time, and a
// long list's walk took half as long again with it.
template <>
std::size_t FindQuote<char>(std::string_view text, std::size_t from) {
    const char* const bytes = text.data();
    const std::size_t size = text.size();
    const __m128i quotes = _mm_set1_epi8('"');
    std::size_t i = from;
    for (; i + 16 <= size; i += 16) {
        const __m128i block = _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes + i));
        const auto found = static_cast<unsigned>(_mm_movemask_epi8(_mm_cmpeq_epi8(block, quotes)));
        if (found != 0) return i + static_cast<std::size_t>(std::countr_zero(found));
    }
    for (; i < size; ++i) {
        if (bytes[i] == '"') return i;
    }
    return std::string_view::npos;
}
#endif

}  // namespace

bool RecordReader::AtEnd() const {
    for (std::size_t i = at_; i < text_.size(); ++i) {
        if (!IsBlank(text_[i]) && !IsLineEnd(text_[i])) return false;
    }
    return true;
}

template <typename Char>
std::basic_string_view<Char> NextValue(std::basic_string_view<Char> text, std::size_t& at) {
    while (at < text.size() && IsBlank(text[at])) ++at;
    if (at >= text.size()) throw InputPastEnd();
    std::basic_string_view<Char> value;
    if (text[at] == Char('"')) {
        const std::size_t close = FindQuote(text, at + 1);
        const std::size_t end = close == std::basic_string_view<Char>::npos ? text.size() : close;
        value = text.substr(at + 1, end - at - 1);
        at = close == std::basic_string_view<Char>::npos ? text.size() : close + 1;
        // Anything between the closing quote and the delimiter is dropped.
        while (at < text.size() && !EndsValue(text[at])) ++at;
    } else {
        const std::size_t start = at;
        while (at < text.size() && !EndsValue(text[at])) ++at;
        value = text.substr(start, at - start);
        while (!value.empty() && IsBlank(value.back())) value.remove_suffix(1);
    }
    // After a value: blanks, then one comma or one line end (CR LF, CR or LF).
    while (at < text.size() && IsBlank(text[at])) ++at;
    if (at >= text.size()) return value;
    if (text[at] == Char(',')) {
        ++at;
    } else if (text[at] == Char('\r')) {
        ++at;
        if (at < text.size() && text[at] == Char('\n')) ++at;
    } else if (text[at] == Char('\n')) {
        ++at;
    }
    return value;
}

template std::string_view NextValue<char>(std::string_view, std::size_t&);
template std::wstring_view NextValue<wchar_t>(std::wstring_view, std::size_t&);

std::wstring_view RecordReader::ReadView() { return NextValue<wchar_t>(text_, at_); }

std::wstring RecordReader::ReadString() { return std::wstring(ReadView()); }

long long RecordReader::ReadInteger(long long low, long long high) {
    const std::wstring_view field = ReadView();
    if (field.empty()) return 0;
    std::size_t i = 0;
    bool negative = false;
    if (field[i] == L'-' || field[i] == L'+') {
        negative = field[i] == L'-';
        ++i;
    }
    if (i >= field.size()) throw TypeMismatch();
    long long value = 0;
    for (; i < field.size(); ++i) {
        if (field[i] < L'0' || field[i] > L'9') throw TypeMismatch();
        value = value * 10 + (field[i] - L'0');
        if (value > high + 1) throw Overflow();
    }
    if (negative) value = -value;
    if (value < low || value > high) throw Overflow();
    return value;
}

std::int16_t RecordReader::ReadInt16() { return static_cast<std::int16_t>(ReadInteger(INT16_MIN, INT16_MAX)); }

std::int32_t RecordReader::ReadInt32() { return static_cast<std::int32_t>(ReadInteger(INT32_MIN, INT32_MAX)); }

const std::wstring& RecordWriter::Text() const {
    text_.resize(used_);
    return text_;
}

void RecordWriter::Reserve(std::size_t characters) {
    if (used_ + characters > text_.size()) text_.resize(used_ + characters);
}

wchar_t* RecordWriter::Room(std::size_t count) {
    // The text grows by doubling and is written in place, so that a field
    // costs one test of the room left: a list file holds tens of thousands.
    if (used_ + count > text_.size()) text_.resize(std::max(2 * text_.size(), used_ + count + 64));
    wchar_t* const at = text_.data() + used_;
    used_ += count;
    return at;
}

wchar_t* RecordWriter::Field(std::size_t length) {
    const bool comma = lineStarted_;
    lineStarted_ = true;
    wchar_t* out = Room((comma ? 1 : 0) + length);
    if (comma) *out++ = L',';
    return out;
}

RecordWriter& RecordWriter::String(std::wstring_view value) {
    wchar_t* out = Field(value.size() + 2);
    *out++ = L'"';
    out = std::copy(value.begin(), value.end(), out);
    *out = L'"';
    return *this;
}

RecordWriter& RecordWriter::Integer(long long value) {
    // Decimal digits, with a minus sign when negative, as std::to_wstring
    // writes them.
    wchar_t digits[24];
    wchar_t* const end = std::end(digits);
    wchar_t* first = end;
    unsigned long long magnitude = value < 0 ? 0ULL - static_cast<unsigned long long>(value)
                                             : static_cast<unsigned long long>(value);
    do {
        *--first = static_cast<wchar_t>(L'0' + magnitude % 10);
        magnitude /= 10;
    } while (magnitude != 0);
    if (value < 0) *--first = L'-';
    std::copy(first, end, Field(static_cast<std::size_t>(end - first)));
    return *this;
}

RecordWriter& RecordWriter::EndLine() {
    wchar_t* const out = Room(2);
    out[0] = L'\r';
    out[1] = L'\n';
    lineStarted_ = false;
    return *this;
}

}  // namespace qs
