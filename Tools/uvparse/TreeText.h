// Questions to the XML text of a tree that don't need a document built from it.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace uvparse {

// Text between tags, or the value of an attribute, without its references. One that makes no sense stays as it stands.
std::string PlainText(std::string_view content);

struct STreeDifference
{
    std::size_t treeOffset = 0; // bytes into the XML
    std::size_t textOffset = 0; // bytes into the source text
};

// Compares the text content of `tree`, unescaped, with `text`. Blanks around the root are no content. Two
// control characters can't stand in XML and are taken as the tree writes them: a form feed is left out, a
// data link escape is a word of its own.
// Returns: where they part; nothing if they are equal.
std::optional<STreeDifference> FindTreeDifference(std::string_view tree, std::string_view text);

// What the elements of a flattened tree are. A space is no token.
bool IsTokenElement(std::string_view name);
bool IsStatementElement(std::string_view name);

// The element of a statement's end, and of a statement that couldn't be read.
inline constexpr std::string_view kDelimiterElement = "pl_sql_statement_delimiter";
inline constexpr std::string_view kLostElement = "error_statement";

// What a data link escape is in a tree.
inline constexpr std::string_view kDataLinkEscapeWord = "ORVANTA_DATA_LINK_ESCAPE_REPLACER";

// The number of statements that were read: of elements "delimited_pl_sql_statement", "full_pl_sql_statement"
// and "pl_sql_statement" that stand in no other of these and hold a token beside the delimiter. One that is
// all there is of an "error_statement" doesn't count.
std::size_t CountStatements(std::string_view tree);

struct SStretch
{
    std::size_t begin = 0; // bytes of a text
    std::size_t end = 0;
};

// Where the tokens of a text begin, and the statements that CountStatements counts, from their first token to the
// end of their last; in the order of the text.
struct STreeOutline
{
    std::vector<std::size_t> tokens;
    std::vector<SStretch> statements;
};

// `tree` holds `text`, flattened or not. A data link escape puts the offsets after it out of place.
STreeOutline OutlineOf(std::string_view tree, std::string_view text);

} // namespace uvparse
