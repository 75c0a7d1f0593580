#include "Tools/uvparse/PathValue.h"

#include <utility>

namespace uvparse {

SPathValue Both(SPathValue left, std::string_view /*sign*/, SPathValue right)
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

SPathValue Either(SPathValue left, std::string_view /*sign*/, SPathValue right)
{
    SPathValue either;
    either.asksPosition = left.asksPosition || right.asksPosition;
    either.look = std::max(left.look, right.look);
    either.isWitnessed = (left.isWitnessed && (right.isWitnessed || right.look == enLook::Tag)) ||
                         (right.isWitnessed && left.look == enLook::Tag);
    return either;
}

SPathValue Calculated(SPathValue left, std::string_view /*sign*/, SPathValue right)
{
    left.TakeAsString();
    right.TakeAsString();
    SPathValue number;
    number.isNumber = true;
    number.asksPosition = left.asksPosition || right.asksPosition;
    number.look = std::max(left.look, right.look);
    return number;
}

// Nodes are compared one by one with anything but a boolean.
SPathValue Compared(SPathValue left, std::string_view sign, SPathValue right)
{
    if (left.isConstant)
        std::swap(left, right);
    SPathValue compared;
    compared.isWitnessed = left.isLeaves && right.isConstant;
    if (sign == "=" && right.literal && (left.isSelf || (compared.isWitnessed && left.target))) {
        compared.target = left.target.value_or(SPathTarget{});
        compared.target->text = *right.literal;
        compared.target->isAllText = true;
    }
    left.TakeAsString();
    right.TakeAsString();
    compared.asksPosition = left.asksPosition || right.asksPosition;
    compared.look = std::max(left.look, right.look);
    return compared;
}

SPathValue United(SPathValue left, SPathValue right)
{
    SPathValue nodes = Calculated(std::move(left), {}, std::move(right));
    nodes.isNumber = false;
    return nodes;
}

} // namespace uvparse
