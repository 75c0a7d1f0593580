// A type's text taken apart, and the name of a table that it means. Inner part of reading types.
#pragma once

#include "Catalogue/DataTypes/DataTypeTable.h"
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

// The texts of one pair of parentheses, and the byte in the name in front of which the pair stands.
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

std::string Quoted(std::string_view text);

// Without white space at both ends. Borrows `text`.
std::string_view Trimmed(std::string_view text);

// ASCII alone: table names hold nothing else, and offsets stay as they are.
std::string UpperCase(std::string_view text);

// The parts between commas, trimmed and in upper case; none of a blank text.
std::vector<std::string> SplitItems(std::string_view inner);

// Blanks become single ones, array bounds go. Throws: CBadTypeText.
SWritten TakeApart(std::string_view text);

// The name with an empty pair wherever it was written with one.
std::string WithPairs(const SWritten& written);

// The name whose spelling and pairs fit best. What a text says of its character set is taken off `written`
// where no name has it.
SFound FindTypeName(const SDataTypeTable& table, SWritten& written);

// Takes a trailing IDENTITY with its start and step off. Returns: whether there was one.
bool TakeIdentity(DB_VERSION_INFO version, SWritten& written);

} // namespace UVDBTypeText
