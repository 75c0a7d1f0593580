%define lr.default-reduction consistent
%define api.value.type {int}

%keywords "PostgreSQL.words"
%token T__NOT_LA T__NULLS_LA T__WITH_LA T__IDENTIFIER T__QUOTED_IDENTIFIER T__UNICODE_IDENTIFIER
%token T__STRING T__ESCAPE_STRING T__NATIONAL_STRING T__UNICODE_STRING T__BIT_STRING T__HEX_STRING
%token T__DOLLAR_QUOTE_BEGIN T__DOLLAR_QUOTED_TEXT T__DOLLAR_QUOTE_END T__INTEGER_NUMBER
%token T__DECIMAL_NUMBER T__REAL_NUMBER T__BAD_NUMBER T__PARAMETER_NUMBER T__TYPECAST T__COLON_EQUAL
%token T__ARROW T__DOT_DOT T__LESS_EQUAL T__GREATER_EQUAL T__NOT_EQUAL T__PLUS T__MINUS T__ASTERISK
%token T__SLASH T__PERCENT T__CARET T__LESS T__GREATER T__EQUAL T__OPERATOR_SYMBOL T__LPAREN
%token T__RPAREN T__LBRACKET T__RBRACKET T__COMMA T__SEMICOLON T__DOT T__COLON T__CLIENT_VARIABLE
%token T__CLIENT_STRING T__CLIENT_IDENTIFIER T__CLIENT_SEND T__BAD_CHARACTER

/* Binding power, weakest first. */
%precedence LOWEST
/* An error in the body of a routine is skipped to the next delimiter; only where no more comes it ends the body. */
%precedence T__SEMICOLON T__CLIENT_SEND
%precedence T__SET
/* In GROUP BY these begin their own clause rather than a function call; behind the bracket of a window they begin
   its frame rather than naming another window. */
%precedence T__CUBE T__ROLLUP
%right T__RANGE T__ROWS T__GROUPS T__PARTITION
%left T__UNION T__EXCEPT
%left T__INTERSECT
%left T__OR
%left T__AND
%right T__NOT
%left T__IS T__ISNULL T__NOTNULL
%left T__LESS T__GREATER T__EQUAL T__LESS_EQUAL T__GREATER_EQUAL T__NOT_EQUAL
%left T__BETWEEN T__IN T__LIKE T__ILIKE T__SIMILAR T__NOT_LA
%precedence T__ESCAPE
/* In a frame, UNBOUNDED and BETWEEN are the keywords and not names of columns. */
%precedence T__UNBOUNDED
%precedence T__PRECEDING T__FOLLOWING
%left T__OPERATOR_SYMBOL T__OPERATOR
%left T__PLUS T__MINUS
%left T__ASTERISK T__SLASH T__PERCENT
%left T__CARET
%left T__AT
%left T__COLLATE
%right UMINUS
%left T__LBRACKET T__RBRACKET
%left T__LPAREN T__RPAREN
%left T__TYPECAST
%left T__DOT
%left T__JOIN T__CROSS T__LEFT T__FULL T__RIGHT T__INNER T__NATURAL

%start SQL_ROOT
%%

SQL_ROOT
    : %empty                                                                    { EMPTY(SQL); }
    | pl_sql_statements                                                         { CREATE_NODE(SQL, 1); }
    ;

/* Statements come in chunks of chunks under one name, so that a long script doesn't become a deep chain. */
%list pl_sql_statements: delimited %last last_statement %deep ;

/* What stands behind the last delimiter. A rule may end in an error where nothing but the end of the text follows:
   anywhere else the parser would raise the error again on the same token. */
last_statement
    : pl_sql_statement
    | error                                                                     { CREATE_NODE_WITH_ERROR(pl_sql_statement, 1, 0); }
    ;

delimited
    : pl_sql_statement pl_sql_statement_delimiter                               { CREATE_NODE(delimited_pl_sql_statement, 2); }
    | pl_sql_statement_delimiter                                                { CREATE_NODE(delimited_pl_sql_statement, 1); }
    | error pl_sql_statement_delimiter                                          { CREATE_NODE_WITH_ERROR(delimited_pl_sql_statement, 2, 0); }
    ;

pl_sql_statement_delimiter
    : T__SEMICOLON                                                              { CREATE_NODE(pl_sql_statement_delimiter, 1); }
    | T__CLIENT_SEND                                                            { CREATE_NODE(pl_sql_statement_delimiter, 1); }
    ;

/* BEGIN and END as statements stand at the top alone: in the body of a routine END closes the body. */
pl_sql_statement
    : statement                                                                 { CREATE_NODE(pl_sql_statement, 1); }
    | begin_end_statement                                                       { CREATE_NODE(pl_sql_statement, 1); }
    ;

/* ---- Identifiers and names ---- */

other_identifier
    : T__QUOTED_IDENTIFIER
    | T__UNICODE_IDENTIFIER
    | T__CLIENT_VARIABLE
    | T__CLIENT_IDENTIFIER
    ;

/* A word that no statement knows. */
plain_identifier
    : T__IDENTIFIER                                                             { CREATE_NODE(sql_identifier, 1); }
    | other_identifier                                                          { CREATE_NODE(sql_identifier, 1); }
    ;

/* Names of columns, tables and most objects. */
column_name
    : T__IDENTIFIER                                                             { CREATE_NODE(sql_identifier, 1); }
    | other_identifier                                                          { CREATE_NODE(sql_identifier, 1); }
    | unreserved_keyword                                                        { CREATE_NODE(sql_identifier, 1); }
    | column_name_keyword                                                       { CREATE_NODE(sql_identifier, 1); }
    ;

/* Names of functions and types. */
type_function_name
    : T__IDENTIFIER                                                             { CREATE_NODE(sql_identifier, 1); }
    | other_identifier                                                          { CREATE_NODE(sql_identifier, 1); }
    | unreserved_keyword                                                        { CREATE_NODE(sql_identifier, 1); }
    | type_function_name_keyword                                                { CREATE_NODE(sql_identifier, 1); }
    ;

non_reserved_word
    : T__IDENTIFIER                                                             { CREATE_NODE(sql_identifier, 1); }
    | other_identifier                                                          { CREATE_NODE(sql_identifier, 1); }
    | unreserved_keyword                                                        { CREATE_NODE(sql_identifier, 1); }
    | column_name_keyword                                                       { CREATE_NODE(sql_identifier, 1); }
    | type_function_name_keyword                                                { CREATE_NODE(sql_identifier, 1); }
    ;

/* Any word at all: behind a dot, behind AS. */
any_label
    : T__IDENTIFIER                                                             { CREATE_NODE(sql_identifier, 1); }
    | other_identifier                                                          { CREATE_NODE(sql_identifier, 1); }
    | unreserved_keyword                                                        { CREATE_NODE(sql_identifier, 1); }
    | column_name_keyword                                                       { CREATE_NODE(sql_identifier, 1); }
    | type_function_name_keyword                                                { CREATE_NODE(sql_identifier, 1); }
    | reserved_keyword                                                          { CREATE_NODE(sql_identifier, 1); }
    ;

/* Words that name a select item without AS. */
bare_label
    : T__IDENTIFIER                                                             { CREATE_NODE(sql_identifier, 1); }
    | other_identifier                                                          { CREATE_NODE(sql_identifier, 1); }
    | bare_label_keyword                                                        { CREATE_NODE(sql_identifier, 1); }
    ;

dotted_name
    : column_name T__DOT any_label                                              { CREATE_NODE(qualified_sql_identifier, 3); }
    | dotted_name T__DOT any_label                                              { CREATE_NODE(qualified_sql_identifier, 3); }
    ;

qualified_name
    : column_name
    | dotted_name
    ;

function_name
    : type_function_name
    | dotted_name
    ;

dotted_type_name
    : type_function_name T__DOT any_label                                       { CREATE_NODE(qualified_sql_identifier, 3); }
    | dotted_type_name T__DOT any_label                                         { CREATE_NODE(qualified_sql_identifier, 3); }
    ;

%list name_list: column_name %separator T__COMMA ;

qualified_name_list
    : qualified_name                                                            { CREATE_NODE(qualified_name_list, 1); }
    | qualified_name_list T__COMMA qualified_name                               { CREATE_NODE(qualified_name_list, 3); }
    ;

parenthesized_names
    : T__LPAREN name_list T__RPAREN                                             { CREATE_NODE(parenthesized_names, 3); }
    ;

/* ---- Literals ---- */

string_literal
    : T__STRING
    | T__ESCAPE_STRING
    | T__UNICODE_STRING
    | T__CLIENT_STRING
    | dollar_string
    ;

dollar_string
    : T__DOLLAR_QUOTE_BEGIN T__DOLLAR_QUOTE_END                                 { CREATE_NODE(dollar_string, 2); }
    | T__DOLLAR_QUOTE_BEGIN dollar_text T__DOLLAR_QUOTE_END                     { CREATE_NODE(dollar_string, 3); }
    ;
dollar_text
    : T__DOLLAR_QUOTED_TEXT
    | dollar_text T__DOLLAR_QUOTED_TEXT                                         { CREATE_NODE(dollar_text, 2); }
    ;

number
    : T__INTEGER_NUMBER
    | T__DECIMAL_NUMBER
    | T__REAL_NUMBER
    ;

signed_integer
    : T__INTEGER_NUMBER
    | T__PLUS T__INTEGER_NUMBER                                                 { CREATE_NODE(signed_integer, 2); }
    | T__MINUS T__INTEGER_NUMBER                                                { CREATE_NODE(signed_integer, 2); }
    ;

signed_number
    : number
    | T__PLUS number                                                            { CREATE_NODE(signed_number, 2); }
    | T__MINUS number                                                           { CREATE_NODE(signed_number, 2); }
    ;

constant
    : number
    | string_literal
    | T__BIT_STRING
    | T__HEX_STRING
    | T__NATIONAL_STRING
    | T__TRUE
    | T__FALSE
    | T__NULL
    | function_name string_literal                                              { CREATE_NODE(typed_literal, 2); }
    | function_name T__LPAREN function_arguments T__RPAREN string_literal       { CREATE_NODE(typed_literal, 5); }
    | function_name T__LPAREN function_arguments sort_clause T__RPAREN string_literal
      { CREATE_NODE(typed_literal, 6); }
    | constant_type string_literal                                              { CREATE_NODE(typed_literal, 2); }
    | T__INTERVAL string_literal                                                { CREATE_NODE(typed_literal, 2); }
    | T__INTERVAL string_literal interval_fields                                { CREATE_NODE(typed_literal, 3); }
    | T__INTERVAL T__LPAREN T__INTEGER_NUMBER T__RPAREN string_literal          { CREATE_NODE(typed_literal, 5); }
    ;

/* ---- Types ---- */

type_name
    : simple_type
    | simple_type array_bounds                                                  { CREATE_NODE(type_name, 2); }
    | T__SETOF simple_type                                                      { CREATE_NODE(type_name, 2); }
    | T__SETOF simple_type array_bounds                                         { CREATE_NODE(type_name, 3); }
    | simple_type T__ARRAY                                                      { CREATE_NODE(type_name, 2); }
    | T__SETOF simple_type T__ARRAY                                             { CREATE_NODE(type_name, 3); }
    | simple_type T__ARRAY T__LBRACKET T__INTEGER_NUMBER T__RBRACKET            { CREATE_NODE(type_name, 5); }
    | T__SETOF simple_type T__ARRAY T__LBRACKET T__INTEGER_NUMBER T__RBRACKET   { CREATE_NODE(type_name, 6); }
    ;

array_bounds
    : T__LBRACKET T__RBRACKET                                                   { CREATE_NODE(array_bounds, 2); }
    | T__LBRACKET T__INTEGER_NUMBER T__RBRACKET                                 { CREATE_NODE(array_bounds, 3); }
    | array_bounds T__LBRACKET T__RBRACKET                                      { CREATE_NODE(array_bounds, 3); }
    | array_bounds T__LBRACKET T__INTEGER_NUMBER T__RBRACKET                    { CREATE_NODE(array_bounds, 4); }
    ;

simple_type
    : type_function_name
    | type_function_name T__LPAREN expression_list T__RPAREN                    { CREATE_NODE(simple_type, 4); }
    | dotted_type_name
    | dotted_type_name T__LPAREN expression_list T__RPAREN                      { CREATE_NODE(simple_type, 4); }
    | numeric_type
    | bit_type
    | bit_type T__LPAREN expression_list T__RPAREN                              { CREATE_NODE(simple_type, 4); }
    | character_type
    | character_type T__LPAREN T__INTEGER_NUMBER T__RPAREN                      { CREATE_NODE(simple_type, 4); }
    | datetime_type
    | T__INTERVAL
    | T__INTERVAL interval_fields                                               { CREATE_NODE(simple_type, 2); }
    | T__INTERVAL T__LPAREN T__INTEGER_NUMBER T__RPAREN                         { CREATE_NODE(simple_type, 4); }
    ;

/* Types that may stand before a string without being a name. */
constant_type
    : numeric_type
    | bit_type
    | bit_type T__LPAREN expression_list T__RPAREN                              { CREATE_NODE(constant_type, 4); }
    | character_type
    | character_type T__LPAREN T__INTEGER_NUMBER T__RPAREN                      { CREATE_NODE(constant_type, 4); }
    | datetime_type
    ;

numeric_type
    : T__INT
    | T__INTEGER
    | T__SMALLINT
    | T__BIGINT
    | T__REAL
    | T__BOOLEAN
    | T__FLOAT
    | T__FLOAT T__LPAREN T__INTEGER_NUMBER T__RPAREN                            { CREATE_NODE(numeric_type, 4); }
    | T__DOUBLE T__PRECISION                                                    { CREATE_NODE(numeric_type, 2); }
    | T__DECIMAL
    | T__DECIMAL T__LPAREN expression_list T__RPAREN                            { CREATE_NODE(numeric_type, 4); }
    | T__DEC
    | T__DEC T__LPAREN expression_list T__RPAREN                                { CREATE_NODE(numeric_type, 4); }
    | T__NUMERIC
    | T__NUMERIC T__LPAREN expression_list T__RPAREN                            { CREATE_NODE(numeric_type, 4); }
    ;

bit_type
    : T__BIT
    | T__BIT T__VARYING                                                         { CREATE_NODE(bit_type, 2); }
    ;

character_type
    : T__CHARACTER
    | T__CHARACTER T__VARYING                                                   { CREATE_NODE(character_type, 2); }
    | T__CHAR
    | T__CHAR T__VARYING                                                        { CREATE_NODE(character_type, 2); }
    | T__VARCHAR
    | T__NATIONAL T__CHARACTER                                                  { CREATE_NODE(character_type, 2); }
    | T__NATIONAL T__CHARACTER T__VARYING                                       { CREATE_NODE(character_type, 3); }
    | T__NATIONAL T__CHAR                                                       { CREATE_NODE(character_type, 2); }
    | T__NATIONAL T__CHAR T__VARYING                                            { CREATE_NODE(character_type, 3); }
    | T__NCHAR
    | T__NCHAR T__VARYING                                                       { CREATE_NODE(character_type, 2); }
    ;

datetime_type
    : datetime_word
    | datetime_word time_zone_part                                              { CREATE_NODE(datetime_type, 2); }
    | datetime_word T__LPAREN T__INTEGER_NUMBER T__RPAREN                       { CREATE_NODE(datetime_type, 4); }
    | datetime_word T__LPAREN T__INTEGER_NUMBER T__RPAREN time_zone_part        { CREATE_NODE(datetime_type, 5); }
    ;
datetime_word
    : T__TIMESTAMP
    | T__TIME
    ;
time_zone_part
    : T__WITH_LA T__TIME T__ZONE                                                { CREATE_NODE(time_zone_part, 3); }
    | T__WITHOUT T__TIME T__ZONE                                                { CREATE_NODE(time_zone_part, 3); }
    ;

interval_fields
    : T__YEAR
    | T__MONTH
    | T__DAY
    | T__HOUR
    | T__MINUTE
    | interval_second
    | T__YEAR T__TO T__MONTH                                                    { CREATE_NODE(interval_fields, 3); }
    | T__DAY T__TO T__HOUR                                                      { CREATE_NODE(interval_fields, 3); }
    | T__DAY T__TO T__MINUTE                                                    { CREATE_NODE(interval_fields, 3); }
    | T__DAY T__TO interval_second                                              { CREATE_NODE(interval_fields, 3); }
    | T__HOUR T__TO T__MINUTE                                                   { CREATE_NODE(interval_fields, 3); }
    | T__HOUR T__TO interval_second                                             { CREATE_NODE(interval_fields, 3); }
    | T__MINUTE T__TO interval_second                                           { CREATE_NODE(interval_fields, 3); }
    ;
interval_second
    : T__SECOND
    | T__SECOND T__LPAREN T__INTEGER_NUMBER T__RPAREN                           { CREATE_NODE(interval_second, 4); }
    ;

/* ---- Expressions ---- */

expression
    : primary
    | expression T__TYPECAST type_name                                          { CREATE_NODE(expression, 3); }
    | expression T__COLLATE qualified_name                                      { CREATE_NODE(expression, 3); }
    | expression T__AT T__TIME T__ZONE expression %prec T__AT                   { CREATE_NODE(expression, 5); }
    | T__PLUS expression %prec UMINUS                                           { CREATE_NODE(expression, 2); }
    | T__MINUS expression %prec UMINUS                                          { CREATE_NODE(expression, 2); }
    | expression T__PLUS expression                                             { CREATE_NODE(expression, 3); }
    | expression T__MINUS expression                                            { CREATE_NODE(expression, 3); }
    | expression T__ASTERISK expression                                         { CREATE_NODE(expression, 3); }
    | expression T__SLASH expression                                            { CREATE_NODE(expression, 3); }
    | expression T__PERCENT expression                                          { CREATE_NODE(expression, 3); }
    | expression T__CARET expression                                            { CREATE_NODE(expression, 3); }
    | expression T__LESS expression                                             { CREATE_NODE(expression, 3); }
    | expression T__GREATER expression                                          { CREATE_NODE(expression, 3); }
    | expression T__EQUAL expression                                            { CREATE_NODE(expression, 3); }
    | expression T__LESS_EQUAL expression                                       { CREATE_NODE(expression, 3); }
    | expression T__GREATER_EQUAL expression                                    { CREATE_NODE(expression, 3); }
    | expression T__NOT_EQUAL expression                                        { CREATE_NODE(expression, 3); }
    | expression operator expression %prec T__OPERATOR_SYMBOL                   { CREATE_NODE(expression, 3); }
    | operator expression %prec T__OPERATOR_SYMBOL                              { CREATE_NODE(expression, 2); }
    | expression T__AND expression                                              { CREATE_NODE(expression, 3); }
    | expression T__OR expression                                               { CREATE_NODE(expression, 3); }
    | T__NOT expression                                                         { CREATE_NODE(expression, 2); }
    | T__NOT_LA expression %prec T__NOT                                         { CREATE_NODE(expression, 2); }
    | expression T__LIKE expression %prec T__LIKE                               { CREATE_NODE(expression, 3); }
    | expression T__LIKE expression T__ESCAPE expression %prec T__LIKE          { CREATE_NODE(expression, 5); }
    | expression T__NOT_LA T__LIKE expression %prec T__NOT_LA                   { CREATE_NODE(expression, 4); }
    | expression T__NOT_LA T__LIKE expression T__ESCAPE expression %prec T__NOT_LA  { CREATE_NODE(expression, 6); }
    | expression T__ILIKE expression %prec T__ILIKE                             { CREATE_NODE(expression, 3); }
    | expression T__ILIKE expression T__ESCAPE expression %prec T__ILIKE        { CREATE_NODE(expression, 5); }
    | expression T__NOT_LA T__ILIKE expression %prec T__NOT_LA                  { CREATE_NODE(expression, 4); }
    | expression T__NOT_LA T__ILIKE expression T__ESCAPE expression %prec T__NOT_LA  { CREATE_NODE(expression, 6); }
    | expression T__SIMILAR T__TO expression %prec T__SIMILAR                   { CREATE_NODE(expression, 4); }
    | expression T__SIMILAR T__TO expression T__ESCAPE expression %prec T__SIMILAR  { CREATE_NODE(expression, 6); }
    | expression T__NOT_LA T__SIMILAR T__TO expression %prec T__NOT_LA          { CREATE_NODE(expression, 5); }
    | expression T__NOT_LA T__SIMILAR T__TO expression T__ESCAPE expression %prec T__NOT_LA
      { CREATE_NODE(expression, 7); }
    | expression T__IS T__NULL %prec T__IS                                      { CREATE_NODE(expression, 3); }
    | expression T__IS T__NOT T__NULL %prec T__IS                               { CREATE_NODE(expression, 4); }
    | expression T__ISNULL                                                      { CREATE_NODE(expression, 2); }
    | expression T__NOTNULL                                                     { CREATE_NODE(expression, 2); }
    | expression T__IS truth_value %prec T__IS                                  { CREATE_NODE(expression, 3); }
    | expression T__IS T__NOT truth_value %prec T__IS                           { CREATE_NODE(expression, 4); }
    | expression T__IS T__DISTINCT T__FROM expression %prec T__IS               { CREATE_NODE(expression, 5); }
    | expression T__IS T__NOT T__DISTINCT T__FROM expression %prec T__IS        { CREATE_NODE(expression, 6); }
    | expression T__IS T__DOCUMENT %prec T__IS                                  { CREATE_NODE(expression, 3); }
    | expression T__IS T__NOT T__DOCUMENT %prec T__IS                           { CREATE_NODE(expression, 4); }
    | expression T__IS T__NORMALIZED %prec T__IS                                { CREATE_NODE(expression, 3); }
    | expression T__IS T__NOT T__NORMALIZED %prec T__IS                         { CREATE_NODE(expression, 4); }
    | expression T__IS normal_form T__NORMALIZED %prec T__IS                    { CREATE_NODE(expression, 4); }
    | expression T__IS T__NOT normal_form T__NORMALIZED %prec T__IS             { CREATE_NODE(expression, 5); }
    | row T__OVERLAPS row                                                       { CREATE_NODE(expression, 3); }
    | expression T__BETWEEN restricted_expression T__AND expression %prec T__BETWEEN  { CREATE_NODE(expression, 5); }
    | expression T__BETWEEN between_kind restricted_expression T__AND expression %prec T__BETWEEN
      { CREATE_NODE(expression, 6); }
    | expression T__NOT_LA T__BETWEEN restricted_expression T__AND expression %prec T__NOT_LA
      { CREATE_NODE(expression, 6); }
    | expression T__NOT_LA T__BETWEEN between_kind restricted_expression T__AND expression %prec T__NOT_LA
      { CREATE_NODE(expression, 7); }
    | expression T__IN in_list %prec T__IN                                      { CREATE_NODE(expression, 3); }
    | expression T__NOT_LA T__IN in_list %prec T__NOT_LA                        { CREATE_NODE(expression, 4); }
    | expression quantified_operator quantifier subquery %prec T__OPERATOR_SYMBOL  { CREATE_NODE(expression, 4); }
    | expression quantified_operator quantifier T__LPAREN expression T__RPAREN %prec T__OPERATOR_SYMBOL
      { CREATE_NODE(expression, 6); }
    | T__DEFAULT
    ;

/* What may stand before an AND that isn't its own, and before keywords that could go on with an expression. */
restricted_expression
    : primary
    | restricted_expression T__TYPECAST type_name                               { CREATE_NODE(expression, 3); }
    | T__PLUS restricted_expression %prec UMINUS                                { CREATE_NODE(expression, 2); }
    | T__MINUS restricted_expression %prec UMINUS                               { CREATE_NODE(expression, 2); }
    | restricted_expression T__PLUS restricted_expression                       { CREATE_NODE(expression, 3); }
    | restricted_expression T__MINUS restricted_expression                      { CREATE_NODE(expression, 3); }
    | restricted_expression T__ASTERISK restricted_expression                   { CREATE_NODE(expression, 3); }
    | restricted_expression T__SLASH restricted_expression                      { CREATE_NODE(expression, 3); }
    | restricted_expression T__PERCENT restricted_expression                    { CREATE_NODE(expression, 3); }
    | restricted_expression T__CARET restricted_expression                      { CREATE_NODE(expression, 3); }
    | restricted_expression T__LESS restricted_expression                       { CREATE_NODE(expression, 3); }
    | restricted_expression T__GREATER restricted_expression                    { CREATE_NODE(expression, 3); }
    | restricted_expression T__EQUAL restricted_expression                      { CREATE_NODE(expression, 3); }
    | restricted_expression T__LESS_EQUAL restricted_expression                 { CREATE_NODE(expression, 3); }
    | restricted_expression T__GREATER_EQUAL restricted_expression              { CREATE_NODE(expression, 3); }
    | restricted_expression T__NOT_EQUAL restricted_expression                  { CREATE_NODE(expression, 3); }
    | restricted_expression operator restricted_expression %prec T__OPERATOR_SYMBOL  { CREATE_NODE(expression, 3); }
    | operator restricted_expression %prec T__OPERATOR_SYMBOL                   { CREATE_NODE(expression, 2); }
    | restricted_expression T__IS T__DISTINCT T__FROM restricted_expression %prec T__IS
      { CREATE_NODE(expression, 5); }
    | restricted_expression T__IS T__NOT T__DISTINCT T__FROM restricted_expression %prec T__IS
      { CREATE_NODE(expression, 6); }
    | restricted_expression T__IS T__DOCUMENT %prec T__IS                       { CREATE_NODE(expression, 3); }
    | restricted_expression T__IS T__NOT T__DOCUMENT %prec T__IS                { CREATE_NODE(expression, 4); }
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
    | T__OPERATOR T__LPAREN any_operator T__RPAREN                              { CREATE_NODE(qualified_operator, 4); }
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
    | column_name T__DOT any_operator                                           { CREATE_NODE(any_operator, 3); }
    ;

quantified_operator
    : operator
    | math_operator
    | T__LIKE
    | T__NOT_LA T__LIKE                                                         { CREATE_NODE(quantified_operator, 2); }
    | T__ILIKE
    | T__NOT_LA T__ILIKE                                                        { CREATE_NODE(quantified_operator, 2); }
    ;

in_list
    : subquery
    | T__LPAREN expression_list T__RPAREN                                       { CREATE_NODE(in_list, 3); }
    ;

%list expression_list: expression %separator T__COMMA ;

