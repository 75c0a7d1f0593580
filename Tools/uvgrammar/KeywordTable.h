// The words of a language as a table. It gives the scanner its rules, the parser its tokens, and the grammar the lists
// of words that may be names.
//
//     file    = { line }
//     line    = "%include" '"' path '"'               another table's words come first
//             | "%color" number                       of the words that follow; 1 at the beginning
//             | word { group } { "token" '=' name } { "color" '=' number } { '"' spelling '"' }
//             | { group } ':' { word }                several words of the same groups
//             | '=' word ... | '=' { group } ':' ...  takes the place of what an included table says of the word
//             | '-' word { word }                     removes an included table's words
//             | '#' any text
//
// for example
//     %include "../Common/SQL/Words.words"
//     character    column_name bare    "character" "charset"
//     bare : absolute action add
//     = current    unreserved
//     - placing overlaps
//
// The spelling of a word is the word itself unless others are given; its token is "__" and the word in upper case, or the name that
// is given. A
// group is any name: the grammar lists the words of a group by it.
#pragma once

#include "Tools/uvgrammar/SourceFile.h"

#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

struct SKeyword
{
    std::string word;
    std::string token; // without the parser's "T"
    int color = 1;
    std::vector<std::string> groups;
    std::vector<std::string> spellings;
    const CSourceFile* file = nullptr;
    std::size_t offset = 0;
};

class CKeywordTable
{
public:
    // Reads the table that a source or table names at `offset`. What is wrong with it goes to `messages`, with its place.
    // Throws: CToolFailure.
    void Read(CSourceFiles& files, const CSourceFile& includer, std::size_t offset, const std::string& name,
              CToolMessages& messages);

    // In the order of the words' letters.
    const std::map<std::string, SKeyword>& Words() const { return m_Words; }
    bool HasGroup(std::string_view group) const;
    // The parser's tokens of words that were removed, as far as no other word has them.
    std::set<std::string> RemovedTokens() const;

private:
    void ReadFile(CSourceFiles& files, const CSourceFile& file, CToolMessages& messages);
    void ReadRow(const CSourceFile& file, std::size_t offset, std::string_view row, int color,
                 CToolMessages& messages);
    void Add(SKeyword keyword, bool takesPlace, CToolMessages& messages);
    void Remove(const CSourceFile& file, std::size_t offset, std::string_view words, CToolMessages& messages);

    std::map<std::string, SKeyword> m_Words;
    std::set<std::string> m_Removed; // their tokens
};
