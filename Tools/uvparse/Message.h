// One thing that uvparse has to say, whatever form it is written in.
#pragma once

#include "Tools/Support/ToolMessages.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace uvparse {

enum class enMessageKind
{
    UnexpectedToken,
    SkippedText,
    UnclosedText,
    InvalidText,
    MissingInclude,
    Preparation,
    FailedParse,
    NothingLeft,
    DifferentTree,
    MalformedTree,
    CouldNotRun,
    BadArguments,
    Verified,
    Statistics,
    Time,
    ChosenLanguage
};

// What a message is about, and how it reads for people.
enum class enMessageSubject
{
    Source,    // "file:line:column: error: text"
    Unread,    // a source too: "uvparse: error: text"
    Run,       // "uvparse: error: text"
    Arguments, // likewise, before any work was done
    Remark,    // "file: text"
    Note       // "file: note: text"
};

struct SMessageKindRow
{
    enMessageKind kind;
    enMessageSubject subject;
    const char* id;   // for programs
    const char* name; // the same in one word, as SARIF wants it
    enSeverity severity;
    const char* description;
};

// In the order of the enumeration.
std::span<const SMessageKindRow> MessageKinds();
const SMessageKindRow& RowOf(enMessageKind kind);

// Lines and columns count from 1, columns in code points; 0 is not known. The end is the place after the last
// character. Characters are code points, after a byte order mark; bytes are those of the file.
struct SMessageRange
{
    std::size_t line = 0;
    std::size_t column = 0;
    std::size_t endLine = 0;
    std::size_t endColumn = 0;
    std::optional<std::size_t> charOffset = {};
    std::optional<std::size_t> charLength = {};
    std::optional<std::size_t> byteOffset = {};
    std::optional<std::size_t> byteLength = {};
};

struct SMessage
{
    enMessageKind kind = enMessageKind::CouldNotRun;
    enSeverity severity = enSeverity::Error;
    std::string file = {}; // as it was named; "-" is standard input; empty: none
    std::string language = {};
    std::string text = {}; // of a run with the file's name before it, if it has one; of a source without
    SMessageRange range = {};

    std::string sourceLine = {};             // the line that the range begins in, a long one around it
    std::optional<std::size_t> caret = {};   // code points before the range in that line
    std::optional<std::string> snippet = {}; // the text of the range in the source

    // Of an unexpected token.
    std::optional<std::string> token = {};
    std::string tokenName = {}; // as elements of the tree are called
    std::vector<std::string> expected = {};
    std::optional<int> state = {}; // of the parser
    // Of a text that is never closed: the scanner's start condition.
    std::string condition = {};
};

// What messages call a file of the command line.
std::string ShownName(const std::string& path);

// The text without the name of the file that it begins with.
std::string_view TextWithoutFile(const SMessage& message);

} // namespace uvparse
