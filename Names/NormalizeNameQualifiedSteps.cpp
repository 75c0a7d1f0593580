#include "Catalogue/Identifiers/UVDBIdentifierTraits.h"
#include "Catalogue/Identifiers/UVDBIdentifierTypes.h"
#include "Names/NormalizeNameCall.h"
#include "Names/NormalizeNameKinds.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

// A name without the marks of any side around it.
Uve::U8CString WithoutMarks(Uve::U8CString name, DB_VERSION_INFO version)
{
    name = TrimDelimited(std::move(name));
    const Uve::U8CString open = GetDBMSEncloseCharOpen(version);
    const Uve::U8CString close = GetDBMSEncloseCharClose(version);
    if (!open.empty() && name.size() >= open.size() + close.size() && name.starts_with(open) &&
        name.ends_with(close))
        name = name.substr(open.size(), name.size() - open.size() - close.size());
    return name;
}

} // namespace

struct CNormalizeName::SNameSteps
{
    using Call = SQualifiedCall;

    // ---- Before ----

    // MySQL makes files of tables, and "con" is a device in every folder of some systems.
    static void NormalizeTableBefore(Call& call)
    {
        if (!kMySqlLike.Has(call.target.db) || call.object.CollateNoCase("con") != 0)
            return;
        call.object += "_";
        call.MakeReportKey();
    }

    static void NormalizeColumnBefore(Call& call)
    {
        NormalizeTableBefore(call);
        if (kPostgresLike.Has(call.target.db) && call.sub.CollateNoCase("CTID") == 0)
            call.sub += "1";
    }

    static void NormalizeReferenceConstraintBefore(Call& call)
    {
        if (call.target.db == UVDB_DB_MSSQL && call.sub.CollateNoCase(call.object) == 0)
            call.sub += "_cns";
    }

    static void NormalizeIndexBefore(Call& call)
    {
        if (!kPostgresLike.Has(call.target.db) || call.sub.CollateNoCase(call.object) != 0)
            return;
        call.sub += "_idx";
        call.SetReportKey(call.sub);
    }

    static void NormalizeCursorBefore(Call& call) { call.sub.Replace("@", "v_"); }

    // ---- After ----

    static void NormalizeFunctAfter(Call& call)
    {
        if (call.target.db == UVDB_DB_MSSQL && !call.object.empty() && call.IsOmitted())
            call.schema = "dbo";
    }

    static void NormalizePrimaryKeyAfter(Call& call)
    {
        if (kKeysWithoutSchema.Has(call.target.db) && !call.IsDropped())
            call.schema.clear();
    }

    static void NormalizeReferenceConstraintAfter(Call& call) { call.schema.clear(); }

    static void NormalizeIndexAfter(Call& call)
    {
        NormalizePrimaryKeyAfter(call);
        if (call.IsDropped() && call.target.db == UVDB_DB_SYBASE &&
            call.target.subType == UVDB_SYBASE_ADAPTIVE_SERVER_ENTERPRISE)
            call.object.clear();
    }

    static void NormalizeCursorAfter(Call& call)
    {
        call.schema.clear();
        call.object.clear();
        if (!(call.source.db == UVDB_DB_POSTGRESQL && call.target.db == UVDB_DB_ORA))
            call.sub = WithoutMarks(call.sub, call.target);
    }

    static void NormalizeClassAfter(Call& call)
    {
        if (kLowerCasePackages.Has(call.target.db))
            call.object.MakeLower();
    }

    static void NormalizeVariableAfter(Call& call)
    {
        call.schema.clear();
        call.object.clear();
        const Uve::U8CString plain = WithoutMarks(call.sub, call.target);
        if (!(kQuotedVariables.Has(call.target.db) && IsReservedWord(plain, call.target)))
            call.sub = plain;
    }

    struct SRow
    {
        unsigned long type;
        void (*before)(Call&);
        void (*after)(Call&);
    };
    static const SRow kRows[];

    static const SRow* Find(unsigned long type);
};

// clang-format off
const CNormalizeName::SNameSteps::SRow CNormalizeName::SNameSteps::kRows[] = {
    {UVDB_DBO_TABLE,                 NormalizeTableBefore,               nullptr},
    {UVDB_DBO_FUNCTION,              nullptr,                            NormalizeFunctAfter},
    {UVDB_DBO_COLUMN,                NormalizeColumnBefore,              nullptr},
    {UVDB_DBO_PRIMARY_KEY,           NormalizeReferenceConstraintBefore, NormalizePrimaryKeyAfter},
    {UVDB_DBO_REFERENCES_CONSTRAINT, NormalizeReferenceConstraintBefore, NormalizeReferenceConstraintAfter},
    {UVDB_DBO_INDEX,                 NormalizeIndexBefore,               NormalizeIndexAfter},
    {UVDB_DBO_CURSOR,                NormalizeCursorBefore,              NormalizeCursorAfter},
    {UVDB_DBO_CLASS,                 nullptr,                            NormalizeClassAfter},
    {UVDB_DBO_VARIABLE,              nullptr,                            NormalizeVariableAfter},
};
// clang-format on

const CNormalizeName::SNameSteps::SRow* CNormalizeName::SNameSteps::Find(unsigned long type)
{
    const auto row = std::ranges::find(kRows, type, &SRow::type);
    return row != std::end(kRows) ? row : nullptr;
}

void CNormalizeName::SQualifiedCall::RunBefore()
{
    if (const SNameSteps::SRow* row = SNameSteps::Find(type); row && row->before)
        row->before(*this);
}

void CNormalizeName::SQualifiedCall::RunAfter()
{
    if (const SNameSteps::SRow* row = SNameSteps::Find(type); row && row->after)
        row->after(*this);
}
