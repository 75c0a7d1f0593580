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
    : %empty                                                                    { NODE(SQL); }
    | pl_sql_statements                                                         { NODE(SQL); }
    ;

/* Statements come in chunks of chunks under one name, so that a long script doesn't become a deep chain. */
%list pl_sql_statements: delimited %last last_statement %deep ;

/* What stands behind the last delimiter. A rule may end in an error where nothing but the end of the text follows:
   anywhere else the parser would raise the error again on the same token. */
last_statement
    : pl_sql_statement
    | error                                                                     { NODE(pl_sql_statement); }
    ;

delimited
    : pl_sql_statement pl_sql_statement_delimiter                               { NODE(delimited_pl_sql_statement); }
    | pl_sql_statement_delimiter                                                { NODE(delimited_pl_sql_statement); }
    | error pl_sql_statement_delimiter                                          { NODE(delimited_pl_sql_statement); }
    ;

pl_sql_statement_delimiter
    : T__SEMICOLON                                                              { NODE; }
    | T__CLIENT_SEND                                                            { NODE; }
    ;

/* BEGIN and END as statements stand at the top alone: in the body of a routine END closes the body. */
pl_sql_statement
    : statement                                                                 { NODE; }
    | begin_end_statement                                                       { NODE; }
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
    : T__IDENTIFIER                                                             { NODE(sql_identifier); }
    | other_identifier                                                          { NODE(sql_identifier); }
    ;

/* Names of columns, tables and most objects. */
column_name
    : T__IDENTIFIER                                                             { NODE(sql_identifier); }
    | other_identifier                                                          { NODE(sql_identifier); }
    | unreserved_keyword                                                        { NODE(sql_identifier); }
    | column_name_keyword                                                       { NODE(sql_identifier); }
    ;

/* Names of functions and types. */
type_function_name
    : T__IDENTIFIER                                                             { NODE(sql_identifier); }
    | other_identifier                                                          { NODE(sql_identifier); }
    | unreserved_keyword                                                        { NODE(sql_identifier); }
    | type_function_name_keyword                                                { NODE(sql_identifier); }
    ;

non_reserved_word
    : T__IDENTIFIER                                                             { NODE(sql_identifier); }
    | other_identifier                                                          { NODE(sql_identifier); }
    | unreserved_keyword                                                        { NODE(sql_identifier); }
    | column_name_keyword                                                       { NODE(sql_identifier); }
    | type_function_name_keyword                                                { NODE(sql_identifier); }
    ;

/* Any word at all: behind a dot, behind AS. */
any_label
    : T__IDENTIFIER                                                             { NODE(sql_identifier); }
    | other_identifier                                                          { NODE(sql_identifier); }
    | unreserved_keyword                                                        { NODE(sql_identifier); }
    | column_name_keyword                                                       { NODE(sql_identifier); }
    | type_function_name_keyword                                                { NODE(sql_identifier); }
    | reserved_keyword                                                          { NODE(sql_identifier); }
    ;

/* Words that name a select item without AS. */
bare_label
    : T__IDENTIFIER                                                             { NODE(sql_identifier); }
    | other_identifier                                                          { NODE(sql_identifier); }
    | bare_label_keyword                                                        { NODE(sql_identifier); }
    ;

dotted_name
    : column_name T__DOT any_label                                              { NODE(qualified_sql_identifier); }
    | dotted_name T__DOT any_label                                              { NODE(qualified_sql_identifier); }
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
    : type_function_name T__DOT any_label                                       { NODE(qualified_sql_identifier); }
    | dotted_type_name T__DOT any_label                                         { NODE(qualified_sql_identifier); }
    ;

%list name_list: column_name %separator T__COMMA ;

qualified_name_list
    : qualified_name                                                            { NODE; }
    | qualified_name_list T__COMMA qualified_name                               { NODE; }
    ;

parenthesized_names
    : T__LPAREN name_list T__RPAREN                                             { NODE; }
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
    : T__DOLLAR_QUOTE_BEGIN T__DOLLAR_QUOTE_END                                 { NODE; }
    | T__DOLLAR_QUOTE_BEGIN dollar_text T__DOLLAR_QUOTE_END                     { NODE; }
    ;
dollar_text
    : T__DOLLAR_QUOTED_TEXT
    | dollar_text T__DOLLAR_QUOTED_TEXT                                         { NODE; }
    ;

number
    : T__INTEGER_NUMBER
    | T__DECIMAL_NUMBER
    | T__REAL_NUMBER
    ;

signed_integer
    : T__INTEGER_NUMBER
    | T__PLUS T__INTEGER_NUMBER                                                 { NODE; }
    | T__MINUS T__INTEGER_NUMBER                                                { NODE; }
    ;

signed_number
    : number
    | T__PLUS number                                                            { NODE; }
    | T__MINUS number                                                           { NODE; }
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
    | function_name string_literal                                              { NODE(typed_literal); }
    | function_name T__LPAREN function_arguments T__RPAREN string_literal       { NODE(typed_literal); }
    | function_name T__LPAREN function_arguments sort_clause T__RPAREN string_literal
      { NODE(typed_literal); }
    | constant_type string_literal                                              { NODE(typed_literal); }
    | T__INTERVAL string_literal                                                { NODE(typed_literal); }
    | T__INTERVAL string_literal interval_fields                                { NODE(typed_literal); }
    | T__INTERVAL T__LPAREN T__INTEGER_NUMBER T__RPAREN string_literal          { NODE(typed_literal); }
    ;

/* ---- Types ---- */

type_name
    : simple_type
    | simple_type array_bounds                                                  { NODE; }
    | T__SETOF simple_type                                                      { NODE; }
    | T__SETOF simple_type array_bounds                                         { NODE; }
    | simple_type T__ARRAY                                                      { NODE; }
    | T__SETOF simple_type T__ARRAY                                             { NODE; }
    | simple_type T__ARRAY T__LBRACKET T__INTEGER_NUMBER T__RBRACKET            { NODE; }
    | T__SETOF simple_type T__ARRAY T__LBRACKET T__INTEGER_NUMBER T__RBRACKET   { NODE; }
    ;

array_bounds
    : T__LBRACKET T__RBRACKET                                                   { NODE; }
    | T__LBRACKET T__INTEGER_NUMBER T__RBRACKET                                 { NODE; }
    | array_bounds T__LBRACKET T__RBRACKET                                      { NODE; }
    | array_bounds T__LBRACKET T__INTEGER_NUMBER T__RBRACKET                    { NODE; }
    ;

simple_type
    : type_function_name
    | type_function_name T__LPAREN expression_list T__RPAREN                    { NODE; }
    | dotted_type_name
    | dotted_type_name T__LPAREN expression_list T__RPAREN                      { NODE; }
    | numeric_type
    | bit_type
    | bit_type T__LPAREN expression_list T__RPAREN                              { NODE; }
    | character_type
    | character_type T__LPAREN T__INTEGER_NUMBER T__RPAREN                      { NODE; }
    | datetime_type
    | T__INTERVAL
    | T__INTERVAL interval_fields                                               { NODE; }
    | T__INTERVAL T__LPAREN T__INTEGER_NUMBER T__RPAREN                         { NODE; }
    ;

/* Types that may stand before a string without being a name. */
constant_type
    : numeric_type
    | bit_type
    | bit_type T__LPAREN expression_list T__RPAREN                              { NODE; }
    | character_type
    | character_type T__LPAREN T__INTEGER_NUMBER T__RPAREN                      { NODE; }
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
    | T__FLOAT T__LPAREN T__INTEGER_NUMBER T__RPAREN                            { NODE; }
    | T__DOUBLE T__PRECISION                                                    { NODE; }
    | T__DECIMAL
    | T__DECIMAL T__LPAREN expression_list T__RPAREN                            { NODE; }
    | T__DEC
    | T__DEC T__LPAREN expression_list T__RPAREN                                { NODE; }
    | T__NUMERIC
    | T__NUMERIC T__LPAREN expression_list T__RPAREN                            { NODE; }
    ;

bit_type
    : T__BIT
    | T__BIT T__VARYING                                                         { NODE; }
    ;

character_type
    : T__CHARACTER
    | T__CHARACTER T__VARYING                                                   { NODE; }
    | T__CHAR
    | T__CHAR T__VARYING                                                        { NODE; }
    | T__VARCHAR
    | T__NATIONAL T__CHARACTER                                                  { NODE; }
    | T__NATIONAL T__CHARACTER T__VARYING                                       { NODE; }
    | T__NATIONAL T__CHAR                                                       { NODE; }
    | T__NATIONAL T__CHAR T__VARYING                                            { NODE; }
    | T__NCHAR
    | T__NCHAR T__VARYING                                                       { NODE; }
    ;

datetime_type
    : datetime_word
    | datetime_word time_zone_part                                              { NODE; }
    | datetime_word T__LPAREN T__INTEGER_NUMBER T__RPAREN                       { NODE; }
    | datetime_word T__LPAREN T__INTEGER_NUMBER T__RPAREN time_zone_part        { NODE; }
    ;
datetime_word
    : T__TIMESTAMP
    | T__TIME
    ;
time_zone_part
    : T__WITH_LA T__TIME T__ZONE                                                { NODE; }
    | T__WITHOUT T__TIME T__ZONE                                                { NODE; }
    ;

interval_fields
    : T__YEAR
    | T__MONTH
    | T__DAY
    | T__HOUR
    | T__MINUTE
    | interval_second
    | T__YEAR T__TO T__MONTH                                                    { NODE; }
    | T__DAY T__TO T__HOUR                                                      { NODE; }
    | T__DAY T__TO T__MINUTE                                                    { NODE; }
    | T__DAY T__TO interval_second                                              { NODE; }
    | T__HOUR T__TO T__MINUTE                                                   { NODE; }
    | T__HOUR T__TO interval_second                                             { NODE; }
    | T__MINUTE T__TO interval_second                                           { NODE; }
    ;
interval_second
    : T__SECOND
    | T__SECOND T__LPAREN T__INTEGER_NUMBER T__RPAREN                           { NODE; }
    ;

/* ---- Expressions ---- */

expression
    : primary
    | expression T__TYPECAST type_name                                          { NODE; }
    | expression T__COLLATE qualified_name                                      { NODE; }
    | expression T__AT T__TIME T__ZONE expression %prec T__AT                   { NODE; }
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
    | row T__OVERLAPS row                                                       { NODE; }
    | expression T__BETWEEN restricted_expression T__AND expression %prec T__BETWEEN  { NODE; }
    | expression T__BETWEEN between_kind restricted_expression T__AND expression %prec T__BETWEEN
      { NODE; }
    | expression T__NOT_LA T__BETWEEN restricted_expression T__AND expression %prec T__NOT_LA
      { NODE; }
    | expression T__NOT_LA T__BETWEEN between_kind restricted_expression T__AND expression %prec T__NOT_LA
      { NODE; }
    | expression T__IN in_list %prec T__IN                                      { NODE; }
    | expression T__NOT_LA T__IN in_list %prec T__NOT_LA                        { NODE; }
    | expression quantified_operator quantifier subquery %prec T__OPERATOR_SYMBOL  { NODE; }
    | expression quantified_operator quantifier T__LPAREN expression T__RPAREN %prec T__OPERATOR_SYMBOL
      { NODE; }
    | T__DEFAULT
    ;

/* What may stand before an AND that isn't its own, and before keywords that could go on with an expression. */
restricted_expression
    : primary
    | restricted_expression T__TYPECAST type_name                               { NODE(expression); }
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
    | column_name T__DOT any_operator                                           { NODE; }
    ;

quantified_operator
    : operator
    | math_operator
    | T__LIKE
    | T__NOT_LA T__LIKE                                                         { NODE; }
    | T__ILIKE
    | T__NOT_LA T__ILIKE                                                        { NODE; }
    ;

in_list
    : subquery
    | T__LPAREN expression_list T__RPAREN                                       { NODE; }
    ;

%list expression_list: expression %separator T__COMMA ;

primary
    : constant
    | column_reference
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

parenthesized
    : T__LPAREN expression T__RPAREN                                            { NODE(expression); }
    ;

column_reference
    : column_name
    | dotted_name
    | column_name T__DOT T__ASTERISK                                            { NODE(qualified_sql_identifier); }
    | dotted_name T__DOT T__ASTERISK                                            { NODE(qualified_sql_identifier); }
    | column_name subscript                                                     { NODE(indirect_value); }
    | column_name subscript indirection                                         { NODE(indirect_value); }
    | dotted_name subscript                                                     { NODE(indirect_value); }
    | dotted_name subscript indirection                                         { NODE(indirect_value); }
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
    | T__LPAREN expression T__COMMA expression_list T__RPAREN                   { NODE; }
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
    : T__CASE when_list T__END                                                  { NODE; }
    | T__CASE when_list else_part T__END                                        { NODE; }
    | T__CASE expression when_list T__END                                       { NODE; }
    | T__CASE expression when_list else_part T__END                             { NODE; }
    ;
when_list
    : when_part
    | when_list when_part                                                       { NODE; }
    ;
when_part
    : T__WHEN expression T__THEN expression                                     { NODE; }
    ;
else_part
    : T__ELSE expression                                                        { NODE; }
    ;

/* ---- Functions ---- */

function_expression
    : function_call
    | function_call function_suffix                                             { NODE(function_call); }
    | special_value
    | special_function                                                          { NODE(expression); }
    ;

function_call
    : function_name T__LPAREN T__RPAREN                                         { NODE; }
    | function_name T__LPAREN function_arguments T__RPAREN                      { NODE; }
    | function_name T__LPAREN function_arguments sort_clause T__RPAREN          { NODE; }
    | function_name T__LPAREN T__ALL function_arguments T__RPAREN               { NODE; }
    | function_name T__LPAREN T__ALL function_arguments sort_clause T__RPAREN   { NODE; }
    | function_name T__LPAREN T__DISTINCT function_arguments T__RPAREN          { NODE; }
    | function_name T__LPAREN T__DISTINCT function_arguments sort_clause T__RPAREN  { NODE; }
    | function_name T__LPAREN T__ASTERISK T__RPAREN                             { NODE; }
    ;

%list function_arguments: function_argument %separator T__COMMA ;

function_argument
    : expression
    | type_function_name T__COLON_EQUAL expression                              { NODE(named_argument); }
    | type_function_name T__ARROW expression                                    { NODE(named_argument); }
    | T__VARIADIC function_argument                                             { NODE(variadic_argument); }
    ;

function_suffix
    : within_group
    | filter_clause
    | over_clause
    | within_group filter_clause                                                { NODE; }
    | within_group over_clause                                                  { NODE; }
    | filter_clause over_clause                                                 { NODE; }
    | within_group filter_clause over_clause                                    { NODE; }
    ;
within_group
    : T__WITHIN T__GROUP T__LPAREN sort_clause T__RPAREN                        { NODE; }
    ;
filter_clause
    : T__FILTER T__LPAREN T__WHERE expression T__RPAREN                         { NODE; }
    ;
over_clause
    : T__OVER window_definition                                                 { NODE; }
    | T__OVER column_name                                                       { NODE; }
    ;

special_value
    : T__CURRENT_DATE
    | T__CURRENT_TIME
    | T__CURRENT_TIME T__LPAREN T__INTEGER_NUMBER T__RPAREN                     { NODE; }
    | T__CURRENT_TIMESTAMP
    | T__CURRENT_TIMESTAMP T__LPAREN T__INTEGER_NUMBER T__RPAREN                { NODE; }
    | T__LOCALTIME
    | T__LOCALTIME T__LPAREN T__INTEGER_NUMBER T__RPAREN                        { NODE; }
    | T__LOCALTIMESTAMP
    | T__LOCALTIMESTAMP T__LPAREN T__INTEGER_NUMBER T__RPAREN                   { NODE; }
    | T__CURRENT_ROLE
    | T__CURRENT_USER
    | T__SESSION_USER
    | T__USER
    | T__CURRENT_CATALOG
    | T__CURRENT_SCHEMA
    ;

