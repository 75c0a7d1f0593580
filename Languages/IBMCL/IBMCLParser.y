%define lr.default-reduction consistent
%define api.value.type {int}

%token T__CALL T__CALLPRC T__CALLSUBR T__CHGVAR T__COPYRIGHT T__DCL T__DCLF T__DCLPRCOPT T__DO T__DOFOR T__DOUNTIL
%token T__DOWHILE T__ELSE T__ENDDO T__ENDPGM T__ENDSELECT T__ENDSUBR T__GOTO T__IF T__INCLUDE T__ITERATE T__LEAVE
%token T__MONMSG T__OTHERWISE T__PGM T__RETURN T__RTNSUBR T__SELECT T__SUBR T__TFRCTL T__WHEN T__COND T__THEN T__CMD
%token T__EXEC T__KEYWORD T__LABEL T__COLON T__LINE_END T__PROMPT T__SELECTIVE_PROMPT T__NAME T__QUOTED_NAME
%token T__GENERIC_NAME T__VARIABLE T__SPECIAL_VALUE T__FUNCTION T__QUALIFIER T__NUMBER T__WORD T__STRING
%token T__OPEN_STRING T__HEX_STRING T__LPAREN T__RPAREN T__PLUS T__MINUS T__SLASH T__ASTERISK T__LONE_ASTERISK
%token T__CONCATENATION T__COMPARISON T__AND T__OR T__NOT T__UNCLOSED_COMMENT T__BAD_CHARACTER

/* Binding power, weakest first. A value ends where no operator follows: what could be a sign is one only where a value
   begins. */
%precedence VALUE
%left T__OR
%left T__AND
%left T__COMPARISON
%left T__CONCATENATION
%left T__PLUS T__MINUS
%left T__ASTERISK T__SLASH
%right T__NOT SIGN
/* A bracket behind a function holds its arguments. */
%precedence FUNCTION
%precedence T__LPAREN

%start SQL_ROOT
%%

SQL_ROOT
    : %empty                                                      { EMPTY(SQL); }
    | program                                                     { CREATE_NODE(SQL, 1); }
    ;

/* Statements come in chunks of chunks under one name, so that a long program doesn't become a deep chain. The list of
   delimited statements stands in a list of statements, and that in a node of its own: so whoever flattens the tree
   gives all statements one shape, however many there are. */
program
    : pl_sql_statements                                           { CREATE_NODE(program, 1); }
    ;
pl_sql_statements
    : delimited_pl_sql_statements                                 { CREATE_NODE(pl_sql_statements, 1); }
    ;
%list delimited_pl_sql_statements: delimited %last last_statement %deep ;

/* An error costs its line, but for the label. */
delimited
    : pl_sql_statement line_end                                   { CREATE_NODE(delimited_pl_sql_statement, 2); }
    | labeled_line                                                { CREATE_NODE(delimited_pl_sql_statement, 1); }
    | error line_end
      { CREATE_NODE_WITH_ERROR(delimited_pl_sql_statement, 2, 0); }
    ;
/* The line end of a labeled statement is inside, with the comment that may stand in front of it. A label may have its
   line to itself. */
labeled_line
    : pl_sql_statement_label line_end                             { CREATE_NODE(labeled_pl_sql_statement, 2); }
    | pl_sql_statement_label pl_sql_statement line_end            { CREATE_NODE(labeled_pl_sql_statement, 3); }
    | pl_sql_statement_label error line_end
      { CREATE_NODE_WITH_ERROR(labeled_pl_sql_statement, 3, 1); }
    ;
line_end
    : T__LINE_END                                                 { CREATE_NODE(pl_sql_statement_delimiter, 1); }
    ;

/* The last line may lack its end. A rule may end in an error where nothing but the end of the text follows. */
last_statement
    : pl_sql_statement text_end                                   { CREATE_NODE(delimited_pl_sql_statement, 2); }
    | last_labeled_line                                           { CREATE_NODE(delimited_pl_sql_statement, 1); }
    | error
      { CREATE_NODE_WITH_ERROR(delimited_pl_sql_statement, 1, 0); }
    ;
last_labeled_line
    : pl_sql_statement_label text_end                             { CREATE_NODE(labeled_pl_sql_statement, 2); }
    | pl_sql_statement_label pl_sql_statement text_end            { CREATE_NODE(labeled_pl_sql_statement, 3); }
    | pl_sql_statement_label error
      { CREATE_NODE_WITH_ERROR(labeled_pl_sql_statement, 2, 1); }
    ;
