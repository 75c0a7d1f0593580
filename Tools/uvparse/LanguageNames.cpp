#include "Tools/uvparse/LanguageNames.h"

#include "UVEnvironment/UVECompat.h"

#include <algorithm>
#include <iterator>
#include <string>

namespace uvparse {

namespace {

// clang-format off
constexpr SFileExtension kExtensions[] = {
//   extension     language
    {"asp",        "ASP"            },
    {"cbl",        "COBOL"          },
    {"cc",         "CPP"            },
    {"clle",       "IBMCL"          },
    {"clp",        "IBMCL"          },
    {"cob",        "COBOL"          },
    {"cobol",      "COBOL"          },
    {"cpy",        "COBOL"          },
    {"cxx",        "CPP"            },
    {"db2",        "DB2"            },
    {"dpk",        "Pascal"         },
    {"dpr",        "Pascal"         },
    {"ec",         "C"              },
    {"h",          "C"              },
    {"hpp",        "CPP"            },
    {"hxx",        "CPP"            },
    {"i",          "Progress4GL"    },
    {"inc",        "ASP"            },
    {"inc",        "Pascal"         },
    {"pc",         "C"              },
    {"pco",        "COBOL"          },
    {"pgc",        "C"              },
    {"pgsql",      "PostgreSQL"     },
    {"pkb",        "Oracle"         },
    {"pks",        "Oracle"         },
    {"plb",        "Oracle"         },
    {"pls",        "Oracle"         },
    {"pp",         "Pascal"         },
    {"prc",        "JCL"            },
    {"prc",        "Oracle"         },
    {"prg",        "FoxproPrograms" },
    {"psql",       "PostgreSQL"     },
    {"rpg",        "IBMRPG"         },
    {"rpgle",      "IBMRPG"         },
    {"sqb",        "COBOL"          },
    {"sqc",        "C"              },
    {"sqlrpg",     "IBMRPG"         },
    {"sqlrpgle",   "IBMRPG"         },
    {"tpb",        "Oracle"         },
    {"tps",        "Oracle"         },
    {"w",          "Progress4GL"    },
};

struct SOtherName
{
    const char* name;
    const char* parserName;
};

constexpr SOtherName kOtherNames[] = {
//   name             language
    {"ABL",           "OpenEdgeABL"    },
    {"AS400 CL",      "IBMCL"          },
    {"C#",            "CS"             },
    {"C++",           "CPP"            },
    {"CL",            "IBMCL"          },
    {"CLLE",          "IBMCL"          },
    {"CLP",           "IBMCL"          },
    {"Delphi",        "Pascal"         },
    {"ESQL/C",        "C"              },
    {"ESQLC",         "C"              },
    {"FoxPro",        "FoxproPrograms" },
    {"Object Pascal", "Pascal"         },
    {"ObjectPascal",  "Pascal"         },
    {"OpenEdge",      "OpenEdgeABL"    },
    {"PL/I",          "PLI"            },
    {"PL/pgSQL",      "PostgreSQL"     },
    {"PL/SQL",        "Oracle"         },
    {"PLSQL",         "Oracle"         },
    {"Postgres",      "PostgreSQL"     },
    {"Progress",      "Progress4GL"    },
    {"Progress 4GL",  "Progress4GL"    },
    {"RPG",           "IBMRPG"         },
    {"RPGLE",         "IBMRPG"         },
    {"SQL Server",    "MSSQL"          },
    {"SQLRPGLE",      "IBMRPG"         },
    {"T-SQL",         "MSSQL"          },
    {"TSQL",          "MSSQL"          },
    {"VFP",           "FoxproPrograms" },
    {"Visual FoxPro", "FoxproPrograms" },
};

// Order is meaning: a dialect that keeps to what all share goes before those that don't.
constexpr std::string_view kPreferred[] = {
    "PostgreSQL",
};

constexpr SPreparedLanguage kPrepared[] = {
//   language          options
    {"ASP",            ""                                              },
    {"C",              "-o PREPROCESSOR=0"                             },
    {"COBOL",          "-o COBOLFORMAT=ANSI or -o COBOLFORMAT=FREE"    },
    {"CPP",            "-o PREPROCESSOR=0"                             },
    {"FoxproPrograms", ""                                              },
    {"IBMCL",          ""                                              },
    {"IBMRPG",         "-o IBMRPG_VERSION=0 or -o IBMRPG_VERSION=1"    },
    {"JCL",            "-o JCLANSIFORMAT=YES"                          },
    {"Pascal",         "-o UNIK_DEFINE=Yes"                            },
    {"Progress4GL",    "-o INCLUDE_FILES=YES"                          },
    {"TelonCOBOL",     "-o COBOLFORMAT=ANSI or -o COBOLFORMAT=FREE"    },
};

constexpr SUsualOption kUsual[] = {
//   language  option                     value
    {"MySQL",  "ANSI_QUOTED_IDENTIFIERS", "No" }, // a text in double quotes is a string,
    {"MySQL",  "OPTION_VARYING_PARSING",  "YES"}, // unless the whole reads better with names in them
};
// clang-format on

} // namespace

std::span<const SFileExtension> FileExtensions()
{
    return kExtensions;
}

std::string_view ParserOfOtherName(std::string_view name)
{
    const std::string wanted(name);
    const auto* const found = std::ranges::find_if(kOtherNames, [&](const SOtherName& row) {
        return Uve::Compat::stricmp(row.name, wanted.c_str()) == 0;
    });
    return found != std::end(kOtherNames) ? found->parserName : std::string_view();
}

std::span<const SUsualOption> UsualOptions()
{
    return kUsual;
}

std::size_t PreferenceOf(std::string_view parserName)
{
    const auto* const found = std::ranges::find(kPreferred, parserName);
    return static_cast<std::size_t>(found - std::begin(kPreferred));
}

std::span<const SPreparedLanguage> PreparedLanguages()
{
    return kPrepared;
}

const SPreparedLanguage* FindPreparedLanguage(std::string_view parserName)
{
    const auto* const found = std::ranges::find(
        kPrepared, parserName, [](const SPreparedLanguage& row) { return std::string_view(row.parserName); });
    return found != std::end(kPrepared) ? found : nullptr;
}

} // namespace uvparse
