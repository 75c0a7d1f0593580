#include "UVEnvironment/UVERawString.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>
#include <string>

using namespace Uve;

namespace {

struct SFree
{
    void operator()(raw_string* string) const { raw_string_free(string, true); }
};
using RawString = std::unique_ptr<raw_string, SFree>;

std::string Text(const RawString& string)
{
    EXPECT_EQ(string->str[string->len], '\0');
    return {string->str, string->len};
}

} // namespace

TEST(RawString, GrowsToTheNextPowerOfTwo)
{
    const RawString string(raw_string_new("123456789012345"));
    EXPECT_EQ(string->allocated_len, 16u);
    raw_string_append(string.get(), "6"); // the closing NUL needs its byte as well
    EXPECT_EQ(string->allocated_len, 32u);
    EXPECT_EQ(Text(string), "1234567890123456");
    EXPECT_EQ(RawString(raw_string_sized_new(100))->allocated_len, 128u);
    EXPECT_EQ(Text(RawString(raw_string_new(nullptr))), "");
}

TEST(RawString, InsertsAtBytesEvenFromItself)
{
    const RawString string(raw_string_new("ad"));
    raw_string_insert_len(string.get(), 1, "bcx", 2);
    EXPECT_EQ(Text(string), "abcd");
    raw_string_insert_len(string.get(), 99, "\0e", 2); // beyond the end: appends
    EXPECT_EQ(Text(string), std::string("abcd\0e", 6));
    raw_string_insert_unichar(string.get(), 0, U'\u20AC');
    raw_string_append_unichar(string.get(), U'\U0001F600');
    EXPECT_EQ(Text(string), std::string("\xE2\x82\xAC"
                                        "abcd\0e\xF0\x9F\x98\x80",
                                        13));
    const RawString own(raw_string_new("0123456789"));
    std::string model = Text(own);
    for (int i = 0; i < 3; ++i) {
        raw_string_insert_len(own.get(), 2, own->str + 1, static_cast<std::ptrdiff_t>(own->len) - 1);
        model.insert(2, std::string(model, 1));
        EXPECT_EQ(Text(own), model);
    }
}

TEST(RawString, HandsTheTextOver)
{
    char* const text = raw_string_free(raw_string_new("kept"), false);
    EXPECT_STREQ(text, "kept");
    std::free(text);
    EXPECT_EQ(raw_string_free(raw_string_new("gone"), true), nullptr);
}
