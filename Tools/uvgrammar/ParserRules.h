// The rules section of a parser source and of the fragments that it includes.
#pragma once

#include "Tools/uvgrammar/AlternativeParts.h"
#include "Tools/uvgrammar/BisonReader.h"
#include "Tools/uvgrammar/ListRules.h"
#include "Tools/uvgrammar/SourceFile.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

// Offsets are bytes of the file.
struct SAlternative
{
    std::size_t mark = 0; // the colon or bar before it
    std::size_t begin = 0;
    std::size_t end = 0;
    std::vector<std::string> symbols;
    std::vector<std::string> groups; // of %words
    std::string precedence;          // "%prec" with its operand
    std::size_t actionBegin = 0;     // equal to actionEnd without an action
    std::size_t actionEnd = 0;
    bool isWrittenOut = false; // it isn't what stands in the file from `begin` to `end`, but made of it
    bool isDropped = false;
};

enum class enRuleItem
{
    Rule,
    List,
    Parts,
    Without,
    Other // bison's own affair, copied as it stands
};

struct SRuleItem
{
    enRuleItem kind = enRuleItem::Other;
    const CSourceFile* file = nullptr;
    std::size_t begin = 0;
    std::size_t end = 0;
    std::string left;
    bool hasOwnHead = false; // the name isn't all that stands before the colon
    bool replaces = false;
    bool isDropped = false;
    std::vector<SAlternative> alternatives;
    SListRule list;
    SPartsRule parts;
};

// Reads rules from an offset to the end of the text or to a "%%".
class CRulesReader
{
public:
    CRulesReader(const CSourceFile& file, std::size_t begin, CToolMessages& messages);

    // `include` is called for each %include, with its offset and the name, where it stands among the items.
    // Returns: the offset of the "%%" or of the end.
    std::size_t Read(std::vector<SRuleItem>& items,
                     const std::function<void(std::size_t offset, const std::string& name)>& include);

private:
    void ReadDirective(std::vector<SRuleItem>& items, const SBisonWord& directive);
    void ReadRule(SRuleItem item, std::vector<SRuleItem>& items);
    std::vector<SAlternative> ReadAlternative(const SBisonWord& mark, const SBisonWord& headAction);
    void ReadParts(SAlternative& alternative, AlternativeParts& parts, bool isInBrackets);
    void ReadBrackets(SAlternative& alternative, AlternativeParts& parts);
    void ReadWords(SAlternative& alternative, const SBisonWord& directive);
    bool EndsParts(const SBisonWord& word) const;
    bool Is(const SBisonWord& word, std::string_view text) const { return m_Words.TextOf(word) == text; }
    void ReadList(SRuleItem item, std::vector<SRuleItem>& items);
    void ReadPartsRule(SRuleItem item, std::vector<SRuleItem>& items);
    void SkipRest(SRuleItem item, std::vector<SRuleItem>& items);
    bool BeginsRule(const SBisonWord& word) const;
    void Error(std::size_t offset, const std::string& text);
    std::string TextOf(const SBisonWord& word) const { return std::string(m_Words.TextOf(word)); }

    const CSourceFile& m_File;
    CBisonReader m_Words;
    CToolMessages& m_Messages;
};

// `"path"` without its quotes; empty if the word is no text in double quotes.
std::string QuotedName(std::string_view word);
