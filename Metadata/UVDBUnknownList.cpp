#include "Metadata/UVDBUnknownList.h"

#include "Interfaces/UVDBResults.h"

#include <utility>

int CUVDBUnknownList::get_Count(unsigned long& count, unsigned long& other)
{
    count = m_items.size();
    other = 0;
    return UVDB_OK;
}

int CUVDBUnknownList::get_Length(long* length)
{
    if (!length)
        return UVDB_INVALID_ARGUMENT;
    *length = static_cast<long>(m_items.size());
    return UVDB_OK;
}

int CUVDBUnknownList::get_Next(std::shared_ptr<IUVDBObject>& item)
{
    if (m_next >= m_items.size())
        return UVDB_NO_DATA;
    item = m_items[m_next++];
    return UVDB_OK;
}

int CUVDBUnknownList::Add(std::shared_ptr<IUVDBObject> object)
{
    if (!object)
        return UVDB_INVALID_ARGUMENT;
    if (m_known.insert(object.get()).second)
        m_items.push_back(std::move(object));
    return UVDB_OK;
}

int CUVDBUnknownList::Clear()
{
    m_items.clear();
    m_known.clear();
    m_next = 0;
    return UVDB_OK;
}

int CUVDBUnknownList::Reset()
{
    m_next = 0;
    return UVDB_OK;
}
