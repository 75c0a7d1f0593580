/* Statistics, types, operators. */

new_statistics { PART(create_statistics_statement); }: if_not_exists? statistics_name ;
statistics_kinds { NODE; }: T__LPAREN name_list T__RPAREN ;
create_statistics_statement { NODE; }
    : T__CREATE T__STATISTICS new_statistics? statistics_kinds? T__ON statistics_column_list from_clause ;
%list statistics_column_list: statistics_column %short %separator T__COMMA ;
statistics_column { NODE; }
    : column_name | plain_function
    | T__LPAREN expression T__RPAREN ;

new_collation { PART(create_collation_statement); }: if_not_exists? collation_name ;
create_object_statement { NODE(create_collation_statement); }
    : T__CREATE T__OPERATOR any_operator definitions  { NODE(create_operator_statement); }
    | T__CREATE T__COLLATION new_collation (definitions | T__FROM collation_name)
    | T__CREATE T__TEXT T__SEARCH text_search_word text_search_name definitions
          { NODE(create_text_search_statement); } ;
text_search_word: T__PARSER | T__DICTIONARY | T__TEMPLATE | T__CONFIGURATION ;

create_type_statement { NODE; }
    : T__CREATE T__TYPE defined_type_name definitions?
    | T__CREATE T__TYPE defined_type_name T__AS T__ENUM? T__LPAREN T__RPAREN
    | T__CREATE T__TYPE defined_type_name T__AS T__LPAREN column_definition_list T__RPAREN
    | T__CREATE T__TYPE defined_type_name T__AS T__ENUM T__LPAREN string_list T__RPAREN
    | T__CREATE T__TYPE defined_type_name T__AS T__RANGE definitions ;

create_domain_statement { NODE; }: T__CREATE T__DOMAIN domain_name T__AS? data_type column_constraint_list? ;

create_aggregate_statement { NODE; }: T__CREATE (T__OR T__REPLACE)? aggregate_definition ;
aggregate_definition { NODE(create_aggregate_statement); }
    : T__AGGREGATE function_name (aggregate_parameters definitions | old_aggregate_options) ;
old_aggregate_options { NODE(options); }: T__LPAREN old_aggregate_list T__RPAREN ;
%list old_aggregate_list: old_aggregate_item %short %separator T__COMMA %node option_list ;
old_aggregate_item { NODE(option); }: old_aggregate_option T__EQUAL definition_value ;
old_aggregate_option { NODE(option_name); }: plain_identifier ;

create_operator_class_statement { NODE; }
    : T__CREATE T__OPERATOR T__CLASS operator_class_name operator_class_head T__AS operator_class_item_list ;
operator_class_head { NODE(create_operator_class_statement); }
    : T__DEFAULT? T__FOR T__TYPE data_type T__USING access_method_name (T__FAMILY operator_family_name)? ;
%list operator_class_item_list: operator_class_item %short %separator T__COMMA ;
operator_class_item { NODE; }
    : T__OPERATOR T__INTEGER_NUMBER (any_operator | operator_signature) operator_class_purpose?
    | T__FUNCTION T__INTEGER_NUMBER (T__LPAREN data_type_list T__RPAREN)? routine_signature
    | T__STORAGE data_type ;
operator_class_purpose { NODE; }
    : T__FOR T__SEARCH
    | T__FOR T__ORDER T__BY operator_family_name
    | T__RECHECK ;
%list data_type_list: data_type %short %separator T__COMMA ;

create_operator_family_statement { NODE; }
    : T__CREATE T__OPERATOR T__FAMILY operator_family_name T__USING access_method_name ;

create_cast_statement { NODE; }
    : T__CREATE T__CAST T__LPAREN data_type T__AS data_type T__RPAREN cast_method cast_context? ;
cast_method { NODE; }
    : T__WITH T__FUNCTION routine_signature
    | T__WITHOUT T__FUNCTION
    | T__WITH T__INOUT ;
cast_context { NODE; }: T__AS T__IMPLICIT | T__AS T__ASSIGNMENT ;

create_transform_statement { NODE; }: T__CREATE (T__OR T__REPLACE)? transform_definition ;
transform_definition { NODE(create_transform_statement); }
    : T__TRANSFORM T__FOR data_type T__LANGUAGE language_name T__LPAREN transform_function_list T__RPAREN ;
%list transform_function_list: transform_function %short %separator T__COMMA ;
transform_function { NODE; }: (T__FROM | T__TO) T__SQL T__WITH T__FUNCTION routine_signature ;

create_conversion_statement { NODE; }
    : T__CREATE T__DEFAULT? T__CONVERSION conversion_name T__FOR string_literal T__TO string_literal T__FROM
          handler_name ;

create_access_method_statement { NODE; }
    : T__CREATE T__ACCESS T__METHOD access_method_name T__TYPE (T__INDEX | T__TABLE) T__HANDLER handler_name ;
