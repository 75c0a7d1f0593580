// Names as XML and HTML can hold them.
#pragma once

#include <string>
#include <string_view>

namespace uvnames {

// `text` as the content of an element or of an attribute. Control characters and bytes that aren't UTF-8
// become the replacement character: neither has a place there.
std::string MarkupText(std::string_view text);

} // namespace uvnames
