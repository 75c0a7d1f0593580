// Lists written as lists. One rule of a grammar source,
//
//     %list name : item [ "%separator" token ] [ "%trailing" ] [ "%last" symbol ] [ "%error" node ]
//                  [ "%deep" | "%short" ] [ "%node" node ] ";"
//
// stands for the rules that build a balanced tree of its items, in which every inner node has the list's name. Another form,
//
//     %parts name : symbol symbol { symbol } [ "%node" node ] ";"
//
// stands for the rules that take the symbols in this order, any of them left out but one. Where several are there, nodes hold them.
#pragma once

#include <string>
#include <vector>

struct SListRule
{
    std::string name;
    std::string item;
    std::string separator;    // empty: the items follow each other
    std::string last;         // another symbol that may end the list
    std::string error;        // the node of an item that is an error; empty: there is none
    std::string node;         // of the tree
    bool hasTrailing = false; // a separator may follow the last item
    bool isDeep = false;      // three levels of eight instead of one: for lists of many thousands
    bool isShort = false;     // two rules and a level an item: for lists that never get long
};

struct SPartsRule
{
    std::string name;
    std::vector<std::string> symbols;
    std::string node; // of the tree
};

// The rules in bison's form. Their symbols are the list's name, alone and with the endings "_chunk", "_part" and others.
std::string ListRules(const SListRule& list);
// The same for parts: the list of those from a symbol on is called like the first one, "_from_" and the symbol.
std::string PartsRules(const SPartsRule& parts);
