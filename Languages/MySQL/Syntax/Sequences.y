/* MariaDB's sequences. */

%without sequence_option: T__AS simple_type | T__NO? T__CYCLE ;
create_sequence_statement { NODE; }: T__CREATE T__OR T__REPLACE temporary? sequence_definition ;
sequence_option { NODE; }
    : T__CYCLE | T__NOCACHE | T__NOCYCLE | T__NOMAXVALUE | T__NOMINVALUE
    | option | comment_clause ;
sequence_value { PART(sequence_option); }: T__EQUAL signed_number ;

statement: create_sequence_statement | alter_sequence_statement ;
