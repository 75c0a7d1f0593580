// The table files of one grammar: reading them for the engine, and writing them out of the C text that flex
// and bison generate. A grammar is a folder with the files of its scanner in "Lexer/" and those of its parser
// in "Parser/". Nothing is kept between calls. Table sizes count entries; text sizes count bytes.
#pragma once

#include "Grammar/UVGrammarKeywords.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

class CGeneratedText;

// Rule number to operations. The key of an operation is its keyword, "#" and its occurrence in the record
// ("TOKEN_ACTION#0"): the operations of a rule run in the order of these keys, not in that of the file. A
// record without operations has the one key "NULL_ACTION" with a null vector.
// Owner: whoever holds the map owns both levels that the pointers lead to; see FreeActionsMap.
using COperationsMap = std::map<std::string, std::vector<std::string>*>;
using CActionsMap = std::map<int, COperationsMap*>;

// Frees what the map owns and empties it.
void FreeActionsMap(CActionsMap& actions);

// The folder of one part ("Lexer" or "Parser") of a grammar, with a slash at its end:
// <folder of the program>/Grammar[.CR]/<parserName>/<part>/
// Throws: U8CString "file not found" for a name that would lead out of the grammar folder (one with "/" or
//         "..").
std::string ComposeGrammarDirectory(const std::string& parserName, bool isCr, const char* part);

// The content of a text file: `plainDirectory`/name, else the archive `packedDirectory`/name_ unpacked.
// Throws: U8CString with the line for the log if there is neither, if it can't be read, or the archive is
//         damaged. The line names the plain file where there is neither, and the system's reason where it is
//         another.
std::string GetDatFile(const std::string& packedDirectory, const std::string& plainDirectory,
                       const std::string& name);

// The path of a binary table, by the same two candidates. A packed table has the form of a plain one.
// Throws: U8CString as GetDatFile, if there is neither.
std::string GetDatFilePath(const std::string& packedDirectory, const std::string& plainDirectory,
                           const std::string& name);

class UVDBGrammarKeeper
{
public:
    // ---- Reading ----

    // Returns: 0, or -1 if the file can't be opened or read; `content` is empty then.
    static int ReadFromFile(std::string& content, const char* path);
    // Replaces the file.
    // Returns: 0, or -1 if it can't be opened or written.
    static int WriteToFile(const std::string& content, const char* path);

    // Reads the table at `path`, plain or gzip. T is int or unsigned int. `checksum`, if not null, takes the
    // CRC-32 of count and entries as they are stored unpacked.
    // Returns: the entries, `count` of them; null with `count` 0 if the file can't be opened.
    // Owner:   the caller, delete[].
    // Throws:  U8CString with the line for the log, if the file is damaged or shorter than it claims. Memory
    //          grows with what the file really holds.
    template <class T>
    static T* GetBinaryTableFromFile(const char* path, std::size_t& count, std::uint32_t* checksum = nullptr);

    // Adds the records of an action text to `actions`; a later record with the same number replaces an
    // earlier one. An unknown keyword ends the reading with a line in the trace: its record and all after it
    // are missing.
    static void CreateActionsMap(const std::string& text, CActionsMap& actions);

    // Adds the pairs of a defines text.
    // Returns: the largest value, at least 0, in the low 32 bits; 1 in the high 32 bits if some value was 0.
    static std::uint64_t CreateDefinesMap(const std::string& text, std::map<std::string, int>& defines);

    // Returns: the value of the last YYFINAL in a defines text, 0 if it has none.
    static int GetFinalStateNum(const std::string& text);

    // Returns: the smallest of 0 and all entries.
    static int TableNinfRemap(const int* table, std::size_t size);

    // ---- Writing ----
    // `source` is the generated file; whether it is flex's or bison's goes by its name, see IsFileLexer.
    // `directory` takes the files and ends in a slash.
    // Returns: 0, or -1 with a line in the trace if the source can't be read or has another form.

