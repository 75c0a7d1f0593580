// A language under test: the engine with the tables of a real grammar, and its trees as elements that can be
// asked.
#pragma once

#include "Tests/Support/EngineFixture.h"
#include "Tests/Support/Repeated.h"

#include <cstddef>
#include <initializer_list>
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
    std::size_t end = 0; // after the last byte

    bool operator==(const SColoredRange&) const = default;
};

inline constexpr int kCommentColor = 6; // comments and the client's own lines

class CLanguage
{
public:
    // `isQidName`: a text in double quotes is a name, where the language can read it as a string, too.
    CLanguage(const char* grammar, int db, bool isQidName = true);

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
CLanguage& MySQL();

// An element of a tree that isn't space, in the order of the start tags. Offsets count bytes of the text.
struct SElement
{
    std::string name;
    std::string text; // of a token
    bool isToken = false;
    std::size_t from = 0; // first byte that isn't space
    std::size_t end = 0;  // after the last such byte
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
// Each text up to every length, or every `step`-th, parsed whole.
void ExpectPiecesLoseNothing(CLanguage& language, const std::vector<std::string>& texts,
                             std::size_t step = 1);
// Each text with bytes changed, put in and taken out at random, parsed whole. Three of four are `favourites`.
void ExpectSpoiledTextsLoseNothing(CLanguage& language, const std::vector<std::string>& texts,
                                   std::string_view favourites);
// The statement alone on its line, with each of the line ends: clean.
void ExpectOneStatement(CLanguage& language, const std::string& text,
                        std::initializer_list<const char*> ends);
std::size_t CountOf(const CSyntaxTree& tree, std::string_view name);
std::size_t DepthOf(const std::string& xml);
// Each colored piece with its color in front, blanks between; "/" for a line end.
std::string ShownColors(CLanguage& language, const std::string& text);

// Parses the files below a folder of the corpus: nothing of them is lost, and of a hundred statements so many
// have no unexpected token.
void ExpectRealTexts(CLanguage& language, const char* folder, std::size_t cleanOfHundred = 90);

// The files below a folder of the corpus, sorted; none if UV_CORPUS isn't set. Licenses are left out.
std::vector<std::string> CorpusPaths(const char* folder);

// The file's bytes.
// Throws: std::runtime_error if it can't be read.
std::string ReadFile(const std::string& path);
// The sample scripts of a language, by path, sorted.
std::vector<std::string> SamplePaths(const char* language);
std::vector<std::string> SampleTexts(const char* language);
