%define lr.default-reduction consistent
%define api.value.type {int}

%token T__SLASHES T__NAME T__BAD_NAME T__PERIOD T__LINE_END T__UNKNOWN_OPERATION T__JOB T__EXEC T__DD T__PROC
%token T__PEND T__SET T__INCLUDE T__JCLLIB T__IF T__THEN T__ELSE T__ENDIF T__OUTPUT T__CNTL T__ENDCNTL
%token T__PRINTDEV T__COMMAND T__EXPORT T__NOTIFY T__SCHEDULE T__XMIT T__PGM T__KEYWORD T__WORD T__NUMBER
%token T__STRING T__OPEN_STRING T__SYMBOL T__TEMPORARY T__ASTERISK T__REFERENCE T__EQUALS T__LPAREN T__RPAREN
%token T__COMMA T__AND T__OR T__NOT T__COMPARISON T__BAD_CHARACTER T__DATA_START T__DATA T__DELIMITER
%token T__LOOSE_DATA T__LOOSE_DELIMITER T__JES2 T__JES2_JOBPARM T__JES3 T__JES_TEXT

/* An error behind the name is taken there, before the head is made of it. */
%precedence HEAD
%precedence error
%left T__OR
%left T__AND
%precedence T__NOT

%start SQL_ROOT
%%

SQL_ROOT
    : %empty                                                                   { EMPTY(SQL); }
    | pl_sql_statements                                                        { CREATE_NODE(SQL, 1); }
    ;

/* Statements come in chunks of chunks under one name, so that a long job doesn't become a deep chain. */
%list pl_sql_statements: statement %last last_statement %deep ;

/* What stands in a last line without its end. A rule may end in an error where nothing but the end of the text
   follows: anywhere else the parser would raise the error again on the same token. */
last_statement
    : pl_sql_statement
    | bad_end                                                                  { CREATE_NODE(pl_sql_statement, 1); }
    ;
bad_end
    : error                                                                    { CREATE_NODE_WITH_ERROR(error_statement, 1, 0); }
    | T__SLASHES error                                                         { CREATE_NODE_WITH_ERROR(error_statement, 2, 1); }
    | T__SLASHES statement_name error                                          { CREATE_NODE_WITH_ERROR(error_statement, 3, 2); }
    | statement_head error                                                     { CREATE_NODE_WITH_ERROR(error_statement, 2, 1); }
    ;

/* Data end at their delimiter or, without one, at the next statement. */
statement
    : pl_sql_statement line_end                                                { CREATE_NODE(delimited_pl_sql_statement, 2); }
    | bad_statement                                                            { CREATE_NODE(delimited_pl_sql_statement, 1); }
    | statement_with_data
    | statement_with_data data_end                                             { CREATE_NODE(delimited_pl_sql_statement, 2); }
    | loose_data
    | T__LOOSE_DELIMITER                                                       { CREATE_NODE(delimited_pl_sql_statement, 1); }
    ;
line_end
    : T__LINE_END                                                              { CREATE_NODE(pl_sql_statement_delimiter, 1); }
    ;
data_end
    : T__DELIMITER                                                             { CREATE_NODE(pl_sql_statement_delimiter, 1); }
    ;

/* An error costs its statement: what isn't the head of it becomes space. Its data stay data. */
bad_statement
    : bad_line                                                                 { CREATE_NODE(pl_sql_statement, 1); }
    ;
bad_line
    : error T__LINE_END                                                        { CREATE_NODE_WITH_ERROR(error_statement, 2, 0); }
    | T__SLASHES error T__LINE_END                                             { CREATE_NODE_WITH_ERROR(error_statement, 3, 1); }
    | T__SLASHES statement_name error T__LINE_END                              { CREATE_NODE_WITH_ERROR(error_statement, 4, 2); }
    | statement_head error T__LINE_END                                         { CREATE_NODE_WITH_ERROR(error_statement, 3, 1); }
    ;
