#include "Preparation/Formatters/Pascal.h"

#include "Tests/Preparation/FormatterFixture.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

TEST(Pascal, ConditionsAreDecided)
{
    for (const SPassCase& c : std::vector<SPassCase>{
             {"", "", {}},
             {"unit A;\n\n\nend.", "unit A;\nend.\n", {1, 4}},
             {"a\n{$IFDEF RELEASE}\nb\n{$ELSE}\nc\n{$ENDIF}\nd\n", "a\nb\nd\n", {1, 3, 7}},
             {"a\n{$IFNDEF RELEASE}\nb\n{$ENDIF}\nd\n",
              "a\nd\n",
              {1, 5}}, // nothing left: no blank line either
             {"{$IFDEF FOO}\r\na\r\n{$ENDIF}\r\nb\r\n",
              "{$IFDEF FOO}\r\na\r\n{$ENDIF}\r\nb\r\n",
              {1, 2, 3, 4}},
             {"{$R *.res}\n{$MODE X}\na\n", "{$R *.res}\n{$MODE X}\na\n", {1, 2, 3}},
             {"{$IFDEF A}\n{$MODE X}\n{$ENDIF}\n", "{$IFDEF A}\n{$MODE X}\n{$ENDIF}\n", {1, 2, 3}},
             // whole constructs in a line, outside and inside a block
             {"{$IFDEF RELEASE}\nx{$ifndef RELEASE}a{$else}b{$endif}y\nz\n{$ENDIF}\n", "xby\nz\n", {2, 3}},
             {"{$IFDEF RELEASE}\na\n{$ELSE} b {$ENDIF}\nc\n", "a\nc\n", {2, 4}},
             {"{$IFNDEF RELEASE}\na\n{$ELSE} b {$ENDIF}\nc\n", " b \nc\n", {3, 4}},
             {"{$IFDEF RELEASE}\na\n{$ENDIF};\nc\n", "a\nc\n", {2, 4}}, // each construct is decided by itself
         })
        ExpectPrepared(c, FormatPascal(c.input));
}

TEST(Pascal, UnbalancedConditions)
{
    EXPECT_EQ(FormatPascal("a\n{$IFDEF X}\nb\n{$IFDEF Y}\n{$ENDIF}\nc").text, "a\n"); // swallows the rest
    EXPECT_EQ(FormatPascal("a\n{$IFDEF X}{$EndIf}\nb").text, "a\n");                  // not in that spelling
    // an end too many is a debt, which the next condition pays
    EXPECT_EQ(FormatPascal("a\n{$ENDIF}\nb\n{$IFDEF RELEASE}\nc\n{$ELSE}\nd\n{$ENDIF}\ne").text,
              "a\nb\nc\nd\ne\n");
    EXPECT_EQ(FormatPascal("a\n{$ELSE}\nb").text, "a\nb\n");
}

TEST(Pascal, AnySize)
{
    const std::string line = Repeated("{$IFDEF RELEASE}a{$ELSE}b{$ENDIF}", (10 << 20) / 33);
    EXPECT_TRUE(FormatPascal(line).text == std::string((10 << 20) / 33, 'a') + "\n");
    EXPECT_EQ(FormatPascal(Repeated("{$ENDIF}\n", 1 << 20)).text, "");
    EXPECT_EQ(FormatPascal(Repeated("{$IFDEF X}\n", 1 << 20)).text, "");
}

} // namespace
