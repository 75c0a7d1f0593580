// Text files of grammars: any bytes are read without a crash or a hang, and what was read is in a form that
// the interpreters can run. Of a text that a language may load nothing is passed over.
#include "Grammar/UVGrammarKeeper.h"
#include "Grammar/UVGrammarTextChecks.h"
#include "UVEnvironment/UVEUnicodeString.h"

#include <cstdint>
#include <cstdlib>
#include <sstream>
#include <string>

namespace {

void Require(bool holds)
{
    if (!holds)
        std::abort();
}

template <class F>
bool Passes(const F& check)
{
    try {
        check();
        return true;
    } catch (const Uve::U8CString&) {
        return false;
    }
}

// Lines of more than blanks.
std::size_t CountLines(const char* blanks, const std::string& text)
{
    std::istringstream lines(text);
    std::size_t count = 0;
    for (std::string line; std::getline(lines, line);)
        count += line.find_first_not_of(blanks) != std::string::npos ? 1 : 0;
    return count;
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
    for (const enMachine machine : {enMachine::Scanner, enMachine::Parser})
        if (Passes([&] { CheckActionText("", text, machine); }))
            Require(actions.size() == CountLines(" \t\r", text));
    FreeActionsMap(actions);

    std::map<std::string, int> defines;
    const std::uint64_t result = UVDBGrammarKeeper::CreateDefinesMap(text, defines);
    for (const auto& [name, value] : defines)
        Require(value <= static_cast<int>(result & 0x7fffffff));
    if (Passes([&] { CheckDefinesText("", "defines.dat", text); })) {
        // a name may come twice
        Require(defines.size() <= CountLines(" ", text));
        for (const auto& define : defines)
            Require(define.first.find_first_of(" \t\r\n") == std::string::npos);
    }
    UVDBGrammarKeeper::GetFinalStateNum(text);
    return 0;
}
