// A type's text taken apart, and the name of a table that it means. Inner part of reading types.
#pragma once

#include "Catalogue/Types/DataTypes/DataTypeTable.h"
#include "Interfaces/DB_VERSION_INFO.h"

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace UVDBTypeText {

// Ends the reading of one text; whoever reads a whole text catches it.
class CBadTypeText : public std::runtime_error
{
    using std::runtime_error::runtime_error;
};

// The texts of one pair of parentheses, and the byte in the name before which the pair stands. A text is
// trimmed and in upper case; what was quoted in it stays as it is, between apostrophes.
struct SPair
{
    std::size_t offset = 0;
    std::vector<std::string> items{};
};

// The name without its pairs, and the pairs.
struct SWritten
{
    std::string name{};
    std::vector<SPair> pairs{};
};

// How the pairs of a text lie in those of a name.
struct SFit
{
    std::size_t unused = 0;            // pairs of the name that the text leaves out
    std::vector<std::size_t> groups{}; // for each pair of the text, the pair of the name
};

struct SFound
{
    const STypeNameSpan* span = nullptr; // null: no name of the table fits
    SFit fit{};
};

// For messages: long texts are cut.
std::string Quoted(std::string_view text);

// Without white space at both ends. Borrows `text`.
std::string_view Trimmed(std::string_view text);

// ASCII alone: table names hold nothing else, and offsets stay as they are.
std::string UpperCase(std::string_view text);

// The parts between commas, trimmed and in upper case; none of a blank text.
std::vector<std::string> SplitItems(std::string_view inner);

// Blanks become single ones, array bounds and the marks around quoted names go, a quoted text outside of
// parentheses becomes ''.
// Throws: CBadTypeText.
SWritten TakeApart(DB_VERSION_INFO version, std::string_view text);

// The name with an empty pair wherever it was written with one.
std::string WithPairs(const SWritten& written);

// The name in the one spelling that stands for all that mean the same in every database: CHARACTER VARYING is
// VARCHAR.
SWritten Canonical(SWritten written);

// The name whose spelling and pairs fit best.
SFound FindTypeName(const SDataTypeTable& table, const SWritten& written);

} // namespace UVDBTypeText