primary
    : constant
    | column_reference
    | T__PARAMETER_NUMBER
    | T__PARAMETER_NUMBER indirection                                           { CREATE_NODE(indirect_value, 2); }
    | parenthesized
    | parenthesized indirection                                                 { CREATE_NODE(indirect_value, 2); }
    | case_expression                                                           { CREATE_NODE(expression, 1); }
    | function_expression
    | subquery %prec UMINUS
    | subquery indirection                                                      { CREATE_NODE(indirect_value, 2); }
    | T__EXISTS subquery                                                        { CREATE_NODE(exists_condition, 2); }
    | T__ARRAY subquery                                                         { CREATE_NODE(array_constructor, 2); }
    | T__ARRAY array_items                                                      { CREATE_NODE(array_constructor, 2); }
    | row                                                                       { CREATE_NODE(expression, 1); }
    | T__GROUPING T__LPAREN expression_list T__RPAREN                           { CREATE_NODE(function_call, 4); }
    ;

parenthesized
    : T__LPAREN expression T__RPAREN                                            { CREATE_NODE(expression, 3); }
    ;

column_reference
    : column_name
    | dotted_name
    | column_name T__DOT T__ASTERISK                                            { CREATE_NODE(qualified_sql_identifier, 3); }
    | dotted_name T__DOT T__ASTERISK                                            { CREATE_NODE(qualified_sql_identifier, 3); }
    | column_name subscript                                                     { CREATE_NODE(indirect_value, 2); }
    | column_name subscript indirection                                         { CREATE_NODE(indirect_value, 3); }
    | dotted_name subscript                                                     { CREATE_NODE(indirect_value, 2); }
    | dotted_name subscript indirection                                         { CREATE_NODE(indirect_value, 3); }
    ;

indirection
    : T__DOT any_label                                                          { CREATE_NODE(indirection, 2); }
    | T__DOT T__ASTERISK                                                        { CREATE_NODE(indirection, 2); }
    | subscript
    | indirection T__DOT any_label                                              { CREATE_NODE(indirection, 3); }
    | indirection T__DOT T__ASTERISK                                            { CREATE_NODE(indirection, 3); }
    | indirection subscript                                                     { CREATE_NODE(indirection, 2); }
    ;

subscript
    : T__LBRACKET expression T__RBRACKET                                        { CREATE_NODE(subscript, 3); }
    | T__LBRACKET T__COLON T__RBRACKET                                          { CREATE_NODE(subscript, 3); }
    | T__LBRACKET T__COLON expression T__RBRACKET                               { CREATE_NODE(subscript, 4); }
    | T__LBRACKET expression T__COLON T__RBRACKET                               { CREATE_NODE(subscript, 4); }
    | T__LBRACKET expression T__COLON expression T__RBRACKET                    { CREATE_NODE(subscript, 5); }
    | T__LBRACKET expression T__CLIENT_VARIABLE T__RBRACKET                     { CREATE_NODE(subscript, 4); }
    ;

row
    : T__ROW T__LPAREN T__RPAREN                                                { CREATE_NODE(row, 3); }
    | T__ROW T__LPAREN expression_list T__RPAREN                                { CREATE_NODE(row, 4); }
    | T__LPAREN expression T__COMMA expression_list T__RPAREN                   { CREATE_NODE(row, 5); }
    ;

array_items
    : T__LBRACKET T__RBRACKET                                                   { CREATE_NODE(array_items, 2); }
    | T__LBRACKET expression_list T__RBRACKET                                   { CREATE_NODE(array_items, 3); }
    | T__LBRACKET array_items_list T__RBRACKET                                  { CREATE_NODE(array_items, 3); }
    ;
array_items_list
    : array_items                                                               { CREATE_NODE(array_items_list, 1); }
    | array_items_list T__COMMA array_items                                     { CREATE_NODE(array_items_list, 3); }
    ;

case_expression
    : T__CASE when_list T__END                                                  { CREATE_NODE(case_expression, 3); }
    | T__CASE when_list else_part T__END                                        { CREATE_NODE(case_expression, 4); }
    | T__CASE expression when_list T__END                                       { CREATE_NODE(case_expression, 4); }
    | T__CASE expression when_list else_part T__END                             { CREATE_NODE(case_expression, 5); }
    ;
when_list
    : when_part
    | when_list when_part                                                       { CREATE_NODE(when_list, 2); }
    ;
when_part
    : T__WHEN expression T__THEN expression                                     { CREATE_NODE(when_part, 4); }
    ;
else_part
    : T__ELSE expression                                                        { CREATE_NODE(else_part, 2); }
    ;

/* ---- Functions ---- */

function_expression
    : function_call
    | function_call function_suffix                                             { CREATE_NODE(function_call, 2); }
    | special_value
    | special_function                                                          { CREATE_NODE(expression, 1); }
    ;

function_call
    : function_name T__LPAREN T__RPAREN                                         { CREATE_NODE(function_call, 3); }
    | function_name T__LPAREN function_arguments T__RPAREN                      { CREATE_NODE(function_call, 4); }
    | function_name T__LPAREN function_arguments sort_clause T__RPAREN          { CREATE_NODE(function_call, 5); }
    | function_name T__LPAREN T__ALL function_arguments T__RPAREN               { CREATE_NODE(function_call, 5); }
    | function_name T__LPAREN T__ALL function_arguments sort_clause T__RPAREN   { CREATE_NODE(function_call, 6); }
    | function_name T__LPAREN T__DISTINCT function_arguments T__RPAREN          { CREATE_NODE(function_call, 5); }
    | function_name T__LPAREN T__DISTINCT function_arguments sort_clause T__RPAREN  { CREATE_NODE(function_call, 6); }
    | function_name T__LPAREN T__ASTERISK T__RPAREN                             { CREATE_NODE(function_call, 4); }
    ;

%list function_arguments: function_argument %separator T__COMMA ;

function_argument
    : expression
    | type_function_name T__COLON_EQUAL expression                              { CREATE_NODE(named_argument, 3); }
    | type_function_name T__ARROW expression                                    { CREATE_NODE(named_argument, 3); }
    | T__VARIADIC function_argument                                             { CREATE_NODE(variadic_argument, 2); }
    ;

function_suffix
    : within_group
    | filter_clause
    | over_clause
    | within_group filter_clause                                                { CREATE_NODE(function_suffix, 2); }
    | within_group over_clause                                                  { CREATE_NODE(function_suffix, 2); }
    | filter_clause over_clause                                                 { CREATE_NODE(function_suffix, 2); }
    | within_group filter_clause over_clause                                    { CREATE_NODE(function_suffix, 3); }
    ;
within_group
    : T__WITHIN T__GROUP T__LPAREN sort_clause T__RPAREN                        { CREATE_NODE(within_group, 5); }
    ;
filter_clause
    : T__FILTER T__LPAREN T__WHERE expression T__RPAREN                         { CREATE_NODE(filter_clause, 5); }
    ;
over_clause
    : T__OVER window_definition                                                 { CREATE_NODE(over_clause, 2); }
    | T__OVER column_name                                                       { CREATE_NODE(over_clause, 2); }
    ;

special_value
    : T__CURRENT_DATE
    | T__CURRENT_TIME
    | T__CURRENT_TIME T__LPAREN T__INTEGER_NUMBER T__RPAREN                     { CREATE_NODE(special_value, 4); }
    | T__CURRENT_TIMESTAMP
    | T__CURRENT_TIMESTAMP T__LPAREN T__INTEGER_NUMBER T__RPAREN                { CREATE_NODE(special_value, 4); }
    | T__LOCALTIME
    | T__LOCALTIME T__LPAREN T__INTEGER_NUMBER T__RPAREN                        { CREATE_NODE(special_value, 4); }
    | T__LOCALTIMESTAMP
    | T__LOCALTIMESTAMP T__LPAREN T__INTEGER_NUMBER T__RPAREN                   { CREATE_NODE(special_value, 4); }
    | T__CURRENT_ROLE
    | T__CURRENT_USER
    | T__SESSION_USER
    | T__USER
    | T__CURRENT_CATALOG
    | T__CURRENT_SCHEMA
    ;

/* Functions with words of their own between their arguments. */
special_function
    : T__COLLATION T__FOR T__LPAREN expression T__RPAREN                        { CREATE_NODE(special_function, 5); }
    | T__CAST T__LPAREN expression T__AS type_name T__RPAREN                    { CREATE_NODE(cast_expression, 6); }
    | T__EXTRACT T__LPAREN extract_field T__FROM expression T__RPAREN           { CREATE_NODE(special_function, 6); }
    | T__NORMALIZE T__LPAREN expression T__RPAREN                               { CREATE_NODE(special_function, 4); }
    | T__NORMALIZE T__LPAREN expression T__COMMA normal_form T__RPAREN          { CREATE_NODE(special_function, 6); }
    | T__OVERLAY T__LPAREN expression T__PLACING expression T__FROM expression T__FOR expression T__RPAREN
      { CREATE_NODE(special_function, 10); }
    | T__OVERLAY T__LPAREN expression T__PLACING expression T__FROM expression T__RPAREN
      { CREATE_NODE(special_function, 8); }
    | T__OVERLAY T__LPAREN T__RPAREN                                            { CREATE_NODE(special_function, 3); }
    | T__OVERLAY T__LPAREN function_arguments T__RPAREN                         { CREATE_NODE(special_function, 4); }
    | T__POSITION T__LPAREN restricted_expression T__IN restricted_expression T__RPAREN
      { CREATE_NODE(special_function, 6); }
    | T__SUBSTRING T__LPAREN expression T__FROM expression T__FOR expression T__RPAREN
      { CREATE_NODE(special_function, 8); }
    | T__SUBSTRING T__LPAREN expression T__FOR expression T__FROM expression T__RPAREN
      { CREATE_NODE(special_function, 8); }
    | T__SUBSTRING T__LPAREN expression T__FROM expression T__RPAREN            { CREATE_NODE(special_function, 6); }
    | T__SUBSTRING T__LPAREN expression T__FOR expression T__RPAREN             { CREATE_NODE(special_function, 6); }
    | T__SUBSTRING T__LPAREN expression T__SIMILAR expression T__ESCAPE expression T__RPAREN
      { CREATE_NODE(special_function, 8); }
    | T__SUBSTRING T__LPAREN T__RPAREN                                          { CREATE_NODE(special_function, 3); }
    | T__SUBSTRING T__LPAREN function_arguments T__RPAREN                       { CREATE_NODE(special_function, 4); }
    | T__TREAT T__LPAREN expression T__AS type_name T__RPAREN                   { CREATE_NODE(cast_expression, 6); }
    | T__TRIM T__LPAREN trim_list T__RPAREN                                     { CREATE_NODE(special_function, 4); }
    | T__TRIM T__LPAREN trim_side trim_list T__RPAREN                           { CREATE_NODE(special_function, 5); }
    | T__NULLIF T__LPAREN expression T__COMMA expression T__RPAREN              { CREATE_NODE(special_function, 6); }
    | T__COALESCE T__LPAREN expression_list T__RPAREN                           { CREATE_NODE(special_function, 4); }
    | T__GREATEST T__LPAREN expression_list T__RPAREN                           { CREATE_NODE(special_function, 4); }
    | T__LEAST T__LPAREN expression_list T__RPAREN                              { CREATE_NODE(special_function, 4); }
    | T__XMLCONCAT T__LPAREN expression_list T__RPAREN                          { CREATE_NODE(special_function, 4); }
    | T__XMLELEMENT T__LPAREN T__NAME any_label T__RPAREN                       { CREATE_NODE(special_function, 5); }
    | T__XMLELEMENT T__LPAREN T__NAME any_label T__COMMA xml_attributes T__RPAREN
      { CREATE_NODE(special_function, 7); }
    | T__XMLELEMENT T__LPAREN T__NAME any_label T__COMMA expression_list T__RPAREN
      { CREATE_NODE(special_function, 7); }
    | T__XMLELEMENT T__LPAREN T__NAME any_label T__COMMA xml_attributes T__COMMA expression_list T__RPAREN
      { CREATE_NODE(special_function, 9); }
    | T__XMLEXISTS T__LPAREN primary xml_passing T__RPAREN                      { CREATE_NODE(special_function, 5); }
    | T__XMLFOREST T__LPAREN xml_attribute_list T__RPAREN                       { CREATE_NODE(special_function, 4); }
    | T__XMLPARSE T__LPAREN document_or_content expression T__RPAREN            { CREATE_NODE(special_function, 5); }
    | T__XMLPARSE T__LPAREN document_or_content expression whitespace_option T__RPAREN
      { CREATE_NODE(special_function, 6); }
    | T__XMLPI T__LPAREN T__NAME any_label T__RPAREN                            { CREATE_NODE(special_function, 5); }
    | T__XMLPI T__LPAREN T__NAME any_label T__COMMA expression T__RPAREN        { CREATE_NODE(special_function, 7); }
    | T__XMLROOT T__LPAREN expression T__COMMA xml_version T__RPAREN            { CREATE_NODE(special_function, 6); }
    | T__XMLROOT T__LPAREN expression T__COMMA xml_version xml_standalone T__RPAREN
      { CREATE_NODE(special_function, 7); }
    | T__XMLSERIALIZE T__LPAREN document_or_content expression T__AS simple_type T__RPAREN
      { CREATE_NODE(special_function, 7); }
    ;

extract_field
    : plain_identifier
    | T__YEAR
    | T__MONTH
    | T__DAY
    | T__HOUR
    | T__MINUTE
    | T__SECOND
    | string_literal
    ;

trim_side
    : T__BOTH
    | T__LEADING
    | T__TRAILING
    ;
trim_list
    : expression T__FROM expression_list                                        { CREATE_NODE(trim_list, 3); }
    | T__FROM expression_list                                                   { CREATE_NODE(trim_list, 2); }
    | expression_list
    ;

xml_attributes
    : T__XMLATTRIBUTES T__LPAREN xml_attribute_list T__RPAREN                   { CREATE_NODE(xml_attributes, 4); }
    ;
xml_attribute_list
    : xml_attribute
    | xml_attribute_list T__COMMA xml_attribute                                 { CREATE_NODE(xml_attribute_list, 3); }
    ;
xml_attribute
    : expression
    | expression T__AS any_label                                                { CREATE_NODE(xml_attribute, 3); }
    ;
document_or_content
    : T__DOCUMENT
    | T__CONTENT
    ;
whitespace_option
    : T__PRESERVE T__WHITESPACE                                                 { CREATE_NODE(whitespace_option, 2); }
    | T__STRIP T__WHITESPACE                                                    { CREATE_NODE(whitespace_option, 2); }
    ;
xml_version
    : T__VERSION expression                                                     { CREATE_NODE(xml_version, 2); }
    | T__VERSION T__NO T__VALUE                                                 { CREATE_NODE(xml_version, 3); }
    ;
xml_standalone
    : T__COMMA T__STANDALONE T__YES                                             { CREATE_NODE(xml_standalone, 3); }
    | T__COMMA T__STANDALONE T__NO                                              { CREATE_NODE(xml_standalone, 3); }
    | T__COMMA T__STANDALONE T__NO T__VALUE                                     { CREATE_NODE(xml_standalone, 4); }
    ;
xml_passing
    : T__PASSING primary                                                        { CREATE_NODE(xml_passing, 2); }
    | T__PASSING primary xml_passing_mechanism                                  { CREATE_NODE(xml_passing, 3); }
    | T__PASSING xml_passing_mechanism primary                                  { CREATE_NODE(xml_passing, 3); }
    | T__PASSING xml_passing_mechanism primary xml_passing_mechanism            { CREATE_NODE(xml_passing, 4); }
    ;
xml_passing_mechanism
    : T__BY T__REF                                                              { CREATE_NODE(xml_passing_mechanism, 2); }
    | T__BY T__VALUE                                                            { CREATE_NODE(xml_passing_mechanism, 2); }
    ;

/* ---- Queries ---- */

query
    : query_body %prec UMINUS
    | subquery %prec UMINUS
    ;

subquery
    : T__LPAREN query_body T__RPAREN                                            { CREATE_NODE(subquery, 3); }
    | T__LPAREN subquery T__RPAREN                                              { CREATE_NODE(subquery, 3); }
    ;

query_body
    : simple_select
    | select_part select_tail                                                   { CREATE_NODE(select_statement, 2); }
    | with_clause select_part                                                   { CREATE_NODE(select_statement, 2); }
    | with_clause select_part select_tail                                       { CREATE_NODE(select_statement, 3); }
    ;

select_part
    : simple_select
    | subquery
    ;

select_tail
    : sort_clause
    | sort_clause select_limit_part                                             { CREATE_NODE(select_tail, 2); }
    | select_limit_part
    ;
select_limit_part
    : locking_clause
    | limit_clause
    | locking_clause limit_clause                                               { CREATE_NODE(select_tail, 2); }
    | limit_clause locking_clause                                               { CREATE_NODE(select_tail, 2); }
    ;

simple_select
    : select_head                                                               { CREATE_NODE(select_statement, 1); }
    | select_head select_list                                                   { CREATE_NODE(select_statement, 2); }
    | select_head select_clauses                                                { CREATE_NODE(select_statement, 2); }
    | select_head select_list select_clauses                                    { CREATE_NODE(select_statement, 3); }
    | distinct_head select_list                                                 { CREATE_NODE(select_statement, 2); }
    | distinct_head select_list select_clauses                                  { CREATE_NODE(select_statement, 3); }
    | values_clause
    | T__TABLE relation                                                         { CREATE_NODE(table_statement, 2); }
    | select_part T__UNION select_part                                          { CREATE_NODE(set_operation, 3); }
    | select_part T__UNION set_quantifier select_part %prec T__UNION            { CREATE_NODE(set_operation, 4); }
    | select_part T__INTERSECT select_part                                      { CREATE_NODE(intersect_operation, 3); }
    | select_part T__INTERSECT set_quantifier select_part %prec T__INTERSECT    { CREATE_NODE(intersect_operation, 4); }
    | select_part T__EXCEPT select_part                                         { CREATE_NODE(set_operation, 3); }
    | select_part T__EXCEPT set_quantifier select_part %prec T__EXCEPT          { CREATE_NODE(set_operation, 4); }
    ;

set_quantifier
    : T__ALL
    | T__DISTINCT
    ;

select_head
    : T__SELECT
    | T__SELECT T__ALL                                                          { CREATE_NODE(select_head, 2); }
    ;
distinct_head
    : T__SELECT T__DISTINCT                                                     { CREATE_NODE(distinct_head, 2); }
    | T__SELECT T__DISTINCT T__ON T__LPAREN expression_list T__RPAREN           { CREATE_NODE(distinct_head, 6); }
    ;

%list select_list: select_item %separator T__COMMA ;

select_item
    : expression
    | expression T__AS any_label                                                { CREATE_NODE(select_item, 3); }
    | expression bare_label                                                     { CREATE_NODE(select_item, 2); }
    | T__ASTERISK
    ;

/* The clauses of a SELECT in their order, any of them left out. */
select_clauses
    : into_clause
    | into_clause clauses_from_from                                             { CREATE_NODE(select_clauses, 2); }
    | clauses_from_from
    ;
clauses_from_from
    : from_clause
    | from_clause clauses_from_where                                            { CREATE_NODE(select_clauses, 2); }
    | clauses_from_where
    ;
clauses_from_where
    : where_clause
    | where_clause clauses_from_group                                           { CREATE_NODE(select_clauses, 2); }
    | clauses_from_group
    ;
clauses_from_group
    : group_clause
    | group_clause clauses_from_having                                          { CREATE_NODE(select_clauses, 2); }
    | clauses_from_having
    ;
clauses_from_having
    : having_clause
    | having_clause window_clause                                               { CREATE_NODE(select_clauses, 2); }
    | window_clause
    ;

into_clause
    : T__INTO into_target                                                       { CREATE_NODE(into_clause, 2); }
    ;
into_target
    : qualified_name
    | T__TABLE qualified_name                                                   { CREATE_NODE(into_target, 2); }
    | temporary qualified_name                                                  { CREATE_NODE(into_target, 2); }
    | temporary T__TABLE qualified_name                                         { CREATE_NODE(into_target, 3); }
    ;
temporary
    : T__TEMPORARY
    | T__TEMP
    | T__LOCAL T__TEMPORARY                                                     { CREATE_NODE(temporary, 2); }
    | T__LOCAL T__TEMP                                                          { CREATE_NODE(temporary, 2); }
    | T__GLOBAL T__TEMPORARY                                                    { CREATE_NODE(temporary, 2); }
    | T__GLOBAL T__TEMP                                                         { CREATE_NODE(temporary, 2); }
    | T__UNLOGGED
    ;

from_clause
    : T__FROM table_reference_list                                              { CREATE_NODE(from_clause, 2); }
    ;
where_clause
    : T__WHERE expression                                                       { CREATE_NODE(where_clause, 2); }
    ;
group_clause
    : T__GROUP T__BY group_list                                                 { CREATE_NODE(group_clause, 3); }
    | T__GROUP T__BY set_quantifier group_list                                  { CREATE_NODE(group_clause, 4); }
    ;
having_clause
    : T__HAVING expression                                                      { CREATE_NODE(having_clause, 2); }
    ;
window_clause
    : T__WINDOW window_list                                                     { CREATE_NODE(window_clause, 2); }
    ;

group_list
    : group_item                                                                { CREATE_NODE(group_list, 1); }
    | group_list T__COMMA group_item                                            { CREATE_NODE(group_list, 3); }
    ;
group_item
    : expression
    | T__LPAREN T__RPAREN                                                       { CREATE_NODE(group_item, 2); }
    | T__CUBE T__LPAREN expression_list T__RPAREN                               { CREATE_NODE(group_item, 4); }
    | T__ROLLUP T__LPAREN expression_list T__RPAREN                             { CREATE_NODE(group_item, 4); }
    | T__GROUPING T__SETS T__LPAREN group_list T__RPAREN                        { CREATE_NODE(group_item, 5); }
    ;

window_list
    : named_window
    | window_list T__COMMA named_window                                         { CREATE_NODE(window_list, 3); }
    ;
named_window
    : column_name T__AS window_definition                                       { CREATE_NODE(named_window, 3); }
    ;
window_definition
    : T__LPAREN T__RPAREN                                                       { CREATE_NODE(window_definition, 2); }
    | T__LPAREN window_parts T__RPAREN                                          { CREATE_NODE(window_definition, 3); }
    | T__LPAREN column_name T__RPAREN                                           { CREATE_NODE(window_definition, 3); }
    | T__LPAREN column_name window_parts T__RPAREN                              { CREATE_NODE(window_definition, 4); }
    ;
window_parts
    : window_partition
    | window_partition window_order_part                                        { CREATE_NODE(window_parts, 2); }
    | window_order_part
    ;
window_order_part
    : sort_clause
    | sort_clause frame_clause                                                  { CREATE_NODE(window_parts, 2); }
    | frame_clause
    ;
window_partition
    : T__PARTITION T__BY expression_list                                        { CREATE_NODE(window_partition, 3); }
    ;
frame_clause
    : T__RANGE frame_extent                                                     { CREATE_NODE(frame_clause, 2); }
    | T__RANGE frame_extent frame_exclusion                                     { CREATE_NODE(frame_clause, 3); }
    | T__ROWS frame_extent                                                      { CREATE_NODE(frame_clause, 2); }
    | T__ROWS frame_extent frame_exclusion                                      { CREATE_NODE(frame_clause, 3); }
    | T__GROUPS frame_extent                                                    { CREATE_NODE(frame_clause, 2); }
    | T__GROUPS frame_extent frame_exclusion                                    { CREATE_NODE(frame_clause, 3); }
    ;
frame_extent
    : frame_bound
    | T__BETWEEN frame_bound T__AND frame_bound                                 { CREATE_NODE(frame_extent, 4); }
    ;
frame_bound
    : T__UNBOUNDED T__PRECEDING                                                 { CREATE_NODE(frame_bound, 2); }
    | T__UNBOUNDED T__FOLLOWING                                                 { CREATE_NODE(frame_bound, 2); }
    | T__CURRENT T__ROW                                                         { CREATE_NODE(frame_bound, 2); }
    | expression T__PRECEDING                                                   { CREATE_NODE(frame_bound, 2); }
    | expression T__FOLLOWING                                                   { CREATE_NODE(frame_bound, 2); }
    ;
frame_exclusion
    : T__EXCLUDE T__CURRENT T__ROW                                              { CREATE_NODE(frame_exclusion, 3); }
    | T__EXCLUDE T__GROUP                                                       { CREATE_NODE(frame_exclusion, 2); }
    | T__EXCLUDE T__TIES                                                        { CREATE_NODE(frame_exclusion, 2); }
    | T__EXCLUDE T__NO T__OTHERS                                                { CREATE_NODE(frame_exclusion, 3); }
    ;

sort_clause
    : T__ORDER T__BY sort_list                                                  { CREATE_NODE(sort_clause, 3); }
    ;
sort_list
    : sort_item
    | sort_list T__COMMA sort_item                                              { CREATE_NODE(sort_list, 3); }
    ;
sort_item
    : expression
    | expression sort_direction                                                 { CREATE_NODE(sort_item, 2); }
    | expression nulls_order                                                    { CREATE_NODE(sort_item, 2); }
    | expression sort_direction nulls_order                                     { CREATE_NODE(sort_item, 3); }
    ;
sort_direction
    : T__ASC
    | T__DESC
    | T__USING any_operator                                                     { CREATE_NODE(sort_direction, 2); }
    | T__USING T__OPERATOR T__LPAREN any_operator T__RPAREN                     { CREATE_NODE(sort_direction, 5); }
    ;
nulls_order
    : T__NULLS_LA T__FIRST                                                      { CREATE_NODE(nulls_order, 2); }
    | T__NULLS_LA T__LAST                                                       { CREATE_NODE(nulls_order, 2); }
    ;

limit_clause
    : limit_part
    | offset_part
    | limit_part offset_part                                                    { CREATE_NODE(limit_clause, 2); }
    | offset_part limit_part                                                    { CREATE_NODE(limit_clause, 2); }
    ;
limit_part
    : T__LIMIT expression                                                       { CREATE_NODE(limit_part, 2); }
    | T__LIMIT T__ALL                                                           { CREATE_NODE(limit_part, 2); }
    | T__FETCH first_or_next row_or_rows only_or_ties                           { CREATE_NODE(limit_part, 4); }
    | T__FETCH first_or_next fetch_count row_or_rows only_or_ties               { CREATE_NODE(limit_part, 5); }
    ;
offset_part
    : T__OFFSET expression                                                      { CREATE_NODE(offset_part, 2); }
    | T__OFFSET fetch_count row_or_rows                                         { CREATE_NODE(offset_part, 3); }
    ;
fetch_count
    : primary
    | T__PLUS number                                                            { CREATE_NODE(fetch_count, 2); }
    | T__MINUS number                                                           { CREATE_NODE(fetch_count, 2); }
    ;
