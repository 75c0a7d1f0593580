// The catalogue: one row for every database and source language, with its names in each naming context and
// the condition under which it answers a look-up. Every search takes the first row in table order that fits;
// one that fits nowhere gives a separate unknown row, never null. Read-only once built, so threads may share
// it.
#pragma once

#include "Catalogue/UVDBVersionRange.h"
#include "Interfaces/DB_VERSION_INFO.h"
#include "UVEnvironment/UVEExport.h"
#include "UVEnvironment/UVEUnicodeString.h"

#include <cstdint>
#include <map>
#include <string_view>
#include <vector>

struct DB_INFO
{
    DB_VERSION_INFO dbVersion; // the row's key: kind and subtype, all else empty
    std::int64_t resourceIndex = 0;
    Uve::U8CString shortName;
    Uve::U8CString fullName;
    Uve::U8CString wzdName; // several rows share one
    Uve::U8CString visibleName;
    Uve::U8CString defaultExtension; // without a dot
};

struct DB_INFO_ROW : DB_INFO
{
    Ver condition; // the databases that the row answers for
};

// The name column that a search looks into. Any other value finds nothing.
enum DbInfoNameCategory : int
{
    dbInfoShortName = 0,
    dbInfoFullName = 1,
    dbInfoWzdName = 2,
    dbInfoVisibleName = 3,
};

namespace UVDB {

class CDbInfo
{
public:
    // Resource index of unknown databases: of the row for the unknown kind and of the row of failed searches.
    static constexpr std::int64_t kUnknownResourceIndex = 8;

    CDbInfo();

    // The first row whose condition accepts kind, subtype and version. The secondary database isn't looked
    // at.
    const DB_INFO_ROW& findDbInfo(DB_VERSION_INFO version) const;
    // The first row with that resource index.
    const DB_INFO_ROW& findDbInfo(int resourceIndex) const;

    // The first row whose name in `category` equals `name` (UTF-8) by collation.
    const DB_INFO_ROW& findDbInfo(DbInfoNameCategory category, const char* name) const;
    const DB_INFO_ROW& findDbInfoIgnoreCase(DbInfoNameCategory category, const char* name) const;
    // The first row with `name` in any column, the wizard column only unless `skipWizardName`. A name that is
    // used twice belongs to the earlier row, in whatever column it stands there.
    const DB_INFO_ROW& findDbInfoAnyNameIgnoreCase(const char* name, bool skipWizardName) const;

    // By the rows' keys, not their conditions: the subtype "none" (all ones) is a value like any other.
    // Returns: the resource index; -1 if no key is equal.
    std::int64_t findResourceIndex(std::uint64_t db, std::uint64_t subType) const;
    // Returns: the resource index; -1 also for the row that is named "Unknown" itself.
    std::int64_t findResourceIndexAnyNameIgnoreCase(const char* name, bool skipWizardName) const;

    bool containsName(DbInfoNameCategory category, const char* name) const;
    bool containsNameIgnoreCase(DbInfoNameCategory category, const char* name) const;
    bool containsAnyNameIgnoreCase(const char* name) const;

    bool isUnknownDbInfo(const DB_INFO_ROW& row) const;
    // True for the names that stand for a whole family and are no direction of their own.
    bool IsNonExistentDirection(const char* name) const;
    // Full names by resource index, without non-existent directions.
    std::map<int, Uve::U8CString> getIndexesFullnames() const;

    std::size_t getRowCount() const { return m_Rows.size(); }

private:
    std::vector<DB_INFO_ROW> m_Rows; // in table order
    DB_INFO_ROW m_UnknownRow;
};

// The catalogue of the process.
class DbinfoHelper : public CDbInfo
{
public:
    UVDB_EXPORT static DbinfoHelper& getInstance();

    // `dbmsName` in any column, without regard to case.
    bool isSupportedDbms(std::string_view dbmsName) const;

private:
    DbinfoHelper() = default;
};

} // namespace UVDB
