#include "Catalogue/Types/UVDBTypeRules.h"

#include "Catalogue/Types/UVDBDataTypes.h"
#include "Catalogue/Types/UVDBTypeFormat.h"
#include "Catalogue/UVDBDatabaseKinds.h"
#include "UVEnvironment/LogSystem.h"
#include "UVEnvironment/UVECompat.h"
#include "UVEnvironment/UVEXmlText.h"

#include <utility>

using Uve::U8CString;

namespace {

// The characters of SQL Server's NVARCHAR(MAX).
constexpr unsigned long kNVarcharMax = 1073741823;

bool IsSameText(const char* a, const char* b)
{
    return Uve::Compat::stricmp(a, b) == 0;
}

bool Goes(const DB_VERSION_INFO& source, std::uint64_t sourceDb, const DB_VERSION_INFO& target,
          std::uint64_t targetDb)
{
    return source.db == sourceDb && target.db == targetDb;
}

// A source type as a rule sees it.
struct SRuledType
{
    U8CString name;
    unsigned long length;
    bool isUnlimited; // stands for NVARCHAR(MAX): no rule's length is too short for it
    U8CString createParams;
};

SRuledType TypeForRule(const DB_VERSION_INFO& source, const DB_VERSION_INFO& target, const SSourceType& type,
                       const STypeRule& rule)
{
    SRuledType ruled{type.name, type.length, false, {}};
    const bool toPostgreSql = Goes(source, UVDB_DB_MSSQL, target, UVDB_DB_POSTGRESQL);
    if (toPostgreSql && IsSameText(type.name, "NVARCHAR(MAX)") && !IsSameText(rule.name, "NVARCHAR(MAX)")) {
        ruled.name = "NVARCHAR";
        ruled.length = kNVarcharMax;
        ruled.isUnlimited = true;
    }
    // Scales are compared in these two directions alone.
    if (toPostgreSql || Goes(source, UVDB_DB_NEOVIEW, target, UVDB_DB_TERADATA)) {
        ruled.createParams = GetDBMSDataTypeCreateParams(source, ruled.name.c_str(), -1);
        ruled.createParams.MakeUpper();
    }
    return ruled;
}

bool IsMatch(const SRuledType& ruled, const SSourceType& type, const STypeRule& rule)
{
    if (ruled.name != rule.name)
        return false;
    if (rule.exact) {
        if (rule.precision != type.precision || rule.length != ruled.length)
            return false;
    } else if ((rule.length < ruled.length && !ruled.isUnlimited) || type.precision > rule.precision)
        return false;

    if (ruled.createParams.find("SCALE") == U8CString::npos)
        return true;
    return (rule.scaleFrom == kOpenRuleScale || type.scale >= rule.scaleFrom) &&
           (rule.scaleTo == kOpenRuleScale || type.scale <= rule.scaleTo);
}

bool HasRow(const DB_VERSION_INFO& version, const U8CString& name)
{
    return GetDBMSDataTypeParams(version, name.c_str(), -1).uvdbType != kNullSDataTypeParams.uvdbType;
}

// Within one kind and version a type keeps its name. Oracle and Pervasive have names of which a newer
// spelling is wanted.
bool KeepsName(const DB_VERSION_INFO& source, const DB_VERSION_INFO& target, const U8CString& name)
{
    return source.db == target.db && source.major == target.major && source.db != UVDB_DB_PERVASIVE &&
           source.db != UVDB_DB_ORA && HasRow(source, name);
}

// `text` with its pairs taken out.
// Returns: `text` itself if it has none to take.
U8CString WithoutParameters(const DB_VERSION_INFO& target, const U8CString& text)
{
    U8CString name = text;
    unsigned long size = 0;
    long scale = 0;
    PreFormatDBMSDataType(target, name, size, scale);
    U8CString marked = FormatDBMSDataType(target, name.c_str(), 0, 0, 0, 0, 0, 0, 0, "--REMOVE--");
    return marked.Replace("(--REMOVE--)", "") == 1 ? marked : text;
}

U8CString TargetText(const DB_VERSION_INFO& target, const U8CString& ruleTarget, bool isSameName,
                     const STypeRule& rule, unsigned long size, long scale)
{
    if (isSameName && rule.keepParameters)
        return FormatDBMSDataType(target, ruleTarget.c_str(), static_cast<long>(size), scale, 0, -1);
    if (!isSameName && (rule.keepParameters || ruleTarget.find('(') == U8CString::npos))
        return ruleTarget;
    return WithoutParameters(target, ruleTarget);
}

// MySQL before 5.6 takes no digits after DATETIME, so only sources keep them whose columns really have some.
void CutDateTimeDigits(const DB_VERSION_INFO& source, const DB_VERSION_INFO& target,
                       const U8CString& sourceName, U8CString& text)
{
    constexpr std::string_view kDateTime = "DATETIME";

    if ((target.db != UVDB_DB_MySQL && target.db != UVDB_DB_SingleStoreDB) || source.db == UVDB_DB_MSSQL ||
        !text.starts_with("DATETIME("))
        return;
    if ((source.db == UVDB_DB_ORA || source.db == UVDB_DB_DB2) && sourceName.starts_with("TIMESTAMP"))
        return;
    text.resize(kDateTime.size());
}

const char* InternalName(long uvdbType)
{
    const SDataTypeParams* const row = GetUVDBDataTypeParams(uvdbType);
    return row ? row->name : "UNKNOWN";
}

const char* TextOf(const char* text)
{
    return text ? text : "";
}

} // namespace

