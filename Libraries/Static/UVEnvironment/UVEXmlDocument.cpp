#include "UVEnvironment/UVEXml.h"
#include "UVEnvironment/UVEXmlRead.h"
#include "UVEnvironment/UVEXmlTree.h"

#include <libxml/parser.h>
#include <libxml/xmlIO.h>
#include <libxml/xmlsave.h>

#include <cstddef>
#include <exception>
#include <string>
#include <string_view>
#include <utility>

namespace Uve {

namespace {

constexpr int kFormat = 1;

// Blank handling is process-wide; indenting needs it off.
class CDropBlanks
{
public:
    CDropBlanks() : m_Before(xmlKeepBlanksDefault(0)) {}
    ~CDropBlanks() { xmlKeepBlanksDefault(m_Before); }
    CDropBlanks(const CDropBlanks&) = delete;
    CDropBlanks& operator=(const CDropBlanks&) = delete;

private:
    int m_Before;
};

struct SSavedText
{
    std::string text;
    std::exception_ptr failure;
};

// Collects what libxml2 writes. The text may be a gigabyte: it is written into its string piece by piece
// instead of being copied from a buffer of libxml2's. An exception mustn't pass through libxml2 and waits.
int save_to_string_cb(void* context, const char* buffer, int length)
{
    auto* saved = static_cast<SSavedText*>(context);
    try {
        saved->text.append(buffer, static_cast<std::size_t>(length));
        return length;
    } catch (...) {
        saved->failure = std::current_exception();
        return -1;
    }
}

// The text that `write` puts into the buffer that it gets and closes.
template <class Write>
std::string Collect(const Write& write)
{
    SSavedText saved;
    if (xmlOutputBuffer* buffer = xmlOutputBufferCreateIO(save_to_string_cb, nullptr, &saved, nullptr))
        write(buffer);
    if (saved.failure)
        std::rethrow_exception(saved.failure);
    return std::move(saved.text);
}

void StripDeclaration(std::string& text)
{
    const auto start = text.find("<?xml");
    const auto end = start != std::string::npos ? text.find("?>", start) : start;
    if (end == std::string::npos)
        return;
    text.erase(0, text.find_first_not_of("\r\n\t", end + std::string_view("?>").size()));
}

} // namespace

u8string XmlNode::save(const XmlNode& node)
{
    if (!IsTreeNode(node.node()))
        return {};
    std::string text;
    {
        const CDropBlanks dropBlanks;
        text = Collect([&](xmlOutputBuffer* buffer) {
            // What xmlNodeDump does, without its limit of 2 GB.
            xmlNodeDumpOutput(buffer, node.node()->doc, node.node(), 0, kFormat, nullptr);
            xmlOutputBufferClose(buffer);
        });
    }
    xmlCleanupParser();
    return text;
}

XmlDocument::XmlDocument(xmlDoc* document) noexcept : XmlNode(reinterpret_cast<xmlNode*>(document)) {}

xmlDoc* XmlDocument::doc() const noexcept
{
    return reinterpret_cast<xmlDoc*>(m_Node);
}

XmlDocument XmlDocument::createDocument(const u8string& path)
{
    return ReadXmlFile(path.c_str());
}

XmlDocument XmlDocument::createDocumentXml(const u8string& xml)
{
    return ReadXml(xml.data(), xml.bytes());
}

XmlElement XmlDocument::getRootElement() const noexcept
{
    return XmlElement(isDocument() ? xmlDocGetRootElement(doc()) : nullptr);
}

u8string XmlDocument::save(const XmlDocument& document, bool stripDeclaration, bool format)
{
    if (!document.isDocument())
        return {};
    const CDropBlanks dropBlanks;
    std::string text = Collect([&](xmlOutputBuffer* buffer) {
        // What xmlDocDumpFormatMemoryEnc does, without its limit of 2 GB; closes the buffer.
        xmlSaveFormatFileTo(buffer, document.doc(), "UTF-8", format ? kFormat : 0);
    });
    if (stripDeclaration)
        StripDeclaration(text);
    return text;
}

} // namespace Uve