text_end
    : %empty                                                      { EMPTY(pl_sql_statement_delimiter); }
    ;

pl_sql_statement_label
    : T__LABEL T__COLON                                           { CREATE_NODE(pl_sql_statement_label, 2); }
    ;
pl_sql_statement
    : command                                                     { CREATE_NODE(pl_sql_statement, 1); }
    ;

/* ---- Commands ---- */

command
    : command_statement
    | call_statement
    | callprc_statement
    | callsubr_statement
    | chgvar_statement
    | copyright_statement
    | dcl_statement
    | dclf_statement
    | dclprcopt_statement
    | do_statement
    | dofor_statement
    | dountil_statement
    | dowhile_statement
    | else_statement
    | enddo_statement
    | endpgm_statement
    | endselect_statement
    | endsubr_statement
    | goto_statement
    | if_statement
    | include_statement
    | iterate_statement
    | leave_statement
    | monmsg_statement
    | otherwise_statement
    | pgm_statement
    | return_statement
    | rtnsubr_statement
    | select_statement
    | subr_statement
    | tfrctl_statement
    | when_statement
    | T__PROMPT command                                           { CREATE_NODE(prompted_command, 2); }
    ;

/* Any command that the language doesn't treat in a way of its own. A keyword here is a command name with a bracket
   right behind it. */
command_statement
    : command_name                                                { CREATE_NODE(command_statement, 1); }
    | command_name parameter_list                                 { CREATE_NODE(command_statement, 2); }
    ;
command_name
    : T__NAME                                                     { CREATE_NODE(command_name, 1); }
    | T__KEYWORD                                                  { CREATE_NODE(command_name, 1); }
    | command_library T__QUALIFIER name_part                      { CREATE_NODE(command_name, 3); }
    ;
command_library
    : T__NAME                                                     { CREATE_NODE(name, 1); }
    | T__SPECIAL_VALUE
    ;

call_statement
    : T__CALL                                                     { CREATE_NODE(call_statement, 1); }
    | T__CALL parameter_list                                      { CREATE_NODE(call_statement, 2); }
    ;
callprc_statement
    : T__CALLPRC                                                  { CREATE_NODE(callprc_statement, 1); }
    | T__CALLPRC parameter_list                                   { CREATE_NODE(callprc_statement, 2); }
    ;
callsubr_statement
    : T__CALLSUBR                                                 { CREATE_NODE(callsubr_statement, 1); }
    | T__CALLSUBR parameter_list                                  { CREATE_NODE(callsubr_statement, 2); }
    ;
chgvar_statement
    : T__CHGVAR                                                   { CREATE_NODE(chgvar_statement, 1); }
    | T__CHGVAR parameter_list                                    { CREATE_NODE(chgvar_statement, 2); }
    ;
copyright_statement
    : T__COPYRIGHT                                                { CREATE_NODE(copyright_statement, 1); }
    | T__COPYRIGHT parameter_list                                 { CREATE_NODE(copyright_statement, 2); }
    ;
dcl_statement
    : T__DCL                                                      { CREATE_NODE(dcl_statement, 1); }
    | T__DCL parameter_list                                       { CREATE_NODE(dcl_statement, 2); }
    ;
dclf_statement
    : T__DCLF                                                     { CREATE_NODE(dclf_statement, 1); }
    | T__DCLF parameter_list                                      { CREATE_NODE(dclf_statement, 2); }
    ;
dclprcopt_statement
    : T__DCLPRCOPT                                                { CREATE_NODE(dclprcopt_statement, 1); }
    | T__DCLPRCOPT parameter_list                                 { CREATE_NODE(dclprcopt_statement, 2); }
    ;
do_statement
    : T__DO                                                       { CREATE_NODE(do_statement, 1); }
    ;
dofor_statement
    : T__DOFOR                                                    { CREATE_NODE(dofor_statement, 1); }
    | T__DOFOR parameter_list                                     { CREATE_NODE(dofor_statement, 2); }
    ;
dountil_statement
    : T__DOUNTIL condition                                        { CREATE_NODE(dountil_statement, 2); }
    ;
dowhile_statement
    : T__DOWHILE condition                                        { CREATE_NODE(dowhile_statement, 2); }
    ;
else_statement
    : T__ELSE                                                     { CREATE_NODE(else_statement, 1); }
    | T__ELSE else_parameter                                      { CREATE_NODE(else_statement, 2); }
    ;
