// A language under test: the engine with the tables of a real grammar, and its trees as elements that can be
// asked.
#pragma once

#include "Tests/Support/EngineFixture.h"
#include "Tests/Support/Repeated.h"

#include <cstddef>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

struct SLanguageParse
{
    bool isComplete = false; // the parse came to its end, so there is a tree
    std::string tree;
    std::vector<SUnexpectedToken> unexpected; // in order of arrival

    bool IsClean() const { return isComplete && unexpected.empty(); }
};

// What the scanner says of a piece of the text. Offsets count bytes.
struct SColoredRange
{
    int color = 0;
    std::size_t from = 0;
    std::size_t end = 0; // behind the last byte

    bool operator==(const SColoredRange&) const = default;
};

inline constexpr int kCommentColor = 6; // comments and the client's own lines

class CLanguage
{
public:
    CLanguage(const char* grammar, int db);

    SLanguageParse Parse(const std::string& text);
    // The scanner alone, without a parser: no range for white space, copied data and what else no rule
    // colors.
    std::vector<SColoredRange> Scan(const std::string& text);

private:
    CEngine m_Engine;
    CSQLGrammarLexer m_Scanner;
    SEngineSettings m_Settings;
};

// One for the whole program: a parse must not depend on the ones before it.
CLanguage& PostgreSQL();

// Lines of three numbers: color, first byte, last byte.
std::vector<SColoredRange> ReadColoring(std::string_view coloring);

// An element of a tree that isn't space, in the order of the start tags. Offsets count bytes of the text.
struct SElement
{
    std::string name;
    std::string text; // of a token
    bool isToken = false;
    std::size_t from = 0; // first byte that isn't space
    std::size_t end = 0;  // behind the last such byte
    std::size_t next = 0; // index of the first element that isn't inside this one
    std::size_t xmlFrom = 0, xmlEnd = 0;
};

class CSyntaxTree
{
public:
    explicit CSyntaxTree(std::string xml);

    const std::string& Text() const { return m_strText; }
    const std::vector<SElement>& Elements() const { return m_lstElements; }
    // The statements of a script in order, each with its delimiter if it has one.
    std::vector<SElement> Statements() const;
    // The text of the element's part of the tree, without the places that tokens bear.
    std::string Markup(const SElement& element) const;
    // The tokens inside, in order.
    std::vector<SElement> Tokens(const SElement& element) const;

    // Whether the tree holds a pattern: name(pattern pattern ...), where a name stands for a node and 'text'
    // for a token. The inner patterns are found in this order inside the node, at any depth, none inside
    // another.
    bool Holds(std::string_view pattern) const;
    // Every node name of the tree, for messages.
    std::string Shape() const;

private:
    std::string m_strXml;
    std::string m_strText;
    std::vector<SElement> m_lstElements;
};

// Parses to the end; what is lost of the text is a failure.
SLanguageParse ParseWhole(CLanguage& language, const std::string& text);
// Each text up to every length, parsed whole.
void ExpectPiecesLoseNothing(CLanguage& language, const std::vector<std::string>& texts);
// The statement alone on its line, with each of the line ends: clean, and its tree holds the pattern.
void ExpectStatement(CLanguage& language, const std::string& text, std::initializer_list<const char*> ends,
                     const char* pattern);
std::size_t CountOf(const CSyntaxTree& tree, std::string_view name);
// The texts of all tokens of a name, a bar between them.
std::string TextsOf(const CSyntaxTree& tree, std::string_view name);
std::size_t DepthOf(const std::string& xml);
// Each colored piece with its color in front, blanks between; "/" for a line end.
std::string ShownColors(CLanguage& language, const std::string& text);

// How far the statements of trees are those that a reader of lines finds, which knows no grammar.
struct SLineCoverage
{
    std::size_t statements = 0; // that the reader finds
    std::size_t clean = 0;      // those that the tree has in the same place, without an error
    std::size_t nodes = 0;      // statements of the trees
    std::size_t unexpected = 0; // tokens

    double Percent() const
    {
        return statements == 0 ? 0.0 : 100.0 * static_cast<double>(clean) / static_cast<double>(statements);
    }
};

struct SLineJudge
{
    // The offset of the first byte of each statement.
    std::vector<std::size_t> (*read)(const std::string& text);
    // Whether a statement of the tree is without an error; nothing for one that isn't for the reader.
    std::optional<bool> (*isClean)(const CSyntaxTree& tree, const SElement& statement,
                                   const std::vector<SUnexpectedToken>& unexpected);
};

// Adds a text, of which nothing may be lost.
void CoverLines(CLanguage& language, const std::string& text, const SLineJudge& judge,
                SLineCoverage& coverage);
// Prints it, and puts it into the report of the test.
void TellCoverage(const char* what, std::size_t files, const SLineCoverage& coverage);

// The files below a folder of the corpus, sorted; none if UV_CORPUS isn't set. Licenses are left out.
std::vector<std::string> CorpusPaths(const char* folder);

// The file's bytes. Throws: std::runtime_error if it can't be read.
std::string ReadFile(const std::string& path);
// The sample scripts of a language, by path, sorted.
std::vector<std::string> SamplePaths(const char* language);
