#include "Metadata/Options/UVDBOptionTypes.h"

#include "Interfaces/IUVDBOptionOwner.h"

#include <atomic>
#include <cstdlib>

namespace {

long DecimalLong(const Uve::U8CString& text)
{
    return std::strtol(text.c_str(), nullptr, 10);
}

// A value that nobody releases, kept reachable to the end of the process.
struct SKeptValue
{
    void* value;
    SKeptValue* next;
};

// Sets of different threads share it, though each set belongs to one.
constinit std::atomic<SKeptValue*> g_keptValues{nullptr};

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

void UVDBHandOverOptionValue(IUVDBOptionSet& set, void* value, void (*release)(void*))
{
    if (auto* const owner = dynamic_cast<IUVDBOptionOwner*>(&set)) {
        owner->OwnOptionValue(value, release);
        return;
    }
    auto* const kept = new SKeptValue{value, g_keptValues.load(std::memory_order_relaxed)};
    while (!g_keptValues.compare_exchange_weak(kept->next, kept, std::memory_order_release,
                                               std::memory_order_relaxed)) {
    }
}
