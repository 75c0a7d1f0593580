/* Expressions. Binding power alone tells which operand belongs to which operator, never the shape of a rule.
   A dialect defines operator (those that have no token of their own, and words that are operators) and
   quantified_operator (what may stand before ANY, SOME and ALL), and adds its operators to expression, and its
   values to primary. Operators that may stand within BETWEEN it adds to restricted_expression as well. */

expression { PART; }
    : primary
    | expression T__COLLATE collation_name
    | (T__PLUS | T__MINUS) expression %prec UMINUS
    | expression (T__PLUS | T__MINUS | T__ASTERISK | T__SLASH | T__PERCENT) expression
    | expression (T__LESS | T__GREATER | T__EQUAL | T__LESS_EQUAL | T__GREATER_EQUAL | T__NOT_EQUAL) expression
    | expression operator expression %prec T__OPERATOR_SYMBOL
    | expression (T__AND | T__OR) expression
    | T__NOT expression
    | T__NOT_LA expression %prec T__NOT
    | expression T__LIKE expression (T__ESCAPE expression)? %prec T__LIKE
    | expression T__NOT_LA T__LIKE expression (T__ESCAPE expression)? %prec T__NOT_LA
    | expression T__IS T__NOT? (T__NULL | truth_value) %prec T__IS
    | expression T__IS T__NOT? T__DISTINCT T__FROM expression %prec T__IS
    | expression T__BETWEEN restricted_expression T__AND expression %prec T__BETWEEN
    | expression T__NOT_LA T__BETWEEN restricted_expression T__AND expression %prec T__NOT_LA
    | expression T__IN in_values %prec T__IN
    | expression T__NOT_LA T__IN in_values %prec T__NOT_LA
    | expression quantified_operator quantifier subquery %prec T__OPERATOR_SYMBOL
    | T__DEFAULT ;

/* What may stand before an AND that isn't its own, and before keywords that could go on with an expression. */
restricted_expression { PART(expression); }
    : primary
    | (T__PLUS | T__MINUS) restricted_expression %prec UMINUS
    | restricted_expression (T__PLUS | T__MINUS | T__ASTERISK | T__SLASH | T__PERCENT) restricted_expression
    | restricted_expression (T__LESS | T__GREATER | T__EQUAL | T__LESS_EQUAL | T__GREATER_EQUAL | T__NOT_EQUAL)
          restricted_expression
    | restricted_expression operator restricted_expression %prec T__OPERATOR_SYMBOL ;

truth_value: T__TRUE | T__FALSE | T__UNKNOWN ;

quantifier: T__ANY | T__SOME | T__ALL ;

in_values { PART; }: subquery | T__LPAREN expression_list T__RPAREN ;

%list expression_list: expression %separator T__COMMA ;

/* Literals and columns stand here one by one, since they are most of what there is: each rule between costs time. */
primary { PART; }
    : T__INTEGER_NUMBER | T__DECIMAL_NUMBER | T__REAL_NUMBER | T__STRING | T__TRUE | T__FALSE | T__NULL
    | typed_literal | any_column | all_columns | function_call
    | function_call function_suffix  { NODE(function_call); }
    | parenthesized
    | case_expression  { NODE(expression); }
    | function_expression
    | subquery %prec UMINUS
    | T__EXISTS subquery  { NODE(exists_condition); }
    | row  { NODE(expression); } ;

/* What is true or not, wherever a clause asks for it. */
condition { NODE; }: expression ;

parenthesized { NODE(expression); }: T__LPAREN expression T__RPAREN ;
any_column { NODE(column_name); }: identifier | dotted_name ;
/* All columns of a table. */
all_columns { NODE; }: identifier T__DOT T__ASTERISK | dotted_name T__DOT T__ASTERISK ;

row { NODE; }: T__ROW T__LPAREN expression_list? T__RPAREN | T__LPAREN row_values T__RPAREN ;
row_values { NODE(expression_list); }: expression T__COMMA expression_list ;

case_expression { NODE; }: T__CASE expression? when_list else_part? case_end ;
case_end: T__END | T__END_LA ;
%list when_list: when_part %short ;
when_part { NODE; }: T__WHEN expression T__THEN expression ;
else_part { NODE; }: T__ELSE expression ;
