#include "Tools/uvgrammar-elements/ElementsReport.h"

#include <algorithm>
#include <filesystem>
#include <set>
#include <string_view>
#include <utility>
#include <vector>

namespace uvelements {

namespace {

constexpr std::size_t kWidth = 110;
constexpr std::size_t kExampleWidth = 90;
constexpr std::size_t kClassWorthAName = 8; // elements; fewer are named one by one
constexpr std::size_t kTokensShown = 6;     // of a class of many
constexpr std::size_t kManyTokens = 24;
constexpr std::size_t kParentsShown = 5;

using TNames = std::vector<std::string>;

bool IsToken(std::string_view name)
{
    return name.starts_with("T__");
}

// Words that fill lines; those after the first are indented.
class CLines
{
public:
    CLines(std::string& text, std::string begin, std::size_t indent)
        : m_Text(text), m_Line(std::move(begin)), m_Indent(indent)
    {}
    ~CLines() { m_Text += m_Line + '\n'; }
    CLines(const CLines&) = delete;
    CLines& operator=(const CLines&) = delete;

    void Add(const std::string& word)
    {
        const std::size_t from = m_Line.find_first_not_of(' ');
        if (from != std::string::npos && m_Line.size() + 1 + word.size() > kWidth) {
            m_Text += m_Line + '\n';
            m_Line = std::string(m_Indent, ' ');
        }
        if (!m_Line.empty() && m_Line.back() != ' ')
            m_Line += ' ';
        m_Line += word;
    }

private:
    std::string& m_Text;
    std::string m_Line;
    std::size_t m_Indent;
};

// The first line of a text, its blanks as one.
std::string ShownText(std::string_view text)
{
    std::string shown;
    for (const char c : text) {
        const bool isBlank = c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == '\f';
        if (!isBlank)
            shown += static_cast<unsigned char>(c) < 0x20 || c == 0x7F ? '?' : c;
        else if (!shown.empty() && shown.back() != ' ')
            shown += ' ';
        if (shown.size() > kExampleWidth) {
            // not within a character
            while (!shown.empty() && (static_cast<unsigned char>(shown.back()) & 0xC0U) == 0x80)
                shown.pop_back();
            shown.pop_back();
            return shown + " ...";
        }
    }
    return shown.substr(0, shown.find_last_not_of(' ') + 1);
}

class CPage
{
public:
    explicit CPage(const SLanguageElements& elements) : m_Elements(elements)
    {
        for (const SElementClass& one : elements.tree.classes)
            if (one.names.size() >= kClassWorthAName)
                m_Classes.push_back(&one);
        std::ranges::stable_sort(m_Classes, [](const SElementClass* a, const SElementClass* b) {
            return a->names.size() > b->names.size();
        });
    }

    std::string Text()
    {
        // Files of one name, a language's own and those that it shares with others, have one section.
        using TSection = std::pair<std::string, std::string>; // its title and its text
        std::vector<TSection> sections;
        auto section = sections.end();
        for (const STreeElement& element : m_Elements.tree.elements) {
            if (sections.empty() || !element.places.empty()) {
                const std::string title =
                    element.places.empty() ? "Made by flattening" : Title(element.places.front().file);
                section = std::ranges::find(sections, title, &TSection::first);
                if (section == sections.end())
                    section = sections.emplace(section, title, "");
            }
            section->second += section->second.empty() ? "" : "\n";
            AppendElement(element, section->second);
        }
        std::string body;
        for (const auto& [title, text] : sections)
            body.append(body.empty() ? "## " : "\n## ")
                .append(title)
                .append("\n\n```\n")
                .append(text)
                .append("```\n");
        return Head() + ClassesText() + body;
    }

private:
    static std::string Title(const std::string& file) { return std::filesystem::path(file).stem().string(); }

    std::string Head() const
    {
        const std::string& name = m_Elements.language;
        return "# The elements of " + name +
               "\n\n"
               "What stands in the flattened trees of " +
               name +
               ". This page is made by `uvgrammar elements` from the grammar and\n"
               "the cases of the language, so a change is made there. `Documentation/UvgrammarGuide.md` "
               "tells how "
               "it is read, in\n\"The elements of a language\".\n\n";
    }

