// Questions to the catalogue by database version, index or name. None of them fails: a database that isn't
// there is answered by the unknown row.
#pragma once

#include "Catalogue/UVDBDbInfo.h"
#include "Interfaces/DB_VERSION_INFO.h"
#include "UVEnvironment/UVEUnicodeString.h"

#include <cstddef>
#include <cstdint>

// The name that GetDbTypedName gives. Any other value gives an empty text.
enum DbNameType : int
{
    dbShortName = 1,
    dbFullName = 2,
    dbWzdName = 3,
    dbVisibleName = 4,
};

// A version value with these four words, everything else empty.
DB_VERSION_INFO MakeDbVersionInfo(std::uint64_t db, std::uint64_t subType, std::uint64_t majorVersion,
                                  std::uint64_t minorVersion);

const DB_INFO_ROW& GetDbInfo(DB_VERSION_INFO version);
// By the rows' keys: the subtype must be equal, "none" included.
// Returns: the resource index, -1 if there is none.
std::int64_t GetDbResourceIdx(std::uint64_t db, std::uint64_t subType);

Uve::U8CString GetDbTypedName(std::uint64_t db, std::uint64_t subType, std::uint64_t majorVersion,
                              std::uint64_t minorVersion, DbNameType nameType);
// File extension without a dot.
Uve::U8CString GetDbDefaultExtension(std::uint64_t db, std::uint64_t subType, std::uint64_t majorVersion,
                                     std::uint64_t minorVersion);
Uve::U8CString GetDbDefaultExtension(DB_VERSION_INFO version);
Uve::U8CString GetDbWzdName(DB_VERSION_INFO version);
Uve::U8CString GetDbVisibleName(DB_VERSION_INFO version);
Uve::U8CString GetDbShortName(DB_VERSION_INFO version);
Uve::U8CString GetDbFullName(DB_VERSION_INFO version);

// The row with this full name, without regard to case. The second argument changes nothing.
const DB_INFO_ROW& GetFullNameDbInfo(const Uve::U8CString& fullName, bool unused);

// Number of rows. Resource indices have a gap and run beyond it.
std::size_t GetDbIndexCount();
// By full, short or visible name, without regard to case. Wizard names aren't unique and don't count.
// Returns: the resource index, -1 for an unknown name and for "Unknown" itself.
std::int64_t GetDbIndexByName(const Uve::U8CString& name);
const DB_INFO_ROW& GetDbIndexInfo(std::uint64_t resourceIndex);

// The fragment that tells a stylesheet which databases are at work: short and full name of both databases of
// `source`, then of `target`. Values aren't escaped; no catalogue name needs it.
Uve::U8CString GetDbInfoXml(DB_VERSION_INFO& source, DB_VERSION_INFO& target);
// The four elements of one side; their names begin with `tag`.
Uve::U8CString GetDbInfoXmlBase(DB_VERSION_INFO& version, Uve::U8CString tag);

// The section of the options file that belongs to this database.
Uve::U8CString GetIniSectionName(const DB_VERSION_INFO& version);

// The parser name of this database, by kind and subtype alone.
// Returns: a name that lives as long as the library; "Common" for kinds without a parser of their own.
const char* GetParserModuleName(DB_VERSION_INFO version);
