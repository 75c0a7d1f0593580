#include "Tools/uvparse/PathScope.h"

#include "Tools/uvparse/PathTokens.h"
#include "Tools/uvparse/PathValue.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <utility>

namespace uvparse {

namespace {

enum class enAxis
{
    Child,
    Descendant,
    Self,
    DescendantOrSelf,
    Attribute,
    Parent,
    Ancestor,
    Sibling,
    Other
};

enAxis AxisOf(std::string_view name)
{
    struct SRow
    {
        std::string_view name;
        enAxis axis;
    };
    constexpr std::array kAxes = {
        SRow{"child", enAxis::Child},
        SRow{"descendant", enAxis::Descendant},
        SRow{"descendant-or-self", enAxis::DescendantOrSelf},
        SRow{"self", enAxis::Self},
        SRow{"attribute", enAxis::Attribute},
        SRow{"parent", enAxis::Parent},
        SRow{"ancestor", enAxis::Ancestor},
        SRow{"ancestor-or-self", enAxis::Ancestor},
        SRow{"following-sibling", enAxis::Sibling},
        SRow{"preceding-sibling", enAxis::Sibling},
    };
    const auto row = std::ranges::find(kAxes, name, &SRow::name);
    return row == kAxes.end() ? enAxis::Other : row->axis;
}

bool IsOneOf(std::string_view name, std::initializer_list<std::string_view> names)
{
    return std::ranges::find(names, name) != names.end();
}

struct SStep
{
    enAxis axis = enAxis::Child;
    std::string_view name;  // of the nodes wanted; empty: they have more than one, or none
    bool isElements = true; // it may select elements
    bool isAnyNode = false; // elements and whatever else
    bool isText = false;

    bool IsDown() const
    {
        return axis == enAxis::Child || axis == enAxis::Descendant || axis == enAxis::DescendantOrSelf ||
               axis == enAxis::Self;
    }
};

class CScopeReader
{
public:
    explicit CScopeReader(std::string_view expression)
        : m_Expression(expression), m_Tokens(ReadPathTokens(expression))
    {}

    SPathScope Read()
    {
        m_Scope.isDivisible = true;
        m_Scope.isInOrder = true;
        if (IsSymbol("(", 1) && IsOneOf(Peek().text, {"count", "boolean", "not"})) {
            m_Scope.answer = Peek().text == "count" ? enPathAnswer::Count
                             : Peek().text == "not" ? enPathAnswer::None
                                                    : enPathAnswer::Any;
            m_At += 2;
            ReadBracketed();
        } else if (Accept("(")) {
            ReadBracketed();
            if (Accept("["))
                ReadNumber();
        } else {
            ReadUnion();
        }
        if (Peek().kind != enPathToken::End)
            Refuse();
        if (m_IsRefused)
            m_Scope = {};
        if (m_Scope.path.empty())
            m_Scope.path = m_Expression;
        return std::move(m_Scope);
    }

private:
    const SPathToken& Peek(std::size_t ahead = 0) const
    {
        return m_Tokens[std::min(m_At + ahead, m_Tokens.size() - 1)];
    }
    // Where the next token begins.
    const char* Here() const
    {
        return m_At + 1 >= m_Tokens.size() ? m_Expression.data() + m_Expression.size() : Peek().text.data();
    }
    bool IsSymbol(std::string_view text, std::size_t ahead = 0) const
    {
        return Peek(ahead).kind == enPathToken::Symbol && Peek(ahead).text == text;
    }
    bool IsOperator(std::initializer_list<std::string_view> texts) const
    {
        return (Peek().kind == enPathToken::Symbol || Peek().kind == enPathToken::Name) &&
               IsOneOf(Peek().text, texts);
    }
    bool Accept(std::string_view text)
    {
        if (!IsSymbol(text))
            return false;
        ++m_At;
        return true;
    }
    void Expect(std::string_view text)
    {
        if (!Accept(text))
            Refuse();
    }

    // The rest of the expression has nothing more to say.
    void Refuse()
    {
        m_IsRefused = true;
        m_At = m_Tokens.size() - 1;
    }

    // ---- What is asked ----

    // After the bracket has opened.
    void ReadBracketed()
    {
        const char* const begin = Here();
        ReadUnion();
        m_Scope.path.assign(begin, Here());
        Expect(")");
    }

