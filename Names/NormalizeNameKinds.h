// The databases and languages that the conversion of names treats alike.
#pragma once

#include "Catalogue/UVDBDatabaseKinds.h"
#include "Catalogue/UVDBKindSet.h"

inline constexpr CKindSet kMySqlLike{UVDB_DB_MySQL, UVDB_DB_INGRES, UVDB_DB_SingleStoreDB};
inline constexpr CKindSet kPostgresLike{UVDB_DB_POSTGRESQL, UVDB_DB_ENTERPRISEDB, UVDB_DB_GREENPLUM,
                                        UVDB_DB_VPOSTGRES};
inline constexpr CKindSet kDb2Like{UVDB_DB_DB2, UVDB_DB_HIRDB, UVDB_DB_SAP_HANA};

// Languages whose names have hyphens.
inline constexpr CKindSet kHyphenLanguages{UVDB_DB_COBOL,   UVDB_DB_PACBASE,    UVDB_DB_IBM_RPG,
                                           UVDB_DB_NATURAL, UVDB_DB_ABAP4,      UVDB_DB_JCL,
                                           UVDB_DB_IBM_CL,  UVDB_DB_TELON_COBOL};

// Targets that write a reserved variable in quotes; the others give it another name.
inline constexpr CKindSet kQuotedVariables{UVDB_DB_POSTGRESQL, UVDB_DB_ENTERPRISEDB, UVDB_DB_GREENPLUM,
                                           UVDB_DB_REDSHIFT};

// Targets that take a variable without any prefix in the place of the source's sigil.
inline constexpr CKindSet kBareVariables{UVDB_DB_VERTICA_ANALYTIC_DATABASE,
                                         UVDB_DB_JAVA,
                                         UVDB_DB_CPP,
                                         UVDB_DB_C,
                                         UVDB_DB_JPL,
                                         UVDB_DB_OBJECTIVEC,
                                         UVDB_DB_IPHONE,
                                         UVDB_DB_ANDROID};

// Targets in which an index or a primary key lives in the schema of its table and names none.
inline constexpr CKindSet kKeysWithoutSchema{UVDB_DB_MSSQL,         UVDB_DB_SYBASE,    UVDB_DB_MySQL,
                                             UVDB_DB_SingleStoreDB, UVDB_DB_INGRES,    UVDB_DB_POSTGRESQL,
                                             UVDB_DB_VPOSTGRES,     UVDB_DB_GREENPLUM, UVDB_DB_ENTERPRISEDB};

// Targets whose packages are lower case.
inline constexpr CKindSet kLowerCasePackages{UVDB_DB_JAVA,      UVDB_DB_ANDROID,
                                             UVDB_DB_JPL,       UVDB_DB_NEOVIEW,
                                             UVDB_DB_HPNonStop, UVDB_DB_VERTICA_ANALYTIC_DATABASE};

inline constexpr CKindSet kFourGl{UVDB_DB_4GL_INFORMIX, UVDB_DB_4GL_PROGRESS, UVDB_DB_4GL_SEA};
