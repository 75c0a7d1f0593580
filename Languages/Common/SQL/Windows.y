/* Windows: what stands after OVER, and in the WINDOW clause of a query. */

%list window_list: named_window %short %separator T__COMMA ;
named_window { NODE; }: window_name T__AS window_definition ;
window_definition { NODE; }: T__LPAREN window_name? window_parts? T__RPAREN ;
%parts window_parts: window_partition sort_clause frame_clause %node window_definition ;
window_partition { NODE; }: T__PARTITION T__BY expression_list ;
frame_clause { NODE; }: (T__RANGE | T__ROWS | T__GROUPS) frame_extent frame_exclusion? ;
frame_extent { NODE; }: frame_bound | T__BETWEEN frame_bound T__AND frame_bound ;
frame_bound { NODE; }
    : T__UNBOUNDED (T__PRECEDING | T__FOLLOWING)
    | T__CURRENT T__ROW
    | expression (T__PRECEDING | T__FOLLOWING) ;
frame_exclusion { NODE; }: T__EXCLUDE (T__CURRENT T__ROW | T__GROUP | T__TIES | T__NO T__OTHERS) ;