enddo_statement
    : T__ENDDO                                                    { CREATE_NODE(enddo_statement, 1); }
    ;
endpgm_statement
    : T__ENDPGM                                                   { CREATE_NODE(endpgm_statement, 1); }
    ;
endselect_statement
    : T__ENDSELECT                                                { CREATE_NODE(endselect_statement, 1); }
    ;
endsubr_statement
    : T__ENDSUBR                                                  { CREATE_NODE(endsubr_statement, 1); }
    | T__ENDSUBR parameter_list                                   { CREATE_NODE(endsubr_statement, 2); }
    ;
goto_statement
    : T__GOTO                                                     { CREATE_NODE(goto_statement, 1); }
    | T__GOTO parameter_list                                      { CREATE_NODE(goto_statement, 2); }
    ;
if_statement
    : T__IF condition                                             { CREATE_NODE(if_statement, 2); }
    | T__IF condition then_parameter                              { CREATE_NODE(if_statement, 3); }
    ;
include_statement
    : T__INCLUDE                                                  { CREATE_NODE(include_statement, 1); }
    | T__INCLUDE parameter_list                                   { CREATE_NODE(include_statement, 2); }
    ;
iterate_statement
    : T__ITERATE                                                  { CREATE_NODE(iterate_statement, 1); }
    | T__ITERATE parameter_list                                   { CREATE_NODE(iterate_statement, 2); }
    ;
leave_statement
    : T__LEAVE                                                    { CREATE_NODE(leave_statement, 1); }
    | T__LEAVE parameter_list                                     { CREATE_NODE(leave_statement, 2); }
    ;
monmsg_statement
    : T__MONMSG                                                   { CREATE_NODE(monmsg_statement, 1); }
    | T__MONMSG parameter_list                                    { CREATE_NODE(monmsg_statement, 2); }
    ;
otherwise_statement
    : T__OTHERWISE                                                { CREATE_NODE(otherwise_statement, 1); }
    | T__OTHERWISE else_parameter                                 { CREATE_NODE(otherwise_statement, 2); }
    ;
pgm_statement
    : T__PGM                                                      { CREATE_NODE(pgm_statement, 1); }
    | T__PGM parameter_list                                       { CREATE_NODE(pgm_statement, 2); }
    ;
return_statement
    : T__RETURN                                                   { CREATE_NODE(return_statement, 1); }
    ;
rtnsubr_statement
    : T__RTNSUBR                                                  { CREATE_NODE(rtnsubr_statement, 1); }
    | T__RTNSUBR parameter_list                                   { CREATE_NODE(rtnsubr_statement, 2); }
    ;
select_statement
    : T__SELECT                                                   { CREATE_NODE(select_statement, 1); }
    ;
subr_statement
    : T__SUBR                                                     { CREATE_NODE(subr_statement, 1); }
    | T__SUBR parameter_list                                      { CREATE_NODE(subr_statement, 2); }
    ;
tfrctl_statement
    : T__TFRCTL                                                   { CREATE_NODE(tfrctl_statement, 1); }
    | T__TFRCTL parameter_list                                    { CREATE_NODE(tfrctl_statement, 2); }
    ;
when_statement
    : T__WHEN condition                                           { CREATE_NODE(when_statement, 2); }
    | T__WHEN condition then_parameter                            { CREATE_NODE(when_statement, 3); }
    ;

/* ---- Conditions, and commands inside commands ---- */

condition
    : condition_keyword T__LPAREN expression T__RPAREN            { CREATE_NODE(condition, 4); }
    | T__LPAREN expression T__RPAREN                              { CREATE_NODE(condition, 3); }
    | T__VARIABLE                                                 { CREATE_NODE(condition, 1); }
    | T__STRING                                                   { CREATE_NODE(condition, 1); }
    | function_call                                               { CREATE_NODE(condition, 1); }
    ;
condition_keyword
    : T__COND                                                     { CREATE_NODE(parameter_keyword, 1); }
    ;
then_parameter
    : then_keyword T__LPAREN T__RPAREN                            { CREATE_NODE(command_parameter, 3); }
    | then_keyword T__LPAREN nested_command T__RPAREN             { CREATE_NODE(command_parameter, 4); }
    | positional_command
    ;
then_keyword
    : T__THEN                                                     { CREATE_NODE(parameter_keyword, 1); }
    ;
