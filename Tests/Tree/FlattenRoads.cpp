#include "Tests/Tree/FlattenRoads.h"

#include "Stylesheets/Resources.h"
#include "Stylesheets/XslTransform.h"
#include "Tree/TreeFlattener.h"
#include "UVEnvironment/UVEXml.h"

#include <libxml/tree.h>

#include <memory>

namespace {

std::string StylesheetText()
{
    XsltResourceManager resources;
    for (const unsigned int id :
         {UVParserRc::ResourceManager::kCommonMatch, UVParserRc::ResourceManager::kTree2Serial})
        resources.defineResource(std::make_shared<CUVDBSQLParserXslt>(id));
    return resources.getResource(UVParserRc::ResourceManager::kTree2Serial);
}

} // namespace

std::optional<std::string> FlattenByStylesheet(std::string_view tree)
{
    static Uve::XslTransform transform = [] {
        const std::string text = StylesheetText();
        return Uve::XslTransform(text.data(), text.size());
    }();
    const std::unique_ptr<xmlDoc, decltype(&xmlFreeDoc)> result(transform.apply(tree), &xmlFreeDoc);
    if (result == nullptr)
        return std::nullopt;
    return std::string(Uve::XmlDocument::save(Uve::XmlDocument(result.get()), false, false).c_str());
}

std::optional<std::string> FlattenNatively(std::string_view tree)
{
    std::string flat;
    if (!FlattenTree(tree, flat))
        return std::nullopt;
    return flat;
}

std::optional<std::string> FlattenFragments(const SFragmentTree& tree)
{
    if (!IsPlainTree(tree))
        return std::nullopt;
    std::string flat;
    FlattenTree(tree, flat);
    return flat;
}
