// The characters of a name, as the rules of the databases look at them.
#pragma once

#include "Interfaces/DB_VERSION_INFO.h"
#include "UVEnvironment/UVEUnicodeString.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

class CNameCharacters
{
public:
    // Copies `name`. Text beyond ASCII is taken by code points; text that isn't well-formed by bytes, or by
    // wide characters where the active code page can't show its texts as they stand.
    explicit CNameCharacters(const Uve::U8CString& name);

    std::size_t GetCount() const { return m_Characters.size(); }
    unsigned int At(std::size_t index) const { return m_Characters[index].value; }
    std::string_view TextAt(std::size_t index) const
    {
        return std::string_view(m_Text).substr(m_Characters[index].at, m_Characters[index].length);
    }
    // From the character `index` on.
    std::string_view TextFrom(std::size_t index) const
    {
        return index < GetCount() ? std::string_view(m_Text).substr(m_Characters[index].at)
                                  : std::string_view();
    }

    bool IsUtf8() const { return m_Form == enForm::CodePoints; }
    bool IsWide() const { return m_Form == enForm::Wide; }

    // Whether the character may not stand inside a name of the database, or not before one.
    bool IsRefused(std::size_t index, DB_VERSION_INFO version, unsigned long type,
                   const std::string& locale) const;
    bool IsRefusedFirst(std::size_t index, DB_VERSION_INFO version, unsigned long type,
                        const std::string& locale) const;

private:
    enum class enForm
    {
        CodePoints,
        Wide,
        Bytes
    };
    struct SCharacter
    {
        unsigned int value;
        std::size_t at; // bytes, as `length`
        std::size_t length;
    };

    Uve::U8CString m_Text;
    std::vector<SCharacter> m_Characters;
    enForm m_Form = enForm::Bytes;
};
