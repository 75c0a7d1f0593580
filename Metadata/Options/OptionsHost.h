#pragma once

#include "Interfaces/IUVDBOptionOwner.h"
#include "Interfaces/IUVDBOptionSet.h"
#include "Metadata/Options/UVDBOptionTypes.h"
#include "UVEnvironment/UVEUnicodeString.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <string_view>
#include <unordered_map>
#include <vector>

// Options on any interface `T` that begins with the operations of IUVDBOptionSet.
//
// The set keeps pointers to values and the type keys beside them. Values that it was given to own, as
// CUVDBOptionWrapper does with all that it makes, die with the set; until then a pointer that was lent to a
// reader is good, also when another one has taken its place.
template <class T>
class OptionsHost : public T, public IUVDBOptionOwner
{
public:
    void OwnOptionValue(void* value, void (*release)(void*)) override
    {
        m_owned.emplace_back(value, release);
    }

    int GetOptValue(const char* name, const char* typeName, void** value) override
    {
        if (const int refusal = RefuseArguments(name, typeName))
            return refusal;
        *value = nullptr;
        const auto found = m_values.find(std::string_view(name));
        if (found == m_values.end())
            return UVDB_OPTION_ABSENT;
        *value = found->second;
        const auto type = m_types.find(std::string_view(name));
        if (type == m_types.end())
            return UVDB_OPTION_UNTYPED;
        return std::string_view(type->second) == typeName ? UVDB_OPTION_FOUND : UVDB_OPTION_OTHER_TYPE;
    }

    int SetOptValue(const char* name, const char* typeName, const void* value) override
    {
        if (const int refusal = RefuseArguments(name, typeName))
            return refusal;
        // Through the virtual operation: a derived set that answers for an option also decides about its
        // type.
        void* present = nullptr;
        const int result = GetOptValue(name, typeName, &present);
        if (result < 0)
            return result;
        if (result == UVDB_OPTION_ABSENT)
            m_types[name] = typeName;
        m_values[name] = const_cast<void*>(value);
        return UVDB_OPTION_FOUND;
    }

    bool IsOptionValid(const char* name) override
    {
        return name && m_values.contains(std::string_view(name));
    }

    bool GetOptTypeName(const char* name, Uve::U8CString& typeName) override
    {
        typeName.clear();
        const auto type = name ? m_types.find(std::string_view(name)) : m_types.end();
        if (type == m_types.end())
            return false;
        typeName = type->second;
        return true;
    }

    bool IsEmpty() override { return m_values.empty(); }

    int get_BodyXML_Option(Uve::U8CString& text) override
    {
        text.clear();
        void* value = nullptr;
        const int result = GetOptValue("BodyXML", UVDBOptionTypeKey<Uve::U8CString>(), &value);
        if (result < 0 || (result == UVDB_OPTION_FOUND && !value))
            return -1;
        if (result == UVDB_OPTION_ABSENT)
            return 1;
        text = *static_cast<const Uve::U8CString*>(value);
        return 0;
    }

private:
    // Lets a lookup by C string do without a copy of it.
    struct SNameHash
    {
        using is_transparent = void;
        std::size_t operator()(std::string_view name) const { return std::hash<std::string_view>{}(name); }
    };
    struct SNameEqual
    {
        using is_transparent = void;
        bool operator()(std::string_view left, std::string_view right) const { return left == right; }
    };
    template <class Value>
    using NameMap = std::unordered_map<Uve::U8CString, Value, SNameHash, SNameEqual>;

    static int RefuseArguments(const char* name, const char* typeName)
    {
        if (!name)
            return UVDB_OPTION_NULL_NAME;
        if (!*name)
            return UVDB_OPTION_EMPTY_NAME;
        if (!typeName)
            return UVDB_OPTION_NULL_TYPE_NAME;
        if (!*typeName)
            return UVDB_OPTION_EMPTY_TYPE_NAME;
        return 0;
    }

    NameMap<void*> m_values;
    NameMap<Uve::U8CString> m_types;
    std::vector<std::unique_ptr<void, void (*)(void*)>> m_owned;
};

// The free-standing set.
class UVDBOptionSet : public OptionsHost<IUVDBOptionSet>
{};
