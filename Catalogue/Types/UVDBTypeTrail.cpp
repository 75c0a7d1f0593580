#include "Catalogue/Types/UVDBTypeTrail.h"

#include <cstddef>
#include <iterator>

namespace {

// In the order of the enumerators.
constexpr const char* kSentences[] = {
    "the caller gave the internal type",
    "a row of the source's type table gave the internal type",
    "the source's type table hasn't the name; its ODBC number or its money name gave the internal type",
    "nothing is known of the name: it is served as VARCHAR(255)",
    "Informix 4GL to SQL Server: SMALLINT becomes INTEGER",
    "PostgreSQL to SQL Server: NUMERIC without precision becomes FLOAT",
    "SQL Server to PostgreSQL: NVARCHAR(MAX) becomes a text without limit",
    "SQL Server to SQL Server: DateTime stays as it is written",
    "to PostgreSQL: NUMBER without precision becomes NUMERIC",
    "Informix to SQL Server: an interval gets the size of its text",
    "to Teradata: the largest large object is written without its size",
    "the target writes identity columns with a type of their own",
    "the target has no row for the internal type: VARCHAR serves it",
    "the rule names the target type",
    "source and target are of one kind and version: the name stays",
};
static_assert(std::size(kSentences) == UVDB_TYPE_SAME_NAME + 1);

} // namespace

const char* TypeDecisionText(enTypeDecision decision)
{
    const auto index = static_cast<std::size_t>(decision);
    return index < std::size(kSentences) ? kSentences[index] : "";
}
