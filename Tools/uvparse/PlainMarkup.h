// The words of plain trees. Plain is what trees are made of: elements, attributes in double quotes, text, the
// five entities and character references, with single blanks between attributes. Comments, namespaces, CDATA
// sections and control characters are not.
#pragma once

#include <string>
#include <string_view>

namespace uvparse {

bool IsPlainName(std::string_view text);

struct SPlainText
{
    bool isPlain = true;
    bool hasReferences = false;
};

// `isValue`: it is what stands between an attribute's quotes.
SPlainText ExaminePlain(std::string_view text, bool isValue);

// Appends to `unescaped`. `isWrittenTheSame` becomes false if libxml2 would write it in other words.
// Returns: false for a reference that isn't one of the entities.
bool UnescapePlain(std::string_view text, bool isValue, std::string& unescaped, bool& isWrittenTheSame);

// The text of a node in the words in which libxml2 writes it, of one that stands in a plain tree. `isValue`:
// it is an attribute.
std::string AsWritten(std::string_view text, bool isValue);

} // namespace uvparse
