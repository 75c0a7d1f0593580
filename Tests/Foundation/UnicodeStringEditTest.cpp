#include "Tests/Foundation/StringModel.h"
#include "UVEnvironment/UVEUnicodeString.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

using namespace StringModel;
using Uve::U8CString;

namespace {

const std::vector<std::u32string> kTexts = AllTexts(4);
const std::vector<std::u32string> kShortTexts = AllTexts(2);

// A string with a remembered position and length, both of which a change makes stale.
U8CString Primed(const std::u32string& text)
{
    U8CString subject(Utf8(text));
    subject.GetLength();
    subject.Mid(static_cast<int>(text.size()) - 1, 1);
    return subject;
}

testing::AssertionResult Holds(const U8CString& subject, const std::u32string& text)
{
    if (subject != Utf8(text))
        return testing::AssertionFailure()
               << "'" << std::string(subject) << "' instead of '" << Utf8(text) << "'";
    for (int i = static_cast<int>(text.size()); i >= 0; --i)
        if (subject.Mid(i, 1) != Utf8(Mid(text, i, 1)))
            return testing::AssertionFailure() << "stale position at " << i << " of '" << Utf8(text) << "'";
    if (subject.GetLength() != static_cast<int>(text.size()))
        return testing::AssertionFailure() << "stale length of '" << Utf8(text) << "'";
    return testing::AssertionSuccess();
}

} // namespace

TEST(U8CStringEdit, InsertAndDeleteAgreeWithCodePoints)
{
    for (const auto& text : kTexts) {
        const int length = static_cast<int>(text.size());
        for (int index = -1; index <= length + 1; ++index) {
            const auto place = static_cast<std::size_t>(std::clamp(index, 0, length));
            for (const auto& added : AllTexts(1)) {
                U8CString subject = Primed(text);
                auto expected = text;
                expected.insert(place, added);
                ASSERT_EQ(subject.Insert(index, Utf8(added).c_str()), static_cast<int>(expected.size()));
                ASSERT_TRUE(Holds(subject, expected)) << index;
            }
            for (int count = -1; count <= length + 1; ++count) {
                U8CString subject = Primed(text);
                auto expected = text;
                if (count > 0)
                    expected.erase(place, static_cast<std::size_t>(count));
                ASSERT_EQ(subject.Delete(index, count), static_cast<int>(expected.size()));
                ASSERT_TRUE(Holds(subject, expected)) << index << ' ' << count;
            }
        }
    }
}

TEST(U8CStringEdit, TrimAndReverseAgreeWithCodePoints)
{
    const auto trimmed = [](std::u32string text, const std::u32string& set, bool left, bool right) {
        if (right)
            text.erase(text.find_last_not_of(set) + 1);
        if (left)
            text.erase(0, std::min(text.find_first_not_of(set), text.size()));
        return text;
    };
    for (const auto& text : kTexts) {
        for (const auto& set : kShortTexts) {
            const std::string utf8 = Utf8(set);
            ASSERT_TRUE(Holds(Primed(text).Trim(utf8.c_str()), trimmed(text, set, true, true))) << utf8;
            ASSERT_TRUE(Holds(Primed(text).TrimLeft(utf8.c_str()), trimmed(text, set, true, false))) << utf8;
            ASSERT_TRUE(Holds(Primed(text).TrimRight(utf8.c_str()), trimmed(text, set, false, true))) << utf8;
        }
        ASSERT_TRUE(Holds(Primed(text).Trim(), trimmed(text, U" ", true, true)));
        ASSERT_TRUE(Holds(Primed(text).TrimLeft(), trimmed(text, U" ", true, false)));
        ASSERT_TRUE(Holds(Primed(text).TrimRight(), trimmed(text, U" ", false, true)));
        ASSERT_TRUE(Holds(Primed(text).MakeReverse(), std::u32string(text.rbegin(), text.rend())));
    }
    EXPECT_EQ(U8CString("\t\v\f\r\n x\xC2\xA0 ").Trim(), "x\xC2\xA0"); // a no-break space isn't white space
}