first_or_next
    : T__FIRST
    | T__NEXT
    ;
row_or_rows
    : T__ROW
    | T__ROWS
    ;
only_or_ties
    : T__ONLY
    | T__WITH T__TIES                                                           { CREATE_NODE(only_or_ties, 2); }
    ;

locking_clause
    : locking_list
    | T__FOR T__READ T__ONLY                                                    { CREATE_NODE(locking_clause, 3); }
    ;
locking_list
    : locking_item
    | locking_list locking_item                                                 { CREATE_NODE(locking_list, 2); }
    ;
locking_item
    : locking_strength
    | locking_strength locked_tables                                            { CREATE_NODE(locking_item, 2); }
    | locking_strength locking_wait                                             { CREATE_NODE(locking_item, 2); }
    | locking_strength locked_tables locking_wait                               { CREATE_NODE(locking_item, 3); }
    ;
locking_strength
    : T__FOR T__UPDATE                                                          { CREATE_NODE(locking_strength, 2); }
    | T__FOR T__NO T__KEY T__UPDATE                                             { CREATE_NODE(locking_strength, 4); }
    | T__FOR T__SHARE                                                           { CREATE_NODE(locking_strength, 2); }
    | T__FOR T__KEY T__SHARE                                                    { CREATE_NODE(locking_strength, 3); }
    ;
locked_tables
    : T__OF qualified_name_list                                                 { CREATE_NODE(locked_tables, 2); }
    ;
locking_wait
    : T__NOWAIT
    | T__SKIP T__LOCKED                                                         { CREATE_NODE(locking_wait, 2); }
    ;

values_clause
    : T__VALUES values_rows                                                     { CREATE_NODE(values_clause, 2); }
    ;
%list values_rows: values_row %separator T__COMMA ;

values_row
    : T__LPAREN expression_list T__RPAREN                                       { CREATE_NODE(values_row, 3); }
    ;

with_clause
    : T__WITH common_table_list                                                 { CREATE_NODE(with_clause, 2); }
    | T__WITH_LA common_table_list                                              { CREATE_NODE(with_clause, 2); }
    | T__WITH T__RECURSIVE common_table_list                                    { CREATE_NODE(with_clause, 3); }
    ;
common_table_list
    : common_table
    | common_table_list T__COMMA common_table                                   { CREATE_NODE(common_table_list, 3); }
    ;
common_table
    : column_name cte_body                                                      { CREATE_NODE(common_table, 2); }
    | column_name parenthesized_names cte_body                                  { CREATE_NODE(common_table, 3); }
    | column_name cte_body cte_tail                                             { CREATE_NODE(common_table, 3); }
    | column_name parenthesized_names cte_body cte_tail                         { CREATE_NODE(common_table, 4); }
    ;
cte_body
    : T__AS T__LPAREN preparable_statement T__RPAREN                            { CREATE_NODE(cte_body, 4); }
    | T__AS T__MATERIALIZED T__LPAREN preparable_statement T__RPAREN            { CREATE_NODE(cte_body, 5); }
    | T__AS T__NOT T__MATERIALIZED T__LPAREN preparable_statement T__RPAREN     { CREATE_NODE(cte_body, 6); }
    ;
cte_tail
    : search_clause
    | cycle_clause
    | search_clause cycle_clause                                                { CREATE_NODE(cte_tail, 2); }
    ;
search_clause
    : T__SEARCH T__DEPTH T__FIRST T__BY name_list T__SET column_name            { CREATE_NODE(search_clause, 7); }
    | T__SEARCH T__BREADTH T__FIRST T__BY name_list T__SET column_name          { CREATE_NODE(search_clause, 7); }
    ;
cycle_clause
    : T__CYCLE name_list T__SET column_name T__USING column_name                { CREATE_NODE(cycle_clause, 6); }
    | T__CYCLE name_list T__SET column_name T__TO constant T__DEFAULT constant T__USING column_name
      { CREATE_NODE(cycle_clause, 10); }
    ;

preparable_statement
    : query
    | insert_statement
    | update_statement
    | delete_statement
    ;

/* ---- What stands in FROM ---- */

table_reference_list
    : table_reference
    | table_reference_list T__COMMA table_reference                             { CREATE_NODE(table_reference_list, 3); }
    ;

table_reference
    : relation
    | relation alias                                                            { CREATE_NODE(table_reference, 2); }
    | relation tablesample                                                      { CREATE_NODE(table_reference, 2); }
    | relation alias tablesample                                                { CREATE_NODE(table_reference, 3); }
    | function_table
    | function_table function_alias                                             { CREATE_NODE(table_reference, 2); }
    | T__LATERAL function_table                                                 { CREATE_NODE(table_reference, 2); }
    | T__LATERAL function_table function_alias                                  { CREATE_NODE(table_reference, 3); }
    | xml_table
    | xml_table alias                                                           { CREATE_NODE(table_reference, 2); }
    | T__LATERAL xml_table                                                      { CREATE_NODE(table_reference, 2); }
    | T__LATERAL xml_table alias                                                { CREATE_NODE(table_reference, 3); }
    | subquery
    | subquery alias                                                            { CREATE_NODE(table_reference, 2); }
    | T__LATERAL subquery                                                       { CREATE_NODE(table_reference, 2); }
    | T__LATERAL subquery alias                                                 { CREATE_NODE(table_reference, 3); }
    | joined_table
    | T__LPAREN joined_table T__RPAREN alias                                    { CREATE_NODE(table_reference, 4); }
    ;

relation
    : qualified_name
    | qualified_name T__ASTERISK                                                { CREATE_NODE(relation, 2); }
    | T__ONLY qualified_name                                                    { CREATE_NODE(relation, 2); }
    | T__ONLY T__LPAREN qualified_name T__RPAREN                                { CREATE_NODE(relation, 4); }
    ;

alias
    : column_name                                                               { CREATE_NODE(alias, 1); }
    | column_name parenthesized_names                                           { CREATE_NODE(alias, 2); }
    | T__AS column_name                                                         { CREATE_NODE(alias, 2); }
    | T__AS column_name parenthesized_names                                     { CREATE_NODE(alias, 3); }
    ;

function_alias
    : alias
    | T__AS T__LPAREN table_function_columns T__RPAREN                          { CREATE_NODE(function_alias, 4); }
    | T__AS column_name T__LPAREN table_function_columns T__RPAREN              { CREATE_NODE(function_alias, 5); }
    | column_name T__LPAREN table_function_columns T__RPAREN                    { CREATE_NODE(function_alias, 4); }
    ;
table_function_columns
    : table_function_column
    | table_function_columns T__COMMA table_function_column                     { CREATE_NODE(table_function_columns, 3); }
    ;
table_function_column
    : column_name type_name                                                     { CREATE_NODE(table_function_column, 2); }
    | column_name type_name T__COLLATE qualified_name                           { CREATE_NODE(table_function_column, 4); }
    ;

tablesample
    : T__TABLESAMPLE function_name T__LPAREN expression_list T__RPAREN          { CREATE_NODE(tablesample, 5); }
    | T__TABLESAMPLE function_name T__LPAREN expression_list T__RPAREN T__REPEATABLE T__LPAREN expression
      T__RPAREN                                                                 { CREATE_NODE(tablesample, 9); }
    ;

plain_function
    : function_call
    | special_value
    | special_function
    ;
function_table
    : plain_function
    | plain_function T__WITH_LA T__ORDINALITY                                   { CREATE_NODE(function_table, 3); }
    | T__ROWS T__FROM T__LPAREN rows_from_list T__RPAREN                        { CREATE_NODE(function_table, 5); }
    | T__ROWS T__FROM T__LPAREN rows_from_list T__RPAREN T__WITH_LA T__ORDINALITY  { CREATE_NODE(function_table, 7); }
    ;
rows_from_list
    : rows_from_item
    | rows_from_list T__COMMA rows_from_item                                    { CREATE_NODE(rows_from_list, 3); }
    ;
rows_from_item
    : plain_function
    | plain_function T__AS T__LPAREN table_function_columns T__RPAREN           { CREATE_NODE(rows_from_item, 5); }
    ;

joined_table
    : T__LPAREN joined_table T__RPAREN                                          { CREATE_NODE(parenthesized_join, 3); }
    | table_reference T__CROSS T__JOIN table_reference                          { CREATE_NODE(joined_table, 4); }
    | table_reference T__JOIN table_reference join_condition                    { CREATE_NODE(joined_table, 4); }
    | table_reference join_type T__JOIN table_reference join_condition          { CREATE_NODE(joined_table, 5); }
    | table_reference T__NATURAL T__JOIN table_reference                        { CREATE_NODE(joined_table, 4); }
    | table_reference T__NATURAL join_type T__JOIN table_reference              { CREATE_NODE(joined_table, 5); }
    ;
join_type
    : T__FULL
    | T__FULL T__OUTER                                                          { CREATE_NODE(join_type, 2); }
    | T__LEFT
    | T__LEFT T__OUTER                                                          { CREATE_NODE(join_type, 2); }
    | T__RIGHT
    | T__RIGHT T__OUTER                                                         { CREATE_NODE(join_type, 2); }
    | T__INNER
    ;
join_condition
    : T__ON expression                                                          { CREATE_NODE(join_condition, 2); }
    | T__USING parenthesized_names                                              { CREATE_NODE(join_condition, 2); }
    | T__USING parenthesized_names T__AS column_name                            { CREATE_NODE(join_condition, 4); }
    ;

xml_table
    : T__XMLTABLE T__LPAREN primary xml_passing T__COLUMNS xml_table_columns T__RPAREN  { CREATE_NODE(xml_table, 7); }
    | T__XMLTABLE T__LPAREN T__XMLNAMESPACES T__LPAREN xml_namespaces T__RPAREN T__COMMA primary xml_passing
      T__COLUMNS xml_table_columns T__RPAREN                                    { CREATE_NODE(xml_table, 12); }
    ;
xml_table_columns
    : xml_table_column
    | xml_table_columns T__COMMA xml_table_column                               { CREATE_NODE(xml_table_columns, 3); }
    ;
xml_table_column
    : column_name type_name                                                     { CREATE_NODE(xml_table_column, 2); }
    | column_name type_name xml_table_options                                   { CREATE_NODE(xml_table_column, 3); }
    | column_name T__FOR T__ORDINALITY                                          { CREATE_NODE(xml_table_column, 3); }
    ;
xml_table_options
    : xml_table_option
    | xml_table_options xml_table_option                                        { CREATE_NODE(xml_table_options, 2); }
    ;
xml_table_option
    : plain_identifier restricted_expression                                    { CREATE_NODE(xml_table_option, 2); }
    | T__DEFAULT restricted_expression                                          { CREATE_NODE(xml_table_option, 2); }
    | T__NOT T__NULL                                                            { CREATE_NODE(xml_table_option, 2); }
    | T__NULL
    ;
xml_namespaces
    : xml_namespace
    | xml_namespaces T__COMMA xml_namespace                                     { CREATE_NODE(xml_namespaces, 3); }
    ;
xml_namespace
    : restricted_expression T__AS any_label                                     { CREATE_NODE(xml_namespace, 3); }
    | T__DEFAULT restricted_expression                                          { CREATE_NODE(xml_namespace, 2); }
    ;

/* ---- INSERT, UPDATE, DELETE, MERGE ---- */

insert_statement
    : insert_core
    | with_clause insert_core                                                   { CREATE_NODE(insert_statement, 2); }
    ;
insert_core
    : T__INSERT T__INTO insert_target insert_source                             { CREATE_NODE(insert_statement, 4); }
    | T__INSERT T__INTO insert_target insert_source insert_tail                 { CREATE_NODE(insert_statement, 5); }
    ;
insert_target
    : qualified_name
    | qualified_name T__AS column_name                                          { CREATE_NODE(insert_target, 3); }
    ;
insert_source
    : query
    | T__OVERRIDING overriding_kind T__VALUE query                              { CREATE_NODE(insert_source, 4); }
    | insert_columns query                                                      { CREATE_NODE(insert_source, 2); }
    | insert_columns T__OVERRIDING overriding_kind T__VALUE query               { CREATE_NODE(insert_source, 5); }
    | T__DEFAULT T__VALUES                                                      { CREATE_NODE(insert_source, 2); }
    ;
overriding_kind
    : T__USER
    | T__SYSTEM
    ;
insert_columns
    : T__LPAREN insert_column_list T__RPAREN                                    { CREATE_NODE(insert_columns, 3); }
    ;
%list insert_column_list: target_column %separator T__COMMA ;

target_column
    : column_name
    | column_name indirection                                                   { CREATE_NODE(target_column, 2); }
    ;
insert_tail
    : on_conflict
    | on_conflict returning_clause                                              { CREATE_NODE(insert_tail, 2); }
    | returning_clause
    ;
on_conflict
    : T__ON T__CONFLICT conflict_action                                         { CREATE_NODE(on_conflict, 3); }
    | T__ON T__CONFLICT conflict_target conflict_action                         { CREATE_NODE(on_conflict, 4); }
    ;
conflict_target
    : T__LPAREN index_elements T__RPAREN                                        { CREATE_NODE(conflict_target, 3); }
    | T__LPAREN index_elements T__RPAREN where_clause                           { CREATE_NODE(conflict_target, 4); }
    | T__ON T__CONSTRAINT column_name                                           { CREATE_NODE(conflict_target, 3); }
    ;
conflict_action
    : T__DO T__NOTHING                                                          { CREATE_NODE(conflict_action, 2); }
    | T__DO T__UPDATE T__SET set_list                                           { CREATE_NODE(conflict_action, 4); }
    | T__DO T__UPDATE T__SET set_list where_clause                              { CREATE_NODE(conflict_action, 5); }
    ;
returning_clause
    : T__RETURNING select_list                                                  { CREATE_NODE(returning_clause, 2); }
    ;

update_statement
    : update_core
    | with_clause update_core                                                   { CREATE_NODE(update_statement, 2); }
    ;
update_core
    : T__UPDATE target_relation T__SET set_list                                 { CREATE_NODE(update_statement, 4); }
    | T__UPDATE target_relation T__SET set_list update_tail                     { CREATE_NODE(update_statement, 5); }
    ;
update_tail
    : from_clause
    | from_clause dml_where_part                                                { CREATE_NODE(dml_clauses, 2); }
    | dml_where_part
    ;
dml_where_part
    : dml_where
    | dml_where returning_clause                                                { CREATE_NODE(dml_clauses, 2); }
    | returning_clause
    ;
dml_where
    : where_clause
    | T__WHERE T__CURRENT T__OF column_name                                     { CREATE_NODE(where_clause, 4); }
    ;
target_relation
    : relation %prec UMINUS
    | relation column_name                                                      { CREATE_NODE(target_relation, 2); }
    | relation T__AS column_name                                                { CREATE_NODE(target_relation, 3); }
    ;
set_list
    : set_item
    | set_list T__COMMA set_item                                                { CREATE_NODE(set_list, 3); }
    ;
set_item
    : target_column T__EQUAL expression                                         { CREATE_NODE(set_item, 3); }
    | T__LPAREN insert_column_list T__RPAREN T__EQUAL expression                { CREATE_NODE(set_item, 5); }
    ;

delete_statement
    : delete_core
    | with_clause delete_core                                                   { CREATE_NODE(delete_statement, 2); }
    ;
delete_core
    : T__DELETE T__FROM target_relation                                         { CREATE_NODE(delete_statement, 3); }
    | T__DELETE T__FROM target_relation delete_tail                             { CREATE_NODE(delete_statement, 4); }
    ;
delete_tail
    : using_tables
    | using_tables dml_where_part                                               { CREATE_NODE(dml_clauses, 2); }
    | dml_where_part
    ;
using_tables
    : T__USING table_reference_list                                             { CREATE_NODE(using_tables, 2); }
    ;

merge_statement
    : merge_core
    | with_clause merge_core                                                    { CREATE_NODE(merge_statement, 2); }
    ;
merge_core
    : T__MERGE T__INTO target_relation T__USING table_reference T__ON expression merge_when_list
      { CREATE_NODE(merge_statement, 8); }
    ;
merge_when_list
    : merge_when
    | merge_when_list merge_when                                                { CREATE_NODE(merge_when_list, 2); }
    ;
merge_when
    : T__WHEN T__MATCHED T__THEN merge_matched_action                           { CREATE_NODE(merge_when, 4); }
    | T__WHEN T__MATCHED T__AND expression T__THEN merge_matched_action         { CREATE_NODE(merge_when, 6); }
    | T__WHEN T__NOT T__MATCHED T__THEN merge_insert_action                     { CREATE_NODE(merge_when, 5); }
    | T__WHEN T__NOT T__MATCHED T__AND expression T__THEN merge_insert_action   { CREATE_NODE(merge_when, 7); }
    ;
merge_matched_action
    : T__UPDATE T__SET set_list                                                 { CREATE_NODE(merge_matched_action, 3); }
    | T__DELETE
    | T__DO T__NOTHING                                                          { CREATE_NODE(merge_matched_action, 2); }
    ;
merge_insert_action
    : T__INSERT merge_values                                                    { CREATE_NODE(merge_insert_action, 2); }
    | T__INSERT T__OVERRIDING overriding_kind T__VALUE merge_values             { CREATE_NODE(merge_insert_action, 5); }
    | T__INSERT insert_columns merge_values                                     { CREATE_NODE(merge_insert_action, 3); }
    | T__INSERT insert_columns T__OVERRIDING overriding_kind T__VALUE merge_values
      { CREATE_NODE(merge_insert_action, 6); }
    | T__INSERT T__DEFAULT T__VALUES                                            { CREATE_NODE(merge_insert_action, 3); }
    | T__DO T__NOTHING                                                          { CREATE_NODE(merge_insert_action, 2); }
    ;
merge_values
    : T__VALUES T__LPAREN expression_list T__RPAREN                             { CREATE_NODE(merge_values, 4); }
    ;

statement
    : query
    | insert_statement
    | update_statement
    | delete_statement
    | merge_statement
    | create_table
    | create_foreign_table
    | create_index
    | create_view
    | create_materialized_view
    | create_sequence
    | create_routine
    | create_trigger
    | create_event_trigger
    | create_rule
    | create_policy
    | create_schema
    | create_role
    | create_database
    | create_tablespace
    | create_extension
    | create_language
    | create_publication
    | create_subscription
    | create_foreign_object
    | create_statistics
    | create_definition
    | create_type
    | create_domain
    | create_aggregate
    | create_operator_class
    | create_operator_family
    | create_cast
    | create_transform
    | create_conversion
    | create_access_method
    | alter_relation
    | alter_sequence
    | alter_type
    | alter_domain
    | alter_routine
    | alter_object
    | alter_operator
    | alter_operator_family
    | alter_policy
    | alter_role
    | alter_database
    | alter_tablespace
    | alter_extension
    | alter_publication
    | alter_subscription
    | alter_foreign_object
    | alter_statistics
    | alter_text_search
    | alter_event_trigger
    | alter_system
    | alter_default_privileges
    | drop_statement
    | comment_statement
    | security_label_statement
    | grant_statement
    | revoke_statement
    | reassign_owned
    | transaction_statement
    | set_statement
    | show_statement
    | reset_statement
    | constraints_statement
    | copy_statement
    | explain_statement
    | do_statement
    | call_statement
    | prepare_statement
    | execute_statement
    | deallocate_statement
    | declare_cursor
    | fetch_statement
    | close_statement
    | lock_statement
    | truncate_statement
    | vacuum_statement
    | analyze_statement
    | cluster_statement
    | reindex_statement
    | refresh_statement
    | listen_statement
    | discard_statement
    | load_statement
    | T__CHECKPOINT                                                             { CREATE_NODE(checkpoint_statement, 1); }
    | import_foreign_schema
    ;

/* ---- CREATE TABLE ---- */

create_table
    : T__CREATE T__TABLE table_definition                                       { CREATE_NODE(create_table, 3); }
    | T__CREATE temporary T__TABLE table_definition                             { CREATE_NODE(create_table, 4); }
    ;
table_definition
    : new_name T__LPAREN T__RPAREN                                              { CREATE_NODE(table_definition, 3); }
    | new_name T__LPAREN table_elements T__RPAREN                               { CREATE_NODE(table_definition, 4); }
    | new_name T__LPAREN T__RPAREN table_options                                { CREATE_NODE(table_definition, 4); }
    | new_name T__LPAREN table_elements T__RPAREN table_options                 { CREATE_NODE(table_definition, 5); }
    | new_name T__OF qualified_name                                             { CREATE_NODE(table_definition, 3); }
    | new_name T__OF qualified_name typed_elements                              { CREATE_NODE(table_definition, 4); }
    | new_name T__OF qualified_name table_options                               { CREATE_NODE(table_definition, 4); }
    | new_name T__OF qualified_name typed_elements table_options                { CREATE_NODE(table_definition, 5); }
    | new_name T__PARTITION T__OF qualified_name partition_bound                { CREATE_NODE(table_definition, 5); }
    | new_name T__PARTITION T__OF qualified_name partition_bound table_options  { CREATE_NODE(table_definition, 6); }
    | new_name T__PARTITION T__OF qualified_name typed_elements partition_bound  { CREATE_NODE(table_definition, 6); }
    | new_name T__PARTITION T__OF qualified_name typed_elements partition_bound table_options
      { CREATE_NODE(table_definition, 7); }
    | table_as
    ;
/* The name of something to be made. */
new_name
    : qualified_name
    | T__IF T__NOT T__EXISTS qualified_name                                     { CREATE_NODE(new_name, 4); }
    ;

table_as
    : new_name as_query                                                         { CREATE_NODE(table_as, 2); }
    | new_name parenthesized_names as_query                                     { CREATE_NODE(table_as, 3); }
    | new_name table_options as_query                                           { CREATE_NODE(table_as, 3); }
    | new_name parenthesized_names table_options as_query                       { CREATE_NODE(table_as, 4); }
    | new_name table_options as_execute                                         { CREATE_NODE(table_as, 3); }
    | new_name parenthesized_names as_execute                                   { CREATE_NODE(table_as, 3); }
    | new_name as_execute                                                       { CREATE_NODE(table_as, 2); }
    | new_name parenthesized_names table_options as_execute                     { CREATE_NODE(table_as, 4); }
    ;
as_query
    : T__AS query                                                               { CREATE_NODE(as_query, 2); }
    | T__AS query with_data                                                     { CREATE_NODE(as_query, 3); }
    ;
with_data
    : T__WITH T__DATA                                                           { CREATE_NODE(with_data, 2); }
    | T__WITH T__NO T__DATA                                                     { CREATE_NODE(with_data, 3); }
    ;
as_execute
    : T__AS T__EXECUTE column_name                                              { CREATE_NODE(as_execute, 3); }
    | T__AS T__EXECUTE column_name T__LPAREN expression_list T__RPAREN          { CREATE_NODE(as_execute, 6); }
    | T__AS T__EXECUTE column_name with_data                                    { CREATE_NODE(as_execute, 4); }
    | T__AS T__EXECUTE column_name T__LPAREN expression_list T__RPAREN with_data  { CREATE_NODE(as_execute, 7); }
    ;

%list table_elements: table_element %separator T__COMMA ;

table_element
    : column_definition
    | table_constraint
    | T__LIKE qualified_name                                                    { CREATE_NODE(table_element, 2); }
    | T__LIKE qualified_name like_options                                       { CREATE_NODE(table_element, 3); }
    ;
like_options
    : like_option
    | like_options like_option                                                  { CREATE_NODE(like_options, 2); }
    ;
like_option
    : T__INCLUDING like_what                                                    { CREATE_NODE(like_option, 2); }
    | T__EXCLUDING like_what                                                    { CREATE_NODE(like_option, 2); }
    ;
like_what
    : T__ALL
    | T__COMMENTS
    | T__COMPRESSION
    | T__CONSTRAINTS
    | T__DEFAULTS
    | T__GENERATED
    | T__IDENTITY
    | T__INDEXES
    | T__STATISTICS
    | T__STORAGE
    ;
typed_elements
    : T__LPAREN typed_element_list T__RPAREN                                    { CREATE_NODE(typed_elements, 3); }
    ;
typed_element_list
    : typed_element
    | typed_element_list T__COMMA typed_element                                 { CREATE_NODE(typed_element_list, 3); }
    ;
typed_element
    : column_name column_constraints                                            { CREATE_NODE(typed_element, 2); }
    | column_name T__WITH T__OPTIONS                                            { CREATE_NODE(typed_element, 3); }
    | column_name T__WITH T__OPTIONS column_constraints                         { CREATE_NODE(typed_element, 4); }
    | column_name
    | table_constraint
    ;

column_definition
    : column_name type_name                                                     { CREATE_NODE(column_definition, 2); }
    | column_name type_name column_constraints                                  { CREATE_NODE(column_definition, 3); }
    | column_name type_name column_options                                      { CREATE_NODE(column_definition, 3); }
    | column_name type_name column_options column_constraints                   { CREATE_NODE(column_definition, 4); }
    ;
column_options
    : T__COMPRESSION column_name                                                { CREATE_NODE(column_options, 2); }
    | T__COMPRESSION T__DEFAULT                                                 { CREATE_NODE(column_options, 2); }
    | generic_options
    | T__COMPRESSION column_name generic_options                                { CREATE_NODE(column_options, 3); }
    | T__COMPRESSION T__DEFAULT generic_options                                 { CREATE_NODE(column_options, 3); }
    ;
column_constraints
    : column_constraint
    | column_constraints column_constraint                                      { CREATE_NODE(column_constraints, 2); }
    ;
column_constraint
    : T__CONSTRAINT column_name column_constraint_body                          { CREATE_NODE(column_constraint, 3); }
    | column_constraint_body
    | constraint_attribute
    | T__COLLATE qualified_name                                                 { CREATE_NODE(column_constraint, 2); }
    ;
