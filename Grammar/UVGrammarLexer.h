#pragma once

#include "Grammar/ParserNode.h"
#include "Grammar/Runtime/yyBisonParser.h"
#include "Grammar/Runtime/yyFlexLexer.h"
#include "Grammar/UVGrammarActionRecords.h"
#include "Grammar/UVGrammarLexerImplementation.h"
#include "Grammar/UVGrammarRuleWatch.h"

#include <algorithm>
#include <array>
#include <deque>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

class CSQLGrammarParser;

// A text that ended where it mustn't: in a comment, a quote or the like that is never closed.
struct SUnfinishedText
{
    std::string condition;  // the start condition, by its name in the language's source
    std::size_t offset = 0; // of the match that began it, in bytes of the query
    std::size_t read = 0;   // where the last token in it ends, if long texts are collected; else as `offset`
};

// Tokens that cover several lines together: one match, or all from the match that leads into a condition in which
// no text may end to the one that leads out of it.
struct SLongText
{
    std::size_t begin = 0; // bytes of the query
    std::size_t end = 0;
    // After the match that led into the condition, or after the first line of a single match.
    std::size_t opened = 0;
    unsigned long lastLine = 0; // from 1
};

namespace boost::program_options {
class variables_map;
}

// The scanner of one language: the table-driven scanner over the tables of a grammar folder, and an
// interpreter for what a generated scanner would have in its rule actions. A match becomes a token, which is
// a ParserNode that covers the match and whose text is one XML element.
//
//     CSQLGrammarLexer lexer("PostgreSQL", false);    // reads the tables
//     lexer.yycreate(&parser);                        // and resolves their names against the parser
//     lexer.m_Extension.m_bMSSQLQID = false;          // switches stay until they are written again
//     lexer.set_Query(text, UVDB_DB_POSTGRESQL);      // then yylex, by the parser, until it answers 0
//
// Without a parser, for coloring, every token has the same number, which isn't 0, and what comes out is the
// text m_Extension.m_strColoring. One object serves one scan at a time. Positions and lengths are bytes of
// the query, lines count from 1.
class CSQLGrammarLexer final : public yyFlexLexer
{
public:
    // ---- The grammar ----

    // Without tables: yytables or ShareTables come next.
    CSQLGrammarLexer();
    // Throws: as yytables.
    CSQLGrammarLexer(const char* parserName, bool isPatternVersion);
    // The out-of-process tool's parameters: DBNAME and PATTERNVER name the grammar, the others fill
    // m_Extension.
    // Throws: as yytables; boost::bad_any_cast for a parameter that is missing or of another type.
    explicit CSQLGrammarLexer(const boost::program_options::variables_map& parameters);
    ~CSQLGrammarLexer() override;

    // Reads and proves the tables of the folder `parserName`, below Grammar or, with `isPatternVersion`,
    // below Grammar.CR.
    // Throws: Uve::U8CString with the line for the log if a file is missing, damaged or can't be proved.
    void yytables(const char* parserName, bool isPatternVersion);
    // Takes the grammar of another lexer, its name included; its own is released. Both share what
    // the files said.
    // Throws: std::bad_alloc; the grammar is the earlier one then.
    void ShareTables(const CSQLGrammarLexer& other);
    // Once there are tables.
    const CScannerTables& Tables() const { return *m_spTables; }
    const CActionRecords& Actions() const { return m_Actions; }

    // Links the parser that takes the tokens: call after the tables are there, and again after other ones.
    // Borrows: the parser, until another is linked.
    // Returns: 1; 0 for null or if memory is short.
    int yycreate(yyBisonParser* parser);
    // The same without a parser.
    int yycreate() override;
    // Forgets the parser.
    void Initialize() { m_pParser = nullptr; }

    // Returns: the database number of a grammar, 60 with a line in the trace for an unknown name.
    static int GetUVDBNumByParserName(const std::string& name);

    // ---- A text ----

