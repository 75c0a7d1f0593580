#include "Tools/uvparse/FilePlaces.h"
#include "Tools/uvparse/FileUri.h"
#include "Tools/uvparse/Findings.h"
#include "Tools/uvparse/MessageForms.h"
#include "Tools/uvparse/SourceText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

using namespace uvparse;
using namespace std::string_literals;

namespace {

// ---- Places in files ----

constexpr std::size_t kUnknown = std::string::npos;

struct SFileCase
{
    std::string bytes; // of a text with one '!'
    SLineColumn place; // of the '!'
    std::size_t offset;
    const char* encoding = "";
    std::size_t recordLength = 0;
};

const SFileCase kFileCases[] = {
    {"a\n\xC3\xA9\xF0\x9F\x98\x80!", {2, 3}, 8},
    {"\xEF\xBB\xBF\xC3\xA9!", {1, 2}, 5},
    {"\xFF\xFE\x3D\xD8\0\xDE\n\0\xE9\0!\0"s, {2, 2}, 10}, // a surrogate pair
    {"\xFE\xFF\0\xE9\0!"s, {1, 2}, 4},
    {"\xFF\xFE\0\0\0\xF6\x01\0!\0\0\0"s, {1, 2}, 8},
    {"caf\xE9 \x80!\n", {1, 7}, 6, "CP1252"},
    {"\xC1\x15\xC2\x5A"s, {2, 2}, 3, "IBM037"}, // NEL ends a line
    {"a\r\n\xC3\xA9!", {2, 2}, 5, "UTF-8"},
    {"\xEF\xBB\xBF\xC3\xA9!", {1, 2}, 5, "utf8"},
    {"ab\xC3\xA9!c", {3, 1}, 4, "", 2}, // records have no line ends
    {"\xC1\x40\x40\xC2\x5A\x40"s, {2, 2}, 4, "IBM037", 3},
    {"\x82\xA0\x41!", {1, 3}, kUnknown, "CP932"},          // one byte or two
    {"\x1B$B$\"\x1B(B!", {1, 2}, kUnknown, "ISO-2022-JP"}, // shift states
};

TEST(UvparseFilePlaces, BytesAreThoseOfTheFileWhateverItsEncoding)
{
    for (const auto& c : kFileCases) {
        SCOPED_TRACE(testing::PrintToString(c.bytes) + c.encoding);
        const SSourceText source = DecodeSourceText(c.bytes, "f", {c.encoding, c.recordLength});
        const auto places = FindFilePlaces(source.text, source.bytes, {c.place});
        ASSERT_TRUE(places[0]);
        EXPECT_EQ(source.text.substr(places[0]->textOffset, 1), "!");
        EXPECT_EQ(places[0]->fileOffset.value_or(kUnknown), c.offset);
    }
}

TEST(UvparseFilePlaces, OrderDoesNotMatterAndWhatIsBeyondIsTheEnd)
{
    const auto places = FindFilePlaces("\xC3\xA9z\n\nb", {enFileBytes::Utf8, 0, 0},
                                       {{9, 1}, {1, 9}, {3, 1}, {2, 0}, {1, 2}, {0, 1}, {2, 7}});
    std::string offsets;
    for (const auto& place : places)
        offsets +=
            place ? std::to_string(place->textOffset) + '/' + std::to_string(place->character) + ' ' : "- ";
    EXPECT_EQ(offsets, "6/5 3/2 5/4 - 2/1 - 4/3 ");
}

// ---- Ranges ----

struct SRangeCase
{
    const char* source;
    const char* prepared;
    const char* pass;
    const char* list;
    const char* found; // in the prepared text
    const char* range; // line:column-line:column, and the text there; "?" where it isn't known
};

const SRangeCase kRangeCases[] = {
    {"a\nx bad\n", "a\nx bad\n", "", "", "bad", "2:3-2:6 bad"},
    {"a\nx bad", "a\nx bad", "", "", "a\nx bad", "1:1-2:6 a\nx bad"},
    {"x b\n", "x b\n", "", "", "b\n", "1:3-2:1 b\n"},
    {"\xC3\xA9 \xE2\x80\x8B"
     "bad",
     "\xC3\xA9  bad", "", "", "bad", "1:4-1:7 bad"}, // a shorter blank before
    {"\n\n  x bad\n", "x bad\n", "P", "1\t3\t1\n", "bad", "3:5-3:8 bad"},
    // Across a joined line; the sign at its end is a part of the range.
    {"A +\n  B bad\nC\n", "A B bad\nC\n", "P", "1\t1\t1\n2\t3\t1\n", "A B bad", "1:1-2:8 A +\n  B bad"},
    // A text that ends where a piece does isn't in the next line.
    {"A+\nB\nC\n", "AB\nC\n", "P", "1\t1\t1\n2\t3\t1\n", "A", "1:1-1:2 A"},
    {"A+\nB\nC\n", "AB\nC\n", "P", "1\t1\t1\n2\t3\t1\n", "B", "2:1-2:2 B"},
    {"x bad\ny\n", "x bad\ny\n", "P", "1\t1\t2\n", "bad\n", "1:3-1:6 bad"},
    {"foo\n", "expanded bad\n", "P", "1\t1\t1\n", "bad", "1:0 ?"},
    {"foo\n", "bad\n", "P", "", "bad", "0:0 ?"},
    {"x\n", "x macro\ny\n", "P", "1\t1\t1\n", "x macro", "1:1 ?"},
};

TEST(UvparseRanges, LeadBackToTheSource)
{
    for (const auto& c : kRangeCases) {
        SCOPED_TRACE(c.prepared);
        const SPreparation preparation{c.source, c.prepared, CPreparedLines(c.pass, c.list), c.pass};
        const SFinding finding{enFinding::UnexpectedToken, std::string_view(c.prepared).find(c.found),
                               std::string_view(c.found).size()};
        const auto messages =
            MessagesOf({"f", "L", c.source, {enFileBytes::Utf8, 0, 0}}, preparation, {finding});
        ASSERT_EQ(messages.size(), 1u);
        const SMessageRange& range = messages[0].range;
        std::string text = std::to_string(range.line) + ':' + std::to_string(range.column);
        if (range.endLine > 0)
            text += '-' + std::to_string(range.endLine) + ':' + std::to_string(range.endColumn);
        EXPECT_EQ(text + ' ' + messages[0].snippet.value_or("?"), c.range);
        EXPECT_EQ(range.byteLength.has_value(), messages[0].snippet.has_value());
        if (range.byteLength) {
            EXPECT_EQ(std::string(c.source).substr(range.byteOffset.value_or(0), *range.byteLength),
                      messages[0].snippet);
        }
    }
}

TEST(UvparseRanges, OnesThatHoldOthersDoNotDisturbThem)
{
    const std::string text = "/* a b c d";
    std::vector<SFinding> findings = {{enFinding::SkippedText, 0, 10}};
    for (const std::size_t at : {3u, 5u, 7u, 9u})
        findings.push_back({enFinding::UnexpectedToken, at, 1});
    for (const SMessage& message :
         MessagesOf({"f", "L", text, {}}, SPreparation{text, text, {}, {}}, findings)) {
        EXPECT_EQ(message.range.endColumn - message.range.column, message.token ? 1u : 10u);
        EXPECT_EQ(message.snippet, message.token ? message.token : text);
    }
}

// ---- URIs ----

struct SUriCase
{
    const char* path;
    const char* uri;
    bool isRelative;
};

const SUriCase kUriCases[] = {
    {"a b/c#d%.sql", "a%20b/c%23d%25.sql", true},
    {"./a//b.sql", "a/b.sql", true},
    {"c:d.sql", "c%3Ad.sql", true}, // no scheme
    {"\xC3\xA9\xFF.sql", "%C3%A9%FF.sql", true},
    {"/x/a b.sql", "file:///x/a%20b.sql", false},
    {"x/../a.sql", "a.sql", true},
    {"../a.sql", "file:///no/a.sql", false},
    {"../such/a.sql", "a.sql", true},
    {"/x/../a.sql", "file:///a.sql", false},
};

TEST(UvparseUris, PathsBecomeUrisThatLeadBackToThem)
{
    for (const auto& c : kUriCases) {
        SCOPED_TRACE(c.path);
        const SFileUri uri = FileUriOf(c.path, "/no/such");
        EXPECT_EQ(uri.uri, c.uri);
        EXPECT_EQ(uri.isRelative, c.isRelative);
    }
    EXPECT_EQ(FolderUriOf("/"), "file:///");
    EXPECT_EQ(FolderUriOf("/a b"), "file:///a%20b/");
}

// ---- Forms ----

std::string Written(enMessageForm form, const std::vector<SMessage>& messages)
{
    std::string written;
    const auto writer = MakeMessageWriter(form, [&](std::string_view piece) { written += piece; });
    for (const SMessage& message : messages)
        writer->Write(message);
    writer->End(1);
    return written;
}

TEST(UvparseForms, BytesThatAreNoTextBreakNothing)
{
    SMessage message;
    message.kind = enMessageKind::UnexpectedToken;
    message.file = "a\xFF\n.sql";
    message.text = "unexpected \xC3";
    message.token = "\"\\\x01\n\xE9";
    message.sourceLine = "\xE9 \xFF";
    message.caret = 1;
    message.range = {1, 2, 1, 3};
    message.snippet = "\xED\xA0\x80";
    const std::string line = Written(enMessageForm::Json, {message, message});
    EXPECT_EQ(std::ranges::count(line, '\n'), 2);
    const auto object = nlohmann::json::parse(line.substr(0, line.find('\n')));
    EXPECT_EQ(object["file"], "a\xEF\xBF\xBD\n.sql");
    EXPECT_EQ(object["token"], "\"\\\x01\n\xEF\xBF\xBD");
    const auto document = nlohmann::json::parse(Written(enMessageForm::Sarif, {message, message}));
    const auto& location = document["runs"][0]["results"][1]["locations"][0]["physicalLocation"];
    EXPECT_EQ(location["artifactLocation"]["uri"], "a%FF%0A.sql");
}

// A document names each kind once, and what refers to it by number finds it.
TEST(UvparseForms, KindsAreFoundByTheirNumbers)
{
    std::vector<SMessage> messages;
    for (const SMessageKindRow& row : MessageKinds()) {
        messages.emplace_back().kind = row.kind;
        messages.back().text = row.id;
    }
    const auto run = nlohmann::json::parse(Written(enMessageForm::Sarif, messages))["runs"][0];
    const auto& driver = run["tool"]["driver"];
    for (const auto& result : run["results"]) {
        EXPECT_EQ(result["message"]["text"], result["ruleId"]);
        EXPECT_EQ(driver["rules"][result["ruleIndex"].get<std::size_t>()]["id"], result["ruleId"]);
    }
    const auto& invocation = run["invocations"][0];
    std::size_t count = run["results"].size();
    for (const char* list : {"toolExecutionNotifications", "toolConfigurationNotifications"})
        for (const auto& notification : invocation[list]) {
            const auto& descriptor = notification["descriptor"];
            EXPECT_EQ(notification["message"]["text"], descriptor["id"]);
            EXPECT_EQ(driver["notifications"][descriptor["index"].get<std::size_t>()]["id"],
                      descriptor["id"]);
            ++count;
        }
    EXPECT_EQ(count, MessageKinds().size());
}

// Nothing else is a proper part of what is shown around it.
TEST(UvparseForms, ContextHoldsItsRegion)
{
    const std::string longLine = std::string(200, 'x') + "!" + std::string(200, 'y');
    struct
    {
        std::string text;
        std::size_t offset;
        std::size_t length;
        std::string context; // empty: none
    } const cases[] = {
        {"a b\r\n", 2, 1, "1-4 a b"}, {"ab\r\n", 0, 2, ""},
        {"a b\nc", 2, 3, ""},         {longLine, 200, 1, "141-261 " + longLine.substr(140, 120)},
        {longLine, 200, 100, ""},     {"a ", 2, 0, "1-3 a "},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.text);
        const auto document = nlohmann::json::parse(Written(
            enMessageForm::Sarif, MessagesOf({"f", "L", c.text, {}}, SPreparation{c.text, c.text, {}, {}},
                                             {{enFinding::SkippedText, c.offset, c.length}})));
        const auto& location = document["runs"][0]["results"][0]["locations"][0]["physicalLocation"];
        std::string shown;
        if (location.contains("contextRegion")) {
            const auto& context = location["contextRegion"];
            shown = context["startColumn"].dump() + '-' + context["endColumn"].dump() + ' ' +
                    context["snippet"]["text"].get<std::string>();
        }
        EXPECT_EQ(shown, c.context);
    }
}

} // namespace
