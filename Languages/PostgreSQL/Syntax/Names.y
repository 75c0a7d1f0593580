/* Identifiers and names. */

other_identifier
    : T__QUOTED_IDENTIFIER
    | T__UNICODE_IDENTIFIER
    | T__CLIENT_VARIABLE
    | T__CLIENT_IDENTIFIER
    ;

/* A word that no statement knows. */
plain_identifier
    : T__IDENTIFIER                                                             { NODE(sql_identifier); }
    | other_identifier                                                          { NODE(sql_identifier); }
    ;

/* What names columns, tables and most objects. */
identifier
    : T__IDENTIFIER                                                             { NODE(sql_identifier); }
    | other_identifier                                                          { NODE(sql_identifier); }
    | unreserved_keyword                                                        { NODE(sql_identifier); }
    | column_name_keyword                                                       { NODE(sql_identifier); }
    ;

/* What names functions and types. */
type_function_name
    : T__IDENTIFIER                                                             { NODE(sql_identifier); }
    | other_identifier                                                          { NODE(sql_identifier); }
    | unreserved_keyword                                                        { NODE(sql_identifier); }
    | type_function_name_keyword                                                { NODE(sql_identifier); }
    ;

non_reserved_word
    : T__IDENTIFIER                                                             { NODE(sql_identifier); }
    | other_identifier                                                          { NODE(sql_identifier); }
    | unreserved_keyword                                                        { NODE(sql_identifier); }
    | column_name_keyword                                                       { NODE(sql_identifier); }
    | type_function_name_keyword                                                { NODE(sql_identifier); }
    ;

/* Any word at all: after a dot, after AS. */
any_label
    : T__IDENTIFIER                                                             { NODE(sql_identifier); }
    | other_identifier                                                          { NODE(sql_identifier); }
    | unreserved_keyword                                                        { NODE(sql_identifier); }
    | column_name_keyword                                                       { NODE(sql_identifier); }
    | type_function_name_keyword                                                { NODE(sql_identifier); }
    | reserved_keyword                                                          { NODE(sql_identifier); }
    ;

/* Words that name a select item without AS. */
bare_label
    : T__IDENTIFIER                                                             { NODE(sql_identifier); }
    | other_identifier                                                          { NODE(sql_identifier); }
    | bare_label_keyword                                                        { NODE(sql_identifier); }
    ;

dotted_name
    : identifier T__DOT any_label
      { NODE(qualified_sql_identifier); }
    | dotted_name T__DOT any_label
      { NODE(qualified_sql_identifier); }
    ;

qualified_name
    : identifier
    | dotted_name
    ;

dotted_type_name
    : type_function_name T__DOT any_label
      { NODE(qualified_sql_identifier); }
    | dotted_type_name T__DOT any_label
      { NODE(qualified_sql_identifier); }
    ;

/* What a name names. Each has an element of its own, in which the name stands. */
column_name
    : identifier                                                                { NODE; }
    ;
qualified_column_name
    : identifier                                                                { NODE(column_name); }
    | dotted_name                                                               { NODE(column_name); }
    ;
access_method_name
    : identifier                                                                { NODE; }
    ;
channel_name
    : identifier                                                                { NODE; }
    ;
constraint_name
    : identifier                                                                { NODE; }
    ;
condition_name
    : identifier                                                                { NODE; }
    ;
cursor_name
    : identifier                                                                { NODE; }
    ;
database_name
    : identifier                                                                { NODE; }
    ;
event_trigger_name
    : identifier                                                                { NODE; }
    ;
extension_name
    : identifier                                                                { NODE; }
    ;
label_name
    : non_reserved_word                                                         { NODE; }
    ;
language_name
    : identifier                                                                { NODE; }
    ;
policy_name
    : identifier                                                                { NODE; }
    ;
publication_name
    : identifier                                                                { NODE; }
    ;
rule_name
    : identifier                                                                { NODE; }
    ;
savepoint_name
    : identifier                                                                { NODE; }
    ;
schema_name
    : identifier                                                                { NODE; }
    ;
server_name
    : identifier                                                                { NODE; }
    ;
statement_name
    : identifier                                                                { NODE; }
    ;
subscription_name
    : identifier                                                                { NODE; }
    ;
tablespace_name
    : identifier                                                                { NODE; }
    ;
trigger_name
    : identifier                                                                { NODE; }
    ;
window_name
    : identifier                                                                { NODE; }
    ;
wrapper_name
    : identifier                                                                { NODE; }
    ;
table_name
    : identifier                                                                { NODE; }
    | dotted_name                                                               { NODE; }
    ;
view_name
    : identifier                                                                { NODE; }
    | dotted_name                                                               { NODE; }
    ;
sequence_name
    : identifier                                                                { NODE; }
    | dotted_name                                                               { NODE; }
    ;
index_name
    : identifier                                                                { NODE; }
    | dotted_name                                                               { NODE; }
    ;
domain_name
    : identifier                                                                { NODE; }
    | dotted_name                                                               { NODE; }
    ;
collation_name
    : identifier                                                                { NODE; }
    | dotted_name                                                               { NODE; }
    ;
