#include "Tools/uvtypes/Databases.h"

#include "Catalogue/DataTypes/DataTypeRegistry.h"
#include "Catalogue/UVDBDatabaseKinds.h"
#include "Catalogue/UVDBHelpers.h"
#include "Catalogue/UVDBTypeMapping.h"
#include "Tools/Support/ToolDatabase.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <utility>

namespace uvtypes {

namespace {

constexpr std::uint64_t kNone = UVDB_NO_VERSION_WORD;

struct SRelative
{
    std::uint64_t db;
    std::uint64_t ownDb; // where its types are told
    std::uint64_t ownSubType;
};

// clang-format off
constexpr SRelative kRelatives[] = {
//   database                           types of
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

// The name of kind and subtype. Rows of the catalogue that answer for a whole kind don't name its subtypes.
std::string KindName(DB_VERSION_INFO version)
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

SDatabase Read(std::string_view text)
{
    SDatabase database;
    database.version = ReadDatabaseText(text, enLoneNumber::Version);
    DB_VERSION_INFO& version = database.version;
    database.name = KindName(version);
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

} // namespace

SDatabase ReadSource(std::string_view text)
{
    SDatabase database = Read(text);
    if (GetDBMSDataTypeParamsList(database.version).empty())
        throw CDatabaseError("no types of " + database.name +
                             " are known ('uvtypes databases' lists whose are)");
    return database;
}

SDatabase ReadTarget(std::string_view text)
{
    SDatabase database = Read(text);
    if (static_cast<std::uint64_t>(SheafOf(database).db) != database.version.db)
        throw CDatabaseError(database.name +
                             " can't be a target: nobody knows what it calls the types of others "
                             "('uvtypes databases' lists the targets)");
    return database;
}

const SMappingSheafKey& SheafOf(const SDatabase& target)
{
    return kMappingSheaves[static_cast<std::size_t>(GetIndex(target.version))];
}

std::string SheafName(const SMappingSheafKey& sheaf)
{
    const auto version = MakeDbVersionInfo(static_cast<std::uint64_t>(sheaf.db),
                                           static_cast<std::uint64_t>(sheaf.subType), kNone, kNone);
    std::string name = KindName(version);
    if (sheaf.major != 0 || sheaf.minor != 0)
        name += ' ' + std::to_string(sheaf.major) + '.' + std::to_string(sheaf.minor);
    return name;
}

std::vector<SKnownDatabase> KnownDatabases()
{
    // By kind, then by subtype, none (all ones, taken as -1) first.
    std::map<std::pair<std::int64_t, std::int64_t>, SKnownDatabase> known;
    for (const SDataTypeTableKey& key : kDataTypeTables)
        known[{key.db, key.subType}].rowCount = key.table->rows.size();
    for (const SMappingSheafKey& key : kMappingSheaves)
        known[{key.db, key.subType}].versions.push_back(
            key.major == 0 && key.minor == 0 ? "any"
                                             : std::to_string(key.major) + '.' + std::to_string(key.minor));
    std::vector<SKnownDatabase> databases;
    for (auto& [key, database] : known) {
        database.version = MakeDbVersionInfo(static_cast<std::uint64_t>(key.first),
                                             static_cast<std::uint64_t>(key.second), kNone, kNone);
        database.name = KindName(database.version);
        // A subtype without a table of its own has the kind's.
        database.rowCount = GetDBMSDataTypeParamsList(database.version).size();
        databases.push_back(std::move(database));
    }
    return databases;
}

} // namespace uvtypes
