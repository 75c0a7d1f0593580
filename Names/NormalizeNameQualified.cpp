#include "Catalogue/Identifiers/UVDBIdentifierTraits.h"
#include "Catalogue/Identifiers/UVDBIdentifierTypes.h"
#include "Interfaces/UVDBResults.h"
#include "Names/NormalizeNameCall.h"
#include "Names/NormalizeNameConversion.h"
#include "Names/NormalizeNameKinds.h"

#include <algorithm>
#include <initializer_list>
#include <utility>

namespace {

constexpr unsigned long kUnknownType = static_cast<unsigned long>(kUVDBUnknownObjectType);
constexpr int kNoTable = -1;

bool IsOneOf(unsigned long type, std::initializer_list<unsigned long> types)
{
    return std::ranges::find(types, type) != types.end();
}

bool IsDigitsOnly(const Uve::U8CString& text)
{
    return text.find_first_not_of("0123456789") == std::string::npos;
}

bool HasPart(const Uve::U8CString& name)
{
    return name.find('.') != std::string::npos;
}

Uve::U8CString WithoutAbsent(Uve::U8CString text)
{
    text.Replace(kAbsentNamePart, "");
    return text;
}

Uve::U8CString WithoutQuotes(Uve::U8CString text)
{
    return text.Trim("\"");
}

} // namespace

bool CNormalizeName::SQualifiedCall::IsSybaseEnterpriseSource() const
{
    return source.db == UVDB_DB_SYBASE && source.subType == UVDB_SYBASE_ADAPTIVE_SERVER_ENTERPRISE;
}

// Names of the target's own catalogue stay what they are.
bool CNormalizeName::SQualifiedCall::IsDone()
{
    if (target.db == UVDB_DB_ORA && object.CollateNoCase("dual") == 0) {
        if (source.db != UVDB_DB_ORA) {
            server.clear();
            schema.clear();
            sub.clear();
            object = "dual";
        }
        return true;
    }
    if (!kDb2Like.Has(target.db))
        return false;
    if (schema.CollateNoCase("SYSIBM") == 0) {
        server.clear();
        schema = '"' + schema + '"';
        return true;
    }
    if (schema.CollateNoCase("SESSION") == 0) {
        server.clear();
        return true;
    }
    return false;
}

void CNormalizeName::SQualifiedCall::ReadOptions()
{
    if (source.db == UVDB_DB_INFORMIX && target.db == UVDB_DB_MSSQL && kindText == "1" && schema.empty())
        schema = "dbo";

    isDatabaseASchema = Option<bool>("CONVERT_DATABASE_TO_SCHEMA");
    isPackageASchema = Option<bool>("CONVERT_PACKAGE_TO_SCHEMA");
    schemaSuffix = Option<Uve::U8CString>("SCHEMA_SUFFIX");
    if (Option<bool>("CONVERT_DBLINK_TO_SCHEMA") && !server.empty() &&
        server != Option<Uve::U8CString>("DATABASE_NAME")) {
        const auto schemas = ReadDblinkSchemas();
        if (const auto found = schemas.find(server); found != schemas.end()) {
            schema = found->second;
            isDblink = true;
        }
    }
}

CNormalizeName::ParamNameMap CNormalizeName::SQualifiedCall::ReadDblinkSchemas() const
{
    constexpr const char* kOption = "DBLINK_TARGET_NAME";
    Uve::U8CString typeKey;
    if (normaliser.m_Source)
        normaliser.m_Source->GetOptTypeName(kOption, typeKey);
    if (typeKey.empty() && normaliser.m_Target)
        normaliser.m_Target->GetOptTypeName(kOption, typeKey);
    if (typeKey != UVDBOptionTypeKey<Uve::U8CString>())
        return Option<ParamNameMap>(kOption);

    // As text: "server=schema;server=schema".
    ParamNameMap schemas;
    const Uve::U8CString text = Option<Uve::U8CString>(kOption);
    int charPos = 0;
    for (Uve::U8CString pair = text.Tokenize(";", charPos); charPos != -1;
         pair = text.Tokenize(";", charPos)) {
        if (const std::size_t equals = pair.find('='); equals != std::string::npos)
            schemas[pair.substr(0, equals)] = pair.substr(equals + 1);
    }
    return schemas;
}