    void ReadNumber()
    {
        const std::string_view text = Peek().text;
        if (Peek().kind == enPathToken::Number && text.size() < 10 && text.find('.') == text.npos) {
            m_Scope.answer = enPathAnswer::Numbered;
            std::from_chars(text.data(), text.data() + text.size(), m_Scope.number);
            if (m_Scope.number == 0)
                Refuse();
            ++m_At;
        } else if (text == "last" && IsSymbol("(", 1) && IsSymbol(")", 2)) {
            m_Scope.answer = enPathAnswer::Last;
            m_At += 3;
        } else {
            Refuse();
        }
        Expect("]");
    }

    void KeepWhole(std::string_view name)
    {
        if (name.empty())
            Refuse();
        else
            m_Scope.undivided.emplace_back(name);
    }
    void KeepParentsWhole(std::string_view name)
    {
        if (name.empty())
            Refuse();
        else
            m_Scope.undividedParents.emplace_back(name);
    }

    // ---- Steps ----

    bool IsStep() const
    {
        return IsSymbol(".") || IsSymbol("..") || IsSymbol("@") || IsSymbol("*") ||
               Peek().kind == enPathToken::Name;
    }

    // Without its predicates.
    SStep ReadStep()
    {
        if (Accept("."))
            return {enAxis::Self, {}, true, true};
        if (Accept(".."))
            return {enAxis::Parent, {}, true, true};
        SStep step;
        if (Accept("@")) {
            step.axis = enAxis::Attribute;
        } else if (Peek().kind == enPathToken::Name && IsSymbol("::", 1)) {
            step.axis = AxisOf(Peek().text);
            m_At += 2;
        }
        if (step.axis == enAxis::Other)
            Refuse();
        step.isElements = step.axis != enAxis::Attribute;
        if (Accept("*"))
            return step;
        if (Peek().kind != enPathToken::Name || IsSymbol(":", 1)) {
            Refuse();
            return step;
        }
        step.name = Peek().text;
        ++m_At;
        if (!Accept("("))
            return step;
        // The type of a node; a name in the brackets belongs to a processing instruction.
        step.isElements = step.isElements && step.name == "node";
        step.isAnyNode = step.name == "node";
        step.isText = step.axis != enAxis::Attribute && step.name == "text";
        if (!IsOneOf(step.name, {"node", "text", "comment"}))
            Refuse();
        step.name = {};
        Expect(")");
        return step;
    }

    // Returns: all of them together. A position looks at more than the node.
    SPathValue ReadPredicates(const SStep& step)
    {
        SPathValue all;
        while (Accept("[")) {
            const std::string_view outer = std::exchange(m_Subject, step.isElements ? step.name : "");
            SPathValue value = ReadOr();
            m_Subject = outer;
            if (value.IsPositional()) {
                value = SPathValue::Beyond();
                value.asksPosition = true;
            }
            all = Both(all, {}, value);
            Expect("]");
        }
        return all;
    }

    // ---- Paths that select ----

    void ReadUnion()
    {
        ReadSelectingPath();
        if (!IsSymbol("|"))
            return;
        while (Accept("|"))
            ReadSelectingPath();
        m_Scope.target.reset();
        // The other paths would have to be right in that tree too.
        if (m_Scope.areDividedApart)
            Refuse();
    }

    // Whole are, with an element, all that is below it, unless what is said of it is right in its parts.
    void ReadSelectingPath()
    {
        if (!Accept("//"))
            Accept("/");
        if (!IsStep())
            return Refuse();     // the document
        std::string_view anchor; // the element of a name that the path has come through last
        std::string_view outer;  // the one before, if it is above that
        bool isAtAnchor = false;
        bool isDown = true;
        do {
            const SStep step = ReadStep();
            const char* const begin = Here();
            const bool hasPredicates = IsSymbol("[");
            const SPathValue predicates = ReadPredicates(step);
            const std::string_view text(begin, static_cast<std::size_t>(Here() - begin));
            const bool isLast = !IsSymbol("/") && !IsSymbol("//");
            const bool isEnd = isLast || IsLastAttribute();
            switch (step.axis) {
            case enAxis::Parent:
            case enAxis::Ancestor:
                // As the last of all it may be divided.
                if (!isLast || predicates.look != enLook::Tag)
                    KeepWhole(step.name);
                m_Scope.isInOrder = false;
                isDown = false;
                outer = {};
                anchor = step.name;
                isAtAnchor = !anchor.empty();
                break;
            case enAxis::Sibling:
                if (!isAtAnchor)
                    Refuse();
                else if (!outer.empty())
                    KeepWhole(outer);
                else
                    KeepParentsWhole(anchor);
                isDown = false;
                anchor = step.name;
                isAtAnchor = !anchor.empty();
                break;
            case enAxis::Attribute:
                if (predicates.asksPosition)
                    Refuse();
                isAtAnchor = false;
                break;
            default:
                if (isDown && isEnd && step.isElements && !step.isAnyNode)
                    AimAt(step, predicates, text);
                isDown = isDown && predicates.look == enLook::Tag;
                if (hasPredicates && step.isElements)
                    ReadDivided(predicates, step.name.empty() ? anchor : step.name, isEnd);
                if (predicates.asksPosition && !anchor.empty())
                    KeepWhole(anchor);
                else if (predicates.asksPosition && step.axis == enAxis::Child)
                    KeepParentsWhole(step.name);
                else if (predicates.asksPosition)
                    Refuse();
                isAtAnchor = !step.name.empty();
                if (isAtAnchor) {
                    outer = std::exchange(anchor, step.name);
                    if (step.axis == enAxis::Self || step.axis == enAxis::DescendantOrSelf)
                        outer = {};
                }
            }
        } while (Accept("/") || Accept("//"));
    }