    // Prepares the scan of `query`, a text for the database kind `db`, from its first byte. What texts leave
    // beyond their end stays: see CSQLGrammarLexerImplementation::clean.
    // Borrows: the query, until the next one comes or the query is dropped.
    void set_Query(const std::string& query, int db);
    void set_Query(std::string&& query, int db) = delete;
    // Before the scan of a query, for this one alone: no match goes beyond one of these places, and after each
    // the scan begins anew, in the condition that texts begin in.
    // `places`: bytes of the query, ascending, each once; those at its ends and beyond change nothing.
    void set_Walls(std::vector<std::size_t> places);
    // From the next query on: long texts are collected.
    void set_LongTextsWanted(bool on) { m_bLongTextsWanted = on; }
    // Those of the scan, in the order of their ends. Comments and blank space are none.
    const std::vector<SLongText>& LongTexts() const { return m_lstLongTexts; }
    // Forgets all texts before: the next one is scanned as by a new object. What was written to m_Extension
    // goes as well and has to be written again.
    void ForgetTexts();
    // After the scan: gives the scanner's copy of the text back. Of the text only Unfinished tells anything
    // then.
    void DropQuery();
    // The next token, in the parser's lookahead value.
    // Returns: the parser's number of it, 0 at the end of the text; what the action interpreter still owes
    //          comes before the next match.
    // Throws:  as yyFlexLexer; std::out_of_range if an action begins a start condition that isn't there.
    int yylex() override;
    // Coloring is collected unless it is switched off here: a scanner that feeds a parser has nobody who
    // reads it.
    void set_ColoringWanted(bool on) { m_bColoringWanted = on; }

    // Whether the rules that texts use from now on are told by UsedRules; none was used so far. Off at first, and
    // after each yycreate, which has to come before.
    // Throws: std::bad_alloc; everything is as before then.
    void WatchRules(bool on) { m_Watch.Set(on); }
    // By their numbers, ascending; none while they aren't watched.
    std::vector<int> UsedRules() const { return m_Watch.Used(); }

    // Goes on in start condition `state`, by its number.
    // Returns: its coded form.
    // Throws:  std::out_of_range if the tables have no such condition.
    int SetState(int state) { return yybegin(state); }
    // The start condition of the language in general, which counts when the grammar is used for its own
    // database.
    // Returns: its number, -1 if there is none.
    int ComputeGeneralStartState(int db);
    // What the last scan left open. Nothing before its end, nor with tables that don't tell where a text may
    // end (see the note on where a text may end).
    const std::optional<SUnfinishedText>& Unfinished() const { return m_Unfinished; }

    // ---- Tokens ----

    // Each fills `node` with the current match as token "T" + name.
    // Returns: the parser's number of it; 0 for a name that the parser doesn't know, which ends the text for
    //          it.
    int TokenAction(const std::string& name, ParserNode& node);
    // With a color for the coloring text.
    int TokenActionE(const std::string& name, int color, ParserNode& node);
    // With `text` in the place of the match, whose length it keeps.
    int CpyTokenAction(const std::string& name, const std::string& text, ParserNode& node);
    // With neither text nor length.
    int PseudoTokenAction(const std::string& name, ParserNode& node);
    // The token for a change of indentation, if the current match (the white space of a line) is one. Several
    // levels that close at once are owed to the parser, as pseudo tokens.
    // Returns: true with the token in `out`.
    bool TokenActionIndentation(ParserNode& node, int& out);
    // The node alone, by its whole name. `length` above 0 overrides that of the text.
    ParserNode CreateToken(const std::string& name, int color, int length, bool isPseudo);
    // Hands out the parser's lookahead value; leaves `node` alone without a parser.
    void yylvalue(ParserNode** node);

    // ---- What the machine asks for, see yyLexer ----

    int yybegin(int state) override;
    void yyinputbuffer() override;
    void yymatch() override;
    void yyfindrule(int& act) override;
    void yyincrementchar(int n) override
    {
        // at the end the scanner walks both NULs after the text and gives one back: the count stops one past
        // the end
        const int most = std::max(m_nScanEnd + 1, m_Extension.m_nChar);
        m_Extension.m_nChar = n > most - m_Extension.m_nChar ? most : m_Extension.m_nChar + n;
    }
    void yydecrementchar(int n) override { m_Extension.m_nChar -= n; }
    bool yycheck_state_eof(int act) override
    {
        // no such rule has a smaller number than the end of the buffer
        return act >= yy_end_of_buffer_action && IsEndOfText(act);
    }
    int yywrap() override;
    int yyaction(int act) override;
    // To the parser; without one to the trace.
    void yyerror(const char* text) override;

