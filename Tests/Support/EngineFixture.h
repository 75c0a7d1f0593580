// The grammar engine under test: a scanner and a parser of one fixture grammar, linked as the front door
// links them, and what a parse brings out.
#pragma once

#include "Grammar/UVGrammarLexer.h"
#include "Grammar/UVGrammarParser.h"
#include "Tests/Support/TreeText.h"

#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

// What the front door would have set from the options.
struct SEngineSettings
{
    int db = 0;
    bool isCr = false; // the folder Grammar.CR
    bool isDevelopmentMode = false;
    bool isMssqlQid = true;
    bool isCppDirectiveParse = false;
    bool ignoresDefines = true;
    int versionMajor = 0;
    int versionMinor = 0;
    std::string sourceDb;
    std::string uiType;
    std::map<std::string, std::string> options;
};

struct SParseOutcome
{
    int result = 0; // of the parser
    bool hasThrown = false;
    std::string tree;
    std::string coloring;
    std::string lastError;
    std::multimap<unsigned long, std::string> errors;

    bool operator==(const SParseOutcome&) const = default;
};
std::ostream& operator<<(std::ostream& out, const SParseOutcome& outcome);

class CEngine
{
public:
    explicit CEngine(const std::string& grammar, bool isCr = false);
    // Scanner and parser of different folders.
    CEngine(const std::string& scannerGrammar, const std::string& parserGrammar);

    // Any number of times on one object. An exception of the engine is part of the outcome. The text of a
    // tree that stays in fragments is written here.
    SParseOutcome Parse(const std::string& text, const SEngineSettings& settings = {});
    // Takes the step from state to state out of the tables as they are stored.
    void UseCompressedTables();

    CSQLGrammarLexer m_Lexer;
    CSQLGrammarParser m_Parser;
    std::string m_strQuery;     // the parser's and the scanner's
    std::string m_strException; // of the last parse

private:
    void Link();
};

// The folder of one part ("Lexer", "Parser") of a grammar that was built beside this program, with a slash.
std::string GrammarFolder(const std::string& grammar, const char* part);

// The tables of a scanner as they are stored, neither proved nor compiled.
std::shared_ptr<CScannerTables> ReadScannerTables(const std::string& grammar);

// A tree in few characters: name(child child), tokens as NAME'text' without their leading T, space as 'text',
// the two outer nodes left out. A node whose first child has its own name takes that child's children: lists
// come flat.
std::string Sketch(std::string_view tree);
// False for a text with one of the two control characters that have no place in XML: a tree holds others for
// them.
bool FitsIntoXml(std::string_view text);
// The tree without its pos attributes, which depend on earlier parses.
std::string WithoutPositions(std::string_view tree);

// One input of a fixture grammar. Cases.txt holds them line by line: `input:` begins a case; `given:`,
// `tree:`, `errors:` and `coloring:` belong to the case above. `tree: -` is a failed parse. In all of them
// \n, \t, \s (blank),
// \\ and \xHH are escapes. `broken:` is an input of which nothing is told.
struct SGrammarCase
{
    int line = 0;
    std::string input;
    SEngineSettings settings;
    bool isBroken = false;
    std::string tree, errors, coloring; // empty: not told
};
std::vector<SGrammarCase> ReadGrammarCases(const std::string& grammar);

// A copy of a grammar's folder under another name, with its binary tables unpacked and without its manifest,
// for damaging. It goes with the object.
class CGrammarCopy
{
public:
    explicit CGrammarCopy(const std::string& grammar);
    ~CGrammarCopy();
    CGrammarCopy(const CGrammarCopy&) = delete;
    CGrammarCopy& operator=(const CGrammarCopy&) = delete;

    const std::string& Name() const { return m_strName; }
    // `file` is "Lexer/nxt.dat" and the like.
    std::string Path(const std::string& file) const { return m_strFolder + "/" + file; }
    std::string Read(const std::string& file) const;
    void Write(const std::string& file, std::string_view content) const;
    std::vector<int> Table(const std::string& file) const;
    void SetTable(const std::string& file, const std::vector<int>& entries) const;
    // Puts the manifest of the undamaged grammar back.
    void RestoreManifest() const;

private:
    std::string m_strName;
    std::string m_strFolder;
    std::string m_strManifest;
};
