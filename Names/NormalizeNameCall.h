// One call of NormalizeQualifiedIdentifier.
#pragma once

#include "Names/NormalizeName.h"
#include "Names/NormalizeNameOptions.h"

#include <vector>

// The parts are worked on here, and reach the caller when all went well.
struct CNormalizeName::SQualifiedCall
{
    CNormalizeName& normaliser;
    unsigned long type;
    Uve::U8CString server;
    const Uve::U8CString givenSchema;
    Uve::U8CString schema;
    Uve::U8CString object;
    Uve::U8CString sub;
    const Uve::U8CString& prefix;
    const Uve::U8CString& kindText;
    const bool isServerGiven;
    const bool isSchemaGiven;

    const DB_VERSION_INFO source = normaliser.m_SourceVersion;
    const DB_VERSION_INFO target = normaliser.m_TargetVersion;

    // Options of the call.
    bool isDatabaseASchema = false;
    bool isPackageASchema = false;
    bool isDblink = false;
    Uve::U8CString schemaSuffix{};

    CObjects reportKey{{}, static_cast<long>(type)};
    unsigned long reasons = 0;
    std::vector<int> path{}; // the types of schema, object and sub
    bool isSchemaJoined = false;

    template <class T>
    T Option(const char* name) const
    {
        return ReadNameOption<T>(normaliser.m_Source, normaliser.m_Target, name);
    }
    bool IsOmitted() const { return normaliser.OmitSchemaOption(schema); }
    bool IsTemporary() const { return kindText == "temp"; }
    bool IsDropped() const { return kindText == "drop"; }
    bool IsSybaseEnterpriseSource() const;

    // ---- In front of the conversion: NormalizeNameQualified.cpp ----
    bool IsDone();
    void ReadOptions();
    ParamNameMap ReadDblinkSchemas() const;
    void PrepareParts();
    void MakeReportKey();
    void SetReportKey(Uve::U8CString name);
    void ChoosePath();
    bool LacksTable() const;

    // ---- Changes by type in front of it and behind it: NormalizeNameQualifiedSteps.cpp ----
    void RunBefore();
    void RunAfter();

    // ---- The conversion and what follows: NormalizeNameQualified.cpp ----
    void Convert();
    void ClearSchema();
    void JoinSchema();
    void ApplyTemporarySchema();
    void ApplyOutSchema();
    void FinishSchema();
    void QuoteForTarget();
    void Report();
};
