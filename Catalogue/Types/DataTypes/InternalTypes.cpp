#include "Catalogue/Types/DataTypes/InternalTypes.h"

#include "Catalogue/Types/TypeMapping/MappingSheaf.h"

#include <array>
#include <cstddef>
#include <iterator>

namespace {

using UVDBRows::Plain;

// Sizes here have no purpose of their own, not even those of amounts: they count as lengths.
constexpr SDataTypeParams Amount(std::int64_t type, const char* name, std::uint64_t size,
                                 std::int64_t minScale, std::int64_t maxScale)
{
    SDataTypeParams row = Plain(type, name, size);
    row.minScale = minScale;
    row.maxScale = maxScale;
    row.isScaleValid = true;
    return row;
}

constexpr SDataTypeParams Settled(std::int64_t type, const char* name, std::uint64_t size)
{
    SDataTypeParams row = Plain(type, name, size);
    row.isPrecScaleFixed = true;
    return row;
}

// Where a name or a number stands twice, the first row is the answer.
// clang-format off
constexpr SDataTypeParams kRows[] = {
//       type  name                           size  scale
    Plain  (  0, "CHAR"),
    Plain  (  1, "VARCHAR"),
    Plain  (  2, "VARCHAR2"),
    Plain  (  3, "LVARCHAR"),
    Plain  (  4, "LONG VARCHAR"),
    Plain  (  5, "LONG NVARCHAR"),
    Plain  (  7, "TEXT"),
    Plain  ( 11, "UNICHAR"),
    Plain  ( 12, "UNIVARCHAR"),
    Plain  ( 13, "UNITEXT"),
    Plain  (  8, "WCHAR"),
    Plain  (  9, "VARWCHAR"),
    Plain  ( 10, "LONG VARWCHAR"),
    Plain  ( 16, "BINARY"),
    Plain  ( 17, "VARBINARY"),
    Plain  ( 20, "LONG VARBINARY"),
    Plain  ( 22, "LONG VARBIT"),
    Plain  ( 23, "BLOB"),
    Plain  ( 24, "BFILE"),
    Plain  (106, "SDO_GEOMETRY",          2147483647),
    Plain  (107, "GEOMETRY",              2147483647),
    Plain  ( 25, "DECIMAL"),
    Plain  ( 26, "NUMERIC"),
    Plain  ( 14, "NUMBER"),
    Plain  ( 27, "BIT"),
    Plain  ( 28, "BOOLEAN"),
    Plain  ( 33, "TINYINT"),
    Plain  ( 34, "SMALLINT"),
    Plain  ( 35, "INTEGER"),
    Plain  ( 37, "BIGINT"),
    Plain  ( 36, "INT"),
    Plain  ( 38, "UTINYINT"),
    Plain  ( 39, "USMALLINT"),
    Plain  ( 40, "UINTEGER"),
    Plain  ( 41, "UBIGINT"),
    Plain  ( 42, "REAL"),
    Plain  ( 43, "FLOAT"),
    Plain  ( 44, "FLOAT BETWEEN"),
    Plain  ( 45, "SMALLFLT"),
    Plain  ( 46, "DOUBLE"),
    Plain  ( 47, "DOUBLE"),
    Settled(137, "DECFLOAT",                      34),
    Plain  ( 48, "DATE"),
    Plain  ( 57, "DATE_ORA"),
    Plain  ( 49, "TIME"),
    Plain  ( 50, "BIGTIME"),
    Plain  ( 51, "BIGDATETIME"),
    Plain  ( 52, "SMALLTIMESTAMP"),
    Plain  ( 53, "TIMESTAMP"),
    Plain  ( 54, "TIMESTAMP WITH TIME ZONE"),
    Plain  ( 56, "TIME() WITH TIME ZONE"),
    Plain  (102, "DATETIMEOFFSET"),
    Amount ( 58, "SMALLMONEY",                    19, 4,  4),
    Amount ( 59, "MONEY",                         19, 4,  4),
    Amount ( 60, "MONEY",                         32, 0, 32),
    Plain  ( 61, "INTERVAL YEAR() TO YEAR"),
    Plain  ( 62, "INTERVAL YEAR() TO MONTH"),
    Plain  ( 63, "INTERVAL MONTH() TO MONTH"),
    Plain  ( 64, "INTERVAL DAY() TO DAY"),
    Plain  ( 65, "INTERVAL DAY() TO HOUR"),
    Plain  ( 66, "INTERVAL DAY() TO MINUTE"),
    Plain  ( 67, "INTERVAL DAY() TO SECOND"),
    Plain  ( 69, "INTERVAL HOUR() TO HOUR"),
    Plain  ( 70, "INTERVAL HOUR() TO MINUTE"),
    Plain  ( 71, "INTERVAL HOUR() TO SECOND"),
    Plain  ( 72, "INTERVAL MINUTE() TO MINUTE"),
    Plain  ( 73, "INTERVAL MINUTE() TO SECOND"),
    Plain  ( 74, "INTERVAL SECOND() TO SECOND"),
    Plain  ( 75, "DATETIME YEAR TO YEAR"),
    Plain  ( 76, "DATETIME YEAR TO MONTH"),
    Plain  ( 77, "DATETIME YEAR TO DAY"),
    Plain  ( 78, "DATETIME YEAR TO HOUR"),
    Plain  ( 79, "DATETIME YEAR TO MINUTE"),
    Plain  ( 80, "DATETIME YEAR TO SECOND"),
    Plain  ( 81, "DATETIME DAY TO DAY"),
    Plain  ( 82, "DATETIME HOUR TO HOUR"),
    Plain  ( 83, "DATETIME HOUR TO MINUTE"),
    Plain  ( 84, "DATETIME HOUR TO SECOND"),
    Plain  ( 85, "DATETIME MONTH TO MONTH"),
    Plain  ( 86, "DATETIME MONTH TO DAY"),
    Plain  ( 87, "DATETIME YEAR TO FRACTION()"),
    Plain  ( 88, "DATETIME MONTH TO HOUR"),
    Plain  ( 89, "DATETIME MONTH TO MINUTE"),
    Plain  ( 90, "DATETIME MONTH TO SECOND"),
    Plain  ( 91, "DATETIME MONTH TO FRACTION()"),
    Plain  ( 92, "DATETIME DAY TO HOUR"),
    Plain  ( 93, "DATETIME DAY TO MINUTE"),
    Plain  ( 94, "DATETIME DAY TO SECOND"),
    Plain  ( 95, "DATETIME DAY TO FRACTION()"),
    Plain  ( 96, "DATETIME HOUR TO FRACTION()"),
    Plain  ( 97, "DATETIME MINUTE TO MINUTE"),
    Plain  ( 98, "DATETIME MINUTE TO SECOND"),
    Plain  ( 99, "DATETIME MINUTE TO FRACTION()"),
    Plain  (100, "DATETIME SECOND TO SECOND"),
    Plain  (101, "DATETIME SECOND TO FRACTION()"),
    Plain  ( 68, "INTERVAL DAY() TO SECOND()"),
    Plain  (113, "SMALLSERIAL"),
    Plain  (114, "INTEGER[]"),
    Plain  (115, "ARRAY[] OF SMALLINT",     10485760),
    Plain  (116, "CHARACTER()[]"),
    Plain  (117, "CHARACTER VARYING()[]"),
    Plain  (118, "NUMERIC()[]"),
    Plain  (119, "BIT()[]"),
    Plain  (120, "BIT VARYING()[]"),
    Plain  (121, "TIMESTAMP() WITHOUT TIME ZONE[]"),
    Plain  (122, "TIME() WITHOUT TIME ZONE[]"),
    Plain  ( 29, "ROWID"),
    Plain  ( 30, "UROWID"),
    Plain  (104, "OID"),
    Plain  (108, "GEOGRAPHY"),
    Plain  (109, "HIERARCHYID"),
    Plain  (110, "XML"),
    Plain  (111, "XMLTYPE"),
    Plain  (103, "GUID"),
    Plain  (103, "UUID"),
    Plain  (105, "VARIANT"),
    Plain  (112, "ROWVERSION"),
    Plain  (123, "NUMERIC IDENTITY"),
    Plain  (124, "GRAPHIC",                    16382),
    Plain  (125, "CHAR() FOR BIT DATA",        32766),
    Plain  (126, "VARCHAR() FOR BIT DATA",      32740),
    Plain  ( 31, "BYTE",                       32000),
    Plain  ( 32, "VARBYTE",                    32000),
    Plain  (127, "JSON",                  4294967295),
    Plain  (128, "JSONB",                 4294967295),
    Plain  (129, "SERIAL"),
    Plain  (130, "INTEGER UNSIGNED",              10),
    Plain  (132, "TINYINT UNSIGNED",              10),
    Plain  (131, "SMALLINT UNSIGNED",             10),
    Plain  (133, "MEDIUMINT UNSIGNED",            10),
    Plain  (134, "BIGINT UNSIGNED",               20),
    Plain  (135, "BLOB SUB_TYPE TEXT"),
    Plain  (138, "POINT"),
    Plain  (139, "POLYGON"),
    Plain  (136, "LONG"),
    Plain  (141, "RECORD ID SMALLINT END RECORD"),
};
// clang-format on
static_assert(std::size(kRows) == 136);

// The first of the rows that stand for one internal type is the answer.
// clang-format off
constexpr SODBCToUVDBDataType kOdbcPairs[] = {
//  ODBC  type
    {   1,   0},
    {  12,   1},
    {  -1,   4},
    {  -8,   8},
    {  -9,   9},
    { -10,  10},
    {   3,  25},
    {   2,  26},
    {   5,  34},
    {   4,  35},
    {   7,  42},
    {   6,  43},
    {   8,  46},
    {  -7,  27},
    {  -6,  33},
    {  -5,  37},
    {  -2,  16},
    {  -3,  17},
    {  -4,  20},
    {   9,  48},
    {  91,  48},
    {  10,  49},
    {  92,  49},
    {  11,  53},
    {  93,  53},
    { 101,  61},
    { 107,  62},
    { 102,  63},
    { 103,  64},
    { 108,  65},
    { 109,  66},
    { 110,  67},
    { 104,  69},
    { 111,  70},
    { 112,  71},
    { 105,  72},
    { 113,  73},
    { 106,  74},
    { -11, 103},
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
