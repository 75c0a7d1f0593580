#include "Catalogue/UVDBVersionRange.h"

#include <cstdlib>
#include <string>
#include <utility>

namespace {

// Decimal, cut to 32 bits: a number too long for them wraps.
std::int64_t ReadVersionNumber(std::string_view text)
{
    return static_cast<std::int32_t>(std::strtol(std::string(text).c_str(), nullptr, 10));
}

Exp MakeNode(Exp::OPER op, const Exp& left, const Exp* right)
{
    Exp node;
    node.op = op;
    node.left = std::make_unique<Exp>(left);
    if (right)
        node.right = std::make_unique<Exp>(*right);
    return node;
}

} // namespace

void CDBVersionValue::Set(std::string_view text, bool isInclusive)
{
    any = true;
    inclusive = isInclusive;
    if (text == "*")
        return;
    const std::size_t dot = text.find('.');
    if (dot == std::string_view::npos)
        return;
    major = ReadVersionNumber(text.substr(0, dot));
    minor = ReadVersionNumber(text.substr(dot + 1));
    any = false;
}

Ver::Ver(std::uint64_t dbKind, std::uint64_t dbSubType, const Uve::U8CString& range,
         bool unknownVersionMatches)
    : db{dbKind}, subType{dbSubType}, matchUnknownVersion{unknownVersionMatches}
{
    std::string_view text{range.c_str()};
    std::size_t dash = text.find('-');
    if (dash == std::string_view::npos) {
        text = "*-*";
        dash = 1;
    }
    std::string_view lower = text.substr(0, dash);
    std::string_view upper = text.substr(dash + 1);
    const bool excludesLower = lower.ends_with('>');
    const bool excludesUpper = upper.starts_with('<');
    if (excludesLower)
        lower.remove_suffix(1);
    if (excludesUpper)
        upper.remove_prefix(1);
    from.Set(lower, !excludesLower);
    to.Set(upper, !excludesUpper);
}

Ver Ver::operator!() const
{
    Ver opposite = *this;
    opposite.negate = !negate;
    return opposite;
}

bool Ver::IsValid(std::uint64_t dbKind, std::uint64_t dbSubType, std::uint64_t majorVersion,
                  std::uint64_t minorVersion) const
{
    const bool yes = !negate;
    const bool no = negate;
    if (db != kAnyKind && db != dbKind)
        return no;
    if (subType != kAnySubType && subType != dbSubType)
        return no;
    if (matchUnknownVersion && majorVersion == UVDB_NO_VERSION_WORD && minorVersion == UVDB_NO_VERSION_WORD)
        return yes;

    const std::pair version{majorVersion, minorVersion};
    const auto bound = [](const CDBVersionValue& value) {
        return std::pair{static_cast<std::uint64_t>(value.major), static_cast<std::uint64_t>(value.minor)};
    };
    if (!from.any && (version < bound(from) || (version == bound(from) && !from.inclusive)))
        return no;
    if (!to.any && (version > bound(to) || (version == bound(to) && !to.inclusive)))
        return no;
    return yes;
}

SubVer::SubVer(std::uint64_t dbSubType, const Uve::U8CString& range) : Ver(kAnyKind, dbSubType, range, false)
{}

Exp::Exp(const Ver& primary, const Ver& secondary, bool onlyExplicit)
    : op{opPair}, first{std::make_unique<Ver>(primary)}, second{std::make_unique<Ver>(secondary)},
      explicitOnly{onlyExplicit}
{}

Exp::Exp(const Exp& other)
    : op{other.op}, first{other.first ? std::make_unique<Ver>(*other.first) : nullptr},
      second{other.second ? std::make_unique<Ver>(*other.second) : nullptr},
      left{other.left ? std::make_unique<Exp>(*other.left) : nullptr},
      right{other.right ? std::make_unique<Exp>(*other.right) : nullptr}, explicitOnly{other.explicitOnly}
{}

Exp& Exp::operator=(const Exp& other)
{
    // The copy is complete before anything of this node goes: `other` may be one of its own operands.
    Exp copy(other);
    return *this = std::move(copy);
}

bool Exp::IsValid(std::uint64_t db, std::uint64_t subType, std::uint64_t majorVersion,
                  std::uint64_t minorVersion, std::uint64_t db2, std::uint64_t subType2,
                  std::uint64_t majorVersion2, std::uint64_t minorVersion2, bool top) const
{
    const auto holds = [&](const Exp& operand) {
        return operand.IsValid(db, subType, majorVersion, minorVersion, db2, subType2, majorVersion2,
                               minorVersion2, false);
    };
    // "And" and "or" end in their right operand: it becomes the loop's next node.
    for (const Exp* node = this;; node = node->right.get(), top = false) {
        if (node->explicitOnly && !top)
            return false;
        switch (node->op) {
        case opPair:
            return node->first->IsValid(db, subType, majorVersion, minorVersion) &&
                   node->second->IsValid(db2, subType2, majorVersion2, minorVersion2);
        case opNot:
            return !holds(*node->left);
        case opAnd:
            if (!holds(*node->left))
                return false;
            break;
        case opOr:
            if (holds(*node->left))
                return true;
            break;
        case opTrue:
            return true;
        default:
            return false;
        }
    }
}

bool Exp::IsValid(const DB_VERSION_INFO& version, bool top) const
{
    return IsValid(version.db, version.subType, version.major, version.minor, version.db2, version.subType2,
                   version.major2, version.minor2, top);
}

Exp operator&&(const Exp& left, const Exp& right)
{
    return MakeNode(Exp::opAnd, left, &right);
}

Exp operator||(const Exp& left, const Exp& right)
{
    return MakeNode(Exp::opOr, left, &right);
}

Exp operator!(const Exp& operand)
{
    return MakeNode(Exp::opNot, operand, nullptr);
}
