// Which texts are rewritten before they are scanned: by the kind of their language, and by options.
#pragma once

#include <cstdint>
#include <memory>

class IUVDBDatabaseInfo2;
class IUVDBObjectInfo;
class ScriptFormatter;

// Where the options stand that a row asks for: on the database info, or on the object being converted.
struct SFormatterOptions
{
    std::shared_ptr<IUVDBDatabaseInfo2> databaseInfo;
    std::shared_ptr<IUVDBObjectInfo> convertingObject;
    bool isPreprocessorEnabled = false;
};

struct SFormatterRow
{
    std::uint64_t kind; // a number of the UVDB_DB_ list
    const char* name;
    bool (*isWanted)(const SFormatterOptions& options);
    const char* unwanted; // why it isn't, as the end of a sentence
    void (ScriptFormatter::*format)();
};

// Returns: the formatter for texts of this kind, wanted or not; null if there is none.
const SFormatterRow* FindFormatter(std::uint64_t kind);
