%define lr.default-reduction consistent
%define api.value.type {int}
%token TPRINT TUSE TSET TBEGIN TEND TID TQID TSTRING TNUMBER TEQ TPLUS TSEMI TLPAREN TRPAREN TUNKNOWN
%left TPLUS
%start SQL
%%
SQL: statements { CREATE_NODE(SQL, 1); } ;
statements: %empty { EMPTY(no_statements); }
          | statements statement { CREATE_NODE(statements, 2); } ;
statement: TPRINT expression TSEMI { CREATE_NODE(print_statement, 3); }
         | TUSE TQID TSEMI { CREATE_NODE(use_statement, 3); }
         | TSET TID TEQ expression TSEMI { CREATE_NODE(set_statement, 5); }
         | TBEGIN statements TEND TSEMI { CREATE_NODE(block, 4); }
         | error TSEMI { CREATE_NODE_WITH_ERROR(error_statement, 2, 0); } ;
expression: expression TPLUS expression { CREATE_NODE(sum, 3); }
          | TLPAREN expression TRPAREN { CREATE_NODE(brackets, 3); }
          | TID { CREATE_NODE(name, 1); }
          | TSTRING { CREATE_NODE(string, 1); }
          | TNUMBER { CREATE_NODE(number, 1); } ;
%%
