#include "Tests/Foundation/StringModel.h"
#include "Tests/Support/Repeated.h"
#include "UVEnvironment/UVEUnicodeString.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <typeinfo>
#include <unordered_map>

using namespace StringModel;
using Uve::U8CString;

namespace {

const std::vector<std::u32string> kTexts = AllTexts(4);
const std::vector<std::u32string> kShortTexts = AllTexts(2);

// Runs `check` on `text` with no remembered position, and once with each that there is.
template <class Check>
void WithEveryKnownPosition(const std::u32string& text, Check&& check)
{
    for (int known = 0; known <= static_cast<int>(text.size()); ++known) {
        U8CString subject(Utf8(text));
        if (known > 0)
            subject.Mid(known - 1, 1);
        SCOPED_TRACE(testing::Message() << "known " << known << " in '" << Utf8(text) << "'");
        check(std::as_const(subject));
        if (testing::Test::HasFailure())
            return;
    }
}

} // namespace

TEST(U8CString, PartsAgreeWithCodePointsFromEveryKnownPosition)
{
    for (const auto& text : kTexts) {
        const int length = static_cast<int>(text.size());
        WithEveryKnownPosition(text, [&](const U8CString& subject) {
            for (int first = -1; first <= length + 1; ++first) {
                for (int count = -1; count <= length + 1; ++count) {
                    ASSERT_EQ(subject.Mid(first, count), Utf8(Mid(text, first, count)))
                        << first << ' ' << count;
                    const U8CString fresh(Utf8(text));
                    fresh.Mid(first, count);
                    ASSERT_EQ(fresh.GetLength(), length) << first << ' ' << count;
                }
                ASSERT_EQ(subject.Left(first), Utf8(Mid(text, 0, first))) << first;
                ASSERT_EQ(subject.Right(first), Utf8(Mid(text, length - first, first))) << first;
            }
            ASSERT_EQ(subject.GetLength(), length);
        });
        if (HasFailure())
            return;
    }
}

TEST(U8CString, SearchesAgreeWithCodePointsFromEveryKnownPosition)
{
    for (const auto& text : AllTexts(3)) {
        const int length = static_cast<int>(text.size());
        WithEveryKnownPosition(text, [&](const U8CString& subject) {
            for (const auto& wanted : kShortTexts) {
                const std::string utf8 = Utf8(wanted);
                SCOPED_TRACE(utf8);
                for (int start = length + 1; start >= -1; --start) {
                    const int found =
                        wanted.empty()
                            ? 0
                            : Index(text.find(wanted, static_cast<std::size_t>(std::max(start, 0))));
                    ASSERT_EQ(subject.Find(utf8.c_str(), start), found) << start;
                    const auto from = start < 0 ? std::u32string::npos : static_cast<std::size_t>(start);
                    ASSERT_EQ(subject.ReverseFindOneOf(utf8.c_str(), start),
                              Index(text.find_last_of(wanted, from)))
                        << start;
                }
                const U8CString fresh(Utf8(text));
                ASSERT_EQ(fresh.FindOneOf(utf8.c_str()), Index(text.find_first_of(wanted)));
                ASSERT_EQ(fresh.GetLength(), length);
                ASSERT_EQ(subject.ReverseFind(utf8.c_str()),
                          wanted.empty() ? -1 : Index(text.rfind(wanted[0])));
            }
        });
        if (HasFailure())
            return;
    }
}

TEST(U8CString, LongTextsCountAlike)
{
    // Runs of ASCII are passed in steps of eight; these put the odd character at each place of such a step.
    for (std::size_t place = 0; place < 20; ++place) {
        U8CString subject(std::string(place, 'a') + "\xE2\x82\xAC" + std::string(20, 'b'));
        const int index = static_cast<int>(place);
        EXPECT_EQ(subject.Find("b"), index + 1);
        EXPECT_EQ(subject.Mid(index, 2), "\xE2\x82\xAC"
                                         "b");
        EXPECT_EQ(subject.ReverseFind("\xE2\x82\xAC"), index);
        EXPECT_EQ(subject.GetLength(), index + 21);
    }
}

