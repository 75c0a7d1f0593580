#include "Tools/uvnames/Explanation.h"

#include "Catalogue/Identifiers/UVDBIdentifierTraits.h"
#include "Catalogue/Identifiers/UVDBIdentifierTypes.h"
#include "Catalogue/UVDBDatabaseKinds.h"
#include "Tools/uvnames/Reasons.h"

#include <utility>

namespace uvnames {

namespace {

std::string Quoted(const Uve::U8CString& text)
{
    return std::string("'") + text.c_str() + "'";
}

// What the steps say of one part of a name.
class CPartSteps
{
public:
    CPartSteps(CNameMapping& mapping, const SName& name, std::string word, long type, ToolDetails& details)
        : m_Mapping(mapping), m_Name(name), m_Word(std::move(word)), m_Type(static_cast<unsigned long>(type)),
          m_Details(details)
    {}

    void Tell(const Uve::U8CString& part);

private:
    void Add(const std::string& text) { m_Details.emplace_back(m_Word, text); }
    void TellChange(const std::string& why, const Uve::U8CString& before, const Uve::U8CString& after)
    {
        if (before != after)
            Add(why + ": " + Quoted(before) + " becomes " + Quoted(after));
    }

    CNameMapping& m_Mapping;
    const SName& m_Name;
    const std::string m_Word;
    const unsigned long m_Type;
    ToolDetails& m_Details;
};

void CPartSteps::Tell(const Uve::U8CString& part)
{
    CNormalizeName& normaliser = m_Mapping.GetNormaliser();
    const SToolDatabase& from = m_Mapping.GetFrom();
    const SToolDatabase& to = m_Mapping.GetTo();
    if (m_Type == UVDB_DBO_SCHEMA && normaliser.OmitSchemaOption(part)) {
        Add(Quoted(part) + " is left out: the target does without this schema");
        return;
    }
    const Uve::U8CString plain = UnEscIdentifier(from.version, part);
    TellChange("doubled quotes are one", part, plain);

    const long limit = GetDBMSMaxIdentifierSize(m_Type, to.version, m_Name.kindText.c_str());
    const bool countsBytes = to.version.db == UVDB_DB_POSTGRESQL;
    Add(limit <= 0 ? to.name + " sets no limit to its length"
                   : "the limit of " + to.name + " is " + std::to_string(limit) +
                         (countsBytes ? " bytes" : " characters") + ", the name has " +
                         std::to_string(countsBytes ? static_cast<long>(plain.size()) : plain.GetLength()));

    Uve::U8CString step = normaliser.RemoveNotAllowedCharFPos(plain, m_Type);
    TellChange("it may not begin so", plain, step);
    const Uve::U8CString withCharacters = normaliser.RemoveNotAllowedChar(step, m_Type);
    TellChange("characters that the target doesn't allow", step, withCharacters);

    unsigned long reasons = 0;
    const Uve::U8CString legal =
        normaliser.ConvertIdentifier(static_cast<int>(m_Name.type), m_Type, part, reasons, m_Name.kindText);
    TellChange(reasons & UVDB_NAME_TOO_LONG ? "too long" : "other rules of the target", withCharacters,
               legal);
    if (CNormalizeName::IsReservedWord(legal, to.version))
        Add(Quoted(legal) + " is a reserved word of " + to.name);
}

} // namespace

SName SplitName(const CNameMapping& mapping, long type, const std::string& text)
{
    SName name;
    name.type = type;
    std::vector<Uve::U8CString> parts = SplitObjectName(text, mapping.GetFrom().version);
    std::vector<Uve::U8CString*> places;
    if (IsSubObject(type))
        places.push_back(&name.sub);
    if (type == UVDB_DBO_SCHEMA || type == UVDB_DBO_DATABASE)
        places.insert(places.end(), {&name.schema, &name.server});
    else
        places.insert(places.end(), {&name.object, &name.schema, &name.server});
    for (Uve::U8CString* const place : places) {
        if (parts.empty())
            break;
        *place = TrimDelimited(parts.back());
        parts.pop_back();
    }
    return name;
}

ToolDetails Explain(CNameMapping& mapping, const SName& name, const SConvertedName& converted)
{
    ToolDetails details;
    const auto tell = [&](const char* word, const Uve::U8CString& part, long type) {
        if (!part.empty())
            CPartSteps(mapping, name, word, type, details).Tell(part);
    };
    tell("schema", name.schema, UVDB_DBO_SCHEMA);
    tell("object", name.object, CNameMapping::ObjectTypeOf(name.type));
    tell("sub-object", name.sub, name.type);

    if (converted.reasons & UVDB_NAME_MADE_UNIQUE)
        details.emplace_back("unique", "another object has the name already: a number goes after it");
    if (const Uve::U8CString joined = converted.target.Joined(); converted.written != joined)
        details.emplace_back("script", Quoted(joined) + " is written " + converted.written);
    for (const std::string& reason : ReasonTexts(converted.reasons))
        details.emplace_back("reason", reason + ". " + ReasonSentence(reason));
    return details;
}

} // namespace uvnames
