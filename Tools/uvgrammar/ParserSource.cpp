#include "Tools/uvgrammar/ParserSource.h"

#include "Tools/uvgrammar/BisonReader.h"
#include "Tools/uvgrammar/KeywordTable.h"
#include "Tools/uvgrammar/ListRules.h"
#include "Tools/uvgrammar/ParserRules.h"
#include "Tools/uvgrammar/RuleChoice.h"

#include <algorithm>
#include <charconv>
#include <map>
#include <optional>
#include <set>
#include <utility>

namespace {

constexpr std::string_view kNameBytes = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_";

// "NODE;", "NODE(name);", or the same with "PART", in an action. A part is a node only if it holds several symbols.
struct SNodeForm
{
    std::size_t begin = std::string_view::npos;
    std::size_t end = 0;
    std::string name;
    bool isPart = false;
};

SNodeForm FindNodeForm(std::string_view action)
{
    constexpr std::string_view kNode = "NODE", kPart = "PART";
    static_assert(kNode.size() == kPart.size());
    for (std::size_t at = 0; at + kNode.size() < action.size(); ++at) {
        const std::string_view word = action.substr(at, kNode.size());
        if ((word != kNode && word != kPart) ||
            (at > 0 && kNameBytes.find(action[at - 1]) != std::string_view::npos))
            continue;
        std::size_t end = action.find_first_not_of(" \t\r\n", at + kNode.size());
        SNodeForm form{at, 0, {}, word == kPart};
        if (end != std::string_view::npos && action[end] == '(') {
            const std::size_t close = action.find(')', end);
            if (close == std::string_view::npos)
                continue;
            form.name = action.substr(end + 1, close - end - 1);
            std::erase(form.name, ' ');
            end = action.find_first_not_of(" \t\r\n", close + 1);
        }
        if (end == std::string_view::npos || action[end] != ';')
            continue;
        form.end = end + 1;
        return form;
    }
    return {};
}

class CParserAssembler
{
public:
    CParserAssembler(const std::string& path, CToolMessages& messages)
        : m_Files(std::make_unique<CSourceFiles>(path)), m_Messages(messages)
    {}

    CGrammarSource Assemble()
    {
        const CSourceFile& main = m_Files->Main();
        const std::size_t sections = ReadDeclarations(main, 0);
        std::size_t end = main.Text().size();
        if (sections < end)
            end = ReadRules(main, sections + 2);
        CAssembledText text;
        text.Append(m_Declarations);
        if (sections < main.Text().size()) {
            ChooseRules(m_Items, *m_Files, m_Keywords.RemovedTokens(), m_Start, m_Messages);
            text.Copy(main, sections, sections + 2);
            WriteItems(text);
            text.Copy(main, end, main.Text().size());
        }
        CGrammarSource source(std::move(m_Files), std::move(text), m_Lists, std::move(m_Words));
        if (m_MeantWarnings)
            source.SetMeantWarnings(*m_MeantWarnings);
        return source;
    }

private:
    void Error(const CSourceFile& file, std::size_t offset, const std::string& text)
    {
        m_Messages.Write(enSeverity::Error, file.PlaceAt(offset), text);
    }

    // ---- Reading ----

    // Returns: the offset of the "%%", or the text's end.
    std::size_t ReadDeclarations(const CSourceFile& file, std::size_t begin)
    {
        CBisonReader words(file.Text(), begin);
        std::size_t copied = begin;
        while (true) {
            const SBisonWord word = words.Next();
            if (word.kind == enBisonWord::End || word.kind == enBisonWord::Sections) {
                m_Declarations.Copy(file, copied, word.begin);
                return word.begin;
            }
            if (word.kind != enBisonWord::Directive)
                continue;
            const std::string_view name = words.TextOf(word);
            if (name == "%start" && words.Peek().kind == enBisonWord::Name)
                m_Start = words.TextOf(words.Peek());
            if (name != "%include" && name != "%keywords" && name != "%warnings")
                continue;
            m_Declarations.Copy(file, copied, word.begin);
            const SBisonWord operand = words.Next();
            copied = operand.end;
            if (name == "%warnings") {
                TakeMeantWarnings(file, word.begin, words.TextOf(operand));
                continue;
            }
            const std::string path = QuotedName(words.TextOf(operand));
            if (path.empty())
                Error(file, word.begin, std::string(name) + " takes one path in quotes");
            else if (name == "%include")
                IncludeDeclarations(file, word.begin, path);
            else
                TakeKeywords(file, word.begin, path);
        }
    }

