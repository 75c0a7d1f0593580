/* DEFERRABLE, INITIALLY: when a constraint is tested. */

column_constraint, constraint_mark: constraint_attribute ;
constraint_attribute { NODE; }: T__NOT? T__DEFERRABLE | T__INITIALLY (T__DEFERRED | T__IMMEDIATE) ;
