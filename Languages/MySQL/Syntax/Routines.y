/* What MySQL adds to routines: loadable functions, who runs them, types by example. */

%replace parameter_name { NODE; }: identifier ;
%without parameter: plain_parameter T__DEFAULT expression ;
%without routine_definition: routine_head routine_item_list? ;
create_routine_statement { NODE; }: T__CREATE (T__OR T__REPLACE)? definer_clause routine_definition ;
routine_definition { NODE(create_routine_statement); }
    : T__AGGREGATE? routine_word if_not_exists? routine_alone returns_clause soname_clause ;
routine_head { PART(create_routine_statement); }
    : T__AGGREGATE routine_word if_not_exists? function_name parameters
    | routine_word if_not_exists function_name parameters ;
soname_clause { NODE; }: T__SONAME string_literal ;
routine_body { NODE; }: sole_body ;

%replace routine_item { NODE; }: returns_clause | routine_attribute ;
%replace routine_attribute { NODE; }: altered_attribute  { PART; } | T__NOT? T__DETERMINISTIC ;
altered_attribute { NODE(routine_attribute); }
    : T__LANGUAGE T__SQL
    | T__CONTAINS T__SQL
    | T__NO T__SQL
    | (T__READS | T__MODIFIES) T__SQL T__DATA
    | security_clause
    | routine_comment ;
routine_comment { NODE(comment_clause); }: T__COMMENT string_literal ;

alter_routine_statement { NODE; }: T__ALTER routine_word routine_alone altered_attribute_list? ;
%list altered_attribute_list: altered_attribute %short %node routine_attribute_list ;

function_type, variable_type { NODE(data_type); }
    : data_type  { PART; }
    | data_type collate_clause
    | copied_type
    | T__ROW T__LPAREN row_field_list T__RPAREN ;
/* The type of a column or variable, of a row of a table or cursor. */
copied_type { NODE(data_type); }: T__ROW? T__TYPE T__OF copied_name ;
copied_name { NODE(type_name); }: qualified_name ;
%list row_field_list: row_field %short %separator T__COMMA ;
row_field { NODE; }: column_name variable_type ;

statement: create_routine_statement | alter_routine_statement ;

/* A routine, trigger or event whose body isn't closed ends at the next delimiter that is no semicolon. */
open_routine { NODE(create_routine_statement); }: T__CREATE (T__OR T__REPLACE)? definer_clause? open_routine_definition ;
open_routine_definition { NODE(create_routine_statement); }
    : routine_head routine_item_list? open_routine_body ;
open_routine_body { NODE(routine_body); }: open_sole_body ;
delimited { NODE(delimited_pl_sql_statement); }
    : (open_pl_sql_statement | error open_stray_block) outer_delimiter
    | labeled_open_to_delimiter
    | (bad_head | error stray_block | T__END error | T__END_LA error) pl_sql_statement_delimiter ;
undelimited { NODE(pl_sql_statements); }
    : (open_pl_sql_statement | labeled_open_statement | error open_stray_block | bad_head | error stray_block | T__END error | T__END_LA error) delimiter_command ;
last_statement { NODE(pl_sql_statement); }
    : (open_pl_sql_statement | bad_head)  { PART; }
    | error open_stray_block | error stray_block
    /* One too many. */
    | T__END error | T__END_LA error ;
last_statement { NODE(delimited_pl_sql_statement); }: labeled_open_statement | label_and_bad_head ;
labeled_open_to_delimiter { NODE(labeled_pl_sql_statement); }: block_label bare_open_statement outer_delimiter ;
open_pl_sql_statement { NODE(pl_sql_statement); }: open_routine | open_trigger | open_event | open_part | open_block_part | open_declare ;
open_declare { NODE(declare_statement); }: T__DECLARE handler_head open_sole_body ;
/* In a list that is open, too. */
bare_open_statement { NODE(pl_sql_statement); }: open_routine | open_trigger | open_event ;
outer_delimiter { NODE(pl_sql_statement_delimiter); }: T__STATEMENT_DELIMITER | T__CLIENT_SEND ;
