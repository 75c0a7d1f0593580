// Identifiers of a source database as identifiers of a target: legal there, unique in their name space, and
// the same from call to call.
//
//     CNormalizeName normaliser;
//     normaliser.Init(source, target);
//     normaliser.SetTranslateRules(...);
//     normaliser.SetAdditionalTranslateRules(...);
//     normaliser.NormalizeName(UVDB_DBO_TABLE, server, schema, object, sub, "", "", "", false, 0);
//
// Types are numbers of enUVDB_DATABASE_OBJECT. A normaliser is used from one thread, and only one thread of a
// process may use any at a time: they share the report.
#pragma once

#include "Interfaces/DB_VERSION_INFO.h"
#include "Interfaces/IUVDBDatabaseInfo.h"
#include "Names/NameRepository.h"
#include "Names/UVDBStringHash.h"
#include "UVEnvironment/UVEUnicodeString.h"

#include <cstddef>
#include <functional>
#include <list>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

// What became of every name, by all normalisers of the process. A host that starts anew clears it.
extern std::unordered_map<CObjects, CConvertedName, CObjectsHash> m_ReportMap;

// Stands for a part of a name that isn't there, where a path needs one. Never part of a result.
inline constexpr const char* kAbsentNamePart = "orvantaempty";

class CNormalizeName
{
public:
    using ParamNameMap =
        std::unordered_map<Uve::U8CString, Uve::U8CString, UVDB::CStringHash, std::equal_to<>>;

    // ---- Set-up: NormalizeNameSetup.cpp ----

    // SetSource, SetTarget and ReadLocaleOption(source).
    void Init(std::shared_ptr<IUVDBDatabaseInfo2> source, std::shared_ptr<IUVDBDatabaseInfo2> target);

    // Share the database info, read its case rules and forget the names of that side. An empty pointer counts
    // as a database of unknown kind.
    void SetSource(std::shared_ptr<IUVDBDatabaseInfo2> info);
    void SetTarget(std::shared_ptr<IUVDBDatabaseInfo2> info);

    // Reads DATABASE_LOCALE; empty without the option.
    void ReadLocaleOption(const std::shared_ptr<IUVDBDatabaseInfo2>& info);

    // The rules, as the host read them from its options. A null text leaves the earlier one in place.
    //   remove, replacement            not-allowed characters after the first: erase; what to put there
    //   removeFirst, replacementFirst  the same for the first character
    //   trim                           cut what is too long
    //   alphanumOnly                   when too long, first drop what is no ASCII letter or digit
    //   targetSchema                   every schema becomes this one
    //   keepTrimRules                  false: alphanumeric-only and consonants-only trimming are off
    //   roleText                       decides nothing; hosts hand it over with the rest
    //   reservedWordPattern            how a reserved word is written, with "%RWORD%" for the word
    //   source- and targetQuotedCase   1 upper, 2 lower, 3 mixed, 4 case-insensitive; any other number of a
    //                                  target is replaced by the guess for the database
    //   columnCase                     1 upper, 2 lower, else as it stands
    //   variablePrefix                 stands before variables where the target has no sigil
    void SetTranslateRules(bool remove, const char* replacement, bool removeFirst,
                           const char* replacementFirst, bool trim, bool alphanumOnly,
                           const char* targetSchema, bool keepTrimRules, const char* roleText,
                           const char* reservedWordPattern, long sourceQuotedCase, long targetQuotedCase,
                           unsigned long columnCase, const char* variablePrefix);

    //   consonantsOnly       when too long, drop vowels
    //   leftTrim             cut from the front
    //   alphanumStopWhenLimitReached, consonantsStopWhenLimitReached   stop dropping as soon as the name fits
    void SetAdditionalTranslateRules(bool consonantsOnly, bool leftTrim, bool alphanumStopWhenLimitReached,
                                     bool consonantsStopWhenLimitReached);