statement_with_data
    : dd_statement_with_data                                                   { CREATE_NODE(pl_sql_statement, 1); }
    | bad_line_with_data                                                       { CREATE_NODE(pl_sql_statement, 1); }
    ;
bad_line_with_data
    : error instream_data                                                      { CREATE_NODE_WITH_ERROR(error_statement, 2, 0); }
    | T__SLASHES error instream_data                                           { CREATE_NODE_WITH_ERROR(error_statement, 3, 1); }
    | T__SLASHES statement_name error instream_data                            { CREATE_NODE_WITH_ERROR(error_statement, 4, 2); }
    | statement_head error instream_data                                       { CREATE_NODE_WITH_ERROR(error_statement, 3, 1); }
    ;

pl_sql_statement
    : job_statement                                                            { CREATE_NODE(pl_sql_statement, 1); }
    | exec_statement                                                           { CREATE_NODE(pl_sql_statement, 1); }
    | dd_statement                                                             { CREATE_NODE(pl_sql_statement, 1); }
    | proc_statement                                                           { CREATE_NODE(pl_sql_statement, 1); }
    | pend_statement                                                           { CREATE_NODE(pl_sql_statement, 1); }
    | set_statement                                                            { CREATE_NODE(pl_sql_statement, 1); }
    | include_statement                                                        { CREATE_NODE(pl_sql_statement, 1); }
    | jcllib_statement                                                         { CREATE_NODE(pl_sql_statement, 1); }
    | if_statement                                                             { CREATE_NODE(pl_sql_statement, 1); }
    | else_statement                                                           { CREATE_NODE(pl_sql_statement, 1); }
    | endif_statement                                                          { CREATE_NODE(pl_sql_statement, 1); }
    | output_statement                                                         { CREATE_NODE(pl_sql_statement, 1); }
    | cntl_statement                                                           { CREATE_NODE(pl_sql_statement, 1); }
    | endcntl_statement                                                        { CREATE_NODE(pl_sql_statement, 1); }
    | printdev_statement                                                       { CREATE_NODE(pl_sql_statement, 1); }
    | command_statement                                                        { CREATE_NODE(pl_sql_statement, 1); }
    | export_statement                                                         { CREATE_NODE(pl_sql_statement, 1); }
    | notify_statement                                                         { CREATE_NODE(pl_sql_statement, 1); }
    | schedule_statement                                                       { CREATE_NODE(pl_sql_statement, 1); }
    | xmit_statement                                                           { CREATE_NODE(pl_sql_statement, 1); }
    | null_statement                                                           { CREATE_NODE(pl_sql_statement, 1); }
    | jes2_statement                                                           { CREATE_NODE(pl_sql_statement, 1); }
    | jes3_statement                                                           { CREATE_NODE(pl_sql_statement, 1); }
    ;

statement_head
    : T__SLASHES %prec HEAD                                                    { CREATE_NODE(statement_head, 1); }
    | T__SLASHES statement_name %prec HEAD                                     { CREATE_NODE(statement_head, 2); }
    ;
/* A name with a period in it: the step of a procedure, and its DD statement that is overridden. */
statement_name
    : T__NAME                                                                  { CREATE_NODE(statement_name, 1); }
    | statement_name T__PERIOD T__NAME                                         { CREATE_NODE(statement_name, 3); }
    ;
null_statement
    : T__SLASHES                                                               { CREATE_NODE(null_statement, 1); }
    ;

job_statement
    : statement_head T__JOB                                                    { CREATE_NODE(job_statement, 2); }
    | statement_head T__JOB operands                                           { CREATE_NODE(job_statement, 3); }
    ;
exec_statement
    : statement_head T__EXEC exec_target                                       { CREATE_NODE(exec_statement, 3); }
    | statement_head T__EXEC exec_target T__COMMA operands                     { CREATE_NODE(exec_statement, 5); }
    ;
