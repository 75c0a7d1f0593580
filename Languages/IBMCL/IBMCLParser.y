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
/* A bracket after a function holds its arguments. */
%precedence FUNCTION
%precedence T__LPAREN

%start SQL_ROOT
%%

SQL_ROOT
    : %empty                                                      { NODE(SQL); }
    | program                                                     { NODE(SQL); }
    ;

/* Statements come in chunks of chunks under one name, so that a long program doesn't become a deep chain. The list of
   delimited statements stands in a list of statements, and that in a node of its own: so whoever flattens the tree
   gives all statements one shape, however many there are. */
program
    : pl_sql_statements                                           { NODE; }
    ;
pl_sql_statements
    : delimited_pl_sql_statements                                 { NODE; }
    ;
%list delimited_pl_sql_statements: delimited %last last_statement %deep ;

/* An error costs its line, but for the label. */
delimited
    : pl_sql_statement line_end                                   { NODE(delimited_pl_sql_statement); }
    | labeled_line                                                { NODE(delimited_pl_sql_statement); }
    | error line_end
      { NODE(delimited_pl_sql_statement); }
    ;
/* The line end of a labeled statement is inside, with the comment that may stand before it. A label may have its
   line to itself. */
labeled_line
    : pl_sql_statement_label line_end                             { NODE(labeled_pl_sql_statement); }
    | pl_sql_statement_label pl_sql_statement line_end            { NODE(labeled_pl_sql_statement); }
    | pl_sql_statement_label error line_end
      { NODE(labeled_pl_sql_statement); }
    ;
line_end
    : T__LINE_END                                                 { NODE(pl_sql_statement_delimiter); }
    ;

/* The last line may lack its end. A rule may end in an error where nothing but the end of the text follows. */
last_statement
    : pl_sql_statement text_end                                   { NODE(delimited_pl_sql_statement); }
    | last_labeled_line                                           { NODE(delimited_pl_sql_statement); }
    | error
      { NODE(delimited_pl_sql_statement); }
    ;
last_labeled_line
    : pl_sql_statement_label text_end                             { NODE(labeled_pl_sql_statement); }
    | pl_sql_statement_label pl_sql_statement text_end            { NODE(labeled_pl_sql_statement); }
    | pl_sql_statement_label error
      { NODE(labeled_pl_sql_statement); }
    ;
text_end
    : %empty                                                      { NODE(pl_sql_statement_delimiter); }
    ;

pl_sql_statement_label
    : T__LABEL T__COLON                                           { NODE; }
    ;
pl_sql_statement
    : command                                                     { NODE; }
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
    | T__PROMPT command                                           { NODE(prompted_statement); }
    ;

/* Any command that the language doesn't treat in a way of its own. A keyword here is a command name with a bracket
   right after it. */
command_statement
    : command_name                                                { NODE; }
    | command_name parameter_list                                 { NODE; }
    ;
command_name
    : T__NAME                                                     { NODE; }
    | T__KEYWORD                                                  { NODE; }
    | command_library T__QUALIFIER name_part                      { NODE; }
    ;
command_library
    : T__NAME                                                     { NODE(name); }
    | T__SPECIAL_VALUE
    ;

call_statement
    : T__CALL                                                     { NODE; }
    | T__CALL parameter_list                                      { NODE; }
    ;
callprc_statement
    : T__CALLPRC                                                  { NODE; }
    | T__CALLPRC parameter_list                                   { NODE; }
    ;
callsubr_statement
    : T__CALLSUBR                                                 { NODE; }
    | T__CALLSUBR parameter_list                                  { NODE; }
    ;
chgvar_statement
    : T__CHGVAR                                                   { NODE; }
    | T__CHGVAR parameter_list                                    { NODE; }
    ;
copyright_statement
    : T__COPYRIGHT                                                { NODE; }
    | T__COPYRIGHT parameter_list                                 { NODE; }
    ;
dcl_statement
    : T__DCL                                                      { NODE; }
    | T__DCL parameter_list                                       { NODE; }
    ;
dclf_statement
    : T__DCLF                                                     { NODE; }
    | T__DCLF parameter_list                                      { NODE; }
    ;
dclprcopt_statement
    : T__DCLPRCOPT                                                { NODE; }
    | T__DCLPRCOPT parameter_list                                 { NODE; }
    ;
do_statement
    : T__DO                                                       { NODE; }
    ;
dofor_statement
    : T__DOFOR                                                    { NODE; }
    | T__DOFOR parameter_list                                     { NODE; }
    ;
dountil_statement
    : T__DOUNTIL condition                                        { NODE; }
    ;
dowhile_statement
    : T__DOWHILE condition                                        { NODE; }
    ;
