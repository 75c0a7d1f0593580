// The last step of a parse: the parser's tree, flattened by the stylesheet that is part of the library.
#include "Interfaces/IUVDBDatabaseInfo.h"
#include "Interfaces/UVDBResults.h"
#include "Metadata/Options/UVDBOptionWrapper.h"
#include "Parser/UVParser.h"
#include "Parser/UVParserGuard.h"
#include "Parser/UVParserText.h"
#include "Stylesheets/XslTransform.h"
#include "Tree/TreeFlattener.h"
#include "UVEnvironment/LogSystem.h"
#include "UVEnvironment/UVEXml.h"

#include <libxml/tree.h>

#include <chrono>
#include <utility>

namespace {

using UVParserRc::ResourceManager;

void DefineResources(XsltResourceManager& resources)
{
    for (const unsigned int id : {ResourceManager::kCommonMatch, ResourceManager::kTree2Serial})
        resources.defineResource(std::make_shared<CUVDBSQLParserXslt>(id));
}

bool IsStylesheetForced(const std::shared_ptr<IUVDBDatabaseInfo2>& info)
{
    Uve::U8CString isForced;
    if (info)
        CUVDBOptionWrapper::GetParam(info, "TREE2SERIAL_STYLESHEET", isForced);
    return isForced == "1";
}

} // namespace

void CUVDBSQLParser::DefineStylesheets()
{
    if (m_ResourcesDefined)
        return;
    try {
        DefineResources(*m_XsltResources);
    } catch (...) {
        m_XsltResources->clear(); // one alone would be in the way of the next attempt
        throw;
    }
    m_ResourcesDefined = true;
}

int CUVDBSQLParser::ExecuteTree2Serial()
{
    const auto start = std::chrono::steady_clock::now();
    CLogWrapper::WriteTraceF("\nExecuteTree2Serial: used internal execution");
    const bool isPlain = std::exchange(m_IsResultPlain, false);
    const int result = GuardMemory([&] {
        return m_Result.IsEmpty() ? UVDB_OK : Flatten(m_DatabaseInfo, m_Result, kXmlHeader, isPlain);
    });
    const auto elapsed = std::chrono::steady_clock::now() - start;
    CLogWrapper::WriteTraceF(
        "\nExecuteTree2Serial: elapsed %lld ms",
        static_cast<long long>(std::chrono::duration_cast<std::chrono::milliseconds>(elapsed).count()));
    replaceXmlHeader();
    return result;
}

int CUVDBSQLParser::Tree2Serial(std::shared_ptr<IUVDBDatabaseInfo2> info, Uve::U8CString& xml)
{
    return Flatten(info, xml, kXmlDeclaration, false);
}

int CUVDBSQLParser::Flatten(const std::shared_ptr<IUVDBDatabaseInfo2>& info, Uve::U8CString& xml,
                            std::string_view declaration, bool isPlain)
{
    return GuardMemory([&] {
        // The flattener does the work of the stylesheet. Putting that one together takes longer than a small
        // parse.
        if (m_ResourcesDefined && !IsStylesheetForced(info)) {
            if (isPlain)
                return static_cast<int>(FlattenTreeInPlace(xml, declaration) ? UVDB_OK : UVDB_ERROR);
            std::string flattened;
            if (FlattenTree(xml, flattened, declaration)) {
                xml = std::move(flattened);
                return static_cast<int>(UVDB_OK);
            }
        }
        const std::string stylesheet = m_XsltResources->getResource(ResourceManager::kTree2Serial);
        Uve::XslTransform transform(stylesheet.data(), stylesheet.size());
        xmlDoc* const document = transform.apply(xml.data(), xml.size());
        if (document == nullptr) {
            CLogWrapper::WriteTraceF("UVParser> ERROR: Tree2Serial error.");
            return static_cast<int>(UVDB_ERROR);
        }
        xml = Uve::XmlDocument::save(document, false, false).raw();
        xmlFreeDoc(document);
        return static_cast<int>(UVDB_OK);
    });
}
