/* What PostgreSQL adds to sequences. */

sequence_option { NODE; }: T__OWNED T__BY qualified_column_name | T__SEQUENCE T__NAME sequence_name ;
alter_sequence_statement { NODE; }: T__ALTER T__SEQUENCE if_exists? sequence_name alter_action_list ;
