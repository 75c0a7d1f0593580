%define lr.default-reduction consistent
%define api.value.type {int}
%token TSAY TBLOCK TEND TWORD TSEMI TLESS TGREATER TLOST THASH TUNKNOWN
%start SQL
%%
SQL: statements { CREATE_NODE(SQL, 1); } ;
statements: %empty { EMPTY(none); }
          | statements statement { CREATE_NODE(statements, 2); } ;
statement: TSAY words TSEMI { CREATE_NODE(say, 3); }
         | TBLOCK statements TEND TSEMI { CREATE_NODE(block, 4); }
         | TLESS error TGREATER options { CREATE_NODE_WITH_ERROR(bad_angle, 4, 1); }
         | TLOST error { CREATE_NODE_WITH_ERROR(bad_rest, 2, 1); }
         | THASH junk TSEMI { CREATE_NODE(junkyard, 3); }
         | error TSEMI { CREATE_NODE_WITH_ERROR(bad, 2, 0); } ;
junk: %empty { EMPTY(none); }
    | junk error { CREATE_NODE_WITH_ERROR(junk, 2, 1); } ;
options: %empty { EMPTY(options); }
       | TWORD { CREATE_NODE(options, 1); } ;
words: TWORD { CREATE_NODE(words, 1); }
     | words TWORD { CREATE_NODE(words, 2); } ;
%%