column_constraint_body
    : T__NOT T__NULL                                                            { CREATE_NODE(column_constraint_body, 2); }
    | T__NULL
    | T__UNIQUE
    | T__UNIQUE index_parameters                                                { CREATE_NODE(column_constraint_body, 2); }
    | T__UNIQUE nulls_distinct                                                  { CREATE_NODE(column_constraint_body, 2); }
    | T__UNIQUE nulls_distinct index_parameters                                 { CREATE_NODE(column_constraint_body, 3); }
    | T__PRIMARY T__KEY                                                         { CREATE_NODE(column_constraint_body, 2); }
    | T__PRIMARY T__KEY index_parameters                                        { CREATE_NODE(column_constraint_body, 3); }
    | T__CHECK T__LPAREN expression T__RPAREN                                   { CREATE_NODE(column_constraint_body, 4); }
    | T__CHECK T__LPAREN expression T__RPAREN T__NO T__INHERIT                  { CREATE_NODE(column_constraint_body, 6); }
    | T__DEFAULT restricted_expression                                          { CREATE_NODE(column_constraint_body, 2); }
    | T__GENERATED generated_when T__AS T__IDENTITY                             { CREATE_NODE(column_constraint_body, 4); }
    | T__GENERATED generated_when T__AS T__IDENTITY T__LPAREN sequence_options T__RPAREN
      { CREATE_NODE(column_constraint_body, 7); }
    | T__GENERATED generated_when T__AS T__LPAREN expression T__RPAREN T__STORED
      { CREATE_NODE(column_constraint_body, 7); }
    | references_clause
    ;
generated_when
    : T__ALWAYS
    | T__BY T__DEFAULT                                                          { CREATE_NODE(generated_when, 2); }
    ;
nulls_distinct
    : T__NULLS T__NOT T__DISTINCT                                               { CREATE_NODE(nulls_distinct, 3); }
    | T__NULLS T__DISTINCT                                                      { CREATE_NODE(nulls_distinct, 2); }
    ;
index_parameters
    : T__WITH parenthesized_definitions                                         { CREATE_NODE(index_parameters, 2); }
    | index_tablespace
    | T__WITH parenthesized_definitions index_tablespace                        { CREATE_NODE(index_parameters, 3); }
    ;
index_tablespace
    : T__USING T__INDEX T__TABLESPACE column_name                               { CREATE_NODE(index_tablespace, 4); }
    ;
references_clause
    : T__REFERENCES qualified_name                                              { CREATE_NODE(references_clause, 2); }
    | T__REFERENCES qualified_name parenthesized_names                          { CREATE_NODE(references_clause, 3); }
    | T__REFERENCES qualified_name reference_options                            { CREATE_NODE(references_clause, 3); }
    | T__REFERENCES qualified_name parenthesized_names reference_options        { CREATE_NODE(references_clause, 4); }
    ;
reference_options
    : reference_option
    | reference_options reference_option                                        { CREATE_NODE(reference_options, 2); }
    ;
reference_option
    : T__MATCH T__FULL                                                          { CREATE_NODE(reference_option, 2); }
    | T__MATCH T__PARTIAL                                                       { CREATE_NODE(reference_option, 2); }
    | T__MATCH T__SIMPLE                                                        { CREATE_NODE(reference_option, 2); }
    | T__ON T__UPDATE reference_action                                          { CREATE_NODE(reference_option, 3); }
    | T__ON T__DELETE reference_action                                          { CREATE_NODE(reference_option, 3); }
    ;
reference_action
    : T__NO T__ACTION                                                           { CREATE_NODE(reference_action, 2); }
    | T__RESTRICT
    | T__CASCADE
    | T__SET T__NULL                                                            { CREATE_NODE(reference_action, 2); }
    | T__SET T__DEFAULT                                                         { CREATE_NODE(reference_action, 2); }
    | T__SET T__NULL parenthesized_names                                        { CREATE_NODE(reference_action, 3); }
    | T__SET T__DEFAULT parenthesized_names                                     { CREATE_NODE(reference_action, 3); }
    ;
constraint_attribute
    : T__DEFERRABLE
    | T__NOT T__DEFERRABLE                                                      { CREATE_NODE(constraint_attribute, 2); }
    | T__INITIALLY T__DEFERRED                                                  { CREATE_NODE(constraint_attribute, 2); }
    | T__INITIALLY T__IMMEDIATE                                                 { CREATE_NODE(constraint_attribute, 2); }
    ;

table_constraint
    : T__CONSTRAINT column_name table_constraint_body                           { CREATE_NODE(table_constraint, 3); }
    | table_constraint_body
    ;
table_constraint_body
    : T__CHECK T__LPAREN expression T__RPAREN                                   { CREATE_NODE(table_constraint_body, 4); }
    | T__CHECK T__LPAREN expression T__RPAREN constraint_attributes             { CREATE_NODE(table_constraint_body, 5); }
    | T__UNIQUE key_columns                                                     { CREATE_NODE(table_constraint_body, 2); }
    | T__UNIQUE nulls_distinct key_columns                                      { CREATE_NODE(table_constraint_body, 3); }
    | T__PRIMARY T__KEY key_columns                                             { CREATE_NODE(table_constraint_body, 3); }
    | T__UNIQUE T__USING T__INDEX column_name                                   { CREATE_NODE(table_constraint_body, 4); }
    | T__UNIQUE T__USING T__INDEX column_name constraint_attributes             { CREATE_NODE(table_constraint_body, 5); }
    | T__PRIMARY T__KEY T__USING T__INDEX column_name                           { CREATE_NODE(table_constraint_body, 5); }
    | T__PRIMARY T__KEY T__USING T__INDEX column_name constraint_attributes     { CREATE_NODE(table_constraint_body, 6); }
    | T__EXCLUDE exclusion                                                      { CREATE_NODE(table_constraint_body, 2); }
    | T__FOREIGN T__KEY parenthesized_names references_clause                   { CREATE_NODE(table_constraint_body, 4); }
    | T__FOREIGN T__KEY parenthesized_names references_clause constraint_attributes
      { CREATE_NODE(table_constraint_body, 5); }
    ;
key_columns
    : parenthesized_names
    | parenthesized_names key_tail                                              { CREATE_NODE(key_columns, 2); }
    ;
key_tail
    : include_columns
    | include_columns key_tail_parameters                                       { CREATE_NODE(key_tail, 2); }
    | key_tail_parameters
    ;
key_tail_parameters
    : index_parameters
    | index_parameters constraint_attributes                                    { CREATE_NODE(key_tail_parameters, 2); }
    | constraint_attributes
    ;
include_columns
    : T__INCLUDE parenthesized_names                                            { CREATE_NODE(include_columns, 2); }
    ;
exclusion
    : T__LPAREN exclusion_list T__RPAREN                                        { CREATE_NODE(exclusion, 3); }
    | T__LPAREN exclusion_list T__RPAREN exclusion_tail                         { CREATE_NODE(exclusion, 4); }
    | T__USING column_name T__LPAREN exclusion_list T__RPAREN                   { CREATE_NODE(exclusion, 5); }
    | T__USING column_name T__LPAREN exclusion_list T__RPAREN exclusion_tail    { CREATE_NODE(exclusion, 6); }
    ;
exclusion_list
    : exclusion_item
    | exclusion_list T__COMMA exclusion_item                                    { CREATE_NODE(exclusion_list, 3); }
    ;
exclusion_item
    : index_element T__WITH any_operator                                        { CREATE_NODE(exclusion_item, 3); }
    | index_element T__WITH T__OPERATOR T__LPAREN any_operator T__RPAREN        { CREATE_NODE(exclusion_item, 6); }
    ;
exclusion_tail
    : include_columns
    | include_columns exclusion_tail_parameters                                 { CREATE_NODE(exclusion_tail, 2); }
    | exclusion_tail_parameters
    ;
exclusion_tail_parameters
    : index_parameters
    | index_parameters exclusion_tail_where                                     { CREATE_NODE(exclusion_tail_parameters, 2); }
    | exclusion_tail_where
    ;
exclusion_tail_where
    : T__WHERE T__LPAREN expression T__RPAREN                                   { CREATE_NODE(exclusion_tail_where, 4); }
    | T__WHERE T__LPAREN expression T__RPAREN constraint_attributes             { CREATE_NODE(exclusion_tail_where, 5); }
    | constraint_attributes
    ;
constraint_attributes
    : constraint_mark
    | constraint_attributes constraint_mark                                     { CREATE_NODE(constraint_attributes, 2); }
    ;
constraint_mark
    : constraint_attribute
    | T__NOT T__VALID                                                           { CREATE_NODE(constraint_mark, 2); }
    | T__NO T__INHERIT                                                          { CREATE_NODE(constraint_mark, 2); }
    ;

table_options
    : table_option
    | table_options table_option                                                { CREATE_NODE(table_options, 2); }
    ;
table_option
    : T__INHERITS T__LPAREN qualified_name_list T__RPAREN                       { CREATE_NODE(table_option, 4); }
    | T__PARTITION T__BY column_name T__LPAREN index_elements T__RPAREN         { CREATE_NODE(table_option, 6); }
    | T__USING column_name                                                      { CREATE_NODE(table_option, 2); }
    | T__WITH relation_options                                                  { CREATE_NODE(table_option, 2); }
    | T__WITHOUT T__OIDS                                                        { CREATE_NODE(table_option, 2); }
    | T__ON T__COMMIT T__DROP                                                   { CREATE_NODE(table_option, 3); }
    | T__ON T__COMMIT T__DELETE T__ROWS                                         { CREATE_NODE(table_option, 4); }
    | T__ON T__COMMIT T__PRESERVE T__ROWS                                       { CREATE_NODE(table_option, 4); }
    | T__TABLESPACE column_name                                                 { CREATE_NODE(table_option, 2); }
    ;
partition_bound
    : T__FOR T__VALUES T__WITH T__LPAREN hash_bounds T__RPAREN                  { CREATE_NODE(partition_bound, 6); }
    | T__FOR T__VALUES T__IN T__LPAREN expression_list T__RPAREN                { CREATE_NODE(partition_bound, 6); }
    | T__FOR T__VALUES T__FROM T__LPAREN expression_list T__RPAREN T__TO T__LPAREN expression_list T__RPAREN
      { CREATE_NODE(partition_bound, 10); }
    | T__DEFAULT
    ;
hash_bounds
    : hash_bound
    | hash_bounds T__COMMA hash_bound                                           { CREATE_NODE(hash_bounds, 3); }
    ;
hash_bound
    : non_reserved_word T__INTEGER_NUMBER                                       { CREATE_NODE(hash_bound, 2); }
    ;

/* ---- Indexed things ---- */

index_elements
    : index_element
    | index_elements T__COMMA index_element                                     { CREATE_NODE(index_elements, 3); }
    ;
index_element
    : index_key
    | index_key index_element_options                                           { CREATE_NODE(index_element, 2); }
    ;
index_key
    : column_name
    | plain_function
    | T__LPAREN expression T__RPAREN                                            { CREATE_NODE(index_key, 3); }
    ;
index_element_options
    : T__COLLATE qualified_name                                                 { CREATE_NODE(index_element_options, 2); }
    | T__COLLATE qualified_name index_class_part                                { CREATE_NODE(index_element_options, 3); }
    | index_class_part
    ;
index_class_part
    : qualified_name
    | qualified_name relation_options                                           { CREATE_NODE(index_class_part, 2); }
    | qualified_name index_order_part                                           { CREATE_NODE(index_class_part, 2); }
    | qualified_name relation_options index_order_part                          { CREATE_NODE(index_class_part, 3); }
    | index_order_part
    ;
index_order_part
    : index_direction
    | index_direction nulls_order                                               { CREATE_NODE(index_order_part, 2); }
    | nulls_order
    ;
index_direction
    : T__ASC
    | T__DESC
    ;

/* ---- Options ---- */

relation_options
    : T__LPAREN relation_option_list T__RPAREN                                  { CREATE_NODE(relation_options, 3); }
    ;
relation_option_list
    : relation_option
    | relation_option_list T__COMMA relation_option                             { CREATE_NODE(relation_option_list, 3); }
    ;
relation_option
    : any_label
    | any_label T__EQUAL definition_value                                       { CREATE_NODE(relation_option, 3); }
    | any_label T__DOT any_label                                                { CREATE_NODE(relation_option, 3); }
    | any_label T__DOT any_label T__EQUAL definition_value                      { CREATE_NODE(relation_option, 5); }
    ;

parenthesized_definitions
    : T__LPAREN definition_list T__RPAREN                                       { CREATE_NODE(parenthesized_definitions, 3); }
    ;
definition_list
    : definition_item
    | definition_list T__COMMA definition_item                                  { CREATE_NODE(definition_list, 3); }
    ;
definition_item
    : any_label
    | any_label T__EQUAL definition_value                                       { CREATE_NODE(definition_item, 3); }
    ;
definition_value
    : function_type
    | reserved_keyword
    | any_operator_symbol
    | T__OPERATOR T__LPAREN any_operator T__RPAREN                              { CREATE_NODE(definition_value, 4); }
    | signed_number
    | string_literal
    | T__NONE
    ;

/* A type as functions take it, that of a column included. */
function_type
    : type_name
    | dotted_type_name T__PERCENT T__TYPE                                       { CREATE_NODE(function_type, 3); }
    | T__SETOF dotted_type_name T__PERCENT T__TYPE                              { CREATE_NODE(function_type, 4); }
    ;

generic_options
    : T__OPTIONS T__LPAREN generic_option_list T__RPAREN                        { CREATE_NODE(generic_options, 4); }
    ;
generic_option_list
    : generic_option
    | generic_option_list T__COMMA generic_option                               { CREATE_NODE(generic_option_list, 3); }
    ;
generic_option
    : any_label string_literal                                                  { CREATE_NODE(generic_option, 2); }
    ;

sequence_options
    : sequence_option
    | sequence_options sequence_option                                          { CREATE_NODE(sequence_options, 2); }
    ;
sequence_option
    : T__AS simple_type                                                         { CREATE_NODE(sequence_option, 2); }
    | T__CACHE signed_number                                                    { CREATE_NODE(sequence_option, 2); }
    | T__CYCLE
    | T__NO T__CYCLE                                                            { CREATE_NODE(sequence_option, 2); }
    | T__INCREMENT signed_number                                                { CREATE_NODE(sequence_option, 2); }
    | T__INCREMENT T__BY signed_number                                          { CREATE_NODE(sequence_option, 3); }
    | T__MAXVALUE signed_number                                                 { CREATE_NODE(sequence_option, 2); }
    | T__NO T__MAXVALUE                                                         { CREATE_NODE(sequence_option, 2); }
    | T__MINVALUE signed_number                                                 { CREATE_NODE(sequence_option, 2); }
    | T__NO T__MINVALUE                                                         { CREATE_NODE(sequence_option, 2); }
    | T__OWNED T__BY qualified_name                                             { CREATE_NODE(sequence_option, 3); }
    | T__SEQUENCE T__NAME qualified_name                                        { CREATE_NODE(sequence_option, 3); }
    | T__START signed_number                                                    { CREATE_NODE(sequence_option, 2); }
    | T__START T__WITH signed_number                                            { CREATE_NODE(sequence_option, 3); }
    | T__RESTART
    | T__RESTART signed_number                                                  { CREATE_NODE(sequence_option, 2); }
    | T__RESTART T__WITH signed_number                                          { CREATE_NODE(sequence_option, 3); }
    ;

create_foreign_table
    : T__CREATE T__FOREIGN T__TABLE foreign_table_definition T__SERVER column_name
      { CREATE_NODE(create_foreign_table, 6); }
    | T__CREATE T__FOREIGN T__TABLE foreign_table_definition T__SERVER column_name generic_options
      { CREATE_NODE(create_foreign_table, 7); }
    ;
foreign_table_definition
    : new_name T__LPAREN T__RPAREN                                              { CREATE_NODE(foreign_table_definition, 3); }
    | new_name T__LPAREN table_elements T__RPAREN                               { CREATE_NODE(foreign_table_definition, 4); }
    | new_name T__LPAREN T__RPAREN inherits_clause                              { CREATE_NODE(foreign_table_definition, 4); }
    | new_name T__LPAREN table_elements T__RPAREN inherits_clause               { CREATE_NODE(foreign_table_definition, 5); }
    | new_name T__PARTITION T__OF qualified_name partition_bound                { CREATE_NODE(foreign_table_definition, 5); }
    | new_name T__PARTITION T__OF qualified_name typed_elements partition_bound
      { CREATE_NODE(foreign_table_definition, 6); }
    ;
inherits_clause
    : T__INHERITS T__LPAREN qualified_name_list T__RPAREN                       { CREATE_NODE(inherits_clause, 4); }
    ;

create_index
    : T__CREATE T__INDEX index_definition                                       { CREATE_NODE(create_index, 3); }
    | T__CREATE T__UNIQUE T__INDEX index_definition                             { CREATE_NODE(create_index, 4); }
    ;
index_definition
    : index_target
    | T__CONCURRENTLY index_target                                              { CREATE_NODE(index_definition, 2); }
    | new_name index_target                                                     { CREATE_NODE(index_definition, 2); }
    | T__CONCURRENTLY new_name index_target                                     { CREATE_NODE(index_definition, 3); }
    ;
index_target
    : T__ON relation index_columns                                              { CREATE_NODE(index_target, 3); }
    | T__ON relation index_columns index_clauses                                { CREATE_NODE(index_target, 4); }
    ;
index_columns
    : T__LPAREN index_elements T__RPAREN                                        { CREATE_NODE(index_columns, 3); }
    | T__USING column_name T__LPAREN index_elements T__RPAREN                   { CREATE_NODE(index_columns, 5); }
    ;
index_clauses
    : index_clause
    | index_clauses index_clause                                                { CREATE_NODE(index_clauses, 2); }
    ;
index_clause
    : T__INCLUDE T__LPAREN index_elements T__RPAREN                             { CREATE_NODE(index_clause, 4); }
    | nulls_distinct
    | T__WITH relation_options                                                  { CREATE_NODE(index_clause, 2); }
    | T__TABLESPACE column_name                                                 { CREATE_NODE(index_clause, 2); }
    | where_clause
    ;

create_view
    : T__CREATE view_definition                                                 { CREATE_NODE(create_view, 2); }
    | T__CREATE T__OR T__REPLACE view_definition                                { CREATE_NODE(create_view, 4); }
    | T__CREATE temporary view_definition                                       { CREATE_NODE(create_view, 3); }
    | T__CREATE T__OR T__REPLACE temporary view_definition                      { CREATE_NODE(create_view, 5); }
    ;
view_definition
    : T__VIEW qualified_name view_body                                          { CREATE_NODE(view_definition, 3); }
    | T__VIEW qualified_name parenthesized_names view_body                      { CREATE_NODE(view_definition, 4); }
    | T__RECURSIVE T__VIEW qualified_name parenthesized_names view_body         { CREATE_NODE(view_definition, 5); }
    ;
view_body
    : T__AS query                                                               { CREATE_NODE(view_body, 2); }
    | T__AS query check_option                                                  { CREATE_NODE(view_body, 3); }
    | T__WITH relation_options T__AS query                                      { CREATE_NODE(view_body, 4); }
    | T__WITH relation_options T__AS query check_option                         { CREATE_NODE(view_body, 5); }
    ;
check_option
    : T__WITH T__CHECK T__OPTION                                                { CREATE_NODE(check_option, 3); }
    | T__WITH T__CASCADED T__CHECK T__OPTION                                    { CREATE_NODE(check_option, 4); }
    | T__WITH T__LOCAL T__CHECK T__OPTION                                       { CREATE_NODE(check_option, 4); }
    ;

create_materialized_view
    : T__CREATE T__MATERIALIZED T__VIEW materialized_definition                 { CREATE_NODE(create_materialized_view, 4); }
    | T__CREATE T__UNLOGGED T__MATERIALIZED T__VIEW materialized_definition     { CREATE_NODE(create_materialized_view, 5); }
    ;
materialized_definition
    : new_name as_query                                                         { CREATE_NODE(materialized_definition, 2); }
    | new_name parenthesized_names as_query                                     { CREATE_NODE(materialized_definition, 3); }
    | new_name materialized_options as_query                                    { CREATE_NODE(materialized_definition, 3); }
    | new_name parenthesized_names materialized_options as_query                { CREATE_NODE(materialized_definition, 4); }
    ;
materialized_options
    : materialized_option
    | materialized_options materialized_option                                  { CREATE_NODE(materialized_options, 2); }
    ;
materialized_option
    : T__USING column_name                                                      { CREATE_NODE(materialized_option, 2); }
    | T__WITH relation_options                                                  { CREATE_NODE(materialized_option, 2); }
    | T__TABLESPACE column_name                                                 { CREATE_NODE(materialized_option, 2); }
    ;

create_sequence
    : T__CREATE T__SEQUENCE new_name                                            { CREATE_NODE(create_sequence, 3); }
    | T__CREATE T__SEQUENCE new_name sequence_options                           { CREATE_NODE(create_sequence, 4); }
    | T__CREATE temporary T__SEQUENCE new_name                                  { CREATE_NODE(create_sequence, 4); }
    | T__CREATE temporary T__SEQUENCE new_name sequence_options                 { CREATE_NODE(create_sequence, 5); }
    ;

/* ---- Routines ---- */

create_routine
    : T__CREATE routine_definition                                              { CREATE_NODE(create_routine, 2); }
    | T__CREATE T__OR T__REPLACE routine_definition                             { CREATE_NODE(create_routine, 4); }
    ;
routine_definition
    : routine_word function_name parameter_list                                 { CREATE_NODE(routine_definition, 3); }
    | routine_word function_name parameter_list routine_items                   { CREATE_NODE(routine_definition, 4); }
    | routine_word function_name parameter_list routine_body                    { CREATE_NODE(routine_definition, 4); }
    | routine_word function_name parameter_list routine_items routine_body      { CREATE_NODE(routine_definition, 5); }
    ;
routine_word
    : T__FUNCTION
    | T__PROCEDURE
    ;
parameter_list
    : T__LPAREN T__RPAREN                                                       { CREATE_NODE(parameter_list, 2); }
    | T__LPAREN parameters T__RPAREN                                            { CREATE_NODE(parameter_list, 3); }
    ;
parameters
    : parameter
    | parameters T__COMMA parameter                                             { CREATE_NODE(parameters, 3); }
    ;
parameter
    : plain_parameter
    | plain_parameter T__DEFAULT expression                                     { CREATE_NODE(parameter, 3); }
    | plain_parameter T__EQUAL expression                                       { CREATE_NODE(parameter, 3); }
    ;
plain_parameter
    : function_type
    | type_function_name function_type                                          { CREATE_NODE(plain_parameter, 2); }
    | parameter_mode function_type                                              { CREATE_NODE(plain_parameter, 2); }
    | parameter_mode type_function_name function_type                           { CREATE_NODE(plain_parameter, 3); }
    | type_function_name parameter_mode function_type                           { CREATE_NODE(plain_parameter, 3); }
    ;
parameter_mode
    : T__IN
    | T__OUT
    | T__INOUT
    | T__IN T__OUT                                                              { CREATE_NODE(parameter_mode, 2); }
    | T__VARIADIC
    ;
routine_items
    : routine_item
    | routine_items routine_item                                                { CREATE_NODE(routine_items, 2); }
    ;
routine_item
    : T__RETURNS function_type                                                  { CREATE_NODE(routine_item, 2); }
    | T__RETURNS T__TABLE T__LPAREN returned_columns T__RPAREN                  { CREATE_NODE(routine_item, 5); }
    | T__AS string_literal                                                      { CREATE_NODE(routine_item, 2); }
    | T__AS string_literal T__COMMA string_literal                              { CREATE_NODE(routine_item, 4); }
    | T__LANGUAGE non_reserved_word                                             { CREATE_NODE(routine_item, 2); }
    | T__LANGUAGE string_literal                                                { CREATE_NODE(routine_item, 2); }
    | T__TRANSFORM transform_types                                              { CREATE_NODE(routine_item, 2); }
    | T__WINDOW
    | routine_attribute
    ;
returned_columns
    : returned_column
    | returned_columns T__COMMA returned_column                                 { CREATE_NODE(returned_columns, 3); }
    ;
returned_column
    : type_function_name function_type                                          { CREATE_NODE(returned_column, 2); }
    ;
transform_types
    : T__FOR T__TYPE type_name                                                  { CREATE_NODE(transform_types, 3); }
    | transform_types T__COMMA T__FOR T__TYPE type_name                         { CREATE_NODE(transform_types, 5); }
    ;
routine_attributes
    : routine_attribute
    | routine_attributes routine_attribute                                      { CREATE_NODE(routine_attributes, 2); }
    ;
routine_attribute
    : T__CALLED T__ON T__NULL T__INPUT                                          { CREATE_NODE(routine_attribute, 4); }
    | T__RETURNS T__NULL T__ON T__NULL T__INPUT                                 { CREATE_NODE(routine_attribute, 5); }
    | T__STRICT
    | T__IMMUTABLE
    | T__STABLE
    | T__VOLATILE
    | T__SECURITY T__DEFINER                                                    { CREATE_NODE(routine_attribute, 2); }
    | T__SECURITY T__INVOKER                                                    { CREATE_NODE(routine_attribute, 2); }
    | T__EXTERNAL T__SECURITY T__DEFINER                                        { CREATE_NODE(routine_attribute, 3); }
    | T__EXTERNAL T__SECURITY T__INVOKER                                        { CREATE_NODE(routine_attribute, 3); }
    | T__LEAKPROOF
    | T__NOT T__LEAKPROOF                                                       { CREATE_NODE(routine_attribute, 2); }
    | T__COST signed_number                                                     { CREATE_NODE(routine_attribute, 2); }
    | T__ROWS signed_number                                                     { CREATE_NODE(routine_attribute, 2); }
    | T__SUPPORT qualified_name                                                 { CREATE_NODE(routine_attribute, 2); }
    | T__SET set_item_more                                                      { CREATE_NODE(routine_attribute, 2); }
    | T__RESET reset_target                                                     { CREATE_NODE(routine_attribute, 2); }
    | T__PARALLEL column_name                                                   { CREATE_NODE(routine_attribute, 2); }
    ;
routine_body
    : return_statement
    | T__BEGIN T__ATOMIC T__END                                                 { CREATE_NODE(routine_body, 3); }
    | T__BEGIN T__ATOMIC body_pl_sql_statements T__END                          { CREATE_NODE(routine_body, 4); }
    | T__BEGIN T__ATOMIC error T__END                                           { CREATE_NODE_WITH_ERROR(routine_body, 4, 2); }
    | T__BEGIN T__ATOMIC body_pl_sql_statements error T__END                    { CREATE_NODE_WITH_ERROR(routine_body, 5, 3); }
    | T__BEGIN T__ATOMIC error %prec LOWEST                                     { CREATE_NODE_WITH_ERROR(routine_body, 3, 2); }
    | T__BEGIN T__ATOMIC body_pl_sql_statements error %prec LOWEST              { CREATE_NODE_WITH_ERROR(routine_body, 4, 3); }
    ;
return_statement
    : T__RETURN expression                                                      { CREATE_NODE(return_statement, 2); }
    ;
body_pl_sql_statements
    : delimited_body_statement                                                  { CREATE_NODE(body_pl_sql_statements, 1); }
    | body_pl_sql_statements delimited_body_statement                           { CREATE_NODE(body_pl_sql_statements, 2); }
    ;
