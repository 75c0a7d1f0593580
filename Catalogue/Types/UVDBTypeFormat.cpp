#include "Catalogue/Types/UVDBTypeFormat.h"

#include "Catalogue/Types/UVDBDataTypes.h"
#include "Catalogue/UVDBDatabaseKinds.h"
#include "UVEnvironment/UVECompat.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <string_view>
#include <utility>

using Uve::U8CString;

namespace {

void AppendNumber(std::string& text, long number)
{
    char digits[24];
    const auto [end, error] = std::to_chars(digits, digits + sizeof digits, number);
    text.append(digits, error == std::errc() ? end : digits);
}

std::string NumberText(long number)
{
    std::string text;
    AppendNumber(text, number);
    return text;
}

// What goes into a text, and how far.
struct SFormatParts
{
    long size = 0;
    long columnSize = 0;
    long leadingPrecision = 0;
    long rowLeadingPrecision = 0;
    long scale = 0;
    long minScale = 0;
    long maxScale = 0;
    std::string_view createParams;
};

bool HasLobUnits(std::uint64_t db, std::string_view name)
{
    return (db == UVDB_DB_DB2 || db == UVDB_DB_HIRDB || db == UVDB_DB_SAP_HANA) &&
           (name == "CLOB" || name == "BLOB" || name == "DBCLOB");
}

// Sizes of large objects are limits one below a power of two, hence the rounding up.
std::string LobLengthText(long length)
{
    struct SUnit
    {
        std::int64_t below;
        int shift;
        char letter;
    };
    constexpr SUnit kUnits[] = {{std::int64_t{1} << 20, 10, 'K'}, {std::int64_t{1} << 30, 20, 'M'}};

    const std::int64_t rounded = std::min<std::int64_t>(length, INT64_MAX - 1023) + 1023;
    SUnit unit{0, 30, 'G'};
    for (const SUnit& candidate : kUnits) {
        if (rounded < candidate.below) {
            unit = candidate;
            break;
        }
    }
    return NumberText(static_cast<long>(std::max<std::int64_t>(rounded >> unit.shift, 1))) + unit.letter;
}

bool IsMaxName(std::uint64_t db, const char* nameAsGiven)
{
    const auto is = [nameAsGiven](const char* name) { return Uve::Compat::stricmp(nameAsGiven, name) == 0; };
    return is("VARBINARY(MAX)") || (db == UVDB_DB_MSSQL && (is("VARCHAR(MAX)") || is("NVARCHAR(MAX)")));
}

// The words of `createParams` replaced by their numbers, everything else as it is.
std::string FillWords(std::string_view createParams, std::string_view length, std::string_view leading,
                      std::string_view scale)
{
    // A word that contains another one goes first.
    const std::pair<std::string_view, std::string_view> words[] = {
        {"MAX LENGTH", length}, {"LENGTH", length}, {"LEADING PRECISION", leading},
        {"PRECISION", length},  {"SCALE", scale},
    };
    std::string text;
    while (!createParams.empty()) {
        const auto* const word = std::ranges::find_if(words, [createParams](const auto& candidate) {
            return createParams.starts_with(candidate.first);
        });
        if (word == std::end(words)) {
            text += createParams.front();
            createParams.remove_prefix(1);
            continue;
        }
        text += word->second;
        createParams.remove_prefix(word->first.size());
    }
    return text;
}

// Takes the part before the next ";" off `params`.
std::string_view TakePart(std::string_view& params)
{
    const std::size_t end = std::min(params.find(';'), params.size());
    const std::string_view part = params.substr(0, end);
    params.remove_prefix(std::min(end + 1, params.size()));
    return part;
}

// Puts the parts into the pairs of `name`, the first one left over into a pair of its own.
std::string FillPairs(std::string_view name, std::string_view params)
{
    std::string text;
    text.reserve(name.size() + params.size() + 2);
    for (const char character : name) {
        if (character == ')')
            text += TakePart(params);
        text += character;
    }
    if (!params.empty())
        text.append(1, '(').append(TakePart(params)).append(1, ')');
    return text;
}

// PostgreSQL and its kin write unbounded numbers without parameters, and Oracle does.
bool StandsAlone(std::uint64_t db, std::string_view name, std::string_view params)
{
    if (params != "0,0")
        return false;
    if (db == UVDB_DB_ORA)
        return name == "NUMBER";
    return (db == UVDB_DB_POSTGRESQL || db == UVDB_DB_GREENPLUM) && name == "NUMERIC";
}

std::string ScaleText(std::uint64_t db, std::string_view name, const SFormatParts& parts,
                      long& leadingPrecision)
{
    long scale = std::max(std::min(parts.scale, parts.maxScale), parts.minScale);
    if (db == UVDB_DB_HIRDB && name == "TIMESTAMP") {
        // Its fractions are even: 2, 4 or 6 digits.
        scale += scale % 2 != 0 ? 1 : 0;
        if (scale == 0)
            scale = 6;
    }
    if (db == UVDB_DB_HIRDB && name == "DEC" && scale < 0)
        leadingPrecision += std::exchange(scale, 0);
    return NumberText(scale);
}

// `name`: a key of the tables. `nameAsGiven`: as the caller wrote it.
U8CString FormatParts(DB_VERSION_INFO version, U8CString name, const char* nameAsGiven, SFormatParts parts)
{
    const std::uint64_t db = version.db;
    if (parts.createParams.empty())
        return name;

    const long length = parts.size == -1 ? parts.columnSize : std::min(parts.size, parts.columnSize);
    const bool exceedsScale = parts.scale > parts.maxScale;
    if (db == UVDB_DB_POSTGRESQL && name == "TIMESTAMP() WITH TIME ZONE" && exceedsScale) {
        parts.createParams = {};
        name = "TIMESTAMP WITH TIME ZONE";
    }

    std::string lengthText = HasLobUnits(db, name) ? LobLengthText(length) : NumberText(length);
    if (IsMaxName(db, nameAsGiven))
        lengthText = "MAX";
    if (db == UVDB_DB_SYBASE && version.subType == UVDB_SYBASE_ADAPTIVE_SERVER_ENTERPRISE &&
        name == "FLOAT" && parts.leadingPrecision == 0)
        lengthText.clear();
    long leadingPrecision = std::min(parts.leadingPrecision, parts.rowLeadingPrecision);
    const std::string scaleText = ScaleText(db, name, parts, leadingPrecision);
    std::string params = FillWords(parts.createParams, lengthText, NumberText(leadingPrecision), scaleText);

    // Teradata's NUMERIC without a precision is marked by a number that no precision has.
    constexpr long kTeradataUnbounded = -128;
    if (db == UVDB_DB_TERADATA && name == "NUMERIC" && parts.size == kTeradataUnbounded)
        params = parts.scale == kTeradataUnbounded ? "*" : "*," + scaleText;
    if (StandsAlone(db, name, params) ||
        (db == UVDB_DB_POSTGRESQL && name == "BIT VARYING" && parts.columnSize == length))
        params.clear();
    if (db == UVDB_DB_TERADATA && name == "TIMESTAMP WITH TIME ZONE" && exceedsScale)
        return name;
    return U8CString(FillPairs(name, params));
}

// A period isn't in the tables; the digits of its inner type are known all the same.
U8CString FormatPeriod(const char* name, long scale)
{
    const std::string_view text = name;
    for (const std::string_view start : {"PERIOD(TIMESTAMP(", "PERIOD(TIME("}) {
        if (text.starts_with(start) && text.substr(start.size()).starts_with(')'))
            return U8CString(std::string(start) + NumberText(scale) + std::string(text.substr(start.size())));
    }
    return name;
}

bool HoldsSize(const SDataTypeParams& row, long size)
{
    return static_cast<std::int64_t>(row.columnSize) >= size;
}

// Without an internal type the rungs of all types compete, and the numbers alone choose among them, as they
// do when a type is read: NUMBER(10,2) would otherwise lose its digits to the rung of the bare NUMBER.
bool HoldsNumbers(const SDataTypeParams& row, long size, long scale)
{
    return HoldsSize(row, size) && (!row.isScaleValid || (row.minScale <= scale && scale <= row.maxScale));
}

// The words that stand for the row's own.
std::string_view CreateParamsOf(std::uint64_t db, std::string_view key, const SDataTypeParams& row,
                                long scale)
{
    // MySQL takes a fraction from 5.6 on, so a DATETIME that needs none is written without; SingleStore knows
    // six digits or none.
    if (key == "DATETIME" &&
        ((db == UVDB_DB_MySQL && scale != 0) || (db == UVDB_DB_SingleStoreDB && scale > 5)))
        return "SCALE";
    return row.createParams;
}

} // namespace

