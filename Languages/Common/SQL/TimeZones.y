/* AT TIME ZONE, and times that overlap. */

expression { PART; }: expression T__AT T__TIME T__ZONE expression %prec T__AT | row T__OVERLAPS row ;