    // ---- Open members, which the front door writes ----

    std::map<std::string, int> m_mapStartConditions; // name to number; an unknown name that is begun gets 0
    CSQLGrammarLexerImplementation m_Extension;
    yyBisonParser* m_pParser = nullptr; // borrowed
    std::string m_strParserName;        // the grammar's folder
    bool m_bPatternVersion = false;
    int m_nDBVersionMajor = 0; // of the database that the texts are for
    int m_nDBVersionMinor = 0;

private:
    // A token's name with what it stands for, found out once.
    struct SToken
    {
        std::string name;          // with its leading T
        std::uint32_t element = 0; // in the parser's element names
        int number = 0;            // 0: unknown to the parser
    };
    // In the place of a start condition's number.
    enum : int
    {
        kByName = -1, // a name that the grammar doesn't define
        kToStart = -2
    };
    // One operation of a rule, ready to run.
    struct SOperation
    {
        enGrammarKeyword keyword = enGrammarKeyword::TextAction;
        std::vector<std::string>* operands = nullptr; // in m_lstOperands
        std::array<std::uint32_t, 2> tokens{};        // into m_lstTokens
        std::array<int, 2> states{kByName, kByName};  // start conditions
        int number = 0;                               // the operand that is one
    };
    struct SRule
    {
        std::uint32_t first = 0; // into m_lstOperations
        std::uint32_t count = 0;
    };
    // What an operation comes to.
    struct SResult
    {
        bool isToken = false;
        int token = 0;
    };
    using Handler = SResult (CSQLGrammarLexer::*)(SOperation& operation, ParserNode& node);
    static const std::array<Handler, kGrammarKeywordCount + 1> kHandlers; // by keyword, and kWatchedRule

    void Cleanup();
    void CompileActions();
    std::deque<std::vector<std::string>>::iterator AddOperands(const CActionRecords::SOperation& record);
    void ResolveOperands(SOperation& operation, const CActionRecords::SOperation& record);
    std::uint32_t CompileToken(std::string_view name);
    void FindEofRules();
    bool IsEndOfText(int act);
    void NoteEnd();
    int ScanEndAfter(int offset) const;
    void NoteToken(std::size_t begin, std::size_t length);
    void NoteLongText(std::size_t begin, std::size_t opened, std::size_t end);
    bool MayEndIn(int condition) const
    {
        const auto index = static_cast<std::size_t>(condition);
        return index < m_lstMayEnd.size() && m_lstMayEnd[index];
    }

    SResult Token(std::uint32_t token, int color, ParserNode& node);
    int TokenNumber(const std::string& fullName);
    void MakeToken(std::uint32_t element, int color, int length, bool isPseudo, ParserNode& node);
    int ColumnOfMatch();
    int LineFeedBefore(int from);
    void AddColoring(int color, int from, int to);
    // The match stands in the query at `start` as it stands in yytext.
    bool IsMatchAt(int start) const
    {
        return yytext == yytext_ptr && yycurrent_buffer() == m_pQueryBuffer &&
               !m_pQueryBuffer->yy_is_changed && start >= 0 &&
               static_cast<std::size_t>(start) == yymatch_offset();
    }

    int ResolveNamed(const std::string& condition) const;
    int ResolveBegin(const std::string& condition) const;
    void Begin(int state, const std::string& condition);
    void BackToStart() { yybegin(m_Extension.m_nStartState); }
    void SkipTo(const char* condition);
    void ColoringFunc(int color);
    void SetCondition(const std::string& condition);
    bool ConditionalTokenAction(const std::string& condition, const std::string& value);
    void StringDefine(int offset, const char* set);
    void StringIfDefined(int offset, const char* set, bool isUpper, bool skipIfDefined,
                         const char* skipState);
    void StringHereDocument(const char* mark, bool isCut);
    void AddDefine(Uve::U8CString symbol);
    void StringElse(const char* skipState);
    bool IsDefined(const Uve::U8CString& symbol) const;

