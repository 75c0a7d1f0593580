#pragma once

#include "UVEnvironment/UVEUnicodeString.h"

// `text` as the content of an XML element or attribute: the five special characters become entities. Two
// control characters have no place in XML: every form feed goes, and every data link escape becomes
// ORVANTA_DATA_LINK_ESCAPE_REPLACER, which is undone downstream.
Uve::U8CString UVDBEscapeXML(const Uve::U8CString& text);
