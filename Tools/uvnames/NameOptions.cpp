#include "Tools/uvnames/NameOptions.h"

#include "Metadata/Options/UVDBOptionWrapper.h"
#include "Tools/Support/ToolCommandLine.h"
#include "Tools/Support/ToolDatabase.h"
#include "Tools/uvnames/CommandLine.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace uvnames {

namespace {

using DatabaseInfo = std::shared_ptr<IUVDBDatabaseInfo2>;

template <class T>
T Read(const DatabaseInfo& info, const char* name)
{
    T value{};
    CUVDBOptionWrapper::GetParam(info, name, value);
    return value;
}

void Set(const DatabaseInfo& info, const std::string& name, const std::string& value)
{
    CUVDBOptionWrapper::SetParam(info, name, Uve::U8CString(value));
}

} // namespace

const std::vector<SNameOption>& NameOptions()
{
    // clang-format off
    static const std::vector<SNameOption> kOptions = {
//       name                                        default  meaning
        {"REPLACE_NOT_ALLOWED_CHARS",                    "_",     "stands for each character that the target doesn't allow"},
        {"REMOVE_NOT_ALLOWED_CHARS",                     "1",     "1: take out characters that the target doesn't allow"},
        {"REPLACE_NOT_ALLOWED_CHARS_FPOS",               "x",     "goes before a name that may not begin as it does"},
        {"REMOVE_NOT_ALLOWED_CHARS_FPOS",                "0",     "1: take out a first character that may not stand there"},
        {"TRIM_NAMES_EXCEEDING_MAX_LEN",                 "1",     "1: cut names that are too long"},
        {"TRIM_RULE_ALPHANUM_ONLY",                      nullptr, "1: from names that are too long, take out all but ASCII letters and digits"},
        {"TRIM_RULE_ALPHANUM_STOP_WHEN_LIMIT_REACHED",   nullptr, "1: no more of them than needed"},
        {"TRIM_RULE_CONSONANTS_ONLY",                    nullptr, "1: from names that are too long, take out the vowels"},
        {"TRIM_RULE_CONSONANTS_STOP_WHEN_LIMIT_REACHED", nullptr, "1: no more of them than needed"},
        {"TRIM_RULE_LEFTTRIM",                           nullptr, "1: cut at the front"},
        {"REPLACE_RESERVED_WORDS",                       nullptr, "how a reserved word is written, with %RWORD% for the word"},
        {"VAR_PREFIX",                                   nullptr, "goes before variables where the target has no sign for them"},
        {"COLUMN_NAME_CASE",                             nullptr, "1: columns in upper case, 2: in lower case"},
        {"QUOTE_IDENTIFIERS",                            nullptr, "1: names are quoted in scripts, and compared as quoted ones are"},
        {"SAPHANA_QUOTED_IDENTIFIERS",                   nullptr, "1: SAP HANA names with lower-case letters are quoted"},
        {"CASE_SENSITIVE_COLLATION",                     nullptr, "1: names that differ in case are different names"},
        {"IdentifierCase",                               nullptr, "plain names: 1 upper case, 2 lower case, 3 as they stand, 4 case counts as nothing"},
        {"QuotedIdentifierCase",                         nullptr, "the same for quoted names"},
        {"DATABASE_LOCALE",                              nullptr, "any text: letters from U+0101 on are letters"},
        {"DATABASE_NAME",                                nullptr, "the database that names without a server belong to"},
        {"EMPTY_SCHEMA",                                 nullptr, "1: schemas are left out, 2: where they are the default one"},
        {"SCHEMA_TO_OBJ_NAME",                           nullptr, "1: the schema becomes the beginning of the object's name"},
        {"SCHEMA_SUFFIX",                                nullptr, "goes after every schema"},
        {"OUTSCHEMA",                                    nullptr, "the schema for names with a server"},
        {"TEMP_TAB_SCHEMA",                              nullptr, "the schema of temporary tables"},
        {"CONVERT_DATABASE_TO_SCHEMA",                   nullptr, "1: the database becomes the schema"},
        {"CONVERT_PACKAGE_TO_SCHEMA",                    nullptr, "1: packages become schemas"},
        {"CONVERT_DBO_SCHEMA_ONLY",                      nullptr, "1: --schema takes the place of dbo alone"},
        {"CONVERT_DBLINK_TO_SCHEMA",                     nullptr, "1: links to other databases become schemas"},
        {"DBLINK_TARGET_NAME",                           nullptr, "the schemas for those links: SERVER=SCHEMA;SERVER=SCHEMA"},
        {"PROGRESS_OPEN_EDGE",                           nullptr, "Yes: the source is an OpenEdge database"},
    };
    // clang-format on
    return kOptions;
}

void SetOptions(const std::vector<std::string>& options, const DatabaseInfo& source,
                const DatabaseInfo& target)
{
    for (const SNameOption& option : NameOptions()) {
        if (option.defaultValue)
            Set(target, option.name, option.defaultValue);
    }
    for (const std::string& text : options) {
        const std::size_t equals = text.find('=');
        if (equals == std::string::npos)
            throw CUsageError("'" + text + "' is no NAME=VALUE");
        std::string name = text.substr(0, equals);
        const std::string value = text.substr(equals + 1);
        const bool isOfSource = name.starts_with("source:");
        const bool isOfTarget = name.starts_with("target:");
        if (isOfSource || isOfTarget)
            name.erase(0, std::string_view("source:").size());
        if (std::ranges::find(NameOptions(), name, &SNameOption::name) == NameOptions().end()) {
            std::vector<std::string> names;
            for (const SNameOption& option : NameOptions())
                names.emplace_back(option.name);
            throw CUsageError("there is no option '" + name + "'" + NearNamesText(NearNames(name, names)));
        }
        if (!isOfTarget)
            Set(source, name, value);
        if (!isOfSource)
            Set(target, name, value);
    }
}

void SetRules(const DatabaseInfo& target, const std::string& targetSchema, CNormalizeName& normaliser)
{
    const auto text = [&](const char* name) { return Read<Uve::U8CString>(target, name); };
    const auto isOn = [&](const char* name) { return Read<bool>(target, name); };
    normaliser.SetTranslateRules(isOn("REMOVE_NOT_ALLOWED_CHARS"), text("REPLACE_NOT_ALLOWED_CHARS").c_str(),
                                 isOn("REMOVE_NOT_ALLOWED_CHARS_FPOS"),
                                 text("REPLACE_NOT_ALLOWED_CHARS_FPOS").c_str(),
                                 isOn("TRIM_NAMES_EXCEEDING_MAX_LEN"), isOn("TRIM_RULE_ALPHANUM_ONLY"),
                                 targetSchema.c_str(), true, nullptr, text("REPLACE_RESERVED_WORDS").c_str(),
                                 normaliser.GetSourceQuotedCase(), normaliser.GetTargetQuotedCase(),
                                 Read<unsigned long>(target, "COLUMN_NAME_CASE"), text("VAR_PREFIX").c_str());
    normaliser.SetAdditionalTranslateRules(isOn("TRIM_RULE_CONSONANTS_ONLY"), isOn("TRIM_RULE_LEFTTRIM"),
                                           isOn("TRIM_RULE_ALPHANUM_STOP_WHEN_LIMIT_REACHED"),
                                           isOn("TRIM_RULE_CONSONANTS_STOP_WHEN_LIMIT_REACHED"));
}

} // namespace uvnames