void CNormalizeName::SQualifiedCall::PrepareParts()
{
    if (kMySqlLike.Has(source.db))
        schema.clear();
    if (type != UVDB_DBO_ALIAS)
        return;
    // An alias with dots stands for a whole name, and takes the place of one.
    for (Uve::U8CString* part : {&object, &sub}) {
        if (HasPart(*part)) {
            schema = GetDBMSEncloseCharOpen(target) + *part + GetDBMSEncloseCharClose(target);
            part->clear();
        }
    }
}

void CNormalizeName::SQualifiedCall::MakeReportKey()
{
    std::list<Uve::U8CString> names;
    for (const Uve::U8CString* part : {&schema, &object, &sub})
        names = BindIdentifier(std::move(names), GetIdentifiers(*part));
    SetReportKey(GetIdentidierName({names.begin(), names.end()}));
}

void CNormalizeName::SQualifiedCall::SetReportKey(Uve::U8CString name)
{
    reportKey.name = std::move(name);
    updateHashValue(reportKey);
}

void CNormalizeName::SQualifiedCall::ChoosePath()
{
    if (type == kUnknownType && !object.empty() && sub.empty())
        type = UVDB_DBO_TABLE;

    const auto last = static_cast<int>(type);
    const bool isPackageTarget = target.db == UVDB_DB_CS && !schema.empty();
    if (isPackageTarget && type == UVDB_DBO_CLASS && object.empty()) {
        path = {UVDB_DBO_CLASS};
    } else if (isPackageTarget && type == UVDB_DBO_FUNCTION && !object.empty()) {
        path = {UVDB_DBO_CLASS, UVDB_DBO_FUNCTION};
    } else if (type == UVDB_DBO_ALIAS && !object.empty()) {
        path = {UVDB_DBO_CLASS, UVDB_DBO_ALIAS};
    } else if (type == UVDB_DBO_ALIAS && IsDigitsOnly(schema)) {
        schema.clear();
    } else if (type == UVDB_DBO_ALIAS) {
        path = {UVDB_DBO_SCHEMA};
    } else if (IsOneOf(type, {UVDB_DBO_VARIABLE, UVDB_DBO_CURSOR})) {
        path = {UVDB_DBO_SCHEMA, UVDB_DBO_STORED_PROCEDURE, last};
    } else if (type < UVDB_DBO_COLUMN) {
        path = {UVDB_DBO_SCHEMA, last, UVDB_DBO_COLUMN};
    } else {
        const int parent = kindText == "UdtAttribute" ? UVDB_DBO_USER_DEFINED_TYPE : UVDB_DBO_TABLE;
        path = {UVDB_DBO_SCHEMA, parent, last};
    }
}

bool CNormalizeName::SQualifiedCall::LacksTable() const
{
    if (!object.empty() || path.size() < 2 || path[0] != UVDB_DBO_SCHEMA || path[1] != UVDB_DBO_TABLE)
        return false;
    return !(source.db == UVDB_DB_MSSQL && kDb2Like.Has(target.db)) && !IsSybaseEnterpriseSource() &&
           !(source.db == UVDB_DB_NEOVIEW && target.db == UVDB_DB_TERADATA);
}

