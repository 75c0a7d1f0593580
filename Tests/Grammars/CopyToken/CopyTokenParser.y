%define lr.default-reduction consistent
%define api.value.type {int}
%token TPLUS 43
%token TTIMES 42
%token TWORD TUNKNOWN
%left TPLUS
%left TTIMES
%start SQL
%%
SQL: sum { CREATE_NODE(SQL, 1); }
   | %empty { EMPTY(SQL); } ;
sum: sum TPLUS sum { CREATE_NODE(sum, 3); }
   | sum TTIMES sum { CREATE_NODE(product, 3); }
   | words ;
words: TWORD { CREATE_NODE(words, 1); }
     | words TWORD { CREATE_NODE(words, 2); } ;
%%