/* Functions with words of their own between their arguments. */
special_function
    : T__COLLATION T__FOR T__LPAREN expression T__RPAREN                        { NODE; }
    | T__CAST T__LPAREN expression T__AS type_name T__RPAREN                    { NODE(cast_expression); }
    | T__EXTRACT T__LPAREN extract_field T__FROM expression T__RPAREN           { NODE; }
    | T__NORMALIZE T__LPAREN expression T__RPAREN                               { NODE; }
    | T__NORMALIZE T__LPAREN expression T__COMMA normal_form T__RPAREN          { NODE; }
    | T__OVERLAY T__LPAREN expression T__PLACING expression T__FROM expression T__FOR expression T__RPAREN
      { NODE; }
    | T__OVERLAY T__LPAREN expression T__PLACING expression T__FROM expression T__RPAREN
      { NODE; }
    | T__OVERLAY T__LPAREN T__RPAREN                                            { NODE; }
    | T__OVERLAY T__LPAREN function_arguments T__RPAREN                         { NODE; }
    | T__POSITION T__LPAREN restricted_expression T__IN restricted_expression T__RPAREN
      { NODE; }
    | T__SUBSTRING T__LPAREN expression T__FROM expression T__FOR expression T__RPAREN
      { NODE; }
    | T__SUBSTRING T__LPAREN expression T__FOR expression T__FROM expression T__RPAREN
      { NODE; }
    | T__SUBSTRING T__LPAREN expression T__FROM expression T__RPAREN            { NODE; }
    | T__SUBSTRING T__LPAREN expression T__FOR expression T__RPAREN             { NODE; }
    | T__SUBSTRING T__LPAREN expression T__SIMILAR expression T__ESCAPE expression T__RPAREN
      { NODE; }
    | T__SUBSTRING T__LPAREN T__RPAREN                                          { NODE; }
    | T__SUBSTRING T__LPAREN function_arguments T__RPAREN                       { NODE; }
    | T__TREAT T__LPAREN expression T__AS type_name T__RPAREN                   { NODE(cast_expression); }
    | T__TRIM T__LPAREN trim_list T__RPAREN                                     { NODE; }
    | T__TRIM T__LPAREN trim_side trim_list T__RPAREN                           { NODE; }
    | T__NULLIF T__LPAREN expression T__COMMA expression T__RPAREN              { NODE; }
    | T__COALESCE T__LPAREN expression_list T__RPAREN                           { NODE; }
    | T__GREATEST T__LPAREN expression_list T__RPAREN                           { NODE; }
    | T__LEAST T__LPAREN expression_list T__RPAREN                              { NODE; }
    | T__XMLCONCAT T__LPAREN expression_list T__RPAREN                          { NODE; }
    | T__XMLELEMENT T__LPAREN T__NAME any_label T__RPAREN                       { NODE; }
    | T__XMLELEMENT T__LPAREN T__NAME any_label T__COMMA xml_attributes T__RPAREN
      { NODE; }
    | T__XMLELEMENT T__LPAREN T__NAME any_label T__COMMA expression_list T__RPAREN
      { NODE; }
    | T__XMLELEMENT T__LPAREN T__NAME any_label T__COMMA xml_attributes T__COMMA expression_list T__RPAREN
      { NODE; }
    | T__XMLEXISTS T__LPAREN primary xml_passing T__RPAREN                      { NODE; }
    | T__XMLFOREST T__LPAREN xml_attribute_list T__RPAREN                       { NODE; }
    | T__XMLPARSE T__LPAREN document_or_content expression T__RPAREN            { NODE; }
    | T__XMLPARSE T__LPAREN document_or_content expression whitespace_option T__RPAREN
      { NODE; }
    | T__XMLPI T__LPAREN T__NAME any_label T__RPAREN                            { NODE; }
    | T__XMLPI T__LPAREN T__NAME any_label T__COMMA expression T__RPAREN        { NODE; }
    | T__XMLROOT T__LPAREN expression T__COMMA xml_version T__RPAREN            { NODE; }
    | T__XMLROOT T__LPAREN expression T__COMMA xml_version xml_standalone T__RPAREN
      { NODE; }
    | T__XMLSERIALIZE T__LPAREN document_or_content expression T__AS simple_type T__RPAREN
      { NODE; }
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
    : expression T__FROM expression_list                                        { NODE; }
    | T__FROM expression_list                                                   { NODE; }
    | expression_list
    ;

xml_attributes
    : T__XMLATTRIBUTES T__LPAREN xml_attribute_list T__RPAREN                   { NODE; }
    ;
xml_attribute_list
    : xml_attribute
    | xml_attribute_list T__COMMA xml_attribute                                 { NODE; }
    ;
xml_attribute
    : expression
    | expression T__AS any_label                                                { NODE; }
    ;
document_or_content
    : T__DOCUMENT
    | T__CONTENT
    ;
whitespace_option
    : T__PRESERVE T__WHITESPACE                                                 { NODE; }
    | T__STRIP T__WHITESPACE                                                    { NODE; }
    ;
xml_version
    : T__VERSION expression                                                     { NODE; }
    | T__VERSION T__NO T__VALUE                                                 { NODE; }
    ;
xml_standalone
    : T__COMMA T__STANDALONE T__YES                                             { NODE; }
    | T__COMMA T__STANDALONE T__NO                                              { NODE; }
    | T__COMMA T__STANDALONE T__NO T__VALUE                                     { NODE; }
    ;
xml_passing
    : T__PASSING primary                                                        { NODE; }
    | T__PASSING primary xml_passing_mechanism                                  { NODE; }
    | T__PASSING xml_passing_mechanism primary                                  { NODE; }
    | T__PASSING xml_passing_mechanism primary xml_passing_mechanism            { NODE; }
    ;
xml_passing_mechanism
    : T__BY T__REF                                                              { NODE; }
    | T__BY T__VALUE                                                            { NODE; }
    ;

/* ---- Queries ---- */

query
    : query_body %prec UMINUS
    | subquery %prec UMINUS
    ;

subquery
    : T__LPAREN query_body T__RPAREN                                            { NODE; }
    | T__LPAREN subquery T__RPAREN                                              { NODE; }
    ;

query_body
    : simple_select
    | select_part select_tail                                                   { NODE(select_statement); }
    | with_clause select_part                                                   { NODE(select_statement); }
    | with_clause select_part select_tail                                       { NODE(select_statement); }
    ;

select_part
    : simple_select
    | subquery
    ;

select_tail
    : sort_clause
    | sort_clause select_limit_part                                             { NODE; }
    | select_limit_part
    ;
select_limit_part
    : locking_clause
    | limit_clause
    | locking_clause limit_clause                                               { NODE(select_tail); }
    | limit_clause locking_clause                                               { NODE(select_tail); }
    ;

simple_select
    : select_head                                                               { NODE(select_statement); }
    | select_head select_list                                                   { NODE(select_statement); }
    | select_head select_clauses                                                { NODE(select_statement); }
    | select_head select_list select_clauses                                    { NODE(select_statement); }
    | distinct_head select_list                                                 { NODE(select_statement); }
    | distinct_head select_list select_clauses                                  { NODE(select_statement); }
    | values_clause
    | T__TABLE relation                                                         { NODE(table_statement); }
    | select_part T__UNION select_part                                          { NODE(set_operation); }
    | select_part T__UNION set_quantifier select_part %prec T__UNION            { NODE(set_operation); }
    | select_part T__INTERSECT select_part                                      { NODE(intersect_operation); }
    | select_part T__INTERSECT set_quantifier select_part %prec T__INTERSECT    { NODE(intersect_operation); }
    | select_part T__EXCEPT select_part                                         { NODE(set_operation); }
    | select_part T__EXCEPT set_quantifier select_part %prec T__EXCEPT          { NODE(set_operation); }
    ;

set_quantifier
    : T__ALL
    | T__DISTINCT
    ;

select_head
    : T__SELECT
    | T__SELECT T__ALL                                                          { NODE; }
    ;
distinct_head
    : T__SELECT T__DISTINCT                                                     { NODE; }
    | T__SELECT T__DISTINCT T__ON T__LPAREN expression_list T__RPAREN           { NODE; }
    ;

%list select_list: select_item %separator T__COMMA ;

select_item
    : expression
    | expression T__AS any_label                                                { NODE; }
    | expression bare_label                                                     { NODE; }
    | T__ASTERISK
    ;

/* The clauses of a SELECT in their order, any of them left out. */
select_clauses
    : into_clause
    | into_clause clauses_from_from                                             { NODE; }
    | clauses_from_from
    ;
clauses_from_from
    : from_clause
    | from_clause clauses_from_where                                            { NODE(select_clauses); }
    | clauses_from_where
    ;
clauses_from_where
    : where_clause
    | where_clause clauses_from_group                                           { NODE(select_clauses); }
    | clauses_from_group
    ;
clauses_from_group
    : group_clause
    | group_clause clauses_from_having                                          { NODE(select_clauses); }
    | clauses_from_having
    ;
clauses_from_having
    : having_clause
    | having_clause window_clause                                               { NODE(select_clauses); }
    | window_clause
    ;

into_clause
    : T__INTO into_target                                                       { NODE; }
    ;
into_target
    : qualified_name
    | T__TABLE qualified_name                                                   { NODE; }
    | temporary qualified_name                                                  { NODE; }
    | temporary T__TABLE qualified_name                                         { NODE; }
    ;
temporary
    : T__TEMPORARY
    | T__TEMP
    | T__LOCAL T__TEMPORARY                                                     { NODE; }
    | T__LOCAL T__TEMP                                                          { NODE; }
    | T__GLOBAL T__TEMPORARY                                                    { NODE; }
    | T__GLOBAL T__TEMP                                                         { NODE; }
    | T__UNLOGGED
    ;

from_clause
    : T__FROM table_reference_list                                              { NODE; }
    ;
where_clause
    : T__WHERE expression                                                       { NODE; }
    ;
group_clause
    : T__GROUP T__BY group_list                                                 { NODE; }
    | T__GROUP T__BY set_quantifier group_list                                  { NODE; }
    ;
having_clause
    : T__HAVING expression                                                      { NODE; }
    ;
window_clause
    : T__WINDOW window_list                                                     { NODE; }
    ;

group_list
    : group_item                                                                { NODE; }
    | group_list T__COMMA group_item                                            { NODE; }
    ;
group_item
    : expression
    | T__LPAREN T__RPAREN                                                       { NODE; }
    | T__CUBE T__LPAREN expression_list T__RPAREN                               { NODE; }
    | T__ROLLUP T__LPAREN expression_list T__RPAREN                             { NODE; }
    | T__GROUPING T__SETS T__LPAREN group_list T__RPAREN                        { NODE; }
    ;

window_list
    : named_window
    | window_list T__COMMA named_window                                         { NODE; }
    ;
named_window
    : column_name T__AS window_definition                                       { NODE; }
    ;
window_definition
    : T__LPAREN T__RPAREN                                                       { NODE; }
    | T__LPAREN window_parts T__RPAREN                                          { NODE; }
    | T__LPAREN column_name T__RPAREN                                           { NODE; }
    | T__LPAREN column_name window_parts T__RPAREN                              { NODE; }
    ;
window_parts
    : window_partition
    | window_partition window_order_part                                        { NODE; }
    | window_order_part
    ;
window_order_part
    : sort_clause
    | sort_clause frame_clause                                                  { NODE(window_parts); }
    | frame_clause
    ;
window_partition
    : T__PARTITION T__BY expression_list                                        { NODE; }
    ;
frame_clause
    : T__RANGE frame_extent                                                     { NODE; }
    | T__RANGE frame_extent frame_exclusion                                     { NODE; }
    | T__ROWS frame_extent                                                      { NODE; }
    | T__ROWS frame_extent frame_exclusion                                      { NODE; }
    | T__GROUPS frame_extent                                                    { NODE; }
    | T__GROUPS frame_extent frame_exclusion                                    { NODE; }
    ;
frame_extent
    : frame_bound
    | T__BETWEEN frame_bound T__AND frame_bound                                 { NODE; }
    ;
frame_bound
    : T__UNBOUNDED T__PRECEDING                                                 { NODE; }
    | T__UNBOUNDED T__FOLLOWING                                                 { NODE; }
    | T__CURRENT T__ROW                                                         { NODE; }
    | expression T__PRECEDING                                                   { NODE; }
    | expression T__FOLLOWING                                                   { NODE; }
    ;
frame_exclusion
    : T__EXCLUDE T__CURRENT T__ROW                                              { NODE; }
    | T__EXCLUDE T__GROUP                                                       { NODE; }
    | T__EXCLUDE T__TIES                                                        { NODE; }
    | T__EXCLUDE T__NO T__OTHERS                                                { NODE; }
    ;

sort_clause
    : T__ORDER T__BY sort_list                                                  { NODE; }
    ;
sort_list
    : sort_item
    | sort_list T__COMMA sort_item                                              { NODE; }
    ;
sort_item
    : expression
    | expression sort_direction                                                 { NODE; }
    | expression nulls_order                                                    { NODE; }
    | expression sort_direction nulls_order                                     { NODE; }
    ;
sort_direction
    : T__ASC
    | T__DESC
    | T__USING any_operator                                                     { NODE; }
    | T__USING T__OPERATOR T__LPAREN any_operator T__RPAREN                     { NODE; }
    ;
nulls_order
    : T__NULLS_LA T__FIRST                                                      { NODE; }
    | T__NULLS_LA T__LAST                                                       { NODE; }
    ;

limit_clause
    : limit_part
    | offset_part
    | limit_part offset_part                                                    { NODE; }
    | offset_part limit_part                                                    { NODE; }
    ;
limit_part
    : T__LIMIT expression                                                       { NODE; }
    | T__LIMIT T__ALL                                                           { NODE; }
    | T__FETCH first_or_next row_or_rows only_or_ties                           { NODE; }
    | T__FETCH first_or_next fetch_count row_or_rows only_or_ties               { NODE; }
    ;
offset_part
    : T__OFFSET expression                                                      { NODE; }
    | T__OFFSET fetch_count row_or_rows                                         { NODE; }
    ;
fetch_count
    : primary
    | T__PLUS number                                                            { NODE; }
    | T__MINUS number                                                           { NODE; }
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
    | T__WITH T__TIES                                                           { NODE; }
    ;

locking_clause
    : locking_list
    | T__FOR T__READ T__ONLY                                                    { NODE; }
    ;
locking_list
    : locking_item
    | locking_list locking_item                                                 { NODE; }
    ;
locking_item
    : locking_strength
    | locking_strength locked_tables                                            { NODE; }
    | locking_strength locking_wait                                             { NODE; }
    | locking_strength locked_tables locking_wait                               { NODE; }
    ;
locking_strength
    : T__FOR T__UPDATE                                                          { NODE; }
    | T__FOR T__NO T__KEY T__UPDATE                                             { NODE; }
    | T__FOR T__SHARE                                                           { NODE; }
    | T__FOR T__KEY T__SHARE                                                    { NODE; }
    ;
locked_tables
    : T__OF qualified_name_list                                                 { NODE; }
    ;
locking_wait
    : T__NOWAIT
    | T__SKIP T__LOCKED                                                         { NODE; }
    ;

values_clause
    : T__VALUES values_rows                                                     { NODE; }
    ;
%list values_rows: values_row %separator T__COMMA ;

values_row
    : T__LPAREN expression_list T__RPAREN                                       { NODE; }
    ;

with_clause
    : T__WITH common_table_list                                                 { NODE; }
    | T__WITH_LA common_table_list                                              { NODE; }
    | T__WITH T__RECURSIVE common_table_list                                    { NODE; }
    ;
common_table_list
    : common_table
    | common_table_list T__COMMA common_table                                   { NODE; }
    ;
common_table
    : column_name cte_body                                                      { NODE; }
    | column_name parenthesized_names cte_body                                  { NODE; }
    | column_name cte_body cte_tail                                             { NODE; }
    | column_name parenthesized_names cte_body cte_tail                         { NODE; }
    ;
cte_body
    : T__AS T__LPAREN preparable_statement T__RPAREN                            { NODE; }
    | T__AS T__MATERIALIZED T__LPAREN preparable_statement T__RPAREN            { NODE; }
    | T__AS T__NOT T__MATERIALIZED T__LPAREN preparable_statement T__RPAREN     { NODE; }
    ;
cte_tail
    : search_clause
    | cycle_clause
    | search_clause cycle_clause                                                { NODE; }
    ;
search_clause
    : T__SEARCH T__DEPTH T__FIRST T__BY name_list T__SET column_name            { NODE; }
    | T__SEARCH T__BREADTH T__FIRST T__BY name_list T__SET column_name          { NODE; }
    ;
cycle_clause
    : T__CYCLE name_list T__SET column_name T__USING column_name                { NODE; }
    | T__CYCLE name_list T__SET column_name T__TO constant T__DEFAULT constant T__USING column_name
      { NODE; }
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
    | table_reference_list T__COMMA table_reference                             { NODE; }
    ;

table_reference
    : relation
    | relation alias                                                            { NODE; }
    | relation tablesample                                                      { NODE; }
    | relation alias tablesample                                                { NODE; }
    | function_table
    | function_table function_alias                                             { NODE; }
    | T__LATERAL function_table                                                 { NODE; }
    | T__LATERAL function_table function_alias                                  { NODE; }
    | xml_table
    | xml_table alias                                                           { NODE; }
    | T__LATERAL xml_table                                                      { NODE; }
    | T__LATERAL xml_table alias                                                { NODE; }
    | subquery
    | subquery alias                                                            { NODE; }
    | T__LATERAL subquery                                                       { NODE; }
    | T__LATERAL subquery alias                                                 { NODE; }
    | joined_table
    | T__LPAREN joined_table T__RPAREN alias                                    { NODE; }
    ;

relation
    : qualified_name
    | qualified_name T__ASTERISK                                                { NODE; }
    | T__ONLY qualified_name                                                    { NODE; }
    | T__ONLY T__LPAREN qualified_name T__RPAREN                                { NODE; }
    ;

alias
    : column_name                                                               { NODE; }
    | column_name parenthesized_names                                           { NODE; }
    | T__AS column_name                                                         { NODE; }
    | T__AS column_name parenthesized_names                                     { NODE; }
    ;

function_alias
    : alias
    | T__AS T__LPAREN table_function_columns T__RPAREN                          { NODE; }
    | T__AS column_name T__LPAREN table_function_columns T__RPAREN              { NODE; }
    | column_name T__LPAREN table_function_columns T__RPAREN                    { NODE; }
    ;
table_function_columns
    : table_function_column
    | table_function_columns T__COMMA table_function_column                     { NODE; }
    ;
table_function_column
    : column_name type_name                                                     { NODE; }
    | column_name type_name T__COLLATE qualified_name                           { NODE; }
    ;

tablesample
    : T__TABLESAMPLE function_name T__LPAREN expression_list T__RPAREN          { NODE; }
    | T__TABLESAMPLE function_name T__LPAREN expression_list T__RPAREN T__REPEATABLE T__LPAREN expression
      T__RPAREN                                                                 { NODE; }
    ;

plain_function
    : function_call
    | special_value
    | special_function
    ;
function_table
    : plain_function
    | plain_function T__WITH_LA T__ORDINALITY                                   { NODE; }
    | T__ROWS T__FROM T__LPAREN rows_from_list T__RPAREN                        { NODE; }
    | T__ROWS T__FROM T__LPAREN rows_from_list T__RPAREN T__WITH_LA T__ORDINALITY  { NODE; }
    ;
rows_from_list
    : rows_from_item
    | rows_from_list T__COMMA rows_from_item                                    { NODE; }
    ;
rows_from_item
    : plain_function
    | plain_function T__AS T__LPAREN table_function_columns T__RPAREN           { NODE; }
    ;

joined_table
    : T__LPAREN joined_table T__RPAREN                                          { NODE(parenthesized_join); }
    | table_reference T__CROSS T__JOIN table_reference                          { NODE; }
    | table_reference T__JOIN table_reference join_condition                    { NODE; }
    | table_reference join_type T__JOIN table_reference join_condition          { NODE; }
    | table_reference T__NATURAL T__JOIN table_reference                        { NODE; }
    | table_reference T__NATURAL join_type T__JOIN table_reference              { NODE; }
    ;
