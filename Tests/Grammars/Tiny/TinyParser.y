%define lr.default-reduction consistent
%define api.value.type {int}
%token TA TB TX
%start SQL
%%
SQL: l { CREATE_NODE(SQL, 1); } ;
l: %empty { EMPTY(e); }
 | l i { CREATE_NODE(l, 2); } ;
i: TA l TB { CREATE_NODE(i, 3); }
 | error TX { CREATE_NODE_WITH_ERROR(x, 2, 0); } ;
%%