    // What parameters are called in the target, by their name in the source.
    void SetParamTargetName(ParamNameMap names) { m_ParamTargetNames = std::move(names); }

    // The fixed schema of the target; empty if there is none.
    const Uve::U8CString& GetSchema() const { return m_TargetSchema; }

    // The schema of the last name that was normalised, as the caller gave it.
    const Uve::U8CString& GetSourceSchema() const { return m_SourceSchema; }

    // The case rules in force: numbers of enUVDB_IDENTIFIER_CASE.
    long GetSourceCase() const { return m_SourceCase; }
    long GetSourceQuotedCase() const { return m_SourceQuotedCase; }
    long GetTargetCase() const { return m_TargetCase; }
    long GetTargetQuotedCase() const { return m_TargetQuotedCase; }

    // What is known of either side.
    const Repositary2& GetSourceNames() const { return m_SourceNames; }
    const Repositary2& GetTargetNames() const { return m_TargetNames; }

    // Forgets what became of names with this type anywhere in their path, on both sides.
    void RemoveIdentifiers(int type);

    // Returns its argument.
    static Uve::U8CString EvaluateIdentifier(Uve::U8CString name) { return name; }

    // The non-empty parts with "." between, and without "." at both ends.
    static Uve::U8CString GetIdentidierName(const std::vector<Uve::U8CString>& parts);

    // The name of a type in the report: empty for -1.
    static Uve::U8CString TypeToString(unsigned long type);

    // ---- Report: NormalizeNameReport.cpp ----

    // m_ReportMap as XML: <IdentifierNames> with an <Identifier type source [table] target [table] [reason]/>
    // for each entry, in the map's order. Values aren't escaped: consumers do that.
    static Uve::U8CString GetNormalizeNameReport();

    // The texts of bits of enUVDB_NAME_REASON, ascending, with a blank after each but the last bit's.
    static Uve::U8CString ReasonsToString(unsigned long reasons);

    // ---- One part of a name: NormalizeNameConvert*.cpp ----

    // The part as a legal one of the target, not yet unique. `objectType` is the type of the whole object and
    // decides nothing; `type` that of this part; `kindText` a word of the caller such as "temp" or "view".
    // Sets bits of enUVDB_NAME_REASON in `flags`, and clears none.
    Uve::U8CString ConvertIdentifier(int objectType, unsigned long type, Uve::U8CString name,
                                     unsigned long& flags, const Uve::U8CString& kindText);

    // The name with the characters after the first, or with the first one, that the target doesn't take
    // erased or replaced, by the rules in force. Labels, cursors and variables get no replacement.
    Uve::U8CString RemoveNotAllowedChar(Uve::U8CString name, unsigned long type) const;
    Uve::U8CString RemoveNotAllowedCharFPos(Uve::U8CString name, unsigned long type) const;

    // A variable that is a reserved word of the target, in quotes where the target takes such a one and with
    // a 2 after it elsewhere. Any other name, and any name inside one kind of database, as it is.
    Uve::U8CString ConvertReservedWord(unsigned long type, const Uve::U8CString& name) const;

    // Without the variable sigil of the source in front.
    Uve::U8CString TrimVariablePrefix(Uve::U8CString name) const;

    static bool IsReservedWord(const Uve::U8CString& name, DB_VERSION_INFO version);

    // With the target SAP HANA and SAPHANA_QUOTED_IDENTIFIERS on: quotes around each text with a lower-case
    // letter.
    void QuoteSaphanaIdentifier(Uve::U8CString& schema, Uve::U8CString& object, Uve::U8CString& sub) const;

    // The name, or one with a number at its end, that is free in the target. `prefix` (cut after `length`
    // bytes) narrows the name space as in Repositary2. Sets UVDB_NAME_MADE_UNIQUE in `flags`. The caller enters
    // the result.
    Uve::U8CString MakeUniqueName(const std::vector<int>& path, Uve::U8CString name, std::string_view prefix,
                                  std::size_t length, unsigned long& flags);