join_type
    : T__FULL
    | T__FULL T__OUTER                                                          { NODE; }
    | T__LEFT
    | T__LEFT T__OUTER                                                          { NODE; }
    | T__RIGHT
    | T__RIGHT T__OUTER                                                         { NODE; }
    | T__INNER
    ;
join_condition
    : T__ON expression                                                          { NODE; }
    | T__USING parenthesized_names                                              { NODE; }
    | T__USING parenthesized_names T__AS column_name                            { NODE; }
    ;

xml_table
    : T__XMLTABLE T__LPAREN primary xml_passing T__COLUMNS xml_table_columns T__RPAREN  { NODE; }
    | T__XMLTABLE T__LPAREN T__XMLNAMESPACES T__LPAREN xml_namespaces T__RPAREN T__COMMA primary xml_passing
      T__COLUMNS xml_table_columns T__RPAREN                                    { NODE; }
    ;
xml_table_columns
    : xml_table_column
    | xml_table_columns T__COMMA xml_table_column                               { NODE; }
    ;
xml_table_column
    : column_name type_name                                                     { NODE; }
    | column_name type_name xml_table_options                                   { NODE; }
    | column_name T__FOR T__ORDINALITY                                          { NODE; }
    ;
xml_table_options
    : xml_table_option
    | xml_table_options xml_table_option                                        { NODE; }
    ;
xml_table_option
    : plain_identifier restricted_expression                                    { NODE; }
    | T__DEFAULT restricted_expression                                          { NODE; }
    | T__NOT T__NULL                                                            { NODE; }
    | T__NULL
    ;
xml_namespaces
    : xml_namespace
    | xml_namespaces T__COMMA xml_namespace                                     { NODE; }
    ;
xml_namespace
    : restricted_expression T__AS any_label                                     { NODE; }
    | T__DEFAULT restricted_expression                                          { NODE; }
    ;

/* ---- INSERT, UPDATE, DELETE, MERGE ---- */

insert_statement
    : insert_core
    | with_clause insert_core                                                   { NODE; }
    ;
insert_core
    : T__INSERT T__INTO insert_target insert_source                             { NODE(insert_statement); }
    | T__INSERT T__INTO insert_target insert_source insert_tail                 { NODE(insert_statement); }
    ;
insert_target
    : qualified_name
    | qualified_name T__AS column_name                                          { NODE; }
    ;
insert_source
    : query
    | T__OVERRIDING overriding_kind T__VALUE query                              { NODE; }
    | insert_columns query                                                      { NODE; }
    | insert_columns T__OVERRIDING overriding_kind T__VALUE query               { NODE; }
    | T__DEFAULT T__VALUES                                                      { NODE; }
    ;
overriding_kind
    : T__USER
    | T__SYSTEM
    ;
insert_columns
    : T__LPAREN insert_column_list T__RPAREN                                    { NODE; }
    ;
%list insert_column_list: target_column %separator T__COMMA ;

target_column
    : column_name
    | column_name indirection                                                   { NODE; }
    ;
insert_tail
    : on_conflict
    | on_conflict returning_clause                                              { NODE; }
    | returning_clause
    ;
on_conflict
    : T__ON T__CONFLICT conflict_action                                         { NODE; }
    | T__ON T__CONFLICT conflict_target conflict_action                         { NODE; }
    ;
conflict_target
    : T__LPAREN index_elements T__RPAREN                                        { NODE; }
    | T__LPAREN index_elements T__RPAREN where_clause                           { NODE; }
    | T__ON T__CONSTRAINT column_name                                           { NODE; }
    ;
conflict_action
    : T__DO T__NOTHING                                                          { NODE; }
    | T__DO T__UPDATE T__SET set_list                                           { NODE; }
    | T__DO T__UPDATE T__SET set_list where_clause                              { NODE; }
    ;
returning_clause
    : T__RETURNING select_list                                                  { NODE; }
    ;

update_statement
    : update_core
    | with_clause update_core                                                   { NODE; }
    ;
update_core
    : T__UPDATE target_relation T__SET set_list                                 { NODE(update_statement); }
    | T__UPDATE target_relation T__SET set_list update_tail                     { NODE(update_statement); }
    ;
update_tail
    : from_clause
    | from_clause dml_where_part                                                { NODE(dml_clauses); }
    | dml_where_part
    ;
dml_where_part
    : dml_where
    | dml_where returning_clause                                                { NODE(dml_clauses); }
    | returning_clause
    ;
dml_where
    : where_clause
    | T__WHERE T__CURRENT T__OF column_name                                     { NODE(where_clause); }
    ;
target_relation
    : relation %prec UMINUS
    | relation column_name                                                      { NODE; }
    | relation T__AS column_name                                                { NODE; }
    ;
set_list
    : set_item
    | set_list T__COMMA set_item                                                { NODE; }
    ;
set_item
    : target_column T__EQUAL expression                                         { NODE; }
    | T__LPAREN insert_column_list T__RPAREN T__EQUAL expression                { NODE; }
    ;

delete_statement
    : delete_core
    | with_clause delete_core                                                   { NODE; }
    ;
delete_core
    : T__DELETE T__FROM target_relation                                         { NODE(delete_statement); }
    | T__DELETE T__FROM target_relation delete_tail                             { NODE(delete_statement); }
    ;
delete_tail
    : using_tables
    | using_tables dml_where_part                                               { NODE(dml_clauses); }
    | dml_where_part
    ;
using_tables
    : T__USING table_reference_list                                             { NODE; }
    ;

merge_statement
    : merge_core
    | with_clause merge_core                                                    { NODE; }
    ;
merge_core
    : T__MERGE T__INTO target_relation T__USING table_reference T__ON expression merge_when_list
      { NODE(merge_statement); }
    ;
merge_when_list
    : merge_when
    | merge_when_list merge_when                                                { NODE; }
    ;
merge_when
    : T__WHEN T__MATCHED T__THEN merge_matched_action                           { NODE; }
    | T__WHEN T__MATCHED T__AND expression T__THEN merge_matched_action         { NODE; }
    | T__WHEN T__NOT T__MATCHED T__THEN merge_insert_action                     { NODE; }
    | T__WHEN T__NOT T__MATCHED T__AND expression T__THEN merge_insert_action   { NODE; }
    ;
merge_matched_action
    : T__UPDATE T__SET set_list                                                 { NODE; }
    | T__DELETE
    | T__DO T__NOTHING                                                          { NODE; }
    ;
merge_insert_action
    : T__INSERT merge_values                                                    { NODE; }
    | T__INSERT T__OVERRIDING overriding_kind T__VALUE merge_values             { NODE; }
    | T__INSERT insert_columns merge_values                                     { NODE; }
    | T__INSERT insert_columns T__OVERRIDING overriding_kind T__VALUE merge_values
      { NODE; }
    | T__INSERT T__DEFAULT T__VALUES                                            { NODE; }
    | T__DO T__NOTHING                                                          { NODE; }
    ;
merge_values
    : T__VALUES T__LPAREN expression_list T__RPAREN                             { NODE; }
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
    | T__CHECKPOINT                                                             { NODE(checkpoint_statement); }
    | import_foreign_schema
    ;

/* ---- CREATE TABLE ---- */

create_table
    : T__CREATE T__TABLE table_definition                                       { NODE; }
    | T__CREATE temporary T__TABLE table_definition                             { NODE; }
    ;
table_definition
    : new_name T__LPAREN T__RPAREN                                              { NODE; }
    | new_name T__LPAREN table_elements T__RPAREN                               { NODE; }
    | new_name T__LPAREN T__RPAREN table_options                                { NODE; }
    | new_name T__LPAREN table_elements T__RPAREN table_options                 { NODE; }
    | new_name T__OF qualified_name                                             { NODE; }
    | new_name T__OF qualified_name typed_elements                              { NODE; }
    | new_name T__OF qualified_name table_options                               { NODE; }
    | new_name T__OF qualified_name typed_elements table_options                { NODE; }
    | new_name T__PARTITION T__OF qualified_name partition_bound                { NODE; }
    | new_name T__PARTITION T__OF qualified_name partition_bound table_options  { NODE; }
    | new_name T__PARTITION T__OF qualified_name typed_elements partition_bound  { NODE; }
    | new_name T__PARTITION T__OF qualified_name typed_elements partition_bound table_options
      { NODE; }
    | table_as
    ;
/* The name of something to be made. */
new_name
    : qualified_name
    | T__IF T__NOT T__EXISTS qualified_name                                     { NODE; }
    ;

table_as
    : new_name as_query                                                         { NODE; }
    | new_name parenthesized_names as_query                                     { NODE; }
    | new_name table_options as_query                                           { NODE; }
    | new_name parenthesized_names table_options as_query                       { NODE; }
    | new_name table_options as_execute                                         { NODE; }
    | new_name parenthesized_names as_execute                                   { NODE; }
    | new_name as_execute                                                       { NODE; }
    | new_name parenthesized_names table_options as_execute                     { NODE; }
    ;
as_query
    : T__AS query                                                               { NODE; }
    | T__AS query with_data                                                     { NODE; }
    ;
with_data
    : T__WITH T__DATA                                                           { NODE; }
    | T__WITH T__NO T__DATA                                                     { NODE; }
    ;
as_execute
    : T__AS T__EXECUTE column_name                                              { NODE; }
    | T__AS T__EXECUTE column_name T__LPAREN expression_list T__RPAREN          { NODE; }
    | T__AS T__EXECUTE column_name with_data                                    { NODE; }
    | T__AS T__EXECUTE column_name T__LPAREN expression_list T__RPAREN with_data  { NODE; }
    ;

%list table_elements: table_element %separator T__COMMA ;

table_element
    : column_definition
    | table_constraint
    | T__LIKE qualified_name                                                    { NODE; }
    | T__LIKE qualified_name like_options                                       { NODE; }
    ;
like_options
    : like_option
    | like_options like_option                                                  { NODE; }
    ;
like_option
    : T__INCLUDING like_what                                                    { NODE; }
    | T__EXCLUDING like_what                                                    { NODE; }
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
    : T__LPAREN typed_element_list T__RPAREN                                    { NODE; }
    ;
typed_element_list
    : typed_element
    | typed_element_list T__COMMA typed_element                                 { NODE; }
    ;
typed_element
    : column_name column_constraints                                            { NODE; }
    | column_name T__WITH T__OPTIONS                                            { NODE; }
    | column_name T__WITH T__OPTIONS column_constraints                         { NODE; }
    | column_name
    | table_constraint
    ;

column_definition
    : column_name type_name                                                     { NODE; }
    | column_name type_name column_constraints                                  { NODE; }
    | column_name type_name column_options                                      { NODE; }
    | column_name type_name column_options column_constraints                   { NODE; }
    ;
column_options
    : T__COMPRESSION column_name                                                { NODE; }
    | T__COMPRESSION T__DEFAULT                                                 { NODE; }
    | generic_options
    | T__COMPRESSION column_name generic_options                                { NODE; }
    | T__COMPRESSION T__DEFAULT generic_options                                 { NODE; }
    ;
column_constraints
    : column_constraint
    | column_constraints column_constraint                                      { NODE; }
    ;
column_constraint
    : T__CONSTRAINT column_name column_constraint_body                          { NODE; }
    | column_constraint_body
    | constraint_attribute
    | T__COLLATE qualified_name                                                 { NODE; }
    ;
column_constraint_body
    : T__NOT T__NULL                                                            { NODE; }
    | T__NULL
    | T__UNIQUE
    | T__UNIQUE index_parameters                                                { NODE; }
    | T__UNIQUE nulls_distinct                                                  { NODE; }
    | T__UNIQUE nulls_distinct index_parameters                                 { NODE; }
    | T__PRIMARY T__KEY                                                         { NODE; }
    | T__PRIMARY T__KEY index_parameters                                        { NODE; }
    | T__CHECK T__LPAREN expression T__RPAREN                                   { NODE; }
    | T__CHECK T__LPAREN expression T__RPAREN T__NO T__INHERIT                  { NODE; }
    | T__DEFAULT restricted_expression                                          { NODE; }
    | T__GENERATED generated_when T__AS T__IDENTITY                             { NODE; }
    | T__GENERATED generated_when T__AS T__IDENTITY T__LPAREN sequence_options T__RPAREN
      { NODE; }
    | T__GENERATED generated_when T__AS T__LPAREN expression T__RPAREN T__STORED
      { NODE; }
    | references_clause
    ;
generated_when
    : T__ALWAYS
    | T__BY T__DEFAULT                                                          { NODE; }
    ;
nulls_distinct
    : T__NULLS T__NOT T__DISTINCT                                               { NODE; }
    | T__NULLS T__DISTINCT                                                      { NODE; }
    ;
index_parameters
    : T__WITH parenthesized_definitions                                         { NODE; }
    | index_tablespace
    | T__WITH parenthesized_definitions index_tablespace                        { NODE; }
    ;
index_tablespace
    : T__USING T__INDEX T__TABLESPACE column_name                               { NODE; }
    ;
references_clause
    : T__REFERENCES qualified_name                                              { NODE; }
    | T__REFERENCES qualified_name parenthesized_names                          { NODE; }
    | T__REFERENCES qualified_name reference_options                            { NODE; }
    | T__REFERENCES qualified_name parenthesized_names reference_options        { NODE; }
    ;
reference_options
    : reference_option
    | reference_options reference_option                                        { NODE; }
    ;
reference_option
    : T__MATCH T__FULL                                                          { NODE; }
    | T__MATCH T__PARTIAL                                                       { NODE; }
    | T__MATCH T__SIMPLE                                                        { NODE; }
    | T__ON T__UPDATE reference_action                                          { NODE; }
    | T__ON T__DELETE reference_action                                          { NODE; }
    ;
reference_action
    : T__NO T__ACTION                                                           { NODE; }
    | T__RESTRICT
    | T__CASCADE
    | T__SET T__NULL                                                            { NODE; }
    | T__SET T__DEFAULT                                                         { NODE; }
    | T__SET T__NULL parenthesized_names                                        { NODE; }
    | T__SET T__DEFAULT parenthesized_names                                     { NODE; }
    ;
constraint_attribute
    : T__DEFERRABLE
    | T__NOT T__DEFERRABLE                                                      { NODE; }
    | T__INITIALLY T__DEFERRED                                                  { NODE; }
    | T__INITIALLY T__IMMEDIATE                                                 { NODE; }
    ;

table_constraint
    : T__CONSTRAINT column_name table_constraint_body                           { NODE; }
    | table_constraint_body
    ;
table_constraint_body
    : T__CHECK T__LPAREN expression T__RPAREN                                   { NODE; }
    | T__CHECK T__LPAREN expression T__RPAREN constraint_attributes             { NODE; }
    | T__UNIQUE key_columns                                                     { NODE; }
    | T__UNIQUE nulls_distinct key_columns                                      { NODE; }
    | T__PRIMARY T__KEY key_columns                                             { NODE; }
    | T__UNIQUE T__USING T__INDEX column_name                                   { NODE; }
    | T__UNIQUE T__USING T__INDEX column_name constraint_attributes             { NODE; }
    | T__PRIMARY T__KEY T__USING T__INDEX column_name                           { NODE; }
    | T__PRIMARY T__KEY T__USING T__INDEX column_name constraint_attributes     { NODE; }
    | T__EXCLUDE exclusion                                                      { NODE; }
    | T__FOREIGN T__KEY parenthesized_names references_clause                   { NODE; }
    | T__FOREIGN T__KEY parenthesized_names references_clause constraint_attributes
      { NODE; }
    ;
key_columns
    : parenthesized_names
    | parenthesized_names key_tail                                              { NODE; }
    ;
key_tail
    : include_columns
    | include_columns key_tail_parameters                                       { NODE; }
    | key_tail_parameters
    ;
key_tail_parameters
    : index_parameters
    | index_parameters constraint_attributes                                    { NODE; }
    | constraint_attributes
    ;
include_columns
    : T__INCLUDE parenthesized_names                                            { NODE; }
    ;
exclusion
    : T__LPAREN exclusion_list T__RPAREN                                        { NODE; }
    | T__LPAREN exclusion_list T__RPAREN exclusion_tail                         { NODE; }
    | T__USING column_name T__LPAREN exclusion_list T__RPAREN                   { NODE; }
    | T__USING column_name T__LPAREN exclusion_list T__RPAREN exclusion_tail    { NODE; }
    ;
exclusion_list
    : exclusion_item
    | exclusion_list T__COMMA exclusion_item                                    { NODE; }
    ;
exclusion_item
    : index_element T__WITH any_operator                                        { NODE; }
    | index_element T__WITH T__OPERATOR T__LPAREN any_operator T__RPAREN        { NODE; }
    ;
exclusion_tail
    : include_columns
    | include_columns exclusion_tail_parameters                                 { NODE; }
    | exclusion_tail_parameters
    ;
exclusion_tail_parameters
    : index_parameters
    | index_parameters exclusion_tail_where                                     { NODE; }
    | exclusion_tail_where
    ;
exclusion_tail_where
    : T__WHERE T__LPAREN expression T__RPAREN                                   { NODE; }
    | T__WHERE T__LPAREN expression T__RPAREN constraint_attributes             { NODE; }
    | constraint_attributes
    ;
constraint_attributes
    : constraint_mark
    | constraint_attributes constraint_mark                                     { NODE; }
    ;
constraint_mark
    : constraint_attribute
    | T__NOT T__VALID                                                           { NODE; }
    | T__NO T__INHERIT                                                          { NODE; }
    ;

table_options
    : table_option
    | table_options table_option                                                { NODE; }
    ;
table_option
    : T__INHERITS T__LPAREN qualified_name_list T__RPAREN                       { NODE; }
    | T__PARTITION T__BY column_name T__LPAREN index_elements T__RPAREN         { NODE; }
    | T__USING column_name                                                      { NODE; }
    | T__WITH relation_options                                                  { NODE; }
    | T__WITHOUT T__OIDS                                                        { NODE; }
    | T__ON T__COMMIT T__DROP                                                   { NODE; }
    | T__ON T__COMMIT T__DELETE T__ROWS                                         { NODE; }
    | T__ON T__COMMIT T__PRESERVE T__ROWS                                       { NODE; }
    | T__TABLESPACE column_name                                                 { NODE; }
    ;
