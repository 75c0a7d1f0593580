#include "Catalogue/Types/UVDBTypeText.h"

#include "Catalogue/Types/DataTypes/InternalTypeNumbers.h"
#include "Catalogue/Types/UVDBDataTypes.h"
#include "Catalogue/Types/UVDBTypeTextAdditions.h"
#include "Catalogue/Types/UVDBTypeTextName.h"
#include "Catalogue/UVDBDatabaseKinds.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <limits>
#include <optional>
#include <span>
#include <string>
#include <vector>

using Uve::U8CString;

namespace {

using namespace UVDBTypeText;

// ---- Numbers ----

// One parameter: a number with its unit, MAX or an asterisk.
struct SItem
{
    enum enKind
    {
        kNumber,
        kMax,
        kAsterisk
    };
    enKind kind = kNumber;
    std::int64_t number = 0;
    bool hasUnit = false;
    enUVDB_LENGTH_UNIT lengthUnit = UVDB_LENGTH_UNIT_NOT_TOLD;
};

enUVDB_LENGTH_UNIT LengthUnit(std::string_view word)
{
    for (const std::string_view bytes : {"BYTE", "BYTES", "OCTETS"})
        if (word == bytes)
            return UVDB_LENGTH_UNIT_BYTES;
    for (const std::string_view characters : {"CHAR", "CHARS", "CHARACTERS", "CODEUNITS16", "CODEUNITS32"})
        if (word == characters)
            return UVDB_LENGTH_UNIT_CHARACTERS;
    return UVDB_LENGTH_UNIT_NOT_TOLD;
}

SItem ReadItem(std::string_view text)
{
    if (text == "MAX")
        return {.kind = SItem::kMax};
    if (text == "*")
        return {.kind = SItem::kAsterisk};
    SItem item;
    std::string_view left = text;
    if (left.starts_with('+'))
        left.remove_prefix(1);
    const auto [end, error] = std::from_chars(left.data(), left.data() + left.size(), item.number);
    if (error == std::errc::result_out_of_range)
        throw CBadTypeText("the number " + Quoted(text) + " is too large");
    if (error != std::errc())
        throw CBadTypeText("a number is expected instead of " + Quoted(text));
    left.remove_prefix(static_cast<std::size_t>(end - left.data()));
    left = Trimmed(left);

    constexpr std::string_view kPowers = "KMG";
    if (const std::size_t power = left.empty() ? std::string_view::npos : kPowers.find(left.front());
        power != std::string_view::npos) {
        const int shift = 10 * (static_cast<int>(power) + 1);
        const std::int64_t limit = std::numeric_limits<std::int64_t>::max() >> shift;
        if (item.number > limit || item.number < -limit)
            throw CBadTypeText("the number " + Quoted(text) + " is too large");
        item.number *= std::int64_t{1} << shift;
        item.hasUnit = true;
        left = Trimmed(left.substr(1));
    }
    if (!left.empty()) {
        item.lengthUnit = LengthUnit(left);
        if (item.lengthUnit == UVDB_LENGTH_UNIT_NOT_TOLD)
            throw CBadTypeText("a number is expected instead of " + Quoted(text));
        item.hasUnit = true;
    }
    return item;
}

// The words of a row's parameters: for each pair its words.
using TWordGroups = std::vector<std::vector<std::string>>;

TWordGroups WordGroups(std::string_view createParams)
{
    TWordGroups groups;
    for (std::size_t begin = 0; begin <= createParams.size();) {
        const std::size_t end = std::min(createParams.find(';', begin), createParams.size());
        groups.push_back(SplitItems(createParams.substr(begin, end - begin)));
        begin = end + 1;
    }
    return groups;
}

// The numbers of a text, as the words of a name say.
class CNumberReader
{
public:
    explicit CNumberReader(std::uint64_t limit) : m_Limit(limit) {}

    STypeNumbers numbers{};
    bool isMax = false;
    enUVDB_LENGTH_UNIT lengthUnit = UVDB_LENGTH_UNIT_NOT_TOLD;

