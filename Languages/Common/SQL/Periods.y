/* Keys that hold at one time only. */

unique_column { NODE(key_column); }: column_name T__WITHOUT T__OVERLAPS ;