else_statement
    : T__ELSE                                                     { NODE; }
    | T__ELSE else_parameter                                      { NODE; }
    ;
enddo_statement
    : T__ENDDO                                                    { NODE; }
    ;
endpgm_statement
    : T__ENDPGM                                                   { NODE; }
    ;
endselect_statement
    : T__ENDSELECT                                                { NODE; }
    ;
endsubr_statement
    : T__ENDSUBR                                                  { NODE; }
    | T__ENDSUBR parameter_list                                   { NODE; }
    ;
goto_statement
    : T__GOTO                                                     { NODE; }
    | T__GOTO parameter_list                                      { NODE; }
    ;
if_statement
    : T__IF condition                                             { NODE; }
    | T__IF condition then_parameter                              { NODE; }
    ;
include_statement
    : T__INCLUDE                                                  { NODE; }
    | T__INCLUDE parameter_list                                   { NODE; }
    ;
iterate_statement
    : T__ITERATE                                                  { NODE; }
    | T__ITERATE parameter_list                                   { NODE; }
    ;
leave_statement
    : T__LEAVE                                                    { NODE; }
    | T__LEAVE parameter_list                                     { NODE; }
    ;
monmsg_statement
    : T__MONMSG                                                   { NODE; }
    | T__MONMSG parameter_list                                    { NODE; }
    ;
otherwise_statement
    : T__OTHERWISE                                                { NODE; }
    | T__OTHERWISE else_parameter                                 { NODE; }
    ;
pgm_statement
    : T__PGM                                                      { NODE; }
    | T__PGM parameter_list                                       { NODE; }
    ;
return_statement
    : T__RETURN                                                   { NODE; }
    ;
rtnsubr_statement
    : T__RTNSUBR                                                  { NODE; }
    | T__RTNSUBR parameter_list                                   { NODE; }
    ;
select_statement
    : T__SELECT                                                   { NODE; }
    ;
subr_statement
    : T__SUBR                                                     { NODE; }
    | T__SUBR parameter_list                                      { NODE; }
    ;
tfrctl_statement
    : T__TFRCTL                                                   { NODE; }
    | T__TFRCTL parameter_list                                    { NODE; }
    ;
when_statement
    : T__WHEN condition                                           { NODE; }
    | T__WHEN condition then_parameter                            { NODE; }
    ;

/* ---- Conditions, and commands inside commands ---- */

condition
    : condition_keyword T__LPAREN expression T__RPAREN            { NODE; }
    | T__LPAREN expression T__RPAREN                              { NODE; }
    | T__VARIABLE                                                 { NODE; }
    | T__STRING                                                   { NODE; }
    | function_call                                               { NODE; }
    ;
condition_keyword
    : T__COND                                                     { NODE(parameter_keyword); }
    ;
then_parameter
    : then_keyword T__LPAREN T__RPAREN                            { NODE(command_parameter); }
    | then_keyword T__LPAREN nested_command T__RPAREN             { NODE(command_parameter); }
    | positional_command
    ;
then_keyword
    : T__THEN                                                     { NODE(parameter_keyword); }
    ;
else_parameter
    : else_keyword T__LPAREN T__RPAREN                            { NODE(command_parameter); }
    | else_keyword T__LPAREN nested_command T__RPAREN             { NODE(command_parameter); }
    | positional_command
    ;
else_keyword
    : T__CMD                                                      { NODE(parameter_keyword); }
    ;
/* Without brackets it takes in the rest of the line: IF (&A) CALL B. */
positional_command
    : T__LPAREN nested_command T__RPAREN                          { NODE(command_parameter); }
    | nested_command                                              { NODE(command_parameter); }
    ;
nested_command
    : command                                                     { NODE; }
    ;

/* ---- Parameters ---- */

parameter_list
    : parameter                                                   { NODE; }
    | parameter_list parameter                                    { NODE; }
    ;
parameter
    : named_parameter
    | positional_value                                            { NODE(positional_parameter); }
    ;
named_parameter
    : keyword_parameter
    | command_parameter
    ;
keyword_parameter
    : parameter_keyword T__LPAREN T__RPAREN                       { NODE; }
    | parameter_keyword T__LPAREN list_content T__RPAREN          { NODE; }
    ;
parameter_keyword
    : plain_keyword                                               { NODE; }
    | T__SELECTIVE_PROMPT plain_keyword                           { NODE; }
    ;
plain_keyword
    : T__KEYWORD
    | T__COND
    ;
/* A parameter that holds a command, or the name of one, or its text. */
command_parameter
    : command_keyword T__LPAREN T__RPAREN                         { NODE; }
    | command_keyword T__LPAREN nested_command T__RPAREN          { NODE; }
    | command_keyword T__LPAREN command_text T__RPAREN            { NODE; }
    ;
