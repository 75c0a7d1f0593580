#include "Tools/uvparse/PathValue.h"

namespace uvparse {

SPathValue Both(const SPathValue& left, std::string_view /*sign*/, const SPathValue& right)
{
    SPathValue both;
    both.asksPosition = left.asksPosition || right.asksPosition;
    both.look = std::max(left.look, right.look);
    // Two of them may be true in different parts.
    both.isWitnessed =
        (left.isWitnessed && right.look == enLook::Tag) || (right.isWitnessed && left.look == enLook::Tag);
    both.target = left.target ? left.target : right.target;
    return both;
}

SPathValue Either(const SPathValue& left, std::string_view /*sign*/, const SPathValue& right)
{
    SPathValue either;
    either.asksPosition = left.asksPosition || right.asksPosition;
    either.look = std::max(left.look, right.look);
    either.isWitnessed = (left.isWitnessed && (right.isWitnessed || right.look == enLook::Tag)) ||
                         (right.isWitnessed && left.look == enLook::Tag);
    return either;
}

SPathValue Calculated(const SPathValue& left, std::string_view /*sign*/, const SPathValue& right)
{
    SPathValue number;
    number.isNumber = true;
    number.asksPosition = left.asksPosition || right.asksPosition;
    number.look = std::max(left.LookAsString(), right.LookAsString());
    return number;
}

// Nodes are compared one by one with anything but a boolean.
SPathValue Compared(const SPathValue& left, std::string_view sign, const SPathValue& right)
{
    const SPathValue& nodes = left.isConstant ? right : left;
    const SPathValue& other = left.isConstant ? left : right;
    SPathValue compared;
    compared.isWitnessed = nodes.isLeaves && other.isConstant;
    if (sign == "=" && other.literal && (nodes.isSelf || (compared.isWitnessed && nodes.target))) {
        compared.target = nodes.target.value_or(SPathTarget{});
        compared.target->text = *other.literal;
        compared.target->isAllText = true;
    }
    compared.asksPosition = left.asksPosition || right.asksPosition;
    compared.look = std::max(left.LookAsString(), right.LookAsString());
    return compared;
}

SPathValue United(const SPathValue& left, const SPathValue& right)
{
    SPathValue nodes = Calculated(left, {}, right);
    nodes.isNumber = false;
    return nodes;
}

} // namespace uvparse
