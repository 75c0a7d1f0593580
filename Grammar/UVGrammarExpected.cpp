#include "Grammar/UVGrammarExpected.h"

#include "Grammar/UVGrammarKeywords.h"

#include <algorithm>
#include <set>
#include <utility>

namespace {

constexpr int kEndOfText = 0;
constexpr int kUndefinedTerminal = 2;
constexpr int kTrail = 0x2000;    // of an entry of the accept list: a rule that looks on
constexpr int kHead = 0x4000;     // where the token of such a rule ends
constexpr std::size_t kAlike = 4; // so many are told by one word

bool IsLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_';
}

// The texts that a scanner's rules match, as far as one text tells.
class CRuleTexts
{
public:
    explicit CRuleTexts(const CScannerTables& scanner) : m_Scanner(scanner)
    {
        m_Before.resize(static_cast<std::size_t>(scanner.LastState()) + 1);
        // Start states of the text's beginning come first, so a rule's text is one of the usual condition.
        for (int condition = 0; condition < scanner.StartConditions(); ++condition)
            Walk(2 * condition + 1);
    }

    // The one text of a rule, apart from the case of its letters.
    // Returns: an empty text if there are others.
    std::string OnlyText(int rule) const
    {
        const auto found = m_Ends.find(rule);
        if (found == m_Ends.end())
            return {};
        // Start conditions with rules of their own have states of their own for the same text.
        const std::string text = OnlyTextTo(found->second.front());
        const bool isSame =
            std::ranges::all_of(found->second, [&](int state) { return OnlyTextTo(state) == text; });
        return isSame ? text : std::string();
    }

private:
    struct SStep
    {
        int state = 0;
        unsigned char byte = 0;
        int walk = 0;       // the one that reached the state first; 0: none has
        bool isOnly = true; // no other text leads there, apart from the case of its letters
    };

    // Each state is reached by the shortest text, capitals before small letters.
    void Walk(int start)
    {
        if (Before(start).walk != 0)
            return;
        const int walk = ++m_Walks;
        Before(start).walk = walk;
        std::vector<int> reached{start};
        for (std::size_t at = 0; at < reached.size(); ++at) {
            const int state = reached[at];
            if (m_Scanner.Walk().IsJam(state))
                continue;
            for (int byte = 1; byte < 256; ++byte) {
                const int next = m_Scanner.Next(state, static_cast<unsigned char>(byte));
                if (next > m_Scanner.LastState())
                    continue;
                SStep& step = Before(next);
                if (step.walk == 0) {
                    step = {state, static_cast<unsigned char>(byte), walk};
                    AddEnds(next);
                    reached.push_back(next);
                } else if (step.walk == walk &&
                           (step.state != state ||
                            Folded(step.byte) != Folded(static_cast<unsigned char>(byte))))
                    step.isOnly = false;
            }
        }
    }

    SStep& Before(int state) { return m_Before[static_cast<std::size_t>(state)]; }
    const SStep& Before(int state) const { return m_Before[static_cast<std::size_t>(state)]; }

    static int Folded(unsigned char byte) { return byte >= 'a' && byte <= 'z' ? byte - 'a' + 'A' : byte; }

    void AddEnds(int state)
    {
        const auto row = static_cast<std::size_t>(state);
        bool isTaken = false; // by a rule before
        for (int at = m_Scanner.accept[row]; at > 0 && at < m_Scanner.accept[row + 1]; ++at) {
            const int entry = m_Scanner.acclist[static_cast<std::size_t>(at)];
            const bool isHead = (entry & kHead) != 0;
            if (isHead || (!isTaken && (entry & kTrail) == 0))
                m_Ends[entry & ~(kHead | kTrail)].push_back(state);
            isTaken = isTaken || !isHead;
        }
    }

    std::string OnlyTextTo(int state) const
    {
        std::string text;
        for (SStep step = Before(state); step.state != 0; step = Before(step.state)) {
            if (!step.isOnly)
                return {};
            text += static_cast<char>(step.byte);
        }
        std::reverse(text.begin(), text.end());
        return text;
    }

    const CScannerTables& m_Scanner;
    std::vector<SStep> m_Before;
    int m_Walks = 0;
    std::map<int, std::vector<int>> m_Ends; // by rule: the states in which its token ends
};

// T__INTEGER_NUMBER is an "integer number".
std::string WordsOf(std::string_view token)
{
    token.remove_prefix(token.starts_with('T') ? 1 : 0);
    token.remove_prefix(std::min(token.find_first_not_of('_'), token.size()));
    std::string words(token);
    for (char& c : words)
        c = c == '_' ? ' ' : c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    return words;
}

