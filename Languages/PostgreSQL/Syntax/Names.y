/* Which words are names, and names of what other dialects don't have. */

other_identifier: T__QUOTED_IDENTIFIER | T__UNICODE_IDENTIFIER | T__CLIENT_VARIABLE | T__CLIENT_IDENTIFIER ;

/* A word that no statement knows. */
plain_identifier { NODE(sql_identifier); }: T__IDENTIFIER | other_identifier ;

/* What names columns, tables and most objects. */
identifier { NODE(sql_identifier); }
    : T__IDENTIFIER | other_identifier | unreserved_keyword | column_name_keyword ;

/* What names functions and types. */
type_function_name { NODE(sql_identifier); }
    : T__IDENTIFIER | other_identifier | unreserved_keyword | type_function_name_keyword ;

non_reserved_word { NODE(sql_identifier); }
    : T__IDENTIFIER | other_identifier | unreserved_keyword | column_name_keyword | type_function_name_keyword ;

/* Any word at all: after a dot, after AS. */
any_label { NODE(sql_identifier); }
    : T__IDENTIFIER | other_identifier | unreserved_keyword | column_name_keyword | type_function_name_keyword
    | reserved_keyword ;

/* Words that name a select item without AS. */
bare_label { NODE(sql_identifier); }: T__IDENTIFIER | other_identifier | bare_label_keyword ;

access_method_name, channel_name, event_trigger_name, extension_name, language_name, policy_name,
publication_name, rule_name, subscription_name, wrapper_name { NODE; }: identifier ;
conversion_name, operator_class_name, operator_family_name, statistics_name, text_search_name { NODE; }
    : identifier | dotted_name ;
setting_name { NODE; }: identifier | dotted_setting ;
/* No part of it is a reserved word. */
dotted_setting { NODE(qualified_sql_identifier); }: (identifier | dotted_setting) T__DOT identifier ;
/* A function that another object calls. */
handler_name { NODE(function_name); }: identifier | dotted_name ;
role_name { NODE; }: T__CURRENT_ROLE | T__SESSION_USER ;

%list access_method_name_list: access_method_name %short %separator T__COMMA ;
%list collation_name_list: collation_name %short %separator T__COMMA ;
%list conversion_name_list: conversion_name %short %separator T__COMMA ;
%list domain_name_list: domain_name %short %separator T__COMMA ;
%list event_trigger_name_list: event_trigger_name %short %separator T__COMMA ;
%list extension_name_list: extension_name %short %separator T__COMMA ;
%list language_name_list: language_name %short %separator T__COMMA ;
%list publication_name_list: publication_name %short %separator T__COMMA ;
%list server_name_list: server_name %short %separator T__COMMA ;
%list setting_name_list: setting_name %short %separator T__COMMA ;
%list statistics_name_list: statistics_name %short %separator T__COMMA ;
subscription_name_list { NODE; }: subscription_name ;
%list tablespace_name_list: tablespace_name %short %separator T__COMMA ;
%list text_search_name_list: text_search_name %short %separator T__COMMA ;
%list type_name_list: defined_type_name %short %separator T__COMMA ;
%list wrapper_name_list: wrapper_name %short %separator T__COMMA ;
