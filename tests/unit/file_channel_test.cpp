#include <gtest/gtest.h>

#include "common/failure.h"
#include "data/file_channel.h"

namespace {

using qs::InputPastEnd;
using qs::NextValue;
using qs::RecordReader;
using qs::RecordWriter;

TEST(RecordReaderTest, ReadsOneValuePerLineAndSeveralPerLine) {
    RecordReader r(L"10\r\n\"Some text\"\r\n\"a\",\"b\",-3\r\n");
    EXPECT_EQ(r.ReadInt16(), 10);
    EXPECT_EQ(r.ReadString(), L"Some text");
    EXPECT_EQ(r.ReadString(), L"a");
    EXPECT_EQ(r.ReadString(), L"b");
    EXPECT_EQ(r.ReadInt16(), -3);
    EXPECT_TRUE(r.AtEnd());
    EXPECT_THROW(r.ReadString(), qs::InputPastEnd);
}

TEST(RecordReaderTest, QuotedValueKeepsCommasAndRunsToNextQuote) {
    RecordReader r(L"  \"C:\\a, b\\\",x\r\n");
    EXPECT_EQ(r.ReadString(), L"C:\\a, b\\");
    EXPECT_EQ(r.ReadString(), L"x");
}

TEST(RecordReaderTest, UnquotedValueRunsToCommaOrLineEnd) {
    RecordReader r(L"abc def,ghi\nlast");
    EXPECT_EQ(r.ReadString(), L"abc def");
    EXPECT_EQ(r.ReadString(), L"ghi");
    EXPECT_EQ(r.ReadString(), L"last");
}

TEST(RecordReaderTest, TextInANumberFieldIsATypeMismatch) {
    RecordReader r(L"\"abc\"\r\n");
    EXPECT_THROW(r.ReadInt16(), qs::TypeMismatch);
}

TEST(RecordReaderTest, NumberOutsideSixteenBitsOverflows) {
    RecordReader r(L"32768\r\n-32769\r\n32767\r\n");
    EXPECT_THROW(r.ReadInt16(), qs::Overflow);
    EXPECT_THROW(r.ReadInt16(), qs::Overflow);
    EXPECT_EQ(r.ReadInt16(), 32767);
}

TEST(RecordReaderTest, ThirtyTwoBitField) {
    RecordReader r(L"226151102\r\n");
    EXPECT_EQ(r.ReadInt32(), 226151102);
}

TEST(RecordWriterTest, WritesQuotedStringsPlainNumbersAndCrLf) {
    RecordWriter w;
    w.Integer(10).EndLine().String(L"").EndLine().String(L"n").String(L"C:\\x").Integer(-1).EndLine();
    EXPECT_EQ(w.Text(), L"10\r\n\"\"\r\n\"n\",\"C:\\x\",-1\r\n");
}

TEST(RecordWriterTest, RoomMadeAheadLeavesTheTextAsWritten) {
    RecordWriter plain;
    RecordWriter ahead;
    ahead.Reserve(4);
    for (RecordWriter* w : {&plain, &ahead}) {
        w->String(L"name").Integer(226151102).EndLine();
        if (w == &ahead) w->Reserve(1000);
        w->String(L"").String(L"C:\\Tools\\").EndLine();
    }
    EXPECT_EQ(ahead.Text(), plain.Text());
    EXPECT_EQ(ahead.Text(), L"\"name\",226151102\r\n\"\",\"C:\\Tools\\\"\r\n");
    // Writing goes on after the text was read.
    ahead.Integer(7).EndLine();
    EXPECT_EQ(ahead.Text(), plain.Text() + L"7\r\n");
}

// Bytes and text read alike whatever the length of a quoted value: its
// closing quote is found wherever it falls, near or far, and a quote that
// never closes runs to the end.
TEST(NextValueTest, QuotedValuesOfEveryLengthReadAlikeInBytesAndText) {
    for (std::size_t length = 0; length <= 70; ++length) {
        std::string value;
        for (std::size_t i = 0; i < length; ++i) value.push_back(static_cast<char>('a' + i % 26));
        for (const std::string& text : {"\"" + value + "\",\"x\"\r\n", "\"" + value + "\"", "  \"" + value,
                                        "\"" + value + "\"tail\r\"x\""}) {
            const std::wstring wide(text.begin(), text.end());
            std::size_t atBytes = 0;
            std::size_t atText = 0;
            const std::string_view bytesValue = NextValue<char>(text, atBytes);
            const std::wstring_view textValue = NextValue<wchar_t>(wide, atText);
            EXPECT_EQ(bytesValue, value) << text;
            EXPECT_EQ(std::wstring(textValue), std::wstring(value.begin(), value.end())) << text;
            EXPECT_EQ(atBytes, atText) << text;
            if (atBytes < text.size()) {
                EXPECT_EQ(NextValue<char>(text, atBytes), "x") << text;
            } else {
                EXPECT_THROW(NextValue<char>(text, atBytes), InputPastEnd) << text;
            }
        }
    }
}

}  // namespace
