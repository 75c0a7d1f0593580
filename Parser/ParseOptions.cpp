#include "Parser/ParseOptions.h"

#include "Catalogue/UVDBDatabaseKinds.h"
#include "Interfaces/IUVDBDatabaseInfo.h"
#include "Interfaces/IUVDBObjectInfo.h"
#include "Metadata/Options/UVDBOptionWrapper.h"

#include <charconv>

namespace {

using Uve::U8CString;

// The options of an object, or the defaults if there is none.
template <class Object>
class COptionReader
{
public:
    explicit COptionReader(const std::shared_ptr<Object>& object) : m_Object(object.get()) {}

    template <class T>
    T Read(const char* name, T value) const
    {
        if (m_Object != nullptr)
            CUVDBOptionWrapper::GetParam(m_Object, name, value);
        return value;
    }
    U8CString Text(const char* name, const char* value = "") const { return Read(name, U8CString(value)); }
    bool IsOn(const char* name) const { return Text(name) == "1"; }
    // Without regard to case.
    bool Is(const char* name, const char* text) const { return Text(name).CollateNoCase(text) == 0; }

private:
    Object* m_Object;
};

using Reader = COptionReader<IUVDBDatabaseInfo2>;

bool IsPreparationOnly(const Reader& info)
{
    return info.IsOn("PREPARE_ONLY");
}

bool IsStylesheetForced(const Reader& info)
{
    return info.IsOn("TREE2SERIAL_STYLESHEET");
}

void ReadCobolOptions(const Reader& info, SParseOptions& options)
{
    options.cobolFormat = info.Text("COBOLFORMAT", "NO");
    options.savesCobolDebugInfo = info.Text("SAVE_COBOL_DEBUG_INFO") == "YES";
    options.removesCobolFormatting = info.IsOn("REMOVE_SRC_FORMATTING");
    options.cobolTabWidth = info.Read("COBOL_TAB_WIDTH", options.cobolTabWidth);
}

void ReadRpgOptions(const Reader& info, SParseOptions& options)
{
    const U8CString layout = info.Text("IBMRPG_VERSION");
    std::from_chars(layout.data(), layout.data() + layout.size(), options.rpgLayout);
}

void ReadJclOptions(const Reader& info, SParseOptions& options)
{
    const U8CString format = info.Text("JCLANSIFORMAT");
    options.hasJclFormat = format == "1" || format == "YES";
}

void ReadProgressOptions(const Reader& info, SParseOptions& options)
{
    options.includesFiles = info.Is("INCLUDE_FILES", "YES");
    options.includeRoot = info.Text("INCLUDE_ROOT");
    options.propath = info.Text("PROPATH");
}

void ReadPreparationOptions(const Reader& info, const COptionReader<IUVDBObjectInfo>& object,
                            SParseOptions& options)
{
    switch (options.kind) {
    case UVDB_DB_ASP:
        options.includeRoot = info.Text("INCLUDE_ROOT");
        options.objectId = object.Text("ObjectID");
        return;
    case UVDB_DB_4GL_PROGRESS:
        ReadProgressOptions(info, options);
        break;
    case UVDB_DB_PASCAL:
        options.resolvesDefines = info.Is("UNIK_DEFINE", "Yes");
        break;
    case UVDB_DB_COBOL:
    case UVDB_DB_TELON_COBOL:
        ReadCobolOptions(info, options);
        break;
    case UVDB_DB_IBM_RPG:
        ReadRpgOptions(info, options);
        break;
    case UVDB_DB_JCL:
        ReadJclOptions(info, options);
        break;
    case UVDB_DB_IBM_CL:
    case UVDB_DB_FOXPRO_PROGRAMS:
        break;
    default:
        return;
    }
    options.isFaithful = info.Is("SOURCE_FORMS", "FAITHFUL");
}

} // namespace

SParseOptions ReadParseOptions(const std::shared_ptr<IUVDBDatabaseInfo2>& databaseInfo,
                               const std::shared_ptr<IUVDBObjectInfo>& convertingObject)
{
    const Reader info(databaseInfo);
    const COptionReader object(convertingObject);
    DB_VERSION_INFO version;
    if (databaseInfo)
        databaseInfo->get_DbmsVersion(&version);

    SParseOptions options;
    options.kind = version.db;
    options.restartsPositions = info.IsOn("RESTART_POSITIONS");
    options.closesLostQuotes = info.IsOn("CLOSE_LOST_QUOTES");
    options.isPreparationOnly = IsPreparationOnly(info);
    options.parsesDirectives = info.Read("PARSE_DIRECTIVES", options.parsesDirectives);
    options.isChild = info.Read("ORVA_CHILD", options.isChild);
    options.isStylesheetForced = IsStylesheetForced(info);
    options.convertedObjectType = info.Read("CONVERTED_OBJECT_TYPE", options.convertedObjectType);
    const U8CString unexpected = info.Text("REPORT_UNEXPECTED_TOKENS");
    if (unexpected == "1")
        options.tokenReport = enTokenReport::Places;
    else if (unexpected == "2")
        options.tokenReport = enTokenReport::Expected;
    else if (unexpected == "3")
        options.tokenReport = enTokenReport::Terminals;
    options.reportsLostText = info.IsOn("REPORT_LOST_TEXT");
    options.reportsPreparedLines = info.IsOn("REPORT_PREPARED_LINES");
    options.reportsPreparationNotes = info.IsOn("REPORT_PREPARATION_NOTES");
    options.reportsCoverage = info.IsOn("REPORT_COVERAGE");
    options.filePath = object.Text("FilePath");
    ReadPreparationOptions(info, object, options);
    return options;
}

bool IsPreparationOnly(const std::shared_ptr<IUVDBDatabaseInfo2>& info)
{
    return IsPreparationOnly(Reader(info));
}

bool IsStylesheetForced(const std::shared_ptr<IUVDBDatabaseInfo2>& info)
{
    return IsStylesheetForced(Reader(info));
}

bool IsResultHandedOver(const std::shared_ptr<IUVDBDatabaseInfo2>& info)
{
    return Reader(info).IsOn("HAND_OVER_RESULT");
}
