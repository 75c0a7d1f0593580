// Text files of grammars: any bytes are read without a crash or a hang, and what was read is in a form that
// the interpreters can run.
#include "Grammar/UVGrammarKeeper.h"

#include <cstdint>
#include <cstdlib>
#include <string>

namespace {

void Require(bool holds)
{
    if (!holds)
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string text(reinterpret_cast<const char*>(data), size);

    CActionsMap actions;
    UVDBGrammarKeeper::CreateActionsMap(text, actions);
    for (const auto& [number, operations] : actions) {
        for (const auto& [key, operands] : *operations) {
            if (operands == nullptr) {
                Require(key == "NULL_ACTION" && operations->size() == 1);
                continue;
            }
            const SGrammarKeyword* const keyword = FindGrammarKeyword(key.substr(0, key.find('#')));
            Require(keyword != nullptr && operands->size() == static_cast<std::size_t>(keyword->operands));
        }
    }
    FreeActionsMap(actions);

    std::map<std::string, int> defines;
    const std::uint64_t result = UVDBGrammarKeeper::CreateDefinesMap(text, defines);
    for (const auto& [name, value] : defines)
        Require(value <= static_cast<int>(result & 0x7fffffff));
    UVDBGrammarKeeper::GetFinalStateNum(text);
    return 0;
}
