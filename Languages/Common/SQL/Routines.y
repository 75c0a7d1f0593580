/* CREATE FUNCTION, CREATE PROCEDURE, and how other statements point at a routine.
   A dialect defines function_type (a type as routines take it) and routine_body, and adds to routine_head, routine_item,
   routine_attribute, plain_parameter and parameter_mode. */

create_routine_statement { NODE; }: T__CREATE (T__OR T__REPLACE)? routine_definition ;
routine_definition { NODE(create_routine_statement); }
    : routine_head routine_item_list? routine_body? ;
routine_head { PART(create_routine_statement); }: routine_word function_name parameters ;
routine_word: T__FUNCTION | T__PROCEDURE ;
any_routine_word: T__FUNCTION | T__PROCEDURE | T__ROUTINE ;
parameters { NODE; }: T__LPAREN parameter_list? T__RPAREN ;
%list parameter_list: parameter %short %separator T__COMMA ;
parameter { PART; }: plain_parameter (T__DEFAULT expression)? ;
plain_parameter { NODE(parameter); }: parameter_mode? parameter_name function_type ;
parameter_mode { NODE; }: T__IN | T__OUT | T__INOUT ;
%list routine_item_list: routine_item %short ;
routine_item { NODE; }
    : returns_clause
    | T__LANGUAGE routine_language
    | routine_attribute ;
routine_language { NODE(language_name); }: non_reserved_word | string_literal ;
returns_clause { NODE; }: T__RETURNS function_type ;
routine_attribute { NODE; }
    : T__CALLED T__ON T__NULL T__INPUT
    | T__RETURNS T__NULL T__ON T__NULL T__INPUT ;
return_statement { NODE; }: T__RETURN expression ;

routine_signature { NODE; }: function_name parameters | routine_alone ;
routine_alone { NODE(function_name); }: qualified_name ;
%list routine_signature_list: routine_signature %short %separator T__COMMA ;
