#include "Tools/uvtypes/TypeMap.h"

#include "Catalogue/Types/UVDBDataTypes.h"
#include "Tools/Support/ToolDatabase.h"

#include <algorithm>
#include <unordered_set>

namespace uvtypes {

namespace {

std::vector<std::string> NamesOfTable(DB_VERSION_INFO version)
{
    std::vector<std::string> names;
    for (const STypeNameSpan& span : SetDBMSDataTypeParamsList(version).names)
        names.emplace_back(span.name);
    return names;
}

std::string WithoutPairs(std::string name)
{
    for (std::size_t at = name.find("()"); at != std::string::npos; at = name.find("()"))
        name.erase(at, 2);
    return name;
}

} // namespace

bool MapType(DB_VERSION_INFO from, DB_VERSION_INFO to, std::string_view text, bool isIdentity,
             SMappedType& mapped, std::string& error, STypeTrail* trail)
{
    STypeText& type = mapped.source;
    type = ReadTypeText(from, text);
    if (type.error.GetLength() > 0) {
        error = type.error.c_str();
        return false;
    }
    if (!type.isKnown) {
        error = "there is no type '" + std::string(type.name.c_str()) + "'" +
                NearNamesText(NearNames(type.name.c_str(), NamesOfTable(from)));
        return false;
    }
    mapped.written = type.numbers;
    CompleteTypeNumbers(from, type);

    SSourceType source = SourceTypeOf(from, type);
    source.identity = source.identity || isIdentity;
    mapped.target = ConvertDataType(from, to, source, trail);
    return true;
}

std::vector<std::string> TypesOfTable(DB_VERSION_INFO version)
{
    std::vector<std::string> types;
    std::unordered_set<std::string> seen;
    const auto add = [&](std::string text) {
        const STypeText type = ReadTypeText(version, text);
        if (type.error.GetLength() == 0 && type.isKnown && seen.insert(text).second)
            types.push_back(std::move(text));
    };
    const std::span<const SDataTypeParams> rows = GetDBMSDataTypeParamsList(version);
    for (const SDataTypeParams& row : rows) {
        const auto format = [&](long scale) {
            return std::string(
                FormatDBMSDataType(
                    version, row.name, static_cast<long>(row.columnSize), static_cast<long>(row.columnSize),
                    static_cast<long>(row.leadingPrecision), static_cast<long>(row.leadingPrecision), scale,
                    static_cast<long>(row.minScale), static_cast<long>(row.maxScale), row.createParams)
                    .c_str());
        };
        if (row.columnSizePurpose == UVDB_SIZE_IS_PRECISION && row.isScaleValid) {
            // Once all digits before the point, once as many as possible after it.
            add(format(0));
            add(format(static_cast<long>(std::min(row.maxScale, static_cast<std::int64_t>(row.columnSize)))));
        } else {
            add(format(static_cast<long>(row.maxScale)));
        }
    }
    for (const SDataTypeParams& row : rows)
        add(WithoutPairs(row.name));
    return types;
}

} // namespace uvtypes
