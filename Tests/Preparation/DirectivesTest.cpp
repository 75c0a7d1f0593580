#include "Preparation/Formatters/Directives.h"

#include "Tests/Preparation/FormatterFixture.h"

#include <boost/regex.hpp>
#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace {

std::string Resolve(const std::string& source, bool singleLine = false)
{
    Uve::U8CString text = source;
    ProcessMultiLineDirective(text, singleLine);
    return text;
}

struct SDirectiveCase
{
    const char* line;
    const char* text; // null: none
    const char* symbol;
    const char* delimiter;
};

TEST(Directives, AreFoundInALine)
{
    const boost::regex pattern("({[\\s]*\\$[\\w]+[\\s]*([\\w]*)[\\s]*})([,;]?)", boost::regex::icase);
    for (const SDirectiveCase& c : std::initializer_list<SDirectiveCase>{
             {"{$IFDEF A}", "{$IFDEF A}", "A", ""},
             {"x {\t$ifdef  a_1\r} ;", "{\t$ifdef  a_1\r}", "a_1", ""},
             {"{$ENDIF};,", "{$ENDIF}", "", ";"},
             {"{$ENDIF},", "{$ENDIF}", "", ","},
             {"{ $ IFDEF A}", nullptr, "", ""},
             {"{$}", nullptr, "", ""},
             {"{$IF DEFINED(A)}", nullptr, "", ""},
             {"{$IFDEF A B}{$ELSE}", "{$ELSE}", "", ""},
             {"{{$ELSE}", "{$ELSE}", "", ""},
             {"{$IFDEF {$ELSE}", "{$ELSE}", "", ""},
             {"{$IFDEF A", nullptr, "", ""},
             {"{$R *.dfm}{$IFDEFA}", "{$IFDEFA}", "", ""},
         }) {
        SCOPED_TRACE(c.line);
        const auto found = FindDirective(c.line);
        boost::cmatch match;
        EXPECT_EQ(boost::regex_search(c.line, match, pattern), c.text != nullptr);
        ASSERT_EQ(found.has_value(), c.text != nullptr);
        if (!found)
            continue;
        EXPECT_EQ(found->text, c.text);
        EXPECT_EQ(found->symbol, c.symbol);
        EXPECT_EQ(found->delimiter, c.delimiter);
        EXPECT_EQ(match.str(1), c.text);
    }
}

struct STextCase
{
    const char* source;
    const char* text;
};