partition_bound
    : T__FOR T__VALUES T__WITH T__LPAREN hash_bounds T__RPAREN                  { NODE; }
    | T__FOR T__VALUES T__IN T__LPAREN expression_list T__RPAREN                { NODE; }
    | T__FOR T__VALUES T__FROM T__LPAREN expression_list T__RPAREN T__TO T__LPAREN expression_list T__RPAREN
      { NODE; }
    | T__DEFAULT
    ;
hash_bounds
    : hash_bound
    | hash_bounds T__COMMA hash_bound                                           { NODE; }
    ;
hash_bound
    : non_reserved_word T__INTEGER_NUMBER                                       { NODE; }
    ;

/* ---- Indexed things ---- */

index_elements
    : index_element
    | index_elements T__COMMA index_element                                     { NODE; }
    ;
index_element
    : index_key
    | index_key index_element_options                                           { NODE; }
    ;
index_key
    : column_name
    | plain_function
    | T__LPAREN expression T__RPAREN                                            { NODE; }
    ;
index_element_options
    : T__COLLATE qualified_name                                                 { NODE; }
    | T__COLLATE qualified_name index_class_part                                { NODE; }
    | index_class_part
    ;
index_class_part
    : qualified_name
    | qualified_name relation_options                                           { NODE; }
    | qualified_name index_order_part                                           { NODE; }
    | qualified_name relation_options index_order_part                          { NODE; }
    | index_order_part
    ;
index_order_part
    : index_direction
    | index_direction nulls_order                                               { NODE; }
    | nulls_order
    ;
index_direction
    : T__ASC
    | T__DESC
    ;

/* ---- Options ---- */

relation_options
    : T__LPAREN relation_option_list T__RPAREN                                  { NODE; }
    ;
relation_option_list
    : relation_option
    | relation_option_list T__COMMA relation_option                             { NODE; }
    ;
relation_option
    : any_label
    | any_label T__EQUAL definition_value                                       { NODE; }
    | any_label T__DOT any_label                                                { NODE; }
    | any_label T__DOT any_label T__EQUAL definition_value                      { NODE; }
    ;

parenthesized_definitions
    : T__LPAREN definition_list T__RPAREN                                       { NODE; }
    ;
definition_list
    : definition_item
    | definition_list T__COMMA definition_item                                  { NODE; }
    ;
definition_item
    : any_label
    | any_label T__EQUAL definition_value                                       { NODE; }
    ;
definition_value
    : function_type
    | reserved_keyword
    | any_operator_symbol
    | T__OPERATOR T__LPAREN any_operator T__RPAREN                              { NODE; }
    | signed_number
    | string_literal
    | T__NONE
    ;

/* A type as functions take it, that of a column included. */
function_type
    : type_name
    | dotted_type_name T__PERCENT T__TYPE                                       { NODE; }
    | T__SETOF dotted_type_name T__PERCENT T__TYPE                              { NODE; }
    ;

generic_options
    : T__OPTIONS T__LPAREN generic_option_list T__RPAREN                        { NODE; }
    ;
generic_option_list
    : generic_option
    | generic_option_list T__COMMA generic_option                               { NODE; }
    ;
generic_option
    : any_label string_literal                                                  { NODE; }
    ;

sequence_options
    : sequence_option
    | sequence_options sequence_option                                          { NODE; }
    ;
sequence_option
    : T__AS simple_type                                                         { NODE; }
    | T__CACHE signed_number                                                    { NODE; }
    | T__CYCLE
    | T__NO T__CYCLE                                                            { NODE; }
    | T__INCREMENT signed_number                                                { NODE; }
    | T__INCREMENT T__BY signed_number                                          { NODE; }
    | T__MAXVALUE signed_number                                                 { NODE; }
    | T__NO T__MAXVALUE                                                         { NODE; }
    | T__MINVALUE signed_number                                                 { NODE; }
    | T__NO T__MINVALUE                                                         { NODE; }
    | T__OWNED T__BY qualified_name                                             { NODE; }
    | T__SEQUENCE T__NAME qualified_name                                        { NODE; }
    | T__START signed_number                                                    { NODE; }
    | T__START T__WITH signed_number                                            { NODE; }
    | T__RESTART
    | T__RESTART signed_number                                                  { NODE; }
    | T__RESTART T__WITH signed_number                                          { NODE; }
    ;

create_foreign_table
    : T__CREATE T__FOREIGN T__TABLE foreign_table_definition T__SERVER column_name
      { NODE; }
    | T__CREATE T__FOREIGN T__TABLE foreign_table_definition T__SERVER column_name generic_options
      { NODE; }
    ;
foreign_table_definition
    : new_name T__LPAREN T__RPAREN                                              { NODE; }
    | new_name T__LPAREN table_elements T__RPAREN                               { NODE; }
    | new_name T__LPAREN T__RPAREN inherits_clause                              { NODE; }
    | new_name T__LPAREN table_elements T__RPAREN inherits_clause               { NODE; }
    | new_name T__PARTITION T__OF qualified_name partition_bound                { NODE; }
    | new_name T__PARTITION T__OF qualified_name typed_elements partition_bound
      { NODE; }
    ;
inherits_clause
    : T__INHERITS T__LPAREN qualified_name_list T__RPAREN                       { NODE; }
    ;

create_index
    : T__CREATE T__INDEX index_definition                                       { NODE; }
    | T__CREATE T__UNIQUE T__INDEX index_definition                             { NODE; }
    ;
index_definition
    : index_target
    | T__CONCURRENTLY index_target                                              { NODE; }
    | new_name index_target                                                     { NODE; }
    | T__CONCURRENTLY new_name index_target                                     { NODE; }
    ;
index_target
    : T__ON relation index_columns                                              { NODE; }
    | T__ON relation index_columns index_clauses                                { NODE; }
    ;
index_columns
    : T__LPAREN index_elements T__RPAREN                                        { NODE; }
    | T__USING column_name T__LPAREN index_elements T__RPAREN                   { NODE; }
    ;
index_clauses
    : index_clause
    | index_clauses index_clause                                                { NODE; }
    ;
index_clause
    : T__INCLUDE T__LPAREN index_elements T__RPAREN                             { NODE; }
    | nulls_distinct
    | T__WITH relation_options                                                  { NODE; }
    | T__TABLESPACE column_name                                                 { NODE; }
    | where_clause
    ;

create_view
    : T__CREATE view_definition                                                 { NODE; }
    | T__CREATE T__OR T__REPLACE view_definition                                { NODE; }
    | T__CREATE temporary view_definition                                       { NODE; }
    | T__CREATE T__OR T__REPLACE temporary view_definition                      { NODE; }
    ;
view_definition
    : T__VIEW qualified_name view_body                                          { NODE; }
    | T__VIEW qualified_name parenthesized_names view_body                      { NODE; }
    | T__RECURSIVE T__VIEW qualified_name parenthesized_names view_body         { NODE; }
    ;
view_body
    : T__AS query                                                               { NODE; }
    | T__AS query check_option                                                  { NODE; }
    | T__WITH relation_options T__AS query                                      { NODE; }
    | T__WITH relation_options T__AS query check_option                         { NODE; }
    ;
check_option
    : T__WITH T__CHECK T__OPTION                                                { NODE; }
    | T__WITH T__CASCADED T__CHECK T__OPTION                                    { NODE; }
    | T__WITH T__LOCAL T__CHECK T__OPTION                                       { NODE; }
    ;

create_materialized_view
    : T__CREATE T__MATERIALIZED T__VIEW materialized_definition                 { NODE; }
    | T__CREATE T__UNLOGGED T__MATERIALIZED T__VIEW materialized_definition     { NODE; }
    ;
materialized_definition
    : new_name as_query                                                         { NODE; }
    | new_name parenthesized_names as_query                                     { NODE; }
    | new_name materialized_options as_query                                    { NODE; }
    | new_name parenthesized_names materialized_options as_query                { NODE; }
    ;
materialized_options
    : materialized_option
    | materialized_options materialized_option                                  { NODE; }
    ;
materialized_option
    : T__USING column_name                                                      { NODE; }
    | T__WITH relation_options                                                  { NODE; }
    | T__TABLESPACE column_name                                                 { NODE; }
    ;

create_sequence
    : T__CREATE T__SEQUENCE new_name                                            { NODE; }
    | T__CREATE T__SEQUENCE new_name sequence_options                           { NODE; }
    | T__CREATE temporary T__SEQUENCE new_name                                  { NODE; }
    | T__CREATE temporary T__SEQUENCE new_name sequence_options                 { NODE; }
    ;

/* ---- Routines ---- */

create_routine
    : T__CREATE routine_definition                                              { NODE; }
    | T__CREATE T__OR T__REPLACE routine_definition                             { NODE; }
    ;
routine_definition
    : routine_word function_name parameter_list                                 { NODE; }
    | routine_word function_name parameter_list routine_items                   { NODE; }
    | routine_word function_name parameter_list routine_body                    { NODE; }
    | routine_word function_name parameter_list routine_items routine_body      { NODE; }
    ;
routine_word
    : T__FUNCTION
    | T__PROCEDURE
    ;
parameter_list
    : T__LPAREN T__RPAREN                                                       { NODE; }
    | T__LPAREN parameters T__RPAREN                                            { NODE; }
    ;
parameters
    : parameter
    | parameters T__COMMA parameter                                             { NODE; }
    ;
parameter
    : plain_parameter
    | plain_parameter T__DEFAULT expression                                     { NODE; }
    | plain_parameter T__EQUAL expression                                       { NODE; }
    ;
plain_parameter
    : function_type
    | type_function_name function_type                                          { NODE; }
    | parameter_mode function_type                                              { NODE; }
    | parameter_mode type_function_name function_type                           { NODE; }
    | type_function_name parameter_mode function_type                           { NODE; }
    ;
parameter_mode
    : T__IN
    | T__OUT
    | T__INOUT
    | T__IN T__OUT                                                              { NODE; }
    | T__VARIADIC
    ;
routine_items
    : routine_item
    | routine_items routine_item                                                { NODE; }
    ;
routine_item
    : T__RETURNS function_type                                                  { NODE; }
    | T__RETURNS T__TABLE T__LPAREN returned_columns T__RPAREN                  { NODE; }
    | T__AS string_literal                                                      { NODE; }
    | T__AS string_literal T__COMMA string_literal                              { NODE; }
    | T__LANGUAGE non_reserved_word                                             { NODE; }
    | T__LANGUAGE string_literal                                                { NODE; }
    | T__TRANSFORM transform_types                                              { NODE; }
    | T__WINDOW
    | routine_attribute
    ;
returned_columns
    : returned_column
    | returned_columns T__COMMA returned_column                                 { NODE; }
    ;
returned_column
    : type_function_name function_type                                          { NODE; }
    ;
transform_types
    : T__FOR T__TYPE type_name                                                  { NODE; }
    | transform_types T__COMMA T__FOR T__TYPE type_name                         { NODE; }
    ;
routine_attributes
    : routine_attribute
    | routine_attributes routine_attribute                                      { NODE; }
    ;
routine_attribute
    : T__CALLED T__ON T__NULL T__INPUT                                          { NODE; }
    | T__RETURNS T__NULL T__ON T__NULL T__INPUT                                 { NODE; }
    | T__STRICT
    | T__IMMUTABLE
    | T__STABLE
    | T__VOLATILE
    | T__SECURITY T__DEFINER                                                    { NODE; }
    | T__SECURITY T__INVOKER                                                    { NODE; }
    | T__EXTERNAL T__SECURITY T__DEFINER                                        { NODE; }
    | T__EXTERNAL T__SECURITY T__INVOKER                                        { NODE; }
    | T__LEAKPROOF
    | T__NOT T__LEAKPROOF                                                       { NODE; }
    | T__COST signed_number                                                     { NODE; }
    | T__ROWS signed_number                                                     { NODE; }
    | T__SUPPORT qualified_name                                                 { NODE; }
    | T__SET set_item_more                                                      { NODE; }
    | T__RESET reset_target                                                     { NODE; }
    | T__PARALLEL column_name                                                   { NODE; }
    ;
routine_body
    : return_statement
    | T__BEGIN T__ATOMIC T__END                                                 { NODE; }
    | T__BEGIN T__ATOMIC body_pl_sql_statements T__END                          { NODE; }
    | T__BEGIN T__ATOMIC error T__END                                           { NODE; }
    | T__BEGIN T__ATOMIC body_pl_sql_statements error T__END                    { NODE; }
    | T__BEGIN T__ATOMIC error %prec LOWEST                                     { NODE; }
    | T__BEGIN T__ATOMIC body_pl_sql_statements error %prec LOWEST              { NODE; }
    ;
return_statement
    : T__RETURN expression                                                      { NODE; }
    ;
body_pl_sql_statements
    : delimited_body_statement                                                  { NODE; }
    | body_pl_sql_statements delimited_body_statement                           { NODE; }
    ;
delimited_body_statement
    : body_statement pl_sql_statement_delimiter                                 { NODE(delimited_pl_sql_statement); }
    | pl_sql_statement_delimiter                                                { NODE(delimited_pl_sql_statement); }
    | error pl_sql_statement_delimiter                                          { NODE(delimited_pl_sql_statement); }
    ;
body_statement
    : statement                                                                 { NODE(pl_sql_statement); }
    | return_statement                                                          { NODE(pl_sql_statement); }
    ;

/* A routine as other statements point at it. */
routine_signature
    : function_name parameter_list                                              { NODE; }
    | qualified_name
    | type_function_name_keyword                                                { NODE(sql_identifier); }
    ;
routine_signatures
    : routine_signature
    | routine_signatures T__COMMA routine_signature                             { NODE; }
    ;
aggregate_signature
    : function_name aggregate_parameters                                        { NODE; }
    ;
aggregate_signatures
    : aggregate_signature
    | aggregate_signatures T__COMMA aggregate_signature                         { NODE; }
    ;
aggregate_parameters
    : T__LPAREN T__ASTERISK T__RPAREN                                           { NODE; }
    | T__LPAREN plain_parameters T__RPAREN                                      { NODE; }
    | T__LPAREN T__ORDER T__BY plain_parameters T__RPAREN                       { NODE; }
    | T__LPAREN plain_parameters T__ORDER T__BY plain_parameters T__RPAREN      { NODE; }
    ;
plain_parameters
    : plain_parameter
    | plain_parameters T__COMMA plain_parameter                                 { NODE; }
    ;
operator_signature
    : any_operator operator_operands                                            { NODE; }
    ;
operator_signatures
    : operator_signature
    | operator_signatures T__COMMA operator_signature                           { NODE; }
    ;
operator_operands
    : T__LPAREN type_name T__RPAREN                                             { NODE; }
    | T__LPAREN type_name T__COMMA type_name T__RPAREN                          { NODE; }
    | T__LPAREN T__NONE T__COMMA type_name T__RPAREN                            { NODE; }
    | T__LPAREN type_name T__COMMA T__NONE T__RPAREN                            { NODE; }
    ;

/* ---- Triggers, rules, policies ---- */

create_trigger
    : T__CREATE trigger_definition                                              { NODE; }
    | T__CREATE T__OR T__REPLACE trigger_definition                             { NODE; }
    | T__CREATE T__CONSTRAINT trigger_definition                                { NODE; }
    | T__CREATE T__OR T__REPLACE T__CONSTRAINT trigger_definition               { NODE; }
    ;
trigger_definition
    : T__TRIGGER column_name trigger_time trigger_events T__ON qualified_name trigger_action
      { NODE; }
    | T__TRIGGER column_name trigger_time trigger_events T__ON qualified_name trigger_clauses trigger_action
      { NODE; }
    ;
trigger_time
    : T__BEFORE
    | T__AFTER
    | T__INSTEAD T__OF                                                          { NODE; }
    ;
trigger_events
    : trigger_event
    | trigger_events T__OR trigger_event                                        { NODE; }
    ;
trigger_event
    : T__INSERT
    | T__DELETE
    | T__UPDATE
    | T__UPDATE T__OF name_list                                                 { NODE; }
    | T__TRUNCATE
    ;
trigger_clauses
    : trigger_clause
    | trigger_clauses trigger_clause                                            { NODE; }
    ;
trigger_clause
    : T__FROM qualified_name                                                    { NODE; }
    | constraint_attribute
    | T__REFERENCING transition_tables                                          { NODE; }
    | T__FOR trigger_level                                                      { NODE; }
    | T__FOR T__EACH trigger_level                                              { NODE; }
    | T__WHEN T__LPAREN expression T__RPAREN                                    { NODE; }
    ;
trigger_level
    : T__ROW
    | T__STATEMENT
    ;
transition_tables
    : transition_table
    | transition_tables transition_table                                        { NODE; }
    ;
transition_table
    : old_or_new T__TABLE column_name                                           { NODE; }
    | old_or_new T__TABLE T__AS column_name                                     { NODE; }
    | old_or_new T__ROW column_name                                             { NODE; }
    | old_or_new T__ROW T__AS column_name                                       { NODE; }
    ;
old_or_new
    : T__OLD
    | T__NEW
    ;
trigger_action
    : T__EXECUTE T__FUNCTION function_name T__LPAREN T__RPAREN                  { NODE; }
    | T__EXECUTE T__FUNCTION function_name T__LPAREN trigger_arguments T__RPAREN  { NODE; }
    | T__EXECUTE T__PROCEDURE function_name T__LPAREN T__RPAREN                 { NODE; }
    | T__EXECUTE T__PROCEDURE function_name T__LPAREN trigger_arguments T__RPAREN  { NODE; }
    ;
trigger_arguments
    : trigger_argument
    | trigger_arguments T__COMMA trigger_argument                               { NODE; }
    ;
trigger_argument
    : number
    | string_literal
    | any_label
    ;

