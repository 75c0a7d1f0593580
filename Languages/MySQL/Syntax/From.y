/* What MySQL adds to FROM: partitions, versions, index hints, tables in brackets, joins without a condition, JSON_TABLE. */

relation { PART(table_reference); }
    : table_name partition_clause
    | T__DUAL  { NODE(table_name); } ;
partition_clause { NODE; }: T__PARTITION T__LPAREN partition_name_list T__RPAREN ;
%list partition_name_list: partition_name %short %separator T__COMMA ;

%without table_reference: relation (T__AS? alias columns?)? | joined_table | T__LPAREN joined_table T__RPAREN alias_part ;
table_reference { NODE; }
    : joined_table %prec LOWEST
    | named_relation index_hint_list?
    | T__LPAREN (table_reference | table_reference T__COMMA from_list) T__RPAREN
    | json_table alias_part
    | subquery %prec LOWEST
    | T__LBRACE identifier joined_table T__RBRACE ;

named_relation { PART(table_reference); }: versioned_relation (T__AS? alias)? ;
versioned_relation { PART(table_reference); }: relation system_time_clause? ;

system_time_clause { NODE; }
    : T__FOR_LA T__SYSTEM_TIME T__AS T__OF history_point
    | T__FOR_LA T__SYSTEM_TIME T__BETWEEN history_point T__AND history_point
    | T__FOR_LA T__SYSTEM_TIME T__FROM history_point T__TO history_point
    | T__FOR_LA T__SYSTEM_TIME T__ALL ;
history_point { PART; }: restricted_expression | (T__TRANSACTION | T__TIMESTAMP) (T__INTEGER_NUMBER | variable) ;

%list index_hint_list: index_hint %short ;
index_hint { NODE; }: hint_word (T__INDEX | T__KEY) hint_purpose? hinted_indexes ;
hint_word: T__USE | T__FORCE | T__IGNORE ;
hinted_indexes { NODE(index_hint); }: T__LPAREN hinted_index_list? T__RPAREN ;
hint_purpose { NODE; }: T__FOR (T__JOIN | T__ORDER T__BY | T__GROUP T__BY) ;
%list hinted_index_list: hinted_index %short %separator T__COMMA %node index_name_list ;
hinted_index { NODE(index_name); }: identifier | T__PRIMARY ;

%without join_type: T__FULL T__OUTER? | T__INNER ;
inner { NODE(join_type); }: T__INNER ;
joined_table { NODE; }
    : table_reference inner? T__JOIN table_reference %prec CONDITIONLESS
    | table_reference inner T__JOIN table_reference join_condition
    | table_reference T__NATURAL inner T__JOIN table_reference
    | table_reference T__CROSS T__JOIN table_reference join_condition
    | table_reference T__STRAIGHT_JOIN table_reference %prec CONDITIONLESS
    | table_reference T__STRAIGHT_JOIN table_reference join_condition ;

json_table { NODE; }: T__JSON_TABLE T__LPAREN expression T__COMMA string_literal json_columns T__RPAREN ;
json_column { NODE; }
    : column_name T__FOR T__ORDINALITY
    | column_name data_type T__EXISTS? T__PATH string_literal json_reaction_list?
    | T__NESTED T__PATH? string_literal json_columns ;