    static int SaveActionsToFile(const std::string& source, const std::string& directory);
    // Throws: U8CString with the line for the log if a table can't be written.
    static int SaveTablesToFile(const std::string& source, const std::string& directory);
    static int SaveConstantsToFile(const std::string& source, const std::string& directory);
    // The start conditions (flex's header file) or the tokens (bison's C file). `out` takes the text too.
    static int SaveDefinesToFile(const std::string& source, const std::string& directory, std::string& out);

    // True if the file's name, without its folder, contains "Lexer".
    static bool IsFileLexer(const std::string& path);
    // The tables that a file of this kind has, joined with "|".
    static std::string GetTableNames(const std::string& path);

    // The numbers of a C initialiser, from its "{" on. The first element is their count, so that the vector
    // is the content of a table file. T is int (base 10) or unsigned int (base 0).
    // Throws: std::runtime_error if the initialiser isn't one of numbers.
    template <class T>
    static std::vector<T> GetFileTable(std::string_view text);

    // What follows one statement of an action.
    enum enStatementResult
    {
        kStatementHasArguments = 0,
        kStatementEndsRecord = 2,
        kStatementDone = 3
    };
    // Appends the keyword at the cursor to `out`, for some with the operand, and moves after it. The cursor
    // stands at one of seekingTokens.
    static enStatementResult ProcessToken(CGeneratedText& cursor, std::string& out);

    // What the extractor of actions looks for. The first word that the text begins with wins, without regard
    // to case, so a word stands before those that it begins with.
    static constexpr std::array<std::string_view, 30> seekingTokens = {
        "BRACKETS_ACTION",
        "IF_BRACKETS_ACTION",
        "PATTERNS_ACTION",
        "PATTERN_ACTION",
        "IFSTRCMP_ACTION",
        "GET_FIRST_IF_CPP_DIRECTIVE_PARSE_ON",
        "STRING_ACTION",
        "CODE_ACTION",
        "SelecTokenByAPISourceDBVal",
        "yylexerptr->yybegin",
        "CREATE_NODE_WITH_ERROR",
        "CREATE_NODE",
        "TOKEN_ACTIONE",
        "ColoringFunc",
        "TOKEN_ACTION",
        "strtmp.Format",
        "yytext",
        "TEXT_ACTION",
        "BEGIN",
        "EMPTY",
        "SQL_REDUCED",
        "strcpy",
        "yylexerptr->yybegin",
        "CPY_TOKEN_ACTION",
        "ACTION_BY_OPTION",
        "TOKEN_INDENT_ACTION",
        "STACK_ACTION",
        "SET_CONDITION",
        "CONDITIONAL_BEGIN",
        "CONDITIONAL_TOKEN_ACTION",
    };

    static constexpr std::array<std::string_view, 8> tableFilesLexer = {
        "accept", "base", "chk", "def", "NUL_trans", "nxt", "rule_can_match_eol", "acclist"};
    static constexpr std::array<std::string_view, 10> tableFilesParser = {
        "translate", "defact", "defgoto", "table", "pgoto", "pact", "check", "r1", "r2", "stos"};

private:
    static int SaveLexerDefinesToFile(const std::string& text, const std::string& path, std::string& out);
    static int SaveParserDefinesToFile(const std::string& text, const std::string& path, std::string& out);
};

extern template int* UVDBGrammarKeeper::GetBinaryTableFromFile<int>(const char* path, std::size_t& count,
                                                                    std::uint32_t* checksum);
extern template unsigned int*
UVDBGrammarKeeper::GetBinaryTableFromFile<unsigned int>(const char* path, std::size_t& count,
                                                        std::uint32_t* checksum);
extern template std::vector<int> UVDBGrammarKeeper::GetFileTable<int>(std::string_view text);
extern template std::vector<unsigned int>
UVDBGrammarKeeper::GetFileTable<unsigned int>(std::string_view text);