void CNormalizeName::SQualifiedCall::Convert()
{
    const bool isServerNamed = source.db == UVDB_DB_INFORMIX && isServerGiven && !server.empty();
    std::vector<int> types{UVDB_DBO_DATABASE};
    std::vector<Uve::U8CString> names{isServerNamed ? server : Uve::U8CString(kAbsentNamePart)};
    const auto add = [&](std::size_t index, const Uve::U8CString& name) {
        if (index < path.size() && !name.empty()) {
            types.push_back(path[index]);
            names.push_back(name);
        }
    };
    const bool isTemporaryTable = IsTemporary() && path.size() > 1 && path[1] == UVDB_DBO_TABLE;
    add(0, schema.empty() ? Uve::U8CString(kAbsentNamePart) : schema);
    add(1, isTemporaryTable && !object.empty() ? kTemporaryTableMark + object : object);
    add(2, sub);

    const bool hasObject = !object.empty();
    std::vector<Uve::U8CString> parts = normaliser.NormalizeParts(types, names, prefix, kindText, reasons);
    for (Uve::U8CString& part : parts)
        part = WithoutAbsent(std::move(part));
    schema.clear();
    object.clear();
    sub.clear();
    switch (parts.size()) {
    case 4:
        schema = parts[1];
        object = parts[2];
        sub = parts[3];
        break;
    case 3:
        schema = parts[1];
        (hasObject ? object : sub) = parts[2]; // a sub-object may stand without its object
        break;
    case 2:
        object = parts[1];
        break;
    case 1:
        sub = parts[0];
        break;
    default:
        break;
    }
}

void CNormalizeName::SQualifiedCall::ClearSchema()
{
    const bool isLeftOut = (!isSchemaGiven && !isDatabaseASchema && IsOmitted()) ||
                           (source.db == UVDB_DB_INFORMIX && isDatabaseASchema && !isDblink) ||
                           (source.db == UVDB_DB_ORA && isPackageASchema && IsOmitted()) ||
                           type == UVDB_DBO_ALIAS;
    if (isLeftOut) {
        if (isSchemaGiven && !schema.empty())
            reasons |= UVDB_NAME_SCHEMA_LEFT_OUT;
        schema.clear();
    }
    if (source.db == UVDB_DB_ORA && target.db == UVDB_DB_HPNonStop && !sub.empty() &&
        Option<int>("EMPTY_SCHEMA") != 0) {
        schema.clear();
        object.clear();
    }
}

void CNormalizeName::SQualifiedCall::JoinSchema()
{
    if (type == UVDB_DBO_ALIAS || !Option<bool>("SCHEMA_TO_OBJ_NAME") || IsOmitted())
        return;
    const bool wasOmitted = (reasons & UVDB_NAME_SCHEMA_OMITTED) != 0;
    if (wasOmitted && kMySqlLike.Has(target.db) && (source.db == UVDB_DB_MSSQL || IsSybaseEnterpriseSource()))
        schema = givenSchema;
    if (schema.empty() || object.empty())
        return;
    object = WithoutQuotes(schema) + "_" + WithoutQuotes(object);
    schema.clear();
    isSchemaJoined = true;
}

void CNormalizeName::SQualifiedCall::ApplyTemporarySchema()
{
    if (!IsSybaseEnterpriseSource() || target.db != UVDB_DB_ORA || type != UVDB_DBO_TABLE || !IsTemporary() ||
        IsOmitted())
        return;
    if (Uve::U8CString temporarySchema = Option<Uve::U8CString>("TEMP_TAB_SCHEMA"); !temporarySchema.empty())
        schema = std::move(temporarySchema);
}

void CNormalizeName::SQualifiedCall::ApplyOutSchema()
{
    const bool hasDatabases =
        target.db == UVDB_DB_MSSQL ||
        (target.db == UVDB_DB_SYBASE && target.subType == UVDB_SYBASE_ADAPTIVE_SERVER_ENTERPRISE) ||
        (target.db == UVDB_DB_DB2 && target.subType == UVDB_DB2_UDB_FOR_zOS_AND_OS390);
    if (hasDatabases && isServerGiven && type != UVDB_DBO_ALIAS && isDatabaseASchema && !isDblink &&
        (isSchemaJoined || !IsOmitted())) {
        schema = Option<Uve::U8CString>("OUTSCHEMA");
        if (schema.empty())
            schema = server;
        server.clear();
    }
    if (!schema.empty())
        schema += schemaSuffix;
}

void CNormalizeName::SQualifiedCall::FinishSchema()
{
    server.clear();
    if (schema.empty() || !IsOmitted())
        return;
    if (isSchemaGiven)
        reasons |= UVDB_NAME_SCHEMA_LEFT_OUT;
    schema.clear();
}

