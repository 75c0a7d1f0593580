#include "Stylesheets/Resources.h"

#include "Stylesheets/EmbeddedStylesheets.h"

#include <boost/regex.hpp>

#include <algorithm>
#include <locale>
#include <optional>
#include <stdexcept>
#include <utility>

namespace {

struct SEmbeddedText
{
    unsigned int id;
    std::string_view name;
    std::string_view text;
};

const SEmbeddedText* FindText(auto matches)
{
    static const SEmbeddedText kTexts[] = {
        {UVParserRc::ResourceManager::kCommonMatch, "res/CommonMatch.xslt", kCommonMatchXslt},
        {UVParserRc::ResourceManager::kTree2Serial, "res/Tree2Serial.xslt", kTree2SerialXslt},
    };
    const auto found = std::find_if(std::begin(kTexts), std::end(kTexts), matches);
    if (found == std::end(kTexts))
        throw std::runtime_error("unknown resource id");
    return found;
}

// Classes of characters mean ASCII whatever the host's locale is.
boost::regex Expression(const char* expression)
{
    boost::regex compiled;
    compiled.imbue(std::locale::classic());
    compiled.assign(expression);
    return compiled;
}

void SkipBlanks(std::string_view& text)
{
    text.remove_prefix(std::min(text.find_first_not_of(" \t\n\v\f\r"), text.size()));
}

bool Skip(std::string_view& text, std::string_view word)
{
    if (!text.starts_with(word))
        return false;
    text.remove_prefix(word.size());
    return true;
}

// The id that stands first in the element. Read by hand, since it is asked for at every start.
// Returns: nothing if `text`, what follows "<xslt:stylesheet", has none.
std::optional<std::string> TakeId(std::string_view text)
{
    const std::size_t size = text.size();
    SkipBlanks(text);
    if (text.size() == size || !Skip(text, "id"))
        return {};
    SkipBlanks(text);
    if (!Skip(text, "="))
        return {};
    SkipBlanks(text);
    if (!Skip(text, "\""))
        return {};
    constexpr std::string_view kLetters =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_.\\/";
    const std::size_t end = text.find_first_not_of(kLetters);
    if (end == text.npos || text[end] != '"')
        return {};
    return std::string(text.substr(0, end));
}

std::string StylesheetId(const std::string& text)
{
    constexpr std::string_view kElement = "<xslt:stylesheet";
    std::optional<std::string> id;
    for (std::size_t at = text.find(kElement); at != text.npos && !id; at = text.find(kElement, at + 1))
        id = TakeId(std::string_view(text).substr(at + kElement.size()));
    if (!id)
        throw std::runtime_error("unable to extract stylesheet id");
    if (id->empty())
        throw std::runtime_error("empty stylesheet id is not allowed");
    return *id;
}

} // namespace

namespace UVParserRc {

ResourceManager& ResourceManager::getInstance()
{
    static ResourceManager instance;
    return instance;
}

std::string ResourceManager::getResource(unsigned int id) const
{
    return std::string(FindText([id](const SEmbeddedText& text) { return text.id == id; })->text);
}

std::string ResourceManager::getResource(const std::string_view& name) const
{
    return std::string(FindText([name](const SEmbeddedText& text) { return text.name == name; })->text);
}

} // namespace UVParserRc

std::string CUVDBSQLParserXslt::load()
{
    return UVParserRc::ResourceManager::getInstance().getResource(id);
}

void XsltResourceManager::defineResource(std::shared_ptr<XsltResource> resource)
{
    if (!resource)
        throw std::runtime_error("argument is null");
    if (Find(resource->id) != m_Resources.end())
        throw std::runtime_error("an resource with the same id already exists");
    std::string stylesheetId = StylesheetId(resource->load());
    if (!m_Resources.emplace(std::move(stylesheetId), std::move(resource)).second)
        throw std::runtime_error("an stylesheet with the same id already exists");
}

std::string XsltResourceManager::getResource(unsigned int id)
{
    const auto found = Find(id);
    if (found == m_Resources.end())
        throw std::runtime_error("unable to find resource");
    std::stringstream out;
    std::vector<std::string> open{found->first};
    Resolve(out, found->second->load(), open);
    return std::move(out).str();
}

std::string XsltResourceManager::getResourceName(unsigned int id) const
{
    const auto found = Find(id);
    if (found == m_Resources.end())
        throw std::runtime_error("unable to find resource");
    return found->first;
}

void XsltResourceManager::importResolve(std::stringstream& out, const std::string& text)
{
    std::vector<std::string> open;
    Resolve(out, text, open);
}

XsltResourceManager::ResourceMap::const_iterator XsltResourceManager::Find(unsigned int id) const
{
    return std::find_if(m_Resources.begin(), m_Resources.end(),
                        [id](const auto& entry) { return entry.second->id == id; });
}

// `open` holds the stylesheets inside which `text` stands. It bounds the recursion: none comes in it twice.
void XsltResourceManager::Resolve(std::ostream& out, const std::string& text, std::vector<std::string>& open)
{
    static const boost::regex kImport =
        Expression(R"re(<xslt:(import|include)\s+href\s*=\s*"([\w.]+)"\s*\/>)re");
    static const boost::regex kStylesheet = Expression(
        R"re(<xslt:stylesheet(\s+([\w:]+\s*=\s*"[\-\w.:/]+"))+\s*>([\s\S]*?)<\/xslt:stylesheet>)re");

    const char* position = text.data();
    const char* const end = position + text.size();
    boost::cmatch import;
    while (boost::regex_search(position, end, import, kImport)) {
        out.write(position, import[0].first - position) << '\n';
        position = import[0].second;

        const std::string name = import.str(2);
        const auto found = m_Resources.find(name);
        if (found == m_Resources.end())
            throw std::runtime_error("unable to find resource with name '" + name + "'");
        if (std::find(open.begin(), open.end(), name) != open.end())
            throw std::runtime_error("resource '" + name + "' includes itself");

        const std::string included = found->second->load();
        boost::smatch stylesheet;
        if (boost::regex_search(included, stylesheet, kStylesheet)) {
            open.push_back(name);
            Resolve(out, stylesheet[3].str(), open);
            open.pop_back();
            out << '\n';
        }
    }
    out.write(position, end - position);
}
