#include "Catalogue/UVDBDatabaseKinds.h"
#include "Catalogue/UVDBHelpers.h"
#include "Interfaces/IUVDBObjectInfo.h"
#include "Metadata/Options/UVDBOptionWrapper.h"
#include "Metadata/UVDBDatabaseInfo.h"
#include "Parser/ParseOptions.h"
#include "Parser/UVParserFormatters.h"

#include <gtest/gtest.h>

namespace {

struct SFormatterCase
{
    std::uint64_t kind;
    const char* option; // null: the option isn't there
    const char* value;
    const char* formatter; // null: none
};

constexpr SFormatterCase kCases[] = {
    {UVDB_DB_4GL_PROGRESS, nullptr, nullptr, nullptr},
    {UVDB_DB_4GL_PROGRESS, "INCLUDE_FILES", "yes", "Format4GL_PROGRESS"},
    {UVDB_DB_4GL_PROGRESS, "INCLUDE_FILES", "1", nullptr},
    {UVDB_DB_ASP, nullptr, nullptr, nullptr},
    {UVDB_DB_ASP, "FilePath", "a.b.ASP", "FormatASP"},
    {UVDB_DB_ASP, "FilePath", "a.asp.txt", nullptr},
    {UVDB_DB_ASP, "FilePath", "a.inc", "FormatASP"},
    {UVDB_DB_ASP, "FilePath", "inc", "FormatASP"}, // without a dot the whole path counts
    {UVDB_DB_PASCAL, nullptr, nullptr, nullptr},
    {UVDB_DB_PASCAL, "UNIK_DEFINE", "YES", "FormatPASCAL"},
    {UVDB_DB_COBOL, nullptr, nullptr, nullptr},
    {UVDB_DB_COBOL, "COBOLFORMAT", "no", nullptr},
    {UVDB_DB_COBOL, "COBOLFORMAT", "FREE", "FormatCOBOL"},
    {UVDB_DB_TELON_COBOL, "COBOLFORMAT", "", "FormatCOBOL"}, // an empty value isn't "NO"
    {UVDB_DB_IBM_RPG, nullptr, nullptr, "FormatIBM_RPG"},
    {UVDB_DB_JCL, nullptr, nullptr, nullptr},
    {UVDB_DB_JCL, "JCLANSIFORMAT", "yes", nullptr}, // letter by letter
    {UVDB_DB_JCL, "JCLANSIFORMAT", "YES", "FormatJCL"},
    {UVDB_DB_JCL, "JCLANSIFORMAT", "1", "FormatJCL"},
    {UVDB_DB_IBM_CL, nullptr, nullptr, "FormatIBM_CL"},
    {UVDB_DB_FOXPRO_PROGRAMS, nullptr, nullptr, "FormatFoxProPrograms"},
    {UVDB_DB_POSTGRESQL, "COBOLFORMAT", "YES", nullptr},
    {UVDB_DB_C, nullptr, nullptr, nullptr}, // the preprocessor has to be on
};

TEST(Formatters, KindAndOptionsChoose)
{
    for (const SFormatterCase& c : kCases) {
        SCOPED_TRACE(testing::Message()
                     << c.kind << ' ' << (c.option ? c.option : "") << '=' << (c.value ? c.value : ""));
        const DB_VERSION_INFO version =
            MakeDbVersionInfo(c.kind, UVDB_NO_VERSION_WORD, UVDB_NO_VERSION_WORD, UVDB_NO_VERSION_WORD);
        const std::shared_ptr<IUVDBDatabaseInfo2> info = UVDBMakeObject<CUVDBDatabaseInfo>(version);
        std::shared_ptr<IUVDBObjectInfo> object;
        if (c.option && std::string_view(c.option) == "FilePath") {
            info->create_new_object(object, 0);
            CUVDBOptionWrapper::SetParam(object, c.option, Uve::U8CString(c.value));
        } else if (c.option) {
            CUVDBOptionWrapper::SetParam(info, c.option, Uve::U8CString(c.value));
        }
        const SFormatterRow* const row = FindFormatter(c.kind);
        EXPECT_STREQ(row && row->isWanted(ReadParseOptions(info, object)) ? row->name : nullptr, c.formatter);
    }
}

} // namespace