    // What comes next is an attribute of what was selected, and nothing after that.
    bool IsLastAttribute() const
    {
        return IsSymbol("/") && IsSymbol("@", 1) &&
               std::ranges::none_of(std::array{"/", "//", "[", "(", ":"},
                                    [this](std::string_view text) { return IsSymbol(text, 3); });
    }

    // Predicates of elements that may be divided, unless those of this name are kept whole.
    void ReadDivided(const SPathValue& predicates, std::string_view name, bool isEnd)
    {
        if (predicates.look == enLook::Tag)
            return; // stands in each part
        if (!isEnd || (predicates.look == enLook::More && !predicates.isWitnessed))
            return KeepWhole(name);
        m_Scope.isInOrder = false;
        m_Scope.areDividedApart |= predicates.look == enLook::Text;
    }

    // The elements of the last step are selected, or their attributes.
    void AimAt(const SStep& step, const SPathValue& predicates, std::string_view text)
    {
        SPathTarget target;
        if (predicates.look == enLook::Tag)
            target.predicates = text;
        else if (predicates.look == enLook::Text || predicates.isWitnessed)
            target = predicates.target.value_or(target);
        else
            return;
        const bool isSelf = !target.isText && target.element.empty();
        if (predicates.isWitnessed && isSelf)
            return;
        if (isSelf)
            target.element = step.name;
        if (!target.element.empty() || !target.predicates.empty() || target.text)
            m_Scope.target = target;
    }

    // ---- Predicates ----

    SPathValue ReadOr()
    {
        if (m_Depth == kDeepest)
            Refuse();
        ++m_Depth;
        SPathValue value = ReadChain({"or"}, &Either, [this] { return ReadAnd(); });
        --m_Depth;
        return value;
    }
    SPathValue ReadAnd()
    {
        return ReadChain({"and"}, &Both, [this] { return ReadEquality(); });
    }
    SPathValue ReadEquality()
    {
        return ReadChain({"=", "!="}, &Compared, [this] { return ReadRelation(); });
    }
    SPathValue ReadRelation()
    {
        return ReadChain({"<", "<=", ">", ">="}, &Compared, [this] { return ReadSum(); });
    }
    SPathValue ReadSum()
    {
        return ReadChain({"+", "-"}, &Calculated, [this] { return ReadProduct(); });
    }
    SPathValue ReadProduct()
    {
        return ReadChain({"*", "div", "mod"}, &Calculated, [this] { return ReadSigned(); });
    }

    template <class Operand>
    SPathValue ReadChain(std::initializer_list<std::string_view> operators,
                         SPathValue (*join)(const SPathValue& left, std::string_view sign,
                                            const SPathValue& right),
                         Operand operand)
    {
        SPathValue value = operand();
        while (IsOperator(operators)) {
            const std::string_view sign = Peek().text;
            ++m_At;
            value = join(value, sign, operand());
        }
        return value;
    }

    SPathValue ReadSigned()
    {
        bool isSigned = false;
        while (Accept("-"))
            isSigned = true;
        SPathValue value = ReadOperand();
        while (Accept("|"))
            value = United(value, ReadOperand());
        if (isSigned)
            value = Calculated(value, {}, {});
        return value;
    }

    bool IsFunction() const
    {
        return Peek().kind == enPathToken::Name && IsSymbol("(", 1) &&
               !IsOneOf(Peek().text, {"node", "text", "comment", "processing-instruction"});
    }

