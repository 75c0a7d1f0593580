// Questions to the XML text of a tree that don't need a document built from it.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

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

} // namespace uvparse
