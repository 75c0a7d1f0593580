// What databases write into a type's text beside its name and numbers, and names for which the tables have
// another one. Inner part of reading types.
#pragma once

#include "Catalogue/Types/UVDBTypeTextName.h"
#include "Interfaces/DB_VERSION_INFO.h"

#include <string>

namespace UVDBTypeText {

// What the words after a name said.
struct SAdditions
{
    bool isUnsigned = false;
    bool hasNumbering = false; // IDENTITY, AUTO_INCREMENT and the like
    std::string characterSet{};
};

// Takes the last addition off the name, such as COLLATE with its word, and what stands in parentheses after
// it. Upper case is expected.
// Returns: whether there was one.
bool TakeAddition(DB_VERSION_INFO version, SWritten& written, SAdditions& additions);

// Takes the name of the database's own schema off the front: PG_CATALOG.INT4.
void TakeSystemSchema(DB_VERSION_INFO version, SWritten& written);

// A name that the tables don't have as one that they have and that holds the same values.
struct SStandIn
{
    bool isFound = false;
    long uvdbType = -1; // where the name alone doesn't tell the internal type
    bool hasNumbering = false;
};

// Replaces the name by its stand-in. Numbers stay unless the stand-in has its own.
SStandIn TakeStandIn(DB_VERSION_INFO version, SWritten& written);

// A list of values such as ENUM('a','b').
struct SValueList
{
    std::size_t count = 0;   // of values; 0: no such list
    std::size_t longest = 0; // characters of the longest text that a column can hold
};

// Throws: CBadTypeText for a name that wants a list and has none.
SValueList ReadValueList(DB_VERSION_INFO version, const SWritten& written);

} // namespace UVDBTypeText
