// A table of what names became: by the place where a name stands and the text that it is. Several records, of
// different types, may stand under one text.
//
// Names come table by table, so what stands in one place is kept together: a search among a million names
// then touches memory that the one before has touched. Records are many and small; their texts lie after
// each other in large blocks.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

class CNameRecords
{
public:
    // What a record holds beside its texts.
    struct SContent
    {
        unsigned long reasons = 0;
        int type = -1;     // of the record
        int pathType = -1; // of the path that leads to it
    };

    // Valid until the next change of the table.
    struct SRecord
    {
        SContent content;
        std::uint32_t textSize = 0;
        std::uint32_t nameSize = 0;
        const char* bytes = nullptr; // the text, and the name after it

        std::string_view Text() const { return {bytes, textSize}; }
        std::string_view Name() const { return {bytes + textSize, nameSize}; }
    };

    // Calls `action(record)` for each record of `text` in `place`, in no order, until it gives true.
    // Returns: the record where it did; null if it never does.
    template <class Action>
    const SRecord* FindIf(std::string_view place, std::string_view text, Action action) const
    {
        const SPlace* const found = FindPlace(place);
        const SRecord* result = nullptr;
        if (found) {
            found->slots.FindIf(HashOf(text), [&](std::uint32_t index) {
                const SRecord& record = m_Records[index];
                if (record.Text() != text || !action(record))
                    return false;
                result = &record;
                return true;
            });
        }
        return result;
    }

    // Copies all texts.
    void Add(std::string_view place, std::string_view text, std::string_view name, const SContent& content);

    // Removes the records for which `isUnwanted(place, record)` holds.
    template <class Predicate>
    void RemoveIf(Predicate isUnwanted)
    {
        CNameRecords kept;
        for (const SPlace& place : m_Places) {
            place.slots.ForEach([&](std::uint32_t index) {
                const SRecord& record = m_Records[index];
                if (!isUnwanted(place.Text(), record))
                    kept.Add(place.Text(), record.Text(), record.Name(), record.content);
            });
        }
        if (kept.GetCount() != GetCount())
            *this = std::move(kept);
    }

    std::size_t GetCount() const { return m_Records.size(); }

private:
    // Indices by hash. The same hash may be entered again and again.
    class CSlots
    {
    public:
        void Enter(std::uint32_t hash, std::uint32_t index);

        // Calls `action(index)` for what was entered under `hash`, until it gives true.
        template <class Action>
        void FindIf(std::uint32_t hash, Action action) const
        {
            if (m_Slots.empty())
                return;
            const std::size_t mask = m_Slots.size() - 1;
            for (std::size_t at = hash & mask; m_Slots[at].next != 0; at = (at + 1) & mask) {
                if (m_Slots[at].hash == hash && action(m_Slots[at].next - 1))
                    return;
            }
        }

        template <class Action>
        void ForEach(Action action) const
        {
            for (const SSlot& slot : m_Slots) {
                if (slot.next != 0)
                    action(slot.next - 1);
            }
        }

    private:
        struct SSlot
        {
            std::uint32_t hash = 0;
            std::uint32_t next = 0; // one more than the index; 0: free
        };

        void Place(SSlot slot);

        std::vector<SSlot> m_Slots; // a power of two, at most three quarters of them taken
        std::size_t m_Count = 0;
    };

    struct SPlace
    {
        const char* bytes = nullptr;
        std::size_t size = 0;
        CSlots slots;

        std::string_view Text() const { return {bytes, size}; }
    };

    static std::uint32_t HashOf(std::string_view text);
    const SPlace* FindPlace(std::string_view place) const;
    char* TakeBytes(std::size_t size);

    std::vector<SRecord> m_Records;
    std::vector<SPlace> m_Places;
    CSlots m_PlaceSlots;
    std::vector<std::unique_ptr<char[]>> m_Blocks;
    char* m_FreeBytes = nullptr;
    std::size_t m_FreeSize = 0;
};
