// Lists written as lists. One rule of a grammar source,
//
//     %list name : item [ "%separator" token ] [ "%trailing" ] [ "%last" symbol ] [ "%error" node ] [ "%deep" ] [ "%node" node ] ";"
//
// stands for the rules that build a balanced tree of its items, in which every inner node has the list's name.
#pragma once

#include <string>

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
};

// The rules in bison's form. Their symbols are the list's name, alone and with the endings "_chunk", "_part" and others.
std::string ListRules(const SListRule& list);
