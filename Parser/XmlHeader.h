// What stands around a result: the XML header, and an element for what is no tree.
#pragma once

#include "UVEnvironment/UVEUnicodeString.h"

#include <string_view>

inline constexpr std::string_view kXmlHeader = "<?xml version=\"1.0\" ?>";

// `text` after an XML header of its own: one that it has goes, with everything before it.
void ReplaceXmlHeader(Uve::U8CString& text);

// The text between `<name>` and `</name>`, not escaped.
Uve::U8CString WrapInElement(std::string_view name, std::string_view text);
