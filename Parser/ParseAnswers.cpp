#include "Parser/ParseAnswers.h"

#include "Interfaces/IUVDBDatabaseInfo.h"
#include "Interfaces/IUVDBObjectInfo.h"
#include "Interfaces/UVDBResults.h"
#include "Metadata/Options/UVDBOptionWrapper.h"
#include "Parser/UVParserReports.h"
#include "Parser/UVParserText.h"

#include <algorithm>

using Uve::U8CString;

void UpdateWarningsInfo(const DatabaseInfoPointer& info, int convertedObjectType,
                        const std::multimap<unsigned long, std::string>& tokens)
{
    constexpr char kWarningsCount[] = "WARNINGS_COUNT";
    constexpr char kWarningsTypes[] = "WARNINGS_TYPES";

    // An object type without a single unexpected token gets its entry too: hosts count parsed types by it.
    std::map<int, unsigned long> counts;
    CUVDBOptionWrapper::GetParam(info, kWarningsCount, counts);
    counts[convertedObjectType] += tokens.size();
    CUVDBOptionWrapper::SetParam(info, kWarningsCount, counts);

    std::map<std::string, int> types;
    CUVDBOptionWrapper::GetParam(info, kWarningsTypes, types);
    for (const auto& [line, token] : tokens)
        ++types[token];
    CUVDBOptionWrapper::SetParam(info, kWarningsTypes, types);
}

void WriteScript(const DatabaseInfoPointer& info, const std::shared_ptr<IUVDBObjectInfo>& object,
                 const U8CString& objectId, const SAspPage& page)
{
    for (const SAspBlock& block : page.blocks)
        CUVDBOptionWrapper::SetParam(object, block.marker, block.text);
    CUVDBOptionWrapper::SetParam(info, objectId + "VBPart", page.script);
}

int WritePreparationReports(const DatabaseInfoPointer& info, const SParseOptions& options,
                            const SParsedText& parsed)
{
    int result = UVDB_OK;
    if (options.reportsPreparedLines) {
        CUVDBOptionWrapper::SetParam(info, "PREPARED_BY", U8CString(parsed.preparedBy));
        result =
            CUVDBOptionWrapper::SetParam(info, "PREPARED_LINES", FormatPreparedLines(parsed.sourceLines));
    }
    if (options.reportsPreparationNotes)
        result = std::min(result, CUVDBOptionWrapper::SetParam(info, "PREPARATION_NOTES",
                                                               FormatPreparationNotes(parsed.notes)));
    return result;
}

int WriteErrorReports(const DatabaseInfoPointer& info, const SParseOptions& options, std::string_view text,
                      const SParseFindings& findings)
{
    int result = UVDB_OK;
    if (options.reportsLostText)
        result = CUVDBOptionWrapper::SetParam(info, "LOST_TEXT",
                                              FormatLostText(text, findings.discarded, findings.unfinished));
    if (options.tokenReport)
        result =
            std::min(result, CUVDBOptionWrapper::SetParam(
                                 info, "UNEXPECTED_TOKENS",
                                 FormatUnexpectedTokens(text, findings.unexpected, *options.tokenReport)));
    if (options.reportsCoverage)
        result = std::min(result,
                          CUVDBOptionWrapper::SetParam(info, "COVERAGE", FormatCoverage(findings.usedRules)));
    return result;
}
