%define lr.default-reduction consistent
%define api.value.type {int}
%token TPERCENT TFORM TTEXT TGENERAL TLABEL TWORD TNUMBER TUNKNOWN
%start SQL
%%
SQL: words { CREATE_NODE(SQL, 1); } ;
words: %empty { EMPTY(none); }
     | words word { CREATE_NODE(words, 2); } ;
word: TPERCENT | TFORM | TTEXT | TGENERAL | TLABEL | TWORD | TNUMBER ;
%%
