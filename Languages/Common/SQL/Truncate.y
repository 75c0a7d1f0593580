/* TRUNCATE TABLE. */

truncate_statement { NODE; }: T__TRUNCATE truncated_tables ;
truncated_tables { PART(truncate_statement); }: T__TABLE relation_list ;
