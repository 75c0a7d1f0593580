/* OVERRIDING: who gives the values of identity columns. */

insert_source { PART(insert_statement); }: insert_columns? T__OVERRIDING overriding_kind T__VALUE query ;
overriding_kind: T__USER | T__SYSTEM ;
