%define lr.default-reduction consistent
%define api.value.type {int}

%token T__SLASHES T__NAME T__BAD_NAME T__PERIOD T__LINE_END T__UNKNOWN_OPERATION T__JOB T__EXEC T__DD T__PROC
%token T__PEND T__SET T__INCLUDE T__JCLLIB T__IF T__THEN T__ELSE T__ENDIF T__OUTPUT T__CNTL T__ENDCNTL
%token T__PRINTDEV T__COMMAND T__EXPORT T__NOTIFY T__SCHEDULE T__XMIT T__PGM T__KEYWORD T__WORD T__NUMBER
%token T__STRING T__OPEN_STRING T__SYMBOL T__TEMPORARY T__ASTERISK T__REFERENCE T__EQUALS T__LPAREN T__RPAREN
%token T__COMMA T__AND T__OR T__NOT T__COMPARISON T__BAD_CHARACTER T__DATA_START T__DATA T__DELIMITER
%token T__LOOSE_DATA T__LOOSE_DELIMITER T__JES2 T__JES2_JOBPARM T__JES3 T__JES_TEXT

/* An error after the name is taken there, before the head is made of it. */
%precedence HEAD
%precedence error
%left T__OR
%left T__AND
%precedence T__NOT

%start SQL_ROOT
%%

SQL_ROOT
    : %empty                                                                   { NODE(SQL); }
    | pl_sql_statements                                                        { NODE(SQL); }
    ;

/* Statements come in chunks of chunks under one name, so that a long job doesn't become a deep chain. */
%list pl_sql_statements: statement %last last_statement %deep ;

/* What stands in a last line without its end. A rule may end in an error where nothing but the end of the text
   follows: anywhere else the parser would raise the error again on the same token. */
last_statement
    : pl_sql_statement
    | bad_end                                                                  { NODE(pl_sql_statement); }
    ;
bad_end
    : error                                                                    { NODE(error_statement); }
    | T__SLASHES error                                                         { NODE(error_statement); }
    | T__SLASHES statement_name error                                          { NODE(error_statement); }
    | statement_head error                                                     { NODE(error_statement); }
    ;

/* Data end at their delimiter or, without one, at the next statement. */
statement
    : pl_sql_statement line_end                                                { NODE(delimited_pl_sql_statement); }
    | bad_statement                                                            { NODE(delimited_pl_sql_statement); }
    | statement_with_data
    | statement_with_data data_end                                             { NODE(delimited_pl_sql_statement); }
    | loose_data
    | T__LOOSE_DELIMITER                                                       { NODE(delimited_pl_sql_statement); }
    ;
line_end
    : T__LINE_END                                                              { NODE(pl_sql_statement_delimiter); }
    ;
data_end
    : T__DELIMITER                                                             { NODE(pl_sql_statement_delimiter); }
    ;

/* An error costs its statement: what isn't the head of it becomes space. Its data stay data. */
bad_statement
    : bad_line                                                                 { NODE(pl_sql_statement); }
    ;
bad_line
    : error T__LINE_END                                                        { NODE(error_statement); }
    | T__SLASHES error T__LINE_END                                             { NODE(error_statement); }
    | T__SLASHES statement_name error T__LINE_END                              { NODE(error_statement); }
    | statement_head error T__LINE_END                                         { NODE(error_statement); }
    ;
statement_with_data
    : dd_statement_with_data                                                   { NODE(pl_sql_statement); }
    | bad_line_with_data                                                       { NODE(pl_sql_statement); }
    ;
/* Data come after slashes, so there is no error without them. */
bad_line_with_data
    : T__SLASHES error instream_data                                           { NODE(error_statement); }
    | T__SLASHES statement_name error instream_data                            { NODE(error_statement); }
    | statement_head error instream_data                                       { NODE(error_statement); }
    ;

pl_sql_statement
    : job_statement                                                            { NODE; }
    | exec_statement                                                           { NODE; }
    | dd_statement                                                             { NODE; }
    | proc_statement                                                           { NODE; }
    | pend_statement                                                           { NODE; }
    | set_statement                                                            { NODE; }
    | include_statement                                                        { NODE; }
    | jcllib_statement                                                         { NODE; }
    | if_statement                                                             { NODE; }
    | else_statement                                                           { NODE; }
    | endif_statement                                                          { NODE; }
    | output_statement                                                         { NODE; }
    | cntl_statement                                                           { NODE; }
    | endcntl_statement                                                        { NODE; }
    | printdev_statement                                                       { NODE; }
    | command_statement                                                        { NODE; }
    | export_statement                                                         { NODE; }
    | notify_statement                                                         { NODE; }
    | schedule_statement                                                       { NODE; }
    | xmit_statement                                                           { NODE; }
    | null_statement                                                           { NODE; }
    | jes2_statement                                                           { NODE; }
    | jes3_statement                                                           { NODE; }
    ;

statement_head
    : T__SLASHES %prec HEAD                                                    { NODE; }
    | T__SLASHES statement_name %prec HEAD                                     { NODE; }
    ;
/* A name with a period in it: the step of a procedure, and its DD statement that is overridden. */
statement_name
    : T__NAME                                                                  { NODE; }
    | statement_name T__PERIOD T__NAME                                         { NODE; }
    ;
null_statement
    : T__SLASHES                                                               { NODE; }
    ;

job_statement
    : statement_head T__JOB                                                    { NODE; }
    | statement_head T__JOB operands                                           { NODE; }
    ;
exec_statement
    : statement_head T__EXEC exec_target                                       { NODE; }
    | statement_head T__EXEC exec_target T__COMMA operands                     { NODE; }
    ;