delimited_body_statement
    : body_statement pl_sql_statement_delimiter                                 { CREATE_NODE(delimited_pl_sql_statement, 2); }
    | pl_sql_statement_delimiter                                                { CREATE_NODE(delimited_pl_sql_statement, 1); }
    | error pl_sql_statement_delimiter                                          { CREATE_NODE_WITH_ERROR(delimited_pl_sql_statement, 2, 0); }
    ;
body_statement
    : statement                                                                 { CREATE_NODE(pl_sql_statement, 1); }
    | return_statement                                                          { CREATE_NODE(pl_sql_statement, 1); }
    ;

/* A routine as other statements point at it. */
routine_signature
    : function_name parameter_list                                              { CREATE_NODE(routine_signature, 2); }
    | qualified_name
    | type_function_name_keyword                                                { CREATE_NODE(sql_identifier, 1); }
    ;
routine_signatures
    : routine_signature
    | routine_signatures T__COMMA routine_signature                             { CREATE_NODE(routine_signatures, 3); }
    ;
aggregate_signature
    : function_name aggregate_parameters                                        { CREATE_NODE(aggregate_signature, 2); }
    ;
aggregate_signatures
    : aggregate_signature
    | aggregate_signatures T__COMMA aggregate_signature                         { CREATE_NODE(aggregate_signatures, 3); }
    ;
aggregate_parameters
    : T__LPAREN T__ASTERISK T__RPAREN                                           { CREATE_NODE(aggregate_parameters, 3); }
    | T__LPAREN plain_parameters T__RPAREN                                      { CREATE_NODE(aggregate_parameters, 3); }
    | T__LPAREN T__ORDER T__BY plain_parameters T__RPAREN                       { CREATE_NODE(aggregate_parameters, 5); }
    | T__LPAREN plain_parameters T__ORDER T__BY plain_parameters T__RPAREN      { CREATE_NODE(aggregate_parameters, 6); }
    ;
plain_parameters
    : plain_parameter
    | plain_parameters T__COMMA plain_parameter                                 { CREATE_NODE(plain_parameters, 3); }
    ;
operator_signature
    : any_operator operator_operands                                            { CREATE_NODE(operator_signature, 2); }
    ;
operator_signatures
    : operator_signature
    | operator_signatures T__COMMA operator_signature                           { CREATE_NODE(operator_signatures, 3); }
    ;
operator_operands
    : T__LPAREN type_name T__RPAREN                                             { CREATE_NODE(operator_operands, 3); }
    | T__LPAREN type_name T__COMMA type_name T__RPAREN                          { CREATE_NODE(operator_operands, 5); }
    | T__LPAREN T__NONE T__COMMA type_name T__RPAREN                            { CREATE_NODE(operator_operands, 5); }
    | T__LPAREN type_name T__COMMA T__NONE T__RPAREN                            { CREATE_NODE(operator_operands, 5); }
    ;

/* ---- Triggers, rules, policies ---- */

create_trigger
    : T__CREATE trigger_definition                                              { CREATE_NODE(create_trigger, 2); }
    | T__CREATE T__OR T__REPLACE trigger_definition                             { CREATE_NODE(create_trigger, 4); }
    | T__CREATE T__CONSTRAINT trigger_definition                                { CREATE_NODE(create_trigger, 3); }
    | T__CREATE T__OR T__REPLACE T__CONSTRAINT trigger_definition               { CREATE_NODE(create_trigger, 5); }
    ;
trigger_definition
    : T__TRIGGER column_name trigger_time trigger_events T__ON qualified_name trigger_action
      { CREATE_NODE(trigger_definition, 7); }
    | T__TRIGGER column_name trigger_time trigger_events T__ON qualified_name trigger_clauses trigger_action
      { CREATE_NODE(trigger_definition, 8); }
    ;
trigger_time
    : T__BEFORE
    | T__AFTER
    | T__INSTEAD T__OF                                                          { CREATE_NODE(trigger_time, 2); }
    ;
trigger_events
    : trigger_event
    | trigger_events T__OR trigger_event                                        { CREATE_NODE(trigger_events, 3); }
    ;
trigger_event
    : T__INSERT
    | T__DELETE
    | T__UPDATE
    | T__UPDATE T__OF name_list                                                 { CREATE_NODE(trigger_event, 3); }
    | T__TRUNCATE
    ;
trigger_clauses
    : trigger_clause
    | trigger_clauses trigger_clause                                            { CREATE_NODE(trigger_clauses, 2); }
    ;
trigger_clause
    : T__FROM qualified_name                                                    { CREATE_NODE(trigger_clause, 2); }
    | constraint_attribute
    | T__REFERENCING transition_tables                                          { CREATE_NODE(trigger_clause, 2); }
    | T__FOR trigger_level                                                      { CREATE_NODE(trigger_clause, 2); }
    | T__FOR T__EACH trigger_level                                              { CREATE_NODE(trigger_clause, 3); }
    | T__WHEN T__LPAREN expression T__RPAREN                                    { CREATE_NODE(trigger_clause, 4); }
    ;
trigger_level
    : T__ROW
    | T__STATEMENT
    ;
transition_tables
    : transition_table
    | transition_tables transition_table                                        { CREATE_NODE(transition_tables, 2); }
    ;
transition_table
    : old_or_new T__TABLE column_name                                           { CREATE_NODE(transition_table, 3); }
    | old_or_new T__TABLE T__AS column_name                                     { CREATE_NODE(transition_table, 4); }
    | old_or_new T__ROW column_name                                             { CREATE_NODE(transition_table, 3); }
    | old_or_new T__ROW T__AS column_name                                       { CREATE_NODE(transition_table, 4); }
    ;
old_or_new
    : T__OLD
    | T__NEW
    ;
trigger_action
    : T__EXECUTE T__FUNCTION function_name T__LPAREN T__RPAREN                  { CREATE_NODE(trigger_action, 5); }
    | T__EXECUTE T__FUNCTION function_name T__LPAREN trigger_arguments T__RPAREN  { CREATE_NODE(trigger_action, 6); }
    | T__EXECUTE T__PROCEDURE function_name T__LPAREN T__RPAREN                 { CREATE_NODE(trigger_action, 5); }
    | T__EXECUTE T__PROCEDURE function_name T__LPAREN trigger_arguments T__RPAREN  { CREATE_NODE(trigger_action, 6); }
    ;
trigger_arguments
    : trigger_argument
    | trigger_arguments T__COMMA trigger_argument                               { CREATE_NODE(trigger_arguments, 3); }
    ;
trigger_argument
    : number
    | string_literal
    | any_label
    ;

create_event_trigger
    : T__CREATE T__EVENT T__TRIGGER column_name T__ON any_label event_trigger_action
      { CREATE_NODE(create_event_trigger, 7); }
    | T__CREATE T__EVENT T__TRIGGER column_name T__ON any_label T__WHEN event_conditions
      event_trigger_action                                                      { CREATE_NODE(create_event_trigger, 9); }
    ;
event_trigger_action
    : T__EXECUTE T__FUNCTION function_name T__LPAREN T__RPAREN                  { CREATE_NODE(event_trigger_action, 5); }
    | T__EXECUTE T__PROCEDURE function_name T__LPAREN T__RPAREN                 { CREATE_NODE(event_trigger_action, 5); }
    ;
event_conditions
    : event_condition
    | event_conditions T__AND event_condition                                   { CREATE_NODE(event_conditions, 3); }
    ;
event_condition
    : column_name T__IN T__LPAREN string_list T__RPAREN                         { CREATE_NODE(event_condition, 5); }
    ;
string_list
    : string_literal
    | string_list T__COMMA string_literal                                       { CREATE_NODE(string_list, 3); }
    ;

create_rule
    : T__CREATE rule_definition                                                 { CREATE_NODE(create_rule, 2); }
    | T__CREATE T__OR T__REPLACE rule_definition                                { CREATE_NODE(create_rule, 4); }
    ;
rule_definition
    : T__RULE column_name T__AS T__ON rule_event T__TO qualified_name T__DO rule_actions
      { CREATE_NODE(rule_definition, 9); }
    | T__RULE column_name T__AS T__ON rule_event T__TO qualified_name where_clause T__DO rule_actions
      { CREATE_NODE(rule_definition, 10); }
    ;
rule_event
    : T__SELECT
    | T__UPDATE
    | T__DELETE
    | T__INSERT
    ;
rule_actions
    : rule_action
    | T__INSTEAD rule_action                                                    { CREATE_NODE(rule_actions, 2); }
    | T__ALSO rule_action                                                       { CREATE_NODE(rule_actions, 2); }
    ;
rule_action
    : T__NOTHING
    | rule_statement
    | T__LPAREN T__RPAREN                                                       { CREATE_NODE(rule_action, 2); }
    | T__LPAREN rule_statements T__RPAREN                                       { CREATE_NODE(rule_action, 3); }
    ;
rule_statements
    : rule_statement
    | T__SEMICOLON
    | T__SEMICOLON rule_statement                                               { CREATE_NODE(rule_statements, 2); }
    | rule_statements T__SEMICOLON                                              { CREATE_NODE(rule_statements, 2); }
    | rule_statements T__SEMICOLON rule_statement                               { CREATE_NODE(rule_statements, 3); }
    ;
rule_statement
    : preparable_statement
    | notify_statement
    ;

create_policy
    : T__CREATE T__POLICY column_name T__ON qualified_name                      { CREATE_NODE(create_policy, 5); }
    | T__CREATE T__POLICY column_name T__ON qualified_name policy_clauses       { CREATE_NODE(create_policy, 6); }
    ;
policy_clauses
    : policy_clause
    | policy_clauses policy_clause                                              { CREATE_NODE(policy_clauses, 2); }
    ;
policy_clause
    : T__AS plain_identifier                                                    { CREATE_NODE(policy_clause, 2); }
    | T__FOR policy_command                                                     { CREATE_NODE(policy_clause, 2); }
    | T__TO role_list                                                           { CREATE_NODE(policy_clause, 2); }
    | T__USING T__LPAREN expression T__RPAREN                                   { CREATE_NODE(policy_clause, 4); }
    | T__WITH T__CHECK T__LPAREN expression T__RPAREN                           { CREATE_NODE(policy_clause, 5); }
    ;
policy_command
    : T__ALL
    | T__SELECT
    | T__INSERT
    | T__UPDATE
    | T__DELETE
    ;

/* ---- Schemas, roles, databases ---- */

create_schema
    : T__CREATE T__SCHEMA schema_name                                           { CREATE_NODE(create_schema, 3); }
    | T__CREATE T__SCHEMA schema_name schema_elements                           { CREATE_NODE(create_schema, 4); }
    ;
schema_name
    : new_name
    | new_name T__AUTHORIZATION role                                            { CREATE_NODE(schema_name, 3); }
    | T__AUTHORIZATION role                                                     { CREATE_NODE(schema_name, 2); }
    | T__IF T__NOT T__EXISTS T__AUTHORIZATION role                              { CREATE_NODE(schema_name, 5); }
    ;
schema_elements
    : schema_element
    | schema_elements schema_element                                            { CREATE_NODE(schema_elements, 2); }
    ;
schema_element
    : create_table
    | create_index
    | create_sequence
    | create_trigger
    | create_view
    | grant_statement
    ;

role
    : non_reserved_word
    | T__CURRENT_ROLE
    | T__CURRENT_USER
    | T__SESSION_USER
    ;
role_list
    : role
    | role_list T__COMMA role                                                   { CREATE_NODE(role_list, 3); }
    ;
create_role
    : T__CREATE role_or_group role                                              { CREATE_NODE(create_role, 3); }
    | T__CREATE T__USER role                                                    { CREATE_NODE(create_role, 3); }
    | T__CREATE role_or_group role role_options                                 { CREATE_NODE(create_role, 4); }
    | T__CREATE T__USER role role_options                                       { CREATE_NODE(create_role, 4); }
    | T__CREATE role_or_group role T__WITH                                      { CREATE_NODE(create_role, 4); }
    | T__CREATE T__USER role T__WITH                                            { CREATE_NODE(create_role, 4); }
    | T__CREATE role_or_group role T__WITH role_options                         { CREATE_NODE(create_role, 5); }
    | T__CREATE T__USER role T__WITH role_options                               { CREATE_NODE(create_role, 5); }
    ;
role_or_group
    : T__ROLE
    | T__GROUP
    ;
role_options
    : role_option
    | role_options role_option                                                  { CREATE_NODE(role_options, 2); }
    ;
role_option
    : T__PASSWORD string_literal                                                { CREATE_NODE(role_option, 2); }
    | T__PASSWORD T__NULL                                                       { CREATE_NODE(role_option, 2); }
    | T__ENCRYPTED T__PASSWORD string_literal                                   { CREATE_NODE(role_option, 3); }
    | T__UNENCRYPTED T__PASSWORD string_literal                                 { CREATE_NODE(role_option, 3); }
    | T__INHERIT
    | T__CONNECTION T__LIMIT signed_integer                                     { CREATE_NODE(role_option, 3); }
    | T__VALID T__UNTIL string_literal                                          { CREATE_NODE(role_option, 3); }
    | T__USER role_list                                                         { CREATE_NODE(role_option, 2); }
    | plain_identifier
    | T__SYSID T__INTEGER_NUMBER                                                { CREATE_NODE(role_option, 2); }
    | T__ADMIN role_list                                                        { CREATE_NODE(role_option, 2); }
    | T__ROLE role_list                                                         { CREATE_NODE(role_option, 2); }
    | T__IN T__ROLE role_list                                                   { CREATE_NODE(role_option, 3); }
    | T__IN T__GROUP role_list                                                  { CREATE_NODE(role_option, 3); }
    ;

create_database
    : T__CREATE T__DATABASE column_name                                         { CREATE_NODE(create_database, 3); }
    | T__CREATE T__DATABASE column_name database_options                        { CREATE_NODE(create_database, 4); }
    | T__CREATE T__DATABASE column_name T__WITH                                 { CREATE_NODE(create_database, 4); }
    | T__CREATE T__DATABASE column_name T__WITH database_options                { CREATE_NODE(create_database, 5); }
    ;
database_options
    : database_option
    | database_options database_option                                          { CREATE_NODE(database_options, 2); }
    ;
database_option
    : database_option_name database_option_value                                { CREATE_NODE(database_option, 2); }
    | database_option_name T__EQUAL database_option_value                       { CREATE_NODE(database_option, 3); }
    ;
database_option_name
    : plain_identifier
    | T__CONNECTION T__LIMIT                                                    { CREATE_NODE(database_option_name, 2); }
    | T__ENCODING
    | T__LOCATION
    | T__OWNER
    | T__TABLESPACE
    | T__TEMPLATE
    ;
database_option_value
    : signed_number
    | option_text
    | T__DEFAULT
    ;
/* A value of an option: a word or a string. */
option_text
    : T__TRUE
    | T__FALSE
    | T__ON
    | non_reserved_word
    | string_literal
    ;

create_tablespace
    : T__CREATE T__TABLESPACE column_name T__LOCATION string_literal            { CREATE_NODE(create_tablespace, 5); }
    | T__CREATE T__TABLESPACE column_name T__LOCATION string_literal T__WITH relation_options
      { CREATE_NODE(create_tablespace, 7); }
    | T__CREATE T__TABLESPACE column_name T__OWNER role T__LOCATION string_literal
      { CREATE_NODE(create_tablespace, 7); }
    | T__CREATE T__TABLESPACE column_name T__OWNER role T__LOCATION string_literal T__WITH relation_options
      { CREATE_NODE(create_tablespace, 9); }
    ;

create_extension
    : T__CREATE T__EXTENSION new_name                                           { CREATE_NODE(create_extension, 3); }
    | T__CREATE T__EXTENSION new_name extension_options                         { CREATE_NODE(create_extension, 4); }
    | T__CREATE T__EXTENSION new_name T__WITH                                   { CREATE_NODE(create_extension, 4); }
    | T__CREATE T__EXTENSION new_name T__WITH extension_options                 { CREATE_NODE(create_extension, 5); }
    ;
extension_options
    : extension_option
    | extension_options extension_option                                        { CREATE_NODE(extension_options, 2); }
    ;
extension_option
    : T__SCHEMA column_name                                                     { CREATE_NODE(extension_option, 2); }
    | T__VERSION word_or_string                                                 { CREATE_NODE(extension_option, 2); }
    | T__FROM word_or_string                                                    { CREATE_NODE(extension_option, 2); }
    | T__CASCADE
    ;
word_or_string
    : non_reserved_word
    | string_literal
    ;

create_language
    : T__CREATE language_definition                                             { CREATE_NODE(create_language, 2); }
    | T__CREATE T__OR T__REPLACE language_definition                            { CREATE_NODE(create_language, 4); }
    ;
language_definition
    : language_words column_name                                                { CREATE_NODE(language_definition, 2); }
    | language_words column_name T__HANDLER qualified_name                      { CREATE_NODE(language_definition, 4); }
    | language_words column_name T__HANDLER qualified_name language_handlers    { CREATE_NODE(language_definition, 5); }
    ;
language_words
    : T__LANGUAGE
    | T__PROCEDURAL T__LANGUAGE                                                 { CREATE_NODE(language_words, 2); }
    | T__TRUSTED T__LANGUAGE                                                    { CREATE_NODE(language_words, 2); }
    | T__TRUSTED T__PROCEDURAL T__LANGUAGE                                      { CREATE_NODE(language_words, 3); }
    ;
language_handlers
    : T__INLINE qualified_name                                                  { CREATE_NODE(language_handlers, 2); }
    | language_validator
    | T__INLINE qualified_name language_validator                               { CREATE_NODE(language_handlers, 3); }
    ;
language_validator
    : T__VALIDATOR qualified_name                                               { CREATE_NODE(language_validator, 2); }
    | T__NO T__VALIDATOR                                                        { CREATE_NODE(language_validator, 2); }
    ;

/* ---- Replication ---- */

create_publication
    : T__CREATE T__PUBLICATION column_name                                      { CREATE_NODE(create_publication, 3); }
    | T__CREATE T__PUBLICATION column_name publication_content                  { CREATE_NODE(create_publication, 4); }
    | T__CREATE T__PUBLICATION column_name T__WITH parenthesized_definitions    { CREATE_NODE(create_publication, 5); }
    | T__CREATE T__PUBLICATION column_name publication_content T__WITH parenthesized_definitions
      { CREATE_NODE(create_publication, 6); }
    ;
publication_content
    : T__FOR T__ALL T__TABLES                                                   { CREATE_NODE(publication_content, 3); }
    | T__FOR publication_objects                                                { CREATE_NODE(publication_content, 2); }
    ;
publication_objects
    : publication_object
    | publication_objects T__COMMA publication_object                           { CREATE_NODE(publication_objects, 3); }
    ;
publication_object
    : T__TABLE published_relation                                               { CREATE_NODE(publication_object, 2); }
    | T__TABLES T__IN T__SCHEMA column_name                                     { CREATE_NODE(publication_object, 4); }
    | T__TABLES T__IN T__SCHEMA T__CURRENT_SCHEMA                               { CREATE_NODE(publication_object, 4); }
    | published_relation
    | T__CURRENT_SCHEMA
    ;
published_relation
    : relation
    | relation parenthesized_names                                              { CREATE_NODE(published_relation, 2); }
    | relation T__WHERE T__LPAREN expression T__RPAREN                          { CREATE_NODE(published_relation, 5); }
    | relation parenthesized_names T__WHERE T__LPAREN expression T__RPAREN      { CREATE_NODE(published_relation, 6); }
    ;

create_subscription
    : T__CREATE T__SUBSCRIPTION column_name T__CONNECTION string_literal T__PUBLICATION name_list
      { CREATE_NODE(create_subscription, 7); }
    | T__CREATE T__SUBSCRIPTION column_name T__CONNECTION string_literal T__PUBLICATION name_list T__WITH
      parenthesized_definitions                                                 { CREATE_NODE(create_subscription, 9); }
    ;

/* ---- Foreign data ---- */

create_foreign_object
    : T__CREATE T__FOREIGN T__DATA T__WRAPPER column_name                       { CREATE_NODE(create_foreign_object, 5); }
    | T__CREATE T__FOREIGN T__DATA T__WRAPPER column_name wrapper_options       { CREATE_NODE(create_foreign_object, 6); }
    | T__CREATE T__FOREIGN T__DATA T__WRAPPER column_name generic_options       { CREATE_NODE(create_foreign_object, 6); }
    | T__CREATE T__FOREIGN T__DATA T__WRAPPER column_name wrapper_options generic_options
      { CREATE_NODE(create_foreign_object, 7); }
    | T__CREATE T__SERVER new_name server_clauses                               { CREATE_NODE(create_foreign_object, 4); }
    | T__CREATE T__SERVER new_name server_clauses generic_options               { CREATE_NODE(create_foreign_object, 5); }
    | T__CREATE T__USER T__MAPPING T__FOR mapped_user T__SERVER column_name     { CREATE_NODE(create_foreign_object, 7); }
    | T__CREATE T__USER T__MAPPING T__FOR mapped_user T__SERVER column_name generic_options
      { CREATE_NODE(create_foreign_object, 8); }
    | T__CREATE T__USER T__MAPPING T__IF T__NOT T__EXISTS T__FOR mapped_user T__SERVER column_name
      { CREATE_NODE(create_foreign_object, 10); }
    | T__CREATE T__USER T__MAPPING T__IF T__NOT T__EXISTS T__FOR mapped_user T__SERVER column_name
      generic_options                                                           { CREATE_NODE(create_foreign_object, 11); }
    ;
wrapper_options
    : wrapper_option
    | wrapper_options wrapper_option                                            { CREATE_NODE(wrapper_options, 2); }
    ;
wrapper_option
    : T__HANDLER qualified_name                                                 { CREATE_NODE(wrapper_option, 2); }
    | T__NO T__HANDLER                                                          { CREATE_NODE(wrapper_option, 2); }
    | T__VALIDATOR qualified_name                                               { CREATE_NODE(wrapper_option, 2); }
    | T__NO T__VALIDATOR                                                        { CREATE_NODE(wrapper_option, 2); }
    ;
server_clauses
    : server_wrapper
    | T__TYPE string_literal server_wrapper                                     { CREATE_NODE(server_clauses, 3); }
    | server_version server_wrapper                                             { CREATE_NODE(server_clauses, 2); }
    | T__TYPE string_literal server_version server_wrapper                      { CREATE_NODE(server_clauses, 4); }
    ;
server_version
    : T__VERSION string_literal                                                 { CREATE_NODE(server_version, 2); }
    | T__VERSION T__NULL                                                        { CREATE_NODE(server_version, 2); }
    ;
server_wrapper
    : T__FOREIGN T__DATA T__WRAPPER column_name                                 { CREATE_NODE(server_wrapper, 4); }
    ;
mapped_user
    : role
    | T__USER
    ;

import_foreign_schema
    : T__IMPORT T__FOREIGN T__SCHEMA column_name T__FROM T__SERVER column_name T__INTO column_name
      { CREATE_NODE(import_foreign_schema, 9); }
    | T__IMPORT T__FOREIGN T__SCHEMA column_name T__FROM T__SERVER column_name T__INTO column_name
      generic_options                                                           { CREATE_NODE(import_foreign_schema, 10); }
    | T__IMPORT T__FOREIGN T__SCHEMA column_name import_filter T__FROM T__SERVER column_name T__INTO
      column_name                                                               { CREATE_NODE(import_foreign_schema, 10); }
    | T__IMPORT T__FOREIGN T__SCHEMA column_name import_filter T__FROM T__SERVER column_name T__INTO
      column_name generic_options                                               { CREATE_NODE(import_foreign_schema, 11); }
    ;
import_filter
    : T__LIMIT T__TO T__LPAREN relation_list T__RPAREN                          { CREATE_NODE(import_filter, 5); }
    | T__EXCEPT T__LPAREN relation_list T__RPAREN                               { CREATE_NODE(import_filter, 4); }
    ;
relation_list
    : relation
    | relation_list T__COMMA relation                                           { CREATE_NODE(relation_list, 3); }
    ;

/* ---- Statistics, types, operators ---- */

create_statistics
    : T__CREATE T__STATISTICS new_name T__ON statistics_columns from_clause     { CREATE_NODE(create_statistics, 6); }
    | T__CREATE T__STATISTICS new_name parenthesized_names T__ON statistics_columns from_clause
      { CREATE_NODE(create_statistics, 7); }
    ;
statistics_columns
    : statistics_column
    | statistics_columns T__COMMA statistics_column                             { CREATE_NODE(statistics_columns, 3); }
    ;
statistics_column
    : column_name
    | plain_function
    | T__LPAREN expression T__RPAREN                                            { CREATE_NODE(statistics_column, 3); }
    ;

create_definition
    : T__CREATE T__OPERATOR any_operator parenthesized_definitions              { CREATE_NODE(create_definition, 4); }
    | T__CREATE T__COLLATION new_name parenthesized_definitions                 { CREATE_NODE(create_definition, 4); }
    | T__CREATE T__COLLATION new_name T__FROM qualified_name                    { CREATE_NODE(create_definition, 5); }
    | T__CREATE T__TEXT T__SEARCH text_search_word qualified_name parenthesized_definitions
      { CREATE_NODE(create_definition, 6); }
    ;
text_search_word
    : T__PARSER
    | T__DICTIONARY
    | T__TEMPLATE
    | T__CONFIGURATION
    ;

create_type
    : T__CREATE T__TYPE qualified_name                                          { CREATE_NODE(create_type, 3); }
    | T__CREATE T__TYPE qualified_name parenthesized_definitions                { CREATE_NODE(create_type, 4); }
    | T__CREATE T__TYPE qualified_name T__AS T__LPAREN T__RPAREN                { CREATE_NODE(create_type, 6); }
    | T__CREATE T__TYPE qualified_name T__AS T__LPAREN table_function_columns T__RPAREN
      { CREATE_NODE(create_type, 7); }
    | T__CREATE T__TYPE qualified_name T__AS T__ENUM T__LPAREN T__RPAREN        { CREATE_NODE(create_type, 7); }
    | T__CREATE T__TYPE qualified_name T__AS T__ENUM T__LPAREN string_list T__RPAREN  { CREATE_NODE(create_type, 8); }
    | T__CREATE T__TYPE qualified_name T__AS T__RANGE parenthesized_definitions  { CREATE_NODE(create_type, 6); }
    ;

