#include "Tools/uvgrammar/RuleChoice.h"

#include <algorithm>
#include <map>
#include <string_view>
#include <utility>

namespace {

class CRuleChoice
{
public:
    CRuleChoice(std::vector<SRuleItem>& items, const CSourceFiles& files, std::set<std::string> gone,
                CToolMessages& messages)
        : m_Items(items), m_Files(files), m_Gone(std::move(gone)), m_Messages(messages)
    {}

    void Choose(std::string start)
    {
        ApplyReplacements();
        ApplyOmissions();
        DropGone();
        DropUnreached(std::move(start));
    }

private:
    void Error(const CSourceFile& file, std::size_t offset, const std::string& text)
    {
        m_Messages.Write(enSeverity::Error, file.PlaceAt(offset), text);
    }

    bool HasRule(const SRuleItem& item) const
    {
        return !item.isDropped && (item.kind == enRuleItem::Rule || item.kind == enRuleItem::List ||
                                   item.kind == enRuleItem::Parts);
    }

    void ApplyReplacements()
    {
        for (const SRuleItem& item : m_Items) {
            if (!item.replaces)
                continue;
            bool isFound = false;
            for (SRuleItem& other : m_Items) {
                if (other.left != item.left || other.file == item.file || !HasRule(other))
                    continue;
                if (other.replaces) {
                    Error(*item.file, item.begin,
                          item.left + " is replaced twice; the other one is at " + PlaceText(other));
                    continue;
                }
                isFound = other.isDropped = true;
            }
            if (!isFound)
                Error(*item.file, item.begin, "no other file has a rule for " + item.left);
        }
    }

    void ApplyOmissions()
    {
        for (const SRuleItem& item : m_Items) {
            if (item.kind != enRuleItem::Without)
                continue;
            if (item.alternatives.empty()) {
                OmitSymbol(item);
                continue;
            }
            for (const SAlternative& alternative : item.alternatives) {
                if (!Drop(item, alternative.symbols))
                    Error(*item.file, alternative.end > alternative.begin ? alternative.mark : item.begin,
                          "no other file has this alternative for " + item.left);
            }
            const bool isLeft = std::any_of(m_Items.begin(), m_Items.end(), [&](const SRuleItem& other) {
                return other.left == item.left && HasRule(other);
            });
            if (!isLeft)
                Error(*item.file, item.begin,
                      "nothing is left of " + item.left + "; %replace gives it a rule of its own");
        }
    }

    bool Drop(const SRuleItem& omission, const std::vector<std::string>& symbols)
    {
        bool isFound = false;
        for (SRuleItem& other : m_Items) {
            if (other.kind != enRuleItem::Rule || other.left != omission.left || other.file == omission.file)
                continue;
            for (SAlternative& alternative : other.alternatives) {
                if (alternative.isDropped || !alternative.groups.empty() || alternative.symbols != symbols)
                    continue;
                isFound = alternative.isDropped = true;
            }
            other.isDropped = other.isDropped || IsEmpty(other);
        }
        return isFound;
    }

    // A symbol that isn't this language's. It may be one that another file uses and leaves to others to define.
    void OmitSymbol(const SRuleItem& omission)
    {
        bool isFound = false;
        for (SRuleItem& other : m_Items) {
            if (other.file == omission.file || !HasRule(other))
                continue;
            const std::vector<std::string> symbols = SymbolsOf(other);
            isFound = isFound || other.left == omission.left ||
                      std::find(symbols.begin(), symbols.end(), omission.left) != symbols.end();
            other.isDropped = other.isDropped || other.left == omission.left;
        }
        m_Gone.insert(omission.left);
        if (!isFound)
            Error(*omission.file, omission.begin, "no other file has or uses " + omission.left);
    }

    // A symbol that has nothing left takes what it stands in along.
    void DropGone()
    {
        bool isDone = m_Gone.empty();
        while (!isDone) {
            isDone = true;
            std::set<std::string> emptied;
            for (SRuleItem& item : m_Items) {
                if (HasRule(item) && m_Files.IsShared(*item.file) && LosesAll(item))
                    emptied.insert(item.left);
            }
            for (const std::string& symbol : emptied) {
                const bool isLeft = std::any_of(m_Items.begin(), m_Items.end(), [&](const SRuleItem& other) {
                    return other.left == symbol && HasRule(other);
                });
                isDone = (isLeft || !m_Gone.insert(symbol).second) && isDone;
            }
        }
    }

    bool IsGone(const std::string& symbol) const { return m_Gone.count(symbol) != 0; }

    // Returns: true if nothing is left of the item, which is dropped then.
    bool LosesAll(SRuleItem& item)
    {
        if (item.kind == enRuleItem::List) {
            item.isDropped = IsGone(item.list.item) || IsGone(item.list.separator);
            if (IsGone(item.list.last))
                item.list.last.clear();
        } else if (item.kind == enRuleItem::Parts) {
            std::erase_if(item.parts.symbols, [&](const std::string& symbol) { return IsGone(symbol); });
            item.isDropped = item.parts.symbols.empty();
        } else {
            for (SAlternative& alternative : item.alternatives)
                alternative.isDropped =
                    alternative.isDropped ||
                    std::any_of(alternative.symbols.begin(), alternative.symbols.end(),
                                [&](const std::string& symbol) { return IsGone(symbol); });
            item.isDropped = IsEmpty(item);
        }
        return item.isDropped;
    }

    static bool IsEmpty(const SRuleItem& rule)
    {
        return std::all_of(rule.alternatives.begin(), rule.alternatives.end(),
                           [](const SAlternative& alternative) { return alternative.isDropped; });
    }

    static std::string PlaceText(const SRuleItem& item)
    {
        return item.file->Path() + ':' + std::to_string(item.file->LineAt(item.begin));
    }

    static std::vector<std::string> SymbolsOf(const SRuleItem& item)
    {
        if (item.kind == enRuleItem::List)
            return {item.list.item, item.list.separator, item.list.last};
        if (item.kind == enRuleItem::Parts)
            return item.parts.symbols;
        std::vector<std::string> symbols;
        for (const SAlternative& alternative : item.alternatives) {
            if (!alternative.isDropped)
                symbols.insert(symbols.end(), alternative.symbols.begin(), alternative.symbols.end());
        }
        return symbols;
    }

    void DropUnreached(std::string start)
    {
        std::multimap<std::string_view, const SRuleItem*> rules;
        for (const SRuleItem& item : m_Items) {
            if (!HasRule(item))
                continue;
            rules.emplace(item.left, &item);
            if (start.empty())
                start = item.left;
        }
        std::set<std::string> reached;
        std::vector<std::string> open{start};
        while (!open.empty()) {
            const std::string symbol = open.back();
            open.pop_back();
            if (!reached.insert(symbol).second)
                continue;
            for (auto [at, end] = rules.equal_range(symbol); at != end; ++at) {
                for (std::string& next : SymbolsOf(*at->second))
                    open.push_back(std::move(next));
            }
        }
        for (SRuleItem& item : m_Items) {
            if (HasRule(item) && m_Files.IsShared(*item.file) && reached.count(item.left) == 0)
                item.isDropped = true;
        }
    }

    std::vector<SRuleItem>& m_Items;
    const CSourceFiles& m_Files;
    std::set<std::string> m_Gone; // tokens and symbols
    CToolMessages& m_Messages;
};

} // namespace

void ChooseRules(std::vector<SRuleItem>& items, const CSourceFiles& files,
                 const std::set<std::string>& removedTokens, std::string start, CToolMessages& messages)
{
    CRuleChoice(items, files, removedTokens, messages).Choose(std::move(start));
}
