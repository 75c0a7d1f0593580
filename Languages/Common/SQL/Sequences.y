/* Sequences, and columns that take their values from one. A dialect adds to sequence_option and sequence_value. */

create_sequence_statement { NODE; }: T__CREATE temporary? sequence_definition ;
sequence_definition { PART(create_sequence_statement); }: T__SEQUENCE new_sequence sequence_option_list? ;
new_sequence { PART(create_sequence_statement); }: if_not_exists? sequence_name ;
alter_sequence_statement { NODE; }: T__ALTER T__SEQUENCE if_exists? sequence_name sequence_option_list ;
%list sequence_option_list: sequence_option %short ;
sequence_option { NODE; }
    : T__AS simple_type
    | (T__CACHE | T__MAXVALUE | T__MINVALUE) sequence_value
    | T__NO? T__CYCLE
    | T__INCREMENT T__BY? sequence_value
    | T__NO T__MAXVALUE
    | T__NO T__MINVALUE
    | T__START T__WITH? sequence_value
    | T__RESTART (T__WITH? sequence_value)? ;
sequence_value { PART(sequence_option); }: signed_number ;

column_constraint_body { NODE(column_constraint); }
    : T__GENERATED generated_when T__AS T__IDENTITY (T__LPAREN sequence_option_list T__RPAREN)? ;
