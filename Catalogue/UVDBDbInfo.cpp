#include "Catalogue/UVDBDbInfo.h"

#include "Catalogue/UVDBCatalogueRows.h"
#include "Catalogue/UVDBNameMatcher.h"

#include <algorithm>
#include <array>
#include <string>

namespace UVDB {

namespace {

DB_INFO_ROW MakeRow(const SDbInfoLiteral& literal)
{
    DB_INFO_ROW row;
    row.dbVersion.db = literal.db;
    row.dbVersion.subType = literal.keySubType;
    row.resourceIndex = literal.resourceIndex;
    row.shortName = literal.shortName;
    row.fullName = literal.fullName;
    row.wzdName = literal.wzdName;
    row.visibleName = literal.visibleName;
    row.defaultExtension = literal.defaultExtension;
    row.condition = Ver(literal.db, literal.conditionSubType, "*-*", false);
    return row;
}

// Null for a number that is no category.
Uve::U8CString DB_INFO::*NameColumn(DbInfoNameCategory category)
{
    switch (category) {
    case dbInfoShortName:
        return &DB_INFO::shortName;
    case dbInfoFullName:
        return &DB_INFO::fullName;
    case dbInfoWzdName:
        return &DB_INFO::wzdName;
    case dbInfoVisibleName:
        return &DB_INFO::visibleName;
    }
    return nullptr;
}

template <class Condition>
const DB_INFO_ROW& FirstRow(const std::vector<DB_INFO_ROW>& rows, const DB_INFO_ROW& unknownRow,
                            Condition fits)
{
    const auto hit = std::find_if(rows.begin(), rows.end(), fits);
    return hit == rows.end() ? unknownRow : *hit;
}

const DB_INFO_ROW& FirstRowNamed(const std::vector<DB_INFO_ROW>& rows, const DB_INFO_ROW& unknownRow,
                                 DbInfoNameCategory category, const CNameMatcher& matcher)
{
    const auto column = NameColumn(category);
    if (!column)
        return unknownRow;
    return FirstRow(rows, unknownRow, [&](const DB_INFO_ROW& row) { return matcher.Matches(row.*column); });
}

} // namespace

CDbInfo::CDbInfo()
{
    m_Rows.reserve(kCatalogueRows.size());
    for (const SDbInfoLiteral& literal : kCatalogueRows)
        m_Rows.push_back(MakeRow(literal));

    m_UnknownRow.resourceIndex = kUnknownResourceIndex;
    m_UnknownRow.shortName = "UNKDB";
    m_UnknownRow.fullName = "UNKNOWN_DB";
    m_UnknownRow.wzdName = "UNKNOWN_DB";
}

const DB_INFO_ROW& CDbInfo::findDbInfo(DB_VERSION_INFO version) const
{
    return FirstRow(m_Rows, m_UnknownRow, [&](const DB_INFO_ROW& row) {
        return row.condition.IsValid(version.db, version.subType, version.major, version.minor);
    });
}

const DB_INFO_ROW& CDbInfo::findDbInfo(int resourceIndex) const
{
    return FirstRow(m_Rows, m_UnknownRow,
                    [&](const DB_INFO_ROW& row) { return row.resourceIndex == resourceIndex; });
}

const DB_INFO_ROW& CDbInfo::findDbInfo(DbInfoNameCategory category, const char* name) const
{
    return FirstRowNamed(m_Rows, m_UnknownRow, category, CNameMatcher(name, CNameMatcher::exactCase));
}

const DB_INFO_ROW& CDbInfo::findDbInfoIgnoreCase(DbInfoNameCategory category, const char* name) const
{
    return FirstRowNamed(m_Rows, m_UnknownRow, category, CNameMatcher(name, CNameMatcher::ignoreCase));
}

const DB_INFO_ROW& CDbInfo::findDbInfoAnyNameIgnoreCase(const char* name, bool skipWizardName) const
{
    const CNameMatcher matcher(name, CNameMatcher::ignoreCase);
    return FirstRow(m_Rows, m_UnknownRow, [&](const DB_INFO_ROW& row) {
        return matcher.Matches(row.fullName) || matcher.Matches(row.shortName) ||
               matcher.Matches(row.visibleName) || (!skipWizardName && matcher.Matches(row.wzdName));
    });
}

std::int64_t CDbInfo::findResourceIndex(std::uint64_t db, std::uint64_t subType) const
{
    const auto hit = std::find_if(m_Rows.begin(), m_Rows.end(), [&](const DB_INFO_ROW& row) {
        return row.dbVersion.db == db && row.dbVersion.subType == subType;
    });
    return hit == m_Rows.end() ? -1 : hit->resourceIndex;
}

std::int64_t CDbInfo::findResourceIndexAnyNameIgnoreCase(const char* name, bool skipWizardName) const
{
    const DB_INFO_ROW& row = findDbInfoAnyNameIgnoreCase(name, skipWizardName);
    return isUnknownDbInfo(row) ? -1 : row.resourceIndex;
}

bool CDbInfo::containsName(DbInfoNameCategory category, const char* name) const
{
    return !isUnknownDbInfo(findDbInfo(category, name));
}

bool CDbInfo::containsNameIgnoreCase(DbInfoNameCategory category, const char* name) const
{
    return !isUnknownDbInfo(findDbInfoIgnoreCase(category, name));
}

bool CDbInfo::containsAnyNameIgnoreCase(const char* name) const
{
    return !isUnknownDbInfo(findDbInfoAnyNameIgnoreCase(name, false));
}

bool CDbInfo::isUnknownDbInfo(const DB_INFO_ROW& row) const
{
    return row.resourceIndex == kUnknownResourceIndex;
}

bool CDbInfo::IsNonExistentDirection(const char* name) const
{
    static constexpr std::array directions{"unknown", "sybase", "enterprisedb"};
    const CNameMatcher matcher(name, CNameMatcher::ignoreCase);
    return std::any_of(directions.begin(), directions.end(),
                       [&](const char* direction) { return matcher.Matches(direction); });
}

std::map<int, Uve::U8CString> CDbInfo::getIndexesFullnames() const
{
    std::map<int, Uve::U8CString> names;
    for (const DB_INFO_ROW& row : m_Rows) {
        if (!IsNonExistentDirection(row.fullName.c_str()))
            names[static_cast<int>(row.resourceIndex)] = row.fullName;
    }
    return names;
}

DbinfoHelper& DbinfoHelper::getInstance()
{
    static DbinfoHelper instance;
    return instance;
}

bool DbinfoHelper::isSupportedDbms(std::string_view dbmsName) const
{
    return containsAnyNameIgnoreCase(std::string(dbmsName).c_str());
}

} // namespace UVDB
