/* ENFORCED: whether a constraint is tested at all. */

column_constraint, constraint_mark: enforcement ;
enforcement { NODE(constraint_attribute); }: T__NOT? T__ENFORCED ;
