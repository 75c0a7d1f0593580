/* Rows from files. */

statement: load_data_statement ;
load_data_statement { NODE; }: load_head load_file T__INTO T__TABLE table load_tail? ;
load_head { NODE(load_data_statement); }: T__LOAD (T__DATA | T__XML) (T__LOW_PRIORITY | T__CONCURRENT)? ;
load_file { NODE(load_data_statement); }: T__LOCAL? T__INFILE string_literal (T__REPLACE | T__IGNORE)? ;
%parts load_tail: character_set load_marks skipped_lines load_columns load_set %node load_data_statement ;
load_marks { PART(load_data_statement); }: fields_clause lines_clause? | lines_clause | row_tag ;
row_tag { NODE(rows_clause); }: T__ROWS T__IDENTIFIED T__BY string_literal ;
skipped_lines { NODE(skip_clause); }: T__IGNORE T__INTEGER_NUMBER (T__LINES | T__ROWS) ;
load_columns { NODE(columns); }: T__LPAREN load_target_list? T__RPAREN ;
%list load_target_list: load_target %short %separator T__COMMA %node target_column_list ;
load_target: target_column | variable ;
load_set { NODE(load_data_statement); }: T__SET set_list ;
