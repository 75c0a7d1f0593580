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

%warnings 2
%start SQL_ROOT
%%

SQL_ROOT { NODE(SQL); }: %empty | program ;

/* Statements come in chunks of chunks under one name, so that a long program doesn't become a deep chain. The list of
   delimited statements stands in a list of statements, and that in a node of its own: so whoever flattens the tree
   gives all statements one shape, however many there are. */
program { NODE; }: pl_sql_statements ;
pl_sql_statements { NODE; }: delimited_pl_sql_statements ;
%list delimited_pl_sql_statements: delimited %last last_statement %deep ;

/* An error costs its line, but for the label. */
delimited { NODE(delimited_pl_sql_statement); }
    : pl_sql_statement line_end
    | labeled_line
    | error line_end ;
/* The line end of a labeled statement is inside, with the comment that may stand before it. A label may have its
   line to itself. */
labeled_line { NODE(labeled_pl_sql_statement); }
    : pl_sql_statement_label pl_sql_statement? line_end
    | pl_sql_statement_label error line_end ;
line_end { NODE(pl_sql_statement_delimiter); }: T__LINE_END ;

/* The last line may lack its end. A rule may end in an error where nothing but the end of the text follows. */
last_statement { NODE(delimited_pl_sql_statement); }
    : pl_sql_statement text_end
    | last_labeled_line | error ;
last_labeled_line { NODE(labeled_pl_sql_statement); }
    : pl_sql_statement_label pl_sql_statement? text_end
    | pl_sql_statement_label error ;
text_end { NODE(pl_sql_statement_delimiter); }: %empty ;

pl_sql_statement_label { NODE; }: T__LABEL T__COLON ;
pl_sql_statement { NODE; }: command ;

/* ---- Commands ---- */

command { PART(prompted_statement); }
    : command_statement | call_statement | callprc_statement | callsubr_statement | chgvar_statement
    | copyright_statement | dcl_statement | dclf_statement | dclprcopt_statement | do_statement
    | dofor_statement | dountil_statement | dowhile_statement | else_statement | enddo_statement
    | endpgm_statement | endselect_statement | endsubr_statement | goto_statement | if_statement
    | include_statement | iterate_statement | leave_statement | monmsg_statement | otherwise_statement
    | pgm_statement | return_statement | rtnsubr_statement | select_statement | subr_statement
    | tfrctl_statement | when_statement
    | T__PROMPT command ;

/* Any command that the language doesn't treat in a way of its own. A keyword here is a command name with a bracket
   right after it. */
command_statement { NODE; }: command_name parameter_list? ;
command_name { NODE; }
    : T__NAME | T__KEYWORD
    | command_library T__QUALIFIER name_part ;
command_library: T__NAME  { NODE(name); } | T__SPECIAL_VALUE ;

call_statement { NODE; }: T__CALL parameter_list? ;
callprc_statement { NODE; }: T__CALLPRC parameter_list? ;
callsubr_statement { NODE; }: T__CALLSUBR parameter_list? ;
chgvar_statement { NODE; }: T__CHGVAR parameter_list? ;
copyright_statement { NODE; }: T__COPYRIGHT parameter_list? ;
dcl_statement { NODE; }: T__DCL parameter_list? ;
dclf_statement { NODE; }: T__DCLF parameter_list? ;
dclprcopt_statement { NODE; }: T__DCLPRCOPT parameter_list? ;
do_statement { NODE; }: T__DO ;
dofor_statement { NODE; }: T__DOFOR parameter_list? ;
dountil_statement { NODE; }: T__DOUNTIL condition ;
dowhile_statement { NODE; }: T__DOWHILE condition ;
else_statement { NODE; }: T__ELSE else_parameter? ;
enddo_statement { NODE; }: T__ENDDO ;
endpgm_statement { NODE; }: T__ENDPGM ;
endselect_statement { NODE; }: T__ENDSELECT ;
endsubr_statement { NODE; }: T__ENDSUBR parameter_list? ;
goto_statement { NODE; }: T__GOTO parameter_list? ;
if_statement { NODE; }: T__IF condition then_parameter? ;
include_statement { NODE; }: T__INCLUDE parameter_list? ;
iterate_statement { NODE; }: T__ITERATE parameter_list? ;
leave_statement { NODE; }: T__LEAVE parameter_list? ;
monmsg_statement { NODE; }: T__MONMSG parameter_list? ;
otherwise_statement { NODE; }: T__OTHERWISE else_parameter? ;
pgm_statement { NODE; }: T__PGM parameter_list? ;
return_statement { NODE; }: T__RETURN ;
rtnsubr_statement { NODE; }: T__RTNSUBR parameter_list? ;
select_statement { NODE; }: T__SELECT ;
subr_statement { NODE; }: T__SUBR parameter_list? ;
tfrctl_statement { NODE; }: T__TFRCTL parameter_list? ;
when_statement { NODE; }: T__WHEN condition then_parameter? ;

