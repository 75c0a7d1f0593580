#include "Tools/uvgrammar-elements/ElementsReport.h"

#include <nlohmann/json.hpp>

namespace uvelements {

namespace {

using Json = nlohmann::ordered_json;

const char* CountName(const SChild& child)
{
    if (child.isRepeated)
        return child.isOptional ? "any" : "some";
    return child.isOptional ? "optional" : "one";
}

Json ObjectOf(const STreeElement& element, const std::map<std::string, SExample>& examples)
{
    Json children = Json::array();
    for (const SChild& child : element.children)
        children.push_back(
            {{"names", child.names}, {"count", CountName(child)}, {"only_after_errors", child.isOfErrors}});
    Json rules = Json::array();
    for (const SRulePlace& place : element.places)
        rules.push_back({{"file", place.file}, {"line", place.line}});
    const auto found = examples.find(element.name);
    Json example;
    if (found != examples.end())
        example = {{"text", found->second.text},
                   {"is_whole_case", found->second.isWhole},
                   {"file", found->second.file},
                   {"line", found->second.line}};
    return {{"name", element.name}, {"list", element.isList},     {"only_after_errors", element.isOfErrors},
            {"rules", rules},       {"parents", element.parents}, {"children", children},
            {"example", example}};
}

} // namespace

std::string ElementsJson(const SLanguageElements& elements)
{
    std::string text =
        "{\"language\": " + Json(elements.language).dump(-1, ' ', false, Json::error_handler_t::replace) +
        ",\n\"elements\": [";
    const char* separator = "\n";
    for (const STreeElement& element : elements.tree.elements) {
        // Examples may be of bytes that are no UTF-8.
        text += separator +
                ObjectOf(element, elements.examples).dump(-1, ' ', false, Json::error_handler_t::replace);
        separator = ",\n";
    }
    return text + "\n]}\n";
}

} // namespace uvelements
