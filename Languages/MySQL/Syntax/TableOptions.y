/* Options of tables, and what columns, indexes and partitions share with them. */

%replace table_option_list { NODE; }: table_option | table_option_list T__COMMA? table_option ;
table_option { NODE; }
    : option
    | comment_clause
    | T__DEFAULT? charset_option
    | T__DEFAULT? collation_option
    | T__UNION T__EQUAL? T__LPAREN table_name_list? T__RPAREN
    | T__START T__TRANSACTION
    | T__WITH T__SYSTEM T__VERSIONING ;
charset_option { NODE(character_set_clause); }: charset_word T__EQUAL? charset_value ;
charset_word { PART(character_set_clause); }: T__CHARSET | (T__CHARACTER | T__CHAR) T__SET ;
charset_value: any_charset_name | T__DEFAULT ;
collation_option { NODE(collate_clause); }: T__COLLATE T__EQUAL? (collation_name | T__DEFAULT) ;
comment_clause { NODE; }: T__COMMENT T__EQUAL? string_literal ;

option { PART(table_option); }
    : shared_option
    | word_option_name T__EQUAL? option_value ;
/* What a partition has, too. */
shared_option { PART(table_option); }
    : engine_option_name T__EQUAL? option_value
    | engine_option
    | T__TABLESPACE T__EQUAL? tablespace_name
    | T__STORAGE (T__DISK | T__MEMORY)
    | (T__DATA | T__INDEX) T__DIRECTORY T__EQUAL? string_literal
    | T__NODEGROUP T__EQUAL? T__INTEGER_NUMBER ;
/* What is no word may be an option of the engine's own. */
engine_option_name { NODE(option_name); }: engine_option_word ;
engine_option_word { NODE(sql_identifier); }: quoted_or_plain ;
word_option_name { NODE(option_name); }: word_option ;
word_option { NODE(sql_identifier); }
    : T__AUTO_INCREMENT | T__CHECKSUM | T__COMPRESSION | T__CONNECTION | T__ENCRYPTION | T__PAGE_CHECKSUM | T__PASSWORD
    | T__SEQUENCE | T__STATS_AUTO_RECALC | T__STATS_PERSISTENT | T__STATS_SAMPLE_PAGES | T__TYPE ;
option_value { PART; }: identifier | string_literal | signed_number | T__HEX_NUMBER | T__DEFAULT | T__NULL | T__ON ;
engine_option { PART(table_option); }: T__ENGINE T__EQUAL? engine_name ;
engine_name { NODE; }: string_literal ;