    void Take(std::string_view word, const std::string& text)
    {
        const SItem item = ReadItem(text);
        if (word == "SCALE") {
            numbers.scale = PlainNumber(item, text);
            numbers.hasScale = true;
        } else if (word == "LEADING PRECISION") {
            numbers.leadingPrecision = NotNegative(PlainNumber(item, text), text);
            numbers.hasLeadingPrecision = true;
        } else if (word == "PRECISION")
            TakePrecision(item, text);
        else
            TakeLength(item, text);
    }

private:
    static long NotNegative(std::int64_t number, const std::string& text)
    {
        if (number < 0)
            throw CBadTypeText("a size can't be negative: " + Quoted(text));
        return number;
    }

    static long PlainNumber(const SItem& item, const std::string& text)
    {
        if (item.kind != SItem::kNumber || item.hasUnit)
            throw CBadTypeText("a number is expected instead of " + Quoted(text));
        if (item.number > std::numeric_limits<std::int32_t>::max() ||
            item.number < std::numeric_limits<std::int32_t>::min())
            throw CBadTypeText("the number " + Quoted(text) + " is too large");
        return static_cast<long>(item.number);
    }

    void TakePrecision(const SItem& item, const std::string& text)
    {
        // As many digits as there can be.
        numbers.size = item.kind == SItem::kAsterisk
                           ? m_Limit
                           : static_cast<unsigned long>(NotNegative(PlainNumber(item, text), text));
        numbers.hasSize = true;
    }

    void TakeLength(const SItem& item, const std::string& text)
    {
        if (item.kind == SItem::kAsterisk)
            throw CBadTypeText("a number is expected instead of " + Quoted(text));
        isMax = item.kind == SItem::kMax;
        lengthUnit = item.lengthUnit;
        numbers.size = isMax ? m_Limit : static_cast<unsigned long>(NotNegative(item.number, text));
        numbers.hasSize = true;
    }

