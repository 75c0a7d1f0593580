// The scanner by itself: positions, start conditions, the scanner without a parser, and its buffers.
#include "Tests/Support/EngineFixture.h"

#include <boost/program_options/variables_map.hpp>
#include <gtest/gtest.h>

#include <cstdio>
#include <functional>
#include <utility>

namespace {

// "line/pos" of each token of a tree.
std::string Positions(const std::string& tree)
{
    std::string positions;
    constexpr std::string_view kLine = " line=\"";
    for (std::size_t at = tree.find(kLine); at != std::string::npos; at = tree.find(kLine, at + 1)) {
        const std::size_t line = at + kLine.size();
        const std::size_t lineEnd = tree.find('"', line);
        const std::size_t pos = lineEnd + std::string_view("\" pos=\"").size();
        positions += (positions.empty() ? "" : " ") + tree.substr(line, lineEnd - line) + '/' +
                     tree.substr(pos, tree.find('"', pos) - pos);
    }
    return positions;
}

struct SPositionCase
{
    const char *grammar, *text, *positions;
};

// A token counts from the line's beginning if it is the first of its line, else from the end of the one
// before.
constexpr SPositionCase kPositions[] = {
    {"Order", "ab cd", "0/-1 0/1"},
    {"Order", "  ab", "0/1"},
    {"Order", "\nab", "1/0"},
    {"Order", "ab\n  cd ef", "0/-1 1/2 1/1"},
    {"Order", "ab   cd\n\n ef", "0/-1 0/3 2/1"},
    {"Recovery", "say a;say b;\n say c;", "0/-1 0/1 0/0 0/0 0/1 0/0 1/1 1/1 1/0"},
    {"Nesting", "a/*\n*/;", "0/-1 1/2"},
    // given back bytes are counted once
    {"Less", "a [SELECT b]", "0/-1 0/1 0/0 0/1 0/0"},
    {"Less", "[SELECT a\n\n b] c", "0/-1 0/0 0/1 2/1 2/0 2/1"},
    {"Trailing", "ab =>\nab12", "0/-1 0/1 1/0 1/0"},
    // a token over a line's end has the line of that end
    {"Switch", "raw:a\n b;c;", "0/-1 0/0 1/0 1/0 1/0 1/0"},
};

TEST(ScannerPositions, CountFromTheLineOrTheTokenBefore)
{
    for (const SPositionCase& entry : kPositions) {
        SCOPED_TRACE(entry.text);
        EXPECT_EQ(Positions(CEngine(entry.grammar).Parse(entry.text).tree), entry.positions);
    }
}

// The recorded line start survives, so a second text is measured against it until it has passed it.
TEST(ScannerPositions, ASecondTextBeginsBeforeTheRecordedPoint)
{
    CEngine engine("Order");
    engine.Parse("aaaa bbbb");
    EXPECT_EQ(Positions(engine.Parse("ab cd\nef gh").tree), "0/0 0/-1 1/2 1/0");
}

struct SStartCase
{
    const char* parserName;
    int db;
    bool isPr4Gl;
    std::map<std::string, int> conditions;
    int state;
};

TEST(ScannerStart, TheGeneralConditionIsForTheGrammarsOwnDatabase)
{
    const std::map<std::string, int> general = {{"INITIAL", 0}, {"SS_GENERAL", 3}};
    const std::map<std::string, int> progress = {
        {"INITIAL", 0}, {"SS_GENERAL", 3}, {"SS_PROGRESS", 4}, {"SS_PROGRESS_UNIX", 5}};
    const SStartCase cases[] = {
        {"Oracle", 1, true, general, 3},
        {"Oracle", 0, true, general, -1},
        {"Access", 1, true, general, 3}, // any database
        {"Common", 77, true, general, 3},
        {"OracleSQLForms", 0, true, general, 3},
        {"Pascal", 116, true, general, 3},
        {"PascalFRM", 117, true, general, 3},
        {"Pascal", 117, true, general, -1},
        {"oracle", 60, true, general, 3}, // names are exact; an unknown one has number 60
        {"oracle", 1, true, general, -1},
        {"Progress4GL", 72, true, progress, 4},
        {"Progress4GL", 72, false, progress, 5},
        {"OpenEdgeABL", 73, false, progress, 5},
        {"OpenEdgeABL", 73, true, general, -1},
        {"Oracle", 1, true, {{"INITIAL", 0}}, -1},
        {"Oracle", 1, true, {{"SS_GENERAL", -1}}, -1},
    };
    for (const SStartCase& entry : cases) {
        SCOPED_TRACE(testing::Message() << entry.parserName << ' ' << entry.db);
        CSQLGrammarLexer lexer;
        lexer.m_strParserName = entry.parserName;
        lexer.m_mapStartConditions = entry.conditions;
        lexer.m_Extension.m_bParserPR4GL = entry.isPr4Gl;
        EXPECT_EQ(lexer.ComputeGeneralStartState(entry.db), entry.state);
    }
}

TEST(ScannerStart, ConditionsOutsideTheTablesAreRefused)
{
    CEngine engine("States");
    EXPECT_EQ(engine.m_Lexer.SetState(4), 9);
    EXPECT_THROW(engine.m_Lexer.SetState(5), std::out_of_range);
    EXPECT_THROW(engine.m_Lexer.SetState(-1), std::out_of_range);
}

TEST(ScannerAlone, ColorsWithoutAParser)
{
    CEngine owner("Coloring");
    CSQLGrammarLexer lexer;
    lexer.ShareTables(owner.m_Lexer);
    lexer.Initialize();
    ASSERT_EQ(lexer.yycreate(), 1);
    const std::string text = "key a -- b\n{c} 'd'";
    const std::string coloring = owner.Parse(text).coloring;
    for (int round = 0; round < 2; ++round) {
        lexer.m_Extension.m_strColoring = "";
        lexer.set_Query(text, 0);
        while (lexer.yylex() != 0) {
        }
        EXPECT_EQ(lexer.m_Extension.m_strColoring, coloring);
    }
}

TEST(ScannerAlone, SharedTablesOutliveTheirOwner)
{
    auto owner = std::make_unique<CEngine>("States");
    CSQLGrammarLexer lexer;
    lexer.ShareTables(owner->m_Lexer);
    owner.reset();
    ASSERT_EQ(lexer.yycreate(), 1);
    const std::string text = "a /* b */ c";
    lexer.set_Query(text, 0);
    int tokens = 0;
    while (lexer.yylex() != 0)
        ++tokens;
    EXPECT_EQ(tokens, 2);
}

std::vector<int> TokensOf(CSQLGrammarLexer& lexer, const std::string& text)
{
    std::vector<int> tokens;
    lexer.set_Query(text, 0);
    for (int token = lexer.yylex(); token != 0; token = lexer.yylex())
        tokens.push_back(token);
    return tokens;
}

TEST(ScannerAlone, NothingOfTheEarlierTablesStays)
{
    const std::string text = "a [b] {c} -- 1 (d); if e\n";
    for (const char* const earlier : {"Tiny", "States", "Directives"})
        for (const char* const later : {"Order", "Less", "Indent", "Nesting"}) {
            SCOPED_TRACE(testing::Message() << earlier << ", then " << later);
            CEngine before(earlier), after(later);
            CSQLGrammarLexer fresh, exchanged;
            fresh.ShareTables(after.m_Lexer);
            ASSERT_EQ(fresh.yycreate(), 1);
            exchanged.ShareTables(before.m_Lexer);
            ASSERT_EQ(exchanged.yycreate(), 1);
            TokensOf(exchanged, text);
            exchanged.ShareTables(after.m_Lexer);
            ASSERT_EQ(exchanged.yycreate(), 1);
            EXPECT_EQ(TokensOf(exchanged, text), TokensOf(fresh, text));
        }
}

TEST(ScannerAlone, TokensAreNumberedByTheParserThatIsLinkedLast)
{
    CEngine first("Coloring"), second("Recovery");
    const int numbers[] = {first.m_Parser.m_mapDefines.at("TWORD"), second.m_Parser.m_mapDefines.at("TWORD")};
    ASSERT_NE(numbers[0], numbers[1]);
    CSQLGrammarLexer lexer;
    lexer.ShareTables(second.m_Lexer);
    ASSERT_EQ(lexer.yycreate(&first.m_Parser), 1);
    EXPECT_EQ(TokensOf(lexer, "a"), std::vector<int>{numbers[0]});
    ASSERT_EQ(lexer.yycreate(&second.m_Parser), 1);
    EXPECT_EQ(TokensOf(lexer, "a"), std::vector<int>{numbers[1]});
}

// A message at the end of the text shows the last match as the text has it.
TEST(ScannerAlone, TheEndShowsTheLastMatchNotWhatReplacedIt)
{
    CEngine engine("CopyToken");
    engine.Parse("a abbr");
    EXPECT_STREQ(engine.m_Lexer.yytext, "abbr");
}

TEST(ScannerAlone, OwedTokensComeLastInFirstOut)
{
    CEngine engine("Indent");
    const std::string text = "a";
    engine.m_Lexer.set_Query(text, 0);
    engine.m_Lexer.m_Extension.m_dequePseudoTokens = {"WORD", "__INDENT", "__UNINDENT"};
    const auto number = [&](const char* name) { return engine.m_Parser.m_mapDefines.at(name); };
    EXPECT_EQ(engine.m_Lexer.yylex(), number("T__UNINDENT"));
    EXPECT_EQ(engine.m_Parser.LookaheadValue()->m_nLength, 0);
    EXPECT_EQ(engine.m_Lexer.yylex(), number("T__INDENT"));
    EXPECT_EQ(engine.m_Lexer.yylex(), number("TWORD"));
    EXPECT_EQ(engine.m_Parser.LookaheadValue()->m_nLength, 0);
    EXPECT_EQ(engine.m_Lexer.yylex(), number("TWORD"));
    EXPECT_EQ(engine.m_Parser.LookaheadValue()->m_nLength, 1);
    EXPECT_EQ(engine.m_Lexer.yylex(), 0);
}

// The out-of-process tool hands its state over as parameters.
TEST(ScannerAlone, TakesTheParametersOfTheTool)
{
    namespace po = boost::program_options;
    po::variables_map parameters;
    const auto set = [&](const char* key, const boost::any& value) {
        parameters.insert({key, po::variable_value(value, false)});
    };
    const std::pair<const char*, int> numbers[] = {{"CURCOLOR", 1}, {"CHAR", 2},   {"LBRACKETS", 3},
                                                   {"LLINE", 4},    {"PRCHAR", 5}, {"SSTATE", 6}};
    for (const auto& [key, number] : numbers)
        set(key, number);
    for (const char* const key : {"MSSQL_QID", "PARSER_PR4GL", "PATTERNVER", "SHOWERR"})
        set(key, false);
    set("SRC_UI_TYPE", std::string("FORMS"));
    set("DBNAME", std::string("States"));
    const CSQLGrammarLexer lexer(parameters);
    const CSQLGrammarLexerImplementation& state = lexer.m_Extension;
    EXPECT_EQ(state.m_nCurColor, 1);
    EXPECT_EQ(state.m_nChar, 2);
    EXPECT_EQ(state.m_nBrackets, 3);
    EXPECT_EQ(state.m_nLineStart, 4);
    EXPECT_EQ(state.m_nPrevChar, 5);
    EXPECT_EQ(state.m_nStartState, 6);
    EXPECT_FALSE(state.m_bMSSQLQID);
    EXPECT_FALSE(state.m_bParserPR4GL);
    EXPECT_EQ(state.m_strSrcUIType, "FORMS");
    EXPECT_EQ(lexer.m_mapStartConditions.at("LINE"), 2);
    EXPECT_FALSE(CSQLGrammarParser(parameters).m_Extension.m_bShowErrors);
}

// A scanner over the tables of a fixture that keeps the texts of its matches.
class CPlainScanner : public yyFlexLexer
{
public:
    explicit CPlainScanner(const std::string& grammar, int conditions, const std::string& text = {})
        : m_text(text)
    {
        const std::shared_ptr<CScannerTables> tables = ReadScannerTables(grammar);
        tables->Compile("", conditions);
        yyset_tables(tables);
        yy_text_initial_size = 200;
        yycreate();
    }

