// Where the macro processor finds include files.
#pragma once

#include <fstream>
#include <list>
#include <string>
#include <vector>

namespace MacroPreprocessorChecker::internal {

// A path with single slashes, without "./", and without "directory/..". One with "*" or "?" stays as it is.
std::string simplifyPath(const std::string& path);

// The places where a header is looked for, in order: an absolute one as it stands; else beside the source
// file, unless it is a system header, and in each of the include paths.
std::vector<std::string> HeaderPlaces(const std::list<std::string>& includePaths,
                                      const std::string& sourceFile, const std::string& header,
                                      bool isSystem);

// Opens a regular file. A path that failed once isn't tried again while the process lives.
// Returns: true if `stream` is open.
bool OpenHeader(std::ifstream& stream, const std::string& simplePath);

// The path as the file system spells it, links followed; `path` itself if there is no such file.
std::string realFilename(const std::string& path);

} // namespace MacroPreprocessorChecker::internal
