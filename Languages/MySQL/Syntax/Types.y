/* Types. All names of types are words; a MariaDB plug-in may bring more. */

%replace simple_type { NODE(data_type); }: type_name %prec LOWEST | type_name type_modifiers ;
%replace type_name { NODE; }
    : %words type | T__SET
    | T__IDENTIFIER | T__QUOTED_IDENTIFIER
    | T__DOUBLE T__PRECISION
    | T__NATIONAL? (T__CHAR | T__CHARACTER) T__VARYING
    | T__NATIONAL (T__CHAR | T__CHARACTER | T__VARCHAR | T__VARCHARACTER)
    | T__NCHAR (T__VARCHAR | T__VARCHARACTER | T__VARYING)
    | T__LONG (T__VARCHAR | T__VARCHARACTER | T__VARBINARY)
    | (T__SIGNED | T__UNSIGNED) (T__INT | T__INTEGER)? ;

data_type { PART; }: simple_type type_attribute_list ;
%list type_attribute_list: type_attribute %short ;
type_attribute { NODE; }
    : T__UNSIGNED | T__SIGNED | T__ZEROFILL | T__BINARY | T__BYTE | T__ASCII | T__UNICODE
    | character_set ;
character_set { NODE(character_set_clause); }: (T__CHARSET | T__CHARACTER T__SET | T__CHAR T__SET) any_charset_name ;
any_charset_name { NODE(charset_name); }: identifier | string_literal | T__BINARY ;