TEST(Directives, KnownConditionsAreDecidedAndOthersStay)
{
    for (const STextCase& c : std::initializer_list<STextCase>{
             {"", ""},
             {"\n\na\n\nb\n\n", "a\nb"},
             {"{$IFDEF RELEASE}\na\n{$ELSE}\nb\n{$ENDIF}\nc", "a\nc"},
             {"{$ifndef MSWINDOWS}\na\n{$else}\nb\n{$endif}\nc", "b\nc"},
             {"{$IFDEF Release}\na\n{$ELSE}\nb\n{$ENDIF}", "{$IFDEF Release}\na\n{$ELSE}\nb\n{$ENDIF}"},
             {"{$IFDEF FOO}\na\n{$ELSE}\nb\n{$ENDIF}", "{$IFDEF FOO}\na\n{$ELSE}\nb\n{$ENDIF}"},
             {"{$IFNDEF}\na\n{$ENDIF}", "{$IFNDEF}\na\n{$ENDIF}"},
             {"x {$IFDEF RELEASE} y\na\nz {$ENDIF} z", "a"}, // the text beside a directive goes with it
             {"{$IFDEF RELEASE}\na\n{$ENDIF};\nb",
              "a\n;\nb"}, // the delimiter comes back in front of what is kept
             {"{$IFDEF RELEASE}\na\n{$ELSE},\nb\n{$ENDIF}\nc", "a\nc"}, // the last directive's counts
             {"{$IFDEF RELEASE},\n{$IFDEF D2007NET}\na\n{$ENDIF}\nb\n{$ENDIF}", "a\nb"},
             {"{$IFDEF RELEASE}\n{$R x}\n{$ELSE}\n{$R y}\n{$ENDIF}",
              "{$R x}\n{$R y}"}, // other directives aren't looked at
             // nested ones come back as lines
             {"{$IFDEF RELEASE}\n{$IFDEF FOO}\na\n{$ENDIF}\nb\n{$ENDIF}\nc",
              "{$IFDEF FOO}\na\n{$ENDIF}\nb\nc"},
             {"{$IFDEF FOO}\n{$IFDEF RELEASE}\na\n{$ELSE}\nb\n{$ENDIF}\n{$ENDIF}\nc",
              "{$IFDEF FOO}\na\n{$ENDIF}\nc"},
             {"{$IFDEF RELEASE}\na\n{$ELSE}\n{$IFDEF FOO}\nb\n{$ENDIF}\n{$ENDIF}\nc", "a\nc"},
             {"{$IFNDEF RELEASE}\n{$IFDEF FOO}\nb\n{$ENDIF}\n{$ELSE}\n{$IFDEF BAR}\na\n{$ENDIF}\n{$ENDIF}",
              "{$IFDEF BAR}\na\n{$ENDIF}"},
             // what a live branch left behind survives a dead construct
             {"{$IFDEF RELEASE}\n{$IFDEF A}\na\n{$ENDIF}\n{$ELSE}\n{$IFDEF B}\nb\n{$ENDIF}\n{$ENDIF}\nc",
              "{$IFDEF A}\na\n{$ENDIF}\nc"},
             {"{$IFDEF A}\n{$IFDEF RELEASE}\n{$IFNDEF RELEASE}\nx\n{$ENDIF}\ny\n{$ENDIF}\n{$ENDIF}",
              "{$IFDEF A}\ny\n{$ENDIF}"},
             // open at the end: what is nested stays as it is
             {"{$IFDEF RELEASE}\na\n{$IFDEF RELEASE}\nb", "a\n{$IFDEF RELEASE}\nb"},
             {"{$ENDIF}\na\n{$ELSE}\nb", "a\nb"},
         }) {
        SCOPED_TRACE(c.source);
        EXPECT_EQ(Resolve(c.source), c.text);
    }
}

TEST(Directives, InOneLine)
{
    for (const STextCase& c : std::initializer_list<STextCase>{
             {"{$IFDEF RELEASE}a{$ELSE}b{$ENDIF}", "a"},
             {"x{$IFNDEF RELEASE}a{$ELSE}b{$ENDIF}, y", "xb, y"},
             {"{$IFDEF FOO}a{$ELSE}b{$ENDIF};", "{$IFDEF FOO}a{$ELSE}b{$ENDIF};"},
             {"a{comment}{$IFDEF RELEASE}{$IFDEF FOO}b{$ENDIF}{$ENDIF}", "a{comment}{$IFDEF FOO}b{$ENDIF}"},
             {"{$IFDEF RELEASE}{$ENDIF}", ""},
             {"\n", ""},
         }) {
        SCOPED_TRACE(c.source);
        EXPECT_EQ(Resolve(c.source, true), c.text);
    }
}

// The machine that takes one depth at a time and goes through nested text again.
struct SPlainMachine
{
    using Lines = std::vector<std::string>;

    static bool Holds(std::string text, const char* word)
    {
        for (char& byte : text)
            byte = static_cast<char>(std::toupper(static_cast<unsigned char>(byte)));
        return text.find(word) != text.npos;
    }

