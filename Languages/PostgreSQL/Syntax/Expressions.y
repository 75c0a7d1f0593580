/* Expressions. */

expression { PART; }
    : primary
    | expression T__TYPECAST data_type
    | expression T__COLLATE collation_name
    | expression (T__ISNULL | T__NOTNULL)
    | expression T__AT T__TIME T__ZONE expression %prec T__AT
    | expression T__AT T__LOCAL %prec T__AT
    | (T__PLUS | T__MINUS) expression %prec UMINUS
    | expression (T__PLUS | T__MINUS | T__ASTERISK | T__SLASH | T__PERCENT) expression
    | expression T__CARET expression
    | expression (T__LESS | T__GREATER | T__EQUAL | T__LESS_EQUAL | T__GREATER_EQUAL | T__NOT_EQUAL) expression
    | expression operator expression %prec T__OPERATOR_SYMBOL
    | operator expression %prec T__OPERATOR_SYMBOL
    | expression (T__AND | T__OR) expression
    | T__NOT expression
    | T__NOT_LA expression %prec T__NOT
    | expression T__LIKE expression (T__ESCAPE expression)? %prec T__LIKE
    | expression T__NOT_LA T__LIKE expression (T__ESCAPE expression)? %prec T__NOT_LA
    | expression T__NOT_LA (T__ILIKE | T__SIMILAR T__TO) expression (T__ESCAPE expression)? %prec T__NOT_LA
    | expression T__ILIKE expression (T__ESCAPE expression)? %prec T__ILIKE
    | expression T__SIMILAR T__TO expression (T__ESCAPE expression)? %prec T__SIMILAR
    | expression T__IS T__NOT? (T__NULL | truth_value) %prec T__IS
    | expression T__IS T__NOT? T__DOCUMENT %prec T__IS
    | expression T__IS T__NOT? T__DISTINCT T__FROM expression %prec T__IS
    | expression T__IS T__NOT? normal_form? T__NORMALIZED %prec T__IS
    | expression T__IS T__NOT? json_kind json_unique_keys? %prec T__IS
    | row T__OVERLAPS row
    | expression T__BETWEEN restricted_expression T__AND expression %prec T__BETWEEN
    | expression T__BETWEEN between_kind restricted_expression T__AND expression %prec T__BETWEEN
    | expression T__NOT_LA T__BETWEEN restricted_expression T__AND expression %prec T__NOT_LA
    | expression T__NOT_LA T__BETWEEN between_kind restricted_expression T__AND expression %prec T__NOT_LA
    | expression T__IN in_values %prec T__IN
    | expression T__NOT_LA T__IN in_values %prec T__NOT_LA
    | expression quantified_operator quantifier subquery %prec T__OPERATOR_SYMBOL
    | expression quantified_operator quantifier T__LPAREN expression T__RPAREN %prec T__OPERATOR_SYMBOL
    | T__DEFAULT ;

/* What may stand before an AND that isn't its own, and before keywords that could go on with an expression. */
restricted_expression { PART(expression); }
    : primary
    | restricted_expression T__TYPECAST data_type
    | (T__PLUS | T__MINUS) restricted_expression %prec UMINUS
    | restricted_expression (T__PLUS | T__MINUS | T__ASTERISK | T__SLASH | T__PERCENT) restricted_expression
    | restricted_expression T__CARET restricted_expression
    | restricted_expression (T__LESS | T__GREATER | T__EQUAL | T__LESS_EQUAL | T__GREATER_EQUAL | T__NOT_EQUAL)
          restricted_expression
    | restricted_expression operator restricted_expression %prec T__OPERATOR_SYMBOL
    | operator restricted_expression %prec T__OPERATOR_SYMBOL
    | restricted_expression T__IS T__NOT? T__DISTINCT T__FROM restricted_expression %prec T__IS
    | restricted_expression T__IS T__NOT? T__DOCUMENT %prec T__IS ;

truth_value: T__TRUE | T__FALSE | T__UNKNOWN ;

normal_form: T__NFC | T__NFD | T__NFKC | T__NFKD ;

between_kind: T__ASYMMETRIC | T__SYMMETRIC ;

quantifier: T__ANY | T__SOME | T__ALL ;

operator { PART(qualified_operator); }: T__OPERATOR_SYMBOL | T__OPERATOR T__LPAREN any_operator T__RPAREN ;

math_operator
    : T__PLUS | T__MINUS | T__ASTERISK | T__SLASH | T__PERCENT | T__CARET | T__LESS | T__GREATER | T__EQUAL
    | T__LESS_EQUAL | T__GREATER_EQUAL | T__NOT_EQUAL ;

any_operator_symbol: T__OPERATOR_SYMBOL | math_operator ;

any_operator { PART; }: any_operator_symbol | identifier T__DOT any_operator ;

quantified_operator { PART; }
    : operator | math_operator
    | T__NOT_LA? (T__LIKE | T__ILIKE) ;

in_values { PART; }: subquery | T__LPAREN expression_list T__RPAREN ;

%list expression_list: expression %separator T__COMMA ;

/* Literals and columns stand here one by one, since they are most of what there is: each rule between costs time. */
primary { PART(indirect_value); }
    : T__INTEGER_NUMBER | T__DECIMAL_NUMBER | T__REAL_NUMBER | T__STRING | T__ESCAPE_STRING
    | T__UNICODE_STRING | T__CLIENT_STRING | dollar_string | T__BIT_STRING | T__HEX_STRING
    | T__NATIONAL_STRING | T__TRUE | T__FALSE | T__NULL | typed_literal | any_column
    | any_column subscript indirection?
    | all_columns | function_call
    | function_call function_suffix  { NODE(function_call); }
    | T__PARAMETER_NUMBER indirection?
    | parenthesized
    | parenthesized indirection
    | case_expression  { NODE(expression); }
    | function_expression
    | subquery %prec UMINUS
    | subquery indirection
    | T__EXISTS subquery  { NODE(exists_condition); }
    | T__ARRAY subquery  { NODE(array_constructor); }
    | T__ARRAY array_items  { NODE(array_constructor); }
    | row  { NODE(expression); }
    | T__GROUPING T__LPAREN expression_list T__RPAREN  { NODE(function_call); } ;

/* What is true or not, wherever a clause asks for it. */
condition { NODE; }: expression ;

parenthesized { NODE(expression); }: T__LPAREN expression T__RPAREN ;
any_column { NODE(column_name); }: identifier | dotted_name ;
/* All columns of a table. */
all_columns { NODE; }: identifier T__DOT T__ASTERISK | dotted_name T__DOT T__ASTERISK ;

indirection { PART; }: indirection? T__DOT (any_label | T__ASTERISK) | indirection? subscript ;

subscript { NODE; }
    : T__LBRACKET T__COLON? expression T__RBRACKET
    | T__LBRACKET (T__COLON | expression T__CLIENT_VARIABLE) T__RBRACKET
    | T__LBRACKET expression T__COLON expression? T__RBRACKET ;

row { NODE; }: T__ROW T__LPAREN expression_list? T__RPAREN | T__LPAREN row_values T__RPAREN ;
row_values { NODE(expression_list); }: expression T__COMMA expression_list ;

array_items { NODE; }: T__LBRACKET (expression_list | array_items_list)? T__RBRACKET ;
%list array_items_list: array_items %short %separator T__COMMA ;

case_expression { NODE; }: T__CASE expression? when_list else_part? case_end ;
case_end: T__END | T__END_LA ;
%list when_list: when_part %short ;
when_part { NODE; }: T__WHEN expression T__THEN expression ;
else_part { NODE; }: T__ELSE expression ;