create_event_trigger
    : T__CREATE T__EVENT T__TRIGGER column_name T__ON any_label event_trigger_action
      { NODE; }
    | T__CREATE T__EVENT T__TRIGGER column_name T__ON any_label T__WHEN event_conditions
      event_trigger_action                                                      { NODE; }
    ;
event_trigger_action
    : T__EXECUTE T__FUNCTION function_name T__LPAREN T__RPAREN                  { NODE; }
    | T__EXECUTE T__PROCEDURE function_name T__LPAREN T__RPAREN                 { NODE; }
    ;
event_conditions
    : event_condition
    | event_conditions T__AND event_condition                                   { NODE; }
    ;
event_condition
    : column_name T__IN T__LPAREN string_list T__RPAREN                         { NODE; }
    ;
string_list
    : string_literal
    | string_list T__COMMA string_literal                                       { NODE; }
    ;

create_rule
    : T__CREATE rule_definition                                                 { NODE; }
    | T__CREATE T__OR T__REPLACE rule_definition                                { NODE; }
    ;
rule_definition
    : T__RULE column_name T__AS T__ON rule_event T__TO qualified_name T__DO rule_actions
      { NODE; }
    | T__RULE column_name T__AS T__ON rule_event T__TO qualified_name where_clause T__DO rule_actions
      { NODE; }
    ;
rule_event
    : T__SELECT
    | T__UPDATE
    | T__DELETE
    | T__INSERT
    ;
rule_actions
    : rule_action
    | T__INSTEAD rule_action                                                    { NODE; }
    | T__ALSO rule_action                                                       { NODE; }
    ;
rule_action
    : T__NOTHING
    | rule_statement
    | T__LPAREN T__RPAREN                                                       { NODE; }
    | T__LPAREN rule_statements T__RPAREN                                       { NODE; }
    ;
rule_statements
    : rule_statement
    | T__SEMICOLON
    | T__SEMICOLON rule_statement                                               { NODE; }
    | rule_statements T__SEMICOLON                                              { NODE; }
    | rule_statements T__SEMICOLON rule_statement                               { NODE; }
    ;
rule_statement
    : preparable_statement
    | notify_statement
    ;

create_policy
    : T__CREATE T__POLICY column_name T__ON qualified_name                      { NODE; }
    | T__CREATE T__POLICY column_name T__ON qualified_name policy_clauses       { NODE; }
    ;
policy_clauses
    : policy_clause
    | policy_clauses policy_clause                                              { NODE; }
    ;
policy_clause
    : T__AS plain_identifier                                                    { NODE; }
    | T__FOR policy_command                                                     { NODE; }
    | T__TO role_list                                                           { NODE; }
    | T__USING T__LPAREN expression T__RPAREN                                   { NODE; }
    | T__WITH T__CHECK T__LPAREN expression T__RPAREN                           { NODE; }
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
    : T__CREATE T__SCHEMA schema_name                                           { NODE; }
    | T__CREATE T__SCHEMA schema_name schema_elements                           { NODE; }
    ;
schema_name
    : new_name
    | new_name T__AUTHORIZATION role                                            { NODE; }
    | T__AUTHORIZATION role                                                     { NODE; }
    | T__IF T__NOT T__EXISTS T__AUTHORIZATION role                              { NODE; }
    ;
schema_elements
    : schema_element
    | schema_elements schema_element                                            { NODE; }
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
    | role_list T__COMMA role                                                   { NODE; }
    ;
create_role
    : T__CREATE role_or_group role                                              { NODE; }
    | T__CREATE T__USER role                                                    { NODE; }
    | T__CREATE role_or_group role role_options                                 { NODE; }
    | T__CREATE T__USER role role_options                                       { NODE; }
    | T__CREATE role_or_group role T__WITH                                      { NODE; }
    | T__CREATE T__USER role T__WITH                                            { NODE; }
    | T__CREATE role_or_group role T__WITH role_options                         { NODE; }
    | T__CREATE T__USER role T__WITH role_options                               { NODE; }
    ;
role_or_group
    : T__ROLE
    | T__GROUP
    ;
role_options
    : role_option
    | role_options role_option                                                  { NODE; }
    ;
role_option
    : T__PASSWORD string_literal                                                { NODE; }
    | T__PASSWORD T__NULL                                                       { NODE; }
    | T__ENCRYPTED T__PASSWORD string_literal                                   { NODE; }
    | T__UNENCRYPTED T__PASSWORD string_literal                                 { NODE; }
    | T__INHERIT
    | T__CONNECTION T__LIMIT signed_integer                                     { NODE; }
    | T__VALID T__UNTIL string_literal                                          { NODE; }
    | T__USER role_list                                                         { NODE; }
    | plain_identifier
    | T__SYSID T__INTEGER_NUMBER                                                { NODE; }
    | T__ADMIN role_list                                                        { NODE; }
    | T__ROLE role_list                                                         { NODE; }
    | T__IN T__ROLE role_list                                                   { NODE; }
    | T__IN T__GROUP role_list                                                  { NODE; }
    ;

create_database
    : T__CREATE T__DATABASE column_name                                         { NODE; }
    | T__CREATE T__DATABASE column_name database_options                        { NODE; }
    | T__CREATE T__DATABASE column_name T__WITH                                 { NODE; }
    | T__CREATE T__DATABASE column_name T__WITH database_options                { NODE; }
    ;
database_options
    : database_option
    | database_options database_option                                          { NODE; }
    ;
database_option
    : database_option_name database_option_value                                { NODE; }
    | database_option_name T__EQUAL database_option_value                       { NODE; }
    ;
database_option_name
    : plain_identifier
    | T__CONNECTION T__LIMIT                                                    { NODE; }
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
    : T__CREATE T__TABLESPACE column_name T__LOCATION string_literal            { NODE; }
    | T__CREATE T__TABLESPACE column_name T__LOCATION string_literal T__WITH relation_options
      { NODE; }
    | T__CREATE T__TABLESPACE column_name T__OWNER role T__LOCATION string_literal
      { NODE; }
    | T__CREATE T__TABLESPACE column_name T__OWNER role T__LOCATION string_literal T__WITH relation_options
      { NODE; }
    ;

create_extension
    : T__CREATE T__EXTENSION new_name                                           { NODE; }
    | T__CREATE T__EXTENSION new_name extension_options                         { NODE; }
    | T__CREATE T__EXTENSION new_name T__WITH                                   { NODE; }
    | T__CREATE T__EXTENSION new_name T__WITH extension_options                 { NODE; }
    ;
extension_options
    : extension_option
    | extension_options extension_option                                        { NODE; }
    ;
extension_option
    : T__SCHEMA column_name                                                     { NODE; }
    | T__VERSION word_or_string                                                 { NODE; }
    | T__FROM word_or_string                                                    { NODE; }
    | T__CASCADE
    ;
word_or_string
    : non_reserved_word
    | string_literal
    ;

create_language
    : T__CREATE language_definition                                             { NODE; }
    | T__CREATE T__OR T__REPLACE language_definition                            { NODE; }
    ;
language_definition
    : language_words column_name                                                { NODE; }
    | language_words column_name T__HANDLER qualified_name                      { NODE; }
    | language_words column_name T__HANDLER qualified_name language_handlers    { NODE; }
    ;
language_words
    : T__LANGUAGE
    | T__PROCEDURAL T__LANGUAGE                                                 { NODE; }
    | T__TRUSTED T__LANGUAGE                                                    { NODE; }
    | T__TRUSTED T__PROCEDURAL T__LANGUAGE                                      { NODE; }
    ;
language_handlers
    : T__INLINE qualified_name                                                  { NODE; }
    | language_validator
    | T__INLINE qualified_name language_validator                               { NODE; }
    ;
language_validator
    : T__VALIDATOR qualified_name                                               { NODE; }
    | T__NO T__VALIDATOR                                                        { NODE; }
    ;

/* ---- Replication ---- */

create_publication
    : T__CREATE T__PUBLICATION column_name                                      { NODE; }
    | T__CREATE T__PUBLICATION column_name publication_content                  { NODE; }
    | T__CREATE T__PUBLICATION column_name T__WITH parenthesized_definitions    { NODE; }
    | T__CREATE T__PUBLICATION column_name publication_content T__WITH parenthesized_definitions
      { NODE; }
    ;
publication_content
    : T__FOR T__ALL T__TABLES                                                   { NODE; }
    | T__FOR publication_objects                                                { NODE; }
    ;
publication_objects
    : publication_object
    | publication_objects T__COMMA publication_object                           { NODE; }
    ;
publication_object
    : T__TABLE published_relation                                               { NODE; }
    | T__TABLES T__IN T__SCHEMA column_name                                     { NODE; }
    | T__TABLES T__IN T__SCHEMA T__CURRENT_SCHEMA                               { NODE; }
    | published_relation
    | T__CURRENT_SCHEMA
    ;
published_relation
    : relation
    | relation parenthesized_names                                              { NODE; }
    | relation T__WHERE T__LPAREN expression T__RPAREN                          { NODE; }
    | relation parenthesized_names T__WHERE T__LPAREN expression T__RPAREN      { NODE; }
    ;

create_subscription
    : T__CREATE T__SUBSCRIPTION column_name T__CONNECTION string_literal T__PUBLICATION name_list
      { NODE; }
    | T__CREATE T__SUBSCRIPTION column_name T__CONNECTION string_literal T__PUBLICATION name_list T__WITH
      parenthesized_definitions                                                 { NODE; }
    ;

/* ---- Foreign data ---- */

create_foreign_object
    : T__CREATE T__FOREIGN T__DATA T__WRAPPER column_name                       { NODE; }
    | T__CREATE T__FOREIGN T__DATA T__WRAPPER column_name wrapper_options       { NODE; }
    | T__CREATE T__FOREIGN T__DATA T__WRAPPER column_name generic_options       { NODE; }
    | T__CREATE T__FOREIGN T__DATA T__WRAPPER column_name wrapper_options generic_options
      { NODE; }
    | T__CREATE T__SERVER new_name server_clauses                               { NODE; }
    | T__CREATE T__SERVER new_name server_clauses generic_options               { NODE; }
    | T__CREATE T__USER T__MAPPING T__FOR mapped_user T__SERVER column_name     { NODE; }
    | T__CREATE T__USER T__MAPPING T__FOR mapped_user T__SERVER column_name generic_options
      { NODE; }
    | T__CREATE T__USER T__MAPPING T__IF T__NOT T__EXISTS T__FOR mapped_user T__SERVER column_name
      { NODE; }
    | T__CREATE T__USER T__MAPPING T__IF T__NOT T__EXISTS T__FOR mapped_user T__SERVER column_name
      generic_options                                                           { NODE; }
    ;
wrapper_options
    : wrapper_option
    | wrapper_options wrapper_option                                            { NODE; }
    ;
wrapper_option
    : T__HANDLER qualified_name                                                 { NODE; }
    | T__NO T__HANDLER                                                          { NODE; }
    | T__VALIDATOR qualified_name                                               { NODE; }
    | T__NO T__VALIDATOR                                                        { NODE; }
    ;
server_clauses
    : server_wrapper
    | T__TYPE string_literal server_wrapper                                     { NODE; }
    | server_version server_wrapper                                             { NODE; }
    | T__TYPE string_literal server_version server_wrapper                      { NODE; }
    ;
server_version
    : T__VERSION string_literal                                                 { NODE; }
    | T__VERSION T__NULL                                                        { NODE; }
    ;
server_wrapper
    : T__FOREIGN T__DATA T__WRAPPER column_name                                 { NODE; }
    ;
mapped_user
    : role
    | T__USER
    ;

import_foreign_schema
    : T__IMPORT T__FOREIGN T__SCHEMA column_name T__FROM T__SERVER column_name T__INTO column_name
      { NODE; }
    | T__IMPORT T__FOREIGN T__SCHEMA column_name T__FROM T__SERVER column_name T__INTO column_name
      generic_options                                                           { NODE; }
    | T__IMPORT T__FOREIGN T__SCHEMA column_name import_filter T__FROM T__SERVER column_name T__INTO
      column_name                                                               { NODE; }
    | T__IMPORT T__FOREIGN T__SCHEMA column_name import_filter T__FROM T__SERVER column_name T__INTO
      column_name generic_options                                               { NODE; }
    ;
import_filter
    : T__LIMIT T__TO T__LPAREN relation_list T__RPAREN                          { NODE; }
    | T__EXCEPT T__LPAREN relation_list T__RPAREN                               { NODE; }
    ;
relation_list
    : relation
    | relation_list T__COMMA relation                                           { NODE; }
    ;

/* ---- Statistics, types, operators ---- */

create_statistics
    : T__CREATE T__STATISTICS new_name T__ON statistics_columns from_clause     { NODE; }
    | T__CREATE T__STATISTICS new_name parenthesized_names T__ON statistics_columns from_clause
      { NODE; }
    ;
statistics_columns
    : statistics_column
    | statistics_columns T__COMMA statistics_column                             { NODE; }
    ;
statistics_column
    : column_name
    | plain_function
    | T__LPAREN expression T__RPAREN                                            { NODE; }
    ;

create_definition
    : T__CREATE T__OPERATOR any_operator parenthesized_definitions              { NODE; }
    | T__CREATE T__COLLATION new_name parenthesized_definitions                 { NODE; }
    | T__CREATE T__COLLATION new_name T__FROM qualified_name                    { NODE; }
    | T__CREATE T__TEXT T__SEARCH text_search_word qualified_name parenthesized_definitions
      { NODE; }
    ;
text_search_word
    : T__PARSER
    | T__DICTIONARY
    | T__TEMPLATE
    | T__CONFIGURATION
    ;

create_type
    : T__CREATE T__TYPE qualified_name                                          { NODE; }
    | T__CREATE T__TYPE qualified_name parenthesized_definitions                { NODE; }
    | T__CREATE T__TYPE qualified_name T__AS T__LPAREN T__RPAREN                { NODE; }
    | T__CREATE T__TYPE qualified_name T__AS T__LPAREN table_function_columns T__RPAREN
      { NODE; }
    | T__CREATE T__TYPE qualified_name T__AS T__ENUM T__LPAREN T__RPAREN        { NODE; }
    | T__CREATE T__TYPE qualified_name T__AS T__ENUM T__LPAREN string_list T__RPAREN  { NODE; }
    | T__CREATE T__TYPE qualified_name T__AS T__RANGE parenthesized_definitions  { NODE; }
    ;

create_domain
    : T__CREATE T__DOMAIN qualified_name type_name                              { NODE; }
    | T__CREATE T__DOMAIN qualified_name T__AS type_name                        { NODE; }
    | T__CREATE T__DOMAIN qualified_name type_name column_constraints           { NODE; }
    | T__CREATE T__DOMAIN qualified_name T__AS type_name column_constraints     { NODE; }
    ;

create_aggregate
    : T__CREATE aggregate_definition                                            { NODE; }
    | T__CREATE T__OR T__REPLACE aggregate_definition                           { NODE; }
    ;
aggregate_definition
    : T__AGGREGATE function_name aggregate_parameters parenthesized_definitions
      { NODE; }
    | T__AGGREGATE function_name T__LPAREN old_aggregate_list T__RPAREN         { NODE; }
    ;
old_aggregate_list
    : old_aggregate_item
    | old_aggregate_list T__COMMA old_aggregate_item                            { NODE; }
    ;
old_aggregate_item
    : plain_identifier T__EQUAL definition_value                                { NODE; }
    ;

create_operator_class
    : T__CREATE T__OPERATOR T__CLASS qualified_name operator_class_head T__AS operator_class_items
      { NODE; }
    ;
operator_class_head
    : T__FOR T__TYPE type_name T__USING column_name                             { NODE; }
    | T__DEFAULT T__FOR T__TYPE type_name T__USING column_name                  { NODE; }
    | T__FOR T__TYPE type_name T__USING column_name T__FAMILY qualified_name    { NODE; }
    | T__DEFAULT T__FOR T__TYPE type_name T__USING column_name T__FAMILY qualified_name
      { NODE; }
    ;
operator_class_items
    : operator_class_item
    | operator_class_items T__COMMA operator_class_item                         { NODE; }
    ;
operator_class_item
    : T__OPERATOR T__INTEGER_NUMBER any_operator                                { NODE; }
    | T__OPERATOR T__INTEGER_NUMBER any_operator operator_class_purpose         { NODE; }
    | T__OPERATOR T__INTEGER_NUMBER operator_signature                          { NODE; }
    | T__OPERATOR T__INTEGER_NUMBER operator_signature operator_class_purpose   { NODE; }
    | T__FUNCTION T__INTEGER_NUMBER routine_signature                           { NODE; }
    | T__FUNCTION T__INTEGER_NUMBER T__LPAREN type_list T__RPAREN routine_signature
      { NODE; }
    | T__STORAGE type_name                                                      { NODE; }
    ;
operator_class_purpose
    : T__FOR T__SEARCH                                                          { NODE; }
    | T__FOR T__ORDER T__BY qualified_name                                      { NODE; }
    | T__RECHECK
    ;
type_list
    : type_name
    | type_list T__COMMA type_name                                              { NODE; }
    ;

create_operator_family
    : T__CREATE T__OPERATOR T__FAMILY qualified_name T__USING column_name       { NODE; }
    ;

create_cast
    : T__CREATE T__CAST T__LPAREN type_name T__AS type_name T__RPAREN cast_method  { NODE; }
    | T__CREATE T__CAST T__LPAREN type_name T__AS type_name T__RPAREN cast_method cast_context
      { NODE; }
    ;
cast_method
    : T__WITH T__FUNCTION routine_signature                                     { NODE; }
    | T__WITHOUT T__FUNCTION                                                    { NODE; }
    | T__WITH T__INOUT                                                          { NODE; }
    ;
cast_context
    : T__AS T__IMPLICIT                                                         { NODE; }
    | T__AS T__ASSIGNMENT                                                       { NODE; }
    ;

create_transform
    : T__CREATE transform_definition                                            { NODE; }
    | T__CREATE T__OR T__REPLACE transform_definition                           { NODE; }
    ;
transform_definition
    : T__TRANSFORM T__FOR type_name T__LANGUAGE column_name T__LPAREN transform_functions T__RPAREN
      { NODE; }
    ;