    void TakeMeantWarnings(const CSourceFile& file, std::size_t offset, std::string_view number)
    {
        std::size_t count = 0;
        const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), count);
        if (error != std::errc() || end != number.data() + number.size())
            Error(file, offset, "%warnings takes the number of warnings that are meant");
        m_MeantWarnings = count;
    }

    void IncludeDeclarations(const CSourceFile& file, std::size_t offset, const std::string& name)
    {
        const CSourceFile* const fragment = m_Files->Include(file, offset, name, m_Messages);
        if (fragment != nullptr && ReadDeclarations(*fragment, 0) != fragment->Text().size())
            Error(file, offset,
                  fragment->Path() + " has rules: it is included among the rules, after the %%");
    }

    // Tokens of two words with one name are declared once.
    void TakeKeywords(const CSourceFile& file, std::size_t offset, const std::string& name)
    {
        m_Keywords.Read(*m_Files, file, offset, name, m_Messages);
        for (const auto& [word, keyword] : m_Keywords.Words()) {
            if (m_KeywordTokens.insert(keyword.token).second)
                m_Declarations.Write(*keyword.file, keyword.offset, "%token T" + keyword.token + '\n');
        }
    }

    // Returns: where the rules end.
    std::size_t ReadRules(const CSourceFile& file, std::size_t begin)
    {
        CRulesReader reader(file, begin, m_Messages);
        return reader.Read(m_Items, [&](std::size_t offset, const std::string& name) {
            if (const CSourceFile* const fragment = m_Files->Include(file, offset, name, m_Messages))
                ReadFragment(*fragment);
        });
    }

    void ReadFragment(const CSourceFile& fragment)
    {
        std::size_t begin = 0;
        CBisonReader words(fragment.Text());
        SBisonWord word = words.Next();
        while (word.kind != enBisonWord::End && word.kind != enBisonWord::Sections)
            word = words.Next();
        if (word.kind == enBisonWord::Sections)
            begin = ReadDeclarations(fragment, 0) + 2;
        const std::size_t end = ReadRules(fragment, begin);
        if (end != fragment.Text().size())
            Error(fragment, end, "a fragment ends with its rules");
    }

    // ---- Writing ----

    void WriteItems(CAssembledText& text)
    {
        for (const SRuleItem& item : m_Items) {
            if (item.kind == enRuleItem::Other)
                text.Copy(*item.file, item.begin, item.end);
            else if (item.kind == enRuleItem::List && !item.isDropped)
                text.Write(*item.file, item.begin, ListRules(item.list), ++m_Lists);
            else if (item.kind == enRuleItem::Parts && !item.isDropped)
                text.Write(*item.file, item.begin, PartsRules(item.parts));
            else if (item.kind == enRuleItem::Rule && !item.isDropped)
                WriteRule(text, item);
        }
    }

    void WriteRule(CAssembledText& text, const SRuleItem& item)
    {
        const CSourceFile& file = *item.file;
        bool isFirst = true;
        const std::size_t colon = item.alternatives.front().mark;
        if (item.hasOwnHead)
            text.Write(file, item.begin, item.left);
        else
            text.Copy(file, item.begin, colon);
        for (const SAlternative& alternative : item.alternatives) {
            if (alternative.isDropped)
                continue;
            if (!alternative.groups.empty())
                WriteWords(text, item, alternative, isFirst);
            else if (alternative.isWrittenOut || (alternative.mark == colon) != isFirst ||
                     FindNodeForm(ActionOf(item, alternative)).isPart)
                WriteWrittenOut(text, item, alternative, isFirst);
            else
                WriteAlternative(text, item, alternative);
            isFirst = false;
        }
        text.Write(file, item.end - 1, ";\n");
    }

    // As it stands there, so that bison's messages find the column.
    static void WriteAlternative(CAssembledText& text, const SRuleItem& item, const SAlternative& alternative)
    {
        const CSourceFile& file = *item.file;
        const SNodeForm form = FindNodeForm(ActionOf(item, alternative));
        if (form.begin == std::string_view::npos) {
            text.Copy(file, alternative.mark, alternative.end);
            return;
        }
        const std::size_t at = alternative.actionBegin + form.begin;
        text.Copy(file, alternative.mark, at);
        text.Write(file, at, NodeStatement(form, item.left, alternative.symbols));
        text.Copy(file, alternative.actionBegin + form.end, alternative.end);
    }

    void WriteWrittenOut(CAssembledText& text, const SRuleItem& item, const SAlternative& alternative,
                         bool isFirst)
    {
        std::string rule = isFirst ? "    :" : "    |";
        for (const std::string& symbol : alternative.symbols)
            rule.append(1, ' ').append(symbol);
        if (alternative.symbols.empty())
            rule += " %empty";
        rule.append(1, ' ').append(alternative.precedence).append(1, ' ');
        const std::string_view action = ActionOf(item, alternative);
        const SNodeForm form = FindNodeForm(action);
        std::string written(action);
        if (form.begin != std::string_view::npos)
            written.replace(form.begin, form.end - form.begin,
                            NodeStatement(form, item.left, alternative.symbols));
        if (written.find_first_not_of("{} \t\r\n") != std::string::npos)
            rule += written;
        std::replace(rule.begin(), rule.end(), '\n', ' ');
        text.Write(*item.file, alternative.mark, rule + '\n');
    }

    static std::string_view ActionOf(const SRuleItem& item, const SAlternative& alternative)
    {
        return std::string_view(item.file->Text())
            .substr(alternative.actionBegin, alternative.actionEnd - alternative.actionBegin);
    }

    static std::string NodeStatement(const SNodeForm& form, const std::string& left,
                                     const std::vector<std::string>& symbols)
    {
        const std::string& name = form.name.empty() ? left : form.name;
        if (form.isPart && symbols.size() == 1)
            return {};
        const std::string count = std::to_string(symbols.size());
        if (symbols.empty())
            return "EMPTY(" + name + ");";
        const auto error = std::find(symbols.begin(), symbols.end(), "error");
        if (error == symbols.end())
            return "CREATE_NODE(" + name + ", " + count + ");";
        return "CREATE_NODE_WITH_ERROR(" + name + ", " + count + ", " +
               std::to_string(error - symbols.begin()) + ");";
    }

    void WriteWords(CAssembledText& text, const SRuleItem& item, const SAlternative& alternative,
                    bool isFirst)
    {
        const CSourceFile& file = *item.file;
        std::string action(ActionOf(item, alternative));
        if (const SNodeForm form = FindNodeForm(action); form.begin != std::string_view::npos)
            action.replace(form.begin, form.end - form.begin, NodeStatement(form, item.left, {"word"}));
        for (const std::string& group : alternative.groups) {
            if (!m_Keywords.HasGroup(group))
                Error(file, file.Text().find('%', alternative.begin), "no word is in the group " + group);
        }
        m_Words.push_back(file.PlaceAt(alternative.mark));
        const int words = static_cast<int>(m_Words.size());
        std::set<std::string> written;
        for (const auto& [word, keyword] : m_Keywords.Words()) {
            const bool isOfGroup =
                std::find_first_of(alternative.groups.begin(), alternative.groups.end(),
                                   keyword.groups.begin(), keyword.groups.end()) != alternative.groups.end();
            if (!isOfGroup || !written.insert(keyword.token).second)
                continue;
            text.Write(*keyword.file, keyword.offset,
                       std::string(isFirst ? "    : T" : "    | T")
                           .append(keyword.token)
                           .append(1, ' ')
                           .append(action)
                           .append(1, '\n'),
                       0, words);
            isFirst = false;
        }
    }

    std::unique_ptr<CSourceFiles> m_Files;
    CToolMessages& m_Messages;
    CAssembledText m_Declarations;
    CKeywordTable m_Keywords;
    std::set<std::string> m_KeywordTokens;
    std::string m_Start;
    std::vector<SRuleItem> m_Items;
    int m_Lists = 0;
    std::vector<SSourcePlace> m_Words; // of each %words
    std::optional<std::size_t> m_MeantWarnings;
};

} // namespace

CGrammarSource AssembleParser(const std::string& path, CToolMessages& messages)
{
    return CParserAssembler(path, messages).Assemble();
}
