// The data types of databases and languages, and the internal types that stand between them.
//
// The road from a column to its internal type: the name as written becomes a key (NormalizeTypeName), the
// key's rows in the database's table form a ladder of rising sizes, and the rung that takes size and scale
// tells the internal type. UVDBTypeMapping.h leads on to the other database.
//
// Tables are constant data: everything handed out lives as long as the library, and every function here may
// be called from any thread at any time. A table is chosen by kind and subtype, the subtype's own before the
// kind's; a kind without tables has an empty one. Versions don't take part. A null name is an empty one.
#pragma once

#include "Catalogue/Types/DataTypes/DataTypeTable.h"
#include "Interfaces/DB_VERSION_INFO.h"
#include "UVEnvironment/UVEUnicodeString.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace UVDB {

template <class T>
using CArray = std::vector<T>;

} // namespace UVDB

// From type names to the indexes of their first or of their last rows in one table.
class CDataTypeNameMap
{
public:
    constexpr CDataTypeNameMap(const SDataTypeTable& table, std::size_t STypeNameSpan::*row)
        : m_Table(&table), m_Row(row)
    {}

    // By key text.
    // Returns: the index of the row.
    constexpr std::optional<std::size_t> find(std::string_view key) const
    {
        const STypeNameSpan* const span = m_Table->Find(key);
        return span ? std::optional(span->*m_Row) : std::nullopt;
    }
    constexpr std::size_t size() const { return m_Table->names.size(); }

private:
    const SDataTypeTable* m_Table;
    std::size_t STypeNameSpan::*m_Row;
};

// From internal type numbers to the indexes of their first rows in the list of internal types.
class CInternalTypeMap
{
public:
    // Returns: the index of the row.
    std::optional<std::size_t> find(long uvdbType) const;
};

// ---- Tables ----

// The table that serves the database. There is always one.
const SDataTypeTable& SetDBMSDataTypeParamsList(DB_VERSION_INFO version);

// Its rows, in their order, and where the rows of its names begin and end.
std::span<const SDataTypeParams> GetDBMSDataTypeParamsList(DB_VERSION_INFO version);
CDataTypeNameMap GetDBMSDataTypeParamsMapFirst(DB_VERSION_INFO version);
CDataTypeNameMap GetDBMSDataTypeParamsMapLast(DB_VERSION_INFO version);

// ---- Internal types ----

std::span<const SDataTypeParams> GetUVDBDataTypeParamsList();
CInternalTypeMap GetUVDBDataTypeParamsMap();

// By the exact text of the name.
// Returns: the number of the first row so named, -1 if there is none.
long GetUVDBDataType(const char* name);

// Returns: the number's first row, null if no row has it.
const SDataTypeParams* GetUVDBDataTypeParams(long uvdbType);

// One field of that row; "", 0 or false if there is none.
const char* GetUVDBDataTypeName(long uvdbType);
const char* GetUVDBDataTypeCreateParams(long uvdbType);
unsigned long GetUVDBDataTypeColumnSizePurpose(long uvdbType);
bool IsUVDBDataTypeScaleValid(long uvdbType);
bool IsUVDBDataTypePrecScaleFixed(long uvdbType);

// ---- From names to internal types ----

// As `mode`: the case of the name is kept, as languages need it.
inline constexpr long UVDB_TYPE_NAME_AS_WRITTEN = 3;

// Makes the key of a type name as written: upper-cased, with the texts between parentheses taken out. Pairs
// stay as "()", except for SQL Server the one that ends the name; so look-ups elsewhere want names without
// empty parameters ("VARCHAR", not "VARCHAR(10)"). An unclosed parenthesis and all after it stay as they
// are. `params` receives what stood in the pairs, each closed by ";": "3;" of "TIMESTAMP(3) WITH TIME ZONE".
Uve::U8CString NormalizeTypeName(const char* name, Uve::U8CString& params, DB_VERSION_INFO version,
                                 long mode);
Uve::U8CString NormalizeTypeName(const char* name, DB_VERSION_INFO version);

// By name alone: what the last rung stands for.
// Returns: -1 for an unknown name.
long DBMSToUVDBDataType(DB_VERSION_INFO version, const char* name);

// The first rung from the name's first row on that is wide enough and takes the scale, the last one
// otherwise. A size of 0 is narrow enough for any. Character types are asked for their scale too: pass 0.
// `precision` isn't read. Each row that is looked at is traced.
// Returns: its internal type, -1 for an unknown name.
long DBMSToUVDBDataType(DB_VERSION_INFO version, const char* name, unsigned long size, long precision,
                        long scale);

// The row that the function above chooses.
// Returns: null for an unknown name.
const SDataTypeParams* FindDBMSDataTypeRow(DB_VERSION_INFO version, const char* name, unsigned long size,
                                           long scale);

// Appends every row from the name's first to its last, those of other names in between included.
void DBMSToUVDBDataTypeRange(DB_VERSION_INFO version, const char* name,
                             UVDB::CArray<const SDataTypeParams*>& rows);

// Among the rows of that range the first one of the internal type, or the last row if it has none (-1 asks
// for that one).
// Returns: the null row for an unknown name.
const SDataTypeParams& GetDBMSDataTypeParams(DB_VERSION_INFO version, const char* name, long uvdbType);

// One field of that row; "", 0 or false of the null row.
const char* GetDBMSDataTypeCreateParams(DB_VERSION_INFO version, const char* name, long uvdbType);
unsigned long GetDBMSDataTypeColumnSizePurpose(DB_VERSION_INFO version, const char* name, long uvdbType);
bool IsDBMSDataTypeScaleValid(DB_VERSION_INFO version, const char* name, long uvdbType);
bool IsDBMSDataTypeLeadingPrecisionValid(DB_VERSION_INFO version, const char* name, long uvdbType);
bool IsDBMSDataTypePrecScaleFixed(DB_VERSION_INFO version, const char* name, long uvdbType);

// ---- ODBC type numbers ----

// The name decides where the table knows it, the ODBC number otherwise.
// Returns: -1 if neither helps.
long ODBCToUVDBDataType(DB_VERSION_INFO version, long odbcType, const char* name, unsigned long size,
                        long precision, long scale);

// Returns: the first number that stands for the internal type, SQL_VARCHAR (12) where none does.
long UVDBToODBCDataType(DB_VERSION_INFO version, long uvdbType);