exec_target
    : T__PGM T__EQUALS parameter_value                                         { NODE(exec_program); }
    | T__PROC T__EQUALS parameter_value                                        { NODE(exec_procedure); }
    | parameter_value                                                          { NODE(exec_procedure); }
    ;
dd_statement
    : statement_head T__DD                                                     { NODE; }
    | statement_head T__DD operands                                            { NODE; }
    ;
dd_statement_with_data
    : statement_head T__DD operands instream_data                              { NODE(dd_statement); }
    | statement_head T__XMIT operands instream_data                            { NODE(xmit_statement); }
    | statement_head T__XMIT instream_data                                     { NODE(xmit_statement); }
    ;
xmit_statement
    : statement_head T__XMIT                                                   { NODE; }
    | statement_head T__XMIT operands                                          { NODE; }
    ;
proc_statement
    : statement_head T__PROC                                                   { NODE; }
    | statement_head T__PROC operands                                          { NODE; }
    ;
pend_statement
    : statement_head T__PEND                                                   { NODE; }
    ;
else_statement
    : statement_head T__ELSE                                                   { NODE; }
    ;
endif_statement
    : statement_head T__ENDIF                                                  { NODE; }
    ;
endcntl_statement
    : statement_head T__ENDCNTL                                                { NODE; }
    ;
set_statement
    : statement_head T__SET operands                                           { NODE; }
    ;
include_statement
    : statement_head T__INCLUDE operands                                       { NODE; }
    ;
jcllib_statement
    : statement_head T__JCLLIB operands                                        { NODE; }
    ;
command_statement
    : statement_head T__COMMAND operands                                       { NODE; }
    ;
export_statement
    : statement_head T__EXPORT operands                                        { NODE; }
    ;
notify_statement
    : statement_head T__NOTIFY operands                                        { NODE; }
    ;
schedule_statement
    : statement_head T__SCHEDULE operands                                      { NODE; }
    ;
printdev_statement
    : statement_head T__PRINTDEV operands                                      { NODE; }
    ;
output_statement
    : statement_head T__OUTPUT                                                 { NODE; }
    | statement_head T__OUTPUT operands                                        { NODE; }
    ;
cntl_statement
    : statement_head T__CNTL                                                   { NODE; }
    | statement_head T__CNTL operands                                          { NODE; }
    ;
if_statement
    : statement_head T__IF expression T__THEN                                  { NODE; }
    ;
jes2_statement
    : T__JES2                                                                  { NODE(jes2_statement); }
    | T__JES2 T__JES_TEXT                                                      { NODE(jes2_statement); }
    | T__JES2_JOBPARM                                                          { NODE(jes2_statement); }
    | T__JES2_JOBPARM operands                                                 { NODE(jes2_statement); }
    ;
jes3_statement
    : T__JES3                                                                  { NODE(jes3_statement); }
    | T__JES3 T__JES_TEXT                                                      { NODE(jes3_statement); }
    ;

/* The first operand may be left out, the last one may not: a comma at the end of a line asks for another line. */
operands
    : operand                                                                  { NODE; }
    | T__COMMA operand                                                         { NODE; }
    | operands T__COMMA operand                                                { NODE; }
    ;
operand
    : parameter
    | parameter_value
    ;
parameter
    : parameter_name T__EQUALS                                                 { NODE; }
    | parameter_name T__EQUALS parameter_value                                 { NODE; }
    | parameter_name T__EQUALS parameter_in_value                              { NODE; }
    ;
/* VOL=SER=A: the value of one is another. */
parameter_in_value
    : parameter                                                                { NODE(parameter_value); }
    ;
/* PARM.STEP= speaks to a step of the procedure. */
parameter_name
    : keyword                                                                  { NODE; }
    | keyword T__PERIOD keyword                                                { NODE; }
    ;
keyword
    : T__KEYWORD
    | T__PGM
    | T__PROC
    ;
/* Pieces that stand side by side make one value: &HLQ..DATA(MEMBER). */
parameter_value
    : value_piece                                                              { NODE; }
    | parameter_value value_piece                                              { NODE; }
    | parameter_value keyword                                                  { NODE; }
    | parameter_value T__EQUALS                                                { NODE; }
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
    : T__LPAREN T__RPAREN                                                      { NODE; }
    | T__LPAREN parameter_list_items T__RPAREN                                 { NODE; }
    ;
parameter_list_items
    : operand                                                                  { NODE; }
    | T__COMMA                                                                 { NODE; }
    | T__COMMA operand                                                         { NODE; }
    | parameter_list_items T__COMMA                                            { NODE; }
    | parameter_list_items T__COMMA operand                                    { NODE; }
    ;

/* ---- IF ---- */

expression
    : expression T__OR expression                                              { NODE; }
    | expression T__AND expression                                             { NODE; }
    | T__NOT expression                                                        { NODE; }
    | T__LPAREN expression T__RPAREN                                           { NODE; }
    | condition_operand T__COMPARISON condition_operand                        { NODE; }
    | condition_operand                                                        { NODE; }
    ;
condition_operand
    : T__WORD
    | T__NUMBER
    | T__SYMBOL
    | T__STRING
    ;

/* ---- Data in the stream ---- */

instream_data
    : T__DATA_START                                                            { NODE; }
    | T__DATA_START instream_line_list                                         { NODE; }
    ;
/* A line that belongs to no DD statement: the system makes one for it. */
loose_data
    : loose_line                                                               { NODE(pl_sql_statement); }
    ;
loose_line
    : loose_text                                                               { NODE(loose_data_statement); }
    ;
loose_text
    : T__LOOSE_DATA                                                            { NODE(instream_data); }
    ;
%list instream_line_list: T__DATA %deep ;
%%
