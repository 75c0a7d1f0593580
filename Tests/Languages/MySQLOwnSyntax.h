// What MySQL 8.0 has and MariaDB 10.11 has not: a MariaDB refuses it, and it is right all the same.
#pragma once

#include <cstddef>
#include <span>
#include <string>

struct SOwnSyntax
{
    const char* name;
    // A regular expression without regard to case, of what a MariaDB stumbles over, in its group if it has one.
    const char* pattern;
    const char* example; // a statement that it refuses for that
};

std::span<const SOwnSyntax> MySqlOwnSyntax();

// Why a MariaDB may refuse the statement at `place` (bytes) though it is right there.
// Returns: the name of the row that has the place in its pattern; null if there is none.
const char* FindMySqlOwnSyntax(const std::string& statement, std::size_t place);
