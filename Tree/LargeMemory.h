// Memory for what is large, written once and then read or thrown away: trees and their fragments. Half of the
// time that it takes to write such memory goes into asking the system for each of its pages, so large pages
// are asked for.
#pragma once

#include <cstddef>
#include <memory>
#include <string>

// Reserves `bytes` in `text`.
// Throws: as std::string::reserve.
void ReserveLarge(std::string& text, std::size_t bytes);

// One large page, straight from the system: what is given back is gone from the process, other than with a
// heap, which keeps it.
inline constexpr std::size_t kLargePageBytes = std::size_t{2} << 20;

struct SLargePageDeleter
{
    void operator()(void* page) const noexcept;
};
using LargePage = std::unique_ptr<void, SLargePageDeleter>;

// kLargePageBytes of memory, aligned likewise. `isWhole`: all of it will be used; otherwise only what is
// touched counts.
// Throws: std::bad_alloc.
LargePage NewLargePage(bool isWhole);
