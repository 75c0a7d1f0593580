#include "Preparation/Formatters/Directives.h"

#include "Tests/Preparation/FormatterFixture.h"

#include <gtest/gtest.h>

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
    const char *symbol, *delimiter;
};

TEST(Directives, AreFoundInALine)
{
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
        ASSERT_EQ(found.has_value(), c.text != nullptr);
        if (!found)
            continue;
        EXPECT_EQ(found->text, c.text);
        EXPECT_EQ(found->symbol, c.symbol);
        EXPECT_EQ(found->delimiter, c.delimiter);
    }
}

TEST(Directives, KnownConditionsAreDecidedAndOthersStay)
{
    for (const auto& [source, text] : std::initializer_list<std::pair<const char*, const char*>>{
             {"", ""},
             {"\n\na\n\nb\n\n", "a\nb"},
             {"{$IFDEF RELEASE}\na\n{$ELSE}\nb\n{$ENDIF}\nc", "a\nc"},
             {"{$ifndef MSWINDOWS}\na\n{$else}\nb\n{$endif}\nc", "b\nc"},
             {"{$IFDEF Release}\na\n{$ELSE}\nb\n{$ENDIF}", "{$IFDEF Release}\na\n{$ELSE}\nb\n{$ENDIF}"},
             {"{$IFDEF FOO}\na\n{$ELSE}\nb\n{$ENDIF}", "{$IFDEF FOO}\na\n{$ELSE}\nb\n{$ENDIF}"},
             {"{$IFNDEF}\na\n{$ENDIF}", "{$IFNDEF}\na\n{$ENDIF}"},
             {"x {$IFDEF RELEASE} y\na\nz {$ENDIF} z", "a"},   // the text beside a directive goes with it
             {"{$IFDEF RELEASE}\na\n{$ENDIF};\nb", "a\n;\nb"}, // the delimiter comes back before what is kept
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
             // what a live branch left survives a dead construct
             {"{$IFDEF RELEASE}\n{$IFDEF A}\na\n{$ENDIF}\n{$ELSE}\n{$IFDEF B}\nb\n{$ENDIF}\n{$ENDIF}\nc",
              "{$IFDEF A}\na\n{$ENDIF}\nc"},
             {"{$IFDEF A}\n{$IFDEF RELEASE}\n{$IFNDEF RELEASE}\nx\n{$ENDIF}\ny\n{$ENDIF}\n{$ENDIF}",
              "{$IFDEF A}\ny\n{$ENDIF}"},
             // open at the end: what is nested stays as it is
             {"{$IFDEF RELEASE}\na\n{$IFDEF RELEASE}\nb", "a\n{$IFDEF RELEASE}\nb"},
             {"{$IFDEF RELEASE}\na\n{$IFDEF A}\n{$IFDEF B}\nb", "a\n{$IFDEF A}\n{$IFDEF B}\nb"},
             {"{$ENDIF}\na\n{$ELSE}\nb", "a\nb"},
             // an end too many: two conditions share a depth, and the kept one counts
             {"{$ENDIF}\n{$IFDEF RELEASE}\n{$IFDEF A}\n{$ELSE}\nx", "{$IFDEF A}\n{$ELSE}\nx"},
             // what is nested in a decided construct comes out with its end
             {"{$IFDEF A}\n{$IFDEF RELEASE}\n{$IFDEF B}\nb\n{$ENDIF}\n{$ENDIF}\n{$ENDIF}",
              "{$IFDEF A}\n{$IFDEF B}\nb\n{$ENDIF}\n{$ENDIF}"},
         }) {
        SCOPED_TRACE(source);
        EXPECT_EQ(Resolve(source), text);
    }
}

TEST(Directives, InOneLine)
{
    for (const auto& [source, text] : std::initializer_list<std::pair<const char*, const char*>>{
             {"{$IFDEF RELEASE}a{$ELSE}b{$ENDIF}", "a"},
             {"x{$IFNDEF RELEASE}a{$ELSE}b{$ENDIF}, y", "xb, y"},
             {"{$IFDEF FOO}a{$ELSE}b{$ENDIF};", "{$IFDEF FOO}a{$ELSE}b{$ENDIF};"},
             {"a{comment}{$IFDEF RELEASE}{$IFDEF FOO}b{$ENDIF}{$ENDIF}", "a{comment}{$IFDEF FOO}b{$ENDIF}"},
             {"{$IFDEF RELEASE}{$ENDIF}", ""},
             {"\n", ""},
         }) {
        SCOPED_TRACE(source);
        EXPECT_EQ(Resolve(source, true), text);
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
    EXPECT_TRUE(Resolve(std::string(10 << 20, '{')) == std::string(10 << 20, '{'));
}

} // namespace
