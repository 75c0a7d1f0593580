// The flattening of parse trees without an XSLT processor: what res/Tree2Serial.xslt does to a tree, in one
// pass over its text. The stylesheet is the definition; the two give the same bytes.
#pragma once

#include <string>
#include <string_view>

// What a serialiser puts in front of a document.
inline constexpr std::string_view kXmlDeclaration = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>";

// Flattens `tree` (UTF-8) and puts the result document's text in the place of `out`, behind `declaration` and
// a line feed. Time and memory grow with the text alone, however deep the tree is: beside `out`, the records
// of elements that wait for a decision are held, less than the text itself. Returns: false, with `out` empty,
// for a text that isn't a tree in the plain form which CTreeEvents reads:
//          the stylesheet decides about it.
// Throws:  std::length_error if the rules multiply the tree: delimiters within delimiters are copied again at
//          each level.
[[nodiscard]] bool FlattenTree(std::string_view tree, std::string& out,
                               std::string_view declaration = kXmlDeclaration);

// The same with the result in the place of the tree, written over what has been read of it: a long tree needs
// no second text beside it. For trees that are known to be in the plain form, since nothing is left of one
// that turns out not to be: `tree` is empty then, and as well if something is thrown.
[[nodiscard]] bool FlattenTreeInPlace(std::string& tree, std::string_view declaration = kXmlDeclaration);