U8CString FormatDBMSDataType(DB_VERSION_INFO version, const char* name, long size, long scale,
                             long leadingPrecision, long uvdbType, const SDataTypeParams** usedRow)
{
    // Periods are no longer than this in digits of a second.
    constexpr long kMaxPeriodScale = 99;

    if (usedRow)
        *usedRow = nullptr;
    if (!name)
        return {};
    U8CString key = NormalizeTypeName(name, version);
    const SDataTypeTable& table = SetDBMSDataTypeParamsList(version);
    const STypeNameSpan* const span = table.Find(key);
    if (!span) {
        if (version.db == UVDB_DB_TERADATA && scale <= kMaxPeriodScale)
            return FormatPeriod(name, scale);
        return name;
    }

    // Where no rung holds the size, the last row of the name stands: it is the general meaning.
    const SDataTypeParams* row = &table.rows[span->last];
    for (const SDataTypeParams& candidate : table.rows.subspan(span->first, span->last - span->first + 1)) {
        const bool isTaken = uvdbType == -1
                                 ? HoldsNumbers(candidate, size, scale)
                                 : candidate.uvdbType == uvdbType &&
                                       (CreateParamsOf(version.db, key, candidate, scale).empty() ||
                                        HoldsSize(candidate, size));
        if (isTaken) {
            row = &candidate;
            break;
        }
    }
    if (usedRow)
        *usedRow = row;
    const std::string_view createParams = CreateParamsOf(version.db, key, *row, scale);
    return FormatParts(version, std::move(key), name,
                       {.size = size,
                        .columnSize = static_cast<long>(row->columnSize),
                        .leadingPrecision = leadingPrecision,
                        .rowLeadingPrecision = row->leadingPrecision,
                        .scale = scale,
                        .minScale = row->minScale,
                        .maxScale = row->maxScale,
                        .createParams = createParams});
}