    SPathValue ReadOperand()
    {
        SPathValue value;
        if (Peek().kind == enPathToken::Number || Peek().kind == enPathToken::Literal) {
            value.isNumber = Peek().kind == enPathToken::Number;
            value.isConstant = true;
            if (!value.isNumber)
                value.literal = Peek().text.substr(1, Peek().text.size() - 2);
            ++m_At;
        } else if (IsFunction()) {
            value = ReadFunction();
        } else if (Accept("(")) {
            value = ReadOr();
            Expect(")");
            // Of nodes that have been found there is nothing to be said but that they are below.
            if (IsSymbol("[") || IsSymbol("/") || IsSymbol("//"))
                Refuse();
        } else if (IsStep()) {
            value = ReadAskingPath();
        } else {
            Refuse(); // what begins at the root, variables
        }
        return value;
    }

    SPathValue ReadFunction()
    {
        SPathValue value;
        const std::string_view name = Peek().text;
        m_At += 2;
        const bool takesNodes = IsOneOf(name, {"boolean", "not", "count", "name", "local-name"});
        if (IsOneOf(name, {"position", "last"}))
            value.isNumber = value.asksPosition = true;
        else if (IsOneOf(name, {"count", "sum", "number", "floor", "ceiling", "round", "string-length"}))
            value.isNumber = true;
        else if (!IsOneOf(name, {"boolean", "not", "true", "false", "string", "concat", "starts-with",
                                 "contains", "substring", "substring-before", "substring-after",
                                 "normalize-space", "translate", "name", "local-name"}))
            Refuse();
        if (IsSymbol(")") && IsOneOf(name, {"string", "string-length", "normalize-space", "number"}))
            value.look = enLook::Text;
        bool isSelf = false; // the first argument
        if (!IsSymbol(")"))
            do {
                SPathValue argument = ReadOr();
                if (isSelf && argument.literal && IsOneOf(name, {"contains", "starts-with"}))
                    value.target.emplace().text = *argument.literal;
                isSelf = argument.isSelf;
                if (!takesNodes)
                    argument.TakeAsString();
                value.asksPosition |= argument.asksPosition;
                value.look = std::max(value.look, argument.look);
            } while (Accept(","));
        Expect(")");
        return value;
    }

    // A path from a node that isn't divided, or that shows in one of its parts what is asked.
    SPathValue ReadAskingPath()
    {
        SPathValue value = SPathValue::Beyond();
        value.isWitnessed = true;
        std::size_t below = 0; // at least so many levels below that node
        bool isFromSubject = true;
        SStep step;
        for (bool isFirst = true; isFirst || Accept("/") || Accept("//"); isFirst = false) {
            step = ReadStep();
            const bool hasPredicates = IsSymbol("[");
            const SPathValue predicates = ReadPredicates(step);
            value.isWitnessed = value.isWitnessed && (step.IsDown() || step.axis == enAxis::Attribute) &&
                                predicates.look == enLook::Tag;
            if (isFirst && !hasPredicates && !IsSymbol("/") && !IsSymbol("//") &&
                (step.axis == enAxis::Self || step.axis == enAxis::Attribute)) {
                value = {};
                value.isSelf = step.axis == enAxis::Self;
                return value;
            }
            if (step.axis == enAxis::Child || step.axis == enAxis::Descendant) {
                ++below;
            } else if (step.axis == enAxis::Ancestor) {
                KeepWhole(step.name);
                below = 0;
                isFromSubject = false;
            } else if (step.axis == enAxis::Parent || step.axis == enAxis::Sibling) {
                if (below == 0) {
                    KeepParentsWhole(isFromSubject ? m_Subject : "");
                    isFromSubject = false;
                    below = step.axis == enAxis::Sibling ? 1 : 0;
                } else if (step.axis == enAxis::Parent) {
                    --below;
                }
            }
        }
        value.isLeaves = value.isWitnessed && (step.isText || step.axis == enAxis::Attribute);
        if (value.isWitnessed && (step.isText || (step.isElements && !step.name.empty())))
            value.target = {step.isText, std::string(step.name), {}, {}, false};
        return value;
    }

    static constexpr int kDeepest = 100;

    std::string_view m_Expression;
    std::vector<SPathToken> m_Tokens;
    bool m_IsRefused = false;
    std::size_t m_At = 0;
    int m_Depth = 0;            // of expressions in each other
    std::string_view m_Subject; // the name of the elements that the innermost predicate is about
    SPathScope m_Scope;
};

} // namespace

SPathScope ScopeOfPath(std::string_view expression)
{
    return CScopeReader(expression).Read();
}

} // namespace uvparse
