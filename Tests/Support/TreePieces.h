// What generated trees are made of.
#pragma once

#include <string_view>

// clang-format off
inline constexpr std::string_view kRoles[] = {
    "pl_sql_statements",
    "body_pl_sql_statements",
    "delimited_pl_sql_statements",
    "delimited_pl_sql_statement",
    "labeled_pl_sql_statement",
    "pl_sql_statement",
    "pl_sql_statement_delimiter",
    "pl_sql_statement_label",
    "full_pl_sql_statement",
    "expression",
    "CONCAT_item_list",
    "accumulate_expression",
    "main_source_section",
    "program_data_division_clause",
    "T__SPACE",
};
inline constexpr std::string_view kRules[] = {"item", "select_list", "a", "SQL", "T", "T_ID", "t__a"};
inline constexpr std::string_view kTokens[] = {"T_ID", "T__COMMA", "T__", "T__SPACE", "T__item", "T"};

// Of text and of attribute values.
inline constexpr std::string_view kPieces[] = {
    "a", "select", " ", "\n", "\t", "\r", "\r\n", "\n\n", "\r\r\n", "\"", "'", ">", "/>", "{", "}", "=", "#", "[", "]",
    "]]", "--", "/*", "%", "^", "\x01", "\x0b", "\x1f", "\x7f",
    "é", "€", "😀", "\u0085", "\u00A0", "\u2028", "\uFEFF", "\uFFFD", "\uFFFE", "\uFFFF",
    "&amp;", "&lt;", "&gt;", "&apos;", "&quot;", "&amp;amp;",
    "&#65;", "&#x41;", "&#13;", "&#x0d;", "&#10;", "&#9;", "&#0000000032;", "&#233;", "&#x1F600;", "&#x10FFFF;",
    "&#38;", "&#60;", "&#x3e;", "&#38;#38;",
};

inline constexpr std::string_view kMacros[] = {
    "{x=y}", "{x=a#b}", "{x=y[1]}", "{x=y=z}", "{=}", "{x=&lt;y}", "{x=\"y'z\"}", "{x\n=\ty}", "{x=y&#10;}", "{é=€}",
    "{x#1}", "{x#a=b}", "{a#b#c}", "{#}",
    "{x#1[c]}", "{x#1[a=b]}", "{x[1#2]}", "{#[}", "{x#1[[2]}", "{x#1[]}",
    "", "{}", "{x}", "{x", "x}", "x=y", "}x{y=z}", "{{x=y}}", "a{b=c}d{e#f}",
};

inline constexpr std::string_view kAttributes[] = {
    "type", "line", "pos", "macro", "name", "uid", "match", "xpath", "delimited", "labeled", "a",
};

// Around the root.
inline constexpr std::string_view kHeaders[] = {
    "",
    "<?xml version=\"1.0\" ?>",
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n",
};
inline constexpr std::string_view kMargins[] = {"", "\n", " ", "\r\n\t "};

// What has no place in a raw tree, or in no XML at all.
inline constexpr std::string_view kOddities[] = {
    "<![CDATA[x<&]]>", "<![CDATA[]]>", "<?pi x?>", "<?pi?>", "<?xml version=\"1.0\"?>", "<!DOCTYPE SQL>",
    "<!DOCTYPE SQL [<!ENTITY e \"v\">]>", "]]>", "<", "&", "&amp", "&nosuch;", "&#;", "&#0;", "&#x1;", "&#xD800;",
    "&#xFFFF;", "&#x110000;", "</a>", "<a>", "< a/>", "<a / >", "</ a>", "<a\x01/>", "<1/>", "<-a/>", "<.a/>", "<é/>",
    "<a·b/>", "<a-b.c_d1/>", "<_a/>",
    // name spaces
    "<a:b/>", "<a:/>", "<:a/>", "<xsl:a/>", "<a b:c=\"1\"/>", "<a xmlns=\"u\"/>", "<a xmlns:p=\"u\"><p:b p:c=\"1\"/></a>",
    "<a xmlns:p=\"\"/>", "<a xml:space=\"preserve\"> </a>", "<a xml:id=\"i\"/>", "<T__SPACE xmlns=\"u\"/>",
    // attributes
    "<a b=\"1\" b=\"2\"/>", "<a b='1' c=\"&lt;\" b='2'/>", "<a b/>", "<a b=c/>", "<a b=\"<\"/>", "<a b=\"1\"c=\"2\"/>",
    "<a b=\"&\"/>", "<a b=\"&nosuch;\"/>", "<a b=\"", "<a b", "<a é=\"1\"/>", "<a b=\"1\"\x01/>", "<a b=\"\xFF\"/>",
    // comments
    "<!-- a -- b -->", "<!---->", "<!--->", "<!-- a --->", "<!-- open", "<!-", "<!-- \xFF -->", "<!-- \x01 -->",
    "<!--\r\n-->",
    // bytes that aren't UTF-8, or no characters of XML
    "\xFF", "\x80", "\xC3", "\xC0\x80", "\xE2\x82", "\xED\xA0\x80", "\xEF\xBF\xBE", "\xF4\x90\x80\x80",
};
// clang-format on
