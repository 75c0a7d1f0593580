%define lr.default-reduction consistent
%define api.value.type {int}
%token TWORD TSEMI TUNKNOWN
%nonassoc TLESS
%left TPLUS
%start SQL
%%
SQL: statements { CREATE_NODE(SQL, 1); } ;
statements: %empty { EMPTY(none); }
          | statements statement { CREATE_NODE(statements, 2); } ;
statement: value TSEMI { CREATE_NODE(statement, 2); }
         | error TSEMI { CREATE_NODE_WITH_ERROR(bad, 2, 0); } ;
value: value TLESS value { CREATE_NODE(less, 3); }
     | value TPLUS value { CREATE_NODE(plus, 3); }
     | TWORD ;
%%
