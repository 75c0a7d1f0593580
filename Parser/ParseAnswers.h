// The options that a parse writes:
//
//     option             type                          on             when
//     WARNINGS_COUNT     std::map<int, unsigned long>  database info  a tree was made
//     WARNINGS_TYPES     std::map<std::string, int>    database info  a tree was made
//     markers of blocks  text                          object         a page was prepared
//     ObjectID + VBPart  text                          database info  a page was prepared
//     PREPARED_BY        text                          database info  the end, if the host asked for it
//     PREPARED_LINES     text                          database info  likewise
//     PREPARATION_NOTES  text                          database info  likewise
//     LOST_TEXT          text                          database info  likewise
//     UNEXPECTED_TOKENS  text                          database info  likewise
//     COVERAGE           text                          database info  likewise
//
// The two on warnings add up over parses; the others are written anew.
#pragma once

#include "Parser/ParseOptions.h"
#include "Parser/ParsedText.h"
#include "Preparation/Formatters/Asp.h"
#include "UVEnvironment/UVEUnicodeString.h"

#include <map>
#include <memory>
#include <string>
#include <string_view>

class IUVDBDatabaseInfo2;
class IUVDBObjectInfo;

using DatabaseInfoPointer = std::shared_ptr<IUVDBDatabaseInfo2>;

// Adds the unexpected tokens of a tree to the warnings. A number of the object's type that has none gets its
// entry all the same.
void UpdateWarningsInfo(const DatabaseInfoPointer& info, int convertedObjectType,
                        const std::multimap<unsigned long, std::string>& tokens);

// The script of a page: its blocks on the object, all of it on the database info.
void WriteScript(const DatabaseInfoPointer& info, const std::shared_ptr<IUVDBObjectInfo>& object,
                 const Uve::U8CString& objectId, const SAspPage& page);

// The lists that `options` ask for.
// Returns: as CUVDBOptionWrapper::SetParam; UVDB_OK for what nobody asked for.
int WritePreparationReports(const DatabaseInfoPointer& info, const SParseOptions& options,
                            const SParsedText& parsed);
int WriteErrorReports(const DatabaseInfoPointer& info, const SParseOptions& options, std::string_view text,
                      const SParseFindings& findings);
