#include "Parser/UVParserFormatters.h"

#include "Catalogue/UVDBDatabaseKinds.h"
#include "Interfaces/IUVDBDatabaseInfo.h"
#include "Interfaces/IUVDBObjectInfo.h"
#include "Metadata/Options/UVDBOptionWrapper.h"
#include "Parser/ScriptFormatter.h"
#include "Parser/UVParserText.h"

#include <algorithm>
#include <iterator>

namespace {

using Uve::U8CString;

U8CString ReadText(const SFormatterOptions& options, const char* name, const char* defaultValue)
{
    U8CString value = defaultValue;
    CUVDBOptionWrapper::GetParam(options.databaseInfo, name, value);
    return value;
}

bool Always(const SFormatterOptions&)
{
    return true;
}

bool IsPreprocessed(const SFormatterOptions& options)
{
    return options.isPreprocessorEnabled;
}

bool IncludesFiles(const SFormatterOptions& options)
{
    return ReadText(options, "INCLUDE_FILES", "FALSE").CollateNoCase("YES") == 0;
}

bool IsAspFile(const SFormatterOptions& options)
{
    U8CString path;
    if (options.convertingObject)
        CUVDBOptionWrapper::GetParam(options.convertingObject, "FilePath", path);
    // A path without a dot is compared as a whole.
    const U8CString extension = TextBehindLastDot(path).value_or(path);
    return extension.CollateNoCase("asp") == 0 || extension.CollateNoCase("inc") == 0;
}

bool ResolvesDefines(const SFormatterOptions& options)
{
    return ReadText(options, "UNIK_DEFINE", "No").CollateNoCase("Yes") == 0;
}

// Every text but "NO" names a column format.
bool HasCobolFormat(const SFormatterOptions& options)
{
    return ReadText(options, "COBOLFORMAT", "NO").CollateNoCase("NO") != 0;
}

// The case of the letters counts here.
bool HasJclFormat(const SFormatterOptions& options)
{
    const U8CString value = ReadText(options, "JCLANSIFORMAT", "FALSE");
    return value == "1" || value == "YES";
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
