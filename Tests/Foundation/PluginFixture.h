// The interface of the library that the plug-in tests load.
#pragma once

class IPluginFixture
{
public:
    virtual ~IPluginFixture() = default;

    // `*alive` is true until the object's destructor has run.
    virtual void Watch(bool* alive) = 0;
};
