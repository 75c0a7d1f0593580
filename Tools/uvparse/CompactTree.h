// The text of a tree as documents for libxml2 to search, part by part or as a whole. They are made straight
// from the text, hold no more than a search needs and are good for nothing else: nothing in them may be
// changed or freed.
#pragma once

#include "Tools/uvparse/NodeArena.h"
#include "Tools/uvparse/PathNeeds.h"
#include "Tools/uvparse/PathScope.h"
#include "Tools/uvparse/TagJudge.h"

#include <libxml/tree.h>

#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace uvparse {

enum class enPart
{
    Made,
    None,     // the tree is at its end
    NotPlain, // markup that isn't plain stands in the tree, or isn't well-formed
    TooLarge  // an element was divided that the scope wants whole; without division it can be
};

class CCompactTree
{
public:
    // `partSize`: bytes of text that a part has at least; 0: the whole is one part. Borrows all arguments.
    CCompactTree(std::string_view tree, const SPathScope& scope, const SPathNeeds& needs,
                 std::size_t partSize);
    ~CCompactTree();

    CCompactTree(const CCompactTree&) = delete;
    CCompactTree& operator=(const CCompactTree&) = delete;

    // Makes the next part; the one before is gone.
    enPart Next();

    // The rest of the tree is read for what it is, and nothing made of it but the open elements of the parts.
    void MakeNoMore() { m_IsEnough = true; }

    // Of the part.
    xmlDoc* GetDocument() const { return m_Document.get(); }

    // Where a node of the part stands in the tree's text; the document, where its root does. Null for the end
    // of an element that the part doesn't have whole.
    const char* BeginOf(const xmlNode* node) const;
    const char* EndOf(const xmlNode* node) const;
    // Whether it is a divided element, its attribute or the document. Other parts may have it too.
    bool IsShared(const xmlNode* node) const;

    // Of a divided element. Only when all parts were made.
    const char* EndOfDivided(const char* begin) const { return m_DividedEnds.at(begin); }

    // Whether all that was read stands there in the words in which libxml2 writes it.
    bool IsWrittenTheSame() const { return m_IsWrittenTheSame; }

private:
    struct SFreeDocument
    {
        void operator()(xmlDoc* document) const;
    };

    // A name as nodes have it, of elements or attributes, and what is known of elements of this name.
    struct SName
    {
        const char* stored = nullptr;
        std::size_t size = 0;
        bool isNeeded = false;
        bool isUndivided = false;
        bool isParentUndivided = false;

        std::string_view View() const { return {stored, size}; }
    };

    // An opening tag that was found to be plain. Trees repeat the same tags over and over.
    struct STag
    {
        std::string_view text; // empty: none
        const SName* name = nullptr;
        bool isEmpty = false;
        bool isNeeded = false;
    };

    struct SOpenElement
    {
        std::string_view tag; // the opening one
        const SName* name = nullptr;
        xmlNode* node = nullptr;   // null until something in the element is needed
        std::size_t textBegin = 0; // of what is in it, in m_Texts
        bool isAwaited = false;    // needed if it has the text that is looked for
        bool isDivided = false;
        bool holdsWanted = false; // a child that wants its parent whole
    };

    void BeginPart();
    bool MayDivide() const;
    bool TakeDeclaration();
    bool TakeTag();
    bool TakeEnd();
    bool TakeText();
    void Close();
    const STag* TagAt(std::string_view text);
    bool ReadTag(std::string_view text, STag& tag);
    bool ReadAttribute(std::string_view& attributes, std::string_view& name, std::string_view& value);
    bool IsTargetText(std::string_view text) const;
    void MakeOpenElements();
    void MakeText(std::size_t end);
    void MakeTexts();
    xmlNode* MakeElement(const SOpenElement& element);
    void MakeAttributes(xmlNode* element, std::string_view tag);
    xmlNode* MakeNode(xmlElementType type, const char* begin, const char* name);
    void AddNode(xmlNode* node);
    const SName& NameOf(std::string_view name);
    xmlNode* ValueOf(std::string_view text);

    std::string_view m_Tree;
    const SPathScope& m_Scope;
    const SPathNeeds& m_Needs;
    std::size_t m_PartSize;
    std::size_t m_Offset = 0;          // in m_Tree
    const char* m_PartBegin = nullptr; // what begins before was open already
    std::vector<STag> m_Tags;          // by HashOfTag
    CNodeArena m_Nodes;
    CNodeArena m_Names;
    std::unordered_map<std::string_view, SName> m_NameTable;
    std::vector<std::pair<std::string_view, std::string_view>> m_Attributes; // of the tag that is read
    std::unique_ptr<CTagJudge> m_Judge;                                      // of tags that may be needed
    std::vector<xmlNode*> m_Values; // of attributes, by a hash of their text
    std::unique_ptr<xmlDoc, SFreeDocument> m_Document;
    std::vector<SOpenElement> m_Open;
    std::size_t m_Made = 0;                           // of the open elements, from the outermost on
    std::map<const char*, const char*> m_DividedEnds; // of divided elements, by where they begin
    std::ptrdiff_t m_Order = 0;
    bool m_HasRoot = false;
    bool m_IsEnough = false;
    bool m_IsTooLarge = false;
    bool m_IsWrittenTheSame = true;
    std::string m_Texts; // read, and not in a node yet
    std::size_t m_TextsMade = 0;
    std::string m_Value; // of an attribute
};

} // namespace uvparse