    std::vector<std::string> Matches()
    {
        m_matches.clear();
        while (yylex() != 0) {
        }
        return m_matches;
    }

    void yyinputbuffer() override
    {
        if (!yycurrent_buffer() && !yyin)
            yyscan_bytes(m_text.data(), static_cast<int>(m_text.size()));
    }
    void yyincrementchar(int n) override { m_char += n; }
    void yydecrementchar(int n) override { m_char -= n; }
    bool yycheck_state_eof(int act) override { return act > yy_end_of_buffer_action; }
    int yyaction(int act) override
    {
        yy_action_returns = 0;
        m_matches.push_back(std::to_string(act) + ":" +
                            std::string(yytext, static_cast<std::size_t>(yyleng)));
        if (m_onMatch)
            m_onMatch();
        return 0;
    }

    void PushBack(char c) { yyunput(c, yytext_ptr); }

    std::function<void()> m_onMatch;
    int m_char = 0;

private:
    std::string m_text;
    std::vector<std::string> m_matches;
};

using Matches = std::vector<std::string>;

TEST(ScannerBuffers, ANulInsideTheTextIsAByteLikeOthers)
{
    using namespace std::string_literals;
    // rules of Tiny: 1 blank, 2 a, 3 b before a blank, 5 and 6 inside brackets, 7 any other
    const std::pair<std::string, Matches> cases[] = {
        {"a\0a"s, {"2:a", "7:\0"s, "2:a"}},
        {"\0"s, {"7:\0"s}},
        {"b\0"s, {"7:b", "7:\0"s}},
        {"\0\0b "s, {"7:\0"s, "7:\0"s, "3:b", "1: "}},
    };
    for (const auto& [text, matches] : cases)
        EXPECT_EQ(CPlainScanner("Tiny", 2, text).Matches(), matches);
    // in the middle of a longer match, which grows on the way
    const std::string comment = "/*" + std::string(300, '-') + '\0' + std::string(300, '-') + "*/";
    EXPECT_EQ(CPlainScanner("Nesting", 1, comment + "a").Matches(), (Matches{"2:" + comment, "3:a"}));
}

TEST(ScannerBuffers, StreamsAreReadAsTextsAre)
{
    std::string text;
    for (int i = 0; i < 4000; ++i)
        text += "word" + std::string(1, static_cast<char>('a' + i % 26)) + (i % 7 == 0 ? "\n" : " ");
    for (const std::string& input : {text, std::string(), std::string("a"), text + "no end"}) {
        std::FILE* const file = std::tmpfile();
        ASSERT_NE(file, nullptr);
        std::fwrite(input.data(), 1, input.size(), file);
        std::rewind(file);
        CPlainScanner stream("Order", 2);
        stream.yyset_in(file); // closed with the scanner
        EXPECT_EQ(stream.Matches(), CPlainScanner("Order", 2, input).Matches());
        stream.yyset_in(file);
    }
}

TEST(ScannerBuffers, InputAndPushBackLieBetweenTheMatches)
{
    CPlainScanner scanner("Tiny", 2, "a]x\na");
    std::string read;
    scanner.m_onMatch = [&] {
        if (scanner.yytext[0] != 'a' || !read.empty())
            return;
        read += static_cast<char>(scanner.yyinput());
        read += static_cast<char>(scanner.yyinput());
        read += static_cast<char>(scanner.yyinput());
        EXPECT_EQ(scanner.yylineno, 2);
    };
    EXPECT_EQ(scanner.Matches(), (Matches{"2:a", "2:a"}));
    EXPECT_EQ(read, "]x\n");
    EXPECT_EQ(scanner.yyinput(), 0);
}

// A refill moves the text that is read.
TEST(ScannerBuffers, InputGoesOnOverTheEndOfWhatWasReadFromAStream)
{
    std::string text;
    for (int i = 0; i < 20000; ++i)
        text += static_cast<char>('a' + i % 23);
    std::FILE* const file = std::tmpfile();
    ASSERT_NE(file, nullptr);
    std::fwrite(text.data(), 1, text.size(), file);
    std::rewind(file);
    CPlainScanner scanner("Tiny", 2);
    scanner.yyset_in(file); // closed with the scanner
    std::string read;
    scanner.m_onMatch = [&] {
        read += scanner.yytext;
        for (int i = 0; i < 100; ++i)
            if (const int c = scanner.yyinput(); c != 0)
                read += static_cast<char>(c);
    };
    scanner.Matches();
    EXPECT_TRUE(read == text) << read.size();
    scanner.yyset_in(file);
}

TEST(ScannerBuffers, WhatIsPushedBackIsScannedNextAndItsLineIsTakenBack)
{
    CPlainScanner scanner("Tiny", 2, "x\na");
    int pushes = 0;
    scanner.m_onMatch = [&] {
        if (scanner.yytext[0] != 'a' || pushes++ > 0)
            return;
        EXPECT_EQ(scanner.yylineno, 2);
        for (const char c : {'a', '\n'})
            scanner.PushBack(c);
        EXPECT_EQ(scanner.yylineno, 1);
    };
    EXPECT_EQ(scanner.Matches(), (Matches{"7:x", "7:\n", "2:a", "7:\n", "2:a"}));
    EXPECT_EQ(scanner.yylineno, 2);
}

TEST(ScannerBuffers, OnlyTextWithTwoNulsIsScannedInPlace)
{
    CPlainScanner scanner("Tiny", 2);
    char good[] = {'a', 'b', ' ', 0, 0};
    char bad[] = {'a', 0, 'b'};
    EXPECT_EQ(scanner.yyscan_buffer(bad, 3), nullptr);
    EXPECT_EQ(scanner.yyscan_buffer(good, 1), nullptr);
    ASSERT_NE(scanner.yyscan_buffer(good, 5), nullptr);
    EXPECT_EQ(scanner.Matches(), (Matches{"2:a", "3:b", "1: "}));
}

// Whatever an action does to the buffer, the match that it was called for can still be read.
TEST(ScannerBuffers, TheMatchStaysWhenTheBufferIsTouched)
{
    char other[] = {'b', ' ', 0, 0};
    const std::function<void(CPlainScanner&)> touches[] = {
        [](CPlainScanner& scanner) { scanner.yyinput(); },
        [](CPlainScanner& scanner) { scanner.PushBack('x'); },
        [&](CPlainScanner& scanner) {
            yybuffer_state* const before = scanner.yycurrent_buffer();
            scanner.yyscan_buffer(other, 4);
            scanner.yydelete_buffer(before);
        },
        [](CPlainScanner& scanner) { scanner.yypush_buffer_state(scanner.yycreate_buffer(nullptr, 10)); },
        [](CPlainScanner& scanner) { scanner.yyflush_buffer(scanner.yycurrent_buffer()); },
        [](CPlainScanner& scanner) { scanner.yypop_buffer_state(); },
    };
    for (const auto& touch : touches) {
        CPlainScanner scanner("Nesting", 1, "; abcdef ghi");
        bool isTouched = false;
        scanner.m_onMatch = [&] {
            if (isTouched || scanner.yyleng != 6)
                return;
            isTouched = true;
            touch(scanner);
            EXPECT_STREQ(scanner.yytext, "abcdef");
            throw std::runtime_error("enough");
        };
        EXPECT_THROW(scanner.Matches(), std::runtime_error);
        EXPECT_TRUE(isTouched);
    }
}

// A derived scanner's own steps are called, once for each match.
class CWatchedScanner : public CPlainScanner
{
public:
    using CPlainScanner::CPlainScanner;
    void yymatch() override
    {
        ++m_walks;
        CPlainScanner::yymatch();
    }
    void yyfindrule(int& act) override
    {
        CPlainScanner::yyfindrule(act);
        m_rules += std::to_string(act) + ' ';
    }
    void yyinitialize() override
    {
        ++m_starts;
        CPlainScanner::yyinitialize();
    }

