#include "Preparation/MacroPreprocessorChecker.h"

#include <algorithm>
#include <cstdlib>
#include <string>
#include <vector>

// Any bytes as a source of the macro processor. The first byte chooses the command. A run ends, says why when
// it fails, and knows a source line for each line that it gives.

namespace {

void Require(bool holds)
{
    if (!holds)
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace MacroPreprocessorChecker;
    if (size == 0)
        return 0;
    const std::string source(reinterpret_cast<const char*>(data) + 1, size - 1);
    DefaultPresetValues presets;
    presets.defines = {"P=1", "Q(x)=x Q(x)"};
    presets.undefines = {"U"};
    presets.expansionLimit = 1 << 16;
    const auto undefines = std::make_shared<UndefinesTokens>();
    std::vector<std::uint32_t> lines;
    Uve::U8CString result;
    Uve::U8CString errors;
    const Command command{data[0] % 4 - 1};
    const bool isDone =
        Checker::PreprocessFile("fuzz.c", source, result, command, presets, errors, undefines, &lines);
    Require(isDone || (result.empty() && !errors.empty()));
    if (!isDone)
        return 0;
    Require(lines.size() == static_cast<std::size_t>(std::ranges::count(result, '\n')) + 1);
    Require(std::ranges::is_sorted(lines));

    // what stays as it is stays so the second time
    if (command.value == 0) {
        Uve::U8CString again;
        if (Checker::PreprocessFile("fuzz.c", result, again, command, presets, errors, undefines))
            Require(again.size() >= result.size());
    }
    return 0;
}
