// Mapping rules: what a user set for a type of the source, applied to one type. Nothing throws.
#pragma once

#include "Catalogue/Types/UVDBTypeConverting.h"
#include "Interfaces/DB_VERSION_INFO.h"
#include "UVEnvironment/UVEUnicodeString.h"

#include <limits>

// An end of a rule's scale range that is open.
inline constexpr long kOpenRuleScale = std::numeric_limits<int>::min();

// One rule: which source types it takes, and what becomes of them.
struct STypeRule
{
    const char* name = ""; // the source type's; empty matches only an empty name
    unsigned long length = 0;
    unsigned long precision = 0;
    long scaleFrom = kOpenRuleScale;
    long scaleTo = kOpenRuleScale;
    const char* target = "";     // the target text; empty: the default one
    bool keepParameters = false; // the target takes the source's numbers
    bool exact = false;          // length and precision must equal the rule's; otherwise they are limits
};

struct STypeRuleResult
{
    Uve::U8CString name{};         // as given
    Uve::U8CString internalName{}; // "UNKNOWN" if nobody knows
    Uve::U8CString sourceText{};   // empty if the rule doesn't match
    Uve::U8CString targetText{};   // the same
};

// Applies one rule to one source type. `type.uvdbType` -1 is found by name and sizes.
// Returns: texts escaped for XML.
STypeRuleResult ApplyTypeRule(DB_VERSION_INFO source, DB_VERSION_INFO target, const SSourceType& type,
                              const STypeRule& rule, STypeTrail* trail = nullptr);

// The same with all facts as arguments; `uvdbTypeName` names the internal type, empty if it isn't known. The
// bool after `ruleScaleTo` is carried for callers and not read.
void ConvertParams(DB_VERSION_INFO source, DB_VERSION_INFO target, const char* name, const char* uvdbTypeName,
                   unsigned long length, unsigned long precision, long leadingPrecision, long scale,
                   bool identity, const char* ruleName, unsigned long ruleLength, unsigned long rulePrecision,
                   long ruleScaleFrom, long ruleScaleTo, bool unused, const char* ruleTarget,
                   bool keepRuleParams, Uve::U8CString& outName, Uve::U8CString& outTypeName,
                   Uve::U8CString& outSource, Uve::U8CString& outTarget, bool exact);

// Returns: the result as a <DataType> element.
Uve::U8CString GetDBMSToDBMSConverting(DB_VERSION_INFO source, DB_VERSION_INFO target, const char* name,
                                       const char* uvdbTypeName, unsigned long length,
                                       unsigned long precision, long leadingPrecision, long scale,
                                       bool identity, const char* ruleName, unsigned long ruleLength,
                                       unsigned long rulePrecision, long ruleScaleFrom, long ruleScaleTo,
                                       bool unused, const char* ruleTarget, bool keepRuleParams, bool exact);

// Both names in upper case and without array bounds.
// Returns: name, internal name, source and target text, joined by "__UV_DELIM_DOT__".
Uve::U8CString GetDBMSToDBMSConvertingEx(DB_VERSION_INFO source, DB_VERSION_INFO target, const char* name,
                                         const char* uvdbTypeName, unsigned long length,
                                         unsigned long precision, long leadingPrecision, long scale,
                                         bool identity, const char* ruleName, unsigned long ruleLength,
                                         unsigned long rulePrecision, long ruleScaleFrom, long ruleScaleTo,
                                         bool unused, const char* ruleTarget, bool keepRuleParams,
                                         bool exact);