TEST(U8CStringEdit, ReplaceAgreesWithCodePoints)
{
    for (const auto& text : kTexts) {
        for (const auto& from : kShortTexts) {
            for (const auto& to : {U"", U"a", U"\u20AC,a"}) {
                U8CString subject = Primed(text);
                std::u32string expected;
                int count = 0;
                for (std::size_t at = 0; at < text.size();) {
                    if (!from.empty() && text.compare(at, from.size(), from) == 0) {
                        expected += to;
                        at += from.size();
                        ++count;
                    } else
                        expected += text[at++];
                }
                ASSERT_EQ(subject.Replace(Utf8(from).c_str(), Utf8(to).c_str()), count);
                ASSERT_TRUE(Holds(subject, expected)) << Utf8(from) << " -> " << Utf8(to);
            }
        }
    }
    U8CString own("ab");
    EXPECT_EQ(own.Replace("b", own.c_str()), 1); // the new text is a part of the old one
    EXPECT_EQ(own, "aab");
    EXPECT_EQ(own.Replace("a", nullptr), 2);
    EXPECT_EQ(own, "b");
}

TEST(U8CStringEdit, EveryChangeForgetsThePosition)
{
    using Change = std::function<void(U8CString&)>;
    const std::string other = "\xE2\x82\xAC-";
    const std::pair<const char*, Change> kCases[] = {
        {"assign", [&](U8CString& s) { s.assign(other); }},
        {"= string", [&](U8CString& s) { s = other; }},
        {"= C string", [](U8CString& s) { s = "x"; }},
        {"= char", [](U8CString& s) { s = 'x'; }},
        {"append", [&](U8CString& s) { s.append(other, 0u, 3u); }},
        {"+= string", [&](U8CString& s) { s += other; }},
        {"+= char", [](U8CString& s) { s += 'x'; }},
        {"push_back", [](U8CString& s) { s.push_back('x'); }},
        {"pop_back", [](U8CString& s) { s.pop_back(); }},
        {"insert", [&](U8CString& s) { s.insert(0u, other); }},
        {"insert by iterator", [](U8CString& s) { s.insert(s.begin(), 'x'); }},
        {"erase", [](U8CString& s) { s.erase(0u, 2u); }},
        {"replace", [&](U8CString& s) { s.replace(0u, 2u, other); }},
        {"resize", [](U8CString& s) { s.resize(2); }},
        {"clear", [](U8CString& s) { s.clear(); }},
        {"swap",
         [](U8CString& s) {
             std::string bytes("xyz"), &b = bytes;
             s.swap(b);
         }},
        {"[]", [](U8CString& s) { s[0] = s[1] = 'x'; }},
        {"at", [](U8CString& s) { s.at(0) = s.at(1) = 'x'; }},
        {"begin", [](U8CString& s) { std::fill(s.begin(), s.end(), 'x'); }},
        {"data", [](U8CString& s) { std::fill_n(s.data(), 2, 'x'); }},
        {"front", [](U8CString& s) { s.front() = '\xC2'; }},
        {"rbegin", [](U8CString& s) { std::fill(s.rbegin(), s.rend(), 'x'); }},
        {"MakeUpper", [](U8CString& s) { s.MakeUpper(); }},
        {"MakeLower", [](U8CString& s) { s.MakeLower(); }},
        {"Format", [](U8CString& s) { s.Format("%s-%s", s.c_str(), "x"); }},
        {"AppendFormat", [](U8CString& s) { s.AppendFormat("%s", s.c_str()); }},
        {"GetBuffer", [](U8CString& s) { std::fill_n(s.GetBuffer(), 2, 'x'); }},
        {"ReleaseBuffer", [](U8CString& s) { s.ReleaseBuffer(2); }},
        {"ReleaseBufferBytes", [](U8CString& s) { s.ReleaseBufferBytes(2); }},
    };
    for (const auto& [name, change] : kCases) {
        SCOPED_TRACE(name);
        U8CString subject("\xC3\xA9\xC3\x9F\xE2\x82\xACz");
        subject.GetLength();
        subject.Mid(3, 1);
        change(subject);
        const U8CString fresh{std::string(subject)};
        EXPECT_EQ(subject.Mid(1, 2), fresh.Mid(1, 2));
        EXPECT_EQ(subject.Mid(3, 9), fresh.Mid(3, 9));
        EXPECT_EQ(subject.GetLength(), fresh.GetLength());
    }
}

TEST(U8CStringEdit, ShorteningBehindItsBackStaysInside)
{
    U8CString subject(std::string(100, 'a'));
    subject.Mid(90, 1);
    static_cast<std::string&>(subject) = "\xC3\xA9";
    EXPECT_EQ(subject.Mid(91, 1), "");
    EXPECT_EQ(subject.Find("b", 0), -1);
    subject.GetBuffer();
    EXPECT_EQ(subject.GetLength(), 1);
}

