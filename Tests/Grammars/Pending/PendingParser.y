%define lr.default-reduction consistent
%define api.value.type {int}
%token TA TB TC TM TUNKNOWN
%start SQL
%%
SQL: body { CREATE_NODE(SQL, 1); } ;
body: lead TA middle pair TB tail { CREATE_NODE(body, 6); }
    | many TM { CREATE_NODE(body, 2); }
    | hollow { CREATE_NODE(body, 1); } ;
lead: %empty { EMPTY(lead); }
    | TC { CREATE_NODE(lead, 1); } ;
middle: %empty { EMPTY(middle); } ;
pair: %empty { EMPTY(pair); }
    | TC other { CREATE_NODE(pair, 2); } ;
other: %empty { EMPTY(other); } ;
tail: ending ending { CREATE_NODE(tail, 2); } ;
ending: %empty { EMPTY(ending); } ;
hollow: TB ending ending { CREATE_NODE(hollow, 3); } ;
many: TM one one one one one one one one one one one one one one one one one one one one one one one one one one one one
      one one one one one one one one one one one one one one one one one one one one one one one one one one one one one
      one one one one one one one one one one one one one one one one one one one one one one one one one one one one one
      { CREATE_NODE(many, 87); } ;
one: %empty { EMPTY(one); } ;
%%
