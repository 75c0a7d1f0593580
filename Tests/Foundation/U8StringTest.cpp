#include "Tests/Foundation/StringModel.h"
#include "UVEnvironment/UVEU8String.h"
#include "UVEnvironment/UVEU8StringView.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <map>
#include <optional>
#include <stdexcept>

using namespace StringModel;
using Uve::u8string;
using Uve::u8string_view;

namespace {

constexpr std::size_t kNone = ~static_cast<std::size_t>(0);
const std::vector<std::u32string> kTexts = AllTexts(3);
const std::vector<std::u32string> kShortTexts = AllTexts(2);

int Sign(int order)
{
    return (order > 0) - (order < 0);
}

template <class Text>
class U8Text : public testing::Test
{};

using TextTypes = testing::Types<u8string, u8string_view>;
TYPED_TEST_SUITE(U8Text, TextTypes);

// What the standard string does, or the text of nothing where it throws.
template <class Change>
std::optional<std::string> Changed(Change&& change)
{
    try {
        return std::string(change().raw());
    } catch (const std::out_of_range&) {
        return std::nullopt;
    }
}

template <class Change>
std::optional<std::string> Expected(Change&& change)
{
    try {
        return Utf8(change());
    } catch (const std::out_of_range&) {
        return std::nullopt;
    }
}

} // namespace

// The standard library's string of code points is the model: the same call must give the same answer.
TYPED_TEST(U8Text, SearchesAnswerLikeAStringOfCodePoints)
{
    for (const auto& text : kTexts) {
        const std::string bytes = Utf8(text);
        const TypeParam subject(bytes.c_str());
        for (const auto& wanted : kShortTexts) {
            const std::string utf8 = Utf8(wanted);
            SCOPED_TRACE(testing::Message() << '\'' << utf8 << "' in '" << bytes << '\'');
            std::vector<std::size_t> positions = {kNone};
            for (std::size_t i = 0; i <= text.size() + 1; ++i)
                positions.push_back(i);
            for (const std::size_t at : positions) {
                ASSERT_EQ(subject.find(utf8.c_str(), at), text.find(wanted, at)) << at;
                ASSERT_EQ(subject.rfind(u8string(utf8), at), text.rfind(wanted, at)) << at;
                ASSERT_EQ(subject.find_first_of(u8string_view(utf8), at), text.find_first_of(wanted, at))
                    << at;
                ASSERT_EQ(subject.find_last_of(utf8.c_str(), at), text.find_last_of(wanted, at)) << at;
                ASSERT_EQ(subject.find_first_not_of(utf8.c_str(), at), text.find_first_not_of(wanted, at))
                    << at;
                ASSERT_EQ(subject.find_last_not_of(utf8.c_str(), at), text.find_last_not_of(wanted, at))
                    << at;
                ASSERT_EQ(subject.find(utf8.c_str(), at, 1),
                          text.find(wanted.c_str(), at, std::min<std::size_t>(1, wanted.size())))
                    << at;
                if (wanted.size() == 1) {
                    ASSERT_EQ(subject.find(wanted[0], at), text.find(wanted, at)) << at;
                    ASSERT_EQ(subject.rfind(wanted[0], at), text.rfind(wanted, at)) << at;
                }
            }
            ASSERT_EQ(Sign(subject.compare(utf8.c_str())), Sign(text.compare(wanted)));
        }
        for (std::size_t i = 0; i < text.size(); ++i)
            ASSERT_EQ(subject[i], text[i]);
        ASSERT_EQ(subject.length(), text.size());
    }
}

TYPED_TEST(U8Text, PartsAnswerLikeAStringOfCodePoints)
{
    for (const auto& text : kTexts) {
        const std::string bytes = Utf8(text);
        const TypeParam subject(bytes.c_str());
        for (std::size_t at = 0; at <= text.size() + 1; ++at) {
            for (const std::size_t count :
                 {std::size_t{0}, std::size_t{1}, std::size_t{2}, std::size_t{9}, kNone}) {
                SCOPED_TRACE(testing::Message() << '\'' << bytes << "' " << at << ' ' << count);
                ASSERT_EQ(Changed([&] { return subject.substr(at, count); }),
                          Expected([&] { return text.substr(at, count); }));
                if (at <= text.size()) {
                    ASSERT_EQ(subject.substr(at, count).length(), text.substr(at, count).size());
                    ASSERT_EQ(Sign(subject.compare(at, count, bytes.c_str(), 1)),
                              Sign(text.compare(at, count, text.substr(0, 1))));
                    ASSERT_EQ(Sign(subject.compare(0, 2, subject, at, count)),
                              Sign(text.compare(0, 2, text, at, count)));
                }
            }
        }
    }
}

TEST(U8String, ACountBeyondTheTextTakesAllOfIt)
{
    for (const std::size_t count :
         {std::size_t{8}, std::size_t{9}, kNone / 6, kNone / 6 + 1, kNone / 2, kNone - 1})
        EXPECT_EQ(u8string("\u20ACbcdefgh", count).raw(), "\u20ACbcdefgh") << count;
}