command_keyword
    : plain_command_keyword                                       { NODE(parameter_keyword); }
    | T__SELECTIVE_PROMPT plain_command_keyword                   { NODE(parameter_keyword); }
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
    | T__VARIABLE T__QUALIFIER name_part                          { NODE(qualified_name); }
    | command_text T__CONCATENATION expression                    { NODE(expression); }
    ;
/* Outside of brackets a blank ends a value, so there is no arithmetic. */
positional_value
    : operand
    | T__PLUS T__NUMBER                                           { NODE(expression); }
    | T__MINUS T__NUMBER                                          { NODE(expression); }
    | positional_value T__CONCATENATION operand                   { NODE(expression); }
    ;

/* ---- Values ---- */

/* What stands in brackets: values, maybe after an operator word (INCREL((*AND NAME *EQ 'A'))), or a command of which
   nothing but its keywords tells that it is one (JOBCMD(CALL PGM(A))). */
list_content
    : value_list
    | operator_word                                               { NODE(value_list); }
    | operator_word value_list                                    { NODE(value_list); }
    | value_list named_parameters                                 { NODE(embedded_command); }
    ;
operator_word
    : T__AND
    | T__OR
    | T__COMPARISON
    | T__CONCATENATION
    ;
named_parameters
    : named_parameter                                             { NODE(parameter_list); }
    | named_parameters named_parameter                            { NODE(parameter_list); }
    ;
value_list
    : value                                                       { NODE; }
    | value_list value                                            { NODE; }
    ;
value
    : expression %prec VALUE
    ;

expression
    : operand
    | expression T__OR expression                                 { NODE; }
    | expression T__AND expression                                { NODE; }
    | expression T__COMPARISON expression                         { NODE; }
    | expression T__CONCATENATION expression                      { NODE; }
    | expression T__PLUS expression                               { NODE; }
    | expression T__MINUS expression                              { NODE; }
    | expression T__ASTERISK expression                           { NODE; }
    | expression T__SLASH expression                              { NODE; }
    | T__NOT expression                                           { NODE; }
    | T__PLUS expression %prec SIGN                               { NODE; }
    | T__MINUS expression %prec SIGN                              { NODE; }
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
    : T__LPAREN T__RPAREN                                         { NODE; }
    | T__LPAREN list_content T__RPAREN                            { NODE; }
    ;
function_call
    : T__FUNCTION %prec FUNCTION                                  { NODE; }
    | T__FUNCTION T__LPAREN T__RPAREN                             { NODE; }
    | T__FUNCTION T__LPAREN value_list T__RPAREN                  { NODE; }
    ;

qualified_name
    : name_part T__QUALIFIER name_part                            { NODE; }
    | qualified_name T__QUALIFIER name_part                       { NODE; }
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
    : T__NAME                                                     { NODE(name); }
    | T__CALL                                                     { NODE(name); }
    | T__CALLPRC                                                  { NODE(name); }
    | T__CALLSUBR                                                 { NODE(name); }
    | T__CHGVAR                                                   { NODE(name); }
    | T__COPYRIGHT                                                { NODE(name); }
    | T__DCL                                                      { NODE(name); }
    | T__DCLF                                                     { NODE(name); }
    | T__DCLPRCOPT                                                { NODE(name); }
    | T__DO                                                       { NODE(name); }
    | T__DOFOR                                                    { NODE(name); }
    | T__DOUNTIL                                                  { NODE(name); }
    | T__DOWHILE                                                  { NODE(name); }
    | T__ELSE                                                     { NODE(name); }
    | T__ENDDO                                                    { NODE(name); }
    | T__ENDPGM                                                   { NODE(name); }
    | T__ENDSELECT                                                { NODE(name); }
    | T__ENDSUBR                                                  { NODE(name); }
    | T__GOTO                                                     { NODE(name); }
    | T__IF                                                       { NODE(name); }
    | T__INCLUDE                                                  { NODE(name); }
    | T__ITERATE                                                  { NODE(name); }
    | T__LEAVE                                                    { NODE(name); }
    | T__MONMSG                                                   { NODE(name); }
    | T__OTHERWISE                                                { NODE(name); }
    | T__PGM                                                      { NODE(name); }
    | T__RETURN                                                   { NODE(name); }
    | T__RTNSUBR                                                  { NODE(name); }
    | T__SELECT                                                   { NODE(name); }
    | T__SUBR                                                     { NODE(name); }
    | T__TFRCTL                                                   { NODE(name); }
    | T__WHEN                                                     { NODE(name); }
    ;
%%
