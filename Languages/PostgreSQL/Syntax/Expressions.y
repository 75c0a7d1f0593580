/* Operators and values of PostgreSQL's own. */

expression { PART; }
    : expression T__TYPECAST data_type
    | expression (T__ISNULL | T__NOTNULL)
    | expression T__AT T__LOCAL %prec T__AT
    | expression T__CARET expression
    | operator expression %prec T__OPERATOR_SYMBOL
    | expression T__NOT_LA (T__ILIKE | T__SIMILAR T__TO) expression (T__ESCAPE expression)? %prec T__NOT_LA
    | expression T__ILIKE expression (T__ESCAPE expression)? %prec T__ILIKE
    | expression T__SIMILAR T__TO expression (T__ESCAPE expression)? %prec T__SIMILAR
    | expression T__IS T__NOT? T__DOCUMENT %prec T__IS
    | expression T__IS T__NOT? normal_form? T__NORMALIZED %prec T__IS
    | expression T__IS T__NOT? json_kind json_unique_keys? %prec T__IS
    | expression T__BETWEEN between_kind restricted_expression T__AND expression %prec T__BETWEEN
    | expression T__NOT_LA T__BETWEEN between_kind restricted_expression T__AND expression %prec T__NOT_LA
    | expression quantified_operator quantifier T__LPAREN expression T__RPAREN %prec T__OPERATOR_SYMBOL ;

restricted_expression { PART(expression); }
    : restricted_expression T__TYPECAST data_type
    | restricted_expression T__CARET restricted_expression
    | operator restricted_expression %prec T__OPERATOR_SYMBOL
    | restricted_expression T__IS T__NOT? T__DISTINCT T__FROM restricted_expression %prec T__IS
    | restricted_expression T__IS T__NOT? T__DOCUMENT %prec T__IS ;

normal_form: T__NFC | T__NFD | T__NFKC | T__NFKD ;

between_kind: T__ASYMMETRIC | T__SYMMETRIC ;

operator { PART(qualified_operator); }: T__OPERATOR_SYMBOL | T__OPERATOR T__LPAREN any_operator T__RPAREN ;

math_operator
    : T__PLUS | T__MINUS | T__ASTERISK | T__SLASH | T__PERCENT | T__CARET | T__LESS | T__GREATER | T__EQUAL
    | T__LESS_EQUAL | T__GREATER_EQUAL | T__NOT_EQUAL ;

any_operator_symbol: T__OPERATOR_SYMBOL | math_operator ;

any_operator { PART; }: any_operator_symbol | identifier T__DOT any_operator ;

quantified_operator { PART; }
    : operator | math_operator
    | T__NOT_LA? (T__LIKE | T__ILIKE) ;

primary { PART(indirect_value); }
    : T__ESCAPE_STRING | T__UNICODE_STRING | T__CLIENT_STRING | dollar_string | T__BIT_STRING | T__HEX_STRING
    | T__NATIONAL_STRING
    | any_column subscript indirection?
    | T__PARAMETER_NUMBER indirection?
    | parenthesized indirection
    | subquery indirection
    | T__ARRAY subquery  { NODE(array_constructor); }
    | T__ARRAY array_items  { NODE(array_constructor); }
    | T__GROUPING T__LPAREN expression_list T__RPAREN  { NODE(function_call); } ;

indirection { PART; }: indirection? T__DOT (any_label | T__ASTERISK) | indirection? subscript ;

subscript { NODE; }
    : T__LBRACKET T__COLON? expression T__RBRACKET
    | T__LBRACKET (T__COLON | expression T__CLIENT_VARIABLE) T__RBRACKET
    | T__LBRACKET expression T__COLON expression? T__RBRACKET ;

array_items { NODE; }: T__LBRACKET (expression_list | array_items_list)? T__RBRACKET ;
%list array_items_list: array_items %short %separator T__COMMA ;
