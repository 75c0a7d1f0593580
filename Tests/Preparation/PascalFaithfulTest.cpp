// The faithful form of Pascal: rows of cases, and a compiler that is asked whether the prepared text compiles
// the same lines as the source.
#include "Preparation/Formatters/Directives.h"
#include "Preparation/Formatters/Pascal.h"
#include "Tests/Preparation/FormatterFixture.h"
#include "Tests/Preparation/SourceJudge.h"
#include "Tests/Preparation/ToldNotes.h"

#include <boost/regex.hpp>
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace {

constexpr SPascalOptions kFaithful{.isFaithful = true};

TEST(PascalFaithful, ConditionsAreDecided)
{
    for (const SPassCase& c : std::vector<SPassCase>{
             {"", "", {}},
             {"unit A;\n\n \nend.", "unit A;\n \nend.\n", {1, 3, 4}},
             {"a\n{$IFDEF RELEASE}\nb\n{$ELSE}\nc\n{$ENDIF}\nd\n", "a\nb\nd\n", {1, 3, 7}},
             {"{$ifndef Release}\na\n{$else rest}\nb\n{$endif Release}\n", "b\n", {4}},
             {"{$IFDEF FOO}\r\na\r\n{$ENDIF}\r\n", "{$IFDEF FOO}\r\na\r\n{$ENDIF}\r\n", {1, 2, 3}},
             {"(*$IFDEF RELEASE*)\na\n(*$ELSE*)b{$ENDIF}\nc\n", "a\nc\n", {2, 4}},
             // the text beside a directive belongs to its own branch
             {"x {$IFDEF RELEASE} y\na\nz {$ELSE} w\n{$ENDIF};\n", "x  y\na\nz \n;\n", {1, 2, 3, 4}},
             {"f({$IFNDEF RELEASE}a{$ELSE}b{$ENDIF});", "f(b);\n", {1}},
             {"x{$IFDEF RELEASE}a{$ENDIF}y '1'{$IFDEF RELEASE}{$ENDIF}'2'", "x a y '1' '2'\n", {1}},
             {"  {$IFDEF RELEASE}\r\n{$R a}\n{$ELSE}{$DEFINE X}\n{$R b}\n{$ENDIF}", "{$R a}\n", {2}},
             // expressions and options are conditions that nobody decides
             {"{$IF CompilerVersion >= 20}\na\n{$ELSE}\nb\n{$IFEND}\n{$IFOPT C+}c{$ENDIF}",
              "{$IF CompilerVersion >= 20}\na\n{$ELSE}\nb\n{$IFEND}\n{$IFOPT C+}c{$ENDIF}\n",
              {1, 2, 3, 4, 5, 6}},
             {"{$IFDEF RELEASE}\n{$IF X}\na\n{$ELSE}\nb\n{$IFEND}\n{$ELSE}\nc\n{$ENDIF}",
              "{$IF X}\na\n{$ELSE}\nb\n{$IFEND}\n",
              {2, 3, 4, 5, 6}},
             {"{$IFNDEF RELEASE}\n{$IF X}a{$ELSE}b{$ENDIF}\n{$ELSE}c{$ENDIF}", "c\n", {3}},
             {"{$IF X\n  or Y}\na\n{$ENDIF}", "{$IF X\n  or Y}\na\n{$ENDIF}\n", {1, 2, 3, 4}},
             {"{$IFDEF RELEASE}a\n{$ELSEIF X}b\n{$ELSE}c\n{$ENDIF}", "a\n", {1}},
             {"{$IFNDEF RELEASE}\na\n{$ELSEIF X}\nb\n{$ELSE}\nc\n{$IFEND}",
              "{$IF X}\nb\n{$ELSE}\nc\n{$IFEND}\n",
              {3, 4, 5, 6, 7}},
             // lines keep their order
             {"{$IFDEF A}\n{$IFDEF RELEASE}\n{$IFDEF B}\nb\n{$ENDIF}\n{$ENDIF}\n{$ELSE}\nc\n{$ENDIF}",
              "{$IFDEF A}\n{$IFDEF B}\nb\n{$ENDIF}\n{$ELSE}\nc\n{$ENDIF}\n",
              {1, 3, 4, 5, 7, 8, 9}},
             // a symbol that may be gone
             {"{$IFNDEF RELEASE}{$UNDEF MSWINDOWS}{$ENDIF}{$IFDEF MSWINDOWS}a{$ENDIF}", "a\n", {1}},
             {"{$IFDEF A}{$UNDEF release}{$ENDIF}\n{$IFDEF RELEASE}a{$ENDIF}",
              "{$IFDEF A}{$UNDEF release}{$ENDIF}\n{$IFDEF RELEASE}a{$ENDIF}\n",
              {1, 2}},
             // neither comments nor literals hold directives, and a literal ends with its line
             {"// {$IFDEF RELEASE}\n{ {$ENDIF}\n'{$ELSE}' (* {$ENDIF} *)\n{ $IFDEF RELEASE}\n",
              "// {$IFDEF RELEASE}\n{ {$ENDIF}\n'{$ELSE}' (* {$ENDIF} *)\n{ $IFDEF RELEASE}\n",
              {1, 2, 3, 4}},
             {"{$IFNDEF RELEASE}\ndon't\n{$ENDIF}\nb", "b\n", {4}},
         }) {
        const SPreparedText prepared = FormatPascal(c.input, kFaithful);
        ExpectPrepared(c, prepared);
        EXPECT_TRUE(prepared.notes.empty()) << c.input;
    }
}

struct SNoteCase
{
    std::string source, faithful, notes, literalNotes;
};

TEST(PascalFaithful, WhatHasNoPartnerStaysAndIsTold)
{
    const std::string misread = " vanished with conditions that the literal form misreads\n";
    for (const SNoteCase& c : std::vector<SNoteCase>{
             {"a\n{$IFNDEF RELEASE}\n\nb\n{$IFDEF RELEASE}\nc\n{$ENDIF}\nd\n",
              "a\n{$IFNDEF RELEASE}\nb\nc\nd\n", "W :2 {$IFNDEF RELEASE} is never closed\n",
              "W :2 {$IFNDEF RELEASE} is never closed\nW :2 4 lines" + misread},
             {"{$ELSE}\na\n{$ENDIF}\n{$IFDEF RELEASE}\nb\n{$ENDIF}\n", "{$ELSE}\na\n{$ENDIF}\nb\n",
              "W :1 {$ELSE} has no condition before it\nW :3 {$ENDIF} has no condition before it\n",
              "W :1 {$ELSE} has no condition before it\nW :1 1 line" + misread +
                  "W :3 {$ENDIF} has no condition before it\nW :3 1 line" + misread},
             {"{$IF X}\na\n{$ELSE}\nb\n{$IFEND}\n", "{$IF X}\na\n{$ELSE}\nb\n{$IFEND}\n", "",
              "W :3 1 line" + misread},
             {"{$IFDEF A}\n{$ELSE}\na", "{$IFDEF A}\n{$ELSE}\na\n", "W :1 {$IFDEF A} is never closed\n",
              "W :1 {$IFDEF A} is never closed\nW :1 3 lines" + misread},
             {Repeated("{$ENDIF}\n", 9),
              Repeated("{$ENDIF}\n", 9),
              "W :1 {$ENDIF} has no condition before it\nW :2 {$ENDIF} has no condition before it\n"
              "W :3 {$ENDIF} has no condition before it\nW :4 {$ENDIF} has no condition before it\n"
              "W :5 {$ENDIF} has no condition before it\nW :6 from here on 4 more directives have no "
              "partner\n",
              {}},
         }) {
        SCOPED_TRACE(c.source);
        const SPreparedText prepared = FormatPascal(c.source, kFaithful);
        EXPECT_EQ(prepared.text, c.faithful);
        EXPECT_EQ(Told(prepared.notes), c.notes);
        if (!c.literalNotes.empty()) {
            EXPECT_EQ(Told(FormatPascal(c.source).notes), c.literalNotes);
        }
    }
}

TEST(PascalFaithful, AnySize)
{
    const std::size_t depth = 100000;
    EXPECT_EQ(
        FormatPascal(Repeated("{$IFDEF RELEASE}\n", depth) + "a\n" + Repeated("{$ENDIF}\n", depth), kFaithful)
            .text,
        "a\n");
    const std::string open = Repeated("{$IFDEF X}\n", depth);
    EXPECT_TRUE(FormatPascal(open, kFaithful).text == open);
    EXPECT_TRUE(FormatPascal(Repeated("{$IFDEF RELEASE}a{$ELSE}b{$ENDIF};", depth), kFaithful).text ==
                Repeated("a;", depth) + "\n");
    EXPECT_TRUE(FormatPascal(Repeated("(*", depth), kFaithful).text == Repeated("(*", depth) + "\n");
}

// ---- What is compiled ----

// Asks the compiler which pieces of a text it would compile. Everything but the directives is taken out of
// the text, and a message stands in the place of each piece.
class PascalCompiler : public testing::Test
{
protected:
    void SetUp() override
    {
        if (!HasProgram("fpc"))
            GTEST_SKIP() << "fpc is not installed";
    }

    // By source line what is compiled of it, without blanks. `sourceLines`: empty if `text` is the source.
    std::map<std::uint32_t, std::string> Compiled(const std::string& text,
                                                  const std::vector<std::uint32_t>& sourceLines,
                                                  const std::set<std::string>& defines)
    {
        m_Pieces.clear();
        m_Skeleton = "unit t;\n{$MODE DELPHI}\ninterface\nimplementation\n";
        for (const std::string& symbol : defines)
            m_Skeleton += "{$DEFINE " + symbol + "}\n";
        m_SourceLines = sourceLines;
        m_Line = 1;
        static const boost::regex token(
            R"re('[^'\n]*['\n]|//[^\n]*|\{\$[^}]*\}|\{[^}]*\}|\(\*\$.*?\*\)|\(\*.*?\*\)|\n|[^'{(/\n]+|.)re");
        for (boost::sregex_iterator at(text.begin(), text.end(), token), end; at != end; ++at)
            Add(at->str());
        const std::string printed = m_Judge.Ask("t.pas", m_Skeleton + "end.\n", "fpc -s -Cn -vn t.pas");
        m_StrayEnds = 0;
        for (std::size_t at = 0; (at = printed.find("ENDIF without", at)) != printed.npos; ++at)
            ++m_StrayEnds;
        std::map<std::uint32_t, std::string> compiled;
        static const boost::regex message("User defined: m([0-9]+)");
        for (boost::sregex_iterator at(printed.begin(), printed.end(), message), end; at != end; ++at) {
            const auto& [line, piece] = m_Pieces.at(std::stoul((*at)[1]));
            compiled[line] += piece;
        }
        return compiled;
    }

    void ExpectSameMeaning(const std::string& source, const SPreparedText& prepared,
                           const std::set<std::string>& defines)
    {
        const auto expected = Compiled(source, {}, defines);
        const int strayEnds = m_StrayEnds;
        EXPECT_FALSE(expected.empty());
        EXPECT_EQ(Compiled(prepared.text, prepared.sourceLines, defines), expected);
        EXPECT_EQ(m_StrayEnds, strayEnds);
    }

    static std::set<std::string> KnownSymbols()
    {
        std::set<std::string> known;
        for (const std::string_view symbol : DefinedPascalSymbols())
            known.emplace(symbol);
        return known;
    }

private:
    // Expressions are symbols here, so that a test can choose what they are. That also keeps them apart from
    // what this one compiler knows.
    void Add(const std::string& token)
    {
        static const boost::regex directive(R"re((?:\{|\(\*)\$(\w+)\s*(.*?)\s*(?:\}|\*\)))re");
        boost::smatch match;
        if (token.starts_with("{$") || token.starts_with("(*$")) {
            boost::regex_match(token, match, directive);
            std::string name = match[1];
            std::ranges::transform(name, name.begin(), [](unsigned char c) { return std::toupper(c); });
            const std::string rest = match[2];
            const std::string word = rest.substr(
                0, rest.find_first_not_of("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_"));
            if (name == "IFDEF" || name == "IFNDEF")
                m_Skeleton += "{$IF " + std::string(name == "IFDEF" ? "" : "NOT ") + "DEFINED(" + word + ")}";
            else if (name == "IF" || name == "ELSEIF")
                m_Skeleton += "{$" + name + " DEFINED(" + ExpressionSymbol(rest) + ")}";
            else if (name == "IFOPT" || name == "ELSE" || name == "ENDIF" || name == "IFEND")
                m_Skeleton += "{$" + name + ' ' + rest + '}';
            else if (name == "DEFINE" || name == "UNDEF")
                m_Skeleton += "{$" + name + ' ' + word + '}', AddPiece(token);
            else
                AddPiece(token);
        } else if (token == "\n") {
            m_Skeleton += '\n';
        } else {
            AddPiece(token);
        }
        m_Line += static_cast<std::uint32_t>(std::ranges::count(token, '\n'));
    }

    static std::string ExpressionSymbol(const std::string& expression)
    {
        std::string symbol = "X_";
        for (const char c : expression) {
            const auto code = static_cast<unsigned char>(c);
            symbol += std::isalnum(code) ? std::string(1, c) : std::to_string(code);
        }
        return symbol.substr(0, 120);
    }

    void AddPiece(const std::string& text)
    {
        std::uint32_t line = m_Line;
        for (std::size_t begin = 0; begin <= text.size(); ++line) { // comments may have several lines
            const std::size_t end = std::min(text.find('\n', begin), text.size());
            std::string piece = text.substr(begin, end - begin);
            std::erase_if(piece, [](unsigned char c) { return std::isspace(c) != 0; });
            begin = end + 1;
            if (piece.empty())
                continue;
            m_Skeleton += "{$MESSAGE NOTE 'm" + std::to_string(m_Pieces.size()) + "'}";
            m_Pieces.emplace_back(m_SourceLines.empty() ? line : m_SourceLines.at(line - 1), piece);
        }
    }

    CSourceJudge m_Judge;
    int m_StrayEnds = 0; // that the compiler complained of
    std::string m_Skeleton;
    std::vector<std::uint32_t> m_SourceLines;
    std::uint32_t m_Line = 1;
    std::vector<std::pair<std::uint32_t, std::string>> m_Pieces;
};

TEST_F(PascalCompiler, RealSourcesKeepTheirMeaning)
{
    static const boost::regex symbol(R"re(\$IFN?DEF\s+(\w+))re", boost::regex::icase);
    for (const SCorpusFile& file : CorpusFiles("delphi")) {
        SCOPED_TRACE(file.path);
        const SPreparedText prepared = FormatPascal(file.text, kFaithful);
        ExpectLinesAreKept(file.text, prepared);
        std::set<std::string> defines = KnownSymbols();
        ExpectSameMeaning(file.text, prepared, defines);
        std::size_t count = 0;
        for (boost::sregex_iterator at(file.text.begin(), file.text.end(), symbol), end; at != end; ++at)
            if (++count % 2 == 0)
                defines.insert((*at)[1]);
        ExpectSameMeaning(file.text, prepared, defines);
    }
}

// Texts of nested constructs, with whatever makes a directive hard to find.
class CPascalTexts
{
public:
    explicit CPascalTexts(unsigned seed) : m_Random(seed) {}

    std::string Make(int constructs)
    {
        m_Text.clear();
        while (constructs-- > 0)
            Construct(0);
        return m_Text;
    }

private:
    void Put(std::string text)
    {
        if (m_Random() % 8 == 0 && text.starts_with('{')) {
            text.replace(text.size() - 1, 1, "*)");
            text.replace(0, 1, "(*");
        }
        m_Text += text + (m_Random() % 3 == 0 ? " " : "\n");
    }

    template <std::size_t N>
    std::string OneOf(const char* const (&texts)[N])
    {
        return texts[m_Random() % N];
    }

    void Construct(int depth)
    {
        static constexpr const char* kConditions[] = {"{$IFDEF RELEASE}",
                                                      "{$IFNDEF RELEASE}",
                                                      "{$ifdef MsWindows}",
                                                      "{$IFNDEF D2007NET note}",
                                                      "{$IFDEF A}",
                                                      "{$IFNDEF B}",
                                                      "{$IF A > 1}",
                                                      "{$IFOPT C+}",
                                                      "{$IFDEF DELPHI7_OR_HIGHER}"};
        static constexpr const char* kEnds[] = {"{$ENDIF}", "{$endif}", "{$IFEND}", "{$ENDIF RELEASE}"};
        const std::string condition = OneOf(kConditions);
        Put(condition);
        Body(depth);
        while (m_Random() % 4 == 0 && condition != "{$IFOPT C+}") {
            Put("{$ELSEIF E" + std::to_string(m_Random() % 3) + "}");
            Body(depth);
        }
        if (m_Random() % 2 == 0) {
            Put("{$ELSE}");
            Body(depth);
        }
        Put(OneOf(kEnds));
    }

    void Body(int depth)
    {
        static constexpr const char* kTexts[] = {
            "// {$ENDIF}\n", "{ {$ELSE}",  "'{$ENDIF}'", "(* {$IFDEF A} *)", "don't\n", "{$DEFINE A}",
            "{$UNDEF B}",    "{$R *.res}", "\n\n",       "{$UNDEF RELEASE}", "a := b;", "{$UNDEF E1}",
            "{ line\nline }"};
        for (unsigned left = m_Random() % 4; left != 0; --left) {
            m_Text += "m" + std::to_string(m_Random() % 1000) + "; ";
            if (const std::string text = OneOf(kTexts); text != "{$UNDEF RELEASE}" || m_Random() % 20 == 0)
                m_Text += text + (m_Random() % 2 == 0 ? "\n" : " ");
        }
        if (depth < 4 && m_Random() % 2 == 0)
            Construct(depth + 1);
    }

    std::mt19937 m_Random;
    std::string m_Text;
};

TEST_F(PascalCompiler, AnyNestingKeepsItsMeaning)
{
    for (unsigned seed = 1; seed <= 8; ++seed) {
        const std::string source = CPascalTexts(seed).Make(60);
        SCOPED_TRACE(source);
        const SPreparedText prepared = FormatPascal(source, kFaithful);
        ExpectLinesAreKept(source, prepared);
        for (const std::set<std::string>& more :
             {std::set<std::string>{}, {"A"}, {"B", "X_E1"}, {"A", "X_A3262321", "X_E0", "X_E2"}}) {
            std::set<std::string> defines = KnownSymbols();
            defines.insert(more.begin(), more.end());
            ExpectSameMeaning(source, prepared, defines);
        }
    }
}

} // namespace
