// Names and classes of the database kinds. Read-only once built, so threads may share it.
#pragma once

#include "UVEnvironment/UVEExport.h"

#include <cstdint>
#include <string_view>
#include <unordered_map>

namespace UVDB {

class NamesHelper
{
public:
    UVDB_EXPORT static NamesHelper& getInstance();

    // Returns: the number of the kind whose enumerator is spelled `enumeratorName`, letter by letter; 60 for
    //          anything else, null included.
    std::uint64_t GetDBType(const char* enumeratorName) const;

    // Databases. Some languages belong to them too: what a host treats as a connection is listed here.
    bool isDatabase(std::uint64_t db) const;
    // Application languages, and the unknown kind.
    bool isApp(std::uint64_t db) const;
    // Languages for which statistics of the sources are collected.
    bool isNeedStatisticsCollection(std::uint64_t db) const;
    // A number of the kinds' range, whether a kind bears it or not.
    bool isValid(std::uint64_t db) const;

private:
    NamesHelper();

    std::unordered_map<std::string_view, std::uint64_t> m_Kinds;
};

} // namespace UVDB