transform_functions
    : transform_function
    | transform_functions T__COMMA transform_function                           { NODE; }
    ;
transform_function
    : T__FROM T__SQL T__WITH T__FUNCTION routine_signature                      { NODE; }
    | T__TO T__SQL T__WITH T__FUNCTION routine_signature                        { NODE; }
    ;

create_conversion
    : T__CREATE T__CONVERSION qualified_name T__FOR string_literal T__TO string_literal T__FROM
      qualified_name                                                            { NODE; }
    | T__CREATE T__DEFAULT T__CONVERSION qualified_name T__FOR string_literal T__TO string_literal T__FROM
      qualified_name                                                            { NODE; }
    ;

create_access_method
    : T__CREATE T__ACCESS T__METHOD column_name T__TYPE T__INDEX T__HANDLER qualified_name
      { NODE; }
    | T__CREATE T__ACCESS T__METHOD column_name T__TYPE T__TABLE T__HANDLER qualified_name
      { NODE; }
    ;

/* ---- ALTER ---- */

alter_relation
    : T__ALTER relation_word altered_relation alter_actions                     { NODE; }
    | T__ALTER relation_word T__ALL T__IN T__TABLESPACE column_name T__SET T__TABLESPACE column_name
      { NODE; }
    | T__ALTER relation_word T__ALL T__IN T__TABLESPACE column_name T__SET T__TABLESPACE column_name
      T__NOWAIT                                                                 { NODE; }
    | T__ALTER relation_word T__ALL T__IN T__TABLESPACE column_name T__OWNED T__BY role_list T__SET
      T__TABLESPACE column_name                                                 { NODE; }
    | T__ALTER relation_word T__ALL T__IN T__TABLESPACE column_name T__OWNED T__BY role_list T__SET
      T__TABLESPACE column_name T__NOWAIT                                       { NODE; }
    ;
relation_word
    : T__TABLE
    | T__INDEX
    | T__VIEW
    | T__MATERIALIZED T__VIEW                                                   { NODE; }
    | T__FOREIGN T__TABLE                                                       { NODE; }
    ;
altered_relation
    : relation
    | T__IF T__EXISTS relation                                                  { NODE; }
    ;
alter_sequence
    : T__ALTER T__SEQUENCE altered_relation sequence_options                    { NODE; }
    | T__ALTER T__SEQUENCE altered_relation alter_actions                       { NODE; }
    ;
alter_actions
    : alter_action
    | alter_actions T__COMMA alter_action                                       { NODE; }
    ;
alter_action
    : T__ADD column_definition                                                  { NODE; }
    | T__ADD T__IF T__NOT T__EXISTS column_definition                           { NODE; }
    | T__ADD T__COLUMN column_definition                                        { NODE; }
    | T__ADD T__COLUMN T__IF T__NOT T__EXISTS column_definition                 { NODE; }
    | T__ADD table_constraint                                                   { NODE; }
    | T__ALTER column_name column_action                                        { NODE; }
    | T__ALTER T__COLUMN column_name column_action                              { NODE; }
    | T__ALTER T__INTEGER_NUMBER T__SET T__STATISTICS signed_integer            { NODE; }
    | T__ALTER T__COLUMN T__INTEGER_NUMBER T__SET T__STATISTICS signed_integer  { NODE; }
    | T__ALTER T__CONSTRAINT column_name                                        { NODE; }
    | T__ALTER T__CONSTRAINT column_name constraint_attributes                  { NODE; }
    | T__VALIDATE T__CONSTRAINT column_name                                     { NODE; }
    | T__DROP dropped_column                                                    { NODE; }
    | T__DROP T__COLUMN dropped_column                                          { NODE; }
    | T__DROP T__CONSTRAINT dropped_column                                      { NODE; }
    | T__RENAME T__TO column_name                                               { NODE; }
    | T__RENAME column_name T__TO column_name                                   { NODE; }
    | T__RENAME T__COLUMN column_name T__TO column_name                         { NODE; }
    | T__RENAME T__CONSTRAINT column_name T__TO column_name                     { NODE; }
    | T__OWNER T__TO role                                                       { NODE; }
    | T__SET T__SCHEMA column_name                                              { NODE; }
    | T__SET T__TABLESPACE column_name                                          { NODE; }
    | T__SET T__TABLESPACE column_name T__NOWAIT                                { NODE; }
    | T__SET T__ACCESS T__METHOD column_name                                    { NODE; }
    | T__SET T__WITHOUT T__OIDS                                                 { NODE; }
    | T__SET T__WITHOUT T__CLUSTER                                              { NODE; }
    | T__SET T__LOGGED                                                          { NODE; }
    | T__SET T__UNLOGGED                                                        { NODE; }
    | T__SET relation_options                                                   { NODE; }
    | T__RESET relation_options                                                 { NODE; }
    | T__CLUSTER T__ON column_name                                              { NODE; }
    | T__ENABLE trigger_or_rule                                                 { NODE; }
    | T__ENABLE T__ALWAYS trigger_or_rule                                       { NODE; }
    | T__ENABLE T__REPLICA trigger_or_rule                                      { NODE; }
    | T__DISABLE trigger_or_rule                                                { NODE; }
    | T__ENABLE T__ROW T__LEVEL T__SECURITY                                     { NODE; }
    | T__DISABLE T__ROW T__LEVEL T__SECURITY                                    { NODE; }
    | T__FORCE T__ROW T__LEVEL T__SECURITY                                      { NODE; }
    | T__NO T__FORCE T__ROW T__LEVEL T__SECURITY                                { NODE; }
    | T__INHERIT qualified_name                                                 { NODE; }
    | T__NO T__INHERIT qualified_name                                           { NODE; }
    | T__OF qualified_name                                                      { NODE; }
    | T__NOT T__OF                                                              { NODE; }
    | T__REPLICA T__IDENTITY T__NOTHING                                         { NODE; }
    | T__REPLICA T__IDENTITY T__FULL                                            { NODE; }
    | T__REPLICA T__IDENTITY T__DEFAULT                                         { NODE; }
    | T__REPLICA T__IDENTITY T__USING T__INDEX column_name                      { NODE; }
    | T__ATTACH T__PARTITION qualified_name                                     { NODE; }
    | T__ATTACH T__PARTITION qualified_name partition_bound                     { NODE; }
    | T__DETACH T__PARTITION qualified_name                                     { NODE; }
    | T__DETACH T__PARTITION qualified_name T__CONCURRENTLY                     { NODE; }
    | T__DETACH T__PARTITION qualified_name T__FINALIZE                         { NODE; }
    | extension_dependency
    | alter_generic_options
    ;
extension_dependency
    : T__DEPENDS T__ON T__EXTENSION column_name                                 { NODE; }
    | T__NO T__DEPENDS T__ON T__EXTENSION column_name                           { NODE; }
    ;
trigger_or_rule
    : T__TRIGGER column_name                                                    { NODE; }
    | T__TRIGGER T__ALL                                                         { NODE; }
    | T__TRIGGER T__USER                                                        { NODE; }
    | T__RULE column_name                                                       { NODE; }
    ;
dropped_column
    : column_name
    | T__IF T__EXISTS column_name                                               { NODE; }
    | column_name drop_behavior                                                 { NODE; }
    | T__IF T__EXISTS column_name drop_behavior                                 { NODE; }
    ;
drop_behavior
    : T__CASCADE
    | T__RESTRICT
    ;
column_action
    : T__SET T__DEFAULT expression                                              { NODE; }
    | T__DROP T__DEFAULT                                                        { NODE; }
    | T__SET T__NOT T__NULL                                                     { NODE; }
    | T__DROP T__NOT T__NULL                                                    { NODE; }
    | T__DROP T__EXPRESSION                                                     { NODE; }
    | T__DROP T__EXPRESSION T__IF T__EXISTS                                     { NODE; }
    | T__SET T__STATISTICS signed_integer                                       { NODE; }
    | T__SET relation_options                                                   { NODE; }
    | T__RESET relation_options                                                 { NODE; }
    | T__SET T__STORAGE column_name                                             { NODE; }
    | T__SET T__COMPRESSION column_name                                         { NODE; }
    | T__SET T__COMPRESSION T__DEFAULT                                          { NODE; }
    | T__ADD T__GENERATED generated_when T__AS T__IDENTITY                      { NODE; }
    | T__ADD T__GENERATED generated_when T__AS T__IDENTITY T__LPAREN sequence_options T__RPAREN
      { NODE; }
    | identity_changes
    | T__DROP T__IDENTITY                                                       { NODE; }
    | T__DROP T__IDENTITY T__IF T__EXISTS                                       { NODE; }
    | type_change
    | type_change T__USING expression                                           { NODE; }
    | alter_generic_options
    ;
type_change
    : T__TYPE type_name                                                         { NODE; }
    | T__SET T__DATA T__TYPE type_name                                          { NODE; }
    | T__TYPE type_name T__COLLATE qualified_name                               { NODE; }
    | T__SET T__DATA T__TYPE type_name T__COLLATE qualified_name                { NODE; }
    ;
identity_changes
    : identity_change
    | identity_changes identity_change                                          { NODE; }
    ;
identity_change
    : T__RESTART
    | T__RESTART signed_number                                                  { NODE; }
    | T__RESTART T__WITH signed_number                                          { NODE; }
    | T__SET sequence_option                                                    { NODE; }
    | T__SET T__GENERATED generated_when                                        { NODE; }
    ;
alter_generic_options
    : T__OPTIONS T__LPAREN alter_option_list T__RPAREN                          { NODE; }
    ;
alter_option_list
    : alter_option
    | alter_option_list T__COMMA alter_option                                   { NODE; }
    ;
alter_option
    : generic_option
    | T__ADD generic_option                                                     { NODE; }
    | T__SET generic_option                                                     { NODE; }
    | T__DROP any_label                                                         { NODE; }
    ;

/* What most objects can be made to do. */
common_change
    : T__RENAME T__TO column_name                                               { NODE; }
    | T__OWNER T__TO role                                                       { NODE; }
    | T__SET T__SCHEMA column_name                                              { NODE; }
    ;

alter_type
    : T__ALTER T__TYPE qualified_name common_change                             { NODE; }
    | T__ALTER T__TYPE qualified_name type_changes                              { NODE; }
    | T__ALTER T__TYPE qualified_name T__SET parenthesized_definitions          { NODE; }
    | T__ALTER T__TYPE qualified_name T__ADD T__VALUE enum_value                { NODE; }
    | T__ALTER T__TYPE qualified_name T__ADD T__VALUE T__IF T__NOT T__EXISTS enum_value
      { NODE; }
    | T__ALTER T__TYPE qualified_name T__RENAME T__VALUE string_literal T__TO string_literal
      { NODE; }
    | T__ALTER T__TYPE qualified_name T__RENAME T__ATTRIBUTE column_name T__TO column_name
      { NODE; }
    | T__ALTER T__TYPE qualified_name T__RENAME T__ATTRIBUTE column_name T__TO column_name drop_behavior
      { NODE; }
    ;
enum_value
    : string_literal
    | string_literal T__BEFORE string_literal                                   { NODE; }
    | string_literal T__AFTER string_literal                                    { NODE; }
    ;
type_changes
    : attribute_change
    | type_changes T__COMMA attribute_change                                    { NODE; }
    ;
attribute_change
    : T__ADD T__ATTRIBUTE table_function_column                                 { NODE; }
    | T__ADD T__ATTRIBUTE table_function_column drop_behavior                   { NODE; }
    | T__DROP T__ATTRIBUTE dropped_column                                       { NODE; }
    | T__ALTER T__ATTRIBUTE column_name type_change                             { NODE; }
    | T__ALTER T__ATTRIBUTE column_name type_change drop_behavior               { NODE; }
    ;

alter_domain
    : T__ALTER T__DOMAIN qualified_name common_change                           { NODE; }
    | T__ALTER T__DOMAIN qualified_name T__SET T__DEFAULT expression            { NODE; }
    | T__ALTER T__DOMAIN qualified_name T__DROP T__DEFAULT                      { NODE; }
    | T__ALTER T__DOMAIN qualified_name T__SET T__NOT T__NULL                   { NODE; }
    | T__ALTER T__DOMAIN qualified_name T__DROP T__NOT T__NULL                  { NODE; }
    | T__ALTER T__DOMAIN qualified_name T__ADD table_constraint                 { NODE; }
    | T__ALTER T__DOMAIN qualified_name T__DROP T__CONSTRAINT dropped_column    { NODE; }
    | T__ALTER T__DOMAIN qualified_name T__VALIDATE T__CONSTRAINT column_name   { NODE; }
    | T__ALTER T__DOMAIN qualified_name T__RENAME T__CONSTRAINT column_name T__TO column_name
      { NODE; }
    ;

any_routine_word
    : T__FUNCTION
    | T__PROCEDURE
    | T__ROUTINE
    ;
alter_routine
    : T__ALTER any_routine_word routine_signature common_change                 { NODE; }
    | T__ALTER any_routine_word routine_signature extension_dependency          { NODE; }
    | T__ALTER any_routine_word routine_signature routine_attributes            { NODE; }
    | T__ALTER any_routine_word routine_signature routine_attributes T__RESTRICT  { NODE; }
    | T__ALTER T__AGGREGATE aggregate_signature common_change                   { NODE; }
    ;

alter_object
    : T__ALTER T__COLLATION qualified_name common_change                        { NODE; }
    | T__ALTER T__COLLATION qualified_name T__REFRESH T__VERSION                { NODE; }
    | T__ALTER T__CONVERSION qualified_name common_change                       { NODE; }
    | T__ALTER language_word column_name common_change                          { NODE; }
    | T__ALTER T__LARGE T__OBJECT signed_number T__OWNER T__TO role             { NODE; }
    | T__ALTER T__SCHEMA column_name common_change                              { NODE; }
    | T__ALTER T__RULE column_name T__ON qualified_name T__RENAME T__TO column_name  { NODE; }
    | T__ALTER T__TRIGGER column_name T__ON qualified_name T__RENAME T__TO column_name
      { NODE; }
    | T__ALTER T__TRIGGER column_name T__ON qualified_name extension_dependency  { NODE; }
    | T__ALTER T__OPERATOR T__CLASS qualified_name T__USING column_name common_change
      { NODE; }
    ;
language_word
    : T__LANGUAGE
    | T__PROCEDURAL T__LANGUAGE                                                 { NODE; }
    ;

alter_operator
    : T__ALTER T__OPERATOR operator_signature common_change                     { NODE; }
    | T__ALTER T__OPERATOR operator_signature T__SET T__LPAREN operator_changes T__RPAREN
      { NODE; }
    ;
operator_changes
    : operator_change
    | operator_changes T__COMMA operator_change                                 { NODE; }
    ;
operator_change
    : any_label T__EQUAL T__NONE                                                { NODE; }
    | any_label T__EQUAL operator_change_value                                  { NODE; }
    ;
operator_change_value
    : function_type
    | reserved_keyword
    | any_operator_symbol
    | T__OPERATOR T__LPAREN any_operator T__RPAREN                              { NODE; }
    | signed_number
    | string_literal
    ;

alter_operator_family
    : T__ALTER T__OPERATOR T__FAMILY qualified_name T__USING column_name common_change
      { NODE; }
    | T__ALTER T__OPERATOR T__FAMILY qualified_name T__USING column_name T__ADD operator_class_items
      { NODE; }
    | T__ALTER T__OPERATOR T__FAMILY qualified_name T__USING column_name T__DROP dropped_family_items
      { NODE; }
    ;
dropped_family_items
    : dropped_family_item
    | dropped_family_items T__COMMA dropped_family_item                         { NODE; }
    ;
dropped_family_item
    : T__OPERATOR T__INTEGER_NUMBER T__LPAREN type_list T__RPAREN               { NODE; }
    | T__FUNCTION T__INTEGER_NUMBER T__LPAREN type_list T__RPAREN               { NODE; }
    ;

alter_policy
    : T__ALTER T__POLICY column_name T__ON qualified_name T__RENAME T__TO column_name
      { NODE; }
    | T__ALTER T__POLICY T__IF T__EXISTS column_name T__ON qualified_name T__RENAME T__TO column_name
      { NODE; }
    | T__ALTER T__POLICY column_name T__ON qualified_name                       { NODE; }
    | T__ALTER T__POLICY column_name T__ON qualified_name policy_clauses        { NODE; }
    ;

alter_role
    : T__ALTER role_or_group role role_options                                  { NODE; }
    | T__ALTER T__USER role role_options                                        { NODE; }
    | T__ALTER role_or_group role T__WITH                                       { NODE; }
    | T__ALTER T__USER role T__WITH                                             { NODE; }
    | T__ALTER role_or_group role T__WITH role_options                          { NODE; }
    | T__ALTER T__USER role T__WITH role_options                                { NODE; }
    | T__ALTER role_or_group role                                               { NODE; }
    | T__ALTER T__USER role                                                     { NODE; }
    | T__ALTER role_or_group role T__RENAME T__TO role                          { NODE; }
    | T__ALTER T__USER role T__RENAME T__TO role                                { NODE; }
    | T__ALTER role_or_group role role_setting                                  { NODE; }
    | T__ALTER T__USER role role_setting                                        { NODE; }
    | T__ALTER role_or_group role T__IN T__DATABASE column_name role_setting    { NODE; }
    | T__ALTER T__USER role T__IN T__DATABASE column_name role_setting          { NODE; }
    | T__ALTER role_or_group T__ALL role_setting                                { NODE; }
    | T__ALTER T__USER T__ALL role_setting                                      { NODE; }
    | T__ALTER role_or_group T__ALL T__IN T__DATABASE column_name role_setting  { NODE; }
    | T__ALTER T__USER T__ALL T__IN T__DATABASE column_name role_setting        { NODE; }
    | T__ALTER role_or_group role T__ADD T__USER role_list                      { NODE; }
    | T__ALTER T__USER role T__ADD T__USER role_list                            { NODE; }
    | T__ALTER role_or_group role T__DROP T__USER role_list                     { NODE; }
    | T__ALTER T__USER role T__DROP T__USER role_list                           { NODE; }
    ;
