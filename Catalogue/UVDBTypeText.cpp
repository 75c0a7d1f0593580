#include "Catalogue/UVDBTypeText.h"

#include "Catalogue/UVDBDataTypes.h"
#include "Catalogue/UVDBDatabaseKinds.h"
#include "Catalogue/UVDBTypeTextName.h"

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
};

bool IsLengthUnit(std::string_view word)
{
    constexpr std::string_view kUnits[] = {"BYTE",  "BYTES",       "CHAR",        "CHARACTERS",
                                           "CHARS", "CODEUNITS16", "CODEUNITS32", "OCTETS"};
    static_assert(std::ranges::is_sorted(kUnits));
    return std::ranges::binary_search(kUnits, word);
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
        if (!IsLengthUnit(left))
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

// Informix's VARCHAR may say behind its length how many bytes a row keeps for it.
bool TakesReserve(DB_VERSION_INFO version, std::string_view name)
{
    return (version.db == UVDB_DB_INFORMIX || version.db == UVDB_DB_4GL_INFORMIX) &&
           (name == "VARCHAR" || name == "NVARCHAR" || name == "CHARACTER VARYING");
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
        // A float may say how many digits to show behind the point.
        const bool hasDisplayDigits = words.size() == 1 && words[0] == "PRECISION" && items.size() == 2;
        const bool hasReserve = takesReserve && items.size() == 2;
        if (items.size() > words.size() && !hasDisplayDigits && !hasReserve)
            throw CBadTypeText("too many parameters: " + Quoted(items[words.size()]) + " and behind");
        for (std::size_t i = 0; i < items.size(); ++i) {
            if (i < words.size())
                reader.Take(words[i], items[i]);
            else
                ReadItem(items[i]);
        }
    }
}

// The numbers of a name that nobody knows: a size, then a scale.
STypeNumbers NumbersOfUnknown(const SWritten& written)
{
    CNumberReader reader(0);
    if (written.pairs.empty())
        return {};
    const std::vector<std::string>& items = written.pairs.front().items;
    if (!items.empty())
        reader.Take("LENGTH", items[0]);
    if (items.size() > 1)
        reader.Take("SCALE", items[1]);
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
    SWritten written = TakeApart(inner.substr(1, inner.size() - 2));
    written.name = UpperCase(written.name);
    CNumberReader reader(0);
    for (const SPair& pair : written.pairs) {
        if (pair.items.size() > 1)
            throw CBadTypeText("too many parameters: " + Quoted(pair.items[1]) + " and behind");
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

STypeText ReadText(DB_VERSION_INFO version, std::string_view text)
{
    if (text.empty())
        throw CBadTypeText("there is no type");
    if (text.size() > kMaxTypeTextBytes)
        throw CBadTypeText("the text is too long for a type");
    if (std::optional<STypeText> period = ReadPeriod(version, text))
        return std::move(*period);

    STypeText type;
    SWritten written = TakeApart(text);
    const SDataTypeTable& table = SetDBMSDataTypeParamsList(version);
    const std::string asWritten = written.name;
    written.name = UpperCase(written.name);
    // A name with IDENTITY in it takes no numbers: those in front of the word belong to the name without it.
    const bool hasInnerNumbers = std::ranges::any_of(
        written.pairs, [&](const SPair& pair) { return pair.offset < written.name.size(); });
    SFound found = FindTypeName(table, written);
    if ((!found.span || hasInnerNumbers) && TakeIdentity(version, written)) {
        type.identity = true;
        found = FindTypeName(table, written);
    }
    if (!found.span) {
        type.numbers = NumbersOfUnknown(written);
        if (!ReadExactName(table, asWritten, type))
            type.name = written.name;
        return type;
    }

    const auto rows = RowsOf(table, *found.span);
    CNumberReader reader(LargestSize(version, rows));
    TakeNumbers(written, found.fit, WordsOf(rows), TakesReserve(version, found.span->name), reader);
    type.name = U8CString(found.span->name);
    if (reader.isMax && version.db == UVDB_DB_MSSQL)
        type.name += "(MAX)";
    type.isKnown = true;
    type.numbers = reader.numbers;
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
