/* GET DIAGNOSTICS. A dialect defines diagnostics_target (what gets a value), diagnostics_sign (= or the like) and item_name,
   and may add to get_diagnostics. */

get_diagnostics { NODE(get_diagnostics_statement); }
    : T__GET (T__CURRENT | T__STACKED)? T__DIAGNOSTICS diagnostics_item_list ;
%list diagnostics_item_list: diagnostics_item %short %separator T__COMMA ;
diagnostics_item { NODE; }: diagnostics_target diagnostics_sign item_name ;
