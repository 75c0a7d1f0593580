// How a type came to be mapped as it was: filled on the way by whoever maps, for those who ask why.
#pragma once

#include <vector>

struct SDataTypeParams;
struct SUVDBToDBMSDataType;

// What acted on the way. Each stands for one sentence.
enum enTypeDecision : int
{
    // Where the internal type came from.
    UVDB_TYPE_GIVEN,     // the caller knew it
    UVDB_TYPE_FROM_ROW,  // a row of the source's table
    UVDB_TYPE_FROM_ODBC, // the name isn't in the source's table; the ODBC number or the money names told it
    UVDB_TYPE_UNKNOWN,   // nobody knew: served as VARCHAR(255)

    // Exceptions between particular databases.
    UVDB_TYPE_4GL_SMALLINT,     // Informix 4GL to SQL Server: SMALLINT becomes INTEGER
    UVDB_TYPE_BARE_NUMERIC,     // PostgreSQL to SQL Server: NUMERIC without numbers becomes FLOAT
    UVDB_TYPE_NVARCHAR_MAX,     // SQL Server to PostgreSQL: NVARCHAR(MAX) becomes text
    UVDB_TYPE_SAME_DATETIME,    // SQL Server to itself: DateTime stays as written
    UVDB_TYPE_BARE_NUMBER,      // to PostgreSQL: NUMBER without a precision becomes NUMERIC
    UVDB_TYPE_INTERVAL_SIZE,    // Informix to SQL Server: an interval has the size of its text
    UVDB_TYPE_TERADATA_DEFAULT, // to Teradata: the largest LOB is written without its size

    // What the target holds.
    UVDB_TYPE_IDENTITY,    // an identity column has a type of its own in the target
    UVDB_TYPE_AS_VARCHAR,  // the target has no row for the internal type; VARCHAR serves it
    UVDB_TYPE_RULE_TARGET, // a rule named the target text
    UVDB_TYPE_SAME_NAME,   // source and target are of one kind and version: the name stays
};

// One sentence on the decision, for people, without a full stop. Never null.
const char* TypeDecisionText(enTypeDecision decision);

struct STypeTrail
{
    const SDataTypeParams* sourceRow = nullptr;     // decided the internal type; null if no row did
    long sourceType = -1;                           // what the source's name and sizes gave
    long mappedType = -1;                           // what was looked up in the target, after the exceptions
    const SUVDBToDBMSDataType* targetRow = nullptr; // gave the target's name; null if a decision did
    const SDataTypeParams* formatRow = nullptr;     // gave parameters and limits of the text; null: none
    unsigned long size = 0;                         // as they went into the target's look-up and text
    long scale = 0;
    long leadingPrecision = 0;
    std::vector<enTypeDecision> decisions; // in the order in which they acted
};