else_parameter
    : else_keyword T__LPAREN T__RPAREN                            { CREATE_NODE(command_parameter, 3); }
    | else_keyword T__LPAREN nested_command T__RPAREN             { CREATE_NODE(command_parameter, 4); }
    | positional_command
    ;
else_keyword
    : T__CMD                                                      { CREATE_NODE(parameter_keyword, 1); }
    ;
/* Without brackets it takes in the rest of the line: IF (&A) CALL B. */
positional_command
    : T__LPAREN nested_command T__RPAREN                          { CREATE_NODE(command_parameter, 3); }
    | nested_command                                              { CREATE_NODE(command_parameter, 1); }
    ;
nested_command
    : command                                                     { CREATE_NODE(nested_command, 1); }
    ;

/* ---- Parameters ---- */

parameter_list
    : parameter                                                   { CREATE_NODE(parameter_list, 1); }
    | parameter_list parameter                                    { CREATE_NODE(parameter_list, 2); }
    ;
parameter
    : named_parameter
    | positional_value                                            { CREATE_NODE(positional_parameter, 1); }
    ;
named_parameter
    : keyword_parameter
    | command_parameter
    ;
keyword_parameter
    : parameter_keyword T__LPAREN T__RPAREN                       { CREATE_NODE(keyword_parameter, 3); }
    | parameter_keyword T__LPAREN list_content T__RPAREN          { CREATE_NODE(keyword_parameter, 4); }
    ;
parameter_keyword
    : plain_keyword                                               { CREATE_NODE(parameter_keyword, 1); }
    | T__SELECTIVE_PROMPT plain_keyword                           { CREATE_NODE(parameter_keyword, 2); }
    ;
plain_keyword
    : T__KEYWORD
    | T__COND
    ;
/* A parameter that holds a command, or the name of one, or its text. */
command_parameter
    : command_keyword T__LPAREN T__RPAREN                         { CREATE_NODE(command_parameter, 3); }
    | command_keyword T__LPAREN nested_command T__RPAREN          { CREATE_NODE(command_parameter, 4); }
    | command_keyword T__LPAREN command_text T__RPAREN            { CREATE_NODE(command_parameter, 4); }
    ;
command_keyword
    : plain_command_keyword                                       { CREATE_NODE(parameter_keyword, 1); }
    | T__SELECTIVE_PROMPT plain_command_keyword                   { CREATE_NODE(parameter_keyword, 2); }
    ;
plain_command_keyword
    : T__CMD
    | T__EXEC
    | T__THEN
    ;
command_text
    : T__STRING
    | T__GENERIC_NAME
    | T__HEX_STRING
    | T__VARIABLE
    | T__SPECIAL_VALUE
    | function_call
    | parenthesized_values
    | T__VARIABLE T__QUALIFIER name_part                          { CREATE_NODE(qualified_name, 3); }
    | command_text T__CONCATENATION expression                    { CREATE_NODE(expression, 3); }
    ;
/* Outside of brackets a blank ends a value, so there is no arithmetic. */
positional_value
    : operand
    | T__PLUS T__NUMBER                                           { CREATE_NODE(expression, 2); }
    | T__MINUS T__NUMBER                                          { CREATE_NODE(expression, 2); }
    | positional_value T__CONCATENATION operand                   { CREATE_NODE(expression, 3); }
    ;

/* ---- Values ---- */

/* What stands in brackets: values, maybe behind an operator word (INCREL((*AND NAME *EQ 'A'))), or a command of which
   nothing but its keywords tells that it is one (JOBCMD(CALL PGM(A))). */
list_content
    : value_list
    | operator_word                                               { CREATE_NODE(value_list, 1); }
    | operator_word value_list                                    { CREATE_NODE(value_list, 2); }
    | value_list named_parameters                                 { CREATE_NODE(embedded_command, 2); }
    ;
operator_word
    : T__AND
    | T__OR
    | T__COMPARISON
    | T__CONCATENATION
    ;
named_parameters
    : named_parameter                                             { CREATE_NODE(parameter_list, 1); }
    | named_parameters named_parameter                            { CREATE_NODE(parameter_list, 2); }
    ;
value_list
    : value                                                       { CREATE_NODE(value_list, 1); }
    | value_list value                                            { CREATE_NODE(value_list, 2); }
    ;
value
    : expression %prec VALUE
    ;

