#include "Tests/Foundation/PluginFixture.h"

#include "UVEnvironment/UVEExport.h"

namespace {

class CPluginFixture : public IPluginFixture
{
public:
    ~CPluginFixture() override
    {
        if (m_Alive != nullptr)
            *m_Alive = false;
    }
    void Watch(bool* alive) override
    {
        m_Alive = alive;
        *m_Alive = true;
    }

private:
    bool* m_Alive = nullptr;
};

IPluginFixture* Create()
{
    return new CPluginFixture;
}

IPluginFixture* CreateNothing()
{
    return nullptr;
}

using Factory = IPluginFixture* (*)();

} // namespace

extern "C" {
UVDB_EXPORT extern Factory CreateInstanceIUVDBSQLParser;
UVDB_EXPORT extern Factory EmptyEntry;
UVDB_EXPORT extern Factory BarrenEntry;
Factory CreateInstanceIUVDBSQLParser = Create;
Factory EmptyEntry = nullptr;
Factory BarrenEntry = CreateNothing;
}
