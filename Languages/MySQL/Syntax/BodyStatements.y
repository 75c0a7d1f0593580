/* Which statements a body has. */

unlabeled_statement
    : statement | if_statement | case_statement | exit_statement | return_statement | open_cursor | fetch_statement | close_statement ;

/* Cursors. */
open_cursor { NODE(open_statement); }: T__OPEN cursor_name (T__LPAREN argument_list T__RPAREN)? ;
%replace fetch_target { PART(fetch_statement); }
    : (fetch_direction? from_in)? cursor_name fetched_into
    | T__GROUP T__NEXT T__ROW ;
%replace fetch_direction { NODE; }: T__NEXT ;
fetched_into { NODE(into_clause); }: T__INTO fetched_list ;
%list fetched_list: declared_variable %short %separator T__COMMA %node variable_list ;

/* Conditions. */
signal_statement { NODE; }: T__SIGNAL exception_condition signal_items? ;
resignal_statement { NODE; }: T__RESIGNAL exception_condition? signal_items? ;
signal_items { PART(signal_statement); }: T__SET signal_item_list ;
%list signal_item_list: signal_item %short %separator T__COMMA ;
signal_item { NODE; }: item_name T__EQUAL signal_value ;
signal_value: constant | variable | any_column | T__HEX_STRING | T__HEX_NUMBER | T__BIT_STRING | T__BIT_NUMBER ;

get_diagnostics { NODE(get_diagnostics_statement); }
    : T__GET (T__CURRENT | T__STACKED)? T__DIAGNOSTICS T__CONDITION condition_number diagnostics_item_list ;
condition_number { NODE; }: T__INTEGER_NUMBER | string_literal | target_variable ;
diagnostics_target: target_variable ;
diagnostics_sign: T__EQUAL ;
item_name { NODE; }: identifier ;

statement: signal_statement | resignal_statement | get_diagnostics ;