exec_target
    : T__PGM T__EQUALS parameter_value                                         { CREATE_NODE(exec_program, 3); }
    | T__PROC T__EQUALS parameter_value                                        { CREATE_NODE(exec_procedure, 3); }
    | parameter_value                                                          { CREATE_NODE(exec_procedure, 1); }
    ;
dd_statement
    : statement_head T__DD                                                     { CREATE_NODE(dd_statement, 2); }
    | statement_head T__DD operands                                            { CREATE_NODE(dd_statement, 3); }
    ;
dd_statement_with_data
    : statement_head T__DD operands instream_data                              { CREATE_NODE(dd_statement, 4); }
    | statement_head T__XMIT operands instream_data                            { CREATE_NODE(xmit_statement, 4); }
    | statement_head T__XMIT instream_data                                     { CREATE_NODE(xmit_statement, 3); }
    ;
xmit_statement
    : statement_head T__XMIT                                                   { CREATE_NODE(xmit_statement, 2); }
    | statement_head T__XMIT operands                                          { CREATE_NODE(xmit_statement, 3); }
    ;
proc_statement
    : statement_head T__PROC                                                   { CREATE_NODE(proc_statement, 2); }
    | statement_head T__PROC operands                                          { CREATE_NODE(proc_statement, 3); }
    ;
pend_statement
    : statement_head T__PEND                                                   { CREATE_NODE(pend_statement, 2); }
    ;
else_statement
    : statement_head T__ELSE                                                   { CREATE_NODE(else_statement, 2); }
    ;
endif_statement
    : statement_head T__ENDIF                                                  { CREATE_NODE(endif_statement, 2); }
    ;
endcntl_statement
    : statement_head T__ENDCNTL                                                { CREATE_NODE(endcntl_statement, 2); }
    ;
set_statement
    : statement_head T__SET operands                                           { CREATE_NODE(set_statement, 3); }
    ;
include_statement
    : statement_head T__INCLUDE operands                                       { CREATE_NODE(include_statement, 3); }
    ;
jcllib_statement
    : statement_head T__JCLLIB operands                                        { CREATE_NODE(jcllib_statement, 3); }
    ;
command_statement
    : statement_head T__COMMAND operands                                       { CREATE_NODE(command_statement, 3); }
    ;
export_statement
    : statement_head T__EXPORT operands                                        { CREATE_NODE(export_statement, 3); }
    ;
notify_statement
    : statement_head T__NOTIFY operands                                        { CREATE_NODE(notify_statement, 3); }
    ;
schedule_statement
    : statement_head T__SCHEDULE operands                                      { CREATE_NODE(schedule_statement, 3); }
    ;
printdev_statement
    : statement_head T__PRINTDEV operands                                      { CREATE_NODE(printdev_statement, 3); }
    ;
output_statement
    : statement_head T__OUTPUT                                                 { CREATE_NODE(output_statement, 2); }
    | statement_head T__OUTPUT operands                                        { CREATE_NODE(output_statement, 3); }
    ;
cntl_statement
    : statement_head T__CNTL                                                   { CREATE_NODE(cntl_statement, 2); }
    | statement_head T__CNTL operands                                          { CREATE_NODE(cntl_statement, 3); }
    ;
if_statement
    : statement_head T__IF expression T__THEN                                  { CREATE_NODE(if_statement, 4); }
    ;
jes2_statement
    : T__JES2                                                                  { CREATE_NODE(jes2_statement, 1); }
    | T__JES2 T__JES_TEXT                                                      { CREATE_NODE(jes2_statement, 2); }
    | T__JES2_JOBPARM                                                          { CREATE_NODE(jes2_statement, 1); }
    | T__JES2_JOBPARM operands                                                 { CREATE_NODE(jes2_statement, 2); }
    ;
jes3_statement
    : T__JES3                                                                  { CREATE_NODE(jes3_statement, 1); }
    | T__JES3 T__JES_TEXT                                                      { CREATE_NODE(jes3_statement, 2); }
    ;

