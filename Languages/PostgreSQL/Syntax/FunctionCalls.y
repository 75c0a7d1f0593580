/* Functions with words of PostgreSQL's own, those of XML among them. */

argument { PART(named_argument); }
    : parameter_name T__COLON_EQUAL expression
    | T__VARIADIC single_argument  { NODE(variadic_argument); } ;
single_argument { PART(named_argument); }: (parameter_name (T__ARROW | T__COLON_EQUAL))? expression ;

special_value { PART; }: T__CURRENT_ROLE | T__SYSTEM_USER | T__CURRENT_CATALOG | T__CURRENT_SCHEMA ;

special_function { NODE; }
    : T__COLLATION T__FOR T__LPAREN expression T__RPAREN
    | T__TREAT T__LPAREN expression T__AS data_type T__RPAREN  { NODE(cast_expression); }
    | T__NORMALIZE T__LPAREN expression (T__COMMA normal_form)? T__RPAREN
    | T__OVERLAY T__LPAREN expression T__PLACING expression T__FROM expression (T__FOR expression)? T__RPAREN
    | T__OVERLAY T__LPAREN argument_list? T__RPAREN
    | T__SUBSTRING T__LPAREN expression T__SIMILAR expression T__ESCAPE expression T__RPAREN
    | T__MERGE_ACTION T__LPAREN T__RPAREN
    | T__NULLIF T__LPAREN expression T__COMMA expression T__RPAREN
    | (T__COALESCE | T__GREATEST | T__LEAST | T__XMLCONCAT) T__LPAREN expression_list T__RPAREN
    | T__XMLELEMENT T__LPAREN T__NAME xml_name (T__COMMA xml_attributes)? T__RPAREN
    | T__XMLELEMENT T__LPAREN T__NAME xml_name T__COMMA (xml_attributes T__COMMA)? expression_list T__RPAREN
    | T__XMLEXISTS T__LPAREN primary xml_passing T__RPAREN
    | T__XMLFOREST T__LPAREN xml_attribute_list T__RPAREN
    | T__XMLPARSE T__LPAREN document_or_content expression whitespace_option? T__RPAREN
    | T__XMLPI T__LPAREN T__NAME xml_name (T__COMMA expression)? T__RPAREN
    | T__XMLROOT T__LPAREN expression T__COMMA xml_version xml_standalone? T__RPAREN
    | T__XMLSERIALIZE T__LPAREN document_or_content expression T__AS simple_type xml_indent? T__RPAREN ;

extract_field: plain_identifier | string_literal ;

xml_name { NODE; }: any_label ;
xml_attributes { NODE; }: T__XMLATTRIBUTES T__LPAREN xml_attribute_list T__RPAREN ;
%list xml_attribute_list: xml_attribute %short %separator T__COMMA ;
xml_attribute { NODE; }: expression (T__AS any_alias)? ;
document_or_content: T__DOCUMENT | T__CONTENT ;
whitespace_option { NODE; }: (T__PRESERVE | T__STRIP) T__WHITESPACE ;
xml_version { NODE; }: T__VERSION (expression | T__NO T__VALUE) ;
xml_standalone { NODE; }: T__COMMA T__STANDALONE T__YES | T__COMMA T__STANDALONE T__NO T__VALUE? ;
xml_indent { PART; }: T__NO? T__INDENT ;
xml_passing { NODE; }: T__PASSING xml_passing_mechanism? primary xml_passing_mechanism? ;
xml_passing_mechanism { NODE; }: T__BY T__REF | T__BY T__VALUE ;
