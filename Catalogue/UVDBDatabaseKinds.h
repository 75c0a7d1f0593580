// The numbers by which every part of the system knows a database or a source language. They are stored in
// data files and option values, so no number ever changes its meaning. The unknown kind,
// UVDB_UNKNOWN_DATABASE_KIND, has no enumerator.
#pragma once

#include <cstdint>

enum enUVDB_DATABASE : std::uint64_t
{
#define UVDB_DATABASE_KIND(name, number) name = (number),
#include "Catalogue/UVDBDatabaseKinds.inc"
#undef UVDB_DATABASE_KIND
};

// The call interfaces have catalogue rows and parser names, but can't be chosen by an enumerator's name.
inline constexpr std::uint64_t kUVDBSybaseApiKind = 131;
inline constexpr std::uint64_t kUVDBOracleOciKind = 132;
inline constexpr std::uint64_t kUVDBCommonApiKind = 133;
inline constexpr std::uint64_t kUVDBMySqlApiKind = 134;

// Subtypes are small numbers inside one kind: equal numbers of different kinds have nothing in common.
enum enUVDB_DATABASE_SUB_TYPE : std::uint64_t
{
    UVDB_DB_SUB_TYPE_UNKNOWN = ~std::uint64_t{0},

    UVDB_DB2_UDB_FOR_zOS_AND_OS390 = 1,
    UVDB_DB2_UDB_FOR_AS400_AND_iSERIES = 2,

    UVDB_MSSQL_AZURE_SQL_DATABASE = 0,
    UVDB_MSSQL_AZURE_SYNAPSE = 1,

    UVDB_SYBASE_ADAPTIVE_SERVER_ANYWHERE = 0,
    UVDB_SYBASE_ADAPTIVE_SERVER_ENTERPRISE = 1,
    UVDB_SYBASE_IQ = 3,

    UVDB_MySQL_FOR_MariaDB = 1,

    UVDB_POSTGRESQL_POSTGRES_PRO = 2,

    UVDB_ENTERPRISEDB_PPSS = 0,
    UVDB_ENTERPRISEDB_PPAS = 1,

    UVDB_4GL_INFORMIX_PROGRAM = 0,
    UVDB_4GL_INFORMIX_FORM = 1,

    UVDB_4GL_SEA_PROGRAM = 0,
    UVDB_4GL_SEA_FORM = 1,
};
