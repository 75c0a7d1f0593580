/* Operators and values of MySQL's own. */

%without operator ;
/* ANY and SOME are names as well, unless a bracket follows. */
%without quantifier ;
expression { PART; }
    : expression (T__LESS | T__GREATER | T__EQUAL | T__LESS_EQUAL | T__GREATER_EQUAL | T__NOT_EQUAL) (T__ANY | T__SOME | T__ALL) subquery
          %prec T__OPERATOR_SYMBOL ;
%without expression: expression T__IS T__NOT? T__DISTINCT T__FROM expression %prec T__IS | T__NOT_LA expression %prec T__NOT ;

expression { PART; }
    : variable T__COLON_EQUAL expression
    | expression (T__BAR_BAR | T__XOR | T__AMPERSAND_AMPERSAND) expression
    | expression T__NULL_SAFE_EQUAL expression
    | expression (T__BAR | T__AMPERSAND | T__SHIFT_LEFT | T__SHIFT_RIGHT | T__DIV | T__MOD | T__CARET) expression
    | T__TILDE expression
    | T__EXCLAMATION expression
    | T__BINARY expression
    | expression (T__REGEXP | T__RLIKE) expression
    | expression T__NOT_LA (T__REGEXP | T__RLIKE) expression %prec T__NOT_LA
    | expression T__SOUNDS_LA T__LIKE expression %prec T__SOUNDS_LA
    | expression T__MEMBER_LA T__OF T__LPAREN expression T__RPAREN %prec T__MEMBER_LA
    | interval ;

restricted_expression { PART(expression); }
    : restricted_expression (T__BAR | T__AMPERSAND | T__SHIFT_LEFT | T__SHIFT_RIGHT | T__DIV | T__MOD | T__CARET) restricted_expression
    | restricted_expression T__COLLATE collation_name
    | T__TILDE restricted_expression
    | T__EXCLAMATION restricted_expression
    | T__BINARY restricted_expression
    | interval ;

%without restricted_expression
    : restricted_expression (T__LESS | T__GREATER | T__EQUAL | T__LESS_EQUAL | T__GREATER_EQUAL | T__NOT_EQUAL)
          restricted_expression ;

/* Without a unit it is the function of that name. */
interval { NODE(interval_expression); }: T__INTERVAL expression unit %prec T__INTERVAL ;
unit { NODE; }: %words unit ;

/* A bracket after it belongs to the function VALUES, or to INTERVAL. */
%without primary: any_column ;
%replace row_values { NODE(expression_list); }: expression T__COMMA expression_list %prec LOWEST ;
primary { PART; }
    : any_column %prec LOWEST
    | T__NATIONAL_STRING | T__HEX_STRING | T__BIT_STRING | T__HEX_NUMBER | T__BIT_NUMBER
    | joined_string %prec LOWEST  { NODE; }
    | introduced_string | T__PLACEHOLDER
    | variable %prec LOWEST
    | any_column (T__JSON_ARROW | T__JSON_TEXT_ARROW) T__STRING  { NODE(json_path_expression); }
    | T__LBRACE identifier expression T__RBRACE  { NODE(odbc_escape); } ;
variable { NODE(variable_name); }: T__USER_VARIABLE | T__SYSTEM_VARIABLE ;
