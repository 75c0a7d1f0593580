#include "Tools/uvgrammar/AlternativeParts.h"

#include <algorithm>

SymbolSequences WrittenOut(const AlternativeParts& parts, std::size_t limit)
{
    SymbolSequences sequences{{}};
    for (const SAlternativePart& part : parts) {
        SymbolSequences endings;
        if (part.isOptional)
            endings.emplace_back();
        if (part.choices.empty())
            endings.push_back({part.symbol});
        for (const AlternativeParts& choice : part.choices) {
            const SymbolSequences written = WrittenOut(choice, limit);
            endings.insert(endings.end(), written.begin(), written.end());
        }
        SymbolSequences longer;
        for (const std::vector<std::string>& ending : endings) {
            for (std::vector<std::string> sequence : sequences) {
                if (longer.size() > limit)
                    return longer;
                sequence.insert(sequence.end(), ending.begin(), ending.end());
                longer.push_back(std::move(sequence));
            }
        }
        sequences = std::move(longer);
    }
    return sequences;
}
