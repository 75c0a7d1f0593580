/* Which words are names, and names of what other dialects don't have. Next to a dot every word is a name, and the scanner gives
   identifiers there. */

quoted_or_plain: T__IDENTIFIER | T__QUOTED_IDENTIFIER ;

/* Words reserved by one of the two servers are names in the other one. */
free_word: plain_word | %words delete_word ;
plain_word: role_word | T__NONE ;
role_word
    : %words unreserved | %words body_word | %words reserved_mysql | %words reserved_mariadb
    | T__ANY %prec LOWEST | T__SOME %prec LOWEST | T__NEXT %prec LOWEST | T__PREVIOUS %prec LOWEST
    | T__BEGIN_LA | T__MEMBER_LA | T__SOUNDS_LA ;

clause_word: %words clause_word ;
column_word: %words column_name ;

%without non_reserved_word ;
%without index_name: dotted_name ;
identifier, any_label { NODE(sql_identifier); }
    : quoted_or_plain | free_word | clause_word | column_word ;
bare_label { NODE(sql_identifier); }: quoted_or_plain | free_word | column_word ;
type_function_name { NODE(sql_identifier); }: quoted_or_plain | free_word | clause_word ;

/* What follows a table may be a clause. */
%replace alias { NODE; }: table_label ;
table_label { NODE(sql_identifier); }: quoted_or_plain | free_word | column_word ;
any_alias, bare_alias { NODE(alias); }: string_literal ;

/* What begins something else and is a function as well. */
function_name { NODE; }: function_word ;
function_word { NODE(sql_identifier); }: %words function_word ;

/* A user, and where it connects from; a role has the same form. */
%replace role_name { NODE; }: user_name | T__CURRENT_USER | (T__CURRENT_USER | T__USER) T__LPAREN T__RPAREN ;
user_name { PART(qualified_sql_identifier); }: user_part | user_part user_host ;
user_part { NODE(sql_identifier); }
    : quoted_or_plain | role_word | %words delete_word | %words clause_word | %words column_name | string_literal ;
user_host { PART(qualified_sql_identifier); }: T__USER_VARIABLE | T__AT_SIGN user_part ;

/* A table of the database in use may have its dot. */
local_name { NODE(qualified_sql_identifier); }: T__DOT any_label | local_name T__DOT any_label ;
table_name { NODE; }: local_name ;
any_column { NODE(column_name); }: local_name ;
collation_name { NODE; }: string_literal | T__BINARY ;
engine_name, event_name, partition_name, period_name, plugin_name { NODE; }: identifier ;
