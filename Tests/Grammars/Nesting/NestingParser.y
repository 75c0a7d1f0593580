%define lr.default-reduction consistent
%define api.value.type {int}
%token TWORD TOPEN TCLOSE TCOMMA TSEMI TUNKNOWN
%start SQL
%%
SQL: lists { CREATE_NODE(SQL, 1); } ;
lists: %empty { EMPTY(none); }
     | lists list TSEMI { CREATE_NODE(lists, 3); } ;
list: item
    | list TCOMMA item { CREATE_NODE(list, 3); } ;
item: TWORD { CREATE_NODE(item, 1); }
    | TOPEN item TCLOSE { CREATE_NODE(nested, 3); } ;
%%
