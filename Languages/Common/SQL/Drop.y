/* DROP. A dialect adds to dropped_objects and dropped_alone. */

drop_statement { NODE; }: T__DROP dropped_objects drop_behavior? ;
dropped_objects { NODE(drop_statement); }
    : T__TABLE if_exists? table_name_list
    | T__VIEW if_exists? view_name_list
    | T__SEQUENCE if_exists? sequence_name_list
    | T__INDEX if_exists? index_name_list
    | T__SCHEMA if_exists? schema_name_list
    | any_routine_word if_exists? routine_signature_list ;
drop_statement { NODE; }: T__DROP dropped_alone ;
/* What nothing else goes with. */
dropped_alone { NODE(drop_statement); }
    : (T__ROLE | T__USER) if_exists? role_name_list
    | T__DATABASE if_exists? database_name ;
if_exists { NODE; }: T__IF T__EXISTS ;
drop_behavior { NODE; }: T__CASCADE | T__RESTRICT ;
