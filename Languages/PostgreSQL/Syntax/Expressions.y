/* Expressions. */

expression
    : primary
    | expression T__TYPECAST data_type                                          { NODE; }
    | expression T__COLLATE collation_name                                      { NODE; }
    | expression T__AT T__TIME T__ZONE expression %prec T__AT                   { NODE; }
    | expression T__AT T__LOCAL %prec T__AT                                     { NODE; }
    | T__PLUS expression %prec UMINUS                                           { NODE; }
    | T__MINUS expression %prec UMINUS                                          { NODE; }
    | expression T__PLUS expression                                             { NODE; }
    | expression T__MINUS expression                                            { NODE; }
    | expression T__ASTERISK expression                                         { NODE; }
    | expression T__SLASH expression                                            { NODE; }
    | expression T__PERCENT expression                                          { NODE; }
    | expression T__CARET expression                                            { NODE; }
    | expression T__LESS expression                                             { NODE; }
    | expression T__GREATER expression                                          { NODE; }
    | expression T__EQUAL expression                                            { NODE; }
    | expression T__LESS_EQUAL expression                                       { NODE; }
    | expression T__GREATER_EQUAL expression                                    { NODE; }
    | expression T__NOT_EQUAL expression                                        { NODE; }
    | expression operator expression %prec T__OPERATOR_SYMBOL                   { NODE; }
    | operator expression %prec T__OPERATOR_SYMBOL                              { NODE; }
    | expression T__AND expression                                              { NODE; }
    | expression T__OR expression                                               { NODE; }
    | T__NOT expression                                                         { NODE; }
    | T__NOT_LA expression %prec T__NOT                                         { NODE; }
    | expression T__LIKE expression %prec T__LIKE                               { NODE; }
    | expression T__LIKE expression T__ESCAPE expression %prec T__LIKE          { NODE; }
    | expression T__NOT_LA T__LIKE expression %prec T__NOT_LA                   { NODE; }
    | expression T__NOT_LA T__LIKE expression T__ESCAPE expression %prec T__NOT_LA  { NODE; }
    | expression T__ILIKE expression %prec T__ILIKE                             { NODE; }
    | expression T__ILIKE expression T__ESCAPE expression %prec T__ILIKE        { NODE; }
    | expression T__NOT_LA T__ILIKE expression %prec T__NOT_LA                  { NODE; }
    | expression T__NOT_LA T__ILIKE expression T__ESCAPE expression %prec T__NOT_LA  { NODE; }
    | expression T__SIMILAR T__TO expression %prec T__SIMILAR                   { NODE; }
    | expression T__SIMILAR T__TO expression T__ESCAPE expression %prec T__SIMILAR  { NODE; }
    | expression T__NOT_LA T__SIMILAR T__TO expression %prec T__NOT_LA          { NODE; }
    | expression T__NOT_LA T__SIMILAR T__TO expression T__ESCAPE expression %prec T__NOT_LA
      { NODE; }
    | expression T__IS T__NULL %prec T__IS                                      { NODE; }
    | expression T__IS T__NOT T__NULL %prec T__IS                               { NODE; }
    | expression T__ISNULL                                                      { NODE; }
    | expression T__NOTNULL                                                     { NODE; }
    | expression T__IS truth_value %prec T__IS                                  { NODE; }
    | expression T__IS T__NOT truth_value %prec T__IS                           { NODE; }
    | expression T__IS T__DISTINCT T__FROM expression %prec T__IS               { NODE; }
    | expression T__IS T__NOT T__DISTINCT T__FROM expression %prec T__IS        { NODE; }
    | expression T__IS T__DOCUMENT %prec T__IS                                  { NODE; }
    | expression T__IS T__NOT T__DOCUMENT %prec T__IS                           { NODE; }
    | expression T__IS T__NORMALIZED %prec T__IS                                { NODE; }
    | expression T__IS T__NOT T__NORMALIZED %prec T__IS                         { NODE; }
    | expression T__IS normal_form T__NORMALIZED %prec T__IS                    { NODE; }
    | expression T__IS T__NOT normal_form T__NORMALIZED %prec T__IS             { NODE; }
    | expression T__IS json_kind %prec T__IS                                    { NODE; }
    | expression T__IS json_kind json_unique_keys %prec T__IS                   { NODE; }
    | expression T__IS T__NOT json_kind %prec T__IS                             { NODE; }
    | expression T__IS T__NOT json_kind json_unique_keys %prec T__IS            { NODE; }
    | row T__OVERLAPS row                                                       { NODE; }
    | expression T__BETWEEN restricted_expression T__AND expression %prec T__BETWEEN  { NODE; }
    | expression T__BETWEEN between_kind restricted_expression T__AND expression %prec T__BETWEEN
      { NODE; }
    | expression T__NOT_LA T__BETWEEN restricted_expression T__AND expression %prec T__NOT_LA
      { NODE; }
    | expression T__NOT_LA T__BETWEEN between_kind restricted_expression T__AND expression %prec T__NOT_LA
      { NODE; }
    | expression T__IN in_values %prec T__IN                                    { NODE; }
    | expression T__NOT_LA T__IN in_values %prec T__NOT_LA                      { NODE; }
    | expression quantified_operator quantifier subquery %prec T__OPERATOR_SYMBOL  { NODE; }
    | expression quantified_operator quantifier T__LPAREN expression T__RPAREN %prec T__OPERATOR_SYMBOL
      { NODE; }
    | T__DEFAULT
    ;