TEST(U8CString, TokensAgreeWithCodePoints)
{
    const auto tokenize = [](const std::u32string& text, const std::u32string& delimiters, int& position) {
        const auto start = static_cast<std::size_t>(position);
        if (start >= text.size()) {
            position = -1;
            return std::u32string();
        }
        if (delimiters.empty())
            return text.substr(start);
        const auto first = text.find_first_not_of(delimiters, start);
        if (first == std::u32string::npos) {
            position = -1;
            return std::u32string();
        }
        const auto end = std::min(text.find_first_of(delimiters, first), text.size());
        position = static_cast<int>(end) + 1;
        return text.substr(first, end - first);
    };
    for (const auto& text : kTexts) {
        for (const auto& delimiters : kShortTexts) {
            for (int start = 0; start <= static_cast<int>(text.size()) + 1; ++start) {
                const U8CString subject(Utf8(text));
                int position = start;
                int expected = start;
                do {
                    const auto token = tokenize(text, delimiters, expected);
                    ASSERT_EQ(subject.Tokenize(Utf8(delimiters).c_str(), position), Utf8(token))
                        << '\'' << Utf8(text) << "' by '" << Utf8(delimiters) << "' from " << start;
                    ASSERT_EQ(position, expected)
                        << '\'' << Utf8(text) << "' by '" << Utf8(delimiters) << '\'';
                    ASSERT_EQ(U8CString(subject).GetLength(), static_cast<int>(text.size()));
                } while (position != -1 && !delimiters.empty());
            }
        }
    }
}

TEST(U8CString, TokenizeRefusesNegativePositions)
{
    EXPECT_THAT(
        [] {
            int position = -1;
            U8CString("a").Tokenize(",", position);
        },
        testing::ThrowsMessage<std::out_of_range>("Invalid position (negative)"));
}

TEST(U8CString, NullAndEmptyArguments)
{
    const U8CString text("ab");
    const U8CString none;
    for (const char* const nothing : {static_cast<const char*>(nullptr), ""}) {
        EXPECT_EQ(text.Find(nothing, 5), 0); // no text is found first of all, even past the end
        EXPECT_EQ(none.Find(nothing), 0);
        EXPECT_EQ(text.ReverseFind(nothing), -1);
        EXPECT_EQ(text.FindOneOf(nothing), -1);
        EXPECT_EQ(text.ReverseFindOneOf(nothing, 0), -1);
        EXPECT_EQ(text.CollateNoCase(nothing), 1);
        EXPECT_EQ(none.CollateNoCase(nothing), 0);
        EXPECT_EQ(text.Collate(nothing), 1);
        EXPECT_EQ(none.Collate(nothing), 0);
        EXPECT_EQ(U8CString(nothing), "");
    }
    EXPECT_EQ(none.Find("a"), -1);
    EXPECT_EQ(none.Collate("a"), -1);
    EXPECT_EQ(none.CollateNoCase("a"), -1);
}

TEST(U8CString, CollateNoCaseFoldsBeyondAscii)
{
    struct SCase
    {
        const char *left, *right;
        int sign;
    };
    constexpr SCase kCases[] = {
        {"Stra\xC3\x9F"
         "e",
         "STRASSE", 0},
        {"\xC3\x89", "e\xCC\x81", 0}, // composed and decomposed
        {"select", "selecu", -1},
        {"caf\xE9", "caf\xE8", 1}, // not UTF-8, yet not equal
    };
    for (const auto& c : kCases) {
        const int result = U8CString(c.left).CollateNoCase(c.right);
        EXPECT_EQ((result > 0) - (result < 0), c.sign) << c.left << ' ' << c.right;
    }
    EXPECT_NE(U8CString("Select").Collate("select"), 0);
}