STypeRuleResult ApplyTypeRule(DB_VERSION_INFO source, DB_VERSION_INFO target, const SSourceType& type,
                              const STypeRule& rule, STypeTrail* trail)
{
    STypeRuleResult result{.name = UVDBEscapeXML(type.name), .internalName = InternalName(-1)};
    const SRuledType ruled = TypeForRule(source, target, type, rule);
    if (!IsMatch(ruled, type, rule))
        return result;

    U8CString ruleTarget = rule.target;
    const bool isSameName = ruleTarget.empty() && KeepsName(source, target, ruled.name);
    if (isSameName)
        ruleTarget = ruled.name;

    SSourceType working = type;
    working.name = ruled.name.c_str();
    working.length = ruled.length;
    STargetType converted = ConvertDataType(source, target, working, trail);
    U8CString text = std::move(rule.keepParameters ? converted.text : converted.name);
    const unsigned long size = ruled.length != 0 ? ruled.length : type.precision;
    if (!ruleTarget.empty()) {
        text = TargetText(target, ruleTarget, isSameName, rule, size, type.scale);
        if (trail)
            trail->decisions.push_back(isSameName ? UVDB_TYPE_SAME_NAME : UVDB_TYPE_RULE_TARGET);
    }
    CutDateTimeDigits(source, target, ruled.name, text);

    result.internalName = UVDBEscapeXML(InternalName(converted.uvdbType));
    result.sourceText = UVDBEscapeXML(
        FormatDBMSDataType(source, ruled.name.c_str(), static_cast<long>(size), type.scale, 0, -1));
    result.targetText = UVDBEscapeXML(text);
    return result;
}

void ConvertParams(DB_VERSION_INFO source, DB_VERSION_INFO target, const char* name, const char* uvdbTypeName,
                   unsigned long length, unsigned long precision, long leadingPrecision, long scale,
                   bool identity, const char* ruleName, unsigned long ruleLength, unsigned long rulePrecision,
                   long ruleScaleFrom, long ruleScaleTo, bool, const char* ruleTarget, bool keepRuleParams,
                   U8CString& outName, U8CString& outTypeName, U8CString& outSource, U8CString& outTarget,
                   bool exact)
{
    const char* const typeName = TextOf(uvdbTypeName);
    STypeRuleResult result = ApplyTypeRule(source, target,
                                           {.name = TextOf(name),
                                            .uvdbType = *typeName ? GetUVDBDataType(typeName) : -1,
                                            .length = length,
                                            .precision = precision,
                                            .leadingPrecision = leadingPrecision,
                                            .scale = scale,
                                            .identity = identity},
                                           {.name = TextOf(ruleName),
                                            .length = ruleLength,
                                            .precision = rulePrecision,
                                            .scaleFrom = ruleScaleFrom,
                                            .scaleTo = ruleScaleTo,
                                            .target = TextOf(ruleTarget),
                                            .keepParameters = keepRuleParams,
                                            .exact = exact});
    outName = std::move(result.name);
    outTypeName = std::move(result.internalName);
    outSource = std::move(result.sourceText);
    outTarget = std::move(result.targetText);
}

U8CString GetDBMSToDBMSConverting(DB_VERSION_INFO source, DB_VERSION_INFO target, const char* name,
                                  const char* uvdbTypeName, unsigned long length, unsigned long precision,
                                  long leadingPrecision, long scale, bool identity, const char* ruleName,
                                  unsigned long ruleLength, unsigned long rulePrecision, long ruleScaleFrom,
                                  long ruleScaleTo, bool unused, const char* ruleTarget, bool keepRuleParams,
                                  bool exact)
{
    U8CString outName, outTypeName, outSource, outTarget;
    ConvertParams(source, target, name, uvdbTypeName, length, precision, leadingPrecision, scale, identity,
                  ruleName, ruleLength, rulePrecision, ruleScaleFrom, ruleScaleTo, unused, ruleTarget,
                  keepRuleParams, outName, outTypeName, outSource, outTarget, exact);
    U8CString element;
    element.Format("<DataType name=\"%s\" type=\"%s\" source=\"%s\" target=\"%s\">%s</DataType>",
                   outName.c_str(), outTypeName.c_str(), outSource.c_str(), outTarget.c_str(),
                   outTarget.c_str());
    CLogWrapper::WriteTraceF("%s\n", element.c_str());
    return element;
}

U8CString GetDBMSToDBMSConvertingEx(DB_VERSION_INFO source, DB_VERSION_INFO target, const char* name,
                                    const char* uvdbTypeName, unsigned long length, unsigned long precision,
                                    long leadingPrecision, long scale, bool identity, const char* ruleName,
                                    unsigned long ruleLength, unsigned long rulePrecision, long ruleScaleFrom,
                                    long ruleScaleTo, bool unused, const char* ruleTarget,
                                    bool keepRuleParams, bool exact)
{
    constexpr const char* kDelimiter = "__UV_DELIM_DOT__";

    U8CString upperName = name;
    U8CString upperRuleName = ruleName;
    upperName = GetArrayDataType(upperName.MakeUpper());
    upperRuleName = GetArrayDataType(upperRuleName.MakeUpper());
    U8CString outName, outTypeName, outSource, outTarget;
    ConvertParams(source, target, upperName.c_str(), uvdbTypeName, length, precision, leadingPrecision, scale,
                  identity, upperRuleName.c_str(), ruleLength, rulePrecision, ruleScaleFrom, ruleScaleTo,
                  unused, ruleTarget, keepRuleParams, outName, outTypeName, outSource, outTarget, exact);
    U8CString joined;
    joined.Format("%s%s%s%s%s%s%s", outName.c_str(), kDelimiter, outTypeName.c_str(), kDelimiter,
                  outSource.c_str(), kDelimiter, outTarget.c_str());
    CLogWrapper::WriteTraceF("\nTranslator> Datatype mapping: %s\n", joined.c_str());
    return joined;
}
