#include "Tools/Support/ToolDatabaseNames.h"

#include "Catalogue/UVDBDatabaseKinds.h"
#include "Catalogue/UVDBHelpers.h"
#include "Tools/Support/ToolDatabase.h"

namespace {

constexpr std::uint64_t kNone = UVDB_NO_VERSION_WORD;

struct SRelative
{
    std::uint64_t db;
    std::uint64_t ownDb; // where its facts are told
    std::uint64_t ownSubType;
};

// clang-format off
constexpr SRelative kRelatives[] = {
//   database                           facts of
    {UVDB_DB_MSSQL_GOOGLE_CLOUD_SQL,      UVDB_DB_MSSQL,      kNone},
    {UVDB_DB_MS_AZURE_SQL,                UVDB_DB_MSSQL,      0},
    {UVDB_DB_MS_AZURE_SQL_WAREHOUSE,      UVDB_DB_MSSQL,      1},
    {UVDB_DB_MARIADB,                     UVDB_DB_MySQL,      1},
    {UVDB_DB_MySQL_AMAZON_AURORA,         UVDB_DB_MySQL,      kNone},
    {UVDB_DB_MySQL_GOOGLE_CLOUD_SQL,      UVDB_DB_MySQL,      kNone},
    {UVDB_DB_PostgreSQL_AMAZON_AURORA,    UVDB_DB_POSTGRESQL, kNone},
    {UVDB_DB_PostgreSQL_GOOGLE_CLOUD_SQL, UVDB_DB_POSTGRESQL, kNone},
    {UVDB_DB_PostgresPro,                 UVDB_DB_POSTGRESQL, 2},
};
// clang-format on

std::string VersionText(std::uint64_t majorVersion, std::uint64_t minorVersion)
{
    if (majorVersion == kNone)
        return {};
    std::string text = std::to_string(majorVersion);
    return minorVersion == kNone ? text : text + '.' + std::to_string(minorVersion);
}

} // namespace

// Rows of the catalogue that answer for a whole kind don't name its subtypes.
std::string DatabaseKindName(DB_VERSION_INFO version)
{
    const DB_INFO_ROW& row = GetDbInfo(version);
    const std::int64_t own = GetDbResourceIdx(version.db, version.subType);
    if (own >= 0)
        return GetDbIndexInfo(static_cast<std::uint64_t>(own)).visibleName.c_str();
    for (const SRelative& relative : kRelatives)
        if (relative.ownDb == version.db && relative.ownSubType == version.subType &&
            version.subType != kNone)
            return GetDbVisibleName(MakeDbVersionInfo(relative.db, kNone, kNone, kNone)).c_str();
    std::string name = row.visibleName.c_str();
    if (UVDB::DbinfoHelper::getInstance().isUnknownDbInfo(row))
        name = "database kind " + std::to_string(version.db);
    return version.subType == kNone ? name : name + " subtype " + std::to_string(version.subType);
}

SToolDatabase ReadToolDatabase(std::string_view text)
{
    SToolDatabase database;
    database.version = ReadDatabaseText(text, enLoneNumber::Version);
    DB_VERSION_INFO& version = database.version;
    database.name = DatabaseKindName(version);
    const std::string versionText = VersionText(version.major, version.minor);
    if (!versionText.empty())
        database.name += ' ' + versionText;
    for (const SRelative& relative : kRelatives) {
        if (relative.db != version.db)
            continue;
        version.db = relative.ownDb;
        if (version.subType == kNone)
            version.subType = relative.ownSubType;
        break;
    }
    return database;
}
