#include "Names/NameRecords.h"

#include <algorithm>
#include <functional>

namespace {

constexpr std::size_t kFirstSlots = 4;
constexpr std::size_t kFirstBlock = std::size_t{4} << 10;
constexpr std::size_t kLargestBlock = std::size_t{1} << 20;

} // namespace

void CNameRecords::CSlots::Place(SSlot slot)
{
    const std::size_t mask = m_Slots.size() - 1;
    std::size_t at = slot.hash & mask;
    while (m_Slots[at].next != 0)
        at = (at + 1) & mask;
    m_Slots[at] = slot;
}

void CNameRecords::CSlots::Enter(std::uint32_t hash, std::uint32_t index)
{
    ++m_Count;
    if (m_Count * 4 > m_Slots.size() * 3) {
        const std::vector<SSlot> old =
            std::exchange(m_Slots, std::vector<SSlot>(std::max(kFirstSlots, m_Slots.size() * 2)));
        for (const SSlot& slot : old) {
            if (slot.next != 0)
                Place(slot);
        }
    }
    Place({hash, index + 1});
}

std::uint32_t CNameRecords::HashOf(std::string_view text)
{
    return static_cast<std::uint32_t>(std::hash<std::string_view>{}(text));
}

const CNameRecords::SPlace* CNameRecords::FindPlace(std::string_view place) const
{
    const SPlace* found = nullptr;
    m_PlaceSlots.FindIf(HashOf(place), [&](std::uint32_t index) {
        if (m_Places[index].Text() != place)
            return false;
        found = &m_Places[index];
        return true;
    });
    return found;
}

char* CNameRecords::TakeBytes(std::size_t size)
{
    if (size > m_FreeSize) {
        const std::size_t doubled = kFirstBlock << std::min<std::size_t>(m_Blocks.size(), 8);
        m_FreeSize = std::max(size, std::min(doubled, kLargestBlock));
        m_Blocks.emplace_back(new char[m_FreeSize]);
        m_FreeBytes = m_Blocks.back().get();
    }
    m_FreeSize -= size;
    return std::exchange(m_FreeBytes, m_FreeBytes + size);
}

void CNameRecords::Add(std::string_view place, std::string_view text, std::string_view name,
                       const SContent& content)
{
    const SPlace* const known = FindPlace(place);
    const auto placeIndex = static_cast<std::size_t>(known ? known - m_Places.data() : std::ssize(m_Places));
    if (!known) {
        char* const bytes = TakeBytes(place.size());
        std::ranges::copy(place, bytes);
        m_Places.push_back({bytes, place.size(), {}});
        m_PlaceSlots.Enter(HashOf(place), static_cast<std::uint32_t>(placeIndex));
    }
    char* const bytes = TakeBytes(text.size() + name.size());
    std::ranges::copy(name, std::ranges::copy(text, bytes).out);
    m_Places[placeIndex].slots.Enter(HashOf(text), static_cast<std::uint32_t>(m_Records.size()));
    m_Records.push_back(
        {content, static_cast<std::uint32_t>(text.size()), static_cast<std::uint32_t>(name.size()), bytes});
}
