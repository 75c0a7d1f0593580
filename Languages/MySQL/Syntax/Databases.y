/* Databases, which are schemas as well. */

create_database_statement { NODE; }: new_database database_option_list? ;
new_database { PART(create_database_statement); }
    : T__CREATE database_word if_not_exists? database_name
    | T__CREATE T__OR T__REPLACE database_word database_name ;
alter_database_statement { NODE; }
    : T__ALTER database_word (database_name database_option_list | nameless_options)
    | T__ALTER database_word database_name T__UPGRADE T__DATA T__DIRECTORY T__NAME ;
database_word: T__DATABASE | T__SCHEMA ;
/* Without a database before it, CHARSET is the database. */
nameless_options { NODE(option_list); }: nameless_option | nameless_option database_option_list ;
database_option { NODE(option); }: nameless_option  { PART; } | database_charset_word T__EQUAL? database_given_charset ;
nameless_option { NODE(option); }
    : database_charset_words T__EQUAL? database_given_charset
    | database_collate_words T__EQUAL? database_given_collation
    | database_text_words T__EQUAL? string_literal
    | read_only_words T__EQUAL? read_only_value ;
database_charset_word { NODE(option_name); }: T__CHARSET ;
database_charset_words { NODE(option_name); }: T__DEFAULT T__CHARSET | T__DEFAULT? (T__CHARACTER | T__CHAR) T__SET ;
database_given_charset: any_charset_name | T__DEFAULT ;
database_collate_words { NODE(option_name); }: T__DEFAULT? T__COLLATE ;
database_given_collation: database_collation | T__DEFAULT ;
database_collation { NODE(collation_name); }: identifier | string_literal | T__BINARY ;
database_text_words { NODE(option_name); }: T__DEFAULT? T__ENCRYPTION | T__COMMENT ;
read_only_words { NODE(option_name); }: T__READ T__ONLY ;
read_only_value: T__DEFAULT | T__INTEGER_NUMBER ;

statement: create_database_statement | alter_database_statement ;