    int m_walks = 0;
    int m_starts = 0;
    std::string m_rules;
};

TEST(ScannerDriver, StepsOfADerivedClassAreCalled)
{
    CWatchedScanner scanner("Tiny", 2, "ab a");
    EXPECT_EQ(scanner.Matches(), (Matches{"2:a", "3:b", "1: ", "2:a"}));
    EXPECT_EQ(scanner.m_walks, 5); // the last is over the end of the buffer, which is rule 9
    EXPECT_EQ(scanner.m_starts, 1);
    EXPECT_EQ(scanner.m_rules, "2 3 1 2 9 ");
    EXPECT_EQ(scanner.m_char, 5); // one of the two NULs is given back
}

// Before what was read from a stream there is room for as much as its buffer takes.
TEST(ScannerBuffers, AStreamTakesMoreBackThanItGave)
{
    std::FILE* const file = std::tmpfile();
    ASSERT_NE(file, nullptr);
    std::fwrite("x\0]", 1, 3, file); // the NUL is a byte of the text afterwards, too
    std::rewind(file);
    CPlainScanner scanner("Tiny", 2);
    scanner.yyset_in(file); // closed with the scanner
    bool isPushed = false;
    scanner.m_onMatch = [&] {
        if (std::exchange(isPushed, true))
            return;
        for (int i = 0; i < 5; ++i)
            scanner.PushBack('a');
    };
    EXPECT_EQ(scanner.Matches(),
              (Matches{"7:x", "2:a", "2:a", "2:a", "2:a", "2:a", std::string("7:\0", 3), "7:]"}));
    scanner.yyset_in(file);
}

TEST(ScannerBuffers, ATerminalIsReadLineByLine)
{
    std::FILE* const file = std::tmpfile();
    ASSERT_NE(file, nullptr);
    std::fputs("aa\na", file);
    std::rewind(file);
    CPlainScanner scanner("Tiny", 2);
    scanner.yyrestart(file);
    scanner.yycurrent_buffer()->yy_is_interactive = 1;
    std::vector<long> read;
    scanner.m_onMatch = [&] { read.push_back(std::ftell(file)); };
    EXPECT_EQ(scanner.Matches(), (Matches{"2:a", "2:a", "7:\n", "2:a"}));
    EXPECT_EQ(read, (std::vector<long>{3, 3, 3, 4}));
    scanner.yyset_in(file);
}

TEST(ScannerBuffers, ABufferIsReadOnWhereItWasLeft)
{
    CPlainScanner scanner("Tiny", 2, "ab a");
    char inner[] = {'x', 0, 0};
    yybuffer_state* outer = nullptr;
    scanner.m_onMatch = [&] {
        if (outer)
            return;
        outer = scanner.yycurrent_buffer();
        EXPECT_NE(scanner.yyscan_buffer(inner, 3), nullptr); // switches to it
    };
    EXPECT_EQ(scanner.Matches(), (Matches{"2:a", "7:x"}));
    yybuffer_state* const done = scanner.yycurrent_buffer();
    scanner.yyswitch_to_buffer(outer);
    scanner.yydelete_buffer(done);
    EXPECT_EQ(scanner.Matches(), (Matches{"3:b", "1: ", "2:a"}));
}

// Where a text got stuck, the next one in the same memory isn't.
TEST(ScannerBuffers, ANewTextHasMatchedNothingYet)
{
    CPlainScanner scanner("Stuck", 2);
    char text[] = {'y', 0, 0};
    scanner.yyscan_buffer(text, 3);
    EXPECT_THROW(scanner.Matches(), std::runtime_error);
    scanner.yycleanup();
    text[0] = 'u';
    scanner.yyscan_buffer(text, 3);
    scanner.m_onMatch = [&] { scanner.yybegin(1); }; // the word is read in the condition LATER
    EXPECT_EQ(scanner.Matches().size(), 2u);
}

TEST(ScannerBuffers, APushedBufferReturnsToTheOneBelow)
{
    CPlainScanner scanner("Tiny", 2, "ab a");
    char inner[] = {'x', 0, 0};
    bool isPushed = false;
    scanner.m_onMatch = [&] {
        if (isPushed)
            return;
        isPushed = true;
        auto* const buffer = new yybuffer_state;
        buffer->yy_ch_buf = buffer->yy_buf_pos = inner;
        buffer->yy_buf_size = buffer->yy_n_chars = 1;
        scanner.yypush_buffer_state(buffer);
    };
    EXPECT_EQ(scanner.Matches(), (Matches{"2:a", "7:x"}));
    scanner.yypop_buffer_state();
    EXPECT_EQ(scanner.Matches(), (Matches{"3:b", "1: ", "2:a"}));
}

TEST(ScannerBuffers, BuffersArePushedToAnyDepth)
{
    constexpr std::size_t kDepth = 40;
    CPlainScanner scanner("Tiny", 2);
    std::vector<std::string> texts;
    for (std::size_t i = 0; i < kDepth; ++i)
        texts.push_back(std::string(i + 1, 'a') + std::string(2, '\0'));
    EXPECT_EQ(scanner.yyscan_string("a")->yy_n_chars, 1);
    for (std::string& text : texts) {
        auto* const buffer = new yybuffer_state;
        buffer->yy_ch_buf = buffer->yy_buf_pos = text.data();
        buffer->yy_buf_size = buffer->yy_n_chars = static_cast<int>(text.size()) - 2;
        scanner.yypush_buffer_state(buffer);
    }
    for (std::size_t i = kDepth; i > 0; --i) {
        EXPECT_EQ(scanner.Matches(), Matches(i, "2:a"));
        scanner.yypop_buffer_state();
    }
    EXPECT_EQ(scanner.Matches(), (Matches{"2:a"}));
}

} // namespace
