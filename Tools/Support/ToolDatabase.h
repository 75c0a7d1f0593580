// Databases as users name them on a command line. A program that uses this links the catalogue.
#pragma once

#include "Interfaces/DB_VERSION_INFO.h"

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

// The text names no database; what() says why, and which names are near.
class CDatabaseError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

// What a whole number is that stands alone after the kind.
enum class enLoneNumber
{
    SubType,
    Version
};

// KIND[:SUBTYPE[:VERSION]]: KIND is a number, any catalogue name or an enumerator's name, SUBTYPE a number,
// VERSION "major" or "major.minor". An empty SUBTYPE is the one that belongs to the name. KIND:MAJOR.MINOR is
// read as well, since no subtype has a dot.
// Throws: CDatabaseError.
DB_VERSION_INFO ReadDatabaseText(std::string_view text, enLoneNumber loneNumber = enLoneNumber::SubType);

// Those of `names` that `text` may have been meant for, best first: case counts as nothing, each letter put
// in, left out or changed a little.
std::vector<std::string> NearNames(std::string_view text, const std::vector<std::string>& names,
                                   std::size_t limit = 3);

// "; did you mean 'a' or 'b'?", or nothing if there are no names.
std::string NearNamesText(const std::vector<std::string>& nearNames);