TEST(U8CString, ByteSearchesGiveByteOffsets)
{
    const U8CString text(" \t\xC3\xA9,\xE2\x82\xAC\n");
    EXPECT_EQ(text.FindNonSpace(), 2u);
    EXPECT_EQ(text.FindNonSpace(8), std::nullopt);
    EXPECT_EQ(text.FindNonSpaceBackwards(), 5u); // the first byte of the character
    EXPECT_EQ(text.FindNonSpaceBackwards(1), std::nullopt);

    const auto set = Uve::BuildCodepointMatchers("\xE2\x82\xAC,");
    ASSERT_EQ(set.size(), 2u);
    EXPECT_EQ(set[0].length, 3u);
    EXPECT_EQ(text.FindMatching(set.data(), set.size()), 4u);
    EXPECT_EQ(text.FindMatching(set.data(), set.size(), 5), 5u);
    EXPECT_EQ(text.FindMatching(set.data(), set.size(), 8), std::nullopt);
    EXPECT_EQ(text.FindNotMatching(set.data(), set.size(), 4), 8u);
    EXPECT_EQ(text.FindNotMatchingBackwards(set.data(), set.size(), 7), 2u); // 7 is inside the euro sign
    const Uve::UTF8CodepointMatcher any;
    EXPECT_EQ(text.FindMatching(&any, 1, 2), 2u);
    EXPECT_EQ(text.FindNotMatching(&any, 1), std::nullopt);
}

TEST(U8CString, IsAByteStringToContainersAndTypes)
{
    EXPECT_STREQ(typeid(U8CString).name(), "N3Uve9U8CStringE");
    std::unordered_map<U8CString, int> numbers;
    numbers["\xC3\xA9"] = 1;
    U8CString key("x\xC3\xA9");
    key = key.Mid(1, 1); // a remembered position doesn't make it another key
    EXPECT_EQ(numbers.count(key), 1u);
    EXPECT_LT(U8CString("a"), U8CString("b"));
    EXPECT_EQ("a" + U8CString("b") + 'c' + std::string("d"), "abcd");
    EXPECT_EQ(U8CString(L"\u20AC").toWide(), L"\u20AC");
    EXPECT_EQ(U8CString('x', 3), "xxx");
}

TEST(U8CString, MovingTakesThePositionAlong)
{
    U8CString source("\xC3\xA9\xC3\xA9z");
    source.GetLength();
    source.Mid(2, 1);
    U8CString target(std::move(source));
    EXPECT_EQ(source.GetLength(), 0); // NOLINT: what a move leaves is empty in every respect
    source = "abc";                   // NOLINT: reused on purpose
    EXPECT_EQ(source.Mid(2, 1), "c");
    EXPECT_EQ(target.Mid(2, 1), "z");
    swap(source, target);
    EXPECT_EQ(source.Mid(2, 1), "z");
    EXPECT_EQ(target.Mid(2, 1), "c");
    EXPECT_EQ(target.GetLength(), 3);
}

// Were one of these scans to start from the front each time, it would take 10^12 steps and never end.
TEST(U8CString, ScansOfALongTextEnd)
{
    constexpr int kLength = 2'000'000;
    U8CString text = Repeated("\xC3\xA9,", kLength / 2);

    for (int i = 0; i < kLength; ++i)
        ASSERT_EQ(text.Mid(i, 1).size(), i % 2 ? 1u : 2u);
    for (int i = kLength - 1; i >= 0; --i)
        ASSERT_EQ(text.Mid(i, 1).size(), i % 2 ? 1u : 2u);
    for (int i = 1; i < kLength; i += 2)
        ASSERT_EQ(text.Find(",", i), i);
    for (int i = kLength - 1; i > 0; i -= 2)
        ASSERT_EQ(text.ReverseFindOneOf(",", i), i);
    int tokens = 0;
    for (int position = 0; text.Tokenize(",", position), position != -1;)
        ++tokens;
    EXPECT_EQ(tokens, kLength / 2);
    for (int i = 0; i < kLength; ++i)
        ASSERT_EQ(text.GetLength(), kLength);
    EXPECT_EQ(text.Replace(",", ""), kLength / 2);
    EXPECT_EQ(text.GetLength(), kLength / 2);
}
