#include "Tools/uvnames/SchemaClashes.h"

#include "Catalogue/Identifiers/UVDBIdentifierTypes.h"
#include "Catalogue/Identifiers/UVDBObjectTypeSet.h"
#include "Catalogue/UVDBDatabaseKinds.h"
#include "Catalogue/UVDBKindSet.h"

#include <cstddef>
#include <iterator>

namespace uvnames {

namespace {

struct SSpaceRow
{
    CKindSet kinds;
    CObjectTypeSet types;
};

// Types whose names share a space in each schema; a type may be in several. A key that makes an index has a
// name among indexes.
// clang-format off
constexpr SSpaceRow kSpaces[] = {
//   kinds,
//   types: 0 table, 2 view, 3 synonym, 5 sequence, 6 procedure, 7 function, 8 trigger, 12 user-defined type,
//          21 primary key, 22 foreign key, 23 references, 24 unique, 25 check, 33 index
    {{UVDB_DB_POSTGRESQL, UVDB_DB_ENTERPRISEDB, UVDB_DB_GREENPLUM, UVDB_DB_VPOSTGRES},
     {0, 2, 5, 12, 21, 24, 33}},
    {{UVDB_DB_ORA},                                 {21, 24, 33}},
    {{UVDB_DB_ORA},                                 {21, 22, 23, 24, 25}},
    {{UVDB_DB_MSSQL},                               {0, 2, 3, 5, 6, 7, 8, 21, 22, 23, 24, 25}},
    {{UVDB_DB_SYBASE},                              {0, 2, 6, 7, 8, 22, 23, 25}},
    {{UVDB_DB_MySQL},                               {22, 23}},
    {{UVDB_DB_MySQL},                               {25}},
    {{UVDB_DB_DB2, UVDB_DB_SAP_HANA, UVDB_DB_INFORMIX}, {33}},
    {{UVDB_DB_INFORMIX},                            {21, 22, 23, 24, 25}},
    {{UVDB_DB_FIREBIRD, UVDB_DB_INTERBASE},         {21, 22, 23, 24, 33}},
    {{UVDB_DB_FIREBIRD, UVDB_DB_INTERBASE},         {21, 22, 23, 24, 25}},
};
// clang-format on

constexpr bool IsTablePart(long type)
{
    return type >= UVDB_DBO_COLUMN;
}

// The library keeps whole objects apart by itself, and an index that makes a key is the key. A foreign key
// comes as a references constraint, too.
bool IsClash(const SSchemaName& first, const SSchemaName& second)
{
    if (!IsTablePart(first.type) && !IsTablePart(second.type))
        return false;
    return first.table != second.table || first.sourceName != second.sourceName;
}

} // namespace

bool CSchemaClashes::Has(long type) const
{
    for (const SSpaceRow& row : kSpaces)
        if (row.kinds.Has(m_Target) && row.types.Has(type))
            return true;
    return false;
}

Uve::U8CString CSchemaClashes::Enter(const SSchemaName& name)
{
    Uve::U8CString other;
    for (std::size_t i = 0; i < std::size(kSpaces); ++i) {
        if (!kSpaces[i].kinds.Has(m_Target) || !kSpaces[i].types.Has(name.type))
            continue;
        std::string key = std::to_string(i);
        key.append(1, '\0').append(name.schema).append(1, '\0').append(name.name);
        const auto [found, isNew] = m_Names.try_emplace(std::move(key), name);
        if (!isNew && other.empty() && IsClash(found->second, name))
            other = found->second.source;
    }
    return other;
}

} // namespace uvnames
