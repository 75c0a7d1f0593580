// Which texts are rewritten before they are scanned: by the kind of their language, and by options.
#pragma once

#include <cstdint>
#include <memory>

class CUVDBSQLParser;
class IUVDBDatabaseInfo2;
class IUVDBObjectInfo;

// Where the options stand that a row asks for: on the database info, or on the object being converted.
struct SFormatterOptions
{
    std::shared_ptr<IUVDBDatabaseInfo2> databaseInfo;
    std::shared_ptr<IUVDBObjectInfo> convertingObject;
};

struct SFormatterRow
{
    std::uint64_t kind; // a number of the UVDB_DB_ list
    const char* name;
    bool (*isWanted)(const SFormatterOptions& options);
    // Rewrites the parser's query in place. One that can't go on leaves an empty query and an error record.
    // Null: the text goes to the scanner as it stands.
    void (*format)(CUVDBSQLParser& parser);
};

// Returns: the formatter for texts of this kind under these options; null if they need none.
const SFormatterRow* FindFormatter(std::uint64_t kind, const SFormatterOptions& options);
