// Files of cases: a text, and the tree that is expected of it.
//
//     # A comment. Blank lines and comments stand before, between and after cases.
//
//     === A name for the case
//     ===: show //let
//     let a = 1;
//     ---
//     let
//       T__LET "let"
//       name/T__NAME "a"
//       ...
//     ! unexpected T__NUMBER "2" at 1:9
//
//     file   = { blank | comment | "===:" blank option | case }
//     case   = "===" blank name LF { "===:" blank option LF } text "---" LF { blank } tree { finding }
//     option = "show" blank XPath       only what it selects of the tree is shown
//            | "raw"                    the tree as the grammar builds it: not prepared, not flattened
//            | "crlf"                   the lines of the text end in CR LF
//            | "no line end"            the last line of the text has no end
//            | "option" blank KEY=VALUE of the database info
//
// An option outside of a case is one of all cases that follow; `show` is what was said last.
//
// The tree is an outline (see Outline.h); it ends at a blank line or comment. The marks may be longer: those of one case
// have one length, and no line of its text is such a mark or headline. The text is what stands between the lines, byte
// for byte; other lines may end in LF or CR LF.
#pragma once

#include "Tools/uvgrammar-test/Outline.h"

#include <cstddef>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace uvtest {

struct SCase
{
    std::string name;
    std::size_t line = 0; // of the headline, from 1
    std::string text;
    std::string show; // empty: the whole tree
    bool isRaw = false;
    std::vector<std::pair<std::string, std::string>> options;
    std::optional<TLines>
        expected;              // as OutlineOfTree writes it, and the findings; nothing: it isn't there yet
    std::size_t treeBegin = 0; // bytes of the file
    std::size_t treeEnd = 0;   // after the end of its last line
};

struct SCaseFile
{
    std::string path;
    std::string content;
    std::vector<SCase> cases;
};

// A file that isn't of the form above; the text is for its author.
class CCaseFileError : public std::runtime_error
{
public:
    CCaseFileError(std::size_t line, const std::string& text) : std::runtime_error(text), m_Line(line) {}
    std::size_t Line() const { return m_Line; } // from 1

private:
    std::size_t m_Line;
};

// What the lines after a tree begin with, which tell what is wrong with the text.
inline constexpr char kFindingMark = '!';

// Throws: CCaseFileError.
SCaseFile ReadCaseFile(std::string path, std::string content);

// The content of the file with other trees for some of its cases, and everything else as it is. `trees` has an entry
// for each case.
std::string WithTrees(const SCaseFile& file, const std::vector<std::optional<TLines>>& trees);

} // namespace uvtest
