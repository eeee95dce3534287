#include "data/file_channel.h"

#include "common/application.h"
#include "common/failure.h"

namespace qs {

std::wstring ReadDataFile(const Application& app, const std::wstring& path) { return app.sys.ReadTextFile(path); }

void WriteDataFile(Application& app, const std::wstring& path, const std::wstring& text) {
    app.sys.WriteTextFile(path, text);
}

namespace {

bool IsLineEnd(wchar_t c) { return c == L'\r' || c == L'\n'; }

}  // namespace

bool RecordReader::AtEnd() const {
    for (std::size_t i = at_; i < text_.size(); ++i) {
        if (text_[i] != L' ' && text_[i] != L'\t' && !IsLineEnd(text_[i])) return false;
    }
    return true;
}

void RecordReader::SkipDelimiter() {
    // After a value: blanks, then one comma or one line end (CR LF, CR or LF).
    while (at_ < text_.size() && (text_[at_] == L' ' || text_[at_] == L'\t')) ++at_;
    if (at_ >= text_.size()) return;
    if (text_[at_] == L',') {
        ++at_;
    } else if (text_[at_] == L'\r') {
        ++at_;
        if (at_ < text_.size() && text_[at_] == L'\n') ++at_;
    } else if (text_[at_] == L'\n') {
        ++at_;
    }
}

std::wstring_view RecordReader::ReadView() {
    while (at_ < text_.size() && (text_[at_] == L' ' || text_[at_] == L'\t')) ++at_;
    if (at_ >= text_.size()) throw InputPastEnd();
    const std::wstring_view text(text_);
    std::wstring_view value;
    if (text_[at_] == L'"') {
        const std::size_t close = text_.find(L'"', at_ + 1);
        const std::size_t end = close == std::wstring::npos ? text_.size() : close;
        value = text.substr(at_ + 1, end - at_ - 1);
        at_ = close == std::wstring::npos ? text_.size() : close + 1;
        // Anything between the closing quote and the delimiter is dropped.
        while (at_ < text_.size() && text_[at_] != L',' && !IsLineEnd(text_[at_])) ++at_;
    } else {
        const std::size_t start = at_;
        while (at_ < text_.size() && text_[at_] != L',' && !IsLineEnd(text_[at_])) ++at_;
        value = text.substr(start, at_ - start);
        while (!value.empty() && (value.back() == L' ' || value.back() == L'\t')) value.remove_suffix(1);
    }
    SkipDelimiter();
    return value;
}

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

void RecordWriter::Separate() {
    if (lineStarted_) text_ += L',';
    lineStarted_ = true;
}

RecordWriter& RecordWriter::String(std::wstring_view value) {
    Separate();
    text_ += L'"';
    text_ += value;
    text_ += L'"';
    return *this;
}

RecordWriter& RecordWriter::Integer(long long value) {
    Separate();
    text_ += std::to_wstring(value);
    return *this;
}

RecordWriter& RecordWriter::EndLine() {
    text_ += L"\r\n";
    lineStarted_ = false;
    return *this;
}

}  // namespace qs
