#include "Catalogue/Types/DataTypes/InternalTypes.h"

#include "Catalogue/Types/DataTypes/InternalTypeNumbers.h"
#include "Catalogue/Types/DataTypes/TypeMeaning.h"

#include <array>
#include <cstddef>
#include <iterator>

namespace {

using namespace UVDBRows;

// Sizes here have no purpose of their own, not even those of amounts: they count as lengths.
constexpr SDataTypeParams Named(const char* name, std::uint64_t size = 0)
{
    return {.name = name, .columnSize = size};
}

constexpr SDataTypeParams Amount(const char* name, std::uint64_t size, std::int64_t minScale,
                                 std::int64_t maxScale)
{
    return {
        .name = name, .columnSize = size, .minScale = minScale, .maxScale = maxScale, .isScaleValid = true};
}

constexpr SDataTypeParams Settled(const char* name, std::uint64_t size)
{
    return {.name = name, .columnSize = size, .isPrecScaleFixed = true};
}

constexpr SDataTypeParams Numbered(std::int64_t type, SDataTypeParams row)
{
    row.uvdbType = type;
    return row;
}

constexpr SDataTypeParams kRows[] = {
#define UVDB_TYPE(name, number, row, meaning) Numbered(number, row),
#define UVDB_TYPE_AGAIN(name, row) Numbered(name, row),
#include "Catalogue/Types/DataTypes/InternalTypes.inc"
#undef UVDB_TYPE_AGAIN
#undef UVDB_TYPE
};
static_assert(std::size(kRows) == 136);

// The first of the rows that stand for one internal type is the answer.
// clang-format off
constexpr SODBCToUVDBDataType kOdbcPairs[] = {
//  ODBC  type
    {   1, Char},
    {  12, VarChar},
    {  -1, LongVarChar},
    {  -8, WChar},
    {  -9, VarWChar},
    { -10, LongVarWChar},
    {   3, Decimal},
    {   2, Numeric},
    {   5, SmallInt},
    {   4, Integer},
    {   7, Real},
    {   6, Float},
    {   8, Double},
    {  -7, Bit},
    {  -6, TinyInt},
    {  -5, BigInt},
    {  -2, Binary},
    {  -3, VarBinary},
    {  -4, LongVarBinary},
    {   9, Date},
    {  91, Date},
    {  10, Time},
    {  92, Time},
    {  11, Timestamp},
    {  93, Timestamp},
    { 101, IntervalYear},
    { 107, IntervalYearToMonth},
    { 102, IntervalMonth},
    { 103, IntervalDay},
    { 108, IntervalDayToHour},
    { 109, IntervalDayToMinute},
    { 110, IntervalDayToSecond},
    { 104, IntervalHour},
    { 111, IntervalHourToMinute},
    { 112, IntervalHourToSecond},
    { 105, IntervalMinute},
    { 113, IntervalMinuteToSecond},
    { 106, IntervalSecond},
    { -11, Guid},
};
// clang-format on
static_assert(std::size(kOdbcPairs) == 39);

constexpr std::int16_t kNoRow = -1;

constexpr std::array<std::int16_t, kInternalTypeLimit> CollectFirstRows()
{
    std::array<std::int16_t, kInternalTypeLimit> firstRows{};
    firstRows.fill(kNoRow);
    for (std::size_t row = std::size(kRows); row-- > 0;)
        firstRows.at(static_cast<std::size_t>(kRows[row].uvdbType)) = static_cast<std::int16_t>(row);
    return firstRows;
}

constexpr auto kFirstRows = CollectFirstRows();

namespace Meanings {

using UVDBMeaning::STypeMeaning;
using enum UVDBMeaning::enTypeFamily;
using enum UVDBMeaning::enTimeField;
using UVDBMeaning::kDate;
using UVDBMeaning::kTime;

constexpr STypeMeaning Is(UVDBMeaning::enTypeFamily family)
{
    return {.family = family};
}

constexpr STypeMeaning Counted(UVDBMeaning::enTypeFamily family, int bits)
{
    return {.family = family, .bits = bits};
}

constexpr STypeMeaning Unsigned(UVDBMeaning::enTypeFamily family, int bits)
{
    return {.family = family, .bits = -bits};
}

constexpr STypeMeaning Timed(UVDBMeaning::enTypeFamily family, unsigned fields)
{
    return {.family = family, .fields = fields};
}

constexpr STypeMeaning Moment(unsigned fields)
{
    return Timed(fields == kDate ? Date : fields == kTime ? Time : Timestamp, fields);
}

constexpr STypeMeaning Zoned(unsigned fields)
{
    STypeMeaning meaning = Moment(fields);
    meaning.hasZone = true;
    return meaning;
}

constexpr std::array<STypeMeaning, kInternalTypeLimit> Collect()
{
    std::array<STypeMeaning, kInternalTypeLimit> meanings{};
#define UVDB_TYPE(name, number, row, meaning) meanings.at(number) = meaning;
#define UVDB_TYPE_AGAIN(name, row)
#include "Catalogue/Types/DataTypes/InternalTypes.inc"
#undef UVDB_TYPE_AGAIN
#undef UVDB_TYPE
    return meanings;
}

constexpr auto kByNumber = Collect();
constexpr STypeMeaning kNone;

} // namespace Meanings

} // namespace

constinit const std::span<const SDataTypeParams> g_listUVDBDataTypesParams{kRows};
constinit const std::span<const SODBCToUVDBDataType> g_ODBCToUVDBDataType{kOdbcPairs};

const SDataTypeParams* FindInternalType(std::int64_t uvdbType)
{
    if (uvdbType < 0 || uvdbType >= static_cast<std::int64_t>(kFirstRows.size()))
        return nullptr;
    const std::int16_t row = kFirstRows[static_cast<std::size_t>(uvdbType)];
    return row != kNoRow ? &kRows[row] : nullptr;
}

const UVDBMeaning::STypeMeaning& MeaningOfInternalType(std::int64_t uvdbType)
{
    if (uvdbType < 0 || uvdbType >= static_cast<std::int64_t>(Meanings::kByNumber.size()))
        return Meanings::kNone;
    return Meanings::kByNumber[static_cast<std::size_t>(uvdbType)];
}
