#include "Tools/uvparse/KnownOptions.h"

#include "Tools/Support/ToolDatabase.h"
#include "UVEnvironment/UVECompat.h"

#include <algorithm>
#include <sstream>
#include <string_view>

namespace uvparse {

namespace {

using enum enOptionValue;

constexpr char kTruths[] = "yes no true false 1 0";
constexpr std::size_t kNamesShown = 3;

// clang-format off
constexpr SKnownOption kDatabaseOptions[] = {
//   name                                          value    words
    {"ANSI_QUOTED_IDENTIFIERS",                    Truth,   ""                  },
    {"API_SOURCE_DB",                              Text,    ""                  },
    {"AssessorIsParent",                           Truth,   ""                  },
    {"COBOLFORMAT",                                Word,    "ANSI FREE NO"      },
    {"COBOL_TAB_WIDTH",                            Number,  ""                  },
    {"CONVERTED_OBJECT_TYPE",                      Number,  ""                  },
    {"DEFINES",                                    Text,    ""                  },
    {"DSN",                                        Text,    ""                  },
    {"EXT_PARSER_SIZE",                            Number,  ""                  },
    {"IBMRPG_VERSION",                             Word,    "0 1"               },
    {"INCLUDE_FILES",                              Word,    "YES NO TRUE FALSE" },
    {"INCLUDE_ROOT",                               Text,    ""                  },
    {"JCLANSIFORMAT",                              Word,    "=YES NO 1 0 FALSE" },
    {"OPTION_VARYING_PARSING",                     Word,    "YES NO"            },
    {"ORVA_CHILD",                                 Truth,   ""                  },
    {"PARSER_PR_4GL",                              Text,    ""                  },
    {"PARSE_DIRECTIVES",                           Truth,   ""                  },
    {"PERCENT_AS_COMMENT",                         Word,    "0 1"               },
    {"PREPROCESSOR",                               Number,  ""                  },
    {"PREPROCESSOR_ADDITIONAL_INCLUDE_DIRECTORIES", Text,   ""                  },
    {"PREPROCESSOR_DEFINITIONS",                   Text,    ""                  },
    {"PREPROCESSOR_EXPANSION_LIMIT",               Number,  ""                  },
    {"PREPROCESSOR_FUNCTION",                      Number,  ""                  },
    {"PREPROCESSOR_UNDEFINES",                     Text,    ""                  },
    {"PROPATH",                                    Text,    ""                  },
    {"REMOVE_SRC_FORMATTING",                      Word,    "0 1"               },
    {"SAVE_COBOL_DEBUG_INFO",                      Word,    "=YES NO"           },
    {"SOURCE_FORMS",                               Word,    "FAITHFUL LITERAL"  },
    {"SRC_UI_TYPE",                                Text,    ""                  },
    {"TREE2SERIAL_STYLESHEET",                     Word,    "0 1"               },
    {"UNIK_DEFINE",                                Word,    "YES NO"            },
    {"USE_DEFINES",                                Word,    "YES NO"            },
};

constexpr SKnownOption kObjectOptions[] = {
//   name         value    words
    {"FilePath",  Text,    ""},
    {"ObjectID",  Text,    ""},
};
// clang-format on

bool IsWordOf(const std::string& value, std::string_view words)
{
    const bool isExact = words.starts_with('=');
    std::istringstream list(std::string(words.substr(isExact ? 1 : 0)));
    for (std::string word; list >> word;)
        if (isExact ? word == value : Uve::Compat::stricmp(word.c_str(), value.c_str()) == 0)
            return true;
    return false;
}

bool IsOfKind(const SKnownOption& option, const std::string& value)
{
    switch (option.value) {
    case Number:
        return !value.empty() && value.find_first_not_of("0123456789") == std::string::npos;
    case Truth:
        return IsWordOf(value, kTruths);
    case Word:
        return IsWordOf(value, option.words);
    default:
        return true;
    }
}

std::string KindText(const SKnownOption& option)
{
    if (option.value == Number)
        return "a number";
    const std::string_view words = option.value == Truth ? kTruths : option.words;
    return "one of " + std::string(words.substr(words.starts_with('=') ? 1 : 0));
}

} // namespace

std::span<const SKnownOption> DatabaseOptions()
{
    return kDatabaseOptions;
}

std::span<const SKnownOption> ObjectOptions()
{
    return kObjectOptions;
}

void CheckOptions(const std::vector<std::pair<std::string, std::string>>& pairs,
                  std::span<const SKnownOption> known, const char* flag)
{
    for (const auto& pair : pairs) {
        const std::string& name = pair.first;
        const std::string& value = pair.second;
        const auto option =
            std::ranges::find_if(known, [&](const SKnownOption& row) { return row.name == name; });
        if (option == known.end()) {
            std::vector<std::string> names;
            for (const SKnownOption& row : known)
                names.emplace_back(row.name);
            throw COptionError(std::string(flag) + ": nothing reads an option '" + name + "'" +
                               NearNamesText(NearNames(name, names, kNamesShown)));
        }
        if (!IsOfKind(*option, value))
            throw COptionError(std::string(flag).append(": ").append(name).append(" takes ") +
                               KindText(*option) + ", not '" + value + "'");
    }
}

} // namespace uvparse