// The scanner's rules by the tokens that they may make.
std::map<std::string, std::vector<int>> RulesOfTokens(const CActionRecords& actions)
{
    std::map<std::string, std::vector<int>> rules;
    for (std::size_t at = 0; at < actions.Count(); ++at) {
        const CActionRecords::SRecord& record = actions.Record(at);
        for (std::size_t i = record.first; i < record.first + record.count; ++i) {
            const CActionRecords::SOperation& operation = actions.Operation(i);
            const SGrammarKeyword& keyword = GetGrammarKeyword(operation.Keyword());
            for (int operand = 0; operand < keyword.operands; ++operand) {
                const auto index = static_cast<std::size_t>(operand);
                if (keyword.roles[index] == 't')
                    rules[std::string("T").append(actions.Operand(operation, index))].push_back(record.rule);
            }
        }
    }
    return rules;
}

} // namespace

CExpectedTokens::CExpectedTokens(const CParserTables& parser, const CScannerTables& scanner,
                                 const CActionRecords& scannerActions,
                                 const std::map<std::string, int>& tokens)
    : m_Parser(parser), m_Tokens(static_cast<std::size_t>(parser.ntokens))
{
    const CRuleTexts texts(scanner);
    const auto rules = RulesOfTokens(scannerActions);
    for (const auto& [name, number] : tokens) {
        const auto made = rules.find(name);
        if (made == rules.end() || number < 0 || number > parser.maxutok)
            continue;
        const unsigned terminal = parser.translate[static_cast<std::size_t>(number)];
        if (terminal <= kUndefinedTerminal)
            continue;
        SToken& token = m_Tokens[terminal];
        token.shown = WordsOf(name);
        for (const int rule : made->second) {
            const std::string text = texts.OnlyText(rule);
            if (text == "\n")
                token.shown = "end of line";
            if (text.find_first_not_of(" \t\r\n") == std::string::npos)
                continue;
            token.shown = std::string("'").append(text).append("'");
            token.isWord = IsLetter(text.front());
            token.isMark = !token.isWord;
            break;
        }
    }
    m_Tokens[kEndOfText].shown = "end of text";
}

std::vector<std::string> CExpectedTokens::Find(std::span<const short> stack, int found, std::size_t most)
{
    struct SCandidate
    {
        int terminal = 0;
        int rank = 0; // the smallest first
        std::set<int> becomes;
        std::vector<int> shiftsAfter;
    };
    std::vector<SCandidate> candidates;
    std::map<int, std::size_t> words;              // by what each of them may become
    std::map<std::vector<int>, std::size_t> marks; // by what may follow each of them
    for (int terminal = 0; terminal < m_Parser.ntokens; ++terminal) {
        const SToken& token = m_Tokens[static_cast<std::size_t>(terminal)];
        if (token.shown.empty() || !m_Parser.Shifts(stack, terminal))
            continue;
        const int rank = (m_Parser.ShiftsBoth(stack, terminal, found) ? 0 : 4) + (token.isWord ? 2 : 0) +
                         (m_Parser.ShiftsAtOnce(stack, terminal) ? 0 : 1);
        candidates.push_back({terminal, rank, m_Parser.Becomes(stack, terminal, m_Known), {}});
        if (token.isWord) {
            for (const int symbol : candidates.back().becomes)
                ++words[symbol];
        } else if (token.isMark) {
            candidates.back().shiftsAfter = m_Parser.ShiftsAfter(stack, terminal);
            ++marks[candidates.back().shiftsAfter];
        }
    }
    const auto isRare = [](const auto& entry) { return entry.second < kAlike; };
    std::erase_if(words, isRare);
    std::erase_if(marks, isRare);
    std::ranges::stable_sort(candidates, {}, &SCandidate::rank);

    std::vector<std::string> shown;
    for (const SCandidate& entry : candidates) {
        const bool isName =
            std::ranges::any_of(entry.becomes, [&](int symbol) { return words.count(symbol) != 0; });
        const SToken& token = m_Tokens[static_cast<std::size_t>(entry.terminal)];
        const bool isOperator = token.isMark && marks.count(entry.shiftsAfter) != 0;
        const std::string text = isName ? "name" : isOperator ? "operator" : token.shown;
        if (shown.size() < most && std::ranges::find(shown, text) == shown.end())
            shown.push_back(text);
    }
    return shown;
}