TEST(U8CStringEdit, FormatTakesAnyLength)
{
    U8CString text;
    text.Format("%5d|%-3s|", 42, "\xC3\xA9");
    EXPECT_EQ(text, "   42|\xC3\xA9 |"); // widths are the C library's: bytes
    text.Format("%s%s", std::string(5000, 'x').c_str(), text.c_str());
    EXPECT_EQ(text.size(), 5010u);
    text.Format("%s", "");
    EXPECT_EQ(text, "");
    text = "kept";
    text.AppendFormat("%s", "");
    EXPECT_EQ(text, "kept");
    text.AppendFormat("!%c%c", 0, 0); // NUL bytes at the end don't stay
    EXPECT_EQ(text, "kept!");
    text.Format("x%c", 0);
    EXPECT_EQ(text, "x");
    text.Format("%c%c", 0, 'x');
    EXPECT_EQ(text, std::string("\0x", 2));
}

TEST(U8CStringEdit, BuffersCountFourBytesACharacter)
{
    U8CString text("\xC3\xA9");
    char* const buffer = text.GetBuffer(10);
    EXPECT_EQ(text.size(), 40u);
    EXPECT_EQ(text.GetLength(), 39); // the old text is still there
    std::copy_n("\xE2\x82\xAC\xE2\x82\xAC", 7, buffer);
    text.ReleaseBuffer();
    EXPECT_EQ(text.size(), 6u);
    EXPECT_EQ(text.GetLength(), 2);

    text.GetBuffer(3);
    text.ReleaseBuffer(1);
    EXPECT_EQ(text, "\xE2\x82\xAC");
    text.GetBufferBytes(5)[3] = 'x';
    text.ReleaseBufferBytes(4);
    EXPECT_EQ(text, "\xE2\x82\xACx");
    text.ReleaseBufferBytes(99);
    EXPECT_EQ(text, "\xE2\x82\xACx");
    text.ReleaseBuffer(99);
    EXPECT_EQ(text.GetLength(), 2);
    text.ReleaseBuffer(0);
    EXPECT_EQ(text, "");
    text = "x";
    text.GetBuffer(0);
    EXPECT_EQ(text, "");
}

TEST(U8CStringEdit, MalformedTextLosesNoByte)
{
    EXPECT_EQ(U8CString("a\xE2").FindOneOf("\xE2\x82\xAC"), -1); // a part of a member isn't a member
    // clang-format off
    const std::string malformed[] = {
        "\x80",       "a\x80\x80",         "\xE2\x82",      "a\xF0\x9F",        "\xFF\xFE",
        "\xC3 \xC3,", "\xE2 ,\x82\xAC ab", "\xFD\x80 \xFC", "\x80\xE2\x82\xAC", std::string("\xF0\0,\0", 4),
        "aaaa\xFC" "bcdef,g", // a lead may claim five more bytes
    };
    // clang-format on
    for (const auto& text : malformed) {
        SCOPED_TRACE(testing::PrintToString(text));
        for (int known = 0; known <= 8; ++known) {
            for (int index = 0; index <= 8; ++index) {
                // A remembered position makes no difference, although the way back counts differently here.
                const U8CString fresh(text);
                U8CString subject(text);
                subject.Mid(known, 1);
                EXPECT_EQ(subject.Mid(index, 3), U8CString(text).Mid(index, 3)) << known << ' ' << index;
                EXPECT_EQ(subject.Find(",", index), fresh.Find(",", index)) << known << ' ' << index;
                EXPECT_EQ(subject.ReverseFind("\x82"), fresh.ReverseFind("\x82")) << known;
                EXPECT_EQ(U8CString(text).Left(index) + subject.Mid(index, 100), text) << known;
            }
        }
        U8CString subject(text);
        EXPECT_EQ(subject.TrimRight(",").TrimLeft(";").size(), text.size() - (text.back() == ',' ? 1u : 0u));
        EXPECT_EQ(U8CString(text).MakeUpper().size(), text.size());
        U8CString reversed(text);
        std::string sorted = reversed.MakeReverse();
        std::string original = text;
        std::ranges::sort(sorted);
        std::ranges::sort(original);
        EXPECT_EQ(sorted, original);
    }
}
