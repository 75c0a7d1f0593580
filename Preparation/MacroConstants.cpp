// The arithmetic of conditions: numbers, character constants, and folding an expression to one number.
#include "Preparation/MacroTokens.h"

#include <array>
#include <charconv>
#include <limits>
#include <optional>
#include <string_view>

namespace MacroPreprocessorChecker::internal {

namespace {

int DigitValue(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    return 99;
}

struct SDigits
{
    unsigned base = 10;
    std::size_t from = 0; // of the first digit
};

SDigits DigitsOf(std::string_view text)
{
    if (text.starts_with("0x") || text.starts_with("0X"))
        return {16, 2};
    if (text.starts_with("0b") || text.starts_with("0B"))
        return {2, 2};
    if (text.size() > 1 && text[0] == '0')
        return {8, 1};
    return {10, 0};
}

bool IsOperand(const Token* token)
{
    return token != nullptr && token->number && IsIntegerText(token->str);
}

bool Is(const Token& token, std::string_view sign, std::string_view word)
{
    return token.str == sign || (!word.empty() && token.str == word);
}

long long FromBits(unsigned long long bits)
{
    return static_cast<long long>(bits);
}

// The arithmetic is that of two's complement: a result that is too large loses its upper bits.
long long ShiftLeft(long long value, unsigned long long count)
{
    return count > 63 ? 0 : FromBits(static_cast<unsigned long long>(value) << count);
}

long long ShiftRight(long long value, unsigned long long count)
{
    return count > 63 ? (value < 0 ? -1 : 0) : value >> count;
}

long long Divide(long long a, long long b, bool wantsRemainder)
{
    if (b == 0)
        throw std::runtime_error("division/modulo by zero");
    if (b == -1 && a == std::numeric_limits<long long>::min())
        throw std::runtime_error("division overflow");
    return wantsRemainder ? a % b : a / b;
}

// Folds each "number operator number" of the group that begins at `from`, left to right. `fold` answers
// nothing for an operator that isn't its own.
template <class Fold>
void FoldBinary(TokenList& list, Token* from, Fold fold)
{
    for (Token* token = from; token != nullptr && token->op != ')'; token = token->next) {
        if (token == from || token->number || !IsOperand(token->previous) || !IsOperand(token->next))
            continue;
        Token* const left = token->previous;
        const std::optional<long long> value = fold(
            *token, [&] { return stringToLL(left->str); }, [&] { return stringToLL(token->next->str); });
        if (!value)
            continue;
        left->setstr(list.Keep(toString(*value)));
        list.deleteToken(token->next);
        list.deleteToken(token);
        token = left;
    }
}

// The value after a backslash at `at`, which moves after it.
unsigned long long EscapeValue(std::string_view text, std::size_t& at)
{
    const char c = text[at++];
    unsigned long long value = 0;
    switch (c) {
    case 'a':
        return 7;
    case 'b':
        return 8;
    case 'e':
        return 27;
    case 'f':
        return 12;
    case 'n':
        return 10;
    case 'r':
        return 13;
    case 't':
        return 9;
    case 'v':
        return 11;
    case 'x':
    case 'u':
    case 'U':
        for (; at < text.size() && DigitValue(text[at]) < 16; ++at)
            value = value * 16 + static_cast<unsigned>(DigitValue(text[at]));
        return value;
    default:
        break;
    }
    if (DigitValue(c) >= 8)
        return static_cast<unsigned char>(c);
    --at;
    for (int digits = 0; digits < 3 && at < text.size() && DigitValue(text[at]) < 8; ++digits, ++at)
        value = value * 8 + static_cast<unsigned>(DigitValue(text[at]));
    return value;
}

} // namespace

long long stringToLL(std::string_view text)
{
    const bool isNegative = text.starts_with('-');
    if (isNegative)
        text.remove_prefix(1);
    const auto [base, from] = DigitsOf(text);
    unsigned long long value = 0;
    for (std::size_t at = from; at < text.size(); ++at) {
        if (text[at] == '\'')
            continue;
        const auto digit = static_cast<unsigned>(DigitValue(text[at]));
        if (digit >= base)
            break;
        value = value * base + digit;
    }
    return FromBits(isNegative ? 0 - value : value);
}

std::string toString(long long value)
{
    return std::to_string(value);
}

bool IsIntegerText(std::string_view text)
{
    if (text.starts_with('-'))
        text.remove_prefix(1);
    const auto [base, from] = DigitsOf(text);
    std::size_t at = from;
    while (at < text.size() && (text[at] == '\'' || DigitValue(text[at]) < static_cast<int>(base)))
        ++at;
    if (at == 0 || (base != 8 && at == from))
        return false;
    return text.find_first_not_of("uUlLzZ", at) == text.npos;
}

long long CharacterValue(std::string_view constant)
{
    const std::size_t open = constant.find('\'');
    const bool isWide = open > 0 && open != constant.npos;
    if (open == constant.npos || constant.size() < open + 3)
        throw std::runtime_error("empty character constant");
    const std::string_view text = constant.substr(open + 1, constant.size() - open - 2);
    unsigned long long value = 0;
    std::size_t count = 0;
    for (std::size_t at = 0; at < text.size(); ++count) {
        unsigned long long unit;
        if (text[at] == '\\' && at + 1 < text.size())
            unit = EscapeValue(text, ++at);
        else
            unit = static_cast<unsigned char>(text[at++]);
        value = isWide ? unit : (value << 8) | (unit & 0xFF);
    }
    if (isWide)
        return FromBits(value);
    if (count == 1)
        return static_cast<signed char>(value);
    return static_cast<std::int32_t>(value);
}

void TokenList::constFold()
{
    // From the last "(" to the first: its group holds no other, and is one number afterwards or can't be
    // folded.
    std::vector<Token*> open;
    for (Token* token = first; token != nullptr; token = token->next)
        if (token->op == '(')
            open.push_back(token);
    while (first != nullptr) {
        Token* const from = open.empty() ? first : open.back();
        constFoldUnaryNotPosNeg(from);
        constFoldMulDivRem(from);
        constFoldAddSub(from);
        constFoldShift(from);
        constFoldComparison(from);
        constFoldBitwise(from);
        constFoldLogicalOp(from);
        constFoldQuestionOp(from);
        if (open.empty())
            return;
        open.pop_back();
        if (from->next == nullptr || !from->next->number || from->next->next == nullptr ||
            from->next->next->op != ')')
            return;
        deleteToken(from->next->next);
        deleteToken(from);
    }
}

// From right to left, so that an operator finds its operand folded.
void TokenList::constFoldUnaryNotPosNeg(Token* from)
{
    Token* token = from;
    while (token->next != nullptr && token->next->op != ')')
        token = token->next;
    for (;; token = token->previous) {
        const Token* const before = token == from ? nullptr : token->previous;
        const bool isUnary = before == nullptr || (!before->number && before->op != ')');
        if (isUnary && IsOperand(token->next) && !token->number) {
            const auto bits = static_cast<unsigned long long>(stringToLL(token->next->str));
            std::optional<unsigned long long> value;
            if (Is(*token, "!", "not"))
                value = bits == 0;
            else if (Is(*token, "~", "compl"))
                value = ~bits;
            else if (token->op == '+')
                value = bits;
            else if (token->op == '-')
                value = 0 - bits;
            if (value) {
                token->setstr(Keep(toString(FromBits(*value))));
                deleteToken(token->next);
            }
        }
        if (token == from)
            return;
    }
}

void TokenList::constFoldMulDivRem(Token* from)
{
    FoldBinary(*this, from, [](const Token& sign, auto left, auto right) -> std::optional<long long> {
        switch (sign.op) {
        case '*':
            return FromBits(static_cast<unsigned long long>(left()) *
                            static_cast<unsigned long long>(right()));
        case '/':
            return Divide(left(), right(), false);
        case '%':
            return Divide(left(), right(), true);
        default:
            return std::nullopt;
        }
    });
}

void TokenList::constFoldAddSub(Token* from)
{
    FoldBinary(*this, from, [](const Token& sign, auto left, auto right) -> std::optional<long long> {
        if (sign.op != '+' && sign.op != '-')
            return std::nullopt;
        const auto a = static_cast<unsigned long long>(left());
        const auto b = static_cast<unsigned long long>(right());
        return FromBits(sign.op == '+' ? a + b : a - b);
    });
}

// A negative count shifts the other way.
void TokenList::constFoldShift(Token* from)
{
    FoldBinary(*this, from, [](const Token& sign, auto left, auto right) -> std::optional<long long> {
        if (sign.str != "<<" && sign.str != ">>")
            return std::nullopt;
        const long long count = right();
        const unsigned long long distance =
            count < 0 ? 0 - static_cast<unsigned long long>(count) : static_cast<unsigned long long>(count);
        return (sign.str == "<<") == (count >= 0) ? ShiftLeft(left(), distance)
                                                  : ShiftRight(left(), distance);
    });
}

void TokenList::constFoldComparison(Token* from)
{
    FoldBinary(*this, from, [](const Token& sign, auto left, auto right) -> std::optional<long long> {
        if (sign.op == '<')
            return left() < right();
        if (sign.op == '>')
            return left() > right();
        if (sign.str == "<=")
            return left() <= right();
        if (sign.str == ">=")
            return left() >= right();
        return std::nullopt;
    });
    FoldBinary(*this, from, [](const Token& sign, auto left, auto right) -> std::optional<long long> {
        if (sign.str == "==")
            return left() == right();
        if (Is(sign, "!=", "not_eq"))
            return left() != right();
        return std::nullopt;
    });
}

void TokenList::constFoldBitwise(Token* from)
{
    FoldBinary(*this, from, [](const Token& sign, auto left, auto right) -> std::optional<long long> {
        return Is(sign, "&", "bitand") ? std::optional(left() & right()) : std::nullopt;
    });
    FoldBinary(*this, from, [](const Token& sign, auto left, auto right) -> std::optional<long long> {
        return Is(sign, "^", "xor") ? std::optional(left() ^ right()) : std::nullopt;
    });
    FoldBinary(*this, from, [](const Token& sign, auto left, auto right) -> std::optional<long long> {
        return Is(sign, "|", "bitor") ? std::optional(left() | right()) : std::nullopt;
    });
}

void TokenList::constFoldLogicalOp(Token* from)
{
    FoldBinary(*this, from, [](const Token& sign, auto left, auto right) -> std::optional<long long> {
        return Is(sign, "&&", "and") ? std::optional<long long>(left() != 0 && right() != 0) : std::nullopt;
    });
    FoldBinary(*this, from, [](const Token& sign, auto left, auto right) -> std::optional<long long> {
        return Is(sign, "||", "or") ? std::optional<long long>(left() != 0 || right() != 0) : std::nullopt;
    });
}

void TokenList::constFoldQuestionOp(Token* from)
{
    Token* token = from;
    while (token->next != nullptr && token->next->op != ')')
        token = token->next;
    for (;; token = token->previous) {
        if (token->op == '?') {
            Token* const condition = token == from ? nullptr : token->previous;
            Token* const yes = token->next;
            Token* const colon = yes == nullptr ? nullptr : yes->next;
            Token* const no = colon == nullptr ? nullptr : colon->next;
            if (no == nullptr || colon->op != ':' || !IsOperand(condition) || !IsOperand(yes) ||
                !IsOperand(no))
                throw std::runtime_error("invalid expression");
            condition->setstr(stringToLL(condition->str) != 0 ? yes->str : no->str);
            while (token != no) {
                Token* const folded = token;
                token = token->next;
                deleteToken(folded);
            }
            token = condition;
            deleteToken(no);
        }
        if (token == from)
            return;
    }
}

} // namespace MacroPreprocessorChecker::internal
