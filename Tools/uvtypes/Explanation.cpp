#include "Tools/uvtypes/Explanation.h"

#include "Catalogue/Types/TypeMapping/MappingRegistry.h"
#include "Catalogue/Types/UVDBDataTypes.h"
#include "Catalogue/Types/UVDBTypeMapping.h"
#include "Tools/uvtypes/Databases.h"

#include <algorithm>

namespace uvtypes {

namespace {

std::string ScaleRange(std::int64_t minScale, std::int64_t maxScale)
{
    return minScale == maxScale ? "scale " + std::to_string(minScale)
                                : "scale " + std::to_string(minScale) + " to " + std::to_string(maxScale);
}

std::string Limits(const SDataTypeParams& row)
{
    std::string text;
    if (row.columnSize > 0)
        text += std::string(row.columnSizePurpose == UVDB_SIZE_IS_PRECISION ? ", precision" : ", length") +
                " up to " + std::to_string(row.columnSize);
    if (row.isScaleValid)
        text += ", " + ScaleRange(row.minScale, row.maxScale);
    if (row.isLeadingPrecisionValid)
        text += ", leading precision up to " + std::to_string(row.leadingPrecision);
    return text;
}

std::string NumbersText(const STypeNumbers& written, const STypeNumbers& numbers)
{
    const auto number = [](const char* word, bool isTold, auto value, std::string& text) {
        if (!isTold && value == 0)
            return;
        text += std::string(", ") + word + ' ' + std::to_string(value);
        if (!isTold)
            text += " (assumed)";
    };
    std::string text;
    number("size", written.hasSize, numbers.size, text);
    number("scale", written.hasScale, numbers.scale, text);
    number("leading precision", written.hasLeadingPrecision, numbers.leadingPrecision, text);
    return text;
}

// "row 45", counted from 1, of the rows that it is one of.
template <class Row>
std::string RowNumber(std::span<const Row> rows, const Row* row)
{
    return row >= rows.data() && row < rows.data() + rows.size()
               ? "row " + std::to_string(row - rows.data() + 1)
               : "a row";
}

std::string RungText(const SToolDatabase& database, const SDataTypeParams& row)
{
    std::string text = RowNumber(GetDBMSDataTypeParamsList(database.version), &row) + " of " + database.name +
                       ": " + row.name + Limits(row) + " is " +
                       InternalTypeText(static_cast<long>(row.uvdbType));
    UVDB::CArray<const SDataTypeParams*> rungs;
    DBMSToUVDBDataTypeRange(database.version, row.name, rungs);
    if (rungs.size() > 1)
        text += rungs.back() == &row
                    ? "; the last row of the name, which takes what the others refuse"
                    : "; the first of the name's " + std::to_string(rungs.size()) + " rows that fits";
    return text;
}

// ", in place of YEAR", where another name of the table holds the values.
std::string StandInText(const STypeText& type)
{
    if (type.writtenName.empty())
        return {};
    std::string text = std::string(", in place of ") + type.writtenName.c_str();
    if (type.valueCount > 0)
        text += " of " + std::to_string(type.valueCount) + (type.valueCount == 1 ? " value" : " values");
    return text;
}

std::string SheafText(const SToolDatabase& to)
{
    const SMappingSheafKey& sheaf = SheafOf(to);
    const auto count = std::count_if(kMappingSheaves.begin(), kMappingSheaves.end(),
                                     [&](const SMappingSheafKey& key) { return key.db == sheaf.db; });
    std::string text = SheafName(sheaf);
    if (count > 1)
        text += ", one of " + std::to_string(count) + " for this kind of database";
    return text;
}

std::string TargetRowText(const SToolDatabase& to, const STypeTrail& trail)
{
    const SUVDBToDBMSDataType& row = *trail.targetRow;
    std::string text = RowNumber(GetUVDBToDBMSDataTypeList(to.version), &row) +
                       " of the sheaf: " + InternalTypeText(static_cast<long>(row.uvdbType));
    text += " up to " + std::to_string(row.columnSize);
    if (row.minScale != 0 || row.maxScale != 0)
        text += ", " + ScaleRange(row.minScale, row.maxScale);
    text += std::string(" is ") + row.name;
    const auto last = GetUVDBToDBMSDataTypeMapLast(to.version).find(static_cast<long>(row.uvdbType));
    const auto first = GetUVDBToDBMSDataTypeMapFirst(to.version).find(static_cast<long>(row.uvdbType));
    if (first && last && *first != *last)
        text += &GetUVDBToDBMSDataTypeList(to.version)[*last] == &row
                    ? "; the type's last row, which takes what the others refuse"
                    : "; the first of the type's " + std::to_string(*last - *first + 1) + " rows that fits";
    return text;
}

} // namespace

std::string InternalTypeText(long uvdbType)
{
    if (GetUVDBDataTypeParams(uvdbType) == nullptr)
        return "unknown";
    return std::string(GetUVDBDataTypeName(uvdbType)) + " (" + std::to_string(uvdbType) + ')';
}

ToolDetails Explain(const SToolDatabase& from, const SToolDatabase& to, const SMappedType& mapped,
                    const STypeTrail& trail)
{
    ToolDetails details;
    details.emplace_back("read", mapped.source.name.c_str() +
                                     NumbersText(mapped.written, mapped.source.numbers) +
                                     StandInText(mapped.source));
    if (trail.sourceRow != nullptr)
        details.emplace_back("source", RungText(from, *trail.sourceRow));
    for (const enTypeDecision decision : trail.decisions)
        // That a row decided is told by the row.
        if (decision != UVDB_TYPE_FROM_ROW)
            details.emplace_back(decision == UVDB_TYPE_AS_VARCHAR ? "fallback" : "exception",
                                 TypeDecisionText(decision));
    if (trail.targetRow != nullptr) {
        details.emplace_back("sheaf", SheafText(to));
        details.emplace_back("target", TargetRowText(to, trail));
    }
    if (trail.formatRow != nullptr) {
        const SDataTypeParams& row = *trail.formatRow;
        const std::string words =
            *row.createParams == '\0' ? "no parameters" : std::string("parameters ") + row.createParams;
        details.emplace_back("written", RowNumber(GetDBMSDataTypeParamsList(to.version), &row) + " of " +
                                            to.name + ": " + row.name + Limits(row) + ", " + words);
    }
    return details;
}

} // namespace uvtypes