/* What may stand before an AND that isn't its own, and before keywords that could go on with an expression. */
restricted_expression
    : primary
    | restricted_expression T__TYPECAST data_type                               { NODE(expression); }
    | T__PLUS restricted_expression %prec UMINUS                                { NODE(expression); }
    | T__MINUS restricted_expression %prec UMINUS                               { NODE(expression); }
    | restricted_expression T__PLUS restricted_expression                       { NODE(expression); }
    | restricted_expression T__MINUS restricted_expression                      { NODE(expression); }
    | restricted_expression T__ASTERISK restricted_expression                   { NODE(expression); }
    | restricted_expression T__SLASH restricted_expression                      { NODE(expression); }
    | restricted_expression T__PERCENT restricted_expression                    { NODE(expression); }
    | restricted_expression T__CARET restricted_expression                      { NODE(expression); }
    | restricted_expression T__LESS restricted_expression                       { NODE(expression); }
    | restricted_expression T__GREATER restricted_expression                    { NODE(expression); }
    | restricted_expression T__EQUAL restricted_expression                      { NODE(expression); }
    | restricted_expression T__LESS_EQUAL restricted_expression                 { NODE(expression); }
    | restricted_expression T__GREATER_EQUAL restricted_expression              { NODE(expression); }
    | restricted_expression T__NOT_EQUAL restricted_expression                  { NODE(expression); }
    | restricted_expression operator restricted_expression %prec T__OPERATOR_SYMBOL  { NODE(expression); }
    | operator restricted_expression %prec T__OPERATOR_SYMBOL                   { NODE(expression); }
    | restricted_expression T__IS T__DISTINCT T__FROM restricted_expression %prec T__IS
      { NODE(expression); }
    | restricted_expression T__IS T__NOT T__DISTINCT T__FROM restricted_expression %prec T__IS
      { NODE(expression); }
    | restricted_expression T__IS T__DOCUMENT %prec T__IS                       { NODE(expression); }
    | restricted_expression T__IS T__NOT T__DOCUMENT %prec T__IS                { NODE(expression); }
    ;

truth_value
    : T__TRUE
    | T__FALSE
    | T__UNKNOWN
    ;

normal_form
    : T__NFC
    | T__NFD
    | T__NFKC
    | T__NFKD
    ;

between_kind
    : T__ASYMMETRIC
    | T__SYMMETRIC
    ;

quantifier
    : T__ANY
    | T__SOME
    | T__ALL
    ;

operator
    : T__OPERATOR_SYMBOL
    | T__OPERATOR T__LPAREN any_operator T__RPAREN                              { NODE(qualified_operator); }
    ;

math_operator
    : T__PLUS
    | T__MINUS
    | T__ASTERISK
    | T__SLASH
    | T__PERCENT
    | T__CARET
    | T__LESS
    | T__GREATER
    | T__EQUAL
    | T__LESS_EQUAL
    | T__GREATER_EQUAL
    | T__NOT_EQUAL
    ;

any_operator_symbol
    : T__OPERATOR_SYMBOL
    | math_operator
    ;

any_operator
    : any_operator_symbol
    | identifier T__DOT any_operator                                            { NODE; }
    ;

quantified_operator
    : operator
    | math_operator
    | T__LIKE
    | T__NOT_LA T__LIKE                                                         { NODE; }
    | T__ILIKE
    | T__NOT_LA T__ILIKE                                                        { NODE; }
    ;

