/* Databases. A dialect defines database_option, and the statements. */

%list database_option_list: database_option %short %node option_list ;
