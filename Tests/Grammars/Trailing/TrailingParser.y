%define lr.default-reduction consistent
%define api.value.type {int}
%token TNAME THEAD TFROM TLAST TMARK TXS TWORD TNUMBER TSIGN TUNKNOWN
%start SQL
%%
SQL: words { CREATE_NODE(SQL, 1); } ;
words: %empty { EMPTY(none); }
     | words word { CREATE_NODE(words, 2); } ;
word: TNAME | THEAD | TFROM | TLAST | TMARK | TXS | TWORD | TNUMBER | TSIGN ;
%%
