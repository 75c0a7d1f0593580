// One whole name on its way to the target: a call of NormalizeQualifiedIdentifier.
//
//     SQualifiedCall call{normaliser, type, server, schema, schema, object, sub, prefix, kindText, ...};
//     if (const int result = call.Run(keepBlanks); result != UVDB_OK)
//         return result;
//     server = call.server; ...
//
// What a caller has to know:
// - A call is run once. It works on copies of the parts, so that a refused name stays as the caller has it.
// - It borrows the normaliser, the prefix and the kind text.
// - What it remembers outlives it: the names that it takes on both sides, and the entry in the report.
//
// What a change has to know, since the order of the steps is part of the result:
// - The entry in the report is under the name as MakeReportKey() finds it, after ReadOptions() and
//   PrepareParts(). A change by type before Convert() that the report is to show makes the key again.
// - `schema` may be empty, given, or the schema of a linked database before Convert(); after it, it is the
//   target's, and the steps after it only take it away, move it into the object's name, or put another
//   there.
// - A reason is set where a part is changed, and never taken back.
// - What a type of object wants on top stands in the table of NormalizeNameQualifiedSteps.cpp.
#pragma once

#include "Names/NormalizeName.h"
#include "Names/NormalizeNameOptions.h"

#include <vector>

struct CNormalizeName::SQualifiedCall
{
    CNormalizeName& normaliser;
    unsigned long type; // a table, if the caller doesn't know and there is an object alone
    Uve::U8CString server;
    const Uve::U8CString givenSchema;
    Uve::U8CString schema;
    Uve::U8CString object;
    Uve::U8CString sub;
    const Uve::U8CString& prefix;   // narrows the name space, see Repositary2
    const Uve::U8CString& kindText; // "temp", "drop", "view", "UdtAttribute", "1"; any other decides nothing
    const bool isServerGiven;       // by the host, not by a rule
    const bool isSchemaGiven;       // likewise

    const DB_VERSION_INFO source = normaliser.m_SourceVersion;
    const DB_VERSION_INFO target = normaliser.m_TargetVersion;

    // Converts the parts in place, and enters them in the report, save for names of the target's own
    // catalogue. `keepsBlanks`: blanks at a name's end stay.
    // Returns: UVDB_OK; -1 for a part of a table without a table: nothing is entered then, and the parts have
    //          no meaning.
    int Run(bool keepsBlanks);

    // ---- For the changes by type ----

    // See ReadNameOption().
    template <class T>
    T Option(const char* name) const
    {
        return ReadNameOption<T>(normaliser.m_Source, normaliser.m_Target, name);
    }
    bool IsOmitted() const { return normaliser.OmitSchemaOption(schema); }
    bool IsTemporary() const { return kindText == "temp"; }
    bool IsDropped() const { return kindText == "drop"; }
    bool IsSybaseEnterpriseSource() const;

    // The key of the report from the parts as they are now, or from another name.
    void MakeReportKey();
    void SetReportKey(Uve::U8CString name);

    CObjects reportKey{{}, static_cast<long>(type)};
    unsigned long reasons = 0; // bits of enUVDB_NAME_REASON
    std::vector<int> path{};   // the types of schema, object and sub; empty: no part is left
    bool isSchemaJoined = false;

    // From options, for the whole call.
    bool isDatabaseASchema = false;
    bool isPackageASchema = false;
    bool isDblink = false; // the schema is the one that stands for a linked server
    Uve::U8CString schemaSuffix{};

private:
    bool IsDone();
    void ReadOptions();
    ParamNameMap ReadDblinkSchemas() const;
    void PrepareParts();
    void ChoosePath();
    bool LacksTable() const;
    void RunBefore();
    void Convert();
    void ClearSchema();
    void JoinSchema();
    void ApplyTemporarySchema();
    void ApplyOutSchema();
    void FinishSchema();
    void RunAfter();
    void QuoteForTarget();
    void Report();
};