TEST(U8String, ChangesAnswerLikeAStringOfCodePoints)
{
    for (const auto& text : kTexts) {
        const u8string subject(Utf8(text).c_str());
        for (std::size_t at = 0; at <= text.size() + 1; ++at) {
            for (const std::size_t count : {std::size_t{0}, std::size_t{1}, std::size_t{2}, kNone}) {
                for (const std::u32string added : {U"", U"\u20AC,"}) {
                    const std::string utf8 = Utf8(added);
                    SCOPED_TRACE(testing::Message() << '\'' << Utf8(text) << "' " << at << ' ' << count);
                    const auto own = [&] { return u8string(subject); };
                    const auto model = [&] { return std::u32string(text); };
                    ASSERT_EQ(Changed([&] { return own().replace(at, count, utf8.c_str()); }),
                              Expected([&] { return model().replace(at, count, added); }));
                    ASSERT_EQ(Changed([&] { return own().insert(at, utf8.c_str(), 1u); }),
                              Expected([&] { return model().insert(at, added.substr(0, 1)); }));
                    ASSERT_EQ(Changed([&] { return own().erase(at, count); }),
                              Expected([&] { return model().erase(at, count); }));
                    ASSERT_EQ(Changed([&] { return own().append(subject, at, count); }),
                              Expected([&] { return model().append(text, at, count); }));
                    ASSERT_EQ(Changed([&] { return own().insert(at, 2u, U'\u00E9'); }),
                              Expected([&] { return model().insert(at, 2, U'\u00E9'); }));
                }
            }
        }
    }
}

TEST(U8String, SizesOfStringAndViewDiffer)
{
    const u8string text("\xC3\xA9\xE2\x82\xACx");
    EXPECT_EQ(text.size(), 3u);
    EXPECT_EQ(text.length(), 3u);
    EXPECT_EQ(text.bytes(), 6u);
    const u8string_view view(text);
    EXPECT_EQ(view.size(), 6u);
    EXPECT_EQ(view.length(), 3u);
    EXPECT_EQ(text.capacity(), 15u);
    EXPECT_EQ(text.max_size(), 0x3fffffffffffffffu);

    // Hosts read a view as byte length, first byte, character count.
    std::size_t words[3];
    static_assert(sizeof(view) == sizeof(words));
    std::memcpy(words, &view, sizeof(words));
    EXPECT_EQ(words[0], 6u);
    EXPECT_EQ(words[1], reinterpret_cast<std::size_t>(text.data()));
    EXPECT_EQ(words[2], 3u);
}

TEST(U8String, ConstructorsCountCharacters)
{
    EXPECT_EQ(u8string("\xC3\xA9\xE2\x82\xACx", 2), "\xC3\xA9\xE2\x82\xAC");
    EXPECT_EQ(u8string("ab", 9), "ab");
    EXPECT_EQ(u8string(static_cast<const char*>(nullptr)), "");
    EXPECT_EQ(u8string(u8string("\xC3\xA9xy"), 1, 1), "x");
    EXPECT_EQ(u8string(2, U'\u20AC'), "\xE2\x82\xAC\xE2\x82\xAC");
    EXPECT_EQ(u8string(3, 'x'), "xxx");
    EXPECT_THROW(u8string(u8string("x"), 2), std::out_of_range);
}

TEST(U8StringView, NarrowsAtBothEnds)
{
    for (const auto& text : kTexts) {
        const std::string bytes = Utf8(text);
        for (std::size_t count = 0; count <= text.size() + 1; ++count) {
            const std::size_t dropped = std::min(count, text.size());
            u8string_view front(bytes);
            front.remove_prefix(count);
            ASSERT_EQ(front, Utf8(text.substr(dropped)));
            ASSERT_EQ(front.length(), text.size() - dropped);
            u8string_view back(bytes);
            back.remove_suffix(count);
            ASSERT_EQ(back, Utf8(text.substr(0, text.size() - dropped)));
            ASSERT_EQ(back.length(), text.size() - dropped);
        }
        for (const auto& set : kShortTexts) {
            std::u32string expected = text.substr(0, text.find_last_not_of(set) + 1);
            expected.erase(0, std::min(expected.find_first_not_of(set), expected.size()));
            u8string_view view(bytes);
            ASSERT_EQ(view.trim(Utf8(set).c_str()), Utf8(expected));
            ASSERT_EQ(view.length(), expected.size());

            std::u32string without;
            for (const char32_t codePoint : text)
                if (set.find(codePoint) == std::u32string::npos)
                    without += codePoint;
            ASSERT_EQ(u8string_view(bytes).remove(Utf8(set).c_str()), Utf8(without));
            ASSERT_EQ(u8string_view(bytes).find_one_of(Utf8(set)), text.find_first_of(set));
        }
        ASSERT_EQ(u8string_view(bytes).make_reverse(), Utf8(std::u32string(text.rbegin(), text.rend())));
        ASSERT_EQ(u8string_view::is_raw_str_contain(bytes.c_str(), U'\u20AC'),
                  text.find(U'\u20AC') != std::u32string::npos);
    }
    u8string_view blank(" \t x\n");
    EXPECT_EQ(blank.trim(), "x");
    EXPECT_FALSE(u8string_view::is_raw_str_contain(nullptr, U'a'));
    EXPECT_TRUE(u8string_view().empty());
    EXPECT_EQ(u8string_view(std::string_view()).find("a"), kNone);
}