U8CString FormatDBMSDataType(DB_VERSION_INFO version, const char* name, long size, long scale,
                             long leadingPrecision, long uvdbType)
{
    return FormatDBMSDataType(version, name, size, scale, leadingPrecision, uvdbType, nullptr);
}

U8CString FormatDBMSDataType(DB_VERSION_INFO version, const char* name, long size, long columnSize,
                             long leadingPrecision, long rowLeadingPrecision, long scale, long minScale,
                             long maxScale, const char* createParams)
{
    if (!name)
        return {};
    return FormatParts(version, NormalizeTypeName(name, version), name,
                       {.size = size,
                        .columnSize = columnSize,
                        .leadingPrecision = leadingPrecision,
                        .rowLeadingPrecision = rowLeadingPrecision,
                        .scale = scale,
                        .minScale = minScale,
                        .maxScale = maxScale,
                        .createParams = createParams ? std::string_view(createParams) : std::string_view()});
}

U8CString GetArrayDataType(const U8CString& name)
{
    const std::size_t open = name.find('[');
    const std::size_t close = open != U8CString::npos ? name.find(']', open) : U8CString::npos;
    if (close == U8CString::npos)
        return name;
    U8CString bare(name);
    bare.erase(open + 1, close - open - 1);
    return bare;
}