expression
    : operand
    | expression T__OR expression                                 { CREATE_NODE(expression, 3); }
    | expression T__AND expression                                { CREATE_NODE(expression, 3); }
    | expression T__COMPARISON expression                         { CREATE_NODE(expression, 3); }
    | expression T__CONCATENATION expression                      { CREATE_NODE(expression, 3); }
    | expression T__PLUS expression                               { CREATE_NODE(expression, 3); }
    | expression T__MINUS expression                              { CREATE_NODE(expression, 3); }
    | expression T__ASTERISK expression                           { CREATE_NODE(expression, 3); }
    | expression T__SLASH expression                              { CREATE_NODE(expression, 3); }
    | T__NOT expression                                           { CREATE_NODE(expression, 2); }
    | T__PLUS expression %prec SIGN                               { CREATE_NODE(expression, 2); }
    | T__MINUS expression %prec SIGN                              { CREATE_NODE(expression, 2); }
    ;
operand
    : name_part
    | qualified_name
    | T__STRING
    | T__HEX_STRING
    | T__ASTERISK
    | T__LONE_ASTERISK
    | function_call
    | parenthesized_values
    ;
parenthesized_values
    : T__LPAREN T__RPAREN                                         { CREATE_NODE(parenthesized_values, 2); }
    | T__LPAREN list_content T__RPAREN                            { CREATE_NODE(parenthesized_values, 3); }
    ;
function_call
    : T__FUNCTION %prec FUNCTION                                  { CREATE_NODE(function_call, 1); }
    | T__FUNCTION T__LPAREN T__RPAREN                             { CREATE_NODE(function_call, 3); }
    | T__FUNCTION T__LPAREN value_list T__RPAREN                  { CREATE_NODE(function_call, 4); }
    ;

qualified_name
    : name_part T__QUALIFIER name_part                            { CREATE_NODE(qualified_name, 3); }
    | qualified_name T__QUALIFIER name_part                       { CREATE_NODE(qualified_name, 3); }
    ;
name_part
    : any_name
    | T__QUOTED_NAME
    | T__GENERIC_NAME
    | T__VARIABLE
    | T__SPECIAL_VALUE
    | T__NUMBER
    | T__WORD
    ;
/* No word is reserved. */
any_name
    : T__NAME                                                     { CREATE_NODE(name, 1); }
    | T__CALL                                                     { CREATE_NODE(name, 1); }
    | T__CALLPRC                                                  { CREATE_NODE(name, 1); }
    | T__CALLSUBR                                                 { CREATE_NODE(name, 1); }
    | T__CHGVAR                                                   { CREATE_NODE(name, 1); }
    | T__COPYRIGHT                                                { CREATE_NODE(name, 1); }
    | T__DCL                                                      { CREATE_NODE(name, 1); }
    | T__DCLF                                                     { CREATE_NODE(name, 1); }
    | T__DCLPRCOPT                                                { CREATE_NODE(name, 1); }
    | T__DO                                                       { CREATE_NODE(name, 1); }
    | T__DOFOR                                                    { CREATE_NODE(name, 1); }
    | T__DOUNTIL                                                  { CREATE_NODE(name, 1); }
    | T__DOWHILE                                                  { CREATE_NODE(name, 1); }
    | T__ELSE                                                     { CREATE_NODE(name, 1); }
    | T__ENDDO                                                    { CREATE_NODE(name, 1); }
    | T__ENDPGM                                                   { CREATE_NODE(name, 1); }
    | T__ENDSELECT                                                { CREATE_NODE(name, 1); }
    | T__ENDSUBR                                                  { CREATE_NODE(name, 1); }
    | T__GOTO                                                     { CREATE_NODE(name, 1); }
    | T__IF                                                       { CREATE_NODE(name, 1); }
    | T__INCLUDE                                                  { CREATE_NODE(name, 1); }
    | T__ITERATE                                                  { CREATE_NODE(name, 1); }
    | T__LEAVE                                                    { CREATE_NODE(name, 1); }
    | T__MONMSG                                                   { CREATE_NODE(name, 1); }
    | T__OTHERWISE                                                { CREATE_NODE(name, 1); }
    | T__PGM                                                      { CREATE_NODE(name, 1); }
    | T__RETURN                                                   { CREATE_NODE(name, 1); }
    | T__RTNSUBR                                                  { CREATE_NODE(name, 1); }
    | T__SELECT                                                   { CREATE_NODE(name, 1); }
    | T__SUBR                                                     { CREATE_NODE(name, 1); }
    | T__TFRCTL                                                   { CREATE_NODE(name, 1); }
    | T__WHEN                                                     { CREATE_NODE(name, 1); }
    ;
%%
