// The conditions of #if and #elif.
#include "Preparation/MacroPreprocessorChecker.h"
#include "Preparation/MacroRun.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace MacroPreprocessorChecker {

using namespace internal;

namespace {

struct STypeSize
{
    std::string_view type;
    int size;
};

constexpr STypeSize kTypeSizes[] = {
    {"char", 1},       {"short", 2},       {"short int", 2},   {"int", 4},      {"long", 8},
    {"long int", 8},   {"long long", 8},   {"float", 4},       {"double", 8},   {"long double", 16},
    {"char *", 8},     {"short *", 8},     {"short int *", 8}, {"int *", 8},    {"long *", 8},
    {"long int *", 8}, {"long long *", 8}, {"float *", 8},     {"double *", 8}, {"long double *", 8},
};

// A condition that isn't one: ends the run with a message of its own form.
struct SConditionSyntax
{};

bool BeginsOperand(const Token* token)
{
    if (token == nullptr)
        return false;
    constexpr std::string_view openings = "(!~+-";
    return token->name || token->number || IsCharacterText(token->str) ||
           (token->op != '\0' && openings.find(token->op) != openings.npos);
}

bool EndsOperand(const Token* token)
{
    return token != nullptr && (token->number || token->op == ')');
}

bool IsOperatorWord(const Token& word, const Token* before)
{
    if (!BeginsOperand(word.next))
        return false;
    if (word.str == "not" || word.str == "compl")
        return !EndsOperand(before);
    constexpr std::string_view words[] = {"and", "bitand", "bitor", "not_eq", "or", "xor"};
    return EndsOperand(before) && std::ranges::find(words, word.str) != std::end(words);
}

// Turns the expanded tokens of a condition into numbers and operators.
class ConditionBuilder
{
public:
    ConditionBuilder(const MacroTable& macros, const TokenList& expanded, TokenList& result)
        : m_Macros(macros), m_At(expanded.first), m_Result(result)
    {}

    void Build()
    {
        for (; m_At != nullptr; m_At = m_At->next) {
            if (m_At->str == "defined")
                Add(IsDefined() ? "1" : "0");
            else if (m_At->str == "sizeof")
                Add(m_Result.Keep(std::to_string(SizeOf())));
            else if (m_At->name && !IsOperatorWord(*m_At, m_Result.last))
                Add("0");
            else if (m_At->number && IsIntegerText(m_At->str))
                Add(m_Result.Keep(toString(stringToLL(m_At->str))));
            else if (IsCharacterText(m_At->str))
                Add(m_Result.Keep(toString(CharacterValue(m_At->str))));
            else
                Add(m_At->str);
        }
    }

private:
    void Add(std::string_view text) { m_Result.push_back(text, m_At->location); }

    bool GoOn()
    {
        if (m_At->next == nullptr)
            return false;
        m_At = m_At->next;
        return true;
    }

    // "X" or "( X )"; stops at its last token.
    bool IsDefined()
    {
        if (!GoOn())
            throw SConditionSyntax();
        const bool isOpen = m_At->op == '(';
        if (isOpen && !GoOn())
            throw SConditionSyntax();
        if (!m_At->name)
            throw SConditionSyntax();
        const bool isDefined = m_Macros.Find(*m_At) != nullptr;
        if (isOpen && (!GoOn() || m_At->op != ')'))
            throw SConditionSyntax();
        return isDefined;
    }

    // "( type )"; stops at the ")".
    int SizeOf()
    {
        if (!GoOn() || m_At->op != '(')
            throw std::runtime_error("missing sizeof argument");
        std::string type;
        bool hasSign = false;
        for (;;) {
            if (!GoOn())
                throw std::runtime_error("invalid sizeof expression");
            if (m_At->op == ')')
                break;
            if (m_At->str == "unsigned" || m_At->str == "signed") {
                hasSign = true;
                continue;
            }
            if (!type.empty())
                type += ' ';
            type += m_At->str;
        }
        if (type.empty() && hasSign)
            type = "int";
        if (type.empty())
            throw std::runtime_error("missing sizeof argument");
        const auto found = std::ranges::find(kTypeSizes, type, &STypeSize::type);
        if (found == std::end(kTypeSizes))
            throw std::runtime_error("invalid sizeof expression");
        return found->size;
    }

    const MacroTable& m_Macros;
    const Token* m_At;
    TokenList& m_Result;
};

} // namespace

bool Checker::EvaluateCondition(SRun& run, const Token& directive, bool& holds)
{
    const std::string failure = "failed to evaluate #" + std::string(directive.str) + " condition";
    TokenList expanded(store);
    TokenList condition(store);
    try {
        if (directive.next != nullptr && directive.next->sourceLine == directive.sourceLine)
            run.expander.ExpandLine(directive.next, true,
                                    [&, count = std::size_t{0}](const Token& token) mutable {
                                        if (token.SkipWhenNextOrPrev())
                                            return;
                                        if (++count > presets.expansionLimit / MacroExpander::kTokenCost)
                                            throw std::runtime_error("the condition is too long");
                                        expanded.push_back(token);
                                    });
        ConditionBuilder(run.macros, expanded, condition).Build();
        condition.constFold();
    } catch (const SConditionSyntax&) {
        return FailRun(directive, "Syntax error in #" + std::string(directive.str));
    } catch (const Macro::Error& error) {
        return FailRun(directive, "failed to expand '#" + std::string(directive.str) + "', " + error.what());
    } catch (const std::runtime_error& error) {
        return FailRun(directive, failure + ": " + error.what());
    }
    const Token* const value = condition.first;
    if (value == nullptr || value->next != nullptr || !value->number || !IsIntegerText(value->str))
        return FailRun(directive, failure);
    holds = stringToLL(value->str) != 0;
    return true;
}

} // namespace MacroPreprocessorChecker
