%define lr.default-reduction consistent
%define api.value.type {int}
%token INITIAL 0
%token SS_RAW 1
%token TRAW TWORD TCOLON TSEMI TTEXT TUNKNOWN
%start SQL
%%
SQL: statements { CREATE_NODE(SQL, 1); } ;
statements: %empty { EMPTY(none); }
          | statements statement { CREATE_NODE(statements, 2); } ;
statement: TWORD TSEMI { CREATE_NODE(word, 2); }
         | opening TTEXT closing { CREATE_NODE(raw, 3); } ;
opening: TRAW TCOLON { yylexerptr->yybegin(SS_RAW); CREATE_NODE(opening, 2); } ;
closing: TSEMI { yylexerptr->yybegin(INITIAL); CREATE_NODE(closing, 1); } ;
%%