role_setting
    : T__SET set_target                                                         { NODE; }
    | T__RESET reset_target                                                     { NODE; }
    ;

alter_database
    : T__ALTER T__DATABASE column_name                                          { NODE; }
    | T__ALTER T__DATABASE column_name database_options                         { NODE; }
    | T__ALTER T__DATABASE column_name T__WITH database_options                 { NODE; }
    | T__ALTER T__DATABASE column_name T__WITH                                  { NODE; }
    | T__ALTER T__DATABASE column_name T__SET T__TABLESPACE column_name         { NODE; }
    | T__ALTER T__DATABASE column_name T__REFRESH T__COLLATION T__VERSION       { NODE; }
    | T__ALTER T__DATABASE column_name role_setting                             { NODE; }
    | T__ALTER T__DATABASE column_name T__RENAME T__TO column_name              { NODE; }
    | T__ALTER T__DATABASE column_name T__OWNER T__TO role                      { NODE; }
    ;

alter_tablespace
    : T__ALTER T__TABLESPACE column_name T__RENAME T__TO column_name            { NODE; }
    | T__ALTER T__TABLESPACE column_name T__OWNER T__TO role                    { NODE; }
    | T__ALTER T__TABLESPACE column_name T__SET relation_options                { NODE; }
    | T__ALTER T__TABLESPACE column_name T__RESET relation_options              { NODE; }
    ;

alter_extension
    : T__ALTER T__EXTENSION column_name T__UPDATE                               { NODE; }
    | T__ALTER T__EXTENSION column_name T__UPDATE T__TO word_or_string          { NODE; }
    | T__ALTER T__EXTENSION column_name T__UPDATE T__TO word_or_string extension_versions
      { NODE; }
    | T__ALTER T__EXTENSION column_name T__ADD named_object                     { NODE; }
    | T__ALTER T__EXTENSION column_name T__DROP named_object                    { NODE; }
    | T__ALTER T__EXTENSION column_name T__SET T__SCHEMA column_name            { NODE; }
    ;
/* A repeated version is a mistake that the server finds only later. */
extension_versions
    : T__TO word_or_string                                                      { NODE; }
    | extension_versions T__TO word_or_string                                   { NODE; }
    ;

alter_publication
    : T__ALTER T__PUBLICATION column_name common_change                         { NODE; }
    | T__ALTER T__PUBLICATION column_name T__SET parenthesized_definitions      { NODE; }
    | T__ALTER T__PUBLICATION column_name T__ADD publication_objects            { NODE; }
    | T__ALTER T__PUBLICATION column_name T__SET publication_objects            { NODE; }
    | T__ALTER T__PUBLICATION column_name T__DROP publication_objects           { NODE; }
    ;

alter_subscription
    : T__ALTER T__SUBSCRIPTION column_name common_change                        { NODE; }
    | T__ALTER T__SUBSCRIPTION column_name T__SET parenthesized_definitions     { NODE; }
    | T__ALTER T__SUBSCRIPTION column_name T__SKIP parenthesized_definitions    { NODE; }
    | T__ALTER T__SUBSCRIPTION column_name T__CONNECTION string_literal         { NODE; }
    | T__ALTER T__SUBSCRIPTION column_name T__REFRESH T__PUBLICATION            { NODE; }
    | T__ALTER T__SUBSCRIPTION column_name T__REFRESH T__PUBLICATION T__WITH parenthesized_definitions
      { NODE; }
    | T__ALTER T__SUBSCRIPTION column_name subscription_change T__PUBLICATION name_list
      { NODE; }
    | T__ALTER T__SUBSCRIPTION column_name subscription_change T__PUBLICATION name_list T__WITH
      parenthesized_definitions                                                 { NODE; }
    | T__ALTER T__SUBSCRIPTION column_name T__ENABLE                            { NODE; }
    | T__ALTER T__SUBSCRIPTION column_name T__DISABLE                           { NODE; }
    ;
subscription_change
    : T__ADD
    | T__SET
    | T__DROP
    ;

alter_foreign_object
    : T__ALTER T__FOREIGN T__DATA T__WRAPPER column_name common_change          { NODE; }
    | T__ALTER T__FOREIGN T__DATA T__WRAPPER column_name wrapper_options        { NODE; }
    | T__ALTER T__FOREIGN T__DATA T__WRAPPER column_name alter_generic_options  { NODE; }
    | T__ALTER T__FOREIGN T__DATA T__WRAPPER column_name wrapper_options alter_generic_options
      { NODE; }
    | T__ALTER T__SERVER column_name common_change                              { NODE; }
    | T__ALTER T__SERVER column_name server_version                             { NODE; }
    | T__ALTER T__SERVER column_name alter_generic_options                      { NODE; }
    | T__ALTER T__SERVER column_name server_version alter_generic_options       { NODE; }
    | T__ALTER T__USER T__MAPPING T__FOR mapped_user T__SERVER column_name alter_generic_options
      { NODE; }
    ;

alter_statistics
    : T__ALTER T__STATISTICS qualified_name common_change                       { NODE; }
    | T__ALTER T__STATISTICS qualified_name T__SET T__STATISTICS signed_integer  { NODE; }
    | T__ALTER T__STATISTICS T__IF T__EXISTS qualified_name T__SET T__STATISTICS signed_integer
      { NODE; }
    ;

alter_text_search
    : T__ALTER T__TEXT T__SEARCH text_search_word qualified_name text_search_change
      { NODE; }
    ;
text_search_change
    : common_change
    | parenthesized_definitions
    | T__ADD T__MAPPING T__FOR name_list T__WITH qualified_name_list            { NODE; }
    | T__ALTER T__MAPPING T__FOR name_list T__WITH qualified_name_list          { NODE; }
    | T__ALTER T__MAPPING T__REPLACE qualified_name T__WITH qualified_name      { NODE; }
    | T__ALTER T__MAPPING T__FOR name_list T__REPLACE qualified_name T__WITH qualified_name
      { NODE; }
    | T__DROP T__MAPPING T__FOR name_list                                       { NODE; }
    | T__DROP T__MAPPING T__IF T__EXISTS T__FOR name_list                       { NODE; }
    ;

alter_event_trigger
    : T__ALTER T__EVENT T__TRIGGER column_name common_change                    { NODE; }
    | T__ALTER T__EVENT T__TRIGGER column_name T__ENABLE                        { NODE; }
    | T__ALTER T__EVENT T__TRIGGER column_name T__ENABLE T__REPLICA             { NODE; }
    | T__ALTER T__EVENT T__TRIGGER column_name T__ENABLE T__ALWAYS              { NODE; }
    | T__ALTER T__EVENT T__TRIGGER column_name T__DISABLE                       { NODE; }
    ;

alter_system
    : T__ALTER T__SYSTEM T__SET setting                                         { NODE; }
    | T__ALTER T__SYSTEM T__RESET qualified_name                                { NODE; }
    | T__ALTER T__SYSTEM T__RESET T__ALL                                        { NODE; }
    ;

alter_default_privileges
    : T__ALTER T__DEFAULT T__PRIVILEGES default_privileges_action               { NODE; }
    | T__ALTER T__DEFAULT T__PRIVILEGES default_privileges_scope default_privileges_action
      { NODE; }
    ;
default_privileges_scope
    : default_privileges_part
    | default_privileges_scope default_privileges_part                          { NODE; }
    ;
default_privileges_part
    : T__IN T__SCHEMA name_list                                                 { NODE; }
    | T__FOR T__ROLE grantees                                                   { NODE; }
    | T__FOR T__USER grantees                                                   { NODE; }
    ;
default_privileges_action
    : T__GRANT privileges T__ON default_privileges_target T__TO grantees        { NODE; }
    | T__GRANT privileges T__ON default_privileges_target T__TO grantees T__WITH T__GRANT T__OPTION
      { NODE; }
    | T__REVOKE privileges T__ON default_privileges_target T__FROM grantees     { NODE; }
    | T__REVOKE privileges T__ON default_privileges_target T__FROM grantees drop_behavior
      { NODE; }
    | T__REVOKE T__GRANT T__OPTION T__FOR privileges T__ON default_privileges_target T__FROM grantees
      { NODE; }
    | T__REVOKE T__GRANT T__OPTION T__FOR privileges T__ON default_privileges_target T__FROM grantees
      drop_behavior                                                             { NODE; }
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
    : T__DROP dropped_objects                                                   { NODE; }
    | T__DROP dropped_objects drop_behavior                                     { NODE; }
    | T__DROP dropped_roles                                                     { NODE; }
    ;
dropped_objects
    : object_word object_names                                                  { NODE; }
    | T__INDEX T__CONCURRENTLY object_names                                     { NODE; }
    | T__TYPE object_types                                                      { NODE; }
    | T__DOMAIN object_types                                                    { NODE; }
    | T__POLICY object_on_table                                                 { NODE; }
    | T__RULE object_on_table                                                   { NODE; }
    | T__TRIGGER object_on_table                                                { NODE; }
    | any_routine_word routine_signatures                                       { NODE; }
    | any_routine_word T__IF T__EXISTS routine_signatures                       { NODE; }
    | T__AGGREGATE aggregate_signatures                                         { NODE; }
    | T__AGGREGATE T__IF T__EXISTS aggregate_signatures                         { NODE; }
    | T__OPERATOR operator_signatures                                           { NODE; }
    | T__OPERATOR T__IF T__EXISTS operator_signatures                           { NODE; }
    | T__OPERATOR T__CLASS object_in_method                                     { NODE; }
    | T__OPERATOR T__FAMILY object_in_method                                    { NODE; }
    | T__CAST T__LPAREN type_name T__AS type_name T__RPAREN                     { NODE; }
    | T__CAST T__IF T__EXISTS T__LPAREN type_name T__AS type_name T__RPAREN     { NODE; }
    | T__TRANSFORM T__FOR type_name T__LANGUAGE column_name                     { NODE; }
    | T__TRANSFORM T__IF T__EXISTS T__FOR type_name T__LANGUAGE column_name     { NODE; }
    | T__OWNED T__BY role_list                                                  { NODE; }
    ;
/* Objects that a plain name tells. */
object_word
    : T__TABLE
    | T__SEQUENCE
    | T__VIEW
    | T__MATERIALIZED T__VIEW                                                   { NODE; }
    | T__INDEX
    | T__FOREIGN T__TABLE                                                       { NODE; }
    | T__COLLATION
    | T__CONVERSION
    | T__STATISTICS
    | T__TEXT T__SEARCH text_search_word                                        { NODE; }
    | T__ACCESS T__METHOD                                                       { NODE; }
    | T__EVENT T__TRIGGER                                                       { NODE; }
    | T__EXTENSION
    | T__FOREIGN T__DATA T__WRAPPER                                             { NODE; }
    | language_word
    | T__PUBLICATION
    | T__SCHEMA
    | T__SERVER
    | T__SUBSCRIPTION
    | T__TABLESPACE
    ;
object_names
    : qualified_name_list
    | T__IF T__EXISTS qualified_name_list                                       { NODE; }
    ;
object_types
    : type_list
    | T__IF T__EXISTS type_list                                                 { NODE; }
    ;
object_on_table
    : column_name T__ON qualified_name                                          { NODE; }
    | T__IF T__EXISTS column_name T__ON qualified_name                          { NODE; }
    ;
object_in_method
    : qualified_name T__USING column_name                                       { NODE; }
    | T__IF T__EXISTS qualified_name T__USING column_name                       { NODE; }
    ;
dropped_roles
    : role_or_group role_list                                                   { NODE; }
    | T__USER role_list                                                         { NODE; }
    | role_or_group T__IF T__EXISTS role_list                                   { NODE; }
    | T__USER T__IF T__EXISTS role_list                                         { NODE; }
    | T__USER T__MAPPING T__FOR mapped_user T__SERVER column_name               { NODE; }
    | T__USER T__MAPPING T__IF T__EXISTS T__FOR mapped_user T__SERVER column_name  { NODE; }
    | T__DATABASE column_name                                                   { NODE; }
    | T__DATABASE T__IF T__EXISTS column_name                                   { NODE; }
    | T__DATABASE column_name database_drop_options                             { NODE; }
    | T__DATABASE T__IF T__EXISTS column_name database_drop_options             { NODE; }
    ;
database_drop_options
    : utility_options
    | T__WITH utility_options                                                   { NODE; }
    ;

/* ---- COMMENT, SECURITY LABEL ---- */

named_object
    : object_word qualified_name                                                { NODE; }
    | T__ROLE column_name                                                       { NODE; }
    | T__DATABASE column_name                                                   { NODE; }
    | T__TYPE type_name                                                         { NODE; }
    | T__DOMAIN type_name                                                       { NODE; }
    | T__AGGREGATE aggregate_signature                                          { NODE; }
    | any_routine_word routine_signature                                        { NODE; }
    | T__OPERATOR operator_signature                                            { NODE; }
    | T__OPERATOR T__CLASS qualified_name T__USING column_name                  { NODE; }
    | T__OPERATOR T__FAMILY qualified_name T__USING column_name                 { NODE; }
    | T__CAST T__LPAREN type_name T__AS type_name T__RPAREN                     { NODE; }
    | T__TRANSFORM T__FOR type_name T__LANGUAGE column_name                     { NODE; }
    ;
commented_object
    : named_object
    | T__COLUMN qualified_name                                                  { NODE; }
    | T__CONSTRAINT column_name T__ON qualified_name                            { NODE; }
    | T__CONSTRAINT column_name T__ON T__DOMAIN qualified_name                  { NODE; }
    | T__POLICY column_name T__ON qualified_name                                { NODE; }
    | T__RULE column_name T__ON qualified_name                                  { NODE; }
    | T__TRIGGER column_name T__ON qualified_name                               { NODE; }
    | T__LARGE T__OBJECT signed_number                                          { NODE; }
    ;
comment_statement
    : T__COMMENT T__ON commented_object T__IS string_literal                    { NODE; }
    | T__COMMENT T__ON commented_object T__IS T__NULL                           { NODE; }
    ;
security_label_statement
    : T__SECURITY T__LABEL T__ON commented_object T__IS security_label          { NODE; }
    | T__SECURITY T__LABEL T__FOR word_or_string T__ON commented_object T__IS security_label
      { NODE; }
    ;
security_label
    : string_literal
    | T__NULL
    ;

/* ---- Rights ---- */

grant_statement
    : T__GRANT privileges T__ON privilege_target T__TO grantees                 { NODE; }
    | T__GRANT privileges T__ON privilege_target T__TO grantees T__WITH T__GRANT T__OPTION
      { NODE; }
    | T__GRANT privileges T__ON privilege_target T__TO grantees granted_by      { NODE; }
    | T__GRANT privileges T__ON privilege_target T__TO grantees T__WITH T__GRANT T__OPTION granted_by
      { NODE; }
    | T__GRANT privilege_list T__TO grantees                                    { NODE; }
    | T__GRANT privilege_list T__TO grantees T__WITH T__ADMIN T__OPTION         { NODE; }
    | T__GRANT privilege_list T__TO grantees granted_by                         { NODE; }
    | T__GRANT privilege_list T__TO grantees T__WITH T__ADMIN T__OPTION granted_by
      { NODE; }
    ;
revoke_statement
    : T__REVOKE revoked_privileges                                              { NODE; }
    | T__REVOKE revoked_privileges revoke_tail                                  { NODE; }
    ;
revoked_privileges
    : privileges T__ON privilege_target T__FROM grantees                        { NODE; }
    | T__GRANT T__OPTION T__FOR privileges T__ON privilege_target T__FROM grantees
      { NODE; }
    | privilege_list T__FROM grantees                                           { NODE; }
    | T__ADMIN T__OPTION T__FOR privilege_list T__FROM grantees                 { NODE; }
    ;
revoke_tail
    : granted_by
    | drop_behavior
    | granted_by drop_behavior                                                  { NODE; }
    ;
granted_by
    : T__GRANTED T__BY role                                                     { NODE; }
    ;
grantees
    : grantee
    | grantees T__COMMA grantee                                                 { NODE; }
    ;
grantee
    : role
    | T__GROUP role                                                             { NODE; }
    ;
privileges
    : privilege_list
    | T__ALL
    | T__ALL T__PRIVILEGES                                                      { NODE; }
    | T__ALL parenthesized_names                                                { NODE; }
    | T__ALL T__PRIVILEGES parenthesized_names                                  { NODE; }
    ;
privilege_list
    : privilege
    | privilege_list T__COMMA privilege                                         { NODE; }
    ;
privilege
    : privilege_word
    | privilege_word parenthesized_names                                        { NODE; }
    | T__ALTER T__SYSTEM                                                        { NODE; }
    ;
privilege_word
    : T__SELECT
    | T__REFERENCES
    | T__CREATE
    | column_name
    ;
privilege_target
    : qualified_name_list
    | T__TABLE qualified_name_list                                              { NODE; }
    | T__SEQUENCE qualified_name_list                                           { NODE; }
    | T__FOREIGN T__DATA T__WRAPPER name_list                                   { NODE; }
    | T__FOREIGN T__SERVER name_list                                            { NODE; }
    | any_routine_word routine_signatures                                       { NODE; }
    | T__DATABASE name_list                                                     { NODE; }
    | T__DOMAIN qualified_name_list                                             { NODE; }
    | T__LANGUAGE name_list                                                     { NODE; }
    | T__LARGE T__OBJECT number_list                                            { NODE; }
    | T__PARAMETER qualified_name_list                                          { NODE; }
    | T__SCHEMA name_list                                                       { NODE; }
    | T__TABLESPACE name_list                                                   { NODE; }
    | T__TYPE qualified_name_list                                               { NODE; }
    | T__ALL T__TABLES T__IN T__SCHEMA name_list                                { NODE; }
    | T__ALL T__SEQUENCES T__IN T__SCHEMA name_list                             { NODE; }
    | T__ALL T__FUNCTIONS T__IN T__SCHEMA name_list                             { NODE; }
    | T__ALL T__PROCEDURES T__IN T__SCHEMA name_list                            { NODE; }
    | T__ALL T__ROUTINES T__IN T__SCHEMA name_list                              { NODE; }
    ;
