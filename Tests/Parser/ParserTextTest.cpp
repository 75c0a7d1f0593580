#include "Parser/UVParserText.h"
#include "Parser/XmlHeader.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using Uve::U8CString;

TEST(ParserText, ZeroWidthSpacesBecomeBlanks)
{
    struct
    {
        const char* text;
        const char* result;
    } constexpr kCases[] = {
        {"", ""},
        {"plain", "plain"},
        {"\xE2\x80\x8B", " "},
        {"a\xE2\x80\x8B\xE2\x80\x8B"
         "b\xE2\x80\x8B",
         "a  b "},
        {"\xE2\x82\xAC\xE2\x80\x8B\xE2\x82\xAC",
         "\xE2\x82\xAC \xE2\x82\xAC"}, // neighbours with the same first byte
        {"\xE2\x80", "\xE2\x80"},      // cut off at the end
    };
    for (const auto& c : kCases) {
        U8CString text = c.text;
        EXPECT_GE(text.GetLength(), 0); // the string remembers its length: the change must reach it
        ReplaceZeroWidthSpaces(text);
        EXPECT_EQ(text, c.result);
        EXPECT_EQ(text.GetLength(), U8CString(c.result).GetLength());
    }
}

TEST(ParserText, XmlHeaderIsReplacedByOneOfItsOwn)
{
    struct
    {
        const char* text;
        const char* content;
    } constexpr kCases[] = {
        {"", ""},
        {"<SQL></SQL>", "<SQL></SQL>"},
        {"<?xml version='1.1'?><a/>", "<a/>"},
        {"<SQL><?xml?>rest", "rest"}, // what stands in front goes too
        {"<SQL><?xml", "<SQL><?xml"}, // never closed
        {"<?php ?>", "<?php ?>"},     // another instruction
    };
    for (const auto& c : kCases) {
        U8CString text = c.text;
        ReplaceXmlHeader(text);
        EXPECT_EQ(text, std::string("<?xml version=\"1.0\" ?>") + c.content);
    }
}

TEST(ParserText, ExtensionStandsAfterTheLastDot)
{
    EXPECT_EQ(TextAfterLastDot("a.b.c"), U8CString("c"));
    EXPECT_EQ(TextAfterLastDot("a."), U8CString(""));
    EXPECT_EQ(TextAfterLastDot("a"), std::nullopt);
}

} // namespace