/* ---- Conditions, and commands inside commands ---- */

condition { NODE; }
    : condition_keyword? T__LPAREN expression T__RPAREN
    | T__VARIABLE | T__STRING | function_call ;
condition_keyword { NODE(parameter_keyword); }: T__COND ;
then_parameter { PART(command_parameter); }
    : then_keyword T__LPAREN nested_command? T__RPAREN
    | positional_command ;
then_keyword { NODE(parameter_keyword); }: T__THEN ;
else_parameter { PART(command_parameter); }
    : else_keyword T__LPAREN nested_command? T__RPAREN
    | positional_command ;
else_keyword { NODE(parameter_keyword); }: T__CMD ;
/* Without brackets it takes in the rest of the line: IF (&A) CALL B. */
positional_command { NODE(command_parameter); }: T__LPAREN nested_command T__RPAREN | nested_command ;
nested_command { NODE; }: command ;

/* ---- Parameters ---- */

%list parameter_list: parameter %short ;
parameter: named_parameter | positional_value  { NODE(positional_parameter); } ;
named_parameter: keyword_parameter | command_parameter ;
keyword_parameter { NODE; }: parameter_keyword T__LPAREN list_content? T__RPAREN ;
parameter_keyword { NODE; }: T__SELECTIVE_PROMPT? plain_keyword ;
plain_keyword: T__KEYWORD | T__COND ;
/* A parameter that holds a command, or the name of one, or its text. */
command_parameter { NODE; }: command_keyword T__LPAREN (command_text | nested_command)? T__RPAREN ;
command_keyword { NODE(parameter_keyword); }: T__SELECTIVE_PROMPT? plain_command_keyword ;
plain_command_keyword: T__CMD | T__EXEC | T__THEN ;
command_text { PART(qualified_name); }
    : T__STRING | T__GENERIC_NAME | T__HEX_STRING
    | T__VARIABLE (T__QUALIFIER name_part)?
    | T__SPECIAL_VALUE | function_call | parenthesized_values
    | command_text T__CONCATENATION expression  { NODE(expression); } ;
/* Outside of brackets a blank ends a value, so there is no arithmetic. */
positional_value { PART(expression); }
    : operand
    | (T__PLUS | T__MINUS) T__NUMBER
    | positional_value T__CONCATENATION operand ;

/* ---- Values ---- */

/* What stands in brackets: values, maybe after an operator word (INCREL((*AND NAME *EQ 'A'))), or a command of which
   nothing but its keywords tells that it is one (JOBCMD(CALL PGM(A))). */
list_content { NODE(value_list); }
    : value_list  { PART; }
    | operator_word value_list?
    | value_list named_parameters  { NODE(embedded_command); } ;
operator_word: T__AND | T__OR | T__COMPARISON | T__CONCATENATION ;
%list named_parameters: named_parameter %short %node parameter_list ;
%list value_list: value %short ;
value: expression %prec VALUE ;

expression { PART; }
    : operand
    | expression (T__OR | T__AND | T__COMPARISON | T__CONCATENATION | T__PLUS | T__MINUS | T__ASTERISK |
          T__SLASH) expression
    | T__NOT expression
    | (T__PLUS | T__MINUS) expression %prec SIGN ;
operand
    : name_part | qualified_name | T__STRING | T__HEX_STRING | T__ASTERISK | T__LONE_ASTERISK | function_call
    | parenthesized_values ;
parenthesized_values { NODE; }: T__LPAREN list_content? T__RPAREN ;
function_call { NODE; }: T__FUNCTION %prec FUNCTION | T__FUNCTION T__LPAREN value_list? T__RPAREN ;

qualified_name { NODE; }: name_part T__QUALIFIER name_part | qualified_name T__QUALIFIER name_part ;
name_part: any_name | T__QUOTED_NAME | T__GENERIC_NAME | T__VARIABLE | T__SPECIAL_VALUE | T__NUMBER | T__WORD ;
/* No word is reserved. */
any_name { NODE(name); }
    : T__NAME | T__CALL | T__CALLPRC | T__CALLSUBR | T__CHGVAR | T__COPYRIGHT | T__DCL | T__DCLF
    | T__DCLPRCOPT | T__DO | T__DOFOR | T__DOUNTIL | T__DOWHILE | T__ELSE | T__ENDDO | T__ENDPGM
    | T__ENDSELECT | T__ENDSUBR | T__GOTO | T__IF | T__INCLUDE | T__ITERATE | T__LEAVE | T__MONMSG
    | T__OTHERWISE | T__PGM | T__RETURN | T__RTNSUBR | T__SELECT | T__SUBR | T__TFRCTL | T__WHEN ;
%%