number_list
    : signed_number
    | number_list T__COMMA signed_number                                        { NODE; }
    ;
reassign_owned
    : T__REASSIGN T__OWNED T__BY role_list T__TO role                           { NODE; }
    ;

/* ---- Transactions ---- */

transaction_statement
    : T__ABORT
    | T__ABORT transaction_words                                                { NODE; }
    | T__START T__TRANSACTION                                                   { NODE; }
    | T__START T__TRANSACTION transaction_modes                                 { NODE; }
    | T__COMMIT
    | T__COMMIT transaction_words                                               { NODE; }
    | T__ROLLBACK
    | T__ROLLBACK transaction_words                                             { NODE; }
    | T__SAVEPOINT column_name                                                  { NODE; }
    | T__RELEASE column_name                                                    { NODE; }
    | T__RELEASE T__SAVEPOINT column_name                                       { NODE; }
    | T__ROLLBACK T__TO column_name                                             { NODE; }
    | T__ROLLBACK T__TO T__SAVEPOINT column_name                                { NODE; }
    | T__ROLLBACK transaction_word T__TO column_name                            { NODE; }
    | T__ROLLBACK transaction_word T__TO T__SAVEPOINT column_name               { NODE; }
    | T__PREPARE T__TRANSACTION string_literal                                  { NODE; }
    | T__COMMIT T__PREPARED string_literal                                      { NODE; }
    | T__ROLLBACK T__PREPARED string_literal                                    { NODE; }
    ;
begin_end_statement
    : T__BEGIN                                                                  { NODE(transaction_statement); }
    | T__BEGIN transaction_word                                                 { NODE(transaction_statement); }
    | T__BEGIN transaction_modes                                                { NODE(transaction_statement); }
    | T__BEGIN transaction_word transaction_modes                               { NODE(transaction_statement); }
    | T__END                                                                    { NODE(transaction_statement); }
    | T__END transaction_words                                                  { NODE(transaction_statement); }
    ;
transaction_word
    : T__WORK
    | T__TRANSACTION
    ;
transaction_words
    : transaction_word
    | transaction_chain
    | transaction_word transaction_chain                                        { NODE; }
    ;
transaction_chain
    : T__AND T__CHAIN                                                           { NODE; }
    | T__AND T__NO T__CHAIN                                                     { NODE; }
    ;
transaction_modes
    : transaction_mode
    | transaction_modes transaction_mode                                        { NODE; }
    | transaction_modes T__COMMA transaction_mode                               { NODE; }
    ;
transaction_mode
    : T__ISOLATION T__LEVEL isolation_level                                     { NODE; }
    | T__READ T__ONLY                                                           { NODE; }
    | T__READ T__WRITE                                                          { NODE; }
    | T__DEFERRABLE
    | T__NOT T__DEFERRABLE                                                      { NODE; }
    ;
isolation_level
    : T__READ T__UNCOMMITTED                                                    { NODE; }
    | T__READ T__COMMITTED                                                      { NODE; }
    | T__REPEATABLE T__READ                                                     { NODE; }
    | T__SERIALIZABLE
    ;

/* ---- Settings ---- */

set_statement
    : T__SET set_target                                                         { NODE; }
    | T__SET T__LOCAL set_target                                                { NODE; }
    | T__SET T__SESSION set_target                                              { NODE; }
    ;
set_target
    : T__TRANSACTION transaction_modes                                          { NODE; }
    | T__SESSION T__CHARACTERISTICS T__AS T__TRANSACTION transaction_modes      { NODE; }
    | set_item_more
    ;
set_item_more
    : setting
    | qualified_name T__FROM T__CURRENT                                         { NODE; }
    | T__TIME T__ZONE time_zone_value                                           { NODE; }
    | T__CATALOG string_literal                                                 { NODE; }
    | T__SCHEMA string_literal                                                  { NODE; }
    | T__NAMES
    | T__NAMES string_literal                                                   { NODE; }
    | T__NAMES T__DEFAULT                                                       { NODE; }
    | T__ROLE word_or_string                                                    { NODE; }
    | T__SESSION T__AUTHORIZATION word_or_string                                { NODE; }
    | T__SESSION T__AUTHORIZATION T__DEFAULT                                    { NODE; }
    | T__XML T__OPTION document_or_content                                      { NODE; }
    | T__TRANSACTION T__SNAPSHOT string_literal                                 { NODE; }
    ;
setting
    : qualified_name T__TO setting_values                                       { NODE; }
    | qualified_name T__EQUAL setting_values                                    { NODE; }
    | qualified_name T__TO T__DEFAULT                                           { NODE; }
    | qualified_name T__EQUAL T__DEFAULT                                        { NODE; }
    ;
setting_values
    : setting_value
    | setting_values T__COMMA setting_value                                     { NODE; }
    ;
setting_value
    : option_text
    | signed_number
    ;
time_zone_value
    : string_literal
    | plain_identifier
    | T__INTERVAL string_literal                                                { NODE; }
    | T__INTERVAL string_literal interval_fields                                { NODE; }
    | T__INTERVAL T__LPAREN T__INTEGER_NUMBER T__RPAREN string_literal          { NODE; }
    | signed_number
    | T__DEFAULT
    | T__LOCAL
    ;
show_statement
    : T__SHOW shown_setting                                                     { NODE; }
    ;
reset_statement
    : T__RESET reset_target                                                     { NODE; }
    ;
reset_target
    : shown_setting
    ;
shown_setting
    : qualified_name
    | T__TIME T__ZONE                                                           { NODE; }
    | T__TRANSACTION T__ISOLATION T__LEVEL                                      { NODE; }
    | T__SESSION T__AUTHORIZATION                                               { NODE; }
    | T__ALL
    ;
constraints_statement
    : T__SET T__CONSTRAINTS T__ALL constraints_mode                             { NODE; }
    | T__SET T__CONSTRAINTS qualified_name_list constraints_mode                { NODE; }
    ;
constraints_mode
    : T__DEFERRED
    | T__IMMEDIATE
    ;

/* ---- COPY ---- */

copy_statement
    : T__COPY copied_table copy_direction copy_place                            { NODE; }
    | T__COPY copied_table copy_direction copy_place copy_clauses               { NODE; }
    | T__COPY T__LPAREN preparable_statement T__RPAREN T__TO copy_place         { NODE; }
    | T__COPY T__LPAREN preparable_statement T__RPAREN T__TO copy_place copy_clauses
      { NODE; }
    ;
copied_table
    : qualified_name
    | qualified_name parenthesized_names                                        { NODE; }
    | T__BINARY qualified_name                                                  { NODE; }
    | T__BINARY qualified_name parenthesized_names                              { NODE; }
    ;
copy_direction
    : T__FROM
    | T__TO
    ;
copy_place
    : string_literal
    | T__PROGRAM string_literal                                                 { NODE; }
    | T__STDIN
    | T__STDOUT
    ;
copy_clauses
    : copy_delimiters
    | copy_with
    | where_clause
    | copy_delimiters copy_with                                                 { NODE; }
    | copy_delimiters where_clause                                              { NODE; }
    | copy_with where_clause                                                    { NODE; }
    | copy_delimiters copy_with where_clause                                    { NODE; }
    ;
copy_delimiters
    : T__DELIMITERS string_literal                                              { NODE; }
    | T__USING T__DELIMITERS string_literal                                     { NODE; }
    ;
copy_with
    : copy_options
    | T__WITH copy_options                                                      { NODE; }
    | T__WITH                                                                   { NODE; }
    ;
copy_options
    : copy_option_list
    | T__LPAREN copy_generic_list T__RPAREN                                     { NODE; }
    ;
copy_option_list
    : copy_option
    | copy_option_list copy_option                                              { NODE; }
    ;
copy_option
    : T__BINARY
    | T__FREEZE
    | T__DELIMITER string_literal                                               { NODE; }
    | T__DELIMITER T__AS string_literal                                         { NODE; }
    | T__NULL string_literal                                                    { NODE; }
    | T__NULL T__AS string_literal                                              { NODE; }
    | T__CSV
    | T__HEADER
    | T__QUOTE string_literal                                                   { NODE; }
    | T__QUOTE T__AS string_literal                                             { NODE; }
    | T__ESCAPE string_literal                                                  { NODE; }
    | T__ESCAPE T__AS string_literal                                            { NODE; }
    | T__FORCE T__QUOTE name_list                                               { NODE; }
    | T__FORCE T__QUOTE T__ASTERISK                                             { NODE; }
    | T__FORCE T__NOT T__NULL name_list                                         { NODE; }
    | T__FORCE T__NULL name_list                                                { NODE; }
    | T__ENCODING string_literal                                                { NODE; }
    ;
copy_generic_list
    : copy_generic_option
    | copy_generic_list T__COMMA copy_generic_option                            { NODE; }
    ;
copy_generic_option
    : any_label
    | any_label copy_generic_value                                              { NODE; }
    ;
copy_generic_value
    : option_text
    | signed_number
    | T__ASTERISK
    | T__LPAREN copy_value_list T__RPAREN                                       { NODE; }
    ;
copy_value_list
    : option_text
    | copy_value_list T__COMMA option_text                                      { NODE; }
    ;

/* ---- EXPLAIN, DO, CALL, prepared statements ---- */

utility_options
    : T__LPAREN utility_option_list T__RPAREN                                   { NODE; }
    ;
utility_option_list
    : utility_option
    | utility_option_list T__COMMA utility_option                               { NODE; }
    ;
utility_option
    : utility_option_name
    | utility_option_name option_text                                           { NODE; }
    | utility_option_name signed_number                                         { NODE; }
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
    : T__EXPLAIN explained_statement                                            { NODE; }
    | T__EXPLAIN analyze_word explained_statement                               { NODE; }
    | T__EXPLAIN T__VERBOSE explained_statement                                 { NODE; }
    | T__EXPLAIN analyze_word T__VERBOSE explained_statement                    { NODE; }
    | T__EXPLAIN utility_options explained_statement                            { NODE; }
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
    : T__DO do_items                                                            { NODE; }
    ;
do_items
    : do_item
    | do_items do_item                                                          { NODE; }
    ;
do_item
    : string_literal
    | T__LANGUAGE word_or_string                                                { NODE; }
    ;
call_statement
    : T__CALL function_call                                                     { NODE; }
    ;
prepare_statement
    : T__PREPARE column_name T__AS prepared_statement                           { NODE; }
    | T__PREPARE column_name T__LPAREN type_list T__RPAREN T__AS prepared_statement
      { NODE; }
    ;
prepared_statement
    : preparable_statement
    | merge_statement
    ;
execute_statement
    : T__EXECUTE column_name                                                    { NODE; }
    | T__EXECUTE column_name T__LPAREN expression_list T__RPAREN                { NODE; }
    ;
deallocate_statement
    : T__DEALLOCATE column_name                                                 { NODE; }
    | T__DEALLOCATE T__PREPARE column_name                                      { NODE; }
    | T__DEALLOCATE T__ALL                                                      { NODE; }
    | T__DEALLOCATE T__PREPARE T__ALL                                           { NODE; }
    ;

/* ---- Cursors ---- */

declare_cursor
    : T__DECLARE column_name T__CURSOR T__FOR query                             { NODE; }
    | T__DECLARE column_name cursor_options T__CURSOR T__FOR query              { NODE; }
    | T__DECLARE column_name T__CURSOR hold_option T__FOR query                 { NODE; }
    | T__DECLARE column_name cursor_options T__CURSOR hold_option T__FOR query  { NODE; }
    ;
cursor_options
    : cursor_option
    | cursor_options cursor_option                                              { NODE; }
    ;
cursor_option
    : T__NO T__SCROLL                                                           { NODE; }
    | T__SCROLL
    | T__BINARY
    | T__ASENSITIVE
    | T__INSENSITIVE
    ;
hold_option
    : T__WITH T__HOLD                                                           { NODE; }
    | T__WITHOUT T__HOLD                                                        { NODE; }
    ;
fetch_statement
    : T__FETCH fetch_target                                                     { NODE; }
    | T__MOVE fetch_target                                                      { NODE; }
    ;
fetch_target
    : column_name
    | from_in column_name                                                       { NODE; }
    | fetch_direction column_name                                               { NODE; }
    | fetch_direction from_in column_name                                       { NODE; }
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
    | T__ABSOLUTE signed_integer                                                { NODE; }
    | T__RELATIVE signed_integer                                                { NODE; }
    | signed_integer
    | T__ALL
    | T__FORWARD
    | T__FORWARD signed_integer                                                 { NODE; }
    | T__FORWARD T__ALL                                                         { NODE; }
    | T__BACKWARD
    | T__BACKWARD signed_integer                                                { NODE; }
    | T__BACKWARD T__ALL                                                        { NODE; }
    ;
close_statement
    : T__CLOSE column_name                                                      { NODE; }
    | T__CLOSE T__ALL                                                           { NODE; }
    ;

/* ---- Locks and upkeep ---- */

lock_statement
    : T__LOCK locked_relations                                                  { NODE; }
    | T__LOCK locked_relations T__NOWAIT                                        { NODE; }
    | T__LOCK locked_relations lock_mode                                        { NODE; }
    | T__LOCK locked_relations lock_mode T__NOWAIT                              { NODE; }
    ;
locked_relations
    : relation_list
    | T__TABLE relation_list                                                    { NODE; }
    ;
lock_mode
    : T__IN lock_mode_words T__MODE                                             { NODE; }
    ;
lock_mode_words
    : T__ACCESS T__SHARE                                                        { NODE; }
    | T__ROW T__SHARE                                                           { NODE; }
    | T__ROW T__EXCLUSIVE                                                       { NODE; }
    | T__SHARE T__UPDATE T__EXCLUSIVE                                           { NODE; }
    | T__SHARE
    | T__SHARE T__ROW T__EXCLUSIVE                                              { NODE; }
    | T__EXCLUSIVE
    | T__ACCESS T__EXCLUSIVE                                                    { NODE; }
    ;
truncate_statement
    : T__TRUNCATE locked_relations                                              { NODE; }
    | T__TRUNCATE locked_relations truncate_tail                                { NODE; }
    ;
truncate_tail
    : identity_restart
    | drop_behavior
    | identity_restart drop_behavior                                            { NODE; }
    ;
identity_restart
    : T__CONTINUE T__IDENTITY                                                   { NODE; }
    | T__RESTART T__IDENTITY                                                    { NODE; }
    ;
vacuum_statement
    : T__VACUUM
    | T__VACUUM vacuumed_relations                                              { NODE; }
    | T__VACUUM vacuum_words                                                    { NODE; }
    | T__VACUUM vacuum_words vacuumed_relations                                 { NODE; }
    | T__VACUUM utility_options                                                 { NODE; }
    | T__VACUUM utility_options vacuumed_relations                              { NODE; }
    ;
vacuum_words
    : vacuum_word
    | vacuum_words vacuum_word                                                  { NODE; }
    ;
vacuum_word
    : T__FULL
    | T__FREEZE
    | T__VERBOSE
    | analyze_word
    ;
vacuumed_relations
    : vacuumed_relation
    | vacuumed_relations T__COMMA vacuumed_relation                             { NODE; }
    ;
vacuumed_relation
    : qualified_name
    | qualified_name parenthesized_names                                        { NODE; }
    ;
analyze_statement
    : analyze_word
    | analyze_word vacuumed_relations                                           { NODE; }
    | analyze_word T__VERBOSE                                                   { NODE; }
    | analyze_word T__VERBOSE vacuumed_relations                                { NODE; }
    | analyze_word utility_options                                              { NODE; }
    | analyze_word utility_options vacuumed_relations                           { NODE; }
    ;
cluster_statement
    : T__CLUSTER
    | T__CLUSTER T__VERBOSE                                                     { NODE; }
    | T__CLUSTER utility_options                                                { NODE; }
    | T__CLUSTER clustered_relation                                             { NODE; }
    | T__CLUSTER T__VERBOSE clustered_relation                                  { NODE; }
    | T__CLUSTER utility_options clustered_relation                             { NODE; }
    ;
clustered_relation
    : qualified_name
    | qualified_name T__USING column_name                                       { NODE; }
    | column_name T__ON qualified_name                                          { NODE; }
    ;
reindex_statement
    : T__REINDEX reindex_target                                                 { NODE; }
    | T__REINDEX utility_options reindex_target                                 { NODE; }
    ;
reindex_target
    : reindex_word qualified_name                                               { NODE; }
    | reindex_word T__CONCURRENTLY qualified_name                               { NODE; }
    ;
reindex_word
    : T__INDEX
    | T__TABLE
    | T__SCHEMA
    | T__SYSTEM
    | T__DATABASE
    ;
refresh_statement
    : T__REFRESH T__MATERIALIZED T__VIEW qualified_name                         { NODE; }
    | T__REFRESH T__MATERIALIZED T__VIEW T__CONCURRENTLY qualified_name         { NODE; }
    | T__REFRESH T__MATERIALIZED T__VIEW qualified_name with_data               { NODE; }
    | T__REFRESH T__MATERIALIZED T__VIEW T__CONCURRENTLY qualified_name with_data
      { NODE; }
    ;

/* ---- Notification and the rest ---- */

listen_statement
    : T__LISTEN column_name                                                     { NODE; }
    | T__UNLISTEN column_name                                                   { NODE; }
    | T__UNLISTEN T__ASTERISK                                                   { NODE; }
    | notify_statement
    ;
notify_statement
    : T__NOTIFY column_name                                                     { NODE; }
    | T__NOTIFY column_name T__COMMA string_literal                             { NODE; }
    ;
discard_statement
    : T__DISCARD T__ALL                                                         { NODE; }
    | T__DISCARD T__TEMP                                                        { NODE; }
    | T__DISCARD T__TEMPORARY                                                   { NODE; }
    | T__DISCARD T__PLANS                                                       { NODE; }
    | T__DISCARD T__SEQUENCES                                                   { NODE; }
    ;
load_statement
    : T__LOAD string_literal                                                    { NODE; }
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
