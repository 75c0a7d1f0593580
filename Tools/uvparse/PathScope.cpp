#include "Tools/uvparse/PathScope.h"

#include "Tools/uvparse/PathTokens.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

namespace uvparse {

namespace {

enum class enAxis
{
    Child,
    Descendant,
    Self, // or what may be the node itself
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
        SRow{"descendant-or-self", enAxis::Self},
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
};

// What a predicate or a part of one is.
struct SValue
{
    bool isNumber = false; // as a predicate: a position
    bool asksPosition = false;

    bool IsPositional() const { return isNumber || asksPosition; }
};

class CScopeReader
{
public:
    explicit CScopeReader(std::string_view expression) : m_Tokens(ReadPathTokens(expression)) {}

    SPathScope Read()
    {
        m_Scope.isDivisible = true;
        if (Peek(0).text == "count" && Peek(1).text == "(") {
            m_At += 2;
            ReadUnion();
            // Nothing but a path stands between the brackets.
            const char* const begin = m_Tokens[2].text.data();
            if (IsSymbol(")"))
                m_Scope.counted.assign(begin, Peek().text.data());
            Expect(")");
        } else {
            ReadUnion();
        }
        if (Peek().kind != enPathToken::End)
            Refuse();
        return std::move(m_Scope);
    }

private:
    const SPathToken& Peek(std::size_t ahead = 0) const
    {
        return m_Tokens[std::min(m_At + ahead, m_Tokens.size() - 1)];
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
        m_Scope.isDivisible = false;
        m_At = m_Tokens.size() - 1;
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
            return {enAxis::Self, {}, true};
        if (Accept(".."))
            return {enAxis::Parent, {}, true};
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
        if (!IsOneOf(step.name, {"node", "text", "comment"}))
            Refuse();
        step.name = {};
        Expect(")");
        return step;
    }

    // Returns: whether one of them asks for a position.
    bool ReadPredicates(const SStep& step)
    {
        bool isPositional = false;
        while (Accept("[")) {
            const std::string_view outer = std::exchange(m_Subject, step.isElements ? step.name : "");
            isPositional |= ReadOr().IsPositional();
            m_Subject = outer;
            Expect("]");
        }
        return isPositional;
    }

    // ---- Paths that select ----

    void ReadUnion()
    {
        do
            ReadSelectingPath();
        while (Accept("|"));
    }

    // Whole are, with an element, all that is below it.
    void ReadSelectingPath()
    {
        if (!Accept("//"))
            Accept("/");
        if (!IsStep())
            return Refuse();     // the document
        std::string_view anchor; // the element of a name that the path has come through last
        std::string_view outer;  // the one before, if it is above that
        bool isAtAnchor = false;
        do {
            const SStep step = ReadStep();
            const bool hasPredicates = IsSymbol("[");
            const bool isPositional = ReadPredicates(step);
            const bool isLast = !IsSymbol("/") && !IsSymbol("//");
            switch (step.axis) {
            case enAxis::Parent:
            case enAxis::Ancestor:
                // As the last of all it may be divided.
                if (!isLast || hasPredicates)
                    KeepWhole(step.name);
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
                anchor = step.name;
                isAtAnchor = !anchor.empty();
                break;
            case enAxis::Attribute:
                if (isPositional)
                    Refuse();
                isAtAnchor = false;
                break;
            default:
                if (hasPredicates && step.isElements && !step.name.empty())
                    KeepWhole(step.name);
                else if (hasPredicates && step.isElements)
                    KeepWhole(anchor);
                if (isPositional && !anchor.empty())
                    KeepWhole(anchor);
                else if (isPositional && step.axis == enAxis::Child)
                    KeepParentsWhole(step.name);
                else if (isPositional)
                    Refuse();
                isAtAnchor = !step.name.empty();
                if (isAtAnchor) {
                    outer = std::exchange(anchor, step.name);
                    if (step.axis == enAxis::Self)
                        outer = {};
                }
            }
        } while (Accept("/") || Accept("//"));
    }

    // ---- Predicates ----

    SValue ReadOr()
    {
        if (m_Depth == kDeepest)
            Refuse();
        ++m_Depth;
        const SValue value = ReadChain(
            {"or"}, [this] { return ReadAnd(); }, false);
        --m_Depth;
        return value;
    }
    SValue ReadAnd()
    {
        return ReadChain(
            {"and"}, [this] { return ReadEquality(); }, false);
    }
    SValue ReadEquality()
    {
        return ReadChain(
            {"=", "!="}, [this] { return ReadRelation(); }, false);
    }
    SValue ReadRelation()
    {
        return ReadChain(
            {"<", "<=", ">", ">="}, [this] { return ReadSum(); }, false);
    }
    SValue ReadSum()
    {
        return ReadChain(
            {"+", "-"}, [this] { return ReadProduct(); }, true);
    }
    SValue ReadProduct()
    {
        return ReadChain(
            {"*", "div", "mod"}, [this] { return ReadSigned(); }, true);
    }

    template <class Operand>
    SValue ReadChain(std::initializer_list<std::string_view> operators, Operand operand, bool isNumber)
    {
        SValue value = operand();
        while (IsOperator(operators)) {
            ++m_At;
            value.asksPosition |= operand().asksPosition;
            value.isNumber = isNumber;
        }
        return value;
    }

    SValue ReadSigned()
    {
        bool isSigned = false;
        while (Accept("-"))
            isSigned = true;
        SValue value = ReadOperand();
        while (Accept("|"))
            value.asksPosition |= ReadOperand().asksPosition;
        value.isNumber |= isSigned;
        return value;
    }

    bool IsFunction() const
    {
        return Peek().kind == enPathToken::Name && IsSymbol("(", 1) &&
               !IsOneOf(Peek().text, {"node", "text", "comment", "processing-instruction"});
    }

    SValue ReadOperand()
    {
        SValue value;
        if (Peek().kind == enPathToken::Number || Peek().kind == enPathToken::Literal) {
            value.isNumber = Peek().kind == enPathToken::Number;
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
            ReadAskingPath();
        } else {
            Refuse(); // what begins at the root, variables
        }
        return value;
    }

    SValue ReadFunction()
    {
        SValue value;
        const std::string_view name = Peek().text;
        m_At += 2;
        if (IsOneOf(name, {"position", "last"}))
            value = {true, true};
        else if (IsOneOf(name, {"count", "sum", "number", "floor", "ceiling", "round", "string-length"}))
            value.isNumber = true;
        else if (!IsOneOf(name, {"boolean", "not", "true", "false", "string", "concat", "starts-with",
                                 "contains", "substring", "substring-before", "substring-after",
                                 "normalize-space", "translate", "name", "local-name"}))
            Refuse();
        if (!IsSymbol(")"))
            do
                value.asksPosition |= ReadOr().asksPosition;
            while (Accept(","));
        Expect(")");
        return value;
    }

    // A path from a node that isn't divided.
    void ReadAskingPath()
    {
        std::size_t below = 0; // at least so many levels below that node
        bool isFromSubject = true;
        do {
            const SStep step = ReadStep();
            ReadPredicates(step);
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
        } while (Accept("/") || Accept("//"));
    }

    static constexpr int kDeepest = 100;

    std::vector<SPathToken> m_Tokens;
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