create_domain
    : T__CREATE T__DOMAIN qualified_name type_name                              { CREATE_NODE(create_domain, 4); }
    | T__CREATE T__DOMAIN qualified_name T__AS type_name                        { CREATE_NODE(create_domain, 5); }
    | T__CREATE T__DOMAIN qualified_name type_name column_constraints           { CREATE_NODE(create_domain, 5); }
    | T__CREATE T__DOMAIN qualified_name T__AS type_name column_constraints     { CREATE_NODE(create_domain, 6); }
    ;

create_aggregate
    : T__CREATE aggregate_definition                                            { CREATE_NODE(create_aggregate, 2); }
    | T__CREATE T__OR T__REPLACE aggregate_definition                           { CREATE_NODE(create_aggregate, 4); }
    ;
aggregate_definition
    : T__AGGREGATE function_name aggregate_parameters parenthesized_definitions
      { CREATE_NODE(aggregate_definition, 4); }
    | T__AGGREGATE function_name T__LPAREN old_aggregate_list T__RPAREN         { CREATE_NODE(aggregate_definition, 5); }
    ;
old_aggregate_list
    : old_aggregate_item
    | old_aggregate_list T__COMMA old_aggregate_item                            { CREATE_NODE(old_aggregate_list, 3); }
    ;
old_aggregate_item
    : plain_identifier T__EQUAL definition_value                                { CREATE_NODE(old_aggregate_item, 3); }
    ;

create_operator_class
    : T__CREATE T__OPERATOR T__CLASS qualified_name operator_class_head T__AS operator_class_items
      { CREATE_NODE(create_operator_class, 7); }
    ;
operator_class_head
    : T__FOR T__TYPE type_name T__USING column_name                             { CREATE_NODE(operator_class_head, 5); }
    | T__DEFAULT T__FOR T__TYPE type_name T__USING column_name                  { CREATE_NODE(operator_class_head, 6); }
    | T__FOR T__TYPE type_name T__USING column_name T__FAMILY qualified_name    { CREATE_NODE(operator_class_head, 7); }
    | T__DEFAULT T__FOR T__TYPE type_name T__USING column_name T__FAMILY qualified_name
      { CREATE_NODE(operator_class_head, 8); }
    ;
operator_class_items
    : operator_class_item
    | operator_class_items T__COMMA operator_class_item                         { CREATE_NODE(operator_class_items, 3); }
    ;
operator_class_item
    : T__OPERATOR T__INTEGER_NUMBER any_operator                                { CREATE_NODE(operator_class_item, 3); }
    | T__OPERATOR T__INTEGER_NUMBER any_operator operator_class_purpose         { CREATE_NODE(operator_class_item, 4); }
    | T__OPERATOR T__INTEGER_NUMBER operator_signature                          { CREATE_NODE(operator_class_item, 3); }
    | T__OPERATOR T__INTEGER_NUMBER operator_signature operator_class_purpose   { CREATE_NODE(operator_class_item, 4); }
    | T__FUNCTION T__INTEGER_NUMBER routine_signature                           { CREATE_NODE(operator_class_item, 3); }
    | T__FUNCTION T__INTEGER_NUMBER T__LPAREN type_list T__RPAREN routine_signature
      { CREATE_NODE(operator_class_item, 6); }
    | T__STORAGE type_name                                                      { CREATE_NODE(operator_class_item, 2); }
    ;
operator_class_purpose
    : T__FOR T__SEARCH                                                          { CREATE_NODE(operator_class_purpose, 2); }
    | T__FOR T__ORDER T__BY qualified_name                                      { CREATE_NODE(operator_class_purpose, 4); }
    | T__RECHECK
    ;
type_list
    : type_name
    | type_list T__COMMA type_name                                              { CREATE_NODE(type_list, 3); }
    ;

create_operator_family
    : T__CREATE T__OPERATOR T__FAMILY qualified_name T__USING column_name       { CREATE_NODE(create_operator_family, 6); }
    ;

create_cast
    : T__CREATE T__CAST T__LPAREN type_name T__AS type_name T__RPAREN cast_method  { CREATE_NODE(create_cast, 8); }
    | T__CREATE T__CAST T__LPAREN type_name T__AS type_name T__RPAREN cast_method cast_context
      { CREATE_NODE(create_cast, 9); }
    ;
cast_method
    : T__WITH T__FUNCTION routine_signature                                     { CREATE_NODE(cast_method, 3); }
    | T__WITHOUT T__FUNCTION                                                    { CREATE_NODE(cast_method, 2); }
    | T__WITH T__INOUT                                                          { CREATE_NODE(cast_method, 2); }
    ;
cast_context
    : T__AS T__IMPLICIT                                                         { CREATE_NODE(cast_context, 2); }
    | T__AS T__ASSIGNMENT                                                       { CREATE_NODE(cast_context, 2); }
    ;

create_transform
    : T__CREATE transform_definition                                            { CREATE_NODE(create_transform, 2); }
    | T__CREATE T__OR T__REPLACE transform_definition                           { CREATE_NODE(create_transform, 4); }
    ;
transform_definition
    : T__TRANSFORM T__FOR type_name T__LANGUAGE column_name T__LPAREN transform_functions T__RPAREN
      { CREATE_NODE(transform_definition, 8); }
    ;
transform_functions
    : transform_function
    | transform_functions T__COMMA transform_function                           { CREATE_NODE(transform_functions, 3); }
    ;
transform_function
    : T__FROM T__SQL T__WITH T__FUNCTION routine_signature                      { CREATE_NODE(transform_function, 5); }
    | T__TO T__SQL T__WITH T__FUNCTION routine_signature                        { CREATE_NODE(transform_function, 5); }
    ;

create_conversion
    : T__CREATE T__CONVERSION qualified_name T__FOR string_literal T__TO string_literal T__FROM
      qualified_name                                                            { CREATE_NODE(create_conversion, 9); }
    | T__CREATE T__DEFAULT T__CONVERSION qualified_name T__FOR string_literal T__TO string_literal T__FROM
      qualified_name                                                            { CREATE_NODE(create_conversion, 10); }
    ;

create_access_method
    : T__CREATE T__ACCESS T__METHOD column_name T__TYPE T__INDEX T__HANDLER qualified_name
      { CREATE_NODE(create_access_method, 8); }
    | T__CREATE T__ACCESS T__METHOD column_name T__TYPE T__TABLE T__HANDLER qualified_name
      { CREATE_NODE(create_access_method, 8); }
    ;

/* ---- ALTER ---- */

alter_relation
    : T__ALTER relation_word altered_relation alter_actions                     { CREATE_NODE(alter_relation, 4); }
    | T__ALTER relation_word T__ALL T__IN T__TABLESPACE column_name T__SET T__TABLESPACE column_name
      { CREATE_NODE(alter_relation, 9); }
    | T__ALTER relation_word T__ALL T__IN T__TABLESPACE column_name T__SET T__TABLESPACE column_name
      T__NOWAIT                                                                 { CREATE_NODE(alter_relation, 10); }
    | T__ALTER relation_word T__ALL T__IN T__TABLESPACE column_name T__OWNED T__BY role_list T__SET
      T__TABLESPACE column_name                                                 { CREATE_NODE(alter_relation, 12); }
    | T__ALTER relation_word T__ALL T__IN T__TABLESPACE column_name T__OWNED T__BY role_list T__SET
      T__TABLESPACE column_name T__NOWAIT                                       { CREATE_NODE(alter_relation, 13); }
    ;
relation_word
    : T__TABLE
    | T__INDEX
    | T__VIEW
    | T__MATERIALIZED T__VIEW                                                   { CREATE_NODE(relation_word, 2); }
    | T__FOREIGN T__TABLE                                                       { CREATE_NODE(relation_word, 2); }
    ;
altered_relation
    : relation
    | T__IF T__EXISTS relation                                                  { CREATE_NODE(altered_relation, 3); }
    ;
alter_sequence
    : T__ALTER T__SEQUENCE altered_relation sequence_options                    { CREATE_NODE(alter_sequence, 4); }
    | T__ALTER T__SEQUENCE altered_relation alter_actions                       { CREATE_NODE(alter_sequence, 4); }
    ;
alter_actions
    : alter_action
    | alter_actions T__COMMA alter_action                                       { CREATE_NODE(alter_actions, 3); }
    ;
alter_action
    : T__ADD column_definition                                                  { CREATE_NODE(alter_action, 2); }
    | T__ADD T__IF T__NOT T__EXISTS column_definition                           { CREATE_NODE(alter_action, 5); }
    | T__ADD T__COLUMN column_definition                                        { CREATE_NODE(alter_action, 3); }
    | T__ADD T__COLUMN T__IF T__NOT T__EXISTS column_definition                 { CREATE_NODE(alter_action, 6); }
    | T__ADD table_constraint                                                   { CREATE_NODE(alter_action, 2); }
    | T__ALTER column_name column_action                                        { CREATE_NODE(alter_action, 3); }
    | T__ALTER T__COLUMN column_name column_action                              { CREATE_NODE(alter_action, 4); }
    | T__ALTER T__INTEGER_NUMBER T__SET T__STATISTICS signed_integer            { CREATE_NODE(alter_action, 5); }
    | T__ALTER T__COLUMN T__INTEGER_NUMBER T__SET T__STATISTICS signed_integer  { CREATE_NODE(alter_action, 6); }
    | T__ALTER T__CONSTRAINT column_name                                        { CREATE_NODE(alter_action, 3); }
    | T__ALTER T__CONSTRAINT column_name constraint_attributes                  { CREATE_NODE(alter_action, 4); }
    | T__VALIDATE T__CONSTRAINT column_name                                     { CREATE_NODE(alter_action, 3); }
    | T__DROP dropped_column                                                    { CREATE_NODE(alter_action, 2); }
    | T__DROP T__COLUMN dropped_column                                          { CREATE_NODE(alter_action, 3); }
    | T__DROP T__CONSTRAINT dropped_column                                      { CREATE_NODE(alter_action, 3); }
    | T__RENAME T__TO column_name                                               { CREATE_NODE(alter_action, 3); }
    | T__RENAME column_name T__TO column_name                                   { CREATE_NODE(alter_action, 4); }
    | T__RENAME T__COLUMN column_name T__TO column_name                         { CREATE_NODE(alter_action, 5); }
    | T__RENAME T__CONSTRAINT column_name T__TO column_name                     { CREATE_NODE(alter_action, 5); }
    | T__OWNER T__TO role                                                       { CREATE_NODE(alter_action, 3); }
    | T__SET T__SCHEMA column_name                                              { CREATE_NODE(alter_action, 3); }
    | T__SET T__TABLESPACE column_name                                          { CREATE_NODE(alter_action, 3); }
    | T__SET T__TABLESPACE column_name T__NOWAIT                                { CREATE_NODE(alter_action, 4); }
    | T__SET T__ACCESS T__METHOD column_name                                    { CREATE_NODE(alter_action, 4); }
    | T__SET T__WITHOUT T__OIDS                                                 { CREATE_NODE(alter_action, 3); }
    | T__SET T__WITHOUT T__CLUSTER                                              { CREATE_NODE(alter_action, 3); }
    | T__SET T__LOGGED                                                          { CREATE_NODE(alter_action, 2); }
    | T__SET T__UNLOGGED                                                        { CREATE_NODE(alter_action, 2); }
    | T__SET relation_options                                                   { CREATE_NODE(alter_action, 2); }
    | T__RESET relation_options                                                 { CREATE_NODE(alter_action, 2); }
    | T__CLUSTER T__ON column_name                                              { CREATE_NODE(alter_action, 3); }
    | T__ENABLE trigger_or_rule                                                 { CREATE_NODE(alter_action, 2); }
    | T__ENABLE T__ALWAYS trigger_or_rule                                       { CREATE_NODE(alter_action, 3); }
    | T__ENABLE T__REPLICA trigger_or_rule                                      { CREATE_NODE(alter_action, 3); }
    | T__DISABLE trigger_or_rule                                                { CREATE_NODE(alter_action, 2); }
    | T__ENABLE T__ROW T__LEVEL T__SECURITY                                     { CREATE_NODE(alter_action, 4); }
    | T__DISABLE T__ROW T__LEVEL T__SECURITY                                    { CREATE_NODE(alter_action, 4); }
    | T__FORCE T__ROW T__LEVEL T__SECURITY                                      { CREATE_NODE(alter_action, 4); }
    | T__NO T__FORCE T__ROW T__LEVEL T__SECURITY                                { CREATE_NODE(alter_action, 5); }
    | T__INHERIT qualified_name                                                 { CREATE_NODE(alter_action, 2); }
    | T__NO T__INHERIT qualified_name                                           { CREATE_NODE(alter_action, 3); }
    | T__OF qualified_name                                                      { CREATE_NODE(alter_action, 2); }
    | T__NOT T__OF                                                              { CREATE_NODE(alter_action, 2); }
    | T__REPLICA T__IDENTITY T__NOTHING                                         { CREATE_NODE(alter_action, 3); }
    | T__REPLICA T__IDENTITY T__FULL                                            { CREATE_NODE(alter_action, 3); }
    | T__REPLICA T__IDENTITY T__DEFAULT                                         { CREATE_NODE(alter_action, 3); }
    | T__REPLICA T__IDENTITY T__USING T__INDEX column_name                      { CREATE_NODE(alter_action, 5); }
    | T__ATTACH T__PARTITION qualified_name                                     { CREATE_NODE(alter_action, 3); }
    | T__ATTACH T__PARTITION qualified_name partition_bound                     { CREATE_NODE(alter_action, 4); }
    | T__DETACH T__PARTITION qualified_name                                     { CREATE_NODE(alter_action, 3); }
    | T__DETACH T__PARTITION qualified_name T__CONCURRENTLY                     { CREATE_NODE(alter_action, 4); }
    | T__DETACH T__PARTITION qualified_name T__FINALIZE                         { CREATE_NODE(alter_action, 4); }
    | extension_dependency
    | alter_generic_options
    ;
extension_dependency
    : T__DEPENDS T__ON T__EXTENSION column_name                                 { CREATE_NODE(extension_dependency, 4); }
    | T__NO T__DEPENDS T__ON T__EXTENSION column_name                           { CREATE_NODE(extension_dependency, 5); }
    ;
trigger_or_rule
    : T__TRIGGER column_name                                                    { CREATE_NODE(trigger_or_rule, 2); }
    | T__TRIGGER T__ALL                                                         { CREATE_NODE(trigger_or_rule, 2); }
    | T__TRIGGER T__USER                                                        { CREATE_NODE(trigger_or_rule, 2); }
    | T__RULE column_name                                                       { CREATE_NODE(trigger_or_rule, 2); }
    ;
dropped_column
    : column_name
    | T__IF T__EXISTS column_name                                               { CREATE_NODE(dropped_column, 3); }
    | column_name drop_behavior                                                 { CREATE_NODE(dropped_column, 2); }
    | T__IF T__EXISTS column_name drop_behavior                                 { CREATE_NODE(dropped_column, 4); }
    ;
drop_behavior
    : T__CASCADE
    | T__RESTRICT
    ;
column_action
    : T__SET T__DEFAULT expression                                              { CREATE_NODE(column_action, 3); }
    | T__DROP T__DEFAULT                                                        { CREATE_NODE(column_action, 2); }
    | T__SET T__NOT T__NULL                                                     { CREATE_NODE(column_action, 3); }
    | T__DROP T__NOT T__NULL                                                    { CREATE_NODE(column_action, 3); }
    | T__DROP T__EXPRESSION                                                     { CREATE_NODE(column_action, 2); }
    | T__DROP T__EXPRESSION T__IF T__EXISTS                                     { CREATE_NODE(column_action, 4); }
    | T__SET T__STATISTICS signed_integer                                       { CREATE_NODE(column_action, 3); }
    | T__SET relation_options                                                   { CREATE_NODE(column_action, 2); }
    | T__RESET relation_options                                                 { CREATE_NODE(column_action, 2); }
    | T__SET T__STORAGE column_name                                             { CREATE_NODE(column_action, 3); }
    | T__SET T__COMPRESSION column_name                                         { CREATE_NODE(column_action, 3); }
    | T__SET T__COMPRESSION T__DEFAULT                                          { CREATE_NODE(column_action, 3); }
    | T__ADD T__GENERATED generated_when T__AS T__IDENTITY                      { CREATE_NODE(column_action, 5); }
    | T__ADD T__GENERATED generated_when T__AS T__IDENTITY T__LPAREN sequence_options T__RPAREN
      { CREATE_NODE(column_action, 8); }
    | identity_changes
    | T__DROP T__IDENTITY                                                       { CREATE_NODE(column_action, 2); }
    | T__DROP T__IDENTITY T__IF T__EXISTS                                       { CREATE_NODE(column_action, 4); }
    | type_change
    | type_change T__USING expression                                           { CREATE_NODE(column_action, 3); }
    | alter_generic_options
    ;
type_change
    : T__TYPE type_name                                                         { CREATE_NODE(type_change, 2); }
    | T__SET T__DATA T__TYPE type_name                                          { CREATE_NODE(type_change, 4); }
    | T__TYPE type_name T__COLLATE qualified_name                               { CREATE_NODE(type_change, 4); }
    | T__SET T__DATA T__TYPE type_name T__COLLATE qualified_name                { CREATE_NODE(type_change, 6); }
    ;
identity_changes
    : identity_change
    | identity_changes identity_change                                          { CREATE_NODE(identity_changes, 2); }
    ;
identity_change
    : T__RESTART
    | T__RESTART signed_number                                                  { CREATE_NODE(identity_change, 2); }
    | T__RESTART T__WITH signed_number                                          { CREATE_NODE(identity_change, 3); }
    | T__SET sequence_option                                                    { CREATE_NODE(identity_change, 2); }
    | T__SET T__GENERATED generated_when                                        { CREATE_NODE(identity_change, 3); }
    ;
alter_generic_options
    : T__OPTIONS T__LPAREN alter_option_list T__RPAREN                          { CREATE_NODE(alter_generic_options, 4); }
    ;
alter_option_list
    : alter_option
    | alter_option_list T__COMMA alter_option                                   { CREATE_NODE(alter_option_list, 3); }
    ;
alter_option
    : generic_option
    | T__ADD generic_option                                                     { CREATE_NODE(alter_option, 2); }
    | T__SET generic_option                                                     { CREATE_NODE(alter_option, 2); }
    | T__DROP any_label                                                         { CREATE_NODE(alter_option, 2); }
    ;

/* What most objects can be made to do. */
common_change
    : T__RENAME T__TO column_name                                               { CREATE_NODE(common_change, 3); }
    | T__OWNER T__TO role                                                       { CREATE_NODE(common_change, 3); }
    | T__SET T__SCHEMA column_name                                              { CREATE_NODE(common_change, 3); }
    ;

alter_type
    : T__ALTER T__TYPE qualified_name common_change                             { CREATE_NODE(alter_type, 4); }
    | T__ALTER T__TYPE qualified_name type_changes                              { CREATE_NODE(alter_type, 4); }
    | T__ALTER T__TYPE qualified_name T__SET parenthesized_definitions          { CREATE_NODE(alter_type, 5); }
    | T__ALTER T__TYPE qualified_name T__ADD T__VALUE enum_value                { CREATE_NODE(alter_type, 6); }
    | T__ALTER T__TYPE qualified_name T__ADD T__VALUE T__IF T__NOT T__EXISTS enum_value
      { CREATE_NODE(alter_type, 9); }
    | T__ALTER T__TYPE qualified_name T__RENAME T__VALUE string_literal T__TO string_literal
      { CREATE_NODE(alter_type, 8); }
    | T__ALTER T__TYPE qualified_name T__RENAME T__ATTRIBUTE column_name T__TO column_name
      { CREATE_NODE(alter_type, 8); }
    | T__ALTER T__TYPE qualified_name T__RENAME T__ATTRIBUTE column_name T__TO column_name drop_behavior
      { CREATE_NODE(alter_type, 9); }
    ;
enum_value
    : string_literal
    | string_literal T__BEFORE string_literal                                   { CREATE_NODE(enum_value, 3); }
    | string_literal T__AFTER string_literal                                    { CREATE_NODE(enum_value, 3); }
    ;
type_changes
    : attribute_change
    | type_changes T__COMMA attribute_change                                    { CREATE_NODE(type_changes, 3); }
    ;
attribute_change
    : T__ADD T__ATTRIBUTE table_function_column                                 { CREATE_NODE(attribute_change, 3); }
    | T__ADD T__ATTRIBUTE table_function_column drop_behavior                   { CREATE_NODE(attribute_change, 4); }
    | T__DROP T__ATTRIBUTE dropped_column                                       { CREATE_NODE(attribute_change, 3); }
    | T__ALTER T__ATTRIBUTE column_name type_change                             { CREATE_NODE(attribute_change, 4); }
    | T__ALTER T__ATTRIBUTE column_name type_change drop_behavior               { CREATE_NODE(attribute_change, 5); }
    ;

alter_domain
    : T__ALTER T__DOMAIN qualified_name common_change                           { CREATE_NODE(alter_domain, 4); }
    | T__ALTER T__DOMAIN qualified_name T__SET T__DEFAULT expression            { CREATE_NODE(alter_domain, 6); }
    | T__ALTER T__DOMAIN qualified_name T__DROP T__DEFAULT                      { CREATE_NODE(alter_domain, 5); }
    | T__ALTER T__DOMAIN qualified_name T__SET T__NOT T__NULL                   { CREATE_NODE(alter_domain, 6); }
    | T__ALTER T__DOMAIN qualified_name T__DROP T__NOT T__NULL                  { CREATE_NODE(alter_domain, 6); }
    | T__ALTER T__DOMAIN qualified_name T__ADD table_constraint                 { CREATE_NODE(alter_domain, 5); }
    | T__ALTER T__DOMAIN qualified_name T__DROP T__CONSTRAINT dropped_column    { CREATE_NODE(alter_domain, 6); }
    | T__ALTER T__DOMAIN qualified_name T__VALIDATE T__CONSTRAINT column_name   { CREATE_NODE(alter_domain, 6); }
    | T__ALTER T__DOMAIN qualified_name T__RENAME T__CONSTRAINT column_name T__TO column_name
      { CREATE_NODE(alter_domain, 8); }
    ;

any_routine_word
    : T__FUNCTION
    | T__PROCEDURE
    | T__ROUTINE
    ;
alter_routine
    : T__ALTER any_routine_word routine_signature common_change                 { CREATE_NODE(alter_routine, 4); }
    | T__ALTER any_routine_word routine_signature extension_dependency          { CREATE_NODE(alter_routine, 4); }
    | T__ALTER any_routine_word routine_signature routine_attributes            { CREATE_NODE(alter_routine, 4); }
    | T__ALTER any_routine_word routine_signature routine_attributes T__RESTRICT  { CREATE_NODE(alter_routine, 5); }
    | T__ALTER T__AGGREGATE aggregate_signature common_change                   { CREATE_NODE(alter_routine, 4); }
    ;

alter_object
    : T__ALTER T__COLLATION qualified_name common_change                        { CREATE_NODE(alter_object, 4); }
    | T__ALTER T__COLLATION qualified_name T__REFRESH T__VERSION                { CREATE_NODE(alter_object, 5); }
    | T__ALTER T__CONVERSION qualified_name common_change                       { CREATE_NODE(alter_object, 4); }
    | T__ALTER language_word column_name common_change                          { CREATE_NODE(alter_object, 4); }
    | T__ALTER T__LARGE T__OBJECT signed_number T__OWNER T__TO role             { CREATE_NODE(alter_object, 7); }
    | T__ALTER T__SCHEMA column_name common_change                              { CREATE_NODE(alter_object, 4); }
    | T__ALTER T__RULE column_name T__ON qualified_name T__RENAME T__TO column_name  { CREATE_NODE(alter_object, 8); }
    | T__ALTER T__TRIGGER column_name T__ON qualified_name T__RENAME T__TO column_name
      { CREATE_NODE(alter_object, 8); }
    | T__ALTER T__TRIGGER column_name T__ON qualified_name extension_dependency  { CREATE_NODE(alter_object, 6); }
    | T__ALTER T__OPERATOR T__CLASS qualified_name T__USING column_name common_change
      { CREATE_NODE(alter_object, 7); }
    ;
language_word
    : T__LANGUAGE
    | T__PROCEDURAL T__LANGUAGE                                                 { CREATE_NODE(language_word, 2); }
    ;

alter_operator
    : T__ALTER T__OPERATOR operator_signature common_change                     { CREATE_NODE(alter_operator, 4); }
    | T__ALTER T__OPERATOR operator_signature T__SET T__LPAREN operator_changes T__RPAREN
      { CREATE_NODE(alter_operator, 7); }
    ;
operator_changes
    : operator_change
    | operator_changes T__COMMA operator_change                                 { CREATE_NODE(operator_changes, 3); }
    ;
operator_change
    : any_label T__EQUAL T__NONE                                                { CREATE_NODE(operator_change, 3); }
    | any_label T__EQUAL operator_change_value                                  { CREATE_NODE(operator_change, 3); }
    ;
operator_change_value
    : function_type
    | reserved_keyword
    | any_operator_symbol
    | T__OPERATOR T__LPAREN any_operator T__RPAREN                              { CREATE_NODE(operator_change_value, 4); }
    | signed_number
    | string_literal
    ;

alter_operator_family
    : T__ALTER T__OPERATOR T__FAMILY qualified_name T__USING column_name common_change
      { CREATE_NODE(alter_operator_family, 7); }
    | T__ALTER T__OPERATOR T__FAMILY qualified_name T__USING column_name T__ADD operator_class_items
      { CREATE_NODE(alter_operator_family, 8); }
    | T__ALTER T__OPERATOR T__FAMILY qualified_name T__USING column_name T__DROP dropped_family_items
      { CREATE_NODE(alter_operator_family, 8); }
    ;
dropped_family_items
    : dropped_family_item
    | dropped_family_items T__COMMA dropped_family_item                         { CREATE_NODE(dropped_family_items, 3); }
    ;
dropped_family_item
    : T__OPERATOR T__INTEGER_NUMBER T__LPAREN type_list T__RPAREN               { CREATE_NODE(dropped_family_item, 5); }
    | T__FUNCTION T__INTEGER_NUMBER T__LPAREN type_list T__RPAREN               { CREATE_NODE(dropped_family_item, 5); }
    ;

alter_policy
    : T__ALTER T__POLICY column_name T__ON qualified_name T__RENAME T__TO column_name
      { CREATE_NODE(alter_policy, 8); }
    | T__ALTER T__POLICY T__IF T__EXISTS column_name T__ON qualified_name T__RENAME T__TO column_name
      { CREATE_NODE(alter_policy, 10); }
    | T__ALTER T__POLICY column_name T__ON qualified_name                       { CREATE_NODE(alter_policy, 5); }
    | T__ALTER T__POLICY column_name T__ON qualified_name policy_clauses        { CREATE_NODE(alter_policy, 6); }
    ;

