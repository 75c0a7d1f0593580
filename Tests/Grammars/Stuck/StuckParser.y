%define lr.default-reduction consistent
%define api.value.type {int}
%token TWORD TUNKNOWN
%start SQL
%%
SQL: words { CREATE_NODE(SQL, 1); } ;
words: %empty { EMPTY(none); }
     | words word { CREATE_NODE(words, 2); } ;
word: TWORD ;
%%
