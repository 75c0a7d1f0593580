#include "Tree/TreeEvents.h"

#include <utility>

void CTreeEvents::NewBlock()
{
    const std::uint64_t number = m_End >> kBlockBits;
    if (number - m_FirstBlock == m_Ring.size()) {
        std::vector<std::unique_ptr<STreeEvent[]>> ring(m_Ring.size() * 2);
        for (std::uint64_t old = m_FirstBlock; old < number; ++old)
            ring[old & (ring.size() - 1)] = std::move(m_Ring[old & m_RingMask]);
        m_Ring = std::move(ring);
        m_RingMask = m_Ring.size() - 1;
    }
    std::unique_ptr<STreeEvent[]>& block = m_Ring[number & m_RingMask];
    if (!block)
        block = std::make_unique_for_overwrite<STreeEvent[]>(kBlockMask + 1);
}
