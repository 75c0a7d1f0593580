// Indexes and constraints whose names have to be unique in a whole schema of the target, though they are told
// apart by their tables.
#pragma once

#include "UVEnvironment/UVEUnicodeString.h"

#include <cstdint>
#include <string>
#include <unordered_map>
#include <utility>

namespace uvnames {

// An object of the source, and what it is called in the target: names as the target compares them.
struct SSchemaName
{
    long type = 0;
    Uve::U8CString source;     // the whole name
    Uve::U8CString table;      // of the source, for parts of one
    Uve::U8CString sourceName; // the last part
    Uve::U8CString schema;
    Uve::U8CString name;
};

class CSchemaClashes
{
public:
    // `target`: a number of enUVDB_DATABASE.
    explicit CSchemaClashes(std::uint64_t target) : m_Target(target) {}

    // Whether names of the type count at all.
    bool Has(long type) const;

    // Enters the name.
    // Returns: the whole name, in the source, of another object that has it in the schema; empty if none has.
    Uve::U8CString Enter(const SSchemaName& name);

private:
    std::uint64_t m_Target;
    std::unordered_map<std::string, SSchemaName> m_Names; // the first of each name, by name space
};

} // namespace uvnames
