#include "Parser/XmlHeader.h"

#include <cstddef>

void ReplaceXmlHeader(Uve::U8CString& text)
{
    const std::string_view view(text.data(), text.size());
    std::size_t contentStart = 0;
    if (view.find("<?xml") != std::string_view::npos) {
        if (const std::size_t headerEnd = view.find("?>"); headerEnd != std::string_view::npos)
            contentStart = headerEnd + 2;
    }
    text.replace(std::size_t{0}, contentStart, kXmlHeader);
}

Uve::U8CString WrapInElement(std::string_view name, std::string_view text)
{
    Uve::U8CString element;
    element.reserve(text.size() + 2 * name.size() + 5);
    element.append(1u, '<').append(name).append(1u, '>').append(text).append("</").append(name).append(1u,
                                                                                                       '>');
    return element;
}
