// Foreign bytes as a file of global variables. The first line gives the conversion, three words between
// slashes; the rest is the text. Short texts must come out as their expressions say, long ones only in good
// time.
#include "Stylesheets/ConditionComments.h"
#include "Tests/Stylesheets/ConditionModel.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <string>

namespace {

template <class Process>
std::string Outcome(Process process, const std::string& text, const std::array<std::string, 3>& conversion)
{
    try {
        return process(text, conversion[0], conversion[1], conversion[2]);
    } catch (const std::runtime_error& error) {
        return std::string("thrown: ") + error.what();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::string text(reinterpret_cast<const char*>(data), size);
    const std::size_t lineEnd = std::min(text.find('\n'), text.size());
    std::array<std::string, 3> conversion;
    std::size_t word = 0;
    for (std::size_t i = 0; i < lineEnd && word < conversion.size(); ++i) {
        if (text[i] == '/')
            ++word;
        else if (static_cast<unsigned char>(text[i]) < 0x80)
            conversion[word] += text[i];
    }
    text.erase(0, lineEnd + 1);

    const std::string outcome = Outcome(ProcessGlobalVariables, text, conversion);
    constexpr std::size_t kModelSize = 4096;
    if (text.size() <= kModelSize && outcome != Outcome(ProcessGlobalVariablesByModel, text, conversion))
        std::abort();
    for (const SDeadCondition& dead : FindDeadConditions(text)) {
        if (text.compare(dead.byteOffset, 4, "<!--") != 0 ||
            IsSectionKeptByModel(dead.comment, "a", "b", "c"))
            std::abort();
    }
    return 0;
}
