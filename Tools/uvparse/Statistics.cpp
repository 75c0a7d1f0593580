#include "Tools/uvparse/Statistics.h"

namespace uvparse {

SStatistics& SStatistics::operator+=(const SStatistics& other)
{
    statements += other.statements;
    lost += other.lost;
    unexpectedTokens += other.unexpectedTokens;
    bytes += other.bytes;
    seconds += other.seconds;
    return *this;
}

std::string SStatistics::Text() const
{
    const auto rate = seconds > 0 ? static_cast<unsigned long long>(static_cast<double>(bytes) / seconds) : 0;
    return std::to_string(statements) + " statements read, " + std::to_string(lost) + " lost, " +
           std::to_string(unexpectedTokens) + " unexpected tokens, " + std::to_string(bytes) + " bytes, " +
           std::to_string(rate) + " bytes/s";
}

} // namespace uvparse
