/* Partitions: how a table is cut, and its pieces. */

partition_by { NODE(partition_by_clause); }
    : T__PARTITION T__BY counted_method subpartition_by? new_partitions? %prec LOWEST ;
counted_method { PART(partition_by_clause); }: partition_method partition_count? %prec LOWEST ;
partition_method { NODE; }
    : hash_method
    | (T__RANGE | T__LIST) (parenthesized | T__COLUMNS columns)
    | T__SYSTEM_TIME history_span_list? ;
hash_method { PART(partition_method); }
    : T__LINEAR? T__HASH parenthesized
    | T__LINEAR? T__KEY (T__ALGORITHM T__EQUAL T__INTEGER_NUMBER)? hashed_columns ;
hashed_columns { NODE(columns); }: columns  { PART; } | T__LPAREN T__RPAREN ;
%list history_span_list: history_span %short ;
history_span { NODE; }
    : interval (T__STARTS constant)?
    | T__LIMIT T__INTEGER_NUMBER
    | T__AUTO ;
partition_count { NODE; }: T__PARTITIONS T__INTEGER_NUMBER ;
subpartition_by { NODE(subpartition_by_clause); }
    : T__SUBPARTITION T__BY hash_method (T__SUBPARTITIONS T__INTEGER_NUMBER)? ;

new_partitions { NODE(partition_definitions); }: T__LPAREN partition_definition_list T__RPAREN ;
%list partition_definition_list: partition_definition %short %separator T__COMMA ;
partition_definition { NODE; }
    : partition_head partition_option_list?
    | partition_head partition_bound partition_option_list? subpartition_definitions? ;
partition_head { PART(partition_definition); }: T__PARTITION? partition_name ;
partition_bound { NODE; }
    : T__VALUES T__LESS_WORD T__THAN (T__MAXVALUE | bound_values)
    | T__VALUES T__IN bound_values
    | T__VALUES? T__DEFAULT
    | T__HISTORY | T__CURRENT ;
bound_values: T__LPAREN bound_value_list T__RPAREN  { PART(partition_bound); } ;
%list bound_value_list: bound_value %short %separator T__COMMA %node expression_list ;
bound_value: expression | T__MAXVALUE ;
%list partition_option_list: partition_option %short %node table_option_list ;
partition_option { NODE(table_option); }: shared_option | comment_clause | T__STORAGE engine_option ;
subpartition_definitions { PART(partition_definition); }: T__LPAREN subpartition_definition_list T__RPAREN ;
%list subpartition_definition_list: subpartition_definition %short %separator T__COMMA ;
subpartition_definition { NODE; }: T__SUBPARTITION partition_name partition_option_list? ;