    // In the order of the sources. What they name comes to be used, too.
    std::string ClassesText()
    {
        std::set<const SElementClass*> done;
        while (done != m_Used)
            for (const SElementClass* one : std::set<const SElementClass*>(m_Used))
                if (done.insert(one).second)
                    Words(one->names, one);
        if (m_Used.empty())
            return {};
        std::string text = "## Sets of elements\n\n```\n";
        for (const SElementClass& one : m_Elements.tree.classes) {
            if (!m_Used.contains(&one))
                continue;
            CLines lines(text, "<" + one.symbol + ">", 4);
            const char* before = "= ";
            for (const std::string& word : Words(one.names, &one)) {
                lines.Add(before + word);
                before = "| ";
            }
        }
        return text + "```\n\n";
    }

    // The names with sets in their places; the first name of a set is its place. `within` can't be put for itself.
    TNames Words(const TNames& names, const SElementClass* within = nullptr)
    {
        const std::set<std::string> all(names.begin(), names.end());
        std::set<std::string> covered;
        std::vector<const SElementClass*> sets;
        for (const SElementClass* one : m_Classes) {
            if (within != nullptr && one->names.size() >= within->names.size())
                continue;
            const auto isNew = [&](const std::string& name) { return !covered.contains(name); };
            if (!std::ranges::all_of(one->names,
                                     [&](const std::string& name) { return all.contains(name); }) ||
                static_cast<std::size_t>(std::ranges::count_if(one->names, isNew)) < kClassWorthAName)
                continue;
            covered.insert(one->names.begin(), one->names.end());
            sets.push_back(one);
            m_Used.insert(one);
        }
        TNames words;
        for (const SElementClass* one : sets)
            words.push_back("<" + one->symbol + ">");
        const auto tokens = static_cast<std::size_t>(std::ranges::count_if(
            names, [&](const std::string& name) { return IsToken(name) && !covered.contains(name); }));
        std::size_t shown = 0;
        for (const std::string& name : names) {
            if (covered.contains(name))
                continue;
            if (IsToken(name) && tokens > kManyTokens && ++shown > kTokensShown)
                continue;
            words.push_back(name);
        }
        if (tokens > kManyTokens)
            words.push_back("... " + std::to_string(tokens - kTokensShown) + " more tokens");
        return words;
    }

    void AppendElement(const STreeElement& element, std::string& text)
    {
        {
            CLines lines(text,
                         element.name + (element.isList ? " (list)" : "") +
                             (element.isOfErrors ? " (after errors)" : ""),
                         4);
            const std::size_t shown =
                element.parents.size() <= kParentsShown + 1 ? element.parents.size() : kParentsShown;
            for (std::size_t i = 0; i < shown; ++i)
                lines.Add((i == 0 ? "in " : "") + element.parents[i] +
                          (i + 1 < element.parents.size() ? "," : ""));
            if (shown < element.parents.size())
                lines.Add(std::to_string(element.parents.size() - shown) + " more");
        }
        AppendChildren(element, text);
        const auto example = m_Elements.examples.find(element.name);
        const std::string shown =
            example == m_Elements.examples.end() ? std::string() : ShownText(example->second.text);
        if (!shown.empty())
            text += "    > " + shown + '\n';
    }

    void AppendChildren(const STreeElement& element, std::string& text)
    {
        if (element.children.empty())
            return;
        CLines lines(text, "    :", 6);
        for (const SChild& child : element.children) {
            if (child.isOfErrors)
                continue;
            const TNames words = Words(child.names);
            const char* const count =
                child.isRepeated ? (child.isOptional ? "*" : "+") : (child.isOptional ? "?" : "");
            const bool isChoice = words.size() > 1;
            for (std::size_t i = 0; i < words.size(); ++i) {
                std::string word = i > 0 ? "| " : isChoice ? "(" : "";
                word += words[i];
                if (i + 1 == words.size())
                    word.append(isChoice ? ")" : "").append(count);
                lines.Add(word);
            }
        }
        const char* before = "after errors also ";
        for (const SChild& child : element.children) {
            if (!child.isOfErrors)
                continue;
            lines.Add(before + child.names.front());
            before = "";
        }
    }

    const SLanguageElements& m_Elements;
    std::vector<const SElementClass*> m_Classes; // those worth a name, the largest first
    std::set<const SElementClass*> m_Used;
};

} // namespace

std::string ElementsPage(const SLanguageElements& elements)
{
    return CPage(elements).Text();
}

} // namespace uvelements