in_values
    : subquery
    | T__LPAREN expression_list T__RPAREN                                       { NODE; }
    ;

%list expression_list: expression %separator T__COMMA ;

/* Literals and columns stand here one by one, since they are most of what there is: each rule between costs time. */
primary
    : T__INTEGER_NUMBER
    | T__DECIMAL_NUMBER
    | T__REAL_NUMBER
    | T__STRING
    | T__ESCAPE_STRING
    | T__UNICODE_STRING
    | T__CLIENT_STRING
    | dollar_string
    | T__BIT_STRING
    | T__HEX_STRING
    | T__NATIONAL_STRING
    | T__TRUE
    | T__FALSE
    | T__NULL
    | typed_literal
    | any_column
    | all_columns
    | any_column subscript                                                      { NODE(indirect_value); }
    | any_column subscript indirection                                          { NODE(indirect_value); }
    | function_call
    | function_call function_suffix                                             { NODE(function_call); }
    | T__PARAMETER_NUMBER
    | T__PARAMETER_NUMBER indirection                                           { NODE(indirect_value); }
    | parenthesized
    | parenthesized indirection                                                 { NODE(indirect_value); }
    | case_expression                                                           { NODE(expression); }
    | function_expression
    | subquery %prec UMINUS
    | subquery indirection                                                      { NODE(indirect_value); }
    | T__EXISTS subquery                                                        { NODE(exists_condition); }
    | T__ARRAY subquery                                                         { NODE(array_constructor); }
    | T__ARRAY array_items                                                      { NODE(array_constructor); }
    | row                                                                       { NODE(expression); }
    | T__GROUPING T__LPAREN expression_list T__RPAREN                           { NODE(function_call); }
    ;

/* What is true or not, wherever a clause asks for it. */
condition
    : expression                                                                { NODE; }
    ;

parenthesized
    : T__LPAREN expression T__RPAREN                                            { NODE(expression); }
    ;
any_column
    : identifier                                                                { NODE(column_name); }
    | dotted_name                                                               { NODE(column_name); }
    ;
/* All columns of a table. */
all_columns
    : identifier T__DOT T__ASTERISK                                             { NODE; }
    | dotted_name T__DOT T__ASTERISK                                            { NODE; }
    ;

indirection
    : T__DOT any_label                                                          { NODE; }
    | T__DOT T__ASTERISK                                                        { NODE; }
    | subscript
    | indirection T__DOT any_label                                              { NODE; }
    | indirection T__DOT T__ASTERISK                                            { NODE; }
    | indirection subscript                                                     { NODE; }
    ;

subscript
    : T__LBRACKET expression T__RBRACKET                                        { NODE; }
    | T__LBRACKET T__COLON T__RBRACKET                                          { NODE; }
    | T__LBRACKET T__COLON expression T__RBRACKET                               { NODE; }
    | T__LBRACKET expression T__COLON T__RBRACKET                               { NODE; }
    | T__LBRACKET expression T__COLON expression T__RBRACKET                    { NODE; }
    | T__LBRACKET expression T__CLIENT_VARIABLE T__RBRACKET                     { NODE; }
    ;

row
    : T__ROW T__LPAREN T__RPAREN                                                { NODE; }
    | T__ROW T__LPAREN expression_list T__RPAREN                                { NODE; }
    | T__LPAREN row_values T__RPAREN                                            { NODE; }
    ;
row_values
    : expression T__COMMA expression_list                                       { NODE(expression_list); }
    ;

array_items
    : T__LBRACKET T__RBRACKET                                                   { NODE; }
    | T__LBRACKET expression_list T__RBRACKET                                   { NODE; }
    | T__LBRACKET array_items_list T__RBRACKET                                  { NODE; }
    ;
array_items_list
    : array_items                                                               { NODE; }
    | array_items_list T__COMMA array_items                                     { NODE; }
    ;

case_expression
    : T__CASE when_list case_end                                                { NODE; }
    | T__CASE when_list else_part case_end                                      { NODE; }
    | T__CASE expression when_list case_end                                     { NODE; }
    | T__CASE expression when_list else_part case_end                           { NODE; }
    ;
case_end
    : T__END
    | T__END_LA
    ;
when_list
    : when_part                                                                 { NODE; }
    | when_list when_part                                                       { NODE; }
    ;
when_part
    : T__WHEN expression T__THEN expression                                     { NODE; }
    ;
else_part
    : T__ELSE expression                                                        { NODE; }
    ;
