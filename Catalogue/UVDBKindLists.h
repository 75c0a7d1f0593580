// The classes of kinds, each in its own order.
#pragma once

#include <cstdint>
#include <span>

extern const std::span<const std::uint64_t> kDatabaseKinds;
extern const std::span<const std::uint64_t> kApplicationKinds;
extern const std::span<const std::uint64_t> kStatisticsKinds;
