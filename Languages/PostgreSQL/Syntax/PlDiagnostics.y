/* Messages, errors and what a block knows of them. */

raise_statement { NODE; }: T__RAISE raised? | T__RAISE raise_level raised ;
raise_level { NODE; }: T__DEBUG | T__LOG | T__INFO | T__NOTICE | T__WARNING | T__EXCEPTION ;
%parts raised: raised_condition raise_using %node raise_statement ;
raised_condition { NODE(raise_format); }
    : string_literal (T__COMMA value_list)?
    | condition_word  { NODE(exception_condition); }
    | T__SQLSTATE T__STRING  { NODE(exception_condition); } ;
condition_word { NODE(condition_name); }: plain_identifier ;
raise_using { NODE(raise_using_clause); }: T__USING raise_option_list ;
%list raise_option_list: raise_option %short %separator T__COMMA %node option_list ;
raise_option { NODE(option); }: raise_option_name assignment_operator expression ;
raise_option_name { NODE(option_name); }: any_label ;
assert_statement { NODE; }: T__ASSERT condition (T__COMMA expression)? ;
diagnostics_target: variable ;
diagnostics_sign: assignment_operator ;
item_name { NODE; }: plain_identifier ;
exception_condition { NODE; }: T__SQLSTATE T__STRING ;
