// The choice of a text's language by its content: several languages read it, and the best reader is chosen.
#pragma once

#include "Tools/uvparse/LanguageChoice.h"
#include "Tools/uvparse/ParserHost.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace uvparse {

// The beginning of a text that is looked at: not more than `limit` bytes, cut after a line end, or after a character
// of a line that has none.
std::string_view BeginningOf(std::string_view text, std::size_t limit);

struct SContentChoice
{
    std::size_t index = 0; // of the candidates
    std::string reason;    // see VerdictText
    // What the chosen parser made of the text where it has read the whole.
    std::optional<SParseResult> result;
};

class CContentChoice
{
public:
    // The parser object for a language, the same one each time.
    using THosts = std::function<CParserHost&(const SLanguage& language, enMode mode)>;

    explicit CContentChoice(THosts hosts) : m_Hosts(std::move(hosts)) {}

    // Looks at the first 64 KiB. If they are read alike, it looks at 256 KiB, and if what is open at the end of these
    // leaves less than half of them as evidence, at the whole text. Alike at last, the first candidate is taken.
    // `candidates`: at least one. `path`: of the text.
    // Throws: as CParserHost does.
    SContentChoice Choose(const std::vector<SLanguage>& candidates, std::string_view text,
                          const std::string& path) const;

private:
    struct SLook;

    SLook LookAt(const std::vector<SLanguage>& candidates, std::string_view text, const std::string& path,
                 bool isCut) const;

    THosts m_Hosts;
};

} // namespace uvparse
