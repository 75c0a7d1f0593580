#include "Parser/UVParserFormatters.h"

#include "Catalogue/UVDBDatabaseKinds.h"
#include "Parser/ParseOptions.h"
#include "Parser/ScriptFormatter.h"
#include "Parser/UVParserText.h"

#include <algorithm>
#include <iterator>

namespace {

using Uve::U8CString;

bool Always(const SParseOptions&)
{
    return true;
}

bool IsPreprocessed(const SParseOptions& options)
{
    return options.isPreprocessed;
}

bool IncludesFiles(const SParseOptions& options)
{
    return options.includesFiles;
}

bool IsAspFile(const SParseOptions& options)
{
    // A path without a dot is compared as a whole.
    const U8CString extension = TextAfterLastDot(options.filePath).value_or(options.filePath);
    return extension.CollateNoCase("asp") == 0 || extension.CollateNoCase("inc") == 0;
}

bool ResolvesDefines(const SParseOptions& options)
{
    return options.resolvesDefines;
}

// Every text but "NO" names a column format.
bool HasCobolFormat(const SParseOptions& options)
{
    return options.cobolFormat.CollateNoCase("NO") != 0;
}

bool HasJclFormat(const SParseOptions& options)
{
    return options.hasJclFormat;
}

// clang-format off
constexpr SFormatterRow kRows[] = {
//   kind                     name                    wanted           unwanted, since                     formatter
    {UVDB_DB_CPP,             "FormatCPP",            IsPreprocessed,  "PREPROCESSOR is not 0",            &ScriptFormatter::FormatCPP},
    {UVDB_DB_C,               "FormatCPP",            IsPreprocessed,  "PREPROCESSOR is not 0",            &ScriptFormatter::FormatCPP},
    {UVDB_DB_4GL_PROGRESS,    "Format4GL_PROGRESS",   IncludesFiles,   "INCLUDE_FILES is not YES",         &ScriptFormatter::Format4GL_PROGRESS},
    {UVDB_DB_ASP,             "FormatASP",            IsAspFile,       "the file is no .asp or .inc",      &ScriptFormatter::FormatASP},
    {UVDB_DB_PASCAL,          "FormatPASCAL",         ResolvesDefines, "UNIK_DEFINE is not Yes",           &ScriptFormatter::FormatPASCAL},
    {UVDB_DB_COBOL,           "FormatCOBOL",          HasCobolFormat,  "COBOLFORMAT is not set",           &ScriptFormatter::FormatCOBOL},
    {UVDB_DB_TELON_COBOL,     "FormatCOBOL",          HasCobolFormat,  "COBOLFORMAT is not set",           &ScriptFormatter::FormatCOBOL},
    {UVDB_DB_IBM_RPG,         "FormatIBM_RPG",        Always,          "",                                 &ScriptFormatter::FormatIBM_RPG},
    {UVDB_DB_JCL,             "FormatJCL",            HasJclFormat,    "JCLANSIFORMAT is neither YES nor 1", &ScriptFormatter::FormatJCL},
    {UVDB_DB_IBM_CL,          "FormatIBM_CL",         Always,          "",                                 &ScriptFormatter::FormatIBM_CL},
    {UVDB_DB_FOXPRO_PROGRAMS, "FormatFoxProPrograms", Always,          "",                                 &ScriptFormatter::FormatFoxProPrograms},
};
// clang-format on

} // namespace

const SFormatterRow* FindFormatter(std::uint64_t kind)
{
    const auto* const row = std::ranges::find(kRows, kind, &SFormatterRow::kind);
    return row != std::end(kRows) ? row : nullptr;
}
