// Reading the texts to be parsed.
#pragma once

#include <string>

namespace uvparse {

// The whole of a file, a pipe, or standard input ("-") as UTF-8 without its byte order mark. It is read in
// `encoding`, by iconv's name; without one a byte order mark decides, and what has none is UTF-8.
// Throws: CToolFailure if it can't be read or isn't text.
std::string ReadSourceText(const std::string& path, const std::string& encoding);

// The same for bytes at hand; `name` is what messages call them. The text can't hold a NUL: the parser would
// take it for the end. A byte order mark that isn't the encoding's is refused: one of both must be wrong.
// Throws: CToolFailure with the offset into `bytes`, or if there is no such encoding.
std::string DecodeSourceText(std::string bytes, const std::string& name, const std::string& encoding = {});

// The text as an ordinary parse sees it: a zero-width space counts as a blank. A raw parse sees the text as
// it stands.
std::string PreparedText(const std::string& text);

} // namespace uvparse