    // ---- Whole names: NormalizeNameQualified*.cpp ----

    // Converts the four parts in place. `prefix` narrows the name space; `scope` and `isDefinition` decide
    // nothing; `keepBlanks` other than 0 keeps blanks at the end.
    // Returns: 0; -1, with the parts untouched, for a part of a table without a table.
    int NormalizeName(unsigned long type, Uve::U8CString& server, Uve::U8CString& schema,
                      Uve::U8CString& object, Uve::U8CString& sub, const Uve::U8CString& prefix,
                      const Uve::U8CString& scope, const Uve::U8CString& kindText, bool isDefinition,
                      double keepBlanks);

    // The same with the knowledge which parts the host itself was given.
    int NormalizeQualifiedIdentifier(unsigned long type, Uve::U8CString& server, Uve::U8CString& schema,
                                     Uve::U8CString& object, Uve::U8CString& sub,
                                     const Uve::U8CString& prefix, const Uve::U8CString& scope,
                                     const Uve::U8CString& kindText, bool isDefinition, double keepBlanks,
                                     bool isServerGiven, bool isSchemaGiven);

    // Converts one path; `names` holds a name for each of its types. `type` decides nothing: the path ends in
    // it.
    // Returns: the parts of the target, joined by "."; empty if the sizes differ.
    Uve::U8CString NormalizeObject(int type, const std::vector<int>& path,
                                   const std::vector<Uve::U8CString>& names, const Uve::U8CString& prefix,
                                   const Uve::U8CString& kindText, unsigned long& flags);

    // How a dotted name is written in a script of `target`: each part by itself, as a table's. `mode`: bits
    // of enUVDB_PREPARE_NAME.
    Uve::U8CString PrepareObjectName(const char* name, const std::shared_ptr<IUVDBDatabaseInfo2>& target,
                                     unsigned long mode) const;
    // One part: in marks if it isn't plain, reserved words by the pattern. A column that SQL Server gets in
    // double quotes is entered in the report.
    Uve::U8CString PrepareSingleObjectName(Uve::U8CString name, unsigned long type,
                                           const std::shared_ptr<IUVDBDatabaseInfo2>& target,
                                           unsigned long mode) const;
    // The same by the case rule of the source, and without the report.
    Uve::U8CString PrepareSingleObjectNameSource(Uve::U8CString name, unsigned long type,
                                                 const std::shared_ptr<IUVDBDatabaseInfo2>& target,
                                                 unsigned long mode) const;

    // The parts of a dotted name, leftmost first. The form with a type leaves labels, cursors and variables
    // whole: a dot in them is part of the name.
    static std::vector<Uve::U8CString> SplitIdentifier(const Uve::U8CString& name, DB_VERSION_INFO version);
    static std::vector<Uve::U8CString> SplitIdentifier(int type, const Uve::U8CString& name,
                                                       const std::shared_ptr<IUVDBDatabaseInfo2>& info);

    // Whether the schema is left out in the target.
    bool OmitSchemaOption(const Uve::U8CString& schema) const;

    // The parts of a text that "__ORVANTA_IDENTIFIER_DELIM__" parts; one for a text without it.
    static std::list<Uve::U8CString> GetIdentifiers(const Uve::U8CString& text);
    // `names` and `others` after them.
    static std::list<Uve::U8CString> BindIdentifier(std::list<Uve::U8CString> names,
                                                    std::list<Uve::U8CString> others);

    // A name as the parser's tree has it. `table` goes into an attribute, unless it is empty.
    static Uve::U8CString BuildXMLIdentifier(const Uve::U8CString& name, unsigned long type,
                                             const Uve::U8CString& table);
    static Uve::U8CString BuildXMLQualifiedIdentifier(const Uve::U8CString& first, unsigned long firstType,
                                                      const Uve::U8CString& second, unsigned long secondType,
                                                      const Uve::U8CString& third, unsigned long thirdType);

private:
    // One call of NormalizeQualifiedIdentifier; its steps live with it.
    struct SQualifiedCall;
    struct SNameSteps;
    // One call of ConvertIdentifier, likewise.
    struct SConversion;
    // A free name, and the key under which the target knows it.
    struct SFreeName;
    class CFreeNameSearch;