    std::uint64_t m_Limit;
};

std::span<const SDataTypeParams> RowsOf(const SDataTypeTable& table, const STypeNameSpan& span)
{
    return table.rows.subspan(span.first, span.last - span.first + 1);
}

// The words that tell a name's numbers: those of its last row that takes any. A time that is written
// without digits by its row still can have some.
TWordGroups WordsOf(std::span<const SDataTypeParams> rows)
{
    for (auto row = rows.rbegin(); row != rows.rend(); ++row) {
        if (*row->createParams)
            return WordGroups(row->createParams);
    }
    const SDataTypeParams& last = rows.back();
    if (last.isScaleValid && last.maxScale > last.minScale)
        return {{"SCALE"}};
    return {};
}

std::uint64_t LargestSize(DB_VERSION_INFO version, std::span<const SDataTypeParams> rows)
{
    // SQL Server's tables hold the sizes that can be written as a number.
    constexpr std::uint64_t kSqlServerMax = 2147483647;

    const std::string_view name = rows.front().name;
    std::uint64_t largest = 0;
    for (const SDataTypeParams& row : rows)
        largest = row.name == name ? std::max(largest, row.columnSize) : largest;
    if (version.db == UVDB_DB_MSSQL)
        largest = std::max(largest, name.starts_with('N') ? kSqlServerMax / 2 : kSqlServerMax);
    return largest;
}

// Informix's VARCHAR may say after its length how many bytes a row keeps for it.
bool TakesReserve(DB_VERSION_INFO version, std::string_view name)
{
    return (version.db == UVDB_DB_INFORMIX || version.db == UVDB_DB_4GL_INFORMIX) &&
           (name == "VARCHAR" || name == "NVARCHAR" || name == "CHARACTER VARYING");
}

// Types whose parameters are no numbers: what is in a spatial type, the schema of an XML document.
bool HasOpaqueParameters(const SDataTypeParams& row)
{
    using namespace UVDBRows;
    constexpr std::int64_t kTypes[] = {SdoGeometry, Geometry, Geography, Xml, XmlType, Point, Polygon};
    static_assert(std::ranges::is_sorted(kTypes));
    return std::ranges::binary_search(kTypes, row.uvdbType);
}

void TakeNumbers(const SWritten& written, const SFit& fit, const TWordGroups& groups, bool takesReserve,
                 CNumberReader& reader)
{
    for (std::size_t pair = 0; pair < written.pairs.size(); ++pair) {
        const std::vector<std::string>& items = written.pairs[pair].items;
        const std::size_t group = fit.groups[pair];
        if (group >= groups.size()) {
            // A display width: it must be a number and means nothing.
            for (const std::string& item : items)
                ReadItem(item);
            continue;
        }
        const std::vector<std::string>& words = groups[group];
        if (words.size() == 1 && words[0] == "PRECISION" && items.size() == 1 && items[0] == "*")
            continue;
        if (words == std::vector<std::string>{"PRECISION", "SCALE"} && items.size() == 1 && items[0] == "*")
            continue;
        // A float may say how many digits to show after the point.
        const bool hasDisplayDigits = words.size() == 1 && words[0] == "PRECISION" && items.size() == 2;
        const bool hasReserve = takesReserve && items.size() == 2;
        if (items.size() > words.size() && !hasDisplayDigits && !hasReserve)
            throw CBadTypeText("too many parameters: " + Quoted(items[words.size()]) + " and what follows");
        for (std::size_t i = 0; i < items.size(); ++i) {
            if (i < words.size())
                reader.Take(words[i], items[i]);
            else
                ReadItem(items[i]);
        }
    }
}

// The numbers of a name that nobody knows: a size, then a scale. None where it isn't numbers that stand
// there.
STypeNumbers NumbersOfUnknown(const SWritten& written)
{
    if (written.pairs.empty())
        return {};
    CNumberReader reader(0);
    const std::vector<std::string>& items = written.pairs.front().items;
    try {
        if (!items.empty())
            reader.Take("LENGTH", items[0]);
        if (items.size() > 1)
            reader.Take("SCALE", items[1]);
    } catch (const CBadTypeText&) {
        return {};
    }
    return reader.numbers;
}

// ---- Whole texts ----

// Teradata's periods: the type of their ends stands in the parentheses, with parentheses of its own.
std::optional<STypeText> ReadPeriod(DB_VERSION_INFO version, std::string_view text)
{
    constexpr std::string_view kPeriod = "PERIOD";

    if (version.db != UVDB_DB_TERADATA || !UpperCase(text.substr(0, kPeriod.size())).starts_with(kPeriod))
        return std::nullopt;
    const std::string_view inner = Trimmed(text.substr(kPeriod.size()));
    if (!inner.starts_with('('))
        return std::nullopt;
    if (!inner.ends_with(')'))
        throw CBadTypeText("the \")\" is missing in " + Quoted(text));
    SWritten written = TakeApart(version, inner.substr(1, inner.size() - 2));
    written.name = UpperCase(written.name);
    CNumberReader reader(0);
    for (const SPair& pair : written.pairs) {
        if (pair.items.size() > 1)
            throw CBadTypeText("too many parameters: " + Quoted(pair.items[1]) + " and what follows");
        if (!pair.items.empty())
            reader.Take("SCALE", pair.items[0]);
    }
    return STypeText{.name = U8CString("PERIOD(" + WithPairs(written) + ")"), .numbers = reader.numbers};
}

// A name of a language that has letters in lower case: the look-ups, which compare in upper case, don't see
// it.
bool ReadExactName(const SDataTypeTable& table, const std::string& name, STypeText& type)
{
    const STypeNameSpan* const span = table.Find(name);
    if (!span)
        return false;
    type.name = name;
    type.isKnown = true;
    type.uvdbType = static_cast<long>(table.rows[span->last].uvdbType);
    return true;
}

// The name of the table that a text means once all that isn't the name has been taken off it.
struct SReading
{
    SFound found{};
    SAdditions additions{};
    SStandIn standIn{};
    SValueList values{};
};

// An IDENTITY that isn't part of the name: a name with the word in it takes no numbers before it.
bool HasInnerIdentity(const SWritten& written)
{
    return written.name.ends_with(" IDENTITY") && std::ranges::any_of(written.pairs, [&](const SPair& pair) {
               return pair.offset < written.name.size();
           });
}

// Takes off `written` what isn't of the name that is found.
SReading FindReading(DB_VERSION_INFO version, const SDataTypeTable& table, SWritten& written)
{
    SReading reading;
    while (true) {
        if (!HasInnerIdentity(written))
            reading.found = FindTypeName(table, written);
        if (reading.found.span)
            return reading;
        reading.values = ReadValueList(version, written);
        if (reading.values.count > 0) {
            written = {"VARCHAR", {{7, {std::to_string(reading.values.longest)}}}};
            continue;
        }
        // No stand-in has one itself.
        if (!reading.standIn.isFound) {
            reading.standIn = TakeStandIn(version, written);
            if (reading.standIn.isFound)
                continue;
        }
        if (!TakeAddition(version, written, reading.additions))
            return reading;
    }
}

// The unsigned type where the tables have one: ZEROFILL says UNSIGNED, too, and words come in any order.
void TakeUnsigned(const SDataTypeTable& table, SWritten& written, SFound& found)
{
    SWritten wanted = written;
    wanted.name += " UNSIGNED";
    if (SFound other = FindTypeName(table, wanted); other.span) {
        written = std::move(wanted);
        found = std::move(other);
    }
}

bool IsNumberingName(std::string_view name)
{
    return name.find("SERIAL") != std::string_view::npos || name.find("IDENTITY") != std::string_view::npos ||
           name == "COUNTER";
}

// INTEGER ARRAY[3] is INTEGER[].
void TakeArrayWord(SWritten& written)
{
    for (const std::string_view words : {" ARRAY[]", " ARRAY"}) {
        if (!written.name.ends_with(words))
            continue;
        written.name.replace(written.name.size() - words.size(), words.size(), "[]");
        return;
    }
}

STypeText ReadText(DB_VERSION_INFO version, std::string_view text)
{
    if (text.empty())
        throw CBadTypeText("there is no type");
    if (text.size() > kMaxTypeTextBytes)
        throw CBadTypeText("the text is too long for a type");
    if (std::optional<STypeText> period = ReadPeriod(version, text))
        return std::move(*period);

    STypeText type;
    SWritten written = TakeApart(version, text);
    if (written.name.size() > kMaxTypeNameBytes)
        throw CBadTypeText("the text is too long for a type");
    const std::string asWritten = written.name;
    written.name = UpperCase(written.name);
    TakeSystemSchema(version, written);
    TakeArrayWord(written);
    const SWritten whole = written;
    const SDataTypeTable& table = SetDBMSDataTypeParamsList(version);
    SReading reading = FindReading(version, table, written);
    if (!reading.found.span) {
        type.numbers = NumbersOfUnknown(whole);
        if (!ReadExactName(table, asWritten, type))
            type.name = whole.name;
        return type;
    }
    if (reading.additions.isUnsigned)
        TakeUnsigned(table, written, reading.found);

    const STypeNameSpan& span = *reading.found.span;
    const auto rows = RowsOf(table, span);
    CNumberReader reader(LargestSize(version, rows));
    if (!HasOpaqueParameters(rows.back()))
        TakeNumbers(written, reading.found.fit, WordsOf(rows), TakesReserve(version, span.name), reader);
    type.name = U8CString(span.name);
    if (reader.isMax && version.db == UVDB_DB_MSSQL)
        type.name += "(MAX)";
    type.isKnown = true;
    type.uvdbType = reading.standIn.uvdbType;
    type.numbers = reader.numbers;
    type.lengthUnit = reader.lengthUnit;
    type.identity = reading.additions.hasNumbering;
    type.hasNumbering = type.identity || reading.standIn.hasNumbering || IsNumberingName(span.name);
    type.characterSet = U8CString(reading.additions.characterSet);
    type.valueCount = reading.values.count;
    if (reading.standIn.isFound || reading.values.count > 0)
        type.writtenName = U8CString(whole.name);
    return type;
}

} // namespace

STypeText ReadTypeText(DB_VERSION_INFO version, std::string_view text)
{
    try {
        return ReadText(version, Trimmed(text));
    } catch (const CBadTypeText& bad) {
        return {.error = bad.what()};
    }
}

SSourceType SourceTypeOf(DB_VERSION_INFO version, const STypeText& type)
{
    const SDataTypeParams* const row =
        FindDBMSDataTypeRow(version, type.name.c_str(), type.numbers.size, type.numbers.scale);
    const bool isPrecision = row && row->columnSizePurpose == UVDB_SIZE_IS_PRECISION;
    return {.name = type.name.c_str(),
            .uvdbType = type.uvdbType,
            .length = isPrecision ? 0 : type.numbers.size,
            .precision = isPrecision ? type.numbers.size : 0,
            .leadingPrecision = type.numbers.leadingPrecision,
            .scale = type.numbers.scale,
            .identity = type.identity};
}
