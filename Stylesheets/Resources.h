// The stylesheets that are part of the library. They are files under Stylesheets/res/, which the build puts
// into the program as text. A stylesheet names itself by the id of its first element; other built-in ones
// include it under that name:
//     <xslt:stylesheet id="Name.xslt" ...>        the id is the first attribute
//     <xslt:include href="Name.xslt"/>            takes in what stands inside the element of that stylesheet
// That is done on the text, before it is read as XML.
#pragma once

#include <map>
#include <memory>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace UVParserRc {

// The texts as the build took them, one singleton for the process. Safe to use from several threads.
class ResourceManager
{
public:
    static constexpr unsigned int kCommonMatch = 1;
    static constexpr unsigned int kTree2Serial = 2;

    static ResourceManager& getInstance();

    // By number, or by path from the folder of the stylesheets: "res/Tree2Serial.xslt".
    // Throws: std::runtime_error "unknown resource id".
    std::string getResource(unsigned int id) const;
    std::string getResource(const std::string_view& name) const;

    ResourceManager(const ResourceManager&) = delete;
    ResourceManager& operator=(const ResourceManager&) = delete;

private:
    ResourceManager() = default;
};

} // namespace UVParserRc

// A stylesheet that can be registered.
class XsltResource
{
public:
    explicit XsltResource(unsigned int resourceId) : id(resourceId) {}
    virtual ~XsltResource() = default;

    // The text, imports as they stand.
    virtual std::string load() = 0;

    unsigned int id;
};

// One of those in the library. load throws as ResourceManager does.
class CUVDBSQLParserXslt : public XsltResource
{
public:
    using XsltResource::XsltResource;
    std::string load() override;
};

// The stylesheets that can include each other. Not locked.
class XsltResourceManager
{
public:
    // Registers under the id that the text gives.
    // Owner:  shares.
    // Throws: std::runtime_error if the pointer is null, the number or the id is taken already, or the text
    //         has no id.
    void defineResource(std::shared_ptr<XsltResource> resource);

    // The text with all it includes.
    // Throws: std::runtime_error if there is no such resource, or as importResolve.
    std::string getResource(unsigned int id);

    // The id that the text gives itself.
    // Throws: std::runtime_error if there is no such resource.
    std::string getResourceName(unsigned int id) const;

    // Writes `text`, and in place of each include or import line the inside of the stylesheet that it names.
    // A stylesheet whose element can't be made out gives nothing.
    // Throws: std::runtime_error for a name that isn't registered, and for a stylesheet that includes itself,
    //         be it through others.
    void importResolve(std::stringstream& out, const std::string& text);

    void clear() { m_Resources.clear(); }

private:
    using ResourceMap = std::map<std::string, std::shared_ptr<XsltResource>>;

    ResourceMap::const_iterator Find(unsigned int id) const;
    void Resolve(std::ostream& out, const std::string& text, std::vector<std::string>& open);

    ResourceMap m_Resources;
};