    // ConvertIdentifier; `isSettled` tells of a schema that the rules have chosen, which several schemas of
    // the source may share.
    Uve::U8CString ConvertPart(unsigned long type, Uve::U8CString name, unsigned long& flags,
                               const Uve::U8CString& kindText, bool& isSettled);
    // MakeUniqueName on parts; as many as `path` has.
    SFreeName FindFreeName(const std::vector<int>& path, std::vector<Uve::U8CString> parts,
                           std::string_view prefix, unsigned long& flags);
    // NormalizeObject on parts.
    std::vector<Uve::U8CString> NormalizeParts(const std::vector<int>& path,
                                               const std::vector<Uve::U8CString>& names,
                                               std::string_view prefix, const Uve::U8CString& kindText,
                                               unsigned long& flags);
    // The path as the names of the source know it.
    std::vector<int> TranslatePath(std::vector<int> path) const;
    // PrepareSingleObjectName without an entry in the report. `wrappedIn` is the mark put in front, if any.
    Uve::U8CString WriteName(Uve::U8CString name, unsigned long type, IUVDBDatabaseInfo2* info,
                             DB_VERSION_INFO version, unsigned long mode, bool isSource,
                             Uve::U8CString& wrappedIn) const;

    bool m_IsRemoving = false;
    Uve::U8CString m_Replacement;
    bool m_IsRemovingFirst = false;
    Uve::U8CString m_ReplacementFirst;

    bool m_IsTrimming = false;
    bool m_IsAlphanumOnly = false;
    bool m_IsConsonantsOnly = false;
    bool m_IsLeftTrim = false;
    bool m_IsAlphanumStop = false;
    bool m_IsConsonantsStop = false;

    Uve::U8CString m_TargetSchema;
    Uve::U8CString m_ReservedWordPattern;

    // 1 upper, 2 lower, 3 mixed as it stands, 4 case-insensitive
    long m_SourceQuotedCase = 3;
    long m_TargetQuotedCase = 3;
    long m_SourceCase = 3;
    long m_TargetCase = 3;
    unsigned long m_ColumnCase = 0;

    Uve::U8CString m_VariablePrefix;

    std::shared_ptr<IUVDBDatabaseInfo2> m_Source;
    std::shared_ptr<IUVDBDatabaseInfo2> m_Target;
    DB_VERSION_INFO m_SourceVersion; // asked once: a database info doesn't change its kind
    DB_VERSION_INFO m_TargetVersion;

    Repositary2 m_SourceNames;
    Repositary2 m_TargetNames;

    ParamNameMap m_ParamTargetNames;
    Uve::U8CString m_Locale;
    Uve::U8CString m_SourceSchema;
    bool m_IsKeepingBlanks = false;

    // The last number that a name of the target was given, by its key: a thousand names that are equal after
    // the cut would otherwise each try all the numbers before. Cleared whenever the target forgets names.
    std::unordered_map<SNameKey, int, SNameKeyHash> m_LastNumbers;
};

// Bits of the mode of PrepareSingleObjectName.
enum enUVDB_PREPARE_NAME : unsigned long
{
    UVDB_PREPARE_COMPARE_CASE = 1,  // quote what the target's case rule would change
    UVDB_PREPARE_QUOTE = 2,         // quote in any case
    UVDB_PREPARE_ANY_CHARACTER = 4, // don't look at the characters
    UVDB_PREPARE_ROWID = 8,         // "Rowid" is the pseudo column
    UVDB_PREPARE_PARAMETER = 16     // parameters take their target name
};