alter_role
    : T__ALTER role_or_group role role_options                                  { CREATE_NODE(alter_role, 4); }
    | T__ALTER T__USER role role_options                                        { CREATE_NODE(alter_role, 4); }
    | T__ALTER role_or_group role T__WITH                                       { CREATE_NODE(alter_role, 4); }
    | T__ALTER T__USER role T__WITH                                             { CREATE_NODE(alter_role, 4); }
    | T__ALTER role_or_group role T__WITH role_options                          { CREATE_NODE(alter_role, 5); }
    | T__ALTER T__USER role T__WITH role_options                                { CREATE_NODE(alter_role, 5); }
    | T__ALTER role_or_group role                                               { CREATE_NODE(alter_role, 3); }
    | T__ALTER T__USER role                                                     { CREATE_NODE(alter_role, 3); }
    | T__ALTER role_or_group role T__RENAME T__TO role                          { CREATE_NODE(alter_role, 6); }
    | T__ALTER T__USER role T__RENAME T__TO role                                { CREATE_NODE(alter_role, 6); }
    | T__ALTER role_or_group role role_setting                                  { CREATE_NODE(alter_role, 4); }
    | T__ALTER T__USER role role_setting                                        { CREATE_NODE(alter_role, 4); }
    | T__ALTER role_or_group role T__IN T__DATABASE column_name role_setting    { CREATE_NODE(alter_role, 7); }
    | T__ALTER T__USER role T__IN T__DATABASE column_name role_setting          { CREATE_NODE(alter_role, 7); }
    | T__ALTER role_or_group T__ALL role_setting                                { CREATE_NODE(alter_role, 4); }
    | T__ALTER T__USER T__ALL role_setting                                      { CREATE_NODE(alter_role, 4); }
    | T__ALTER role_or_group T__ALL T__IN T__DATABASE column_name role_setting  { CREATE_NODE(alter_role, 7); }
    | T__ALTER T__USER T__ALL T__IN T__DATABASE column_name role_setting        { CREATE_NODE(alter_role, 7); }
    | T__ALTER role_or_group role T__ADD T__USER role_list                      { CREATE_NODE(alter_role, 6); }
    | T__ALTER T__USER role T__ADD T__USER role_list                            { CREATE_NODE(alter_role, 6); }
    | T__ALTER role_or_group role T__DROP T__USER role_list                     { CREATE_NODE(alter_role, 6); }
    | T__ALTER T__USER role T__DROP T__USER role_list                           { CREATE_NODE(alter_role, 6); }
    ;
role_setting
    : T__SET set_target                                                         { CREATE_NODE(role_setting, 2); }
    | T__RESET reset_target                                                     { CREATE_NODE(role_setting, 2); }
    ;

alter_database
    : T__ALTER T__DATABASE column_name                                          { CREATE_NODE(alter_database, 3); }
    | T__ALTER T__DATABASE column_name database_options                         { CREATE_NODE(alter_database, 4); }
    | T__ALTER T__DATABASE column_name T__WITH database_options                 { CREATE_NODE(alter_database, 5); }
    | T__ALTER T__DATABASE column_name T__WITH                                  { CREATE_NODE(alter_database, 4); }
    | T__ALTER T__DATABASE column_name T__SET T__TABLESPACE column_name         { CREATE_NODE(alter_database, 6); }
    | T__ALTER T__DATABASE column_name T__REFRESH T__COLLATION T__VERSION       { CREATE_NODE(alter_database, 6); }
    | T__ALTER T__DATABASE column_name role_setting                             { CREATE_NODE(alter_database, 4); }
    | T__ALTER T__DATABASE column_name T__RENAME T__TO column_name              { CREATE_NODE(alter_database, 6); }
    | T__ALTER T__DATABASE column_name T__OWNER T__TO role                      { CREATE_NODE(alter_database, 6); }
    ;

alter_tablespace
    : T__ALTER T__TABLESPACE column_name T__RENAME T__TO column_name            { CREATE_NODE(alter_tablespace, 6); }
    | T__ALTER T__TABLESPACE column_name T__OWNER T__TO role                    { CREATE_NODE(alter_tablespace, 6); }
    | T__ALTER T__TABLESPACE column_name T__SET relation_options                { CREATE_NODE(alter_tablespace, 5); }
    | T__ALTER T__TABLESPACE column_name T__RESET relation_options              { CREATE_NODE(alter_tablespace, 5); }
    ;

alter_extension
    : T__ALTER T__EXTENSION column_name T__UPDATE                               { CREATE_NODE(alter_extension, 4); }
    | T__ALTER T__EXTENSION column_name T__UPDATE T__TO word_or_string          { CREATE_NODE(alter_extension, 6); }
    | T__ALTER T__EXTENSION column_name T__UPDATE T__TO word_or_string extension_versions
      { CREATE_NODE(alter_extension, 7); }
    | T__ALTER T__EXTENSION column_name T__ADD named_object                     { CREATE_NODE(alter_extension, 5); }
    | T__ALTER T__EXTENSION column_name T__DROP named_object                    { CREATE_NODE(alter_extension, 5); }
    | T__ALTER T__EXTENSION column_name T__SET T__SCHEMA column_name            { CREATE_NODE(alter_extension, 6); }
    ;
/* A repeated version is a mistake that the server finds only later. */
extension_versions
    : T__TO word_or_string                                                      { CREATE_NODE(extension_versions, 2); }
    | extension_versions T__TO word_or_string                                   { CREATE_NODE(extension_versions, 3); }
    ;

alter_publication
    : T__ALTER T__PUBLICATION column_name common_change                         { CREATE_NODE(alter_publication, 4); }
    | T__ALTER T__PUBLICATION column_name T__SET parenthesized_definitions      { CREATE_NODE(alter_publication, 5); }
    | T__ALTER T__PUBLICATION column_name T__ADD publication_objects            { CREATE_NODE(alter_publication, 5); }
    | T__ALTER T__PUBLICATION column_name T__SET publication_objects            { CREATE_NODE(alter_publication, 5); }
    | T__ALTER T__PUBLICATION column_name T__DROP publication_objects           { CREATE_NODE(alter_publication, 5); }
    ;

alter_subscription
    : T__ALTER T__SUBSCRIPTION column_name common_change                        { CREATE_NODE(alter_subscription, 4); }
    | T__ALTER T__SUBSCRIPTION column_name T__SET parenthesized_definitions     { CREATE_NODE(alter_subscription, 5); }
    | T__ALTER T__SUBSCRIPTION column_name T__SKIP parenthesized_definitions    { CREATE_NODE(alter_subscription, 5); }
    | T__ALTER T__SUBSCRIPTION column_name T__CONNECTION string_literal         { CREATE_NODE(alter_subscription, 5); }
    | T__ALTER T__SUBSCRIPTION column_name T__REFRESH T__PUBLICATION            { CREATE_NODE(alter_subscription, 5); }
    | T__ALTER T__SUBSCRIPTION column_name T__REFRESH T__PUBLICATION T__WITH parenthesized_definitions
      { CREATE_NODE(alter_subscription, 7); }
    | T__ALTER T__SUBSCRIPTION column_name subscription_change T__PUBLICATION name_list
      { CREATE_NODE(alter_subscription, 6); }
    | T__ALTER T__SUBSCRIPTION column_name subscription_change T__PUBLICATION name_list T__WITH
      parenthesized_definitions                                                 { CREATE_NODE(alter_subscription, 8); }
    | T__ALTER T__SUBSCRIPTION column_name T__ENABLE                            { CREATE_NODE(alter_subscription, 4); }
    | T__ALTER T__SUBSCRIPTION column_name T__DISABLE                           { CREATE_NODE(alter_subscription, 4); }
    ;
subscription_change
    : T__ADD
    | T__SET
    | T__DROP
    ;

alter_foreign_object
    : T__ALTER T__FOREIGN T__DATA T__WRAPPER column_name common_change          { CREATE_NODE(alter_foreign_object, 6); }
    | T__ALTER T__FOREIGN T__DATA T__WRAPPER column_name wrapper_options        { CREATE_NODE(alter_foreign_object, 6); }
    | T__ALTER T__FOREIGN T__DATA T__WRAPPER column_name alter_generic_options  { CREATE_NODE(alter_foreign_object, 6); }
    | T__ALTER T__FOREIGN T__DATA T__WRAPPER column_name wrapper_options alter_generic_options
      { CREATE_NODE(alter_foreign_object, 7); }
    | T__ALTER T__SERVER column_name common_change                              { CREATE_NODE(alter_foreign_object, 4); }
    | T__ALTER T__SERVER column_name server_version                             { CREATE_NODE(alter_foreign_object, 4); }
    | T__ALTER T__SERVER column_name alter_generic_options                      { CREATE_NODE(alter_foreign_object, 4); }
    | T__ALTER T__SERVER column_name server_version alter_generic_options       { CREATE_NODE(alter_foreign_object, 5); }
    | T__ALTER T__USER T__MAPPING T__FOR mapped_user T__SERVER column_name alter_generic_options
      { CREATE_NODE(alter_foreign_object, 8); }
    ;

alter_statistics
    : T__ALTER T__STATISTICS qualified_name common_change                       { CREATE_NODE(alter_statistics, 4); }
    | T__ALTER T__STATISTICS qualified_name T__SET T__STATISTICS signed_integer  { CREATE_NODE(alter_statistics, 6); }
    | T__ALTER T__STATISTICS T__IF T__EXISTS qualified_name T__SET T__STATISTICS signed_integer
      { CREATE_NODE(alter_statistics, 8); }
    ;

alter_text_search
    : T__ALTER T__TEXT T__SEARCH text_search_word qualified_name text_search_change
      { CREATE_NODE(alter_text_search, 6); }
    ;
text_search_change
    : common_change
    | parenthesized_definitions
    | T__ADD T__MAPPING T__FOR name_list T__WITH qualified_name_list            { CREATE_NODE(text_search_change, 6); }
    | T__ALTER T__MAPPING T__FOR name_list T__WITH qualified_name_list          { CREATE_NODE(text_search_change, 6); }
    | T__ALTER T__MAPPING T__REPLACE qualified_name T__WITH qualified_name      { CREATE_NODE(text_search_change, 6); }
    | T__ALTER T__MAPPING T__FOR name_list T__REPLACE qualified_name T__WITH qualified_name
      { CREATE_NODE(text_search_change, 8); }
    | T__DROP T__MAPPING T__FOR name_list                                       { CREATE_NODE(text_search_change, 4); }
    | T__DROP T__MAPPING T__IF T__EXISTS T__FOR name_list                       { CREATE_NODE(text_search_change, 6); }
    ;

alter_event_trigger
    : T__ALTER T__EVENT T__TRIGGER column_name common_change                    { CREATE_NODE(alter_event_trigger, 5); }
    | T__ALTER T__EVENT T__TRIGGER column_name T__ENABLE                        { CREATE_NODE(alter_event_trigger, 5); }
    | T__ALTER T__EVENT T__TRIGGER column_name T__ENABLE T__REPLICA             { CREATE_NODE(alter_event_trigger, 6); }
    | T__ALTER T__EVENT T__TRIGGER column_name T__ENABLE T__ALWAYS              { CREATE_NODE(alter_event_trigger, 6); }
    | T__ALTER T__EVENT T__TRIGGER column_name T__DISABLE                       { CREATE_NODE(alter_event_trigger, 5); }
    ;

alter_system
    : T__ALTER T__SYSTEM T__SET setting                                         { CREATE_NODE(alter_system, 4); }
    | T__ALTER T__SYSTEM T__RESET qualified_name                                { CREATE_NODE(alter_system, 4); }
    | T__ALTER T__SYSTEM T__RESET T__ALL                                        { CREATE_NODE(alter_system, 4); }
    ;

alter_default_privileges
    : T__ALTER T__DEFAULT T__PRIVILEGES default_privileges_action               { CREATE_NODE(alter_default_privileges, 4); }
    | T__ALTER T__DEFAULT T__PRIVILEGES default_privileges_scope default_privileges_action
      { CREATE_NODE(alter_default_privileges, 5); }
    ;
default_privileges_scope
    : default_privileges_part
    | default_privileges_scope default_privileges_part                          { CREATE_NODE(default_privileges_scope, 2); }
    ;
default_privileges_part
    : T__IN T__SCHEMA name_list                                                 { CREATE_NODE(default_privileges_part, 3); }
    | T__FOR T__ROLE grantees                                                   { CREATE_NODE(default_privileges_part, 3); }
    | T__FOR T__USER grantees                                                   { CREATE_NODE(default_privileges_part, 3); }
    ;
default_privileges_action
    : T__GRANT privileges T__ON default_privileges_target T__TO grantees        { CREATE_NODE(default_privileges_action, 6); }
    | T__GRANT privileges T__ON default_privileges_target T__TO grantees T__WITH T__GRANT T__OPTION
      { CREATE_NODE(default_privileges_action, 9); }
    | T__REVOKE privileges T__ON default_privileges_target T__FROM grantees     { CREATE_NODE(default_privileges_action, 6); }
    | T__REVOKE privileges T__ON default_privileges_target T__FROM grantees drop_behavior
      { CREATE_NODE(default_privileges_action, 7); }
    | T__REVOKE T__GRANT T__OPTION T__FOR privileges T__ON default_privileges_target T__FROM grantees
      { CREATE_NODE(default_privileges_action, 9); }
    | T__REVOKE T__GRANT T__OPTION T__FOR privileges T__ON default_privileges_target T__FROM grantees
      drop_behavior                                                             { CREATE_NODE(default_privileges_action, 10); }
    ;
default_privileges_target
    : T__TABLES
    | T__FUNCTIONS
    | T__ROUTINES
    | T__SEQUENCES
    | T__TYPES
    | T__SCHEMAS
    ;

/* ---- DROP ---- */

drop_statement
    : T__DROP dropped_objects                                                   { CREATE_NODE(drop_statement, 2); }
    | T__DROP dropped_objects drop_behavior                                     { CREATE_NODE(drop_statement, 3); }
    | T__DROP dropped_roles                                                     { CREATE_NODE(drop_statement, 2); }
    ;
dropped_objects
    : object_word object_names                                                  { CREATE_NODE(dropped_objects, 2); }
    | T__INDEX T__CONCURRENTLY object_names                                     { CREATE_NODE(dropped_objects, 3); }
    | T__TYPE object_types                                                      { CREATE_NODE(dropped_objects, 2); }
    | T__DOMAIN object_types                                                    { CREATE_NODE(dropped_objects, 2); }
    | T__POLICY object_on_table                                                 { CREATE_NODE(dropped_objects, 2); }
    | T__RULE object_on_table                                                   { CREATE_NODE(dropped_objects, 2); }
    | T__TRIGGER object_on_table                                                { CREATE_NODE(dropped_objects, 2); }
    | any_routine_word routine_signatures                                       { CREATE_NODE(dropped_objects, 2); }
    | any_routine_word T__IF T__EXISTS routine_signatures                       { CREATE_NODE(dropped_objects, 4); }
    | T__AGGREGATE aggregate_signatures                                         { CREATE_NODE(dropped_objects, 2); }
    | T__AGGREGATE T__IF T__EXISTS aggregate_signatures                         { CREATE_NODE(dropped_objects, 4); }
    | T__OPERATOR operator_signatures                                           { CREATE_NODE(dropped_objects, 2); }
    | T__OPERATOR T__IF T__EXISTS operator_signatures                           { CREATE_NODE(dropped_objects, 4); }
    | T__OPERATOR T__CLASS object_in_method                                     { CREATE_NODE(dropped_objects, 3); }
    | T__OPERATOR T__FAMILY object_in_method                                    { CREATE_NODE(dropped_objects, 3); }
    | T__CAST T__LPAREN type_name T__AS type_name T__RPAREN                     { CREATE_NODE(dropped_objects, 6); }
    | T__CAST T__IF T__EXISTS T__LPAREN type_name T__AS type_name T__RPAREN     { CREATE_NODE(dropped_objects, 8); }
    | T__TRANSFORM T__FOR type_name T__LANGUAGE column_name                     { CREATE_NODE(dropped_objects, 5); }
    | T__TRANSFORM T__IF T__EXISTS T__FOR type_name T__LANGUAGE column_name     { CREATE_NODE(dropped_objects, 7); }
    | T__OWNED T__BY role_list                                                  { CREATE_NODE(dropped_objects, 3); }
    ;
/* Objects that a plain name tells. */
object_word
    : T__TABLE
    | T__SEQUENCE
    | T__VIEW
    | T__MATERIALIZED T__VIEW                                                   { CREATE_NODE(object_word, 2); }
    | T__INDEX
    | T__FOREIGN T__TABLE                                                       { CREATE_NODE(object_word, 2); }
    | T__COLLATION
    | T__CONVERSION
    | T__STATISTICS
    | T__TEXT T__SEARCH text_search_word                                        { CREATE_NODE(object_word, 3); }
    | T__ACCESS T__METHOD                                                       { CREATE_NODE(object_word, 2); }
    | T__EVENT T__TRIGGER                                                       { CREATE_NODE(object_word, 2); }
    | T__EXTENSION
    | T__FOREIGN T__DATA T__WRAPPER                                             { CREATE_NODE(object_word, 3); }
    | language_word
    | T__PUBLICATION
    | T__SCHEMA
    | T__SERVER
    | T__SUBSCRIPTION
    | T__TABLESPACE
    ;
object_names
    : qualified_name_list
    | T__IF T__EXISTS qualified_name_list                                       { CREATE_NODE(object_names, 3); }
    ;
object_types
    : type_list
    | T__IF T__EXISTS type_list                                                 { CREATE_NODE(object_types, 3); }
    ;
object_on_table
    : column_name T__ON qualified_name                                          { CREATE_NODE(object_on_table, 3); }
    | T__IF T__EXISTS column_name T__ON qualified_name                          { CREATE_NODE(object_on_table, 5); }
    ;
object_in_method
    : qualified_name T__USING column_name                                       { CREATE_NODE(object_in_method, 3); }
    | T__IF T__EXISTS qualified_name T__USING column_name                       { CREATE_NODE(object_in_method, 5); }
    ;
dropped_roles
    : role_or_group role_list                                                   { CREATE_NODE(dropped_roles, 2); }
    | T__USER role_list                                                         { CREATE_NODE(dropped_roles, 2); }
    | role_or_group T__IF T__EXISTS role_list                                   { CREATE_NODE(dropped_roles, 4); }
    | T__USER T__IF T__EXISTS role_list                                         { CREATE_NODE(dropped_roles, 4); }
    | T__USER T__MAPPING T__FOR mapped_user T__SERVER column_name               { CREATE_NODE(dropped_roles, 6); }
    | T__USER T__MAPPING T__IF T__EXISTS T__FOR mapped_user T__SERVER column_name  { CREATE_NODE(dropped_roles, 8); }
    | T__DATABASE column_name                                                   { CREATE_NODE(dropped_roles, 2); }
    | T__DATABASE T__IF T__EXISTS column_name                                   { CREATE_NODE(dropped_roles, 4); }
    | T__DATABASE column_name database_drop_options                             { CREATE_NODE(dropped_roles, 3); }
    | T__DATABASE T__IF T__EXISTS column_name database_drop_options             { CREATE_NODE(dropped_roles, 5); }
    ;
database_drop_options
    : utility_options
    | T__WITH utility_options                                                   { CREATE_NODE(database_drop_options, 2); }
    ;

/* ---- COMMENT, SECURITY LABEL ---- */

named_object
    : object_word qualified_name                                                { CREATE_NODE(named_object, 2); }
    | T__ROLE column_name                                                       { CREATE_NODE(named_object, 2); }
    | T__DATABASE column_name                                                   { CREATE_NODE(named_object, 2); }
    | T__TYPE type_name                                                         { CREATE_NODE(named_object, 2); }
    | T__DOMAIN type_name                                                       { CREATE_NODE(named_object, 2); }
    | T__AGGREGATE aggregate_signature                                          { CREATE_NODE(named_object, 2); }
    | any_routine_word routine_signature                                        { CREATE_NODE(named_object, 2); }
    | T__OPERATOR operator_signature                                            { CREATE_NODE(named_object, 2); }
    | T__OPERATOR T__CLASS qualified_name T__USING column_name                  { CREATE_NODE(named_object, 5); }
    | T__OPERATOR T__FAMILY qualified_name T__USING column_name                 { CREATE_NODE(named_object, 5); }
    | T__CAST T__LPAREN type_name T__AS type_name T__RPAREN                     { CREATE_NODE(named_object, 6); }
    | T__TRANSFORM T__FOR type_name T__LANGUAGE column_name                     { CREATE_NODE(named_object, 5); }
    ;
commented_object
    : named_object
    | T__COLUMN qualified_name                                                  { CREATE_NODE(commented_object, 2); }
    | T__CONSTRAINT column_name T__ON qualified_name                            { CREATE_NODE(commented_object, 4); }
    | T__CONSTRAINT column_name T__ON T__DOMAIN qualified_name                  { CREATE_NODE(commented_object, 5); }
    | T__POLICY column_name T__ON qualified_name                                { CREATE_NODE(commented_object, 4); }
    | T__RULE column_name T__ON qualified_name                                  { CREATE_NODE(commented_object, 4); }
    | T__TRIGGER column_name T__ON qualified_name                               { CREATE_NODE(commented_object, 4); }
    | T__LARGE T__OBJECT signed_number                                          { CREATE_NODE(commented_object, 3); }
    ;
comment_statement
    : T__COMMENT T__ON commented_object T__IS string_literal                    { CREATE_NODE(comment_statement, 5); }
    | T__COMMENT T__ON commented_object T__IS T__NULL                           { CREATE_NODE(comment_statement, 5); }
    ;
security_label_statement
    : T__SECURITY T__LABEL T__ON commented_object T__IS security_label          { CREATE_NODE(security_label_statement, 6); }
    | T__SECURITY T__LABEL T__FOR word_or_string T__ON commented_object T__IS security_label
      { CREATE_NODE(security_label_statement, 8); }
    ;
security_label
    : string_literal
    | T__NULL
    ;

/* ---- Rights ---- */

grant_statement
    : T__GRANT privileges T__ON privilege_target T__TO grantees                 { CREATE_NODE(grant_statement, 6); }
    | T__GRANT privileges T__ON privilege_target T__TO grantees T__WITH T__GRANT T__OPTION
      { CREATE_NODE(grant_statement, 9); }
    | T__GRANT privileges T__ON privilege_target T__TO grantees granted_by      { CREATE_NODE(grant_statement, 7); }
    | T__GRANT privileges T__ON privilege_target T__TO grantees T__WITH T__GRANT T__OPTION granted_by
      { CREATE_NODE(grant_statement, 10); }
    | T__GRANT privilege_list T__TO grantees                                    { CREATE_NODE(grant_statement, 4); }
    | T__GRANT privilege_list T__TO grantees T__WITH T__ADMIN T__OPTION         { CREATE_NODE(grant_statement, 7); }
    | T__GRANT privilege_list T__TO grantees granted_by                         { CREATE_NODE(grant_statement, 5); }
    | T__GRANT privilege_list T__TO grantees T__WITH T__ADMIN T__OPTION granted_by
      { CREATE_NODE(grant_statement, 8); }
    ;
revoke_statement
    : T__REVOKE revoked_privileges                                              { CREATE_NODE(revoke_statement, 2); }
    | T__REVOKE revoked_privileges revoke_tail                                  { CREATE_NODE(revoke_statement, 3); }
    ;
revoked_privileges
    : privileges T__ON privilege_target T__FROM grantees                        { CREATE_NODE(revoked_privileges, 5); }
    | T__GRANT T__OPTION T__FOR privileges T__ON privilege_target T__FROM grantees
      { CREATE_NODE(revoked_privileges, 8); }
    | privilege_list T__FROM grantees                                           { CREATE_NODE(revoked_privileges, 3); }
    | T__ADMIN T__OPTION T__FOR privilege_list T__FROM grantees                 { CREATE_NODE(revoked_privileges, 6); }
    ;
revoke_tail
    : granted_by
    | drop_behavior
    | granted_by drop_behavior                                                  { CREATE_NODE(revoke_tail, 2); }
    ;
granted_by
    : T__GRANTED T__BY role                                                     { CREATE_NODE(granted_by, 3); }
    ;
grantees
    : grantee
    | grantees T__COMMA grantee                                                 { CREATE_NODE(grantees, 3); }
    ;
grantee
    : role
    | T__GROUP role                                                             { CREATE_NODE(grantee, 2); }
    ;
privileges
    : privilege_list
    | T__ALL
    | T__ALL T__PRIVILEGES                                                      { CREATE_NODE(privileges, 2); }
    | T__ALL parenthesized_names                                                { CREATE_NODE(privileges, 2); }
    | T__ALL T__PRIVILEGES parenthesized_names                                  { CREATE_NODE(privileges, 3); }
    ;
privilege_list
    : privilege
    | privilege_list T__COMMA privilege                                         { CREATE_NODE(privilege_list, 3); }
    ;
privilege
    : privilege_word
    | privilege_word parenthesized_names                                        { CREATE_NODE(privilege, 2); }
    | T__ALTER T__SYSTEM                                                        { CREATE_NODE(privilege, 2); }
    ;
privilege_word
    : T__SELECT
    | T__REFERENCES
    | T__CREATE
    | column_name
    ;
privilege_target
    : qualified_name_list
    | T__TABLE qualified_name_list                                              { CREATE_NODE(privilege_target, 2); }
    | T__SEQUENCE qualified_name_list                                           { CREATE_NODE(privilege_target, 2); }
    | T__FOREIGN T__DATA T__WRAPPER name_list                                   { CREATE_NODE(privilege_target, 4); }
    | T__FOREIGN T__SERVER name_list                                            { CREATE_NODE(privilege_target, 3); }
    | any_routine_word routine_signatures                                       { CREATE_NODE(privilege_target, 2); }
    | T__DATABASE name_list                                                     { CREATE_NODE(privilege_target, 2); }
    | T__DOMAIN qualified_name_list                                             { CREATE_NODE(privilege_target, 2); }
    | T__LANGUAGE name_list                                                     { CREATE_NODE(privilege_target, 2); }
    | T__LARGE T__OBJECT number_list                                            { CREATE_NODE(privilege_target, 3); }
    | T__PARAMETER qualified_name_list                                          { CREATE_NODE(privilege_target, 2); }
    | T__SCHEMA name_list                                                       { CREATE_NODE(privilege_target, 2); }
    | T__TABLESPACE name_list                                                   { CREATE_NODE(privilege_target, 2); }
    | T__TYPE qualified_name_list                                               { CREATE_NODE(privilege_target, 2); }
    | T__ALL T__TABLES T__IN T__SCHEMA name_list                                { CREATE_NODE(privilege_target, 5); }
    | T__ALL T__SEQUENCES T__IN T__SCHEMA name_list                             { CREATE_NODE(privilege_target, 5); }
    | T__ALL T__FUNCTIONS T__IN T__SCHEMA name_list                             { CREATE_NODE(privilege_target, 5); }
    | T__ALL T__PROCEDURES T__IN T__SCHEMA name_list                            { CREATE_NODE(privilege_target, 5); }
    | T__ALL T__ROUTINES T__IN T__SCHEMA name_list                              { CREATE_NODE(privilege_target, 5); }
    ;