void CNormalizeName::SQualifiedCall::QuoteForTarget()
{
    if (target.db == UVDB_DB_ORA && kHyphenLanguages.Has(source.db) && sub.find('-') != std::string::npos &&
        sub.find('"') == std::string::npos)
        sub = '"' + sub + '"';
    if (type < UVDB_DBO_SCHEMA || type > UVDB_DBO_VARIABLE)
        normaliser.QuoteSaphanaIdentifier(schema, object, sub);
}

void CNormalizeName::SQualifiedCall::Report()
{
    CConvertedName& entry = m_ReportMap[reportKey];
    entry.name = GetIdentidierName({schema, object, sub});
    entry.reasons = reasons;
    entry.type = static_cast<int>(type);
}

int CNormalizeName::SQualifiedCall::Run(bool keepsBlanks)
{
    if (IsDone())
        return UVDB_OK;
    ReadOptions();
    PrepareParts();
    MakeReportKey();
    normaliser.m_IsKeepingBlanks = keepsBlanks;
    ChoosePath();
    if (LacksTable())
        return kNoTable;
    RunBefore();
    Convert();
    ClearSchema();
    JoinSchema();
    ApplyTemporarySchema();
    ApplyOutSchema();
    FinishSchema();
    RunAfter();
    QuoteForTarget();
    Report();
    return UVDB_OK;
}

int CNormalizeName::NormalizeQualifiedIdentifier(unsigned long type, Uve::U8CString& server,
                                                 Uve::U8CString& schema, Uve::U8CString& object,
                                                 Uve::U8CString& sub, const Uve::U8CString& prefix,
                                                 const Uve::U8CString&, const Uve::U8CString& kindText, bool,
                                                 double keepBlanks, bool isServerGiven, bool isSchemaGiven)
{
    m_SourceSchema = schema;
    SQualifiedCall call{*this, type,   server,   schema,        schema,       object,
                        sub,   prefix, kindText, isServerGiven, isSchemaGiven};
    if (const int result = call.Run(keepBlanks != 0); result != UVDB_OK)
        return result;
    server = std::move(call.server);
    schema = std::move(call.schema);
    object = std::move(call.object);
    sub = std::move(call.sub);
    return UVDB_OK;
}

int CNormalizeName::NormalizeName(unsigned long type, Uve::U8CString& server, Uve::U8CString& schema,
                                  Uve::U8CString& object, Uve::U8CString& sub, const Uve::U8CString& prefix,
                                  const Uve::U8CString& scope, const Uve::U8CString& kindText,
                                  bool isDefinition, double keepBlanks)
{
    return NormalizeQualifiedIdentifier(type, server, schema, object, sub, prefix, scope, kindText,
                                        isDefinition, keepBlanks, !server.empty(), !schema.empty());
}

bool CNormalizeName::OmitSchemaOption(const Uve::U8CString& schema) const
{
    const bool isFixed = !m_TargetSchema.empty();
    if (!UVDBIsValidSchemaName(m_SourceVersion, isFixed ? m_TargetSchema : schema))
        return true;
    if (isFixed)
        return false;

    constexpr int kOmitAll = 1;
    constexpr int kOmitDefault = 2;
    const int emptySchema = ReadNameOption<int>(m_Source, m_Target, "EMPTY_SCHEMA");
    if (emptySchema != kOmitDefault)
        return emptySchema == kOmitAll;
    if (m_TargetVersion.db == UVDB_DB_PERVASIVE || kMySqlLike.Has(m_TargetVersion.db))
        return true;
    if (m_TargetVersion.db == UVDB_DB_MSSQL)
        return m_SourceVersion.db == UVDB_DB_MySQL || m_SourceVersion.db == UVDB_DB_INGRES;
    if (m_TargetVersion.db == UVDB_DB_SYBASE &&
        m_TargetVersion.subType == UVDB_SYBASE_ADAPTIVE_SERVER_ENTERPRISE)
        return false;
    return schema.CollateNoCase(GetDefaultSchema(m_SourceVersion)) == 0;
}
