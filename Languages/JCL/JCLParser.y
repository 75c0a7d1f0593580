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

%warnings 4
%start SQL_ROOT
%%

SQL_ROOT { NODE(SQL); }: %empty | pl_sql_statements ;

/* Statements come in chunks of chunks under one name, so that a long job doesn't become a deep chain. */
%list pl_sql_statements: statement %last last_statement %deep ;

/* What stands in a last line without its end. A rule may end in an error where nothing but the end of the text
   follows: anywhere else the parser would raise the error again on the same token. */
last_statement: pl_sql_statement | bad_end  { NODE(pl_sql_statement); } ;
bad_end { NODE(error_statement); }
    : error
    | T__SLASHES error
    | T__SLASHES statement_name error
    | statement_head error ;

/* Data end at their delimiter or, without one, at the next statement. */
statement { NODE(delimited_pl_sql_statement); }
    : pl_sql_statement line_end
    | bad_statement
    | statement_with_data  { PART; }
    | statement_with_data data_end
    | loose_data  { PART; }
    | T__LOOSE_DELIMITER ;
line_end { NODE(pl_sql_statement_delimiter); }: T__LINE_END ;
data_end { NODE(pl_sql_statement_delimiter); }: T__DELIMITER ;

/* An error costs its statement: what isn't the head of it becomes space. Its data stay data. */
bad_statement { NODE(pl_sql_statement); }: bad_line ;
bad_line { NODE(error_statement); }
    : error T__LINE_END
    | T__SLASHES error T__LINE_END
    | T__SLASHES statement_name error T__LINE_END
    | statement_head error T__LINE_END ;
statement_with_data { NODE(pl_sql_statement); }: dd_statement_with_data | bad_line_with_data ;
/* Data come after slashes, so there is no error without them. */
bad_line_with_data { NODE(error_statement); }
    : T__SLASHES error instream_data
    | T__SLASHES statement_name error instream_data
    | statement_head error instream_data ;

pl_sql_statement { NODE; }
    : job_statement | exec_statement | dd_statement | proc_statement | pend_statement | set_statement
    | include_statement | jcllib_statement | if_statement | else_statement | endif_statement
    | output_statement | cntl_statement | endcntl_statement | printdev_statement | command_statement
    | export_statement | notify_statement | schedule_statement | xmit_statement | null_statement
    | jes2_statement | jes3_statement ;

statement_head { NODE; }: T__SLASHES statement_name? %prec HEAD ;
/* A name with a period in it: the step of a procedure, and its DD statement that is overridden. */
statement_name { NODE; }: T__NAME | statement_name T__PERIOD T__NAME ;
null_statement { NODE; }: T__SLASHES ;

job_statement { NODE; }: statement_head T__JOB operands? ;
exec_statement { NODE; }: statement_head T__EXEC exec_target (T__COMMA operands)? ;
exec_target { NODE(exec_procedure); }
    : T__PGM T__EQUALS parameter_value  { NODE(exec_program); }
    | (T__PROC T__EQUALS)? parameter_value ;
dd_statement { NODE; }: statement_head T__DD operands? ;
dd_statement_with_data { NODE(xmit_statement); }
    : statement_head T__DD operands instream_data  { NODE(dd_statement); }
    | statement_head T__XMIT operands? instream_data ;
xmit_statement { NODE; }: statement_head T__XMIT operands? ;
proc_statement { NODE; }: statement_head T__PROC operands? ;
pend_statement { NODE; }: statement_head T__PEND ;
else_statement { NODE; }: statement_head T__ELSE ;
endif_statement { NODE; }: statement_head T__ENDIF ;
endcntl_statement { NODE; }: statement_head T__ENDCNTL ;
set_statement { NODE; }: statement_head T__SET operands ;
include_statement { NODE; }: statement_head T__INCLUDE operands ;
jcllib_statement { NODE; }: statement_head T__JCLLIB operands ;
command_statement { NODE; }: statement_head T__COMMAND operands ;
export_statement { NODE; }: statement_head T__EXPORT operands ;
notify_statement { NODE; }: statement_head T__NOTIFY operands ;
schedule_statement { NODE; }: statement_head T__SCHEDULE operands ;
printdev_statement { NODE; }: statement_head T__PRINTDEV operands ;
output_statement { NODE; }: statement_head T__OUTPUT operands? ;
cntl_statement { NODE; }: statement_head T__CNTL operands? ;
if_statement { NODE; }: statement_head T__IF expression T__THEN ;
jes2_statement { NODE; }: T__JES2 T__JES_TEXT? | T__JES2_JOBPARM operands? ;
jes3_statement { NODE; }: T__JES3 T__JES_TEXT? ;

/* The first operand may be left out, the last one may not: a comma at the end of a line asks for another line. */
operands { NODE; }: operand | operands? T__COMMA operand ;
operand: parameter | parameter_value ;
parameter { NODE; }: parameter_name T__EQUALS (parameter_value | parameter_in_value)? ;
/* VOL=SER=A: the value of one is another. */
parameter_in_value { NODE(parameter_value); }: parameter ;
/* PARM.STEP= speaks to a step of the procedure. */
parameter_name { NODE; }: keyword | keyword T__PERIOD keyword ;
keyword: T__KEYWORD | T__PGM | T__PROC ;
/* Pieces that stand side by side make one value: &HLQ..DATA(MEMBER). */
parameter_value { NODE; }: parameter_value? value_piece | parameter_value (keyword | T__EQUALS) ;
value_piece
    : T__WORD | T__NUMBER | T__STRING | T__SYMBOL | T__TEMPORARY | T__ASTERISK | T__REFERENCE | parameter_list ;
parameter_list { NODE; }: T__LPAREN parameter_list_items? T__RPAREN ;
parameter_list_items { NODE; }: operand | parameter_list_items? T__COMMA operand? ;

/* ---- IF ---- */

expression { NODE; }
    : expression (T__OR | T__AND) expression
    | T__NOT expression
    | T__LPAREN expression T__RPAREN
    | condition_operand (T__COMPARISON condition_operand)? ;
condition_operand: T__WORD | T__NUMBER | T__SYMBOL | T__STRING ;

/* ---- Data in the stream ---- */

instream_data { NODE; }: T__DATA_START instream_line_list? ;
/* A line that belongs to no DD statement: the system makes one for it. */
loose_data { NODE(pl_sql_statement); }: loose_line ;
loose_line { NODE(loose_data_statement); }: loose_text ;
loose_text { NODE(instream_data); }: T__LOOSE_DATA ;
%list instream_line_list: T__DATA %deep ;
%%