number_list
    : signed_number
    | number_list T__COMMA signed_number                                        { CREATE_NODE(number_list, 3); }
    ;
reassign_owned
    : T__REASSIGN T__OWNED T__BY role_list T__TO role                           { CREATE_NODE(reassign_owned, 6); }
    ;

/* ---- Transactions ---- */

transaction_statement
    : T__ABORT
    | T__ABORT transaction_words                                                { CREATE_NODE(transaction_statement, 2); }
    | T__START T__TRANSACTION                                                   { CREATE_NODE(transaction_statement, 2); }
    | T__START T__TRANSACTION transaction_modes                                 { CREATE_NODE(transaction_statement, 3); }
    | T__COMMIT
    | T__COMMIT transaction_words                                               { CREATE_NODE(transaction_statement, 2); }
    | T__ROLLBACK
    | T__ROLLBACK transaction_words                                             { CREATE_NODE(transaction_statement, 2); }
    | T__SAVEPOINT column_name                                                  { CREATE_NODE(transaction_statement, 2); }
    | T__RELEASE column_name                                                    { CREATE_NODE(transaction_statement, 2); }
    | T__RELEASE T__SAVEPOINT column_name                                       { CREATE_NODE(transaction_statement, 3); }
    | T__ROLLBACK T__TO column_name                                             { CREATE_NODE(transaction_statement, 3); }
    | T__ROLLBACK T__TO T__SAVEPOINT column_name                                { CREATE_NODE(transaction_statement, 4); }
    | T__ROLLBACK transaction_word T__TO column_name                            { CREATE_NODE(transaction_statement, 4); }
    | T__ROLLBACK transaction_word T__TO T__SAVEPOINT column_name               { CREATE_NODE(transaction_statement, 5); }
    | T__PREPARE T__TRANSACTION string_literal                                  { CREATE_NODE(transaction_statement, 3); }
    | T__COMMIT T__PREPARED string_literal                                      { CREATE_NODE(transaction_statement, 3); }
    | T__ROLLBACK T__PREPARED string_literal                                    { CREATE_NODE(transaction_statement, 3); }
    ;
begin_end_statement
    : T__BEGIN                                                                  { CREATE_NODE(transaction_statement, 1); }
    | T__BEGIN transaction_word                                                 { CREATE_NODE(transaction_statement, 2); }
    | T__BEGIN transaction_modes                                                { CREATE_NODE(transaction_statement, 2); }
    | T__BEGIN transaction_word transaction_modes                               { CREATE_NODE(transaction_statement, 3); }
    | T__END                                                                    { CREATE_NODE(transaction_statement, 1); }
    | T__END transaction_words                                                  { CREATE_NODE(transaction_statement, 2); }
    ;
transaction_word
    : T__WORK
    | T__TRANSACTION
    ;
transaction_words
    : transaction_word
    | transaction_chain
    | transaction_word transaction_chain                                        { CREATE_NODE(transaction_words, 2); }
    ;
transaction_chain
    : T__AND T__CHAIN                                                           { CREATE_NODE(transaction_chain, 2); }
    | T__AND T__NO T__CHAIN                                                     { CREATE_NODE(transaction_chain, 3); }
    ;
transaction_modes
    : transaction_mode
    | transaction_modes transaction_mode                                        { CREATE_NODE(transaction_modes, 2); }
    | transaction_modes T__COMMA transaction_mode                               { CREATE_NODE(transaction_modes, 3); }
    ;
transaction_mode
    : T__ISOLATION T__LEVEL isolation_level                                     { CREATE_NODE(transaction_mode, 3); }
    | T__READ T__ONLY                                                           { CREATE_NODE(transaction_mode, 2); }
    | T__READ T__WRITE                                                          { CREATE_NODE(transaction_mode, 2); }
    | T__DEFERRABLE
    | T__NOT T__DEFERRABLE                                                      { CREATE_NODE(transaction_mode, 2); }
    ;
isolation_level
    : T__READ T__UNCOMMITTED                                                    { CREATE_NODE(isolation_level, 2); }
    | T__READ T__COMMITTED                                                      { CREATE_NODE(isolation_level, 2); }
    | T__REPEATABLE T__READ                                                     { CREATE_NODE(isolation_level, 2); }
    | T__SERIALIZABLE
    ;

/* ---- Settings ---- */

set_statement
    : T__SET set_target                                                         { CREATE_NODE(set_statement, 2); }
    | T__SET T__LOCAL set_target                                                { CREATE_NODE(set_statement, 3); }
    | T__SET T__SESSION set_target                                              { CREATE_NODE(set_statement, 3); }
    ;
set_target
    : T__TRANSACTION transaction_modes                                          { CREATE_NODE(set_target, 2); }
    | T__SESSION T__CHARACTERISTICS T__AS T__TRANSACTION transaction_modes      { CREATE_NODE(set_target, 5); }
    | set_item_more
    ;
set_item_more
    : setting
    | qualified_name T__FROM T__CURRENT                                         { CREATE_NODE(set_item_more, 3); }
    | T__TIME T__ZONE time_zone_value                                           { CREATE_NODE(set_item_more, 3); }
    | T__CATALOG string_literal                                                 { CREATE_NODE(set_item_more, 2); }
    | T__SCHEMA string_literal                                                  { CREATE_NODE(set_item_more, 2); }
    | T__NAMES
    | T__NAMES string_literal                                                   { CREATE_NODE(set_item_more, 2); }
    | T__NAMES T__DEFAULT                                                       { CREATE_NODE(set_item_more, 2); }
    | T__ROLE word_or_string                                                    { CREATE_NODE(set_item_more, 2); }
    | T__SESSION T__AUTHORIZATION word_or_string                                { CREATE_NODE(set_item_more, 3); }
    | T__SESSION T__AUTHORIZATION T__DEFAULT                                    { CREATE_NODE(set_item_more, 3); }
    | T__XML T__OPTION document_or_content                                      { CREATE_NODE(set_item_more, 3); }
    | T__TRANSACTION T__SNAPSHOT string_literal                                 { CREATE_NODE(set_item_more, 3); }
    ;
setting
    : qualified_name T__TO setting_values                                       { CREATE_NODE(setting, 3); }
    | qualified_name T__EQUAL setting_values                                    { CREATE_NODE(setting, 3); }
    | qualified_name T__TO T__DEFAULT                                           { CREATE_NODE(setting, 3); }
    | qualified_name T__EQUAL T__DEFAULT                                        { CREATE_NODE(setting, 3); }
    ;
setting_values
    : setting_value
    | setting_values T__COMMA setting_value                                     { CREATE_NODE(setting_values, 3); }
    ;
setting_value
    : option_text
    | signed_number
    ;
time_zone_value
    : string_literal
    | plain_identifier
    | T__INTERVAL string_literal                                                { CREATE_NODE(time_zone_value, 2); }
    | T__INTERVAL string_literal interval_fields                                { CREATE_NODE(time_zone_value, 3); }
    | T__INTERVAL T__LPAREN T__INTEGER_NUMBER T__RPAREN string_literal          { CREATE_NODE(time_zone_value, 5); }
    | signed_number
    | T__DEFAULT
    | T__LOCAL
    ;
show_statement
    : T__SHOW shown_setting                                                     { CREATE_NODE(show_statement, 2); }
    ;
reset_statement
    : T__RESET reset_target                                                     { CREATE_NODE(reset_statement, 2); }
    ;
reset_target
    : shown_setting
    ;
shown_setting
    : qualified_name
    | T__TIME T__ZONE                                                           { CREATE_NODE(shown_setting, 2); }
    | T__TRANSACTION T__ISOLATION T__LEVEL                                      { CREATE_NODE(shown_setting, 3); }
    | T__SESSION T__AUTHORIZATION                                               { CREATE_NODE(shown_setting, 2); }
    | T__ALL
    ;
constraints_statement
    : T__SET T__CONSTRAINTS T__ALL constraints_mode                             { CREATE_NODE(constraints_statement, 4); }
    | T__SET T__CONSTRAINTS qualified_name_list constraints_mode                { CREATE_NODE(constraints_statement, 4); }
    ;
constraints_mode
    : T__DEFERRED
    | T__IMMEDIATE
    ;

/* ---- COPY ---- */

copy_statement
    : T__COPY copied_table copy_direction copy_place                            { CREATE_NODE(copy_statement, 4); }
    | T__COPY copied_table copy_direction copy_place copy_clauses               { CREATE_NODE(copy_statement, 5); }
    | T__COPY T__LPAREN preparable_statement T__RPAREN T__TO copy_place         { CREATE_NODE(copy_statement, 6); }
    | T__COPY T__LPAREN preparable_statement T__RPAREN T__TO copy_place copy_clauses
      { CREATE_NODE(copy_statement, 7); }
    ;
copied_table
    : qualified_name
    | qualified_name parenthesized_names                                        { CREATE_NODE(copied_table, 2); }
    | T__BINARY qualified_name                                                  { CREATE_NODE(copied_table, 2); }
    | T__BINARY qualified_name parenthesized_names                              { CREATE_NODE(copied_table, 3); }
    ;
copy_direction
    : T__FROM
    | T__TO
    ;
copy_place
    : string_literal
    | T__PROGRAM string_literal                                                 { CREATE_NODE(copy_place, 2); }
    | T__STDIN
    | T__STDOUT
    ;
copy_clauses
    : copy_delimiters
    | copy_with
    | where_clause
    | copy_delimiters copy_with                                                 { CREATE_NODE(copy_clauses, 2); }
    | copy_delimiters where_clause                                              { CREATE_NODE(copy_clauses, 2); }
    | copy_with where_clause                                                    { CREATE_NODE(copy_clauses, 2); }
    | copy_delimiters copy_with where_clause                                    { CREATE_NODE(copy_clauses, 3); }
    ;
copy_delimiters
    : T__DELIMITERS string_literal                                              { CREATE_NODE(copy_delimiters, 2); }
    | T__USING T__DELIMITERS string_literal                                     { CREATE_NODE(copy_delimiters, 3); }
    ;
copy_with
    : copy_options
    | T__WITH copy_options                                                      { CREATE_NODE(copy_with, 2); }
    | T__WITH                                                                   { CREATE_NODE(copy_with, 1); }
    ;
copy_options
    : copy_option_list
    | T__LPAREN copy_generic_list T__RPAREN                                     { CREATE_NODE(copy_options, 3); }
    ;
copy_option_list
    : copy_option
    | copy_option_list copy_option                                              { CREATE_NODE(copy_option_list, 2); }
    ;
copy_option
    : T__BINARY
    | T__FREEZE
    | T__DELIMITER string_literal                                               { CREATE_NODE(copy_option, 2); }
    | T__DELIMITER T__AS string_literal                                         { CREATE_NODE(copy_option, 3); }
    | T__NULL string_literal                                                    { CREATE_NODE(copy_option, 2); }
    | T__NULL T__AS string_literal                                              { CREATE_NODE(copy_option, 3); }
    | T__CSV
    | T__HEADER
    | T__QUOTE string_literal                                                   { CREATE_NODE(copy_option, 2); }
    | T__QUOTE T__AS string_literal                                             { CREATE_NODE(copy_option, 3); }
    | T__ESCAPE string_literal                                                  { CREATE_NODE(copy_option, 2); }
    | T__ESCAPE T__AS string_literal                                            { CREATE_NODE(copy_option, 3); }
    | T__FORCE T__QUOTE name_list                                               { CREATE_NODE(copy_option, 3); }
    | T__FORCE T__QUOTE T__ASTERISK                                             { CREATE_NODE(copy_option, 3); }
    | T__FORCE T__NOT T__NULL name_list                                         { CREATE_NODE(copy_option, 4); }
    | T__FORCE T__NULL name_list                                                { CREATE_NODE(copy_option, 3); }
    | T__ENCODING string_literal                                                { CREATE_NODE(copy_option, 2); }
    ;
copy_generic_list
    : copy_generic_option
    | copy_generic_list T__COMMA copy_generic_option                            { CREATE_NODE(copy_generic_list, 3); }
    ;
copy_generic_option
    : any_label
    | any_label copy_generic_value                                              { CREATE_NODE(copy_generic_option, 2); }
    ;
copy_generic_value
    : option_text
    | signed_number
    | T__ASTERISK
    | T__LPAREN copy_value_list T__RPAREN                                       { CREATE_NODE(copy_generic_value, 3); }
    ;
copy_value_list
    : option_text
    | copy_value_list T__COMMA option_text                                      { CREATE_NODE(copy_value_list, 3); }
    ;

/* ---- EXPLAIN, DO, CALL, prepared statements ---- */

utility_options
    : T__LPAREN utility_option_list T__RPAREN                                   { CREATE_NODE(utility_options, 3); }
    ;
utility_option_list
    : utility_option
    | utility_option_list T__COMMA utility_option                               { CREATE_NODE(utility_option_list, 3); }
    ;
utility_option
    : utility_option_name
    | utility_option_name option_text                                           { CREATE_NODE(utility_option, 2); }
    | utility_option_name signed_number                                         { CREATE_NODE(utility_option, 2); }
    ;
utility_option_name
    : non_reserved_word
    | T__ANALYZE
    | T__ANALYSE
    ;
analyze_word
    : T__ANALYZE
    | T__ANALYSE
    ;
explain_statement
    : T__EXPLAIN explained_statement                                            { CREATE_NODE(explain_statement, 2); }
    | T__EXPLAIN analyze_word explained_statement                               { CREATE_NODE(explain_statement, 3); }
    | T__EXPLAIN T__VERBOSE explained_statement                                 { CREATE_NODE(explain_statement, 3); }
    | T__EXPLAIN analyze_word T__VERBOSE explained_statement                    { CREATE_NODE(explain_statement, 4); }
    | T__EXPLAIN utility_options explained_statement                            { CREATE_NODE(explain_statement, 3); }
    ;
explained_statement
    : query
    | insert_statement
    | update_statement
    | delete_statement
    | merge_statement
    | declare_cursor
    | create_table
    | create_materialized_view
    | refresh_statement
    | execute_statement
    ;
do_statement
    : T__DO do_items                                                            { CREATE_NODE(do_statement, 2); }
    ;
do_items
    : do_item
    | do_items do_item                                                          { CREATE_NODE(do_items, 2); }
    ;
do_item
    : string_literal
    | T__LANGUAGE word_or_string                                                { CREATE_NODE(do_item, 2); }
    ;
call_statement
    : T__CALL function_call                                                     { CREATE_NODE(call_statement, 2); }
    ;
prepare_statement
    : T__PREPARE column_name T__AS prepared_statement                           { CREATE_NODE(prepare_statement, 4); }
    | T__PREPARE column_name T__LPAREN type_list T__RPAREN T__AS prepared_statement
      { CREATE_NODE(prepare_statement, 7); }
    ;
prepared_statement
    : preparable_statement
    | merge_statement
    ;
execute_statement
    : T__EXECUTE column_name                                                    { CREATE_NODE(execute_statement, 2); }
    | T__EXECUTE column_name T__LPAREN expression_list T__RPAREN                { CREATE_NODE(execute_statement, 5); }
    ;
deallocate_statement
    : T__DEALLOCATE column_name                                                 { CREATE_NODE(deallocate_statement, 2); }
    | T__DEALLOCATE T__PREPARE column_name                                      { CREATE_NODE(deallocate_statement, 3); }
    | T__DEALLOCATE T__ALL                                                      { CREATE_NODE(deallocate_statement, 2); }
    | T__DEALLOCATE T__PREPARE T__ALL                                           { CREATE_NODE(deallocate_statement, 3); }
    ;

/* ---- Cursors ---- */

declare_cursor
    : T__DECLARE column_name T__CURSOR T__FOR query                             { CREATE_NODE(declare_cursor, 5); }
    | T__DECLARE column_name cursor_options T__CURSOR T__FOR query              { CREATE_NODE(declare_cursor, 6); }
    | T__DECLARE column_name T__CURSOR hold_option T__FOR query                 { CREATE_NODE(declare_cursor, 6); }
    | T__DECLARE column_name cursor_options T__CURSOR hold_option T__FOR query  { CREATE_NODE(declare_cursor, 7); }
    ;
cursor_options
    : cursor_option
    | cursor_options cursor_option                                              { CREATE_NODE(cursor_options, 2); }
    ;
cursor_option
    : T__NO T__SCROLL                                                           { CREATE_NODE(cursor_option, 2); }
    | T__SCROLL
    | T__BINARY
    | T__ASENSITIVE
    | T__INSENSITIVE
    ;
hold_option
    : T__WITH T__HOLD                                                           { CREATE_NODE(hold_option, 2); }
    | T__WITHOUT T__HOLD                                                        { CREATE_NODE(hold_option, 2); }
    ;
fetch_statement
    : T__FETCH fetch_target                                                     { CREATE_NODE(fetch_statement, 2); }
    | T__MOVE fetch_target                                                      { CREATE_NODE(fetch_statement, 2); }
    ;
fetch_target
    : column_name
    | from_in column_name                                                       { CREATE_NODE(fetch_target, 2); }
    | fetch_direction column_name                                               { CREATE_NODE(fetch_target, 2); }
    | fetch_direction from_in column_name                                       { CREATE_NODE(fetch_target, 3); }
    ;
from_in
    : T__FROM
    | T__IN
    ;
fetch_direction
    : T__NEXT
    | T__PRIOR
    | T__FIRST
    | T__LAST
    | T__ABSOLUTE signed_integer                                                { CREATE_NODE(fetch_direction, 2); }
    | T__RELATIVE signed_integer                                                { CREATE_NODE(fetch_direction, 2); }
    | signed_integer
    | T__ALL
    | T__FORWARD
    | T__FORWARD signed_integer                                                 { CREATE_NODE(fetch_direction, 2); }
    | T__FORWARD T__ALL                                                         { CREATE_NODE(fetch_direction, 2); }
    | T__BACKWARD
    | T__BACKWARD signed_integer                                                { CREATE_NODE(fetch_direction, 2); }
    | T__BACKWARD T__ALL                                                        { CREATE_NODE(fetch_direction, 2); }
    ;
close_statement
    : T__CLOSE column_name                                                      { CREATE_NODE(close_statement, 2); }
    | T__CLOSE T__ALL                                                           { CREATE_NODE(close_statement, 2); }
    ;

/* ---- Locks and upkeep ---- */

lock_statement
    : T__LOCK locked_relations                                                  { CREATE_NODE(lock_statement, 2); }
    | T__LOCK locked_relations T__NOWAIT                                        { CREATE_NODE(lock_statement, 3); }
    | T__LOCK locked_relations lock_mode                                        { CREATE_NODE(lock_statement, 3); }
    | T__LOCK locked_relations lock_mode T__NOWAIT                              { CREATE_NODE(lock_statement, 4); }
    ;
locked_relations
    : relation_list
    | T__TABLE relation_list                                                    { CREATE_NODE(locked_relations, 2); }
    ;
lock_mode
    : T__IN lock_mode_words T__MODE                                             { CREATE_NODE(lock_mode, 3); }
    ;
lock_mode_words
    : T__ACCESS T__SHARE                                                        { CREATE_NODE(lock_mode_words, 2); }
    | T__ROW T__SHARE                                                           { CREATE_NODE(lock_mode_words, 2); }
    | T__ROW T__EXCLUSIVE                                                       { CREATE_NODE(lock_mode_words, 2); }
    | T__SHARE T__UPDATE T__EXCLUSIVE                                           { CREATE_NODE(lock_mode_words, 3); }
    | T__SHARE
    | T__SHARE T__ROW T__EXCLUSIVE                                              { CREATE_NODE(lock_mode_words, 3); }
    | T__EXCLUSIVE
    | T__ACCESS T__EXCLUSIVE                                                    { CREATE_NODE(lock_mode_words, 2); }
    ;
truncate_statement
    : T__TRUNCATE locked_relations                                              { CREATE_NODE(truncate_statement, 2); }
    | T__TRUNCATE locked_relations truncate_tail                                { CREATE_NODE(truncate_statement, 3); }
    ;
truncate_tail
    : identity_restart
    | drop_behavior
    | identity_restart drop_behavior                                            { CREATE_NODE(truncate_tail, 2); }
    ;
identity_restart
    : T__CONTINUE T__IDENTITY                                                   { CREATE_NODE(identity_restart, 2); }
    | T__RESTART T__IDENTITY                                                    { CREATE_NODE(identity_restart, 2); }
    ;
vacuum_statement
    : T__VACUUM
    | T__VACUUM vacuumed_relations                                              { CREATE_NODE(vacuum_statement, 2); }
    | T__VACUUM vacuum_words                                                    { CREATE_NODE(vacuum_statement, 2); }
    | T__VACUUM vacuum_words vacuumed_relations                                 { CREATE_NODE(vacuum_statement, 3); }
    | T__VACUUM utility_options                                                 { CREATE_NODE(vacuum_statement, 2); }
    | T__VACUUM utility_options vacuumed_relations                              { CREATE_NODE(vacuum_statement, 3); }
    ;
vacuum_words
    : vacuum_word
    | vacuum_words vacuum_word                                                  { CREATE_NODE(vacuum_words, 2); }
    ;
vacuum_word
    : T__FULL
    | T__FREEZE
    | T__VERBOSE
    | analyze_word
    ;
vacuumed_relations
    : vacuumed_relation
    | vacuumed_relations T__COMMA vacuumed_relation                             { CREATE_NODE(vacuumed_relations, 3); }
    ;
vacuumed_relation
    : qualified_name
    | qualified_name parenthesized_names                                        { CREATE_NODE(vacuumed_relation, 2); }
    ;
analyze_statement
    : analyze_word
    | analyze_word vacuumed_relations                                           { CREATE_NODE(analyze_statement, 2); }
    | analyze_word T__VERBOSE                                                   { CREATE_NODE(analyze_statement, 2); }
    | analyze_word T__VERBOSE vacuumed_relations                                { CREATE_NODE(analyze_statement, 3); }
    | analyze_word utility_options                                              { CREATE_NODE(analyze_statement, 2); }
    | analyze_word utility_options vacuumed_relations                           { CREATE_NODE(analyze_statement, 3); }
    ;
cluster_statement
    : T__CLUSTER
    | T__CLUSTER T__VERBOSE                                                     { CREATE_NODE(cluster_statement, 2); }
    | T__CLUSTER utility_options                                                { CREATE_NODE(cluster_statement, 2); }
    | T__CLUSTER clustered_relation                                             { CREATE_NODE(cluster_statement, 2); }
    | T__CLUSTER T__VERBOSE clustered_relation                                  { CREATE_NODE(cluster_statement, 3); }
    | T__CLUSTER utility_options clustered_relation                             { CREATE_NODE(cluster_statement, 3); }
    ;
clustered_relation
    : qualified_name
    | qualified_name T__USING column_name                                       { CREATE_NODE(clustered_relation, 3); }
    | column_name T__ON qualified_name                                          { CREATE_NODE(clustered_relation, 3); }
    ;
reindex_statement
    : T__REINDEX reindex_target                                                 { CREATE_NODE(reindex_statement, 2); }
    | T__REINDEX utility_options reindex_target                                 { CREATE_NODE(reindex_statement, 3); }
    ;
reindex_target
    : reindex_word qualified_name                                               { CREATE_NODE(reindex_target, 2); }
    | reindex_word T__CONCURRENTLY qualified_name                               { CREATE_NODE(reindex_target, 3); }
    ;
reindex_word
    : T__INDEX
    | T__TABLE
    | T__SCHEMA
    | T__SYSTEM
    | T__DATABASE
    ;
refresh_statement
    : T__REFRESH T__MATERIALIZED T__VIEW qualified_name                         { CREATE_NODE(refresh_statement, 4); }
    | T__REFRESH T__MATERIALIZED T__VIEW T__CONCURRENTLY qualified_name         { CREATE_NODE(refresh_statement, 5); }
    | T__REFRESH T__MATERIALIZED T__VIEW qualified_name with_data               { CREATE_NODE(refresh_statement, 5); }
    | T__REFRESH T__MATERIALIZED T__VIEW T__CONCURRENTLY qualified_name with_data
      { CREATE_NODE(refresh_statement, 6); }
    ;

/* ---- Notification and the rest ---- */

listen_statement
    : T__LISTEN column_name                                                     { CREATE_NODE(listen_statement, 2); }
    | T__UNLISTEN column_name                                                   { CREATE_NODE(listen_statement, 2); }
    | T__UNLISTEN T__ASTERISK                                                   { CREATE_NODE(listen_statement, 2); }
    | notify_statement
    ;
notify_statement
    : T__NOTIFY column_name                                                     { CREATE_NODE(notify_statement, 2); }
    | T__NOTIFY column_name T__COMMA string_literal                             { CREATE_NODE(notify_statement, 4); }
    ;
discard_statement
    : T__DISCARD T__ALL                                                         { CREATE_NODE(discard_statement, 2); }
    | T__DISCARD T__TEMP                                                        { CREATE_NODE(discard_statement, 2); }
    | T__DISCARD T__TEMPORARY                                                   { CREATE_NODE(discard_statement, 2); }
    | T__DISCARD T__PLANS                                                       { CREATE_NODE(discard_statement, 2); }
    | T__DISCARD T__SEQUENCES                                                   { CREATE_NODE(discard_statement, 2); }
    ;
load_statement
    : T__LOAD string_literal                                                    { CREATE_NODE(load_statement, 2); }
    ;

/* ---- Keyword classes ---- */

/* Words without meaning of their own outside of their statements: any name. */
unreserved_keyword
    : %words unreserved
    ;

/* Words that can't name a function or a type, since a construct of theirs looks like one. */
column_name_keyword
    : %words column_name
    ;

/* Words that name functions and types, and nothing else. */
type_function_name_keyword
    : %words type_function_name
    ;

reserved_keyword
    : %words reserved
    ;

bare_label_keyword
    : %words bare_label
    ;
%%
