/* Indexes, as statements and as parts of a table. */

table_index { NODE(index_definition); }
    : key_word named_parts
    | index_kind key_word? named_parts ;
key_word: T__INDEX | T__KEY ;
index_kind: T__FULLTEXT | T__SPATIAL ;
named_parts { PART(index_definition); }
    : if_not_exists? index_name typed_parts
    | typed_parts
    | if_not_exists indexed_parts ;
typed_parts { PART(index_definition); }: index_type? indexed_parts ;
indexed_parts { PART(index_definition); }: T__LPAREN index_element_list T__RPAREN index_clause_list? ;

create_index_statement { NODE; }
    : T__CREATE index_kind T__INDEX index_definition
    | T__CREATE T__OR T__REPLACE (T__UNIQUE | index_kind)? T__INDEX index_definition ;
index_definition { PART(create_index_statement); }: new_index index_type index_target ;

index_element { NODE; }
    : column_name prefix_length? index_direction?
    | parenthesized index_direction? ;
prefix_length { NODE; }: T__LPAREN T__INTEGER_NUMBER T__RPAREN ;
index_type { NODE; }: (T__USING | T__TYPE) index_method ;
index_method { NODE(access_method_name); }: T__BTREE | T__HASH | T__RTREE ;
index_clause { NODE; }
    : index_type | comment_clause | table_lock | lock_wait
    | engine_option_name (T__EQUAL option_value | string_literal | T__INTEGER_NUMBER)
    | T__WITH T__PARSER plugin_name
    | T__VISIBLE | T__INVISIBLE
    | T__NOT? T__IGNORED ;
/* How a table may be used while it is changed. */
table_lock { NODE(alter_option); }: (T__ALGORITHM | T__LOCK) T__EQUAL? option_value ;
lock_wait { NODE(wait_clause); }: T__WAIT T__INTEGER_NUMBER | T__NOWAIT ;