conversion_name
    : identifier                                                                { NODE; }
    | dotted_name                                                               { NODE; }
    ;
operator_class_name
    : identifier                                                                { NODE; }
    | dotted_name                                                               { NODE; }
    ;
operator_family_name
    : identifier                                                                { NODE; }
    | dotted_name                                                               { NODE; }
    ;
statistics_name
    : identifier                                                                { NODE; }
    | dotted_name                                                               { NODE; }
    ;
text_search_name
    : identifier                                                                { NODE; }
    | dotted_name                                                               { NODE; }
    ;
setting_name
    : identifier                                                                { NODE; }
    | dotted_name                                                               { NODE; }
    ;
function_name
    : type_function_name                                                        { NODE; }
    | dotted_name                                                               { NODE; }
    ;
/* A function that another object calls. */
handler_name
    : identifier                                                                { NODE(function_name); }
    | dotted_name                                                               { NODE(function_name); }
    ;
/* A type where it is made or changed. */
defined_type_name
    : identifier                                                                { NODE(type_name); }
    | dotted_name                                                               { NODE(type_name); }
    ;
/* What an object will be called. */
new_name
    : identifier                                                                { NODE; }
    ;
role_name
    : non_reserved_word                                                         { NODE; }
    | T__CURRENT_ROLE                                                           { NODE; }
    | T__CURRENT_USER                                                           { NODE; }
    | T__SESSION_USER                                                           { NODE; }
    ;

alias
    : identifier                                                                { NODE; }
    ;
any_alias
    : any_label                                                                 { NODE(alias); }
    ;
bare_alias
    : bare_label                                                                { NODE(alias); }
    ;
parameter_name
    : type_function_name                                                        { NODE; }
    ;

%list column_name_list: column_name %separator T__COMMA ;
table_name_list
    : table_name                                                                { NODE; }
    | table_name_list T__COMMA table_name                                       { NODE; }
    ;
access_method_name_list
    : access_method_name                                                        { NODE; }
    | access_method_name_list T__COMMA access_method_name                       { NODE; }
    ;
collation_name_list
    : collation_name                                                            { NODE; }
    | collation_name_list T__COMMA collation_name                               { NODE; }
    ;
conversion_name_list
    : conversion_name                                                           { NODE; }
    | conversion_name_list T__COMMA conversion_name                             { NODE; }
    ;
database_name_list
    : database_name                                                             { NODE; }
    | database_name_list T__COMMA database_name                                 { NODE; }
    ;
domain_name_list
    : domain_name                                                               { NODE; }
    | domain_name_list T__COMMA domain_name                                     { NODE; }
    ;
event_trigger_name_list
    : event_trigger_name                                                        { NODE; }
    | event_trigger_name_list T__COMMA event_trigger_name                       { NODE; }
    ;
extension_name_list
    : extension_name                                                            { NODE; }
    | extension_name_list T__COMMA extension_name                               { NODE; }
    ;
index_name_list
    : index_name                                                                { NODE; }
    | index_name_list T__COMMA index_name                                       { NODE; }
    ;
language_name_list
    : language_name                                                             { NODE; }
    | language_name_list T__COMMA language_name                                 { NODE; }
    ;
publication_name_list
    : publication_name                                                          { NODE; }
    | publication_name_list T__COMMA publication_name                           { NODE; }
    ;
schema_name_list
    : schema_name                                                               { NODE; }
    | schema_name_list T__COMMA schema_name                                     { NODE; }
    ;
sequence_name_list
    : sequence_name                                                             { NODE; }
    | sequence_name_list T__COMMA sequence_name                                 { NODE; }
    ;
server_name_list
    : server_name                                                               { NODE; }
    | server_name_list T__COMMA server_name                                     { NODE; }
    ;
setting_name_list
    : setting_name                                                              { NODE; }
    | setting_name_list T__COMMA setting_name                                   { NODE; }
    ;
statistics_name_list
    : statistics_name                                                           { NODE; }
    | statistics_name_list T__COMMA statistics_name                             { NODE; }
    ;
subscription_name_list
    : subscription_name                                                         { NODE; }
    ;
tablespace_name_list
    : tablespace_name                                                           { NODE; }
    | tablespace_name_list T__COMMA tablespace_name                             { NODE; }
    ;
text_search_name_list
    : text_search_name                                                          { NODE; }
    | text_search_name_list T__COMMA text_search_name                           { NODE; }
    ;
type_name_list
    : defined_type_name                                                         { NODE; }
    | type_name_list T__COMMA defined_type_name                                 { NODE; }
    ;
view_name_list
    : view_name                                                                 { NODE; }
    | view_name_list T__COMMA view_name                                         { NODE; }
    ;
wrapper_name_list
    : wrapper_name                                                              { NODE; }
    | wrapper_name_list T__COMMA wrapper_name                                   { NODE; }
    ;
name_list
    : identifier                                                                { NODE; }
    | name_list T__COMMA identifier                                             { NODE; }
    ;

/* Columns in brackets. */
columns
    : T__LPAREN column_name_list T__RPAREN                                      { NODE; }
    ;