/* The first operand may be left out, the last one may not: a comma at the end of a line asks for another line. */
operands
    : operand                                                                  { CREATE_NODE(operands, 1); }
    | T__COMMA operand                                                         { CREATE_NODE(operands, 2); }
    | operands T__COMMA operand                                                { CREATE_NODE(operands, 3); }
    ;
operand
    : parameter
    | parameter_value
    ;
parameter
    : parameter_name T__EQUALS                                                 { CREATE_NODE(parameter, 2); }
    | parameter_name T__EQUALS parameter_value                                 { CREATE_NODE(parameter, 3); }
    | parameter_name T__EQUALS parameter_in_value                              { CREATE_NODE(parameter, 3); }
    ;
/* VOL=SER=A: the value of one is another. */
parameter_in_value
    : parameter                                                                { CREATE_NODE(parameter_value, 1); }
    ;
/* PARM.STEP= speaks to a step of the procedure. */
parameter_name
    : keyword                                                                  { CREATE_NODE(parameter_name, 1); }
    | keyword T__PERIOD keyword                                                { CREATE_NODE(parameter_name, 3); }
    ;
keyword
    : T__KEYWORD
    | T__PGM
    | T__PROC
    ;
/* Pieces that stand side by side make one value: &HLQ..DATA(MEMBER). */
parameter_value
    : value_piece                                                              { CREATE_NODE(parameter_value, 1); }
    | parameter_value value_piece                                              { CREATE_NODE(parameter_value, 2); }
    | parameter_value keyword                                                  { CREATE_NODE(parameter_value, 2); }
    | parameter_value T__EQUALS                                                { CREATE_NODE(parameter_value, 2); }
    ;
value_piece
    : T__WORD
    | T__NUMBER
    | T__STRING
    | T__SYMBOL
    | T__TEMPORARY
    | T__ASTERISK
    | T__REFERENCE
    | parameter_list
    ;
parameter_list
    : T__LPAREN T__RPAREN                                                      { CREATE_NODE(parameter_list, 2); }
    | T__LPAREN parameter_list_items T__RPAREN                                 { CREATE_NODE(parameter_list, 3); }
    ;
parameter_list_items
    : operand                                                                  { CREATE_NODE(parameter_list_items, 1); }
    | T__COMMA                                                                 { CREATE_NODE(parameter_list_items, 1); }
    | T__COMMA operand                                                         { CREATE_NODE(parameter_list_items, 2); }
    | parameter_list_items T__COMMA                                            { CREATE_NODE(parameter_list_items, 2); }
    | parameter_list_items T__COMMA operand                                    { CREATE_NODE(parameter_list_items, 3); }
    ;

/* ---- IF ---- */

expression
    : expression T__OR expression                                              { CREATE_NODE(expression, 3); }
    | expression T__AND expression                                             { CREATE_NODE(expression, 3); }
    | T__NOT expression                                                        { CREATE_NODE(expression, 2); }
    | T__LPAREN expression T__RPAREN                                           { CREATE_NODE(expression, 3); }
    | condition_operand T__COMPARISON condition_operand                        { CREATE_NODE(expression, 3); }
    | condition_operand                                                        { CREATE_NODE(expression, 1); }
    ;
condition_operand
    : T__WORD
    | T__NUMBER
    | T__SYMBOL
    | T__STRING
    ;

/* ---- Data in the stream ---- */

instream_data
    : T__DATA_START                                                            { CREATE_NODE(instream_data, 1); }
    | T__DATA_START instream_lines                                             { CREATE_NODE(instream_data, 2); }
    ;
/* A line that belongs to no DD statement: the system makes one for it. */
loose_data
    : loose_line                                                               { CREATE_NODE(pl_sql_statement, 1); }
    ;
loose_line
    : T__LOOSE_DATA                                                            { CREATE_NODE(instream_data, 1); }
    ;
%list instream_lines: T__DATA %deep ;
%%
