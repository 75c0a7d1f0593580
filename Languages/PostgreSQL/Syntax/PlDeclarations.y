/* Declarations of a block of PL/pgSQL, its variables and values. */

declaration { NODE; }
    : variable_declaration body_delimiter
    | alias_declaration body_delimiter
    | cursor_declaration body_delimiter
    | error body_delimiter ;

variable_declaration { NODE; }: declared_name T__CONSTANT? declared_type declared_value? ;
declared_name { NODE(variable_name); }: identifier | variable_word ;
variable_word { NODE(sql_identifier); }: variable_keyword ;
declared_type { PART(variable_declaration); }: variable_type (T__COLLATE collation_name)? ;
variable_type { NODE(data_type); }: data_type  { PART; } | copied_type (T__ARRAY | array_bounds)? ;
/* The type of another variable, or of a column or row. */
copied_type { NODE(data_type); }: type_name T__PERCENT (T__TYPE | T__ROWTYPE) ;
declared_value { PART(variable_declaration); }: T__NOT T__NULL default_value? | default_value ;
default_value { NODE; }: assignment_operator value | T__DEFAULT value ;
assignment_operator: T__COLON_EQUAL | T__EQUAL ;

alias_declaration { NODE; }: declared_name T__ALIAS T__FOR variable ;

cursor_declaration { NODE; }
    : declared_name cursor_scroll? (cursor_word | T__CURSOR_LA cursor_parameters) cursor_is query ;
cursor_word: T__CURSOR ;
cursor_scroll { NODE(cursor_option); }: T__NO? T__SCROLL ;
cursor_is: T__FOR | T__IS ;
cursor_parameters { NODE(parameters); }: T__LPAREN cursor_parameter_list T__RPAREN ;
%list cursor_parameter_list: cursor_parameter %short %separator T__COMMA %node parameter_list ;
cursor_parameter { NODE(parameter); }: cursor_parameter_name variable_type ;
cursor_parameter_name { NODE(parameter_name); }: identifier | variable_word ;

/* A variable, its element or field, where one is given a value. */
variable { PART(variable_name); }
    : plain_variable
    | identifier subscript indirection?
    | dotted_name subscript indirection?
    | T__PARAMETER_NUMBER indirection ;
/* A whole variable. */
plain_variable { NODE(variable_name); }: identifier | variable_word | dotted_name | T__PARAMETER_NUMBER ;
into_variables { NODE(into_clause); }: T__INTO_VARIABLES variable_list | T__INTO_LA T__STRICT variable_list ;

/* A value may be a whole query without its first word. */
value: one_column_query  { NODE(select_statement); } ;
one_column_query { NODE(select_statement); }
    : one_column clauses_after_into select_tail?
    | one_column select_tail ;
one_column { NODE(select_list); }: value_item ;
value_item { NODE(select_item); }: expression ;
/* Up to a delimiter it may have several columns, or none. */
value_or_query { NODE(select_statement); }
    : value  { PART; }
    | value_columns select_tail?
    | value_columns? clauses_after_into select_tail? ;
value_columns { NODE(select_list); }
    : every_item (T__COMMA select_list)?
    | value_item T__COMMA select_list
    | distinct_clause select_list  { NODE(select_statement); } ;
every_item { NODE(select_item); }: every_column ;
