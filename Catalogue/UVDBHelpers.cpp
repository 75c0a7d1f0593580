#include "Catalogue/UVDBHelpers.h"

#include "Catalogue/UVDBDatabaseKinds.h"
#include "Catalogue/UVDBParserNames.h"

#include <algorithm>
#include <iterator>

namespace {

struct SIniSection
{
    std::uint64_t db = 0;
    std::uint64_t subType = 0;
    const char* section = "";
};

constexpr std::uint64_t kAnySubType = Ver::kAnySubType;

// The first line that fits answers; a kind without a line has its short name as section. The form kind of
// Pascal shares the section of Pascal itself.
// clang-format off
constexpr SIniSection kIniSections[] = {
//   kind                               subtype                        section
    {UVDB_DB_MySQL,                     UVDB_MySQL_FOR_MariaDB,        "MARIADB"},
    {UVDB_DB_MSSQL,                     UVDB_MSSQL_AZURE_SQL_DATABASE, "MSAZURESQL"},
    {UVDB_DB_MSSQL,                     UVDB_MSSQL_AZURE_SYNAPSE,      "MSAZURESQLWAREHOUSE"},
    {UVDB_DB_POSTGRESQL,                UVDB_POSTGRESQL_POSTGRES_PRO,  "POSTGRESPRO"},
    {UVDB_DB_POSTGRESQL,                kAnySubType,                   "POSTGRE"},
    {UVDB_DB_DB2,                       kAnySubType,                   "DB2"},
    {UVDB_DB_ORA,                       kAnySubType,                   "ORACLE"},
    {UVDB_DB_SYBASE,                    kAnySubType,                   "SYBASE"},
    {UVDB_DB_ENTERPRISEDB,              kAnySubType,                   "ENTERPRISEDB"},
    {UVDB_DB_SPLICE_MACHINE,            kAnySubType,                   "SPLICE_MACHINE"},
    {UVDB_DB_VERTICA_ANALYTIC_DATABASE, kAnySubType,                   "VERTICA_ANALYTIC_DATABASE"},
    {UVDB_DB_4DSQLSERVER,               kAnySubType,                   "4DSQLSERVER"},
    {UVDB_DB_4GL_PROGRESS,              kAnySubType,                   "PROGRESS4GL"},
    {UVDB_DB_PASCAL_FRM,                kAnySubType,                   "PASCAL"},
};
// clang-format on
static_assert(std::size(kIniSections) == 14);

const UVDB::DbinfoHelper& Catalogue()
{
    return UVDB::DbinfoHelper::getInstance();
}

} // namespace

DB_VERSION_INFO MakeDbVersionInfo(std::uint64_t db, std::uint64_t subType, std::uint64_t majorVersion,
                                  std::uint64_t minorVersion)
{
    DB_VERSION_INFO version;
    version.db = db;
    version.subType = subType;
    version.major = majorVersion;
    version.minor = minorVersion;
    return version;
}

const DB_INFO_ROW& GetDbInfo(DB_VERSION_INFO version)
{
    return Catalogue().findDbInfo(version);
}

std::int64_t GetDbResourceIdx(std::uint64_t db, std::uint64_t subType)
{
    return Catalogue().findResourceIndex(db, subType);
}

Uve::U8CString GetDbTypedName(std::uint64_t db, std::uint64_t subType, std::uint64_t majorVersion,
                              std::uint64_t minorVersion, DbNameType nameType)
{
    const DB_INFO_ROW& row = GetDbInfo(MakeDbVersionInfo(db, subType, majorVersion, minorVersion));
    switch (nameType) {
    case dbShortName:
        return row.shortName;
    case dbFullName:
        return row.fullName;
    case dbWzdName:
        return row.wzdName;
    case dbVisibleName:
        return row.visibleName;
    }
    return {};
}

Uve::U8CString GetDbDefaultExtension(std::uint64_t db, std::uint64_t subType, std::uint64_t majorVersion,
                                     std::uint64_t minorVersion)
{
    return GetDbDefaultExtension(MakeDbVersionInfo(db, subType, majorVersion, minorVersion));
}

Uve::U8CString GetDbDefaultExtension(DB_VERSION_INFO version)
{
    return GetDbInfo(version).defaultExtension;
}

Uve::U8CString GetDbWzdName(DB_VERSION_INFO version)
{
    return GetDbInfo(version).wzdName;
}

Uve::U8CString GetDbVisibleName(DB_VERSION_INFO version)
{
    return GetDbInfo(version).visibleName;
}

Uve::U8CString GetDbShortName(DB_VERSION_INFO version)
{
    return GetDbInfo(version).shortName;
}

Uve::U8CString GetDbFullName(DB_VERSION_INFO version)
{
    return GetDbInfo(version).fullName;
}

const DB_INFO_ROW& GetFullNameDbInfo(const Uve::U8CString& fullName, bool)
{
    return Catalogue().findDbInfoIgnoreCase(dbInfoFullName, fullName.c_str());
}

std::size_t GetDbIndexCount()
{
    return Catalogue().getRowCount();
}

std::int64_t GetDbIndexByName(const Uve::U8CString& name)
{
    return Catalogue().findResourceIndexAnyNameIgnoreCase(name.c_str(), true);
}

const DB_INFO_ROW& GetDbIndexInfo(std::uint64_t resourceIndex)
{
    return Catalogue().findDbInfo(static_cast<int>(resourceIndex));
}

Uve::U8CString GetDbInfoXml(DB_VERSION_INFO& source, DB_VERSION_INFO& target)
{
    std::string xml{"<DB>"};
    xml += GetDbInfoXmlBase(source, "SourceDataBase").c_str();
    xml += GetDbInfoXmlBase(target, "TargetDataBase").c_str();
    xml += "</DB>";
    return xml.c_str();
}

Uve::U8CString GetDbInfoXmlBase(DB_VERSION_INFO& version, Uve::U8CString tag)
{
    const DB_INFO_ROW& primary = GetDbInfo(version);
    const DB_INFO_ROW& secondary =
        GetDbInfo(MakeDbVersionInfo(version.db2, version.subType2, version.major2, version.minor2));

    std::string xml;
    const auto append = [&](const char* behindTag, const Uve::U8CString& value) {
        xml.append("<").append(tag.c_str()).append(behindTag).append(value.c_str()).append("'/>");
    };
    append(" value='", primary.shortName);
    append("Full value='", primary.fullName);
    append("2 value='", secondary.shortName);
    append("Full2 value='", secondary.fullName);
    return xml.c_str();
}

Uve::U8CString GetIniSectionName(const DB_VERSION_INFO& version)
{
    const auto line = std::ranges::find_if(kIniSections, [&](const SIniSection& candidate) {
        return candidate.db == version.db &&
               (candidate.subType == kAnySubType || candidate.subType == version.subType);
    });
    return line != std::end(kIniSections) ? Uve::U8CString(line->section) : GetDbShortName(version);
}

const char* GetParserModuleName(DB_VERSION_INFO version)
{
    return UVDBGetParserNameByKind(version.db, version.subType);
}
