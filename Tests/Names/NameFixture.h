// A normaliser with its two database infos, and the rules that a host would set.
#pragma once

#include "Metadata/Options/UVDBOptionWrapper.h"
#include "Metadata/UVDBDatabaseInfo.h"
#include "Names/NormalizeName.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

// A database as "kind", "kind/subtype" or with a version: {8}, {4, 1}, {1, kNoSubType, 11, 2}.
inline constexpr std::uint64_t kNoSubType = UVDB_NO_VERSION_WORD;
struct SDatabase
{
    std::uint64_t kind;
    std::uint64_t subType = kNoSubType;
    std::uint64_t majorVersion = UVDB_NO_VERSION_WORD;
    std::uint64_t minorVersion = UVDB_NO_VERSION_WORD;

    DB_VERSION_INFO Version() const
    {
        return {.db = kind, .subType = subType, .major = majorVersion, .minor = minorVersion};
    }
};

// Without further words: repair by removing, cut at the end.
struct SRules
{
    bool remove = true;
    const char* replacement = "";
    bool removeFirst = true;
    const char* replacementFirst = "";
    bool trim = true;
    bool alphanumOnly = false;
    bool alphanumStop = false;
    bool consonantsOnly = false;
    bool consonantsStop = false;
    bool leftTrim = false;
    const char* targetSchema = "";
    const char* reservedWordPattern = "";
    unsigned long columnCase = 0;
    const char* variablePrefix = "v_";
};

struct SName
{
    Uve::U8CString schema;
    Uve::U8CString object;
    Uve::U8CString sub;

    bool operator==(const SName&) const = default;
    std::string Text() const { return schema + "|" + object + "|" + sub; }
};

class CNameHost
{
public:
    // `options` is "NAME=value NAME=value", set on the source.
    CNameHost(SDatabase from, SDatabase to, const SRules& rules = {}, std::string_view options = {})
        : source(UVDBMakeObject<CUVDBDatabaseInfo>(from.Version())),
          target(UVDBMakeObject<CUVDBDatabaseInfo>(to.Version()))
    {
        for (std::size_t at = 0; at < options.size();) {
            const std::size_t end = std::min(options.find(' ', at), options.size());
            const std::string_view option = options.substr(at, end - at);
            const std::size_t equals = option.find('=');
            CUVDBOptionWrapper::SetParam(source, std::string(option.substr(0, equals)),
                                         Uve::U8CString(option.substr(equals + 1)));
            at = end + 1;
        }
        normaliser.Init(source, target);
        normaliser.SetTranslateRules(rules.remove, rules.replacement, rules.removeFirst,
                                     rules.replacementFirst, rules.trim, rules.alphanumOnly,
                                     rules.targetSchema, true, "", rules.reservedWordPattern, 3, 0,
                                     rules.columnCase, rules.variablePrefix);
        normaliser.SetAdditionalTranslateRules(rules.consonantsOnly, rules.leftTrim, rules.alphanumStop,
                                               rules.consonantsStop);
    }

    // Returns: what NormalizeName returned; `name` is converted in place.
    int Normalize(int type, SName& name, const char* kindText = "", Uve::U8CString server = {},
                  const char* prefix = "")
    {
        return normaliser.NormalizeName(static_cast<unsigned long>(type), server, name.schema, name.object,
                                        name.sub, prefix, "", kindText, false, 0);
    }
    std::string Normalized(int type, SName name, const char* kindText = "", const char* server = "")
    {
        if (Normalize(type, name, kindText, server) != 0)
            return "refused";
        return name.Text();
    }

    std::shared_ptr<CUVDBDatabaseInfo> source;
    std::shared_ptr<CUVDBDatabaseInfo> target;
    CNormalizeName normaliser;
};
