#include "Tools/uvtypes/Databases.h"

#include "Catalogue/Types/DataTypes/DataTypeRegistry.h"
#include "Catalogue/Types/UVDBTypeMapping.h"
#include "Catalogue/UVDBHelpers.h"
#include "Tools/Support/ToolDatabase.h"

#include <map>
#include <utility>

namespace uvtypes {

SToolDatabase ReadSource(std::string_view text)
{
    SToolDatabase database = ReadToolDatabase(text);
    if (GetDBMSDataTypeParamsList(database.version).empty())
        throw CDatabaseError("no types of " + database.name +
                             " are known ('uvtypes databases' lists whose are)");
    return database;
}

SToolDatabase ReadTarget(std::string_view text)
{
    SToolDatabase database = ReadToolDatabase(text);
    if (SheafOf(database).db != database.version.db)
        throw CDatabaseError(database.name +
                             " can't be a target: nobody knows what it calls the types of others "
                             "('uvtypes databases' lists the targets)");
    return database;
}

const SMappingSheafKey& SheafOf(const SToolDatabase& target)
{
    return kMappingSheaves[static_cast<std::size_t>(GetIndex(target.version))];
}

std::string SheafName(const SMappingSheafKey& sheaf)
{
    std::string name = DatabaseKindName({.db = sheaf.db, .subType = sheaf.subType});
    if (sheaf.major != 0 || sheaf.minor != 0)
        name += ' ' + std::to_string(sheaf.major) + '.' + std::to_string(sheaf.minor);
    return name;
}

std::vector<SKnownDatabase> KnownDatabases()
{
    // By kind, then by subtype, none (all ones, which wrap to 0) first.
    std::map<std::pair<std::uint64_t, std::uint64_t>, SKnownDatabase> known;
    const auto find = [&known](const auto& key) -> SKnownDatabase& {
        SKnownDatabase& database = known[{key.db, key.subType + 1}];
        database.version = {.db = key.db, .subType = key.subType};
        return database;
    };
    for (const SDataTypeTableKey& key : kDataTypeTables)
        find(key);
    for (const SMappingSheafKey& key : kMappingSheaves)
        find(key).versions.push_back(key.major == 0 && key.minor == 0
                                         ? "any"
                                         : std::to_string(key.major) + '.' + std::to_string(key.minor));
    std::vector<SKnownDatabase> databases;
    for (auto& [key, database] : known) {
        database.name = DatabaseKindName(database.version);
        // A subtype without a table of its own has the kind's.
        database.rowCount = GetDBMSDataTypeParamsList(database.version).size();
        databases.push_back(std::move(database));
    }
    return databases;
}

} // namespace uvtypes
