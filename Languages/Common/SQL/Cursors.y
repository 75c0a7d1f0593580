/* Cursors. A dialect adds to cursor_option, and to fetch_direction and from_in. */

declare_cursor_statement { NODE; }
    : T__DECLARE cursor_name cursor_option_list? T__CURSOR hold_option? T__FOR query ;
%list cursor_option_list: cursor_option %short ;
cursor_option { NODE; }
    : T__NO? T__SCROLL
    | T__ASENSITIVE | T__INSENSITIVE ;
hold_option { NODE; }: T__WITH T__HOLD | T__WITHOUT T__HOLD ;
fetch_statement { NODE; }: T__FETCH fetch_target ;
fetch_target { PART(fetch_statement); }: fetch_direction? from_in? cursor_name ;
from_in: T__FROM ;
fetch_direction { NODE; }
    : T__NEXT | T__PRIOR | T__FIRST | T__LAST
    | (T__ABSOLUTE | T__RELATIVE) signed_integer ;
close_statement { NODE; }: T__CLOSE cursor_name ;
