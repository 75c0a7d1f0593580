/* Identifiers and names. */

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

dotted_name { NODE(qualified_sql_identifier); }: identifier T__DOT any_label | dotted_name T__DOT any_label ;

qualified_name: identifier | dotted_name ;

dotted_type_name { NODE(qualified_sql_identifier); }
    : type_function_name T__DOT any_label
    | dotted_type_name T__DOT any_label ;

/* What a name names. Each has an element of its own, in which the name stands. */
column_name, access_method_name, channel_name, constraint_name, condition_name, cursor_name, database_name,
event_trigger_name, extension_name, language_name, policy_name, publication_name, rule_name, savepoint_name,
schema_name, server_name, statement_name, subscription_name, tablespace_name, trigger_name, window_name,
wrapper_name, alias { NODE; }: identifier ;
qualified_column_name { NODE(column_name); }: identifier | dotted_name ;
label_name { NODE; }: non_reserved_word ;
table_name, view_name, sequence_name, index_name, domain_name, collation_name, conversion_name,
operator_class_name, operator_family_name, statistics_name, text_search_name, setting_name { NODE; }
    : identifier | dotted_name ;
function_name { NODE; }: type_function_name | dotted_name ;
/* A function that another object calls. */
handler_name { NODE(function_name); }: identifier | dotted_name ;
/* A type where it is made or changed. */
defined_type_name { NODE(type_name); }: identifier | dotted_name ;
/* What an object will be called. */
new_name { NODE; }: identifier ;
role_name { NODE; }: non_reserved_word | T__CURRENT_ROLE | T__CURRENT_USER | T__SESSION_USER ;

any_alias { NODE(alias); }: any_label ;
bare_alias { NODE(alias); }: bare_label ;
parameter_name { NODE; }: type_function_name ;

%list column_name_list: column_name %separator T__COMMA ;
%list table_name_list: table_name %short %separator T__COMMA ;
%list access_method_name_list: access_method_name %short %separator T__COMMA ;
%list collation_name_list: collation_name %short %separator T__COMMA ;
%list conversion_name_list: conversion_name %short %separator T__COMMA ;
%list database_name_list: database_name %short %separator T__COMMA ;
%list domain_name_list: domain_name %short %separator T__COMMA ;
%list event_trigger_name_list: event_trigger_name %short %separator T__COMMA ;
%list extension_name_list: extension_name %short %separator T__COMMA ;
%list index_name_list: index_name %short %separator T__COMMA ;
%list language_name_list: language_name %short %separator T__COMMA ;
%list publication_name_list: publication_name %short %separator T__COMMA ;
%list schema_name_list: schema_name %short %separator T__COMMA ;
%list sequence_name_list: sequence_name %short %separator T__COMMA ;
%list server_name_list: server_name %short %separator T__COMMA ;
%list setting_name_list: setting_name %short %separator T__COMMA ;
%list statistics_name_list: statistics_name %short %separator T__COMMA ;
subscription_name_list { NODE; }: subscription_name ;
%list tablespace_name_list: tablespace_name %short %separator T__COMMA ;
%list text_search_name_list: text_search_name %short %separator T__COMMA ;
%list type_name_list: defined_type_name %short %separator T__COMMA ;
%list view_name_list: view_name %short %separator T__COMMA ;
%list wrapper_name_list: wrapper_name %short %separator T__COMMA ;
%list name_list: identifier %short %separator T__COMMA ;

/* Columns in brackets. */
columns { NODE; }: T__LPAREN column_name_list T__RPAREN ;
