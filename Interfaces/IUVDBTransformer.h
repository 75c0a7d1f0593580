#pragma once

// A stylesheet transformer that a database plug-in supplies to its database info.
class IUVDBTransformer
{
public:
    IUVDBTransformer() = default;
    IUVDBTransformer(const IUVDBTransformer&) = delete;
    IUVDBTransformer& operator=(const IUVDBTransformer&) = delete;
    virtual ~IUVDBTransformer() = default;

    // Loads a stylesheet by the name that the plug-in understands.
    // Returns: UVDB_OK, or a negative code.
    virtual int Load(const char* stylesheet) = 0;

    // Sets a parameter for the next run; both texts are copied.
    // Returns: UVDB_OK, or a negative code.
    virtual int SetParameter(const char* name, const char* value) = 0;

    // Applies the loaded stylesheet.
    // Returns: whether it ran to its end.
    virtual bool Run() = 0;
};
