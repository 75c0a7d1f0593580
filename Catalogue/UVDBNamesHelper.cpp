#include "Catalogue/UVDBNamesHelper.h"

#include "Catalogue/UVDBKindLists.h"
#include "Interfaces/DB_VERSION_INFO.h"

#include <algorithm>
#include <iterator>
#include <span>
#include <utility>

namespace UVDB {

namespace {

constexpr std::pair<std::string_view, std::uint64_t> kEnumerators[] = {
#define UVDB_DATABASE_KIND(name, number) {#name, number},
#include "Catalogue/UVDBDatabaseKinds.inc"
#undef UVDB_DATABASE_KIND
};
static_assert(std::size(kEnumerators) == 129);

constexpr std::uint64_t kHighestKind = 130;

bool Contains(std::span<const std::uint64_t> kinds, std::uint64_t db)
{
    return std::find(kinds.begin(), kinds.end(), db) != kinds.end();
}

} // namespace

NamesHelper::NamesHelper() : m_Kinds(std::begin(kEnumerators), std::end(kEnumerators)) {}

NamesHelper& NamesHelper::getInstance()
{
    static NamesHelper instance;
    return instance;
}

std::uint64_t NamesHelper::GetDBType(const char* enumeratorName) const
{
    const auto kind = enumeratorName ? m_Kinds.find(enumeratorName) : m_Kinds.end();
    return kind == m_Kinds.end() ? UVDB_UNKNOWN_DATABASE_KIND : kind->second;
}

bool NamesHelper::isDatabase(std::uint64_t db) const
{
    return Contains(kDatabaseKinds, db);
}

bool NamesHelper::isApp(std::uint64_t db) const
{
    return Contains(kApplicationKinds, db);
}

bool NamesHelper::isNeedStatisticsCollection(std::uint64_t db) const
{
    return Contains(kStatisticsKinds, db);
}

bool NamesHelper::isValid(std::uint64_t db) const
{
    return db <= kHighestKind;
}

} // namespace UVDB
