// The last step of a parse: the parser's tree, flattened by the stylesheet that is part of the library.
#include "Interfaces/IUVDBDatabaseInfo.h"
#include "Interfaces/UVDBResults.h"
#include "Parser/ParseOptions.h"
#include "Parser/UVParser.h"
#include "Parser/UVParserGuard.h"
#include "Parser/XmlHeader.h"
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
    return FlattenResult(m_Parsed.findings.result, IsStylesheetForced(m_DatabaseInfo));
}

int CUVDBSQLParser::Flatten(const SParseOptions& options, CParseResult& result)
{
    return FlattenResult(result, options.isStylesheetForced);
}

int CUVDBSQLParser::FlattenResult(CParseResult& result, bool isStylesheetForced)
{
    const auto start = std::chrono::steady_clock::now();
    CLogWrapper::WriteTraceF("\nExecuteTree2Serial: used internal execution");
    const int code = GuardMemory(m_Parsed.isOutOfMemory, [&]() -> int {
        if (result.IsEmpty())
            return UVDB_OK;
        if (IsFlattenedNatively(isStylesheetForced) && result.FlattenFragments(kXmlHeader))
            return UVDB_OK;
        return FlattenText(result.Text(), isStylesheetForced, kXmlHeader);
    });
    const auto elapsed = std::chrono::steady_clock::now() - start;
    CLogWrapper::WriteTraceF(
        "\nExecuteTree2Serial: elapsed %lld ms",
        static_cast<long long>(std::chrono::duration_cast<std::chrono::milliseconds>(elapsed).count()));
    ReplaceXmlHeader(result.Text());
    return code;
}

int CUVDBSQLParser::Tree2Serial(std::shared_ptr<IUVDBDatabaseInfo2> info, Uve::U8CString& xml)
{
    return GuardMemory(m_Parsed.isOutOfMemory,
                       [&] { return FlattenText(xml, IsStylesheetForced(info), kXmlDeclaration); });
}

int CUVDBSQLParser::FlattenText(Uve::U8CString& xml, bool isStylesheetForced, std::string_view declaration)
{
    std::string flattened;
    // Putting the stylesheet together takes longer than a small parse.
    if (IsFlattenedNatively(isStylesheetForced) && FlattenTree(xml, flattened, declaration)) {
        xml = std::move(flattened);
        return UVDB_OK;
    }
    const std::string stylesheet = m_XsltResources->getResource(ResourceManager::kTree2Serial);
    Uve::XslTransform transform(stylesheet.data(), stylesheet.size());
    xmlDoc* const document = transform.apply(xml.data(), xml.size());
    if (document == nullptr) {
        CLogWrapper::WriteTraceF("UVParser> ERROR: Tree2Serial error.");
        return UVDB_ERROR;
    }
    xml = Uve::XmlDocument::save(document, false, false).raw();
    xmlFreeDoc(document);
    return UVDB_OK;
}