    SResult RunActionByOption(SOperation& operation, ParserNode& node);
    SResult RunBegin(SOperation& operation, ParserNode& node);
    SResult RunBrackets(SOperation& operation, ParserNode& node);
    SResult RunCode(SOperation& operation, ParserNode& node);
    SResult RunColoring(SOperation& operation, ParserNode& node);
    SResult RunConditionalBegin(SOperation& operation, ParserNode& node);
    SResult RunConditionalToken(SOperation& operation, ParserNode& node);
    SResult RunCpyToken(SOperation& operation, ParserNode& node);
    SResult RunCppDirective(SOperation& operation, ParserNode& node);
    SResult RunIfBrackets(SOperation& operation, ParserNode& node);
    SResult RunIfStrcmp(SOperation& operation, ParserNode& node);
    SResult RunIndent(SOperation& operation, ParserNode& node);
    SResult RunPattern(SOperation& operation, ParserNode& node);
    SResult RunPatterns(SOperation& operation, ParserNode& node);
    SResult RunSelectToken(SOperation& operation, ParserNode& node);
    SResult RunSetCondition(SOperation& operation, ParserNode& node);
    SResult RunStack(SOperation& operation, ParserNode& node);
    SResult RunStrcpy(SOperation& operation, ParserNode& node);
    SResult RunString(SOperation& operation, ParserNode& node);
    SResult RunStrtmpFormat(SOperation& operation, ParserNode& node);
    SResult RunToken(SOperation& operation, ParserNode& node);
    SResult RunTokenE(SOperation& operation, ParserNode& node);
    SResult RunYytext(SOperation& operation, ParserNode& node);
    SResult RunUnknown(SOperation& operation, ParserNode& node);
    SResult RunWatched(SOperation& operation, ParserNode& node);

    // An operand that loses its quotes when its operation runs, as it was loaded.
    struct SQuotedOperand
    {
        std::string* stored = nullptr; // in m_lstOperands
        std::string loaded;
    };

    CActionRecords m_Actions; // as they were loaded
    // The operands that are read as texts when their operation runs, in the order of the operations.
    std::deque<std::vector<std::string>> m_lstOperands;
    std::vector<SOperation> m_lstOperations;
    std::vector<SRule> m_lstRules;
    CRuleWatch<SRule, SOperation> m_Watch{m_lstRules, m_lstOperations};
    std::vector<SQuotedOperand> m_lstQuotedOperands;
    std::vector<SToken> m_lstTokens;
    std::map<std::string, std::uint32_t> m_mapTokens;
    std::vector<bool> m_lstEofRules; // by rule number
    std::vector<bool> m_lstMayEnd;   // by start condition: a text may end in it
    // A start condition that the scan is in, and the match that began it.
    struct SEntered
    {
        int condition = 0;
        std::size_t offset = 0;
        std::size_t end = 0; // of that match
    };
    std::optional<SEntered> OpenText() const;
    void LeaveAll();
    bool ComesBack(int state);
    std::vector<SEntered> m_lstEntered; // outermost first; without the condition that texts begin in
    std::vector<SEntered> m_lstLeft;    // those that a match left all at once
    std::size_t m_nLeftAt = 0;          // that match
    std::optional<SUnfinishedText> m_Unfinished;
    std::vector<std::size_t> m_lstWalls;
    int m_nScanEnd = 0; // the wall after the scan position, or the end of the query
    bool m_bLongTextsWanted = false;
    std::size_t m_nTokensEnd = 0; // of the last token, if long texts are collected
    std::vector<SLongText> m_lstLongTexts;
    CSQLGrammarParser* m_pGrammarParser = nullptr; // m_pParser, if it is one
    ParserNode m_LocalNode;                        // takes the tokens when there is no parser
    bool m_bColoringWanted = true;
    const yybuffer_state* m_pQueryBuffer = nullptr; // holds the scanner's copy of the query
    // The last answer of LineFeedBefore: a scan that went back asks for the same line over and over.
    int m_nLineFeedFrom = -1;
    int m_nLineFeedAt = -1;
};