    static Lines Run(const Lines& lines)
    {
        int depth = 0;
        bool inElse = false, ifdef = false, ifndef = false, kept = false;
        Lines decided, raw, output;
        std::string pending;
        const auto flush = [&] {
            output.insert(output.end(), decided.begin(), decided.end());
            decided.clear();
        };
        const auto isDead = [&] { return !kept && ((ifndef && !inElse) || (ifdef && inElse)); };
        for (const std::string& line : lines) {
            const auto directive = FindDirective(line);
            if (!directive) {
                if (depth > 1) {
                    raw.push_back(line);
                } else if (!isDead()) {
                    if (!pending.empty())
                        output.push_back(std::exchange(pending, ""));
                    flush();
                    output.push_back(line);
                }
                continue;
            }
            const std::string text(directive->text);
            const std::string symbol(directive->symbol);
            pending = directive->delimiter;
            const bool isIfdef = Holds(text, "$IFDEF");
            if (isIfdef || Holds(text, "$IFNDEF")) {
                if (++depth > 1)
                    raw.push_back(line);
                else if (symbol == "RELEASE" || symbol == "MSWINDOWS")
                    (isIfdef ? ifdef : ifndef) = true;
                else {
                    output.push_back(line);
                    kept = true;
                }
            } else if (Holds(text, "$ELSE")) {
                if (depth > 1)
                    raw.push_back(line);
                else {
                    inElse = true;
                    if (kept)
                        output.push_back(line);
                }
            } else if (Holds(text, "$ENDIF")) {
                --depth;
                if (depth > 0)
                    raw.push_back(line);
                if (depth == 1) {
                    if (!isDead()) {
                        const Lines inner = Run(raw);
                        decided.insert(decided.end(), inner.begin(), inner.end());
                    }
                    raw.clear();
                }
                if (depth == 0) {
                    if (kept) {
                        flush();
                        output.push_back(line);
                    }
                    inElse = ifdef = ifndef = kept = false;
                }
            } else {
                (depth > 1 ? raw : output).push_back(line);
            }
        }
        flush();
        output.insert(output.end(), raw.begin(), raw.end());
        return output;
    }
};

TEST(Directives, OnePassDecidesLikeTheRecursion)
{
    const std::vector<std::string> pieces = {"{$IFDEF RELEASE}\n",
                                             "{$IFDEF A};\n",
                                             "{$IFNDEF MSWINDOWS}\n",
                                             "{$IFNDEF B}\n",
                                             "{$ELSE}\n",
                                             "{$ENDIF}\n",
                                             "{$ENDIF},\n",
                                             "{$ENDIF}\n",
                                             "a\n",
                                             "b\n",
                                             "{$R x}\n",
                                             "\n"};
    std::mt19937 random(11);
    for (int i = 0; i < 20000; ++i) {
        const std::string source = RandomText(random, pieces, 30);
        std::vector<std::string> lines;
        for (const std::string& line : LinesOf(source))
            if (!line.empty())
                lines.push_back(line);
        std::string expected;
        for (const std::string& line : SPlainMachine::Run(lines))
            expected += (expected.empty() ? "" : "\n") + line;
        ASSERT_EQ(Resolve(source), expected) << source;
    }
}

TEST(Directives, NestingOfAnyDepth)
{
    const std::size_t depth = 300000;
    const std::string kept = Repeated("{$IFDEF A}\n", depth) + "a\n" + Repeated("{$ENDIF}\n", depth);
    EXPECT_TRUE(Resolve(kept) + "\n" == kept);
    EXPECT_EQ(Resolve(Repeated("{$IFDEF RELEASE}\n", depth) + "a\n" + Repeated("{$ENDIF}\n", depth)), "a");
    // siblings, none of which is gone through again for the next one
    const std::string siblings = "{$IFDEF A}\n" + Repeated("{$IFDEF B}\nb\n{$ENDIF}\n", depth) + "{$ENDIF}\n";
    EXPECT_TRUE(Resolve(siblings) + "\n" == siblings);
    const std::string line = Repeated("{$IFDEF A}", (10 << 20) / 10);
    EXPECT_TRUE(Resolve(line) == line);
    EXPECT_TRUE(Resolve(line, true) == line);
    EXPECT_TRUE(Resolve(std::string(10 << 20, '{')) == std::string(10 << 20, '{'));
}

} // namespace
