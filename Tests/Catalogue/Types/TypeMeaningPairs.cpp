#include "Tests/Catalogue/Types/TypeMeaningPairs.h"

#include "Catalogue/Types/DataTypes/DataTypeRegistry.h"
#include "Catalogue/Types/UVDBDataTypes.h"
#include "Catalogue/Types/UVDBTypeConverting.h"
#include "Catalogue/Types/UVDBTypeMapping.h"
#include "Catalogue/Types/UVDBTypeText.h"
#include "Catalogue/UVDBDatabaseKinds.h"
#include "Catalogue/UVDBHelpers.h"

#include <algorithm>
#include <string_view>
#include <tuple>
#include <utility>

namespace TypeMeaning {

namespace {

std::vector<unsigned long> EdgeSizes(const SDataTypeParams& row)
{
    if ((!TakesParameter(row, "LENGTH") && !TakesParameter(row, "PRECISION")) || row.isLeadingPrecisionValid)
        return {row.columnSize};
    return {0, 1, row.columnSize, row.columnSize + 1};
}

std::vector<long> EdgeScales(const SDataTypeParams& row, unsigned long size)
{
    if (!row.isScaleValid)
        return {0};
    if (row.columnSizePurpose == UVDB_SIZE_IS_LENGTH || !TakesParameter(row, "SCALE"))
        return {row.minScale, row.maxScale};
    if (size == 0)
        return {0};
    const auto digits = static_cast<long>(std::min<unsigned long>(size, row.columnSize));
    std::vector<long> scales{std::max<long>(row.minScale, 0), std::min<long>(row.maxScale, digits)};
    if (row.minScale < 0)
        scales.push_back(-1);
    return scales;
}

// Names of languages that have small letters are known to those alone who have the table's row: their last.
bool IsFoundByName(DB_VERSION_INFO version, const char* name)
{
    return NormalizeTypeName(name, version) == name;
}

SSourceCase MakeCase(DB_VERSION_INFO version, const SDataTypeTable& table, const char* name,
                     unsigned long size, long scale)
{
    const bool isFound = IsFoundByName(version, name);
    const SDataTypeParams& row =
        isFound ? *FindDBMSDataTypeRow(version, name, size, scale) : table.rows[table.Find(name)->last];
    const auto leading = static_cast<long>(row.leadingPrecision);
    return {.version = version,
            .name = name,
            .uvdbType = isFound ? -1 : static_cast<long>(row.uvdbType),
            .size = size,
            .scale = scale,
            .leadingPrecision = leading,
            .isPrecision = row.columnSizePurpose == UVDB_SIZE_IS_PRECISION,
            .isSizeKnown = size != 0 || row.columnSize == 0,
            .capacity = CapacityOf(row, size, scale, leading),
            .rowType = static_cast<long>(row.uvdbType)};
}

void AddTable(DB_VERSION_INFO version, const SDataTypeTable& table, std::vector<SSourceCase>& cases)
{
    std::set<std::tuple<std::string, unsigned long, long>> seen;
    for (const SDataTypeParams& row : table.rows) {
        if (!IsFoundByName(version, row.name) && &row != &table.rows[table.Find(row.name)->last])
            continue;
        for (const unsigned long size : EdgeSizes(row)) {
            for (const long scale : EdgeScales(row, size)) {
                if (seen.emplace(row.name, size, scale).second)
                    cases.push_back(MakeCase(version, table, row.name, size, scale));
            }
        }
    }
}

// SQL Server's types whose size isn't a number.
SSourceCase Unlimited(const char* name, enTypeFamily family, std::uint64_t length)
{
    return {.version = {.db = UVDB_DB_MSSQL}, .name = name, .capacity = {.family = family, .length = length}};
}

// Decimals without numbers that hold whatever comes.
struct SOpenNumber
{
    std::uint64_t db;
    std::string_view name;
    long digits;
};

constexpr SOpenNumber kOpenNumbers[] = {
    {UVDB_DB_ORA, "NUMBER", 38},
    {UVDB_DB_TERADATA, "NUMBER", 38},
};

// Programs of FoxPro have no types of their own: they use SQL Server's.
DB_VERSION_INFO ReadersVersion(const SMappingSheafKey& key)
{
    return key.db == UVDB_DB_FOXPRO_PROGRAMS ? DB_VERSION_INFO{.db = UVDB_DB_MSSQL} : key.Version();
}

// The row of a name that stands for the internal type, its last one if none does.
const SDataTypeParams& RowOfType(const SDataTypeTable& table, const std::string& name, long uvdbType)
{
    const STypeNameSpan& span = *table.Find(name);
    const auto rows = table.rows.subspan(span.first, span.last - span.first + 1);
    const auto found = std::ranges::find(rows, uvdbType, &SDataTypeParams::uvdbType);
    return found != rows.end() ? *found : rows.back();
}

} // namespace

std::string Describe(const SSourceCase& source)
{
    std::string text = std::string(GetDbFullName(source.version)) + ' ' + source.name;
    text += " size " + std::to_string(source.size) + " scale " + std::to_string(source.scale);
    return text;
}

std::vector<SSourceCase> CollectSources()
{
    std::vector<SSourceCase> cases;
    std::set<const void*> seen;
    for (const SDataTypeTableKey& key : kDataTypeTables) {
        if (seen.insert(key.table).second)
            AddTable(key.Version(), *key.table, cases);
    }
    cases.push_back(Unlimited("VARCHAR(MAX)", enTypeFamily::Text, 2147483647));
    cases.push_back(Unlimited("NVARCHAR(MAX)", enTypeFamily::NationalText, 1073741823));
    cases.push_back(Unlimited("VARBINARY(MAX)", enTypeFamily::Binary, 2147483647));
    return cases;
}

std::string Convert(const SSourceCase& source, DB_VERSION_INFO target)
{
    long uvdbType = source.uvdbType;
    return GetDefDBMSToDBMSConverting(
        source.version, target, source.name.c_str(), uvdbType, source.isPrecision ? 0 : source.size,
        source.isPrecision ? source.size : 0, source.leadingPrecision, source.scale, false, true);
}

CTarget::CTarget(const SMappingSheafKey& key)
    : m_Key(key), m_Version(key.Version()), m_Reader(ReadersVersion(key))
{
    for (const SDataTypeParams& row : GetDBMSDataTypeParamsList(m_Reader))
        AddRow(row);
}

std::string CTarget::Name() const
{
    return std::string(GetDbFullName(m_Version)) + ' ' + std::to_string(m_Key.db) + ' ' +
           std::to_string(m_Key.major) + '.' + std::to_string(m_Key.minor) +
           (m_Key.subType == UVDB_NO_VERSION_WORD ? "" : " subtype " + std::to_string(m_Key.subType));
}

const STypeCapacity& CTarget::Read(const std::string& text)
{
    const auto [found, isNew] = m_Read.try_emplace(text);
    if (isNew)
        found->second = ReadNew(text);
    return found->second;
}

void CTarget::AddRow(const SDataTypeParams& row)
{
    const STypeCapacity capacity = CapacityOf(row, 0, static_cast<long>(row.maxScale), 0);
    m_Families.insert(capacity.family);
    m_Families.insert(FamilyOf(row.uvdbType));
    if (capacity.family == enTypeFamily::NationalText)
        m_LongestNational = std::max(m_LongestNational, capacity.length);
    m_HasLongNational |= IsLongNational(row.uvdbType);
    if (capacity.family == enTypeFamily::Time)
        m_LongestTime = std::max(m_LongestTime, capacity.secondDigits);
}

STypeCapacity CTarget::ReadNew(const std::string& text) const
{
    STypeText type = ReadTypeText(m_Reader, text);
    if (!type.error.empty() || !type.isKnown)
        return {};
    const bool isWritten = type.numbers.hasSize || type.numbers.hasScale;
    for (const SOpenNumber& open : kOpenNumbers) {
        if (!isWritten && open.db == m_Version.db && open.name == type.name)
            return {.family = enTypeFamily::DecimalFloat, .significand = open.digits};
    }
    CompleteTypeNumbers(m_Reader, type);
    const SDataTypeParams& row =
        type.uvdbType == -1
            ? *FindDBMSDataTypeRow(m_Reader, type.name.c_str(), type.numbers.size, type.numbers.scale)
            : RowOfType(SetDBMSDataTypeParamsList(m_Reader), type.name, type.uvdbType);
    if (m_Key.db == UVDB_DB_FOXPRO_PROGRAMS) {
        // Written without numbers: the largest of each.
        const bool isNumber = row.columnSizePurpose == UVDB_SIZE_IS_PRECISION;
        STypeCapacity capacity =
            CapacityOf(row, 0, isNumber ? kAnyScale : static_cast<long>(row.maxScale), 0);
        if (type.name.ends_with("(MAX)"))
            capacity.length = type.numbers.size;
        return capacity;
    }
    const bool isFloating = row.isScaleValid && row.minScale < row.maxScale &&
                            !TakesParameter(row, "SCALE") && row.columnSizePurpose == UVDB_SIZE_IS_PRECISION;
    STypeCapacity capacity = CapacityOf(row, type.numbers.size, isFloating ? kAnyScale : type.numbers.scale,
                                        type.numbers.leadingPrecision);
    if (type.name.ends_with("(MAX)"))
        capacity.length = type.numbers.size;
    return capacity;
}

std::vector<CTarget> CollectTargets()
{
    std::vector<CTarget> targets;
    std::set<std::pair<const void*, const void*>> seen;
    for (const SMappingSheafKey& key : kMappingSheaves) {
        const auto rows = GetDBMSDataTypeParamsList(key.Version());
        if (seen.emplace(key.sheaf, rows.data()).second)
            targets.emplace_back(key);
    }
    return targets;
}

std::string SheafName(const SMappingSheaf& sheaf)
{
    const auto key = std::ranges::find(kMappingSheaves, &sheaf, &SMappingSheafKey::sheaf);
    return key != kMappingSheaves.end() ? CTarget(*key).Name() : "no sheaf";
}

} // namespace TypeMeaning
