// The flattening of parse trees without an XSLT processor: what res/Tree2Serial.xslt of the stylesheets does
// to a tree, in one pass. The stylesheet is the definition; all ways give the same bytes.
//
// Time and memory grow with the tree alone, however deep it is: beside the result, the records of elements
// that wait for a decision are held, less than the text itself. All throw std::length_error, with `out`
// empty, if the rules multiply the tree: delimiters within delimiters are copied again at each level.
#pragma once

#include "Tree/FragmentTree.h"

#include <string>
#include <string_view>

// What a serialiser puts before a document.
inline constexpr std::string_view kXmlDeclaration = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>";

// Flattens a raw tree's text (UTF-8) and puts the result document's text in the place of `out`, after
// `declaration` and a line feed.
// Returns: false, with `out` empty, for a text that isn't a tree in the plain form which CTextEvents reads:
//          the stylesheet decides about it.
[[nodiscard]] bool FlattenTree(std::string_view tree, std::string& out,
                               std::string_view declaration = kXmlDeclaration);

// The same for a tree that is plain by IsPlainTree. Releases the pool, whatever the end; the memory of
// fragments that are through goes as the result grows.
void FlattenTree(const SFragmentTree& tree, std::string& out, std::string_view declaration = kXmlDeclaration);
