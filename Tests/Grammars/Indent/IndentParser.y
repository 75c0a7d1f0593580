%define lr.default-reduction consistent
%define api.value.type {int}
%token T__INDENT T__UNINDENT TIF TWORD TSEMI TOPEN TCLOSE TUNKNOWN
%start SQL
%%
SQL: statements { CREATE_NODE(SQL, 1); } ;
statements: statement { CREATE_NODE(statements, 1); }
          | statements statement { CREATE_NODE(statements, 2); } ;
statement: words TSEMI { CREATE_NODE(call, 2); }
         | TIF words T__INDENT statements T__UNINDENT { CREATE_NODE(branch, 5); }
         | error TSEMI { CREATE_NODE_WITH_ERROR(bad, 2, 0); } ;
words: word { CREATE_NODE(words, 1); }
     | words word { CREATE_NODE(words, 2); } ;
word: TWORD | TOPEN | TCLOSE ;
%%
