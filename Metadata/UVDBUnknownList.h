#pragma once

#include "Interfaces/IUVDBList.h"
#include "Interfaces/IUVDBObject.h"

#include <cstddef>
#include <memory>
#include <unordered_set>
#include <vector>

// Objects of any kind in the order in which they were added, each once.
class CUVDBUnknownList : public IUVDBList<std::shared_ptr<IUVDBObject>>
{
public:
    int get_Count(unsigned long& count, unsigned long& other) override;
    int get_Length(long* length) override;
    int get_Next(std::shared_ptr<IUVDBObject>& item) override;
    int
    Add(std::shared_ptr<IUVDBObject> object) override; // an object that is there already stays where it is
    int Clear() override;
    int Reset() override;

private:
    std::vector<std::shared_ptr<IUVDBObject>> m_items;
    std::unordered_set<const IUVDBObject*> m_known;
    std::size_t m_next = 0;
};
