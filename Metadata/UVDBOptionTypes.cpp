#include "Metadata/UVDBOptionTypes.h"

#include <atomic>
#include <cstdlib>

namespace {

long DecimalLong(const Uve::U8CString& text)
{
    return std::strtol(text.c_str(), nullptr, 10);
}

// Sets of different threads share it, though each set belongs to one.
constinit std::atomic<SOptionBlock*> g_optionBlocks{nullptr};

} // namespace

void UVDBOptionFromText(const Uve::U8CString& text, bool& value)
{
    value = text == "1" || text.CollateNoCase("Yes") == 0;
}

void UVDBOptionFromText(const Uve::U8CString& text, int& value)
{
    value = static_cast<int>(DecimalLong(text));
}

void UVDBOptionFromText(const Uve::U8CString& text, unsigned int& value)
{
    value = static_cast<unsigned int>(DecimalLong(text));
}

void UVDBOptionFromText(const Uve::U8CString& text, long& value)
{
    value = DecimalLong(text);
}

void UVDBOptionFromText(const Uve::U8CString& text, unsigned long& value)
{
    value = static_cast<unsigned long>(DecimalLong(text));
}

void UVDBOptionFromText(const Uve::U8CString& text, unsigned long long& value)
{
    value = static_cast<unsigned long long>(DecimalLong(text));
}

void UVDBOptionFromText(const Uve::U8CString& text, double& value)
{
    value = std::strtod(text.c_str(), nullptr);
}

void UVDBOptionFromText(const Uve::U8CString& text, Uve::U8CString& value)
{
    value = text;
}

Uve::U8CString UVDBOptionToText(const bool& value)
{
    return value ? "1" : "0";
}

Uve::U8CString UVDBOptionToText(const int& value)
{
    Uve::U8CString text;
    text.Format("%d", value);
    return text;
}

Uve::U8CString UVDBOptionToText(const unsigned int& value)
{
    Uve::U8CString text;
    text.Format("%d", static_cast<int>(value));
    return text;
}

Uve::U8CString UVDBOptionToText(const long& value)
{
    Uve::U8CString text;
    text.Format("%ld", value);
    return text;
}

Uve::U8CString UVDBOptionToText(const unsigned long& value)
{
    Uve::U8CString text;
    text.Format("%lu", value);
    return text;
}

Uve::U8CString UVDBOptionToText(const unsigned long long& value)
{
    Uve::U8CString text;
    text.Format("%llu", value);
    return text;
}

Uve::U8CString UVDBOptionToText(const double& value)
{
    Uve::U8CString text;
    text.Format("%.0f", value);
    return text;
}

Uve::U8CString UVDBOptionToText(const Uve::U8CString& value)
{
    return value;
}

void UVDBKeepOptionBlock(SOptionBlock* block) noexcept
{
    block->next = g_optionBlocks.load(std::memory_order_relaxed);
    while (!g_optionBlocks.compare_exchange_weak(block->next, block, std::memory_order_release,
                                                 std::memory_order_relaxed)) {
    }
}
