/* Functions. */

function_expression
    : special_value
    | special_function                                                          { NODE(expression); }
    ;

function_call
    : function_name T__LPAREN T__RPAREN                                         { NODE; }
    | function_name T__LPAREN argument_list T__RPAREN                           { NODE; }
    | function_name T__LPAREN argument_list sort_clause T__RPAREN               { NODE; }
    | function_name T__LPAREN T__ALL argument_list T__RPAREN                    { NODE; }
    | function_name T__LPAREN T__ALL argument_list sort_clause T__RPAREN        { NODE; }
    | function_name T__LPAREN T__DISTINCT argument_list T__RPAREN               { NODE; }
    | function_name T__LPAREN T__DISTINCT argument_list sort_clause T__RPAREN   { NODE; }
    | function_name T__LPAREN T__ASTERISK T__RPAREN                             { NODE; }
    ;

%list argument_list: argument %separator T__COMMA ;

argument
    : expression
    | parameter_name T__COLON_EQUAL expression                                  { NODE(named_argument); }
    | parameter_name T__ARROW expression                                        { NODE(named_argument); }
    | T__VARIADIC argument                                                      { NODE(variadic_argument); }
    ;

function_suffix
    : within_group
    | filter_clause
    | over_clause
    | within_group filter_clause                                                { NODE(function_call); }
    | within_group over_clause                                                  { NODE(function_call); }
    | filter_clause over_clause                                                 { NODE(function_call); }
    | within_group filter_clause over_clause                                    { NODE(function_call); }
    ;
within_group
    : T__WITHIN T__GROUP T__LPAREN sort_clause T__RPAREN                        { NODE; }
    ;
filter_clause
    : T__FILTER T__LPAREN T__WHERE condition T__RPAREN                          { NODE; }
    ;
over_clause
    : T__OVER window_definition                                                 { NODE; }
    | T__OVER window_name                                                       { NODE; }
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
    | T__SYSTEM_USER
    | T__USER
    | T__CURRENT_CATALOG
    | T__CURRENT_SCHEMA
    ;

/* Functions with words of their own between their arguments. */
special_function
    : T__COLLATION T__FOR T__LPAREN expression T__RPAREN                        { NODE; }
    | T__CAST T__LPAREN expression T__AS data_type T__RPAREN                    { NODE(cast_expression); }
    | T__EXTRACT T__LPAREN extract_field T__FROM expression T__RPAREN           { NODE; }
    | T__NORMALIZE T__LPAREN expression T__RPAREN                               { NODE; }
    | T__NORMALIZE T__LPAREN expression T__COMMA normal_form T__RPAREN          { NODE; }
    | T__OVERLAY T__LPAREN expression T__PLACING expression T__FROM expression T__FOR expression T__RPAREN
      { NODE; }
    | T__OVERLAY T__LPAREN expression T__PLACING expression T__FROM expression T__RPAREN
      { NODE; }
    | T__OVERLAY T__LPAREN T__RPAREN                                            { NODE; }
    | T__OVERLAY T__LPAREN argument_list T__RPAREN                              { NODE; }
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
    | T__SUBSTRING T__LPAREN argument_list T__RPAREN                            { NODE; }
    | T__TREAT T__LPAREN expression T__AS data_type T__RPAREN                   { NODE(cast_expression); }
    | T__TRIM T__LPAREN trim_operands T__RPAREN                                 { NODE; }
    | T__TRIM T__LPAREN trim_side trim_operands T__RPAREN                       { NODE; }
    | T__MERGE_ACTION T__LPAREN T__RPAREN                                       { NODE; }
    | T__NULLIF T__LPAREN expression T__COMMA expression T__RPAREN              { NODE; }
    | T__COALESCE T__LPAREN expression_list T__RPAREN                           { NODE; }
    | T__GREATEST T__LPAREN expression_list T__RPAREN                           { NODE; }
    | T__LEAST T__LPAREN expression_list T__RPAREN                              { NODE; }
    | T__XMLCONCAT T__LPAREN expression_list T__RPAREN                          { NODE; }
    | T__XMLELEMENT T__LPAREN T__NAME xml_name T__RPAREN                        { NODE; }
    | T__XMLELEMENT T__LPAREN T__NAME xml_name T__COMMA xml_attributes T__RPAREN
      { NODE; }
    | T__XMLELEMENT T__LPAREN T__NAME xml_name T__COMMA expression_list T__RPAREN
      { NODE; }
    | T__XMLELEMENT T__LPAREN T__NAME xml_name T__COMMA xml_attributes T__COMMA expression_list T__RPAREN
      { NODE; }
    | T__XMLEXISTS T__LPAREN primary xml_passing T__RPAREN                      { NODE; }
    | T__XMLFOREST T__LPAREN xml_attribute_list T__RPAREN                       { NODE; }
    | T__XMLPARSE T__LPAREN document_or_content expression T__RPAREN            { NODE; }
    | T__XMLPARSE T__LPAREN document_or_content expression whitespace_option T__RPAREN
      { NODE; }
    | T__XMLPI T__LPAREN T__NAME xml_name T__RPAREN                             { NODE; }
    | T__XMLPI T__LPAREN T__NAME xml_name T__COMMA expression T__RPAREN         { NODE; }
    | T__XMLROOT T__LPAREN expression T__COMMA xml_version T__RPAREN            { NODE; }
    | T__XMLROOT T__LPAREN expression T__COMMA xml_version xml_standalone T__RPAREN
      { NODE; }
    | T__XMLSERIALIZE T__LPAREN document_or_content expression T__AS simple_type T__RPAREN
      { NODE; }
    | T__XMLSERIALIZE T__LPAREN document_or_content expression T__AS simple_type xml_indent T__RPAREN
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
trim_operands
    : expression T__FROM expression_list                                        { NODE; }
    | T__FROM expression_list                                                   { NODE; }
    | expression_list                                                           { NODE; }
    ;

xml_name
    : any_label                                                                 { NODE; }
    ;
xml_attributes
    : T__XMLATTRIBUTES T__LPAREN xml_attribute_list T__RPAREN                   { NODE; }
    ;
xml_attribute_list
    : xml_attribute                                                             { NODE; }
    | xml_attribute_list T__COMMA xml_attribute                                 { NODE; }
    ;
xml_attribute
    : expression                                                                { NODE; }
    | expression T__AS any_alias                                                { NODE; }
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
xml_indent
    : T__INDENT
    | T__NO T__INDENT                                                           { NODE; }
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
