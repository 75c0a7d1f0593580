/* What PostgreSQL adds to cursors. */

cursor_option { NODE; }: T__BINARY ;
fetch_statement { NODE; }: T__MOVE fetch_target ;
from_in: T__IN ;
fetch_direction { NODE; }
    : (T__FORWARD | T__BACKWARD)? signed_integer
    | T__ALL
    | T__FORWARD T__ALL?
    | T__BACKWARD T__ALL? ;
close_statement { NODE; }: T__CLOSE T__ALL ;
