#include "Stylesheets/XslSandbox.h"

#include "Stylesheets/OwnStack.h"
#include "Stylesheets/RulesFolder.h"
#include "Stylesheets/XsltVariables.h"
#include "UVEnvironment/FileHelper.h"
#include "UVEnvironment/UVEXmlRead.h"

#include <libxml/entities.h>
#include <libxml/parser.h>
#include <libxml/tree.h>
#include <libxml/uri.h>
#include <libxslt/documents.h>
#include <libxslt/security.h>
#include <libxslt/transform.h>
#include <libxslt/xslt.h>
#include <libxslt/xsltInternals.h>
#include <libxslt/xsltutils.h>

#include <cstdint>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string_view>
#include <system_error>

namespace Uve {

namespace {

namespace fs = std::filesystem;

// Folders beside the host's executable whose files stylesheets may read.
constexpr const char* kRuleFolders[] = {"rules", "rules_KEL", "crs"};

constexpr std::uintmax_t kLargestRuleFile = std::uintmax_t{1} << 30;

// Where on its own stack a transform is stopped. Above it stay the 26 MB of 40000 templates many times over,
// below it there is room for what libxslt does between two templates: walking and copying a tree of
// kOwnStackTreeDepth.
constexpr std::size_t kStackForTemplates = std::size_t{256} << 20;

std::recursive_mutex g_SandboxMutex;
int g_OpenSandboxes = 0;

struct SXmlUriDeleter
{
    void operator()(xmlURI* uri) const { xmlFreeURI(uri); }
};

struct SXmlDocDeleter
{
    void operator()(xmlDoc* document) const { xmlFreeDoc(document); }
};

struct SPrefsDeleter
{
    void operator()(xsltSecurityPrefs* prefs) const { xsltFreeSecurityPrefs(prefs); }
};

std::optional<std::string> FindRuleFileAt(const char* path)
{
    for (const char* folder : kRuleFolders)
        if (auto file = FindFileBelow(Path::Combine(GetPathOfExe(), folder), path))
            return file;
    return std::nullopt;
}

// The answers of 1 and 0 are libxslt's "allowed" and "refused".
int MayReadFile(xsltSecurityPrefs*, xsltTransformContext*, const char* path)
{
    // document('') names no file, but the stylesheet.
    if (path == nullptr || *path == '\0')
        return 1;
    try {
        return FindRuleFileAt(path) ? 1 : 0;
    } catch (...) {
        return 0;
    }
}

std::unique_ptr<xsltSecurityPrefs, SPrefsDeleter> MakePrefs()
{
    std::unique_ptr<xsltSecurityPrefs, SPrefsDeleter> prefs(xsltNewSecurityPrefs());
    if (prefs == nullptr)
        return nullptr;
    const auto set = [&](xsltSecurityOption option, xsltSecurityCheck check) {
        return xsltSetSecurityPrefs(prefs.get(), option, check) == 0;
    };
    if (!set(XSLT_SECPREF_READ_FILE, MayReadFile) || !set(XSLT_SECPREF_WRITE_FILE, xsltSecurityForbid) ||
        !set(XSLT_SECPREF_CREATE_DIRECTORY, xsltSecurityForbid) ||
        !set(XSLT_SECPREF_READ_NETWORK, xsltSecurityForbid) ||
        !set(XSLT_SECPREF_WRITE_NETWORK, xsltSecurityForbid))
        return nullptr;
    return prefs;
}

xsltSecurityPrefs* Prefs()
{
    static const std::unique_ptr<xsltSecurityPrefs, SPrefsDeleter> prefs = MakePrefs();
    return prefs.get();
}

std::optional<std::string> ReadRuleFile(const std::string& path)
{
    std::error_code failure;
    const std::uintmax_t size = fs::file_size(path, failure);
    if (failure || size > kLargestRuleFile)
        return std::nullopt;
    std::ifstream stream(path, std::ios::binary);
    std::string text(static_cast<std::size_t>(size), '\0');
    if (!stream.read(text.data(), static_cast<std::streamsize>(text.size())))
        return std::nullopt;
    return text;
}

// Takes the place of libxslt's own loader, which would resolve entities, load DTDs and ask the system's
// catalogue.
xmlDoc* LoadRuleFile(const xmlChar* uri, xmlDict*, int, void*, xsltLoadType)
{
    try {
        const std::optional<std::string> path = FindRuleFile(reinterpret_cast<const char*>(uri));
        if (!path)
            return nullptr;
        const std::optional<std::string> text = ReadRuleFile(*path);
        if (!text)
            return nullptr;
        std::unique_ptr<xmlDoc, SXmlDocDeleter> document(ReadXml(text->data(), text->size()));
        if (document == nullptr || HasExternalEntities(document.get()) ||
            IsTreeDeeperThan(document.get(), kOwnStackTreeDepth))
            return nullptr;
        document->URL = xmlStrdup(uri); // what names in this file are relative to
        return document.release();
    } catch (...) {
        return nullptr;
    }
}

// libxslt calls this before each run of instructions. The depth of templates it counts itself, but not what
// its built-in rules need to get down to the next template, and these may start over at the root each time.
void StopBeforeStackEnds(xmlNode* instruction, xmlNode*, xsltTemplate*, xsltTransformContext* context)
{
    if (OwnStackBytesInUse() < kStackForTemplates || context->state == XSLT_STATE_STOPPED)
        return;
    xsltTransformError(context, nullptr, instruction,
                       "A potential infinite template recursion was detected: "
                       "templates and built-in rules nest too deep.\n");
    context->state = XSLT_STATE_STOPPED;
}

// The record that libxslt takes as its debugger's entry points.
struct SDebuggerCallbacks
{
    xsltHandleDebuggerCallback handler = nullptr;
    xsltAddCallCallback addCall = nullptr;
    xsltDropCallCallback dropCall = nullptr;
};

void SetDebugger(xsltHandleDebuggerCallback handler)
{
    SDebuggerCallbacks callbacks{.handler = handler};
    xsltSetDebuggerCallbacks(3, &callbacks);
}

} // namespace

std::optional<std::string> FindRuleFile(const char* uri)
{
    const std::unique_ptr<xmlURI, SXmlUriDeleter> parsed(xmlParseURI(uri));
    if (parsed == nullptr || parsed->path == nullptr)
        return std::nullopt;
    const bool isFile = parsed->scheme == nullptr || std::strcmp(parsed->scheme, "file") == 0;
    const bool isHere =
        parsed->server == nullptr || *parsed->server == '\0' || std::strcmp(parsed->server, "localhost") == 0;
    if (!isFile || !isHere)
        return std::nullopt;
    return FindRuleFileAt(parsed->path);
}

bool HasExternalEntities(const xmlDoc* document)
{
    if (document->intSubset == nullptr)
        return false;
    for (const xmlNode* node = document->intSubset->children; node != nullptr; node = node->next) {
        if (node->type != XML_ENTITY_DECL)
            continue;
        const xmlEntityType type = reinterpret_cast<const xmlEntity*>(node)->etype;
        if (type == XML_EXTERNAL_GENERAL_PARSED_ENTITY || type == XML_EXTERNAL_PARAMETER_ENTITY)
            return true;
    }
    return false;
}

bool IsTreeDeeperThan(const xmlDoc* document, std::size_t limit)
{
    const auto* const root = reinterpret_cast<const xmlNode*>(document);
    const xmlNode* node = root;
    std::size_t depth = 0;
    for (;;) {
        // What hangs below a reference or a DTD belongs to the entities.
        if ((node == root || node->type == XML_ELEMENT_NODE) && node->children != nullptr) {
            node = node->children;
            if (++depth > limit + 1)
                return true;
            continue;
        }
        while (node != root && node->next == nullptr) {
            node = node->parent;
            --depth;
        }
        if (node == root)
            return false;
        node = node->next;
    }
}

struct CXslSandbox::SEarlier
{
    xsltSecurityPrefs* prefs = xsltGetDefaultSecurityPrefs();
    xsltDocLoaderFunc loader = XsltDefaultLoader();
    int xinclude = xsltGetXIncludeDefault();
};

CXslSandbox::CXslSandbox() : m_Lock(g_SandboxMutex)
{
    if (Prefs() == nullptr)
        return;
    m_Earlier = std::make_unique<SEarlier>();
    xsltSetDefaultSecurityPrefs(Prefs());
    xsltSetLoaderFunc(LoadRuleFile);
    xsltSetXIncludeDefault(0);
    if (g_OpenSandboxes++ == 0)
        SetDebugger(StopBeforeStackEnds);
}

CXslSandbox::~CXslSandbox()
{
    if (m_Earlier == nullptr)
        return;
    if (--g_OpenSandboxes == 0)
        SetDebugger(nullptr);
    xsltSetXIncludeDefault(m_Earlier->xinclude);
    xsltSetLoaderFunc(m_Earlier->loader);
    xsltSetDefaultSecurityPrefs(m_Earlier->prefs);
}

bool CXslSandbox::Confine(xsltTransformContext* context) const
{
    context->xinclude = 0;
    context->debugStatus = XSLT_DEBUG_RUN; // has StopBeforeStackEnds called, and nothing else
    return xsltSetCtxtSecurityPrefs(Prefs(), context) == 0;
}

} // namespace Uve
