%define lr.default-reduction consistent
%define api.value.type {int}

%keywords "PostgreSQL.words"
%token T__NOT_LA T__NULLS_LA T__WITH_LA T__WITH_UNIQUE_LA T__WITHOUT_LA
%token T__IDENTIFIER T__QUOTED_IDENTIFIER T__UNICODE_IDENTIFIER
%token T__STRING T__ESCAPE_STRING T__NATIONAL_STRING T__UNICODE_STRING T__BIT_STRING T__HEX_STRING
%token T__DOLLAR_QUOTE_BEGIN T__DOLLAR_QUOTED_TEXT T__DOLLAR_QUOTE_END T__INTEGER_NUMBER
%token T__DECIMAL_NUMBER T__REAL_NUMBER T__BAD_NUMBER T__PARAMETER_NUMBER T__TYPECAST T__COLON_EQUAL
%token T__ARROW T__DOT_DOT T__LESS_EQUAL T__GREATER_EQUAL T__NOT_EQUAL T__PLUS T__MINUS T__ASTERISK
%token T__SLASH T__PERCENT T__CARET T__LESS T__GREATER T__EQUAL T__OPERATOR_SYMBOL T__LPAREN
%token T__RPAREN T__LBRACKET T__RBRACKET T__COMMA T__SEMICOLON T__DOT T__COLON T__CLIENT_VARIABLE
%token T__CLIENT_STRING T__CLIENT_IDENTIFIER T__CLIENT_SEND T__CLIENT_COMMAND
%token T__COPIED_ROW T__END_OF_DATA T__BAD_CHARACTER
/* Of the bodies of routines. */
%token T__BLOCK_QUOTE_BEGIN T__SQL_QUOTE_BEGIN T__BODY_QUOTE_END T__LABEL_BEGIN T__LABEL_END T__HASH
%token T__BEGIN_LA T__CURSOR_LA T__END_LA T__IN_LA T__INTO_LA T__INTO_VARIABLES T__RETURN_LA
%token T__ALIAS T__ASSERT T__CONSTANT T__DEBUG T__DIAGNOSTICS T__ELSIF T__EXCEPTION T__EXIT T__FOREACH T__GET T__INFO
%token T__LOG T__LOOP T__NOTICE T__OPEN T__PERFORM T__QUERY T__RAISE T__REVERSE T__ROWTYPE T__SLICE T__SQLSTATE
%token T__STACKED T__WARNING T__WHILE

/* Binding power, weakest first. */
%precedence LOWEST
/* After IS JSON these say more of it rather than naming the result; after NESTED comes a path rather than a type. */
%precedence T__VALUE T__OBJECT T__SCALAR T__KEYS
%precedence T__NESTED
%precedence T__PATH
/* An error in the body of a routine is skipped to the next delimiter; only where no more comes it ends the body. */
%precedence T__SEMICOLON T__CLIENT_SEND T__BODY_QUOTE_END
%precedence T__SET
/* In GROUP BY these begin their own clause rather than a function call; after the bracket of a window they begin
   its frame rather than naming another window. */
%precedence T__CUBE T__ROLLUP
%right T__RANGE T__ROWS T__GROUPS T__PARTITION
%left T__UNION T__EXCEPT
%left T__INTERSECT
%left T__OR
%left T__AND
%right T__NOT
%left T__IS T__ISNULL T__NOTNULL
/* What IS JSON says of the keys belongs to it. */
%precedence T__WITH_UNIQUE_LA T__WITHOUT_LA
%left T__LESS T__GREATER T__EQUAL T__LESS_EQUAL T__GREATER_EQUAL T__NOT_EQUAL
%left T__BETWEEN T__IN T__LIKE T__ILIKE T__SIMILAR T__NOT_LA
%precedence T__ESCAPE
/* In a frame, UNBOUNDED and BETWEEN are the keywords and not names of columns. */
%precedence T__UNBOUNDED
%precedence T__PRECEDING T__FOLLOWING
%left T__OPERATOR_SYMBOL T__OPERATOR
%left T__PLUS T__MINUS
%left T__ASTERISK T__SLASH T__PERCENT
%left T__CARET
%left T__AT
%left T__COLLATE
%right UMINUS
%left T__LBRACKET T__RBRACKET
%left T__LPAREN T__RPAREN
%left T__TYPECAST
%left T__DOT
%left T__JOIN T__CROSS T__LEFT T__FULL T__RIGHT T__INNER T__NATURAL

%warnings 30
%start SQL_ROOT
%%

/* The rows that follow a COPY ... FROM STDIN stand after its line, as the client reads them. */
script_part
    : T__CLIENT_COMMAND  { NODE(client_command); }
    | T__COPIED_ROW  { NODE(copied_row); }
    | T__END_OF_DATA  { NODE(end_of_data); } ;

last_statement { NODE(pl_sql_statement); }: open_routine | error open_body ;

delimited { NODE(delimited_pl_sql_statement); }
    : error quoted_body pl_sql_statement_delimiter
    | error quoted_body routine_item_list pl_sql_statement_delimiter ;

pl_sql_statement_delimiter { NODE; }: T__CLIENT_SEND ;
body_delimiter: pl_sql_statement_delimiter ;

/* BEGIN and END as statements stand at the top alone: in the body of a routine END closes the body. */
pl_sql_statement { NODE; }: begin_end_statement ;

%include "../Common/SQL/Script.y"
%include "../Common/SQL/Names.y"
%include "../Common/SQL/Literals.y"
%include "../Common/SQL/Types.y"
%include "../Common/SQL/Intervals.y"
%include "../Common/SQL/Expressions.y"
%include "../Common/SQL/TimeZones.y"
%include "../Common/SQL/FunctionCalls.y"
%include "../Common/SQL/Aggregates.y"
%include "../Common/SQL/Windows.y"
%include "../Common/SQL/Queries.y"
%include "../Common/SQL/TableQueries.y"
%include "../Common/SQL/GroupingSets.y"
%include "../Common/SQL/NullsOrder.y"
%include "../Common/SQL/Fetch.y"
%include "../Common/SQL/Locking.y"
%include "../Common/SQL/CycleSearch.y"
%include "../Common/SQL/From.y"
%include "../Common/SQL/Lateral.y"
%include "../Common/SQL/JsonTables.y"
%include "../Common/SQL/TableSample.y"
%include "../Common/SQL/DataChanges.y"
%include "../Common/SQL/Conflicts.y"
%include "../Common/SQL/Overriding.y"
%include "../Common/SQL/Returning.y"
%include "../Common/SQL/Merge.y"
%include "../Common/SQL/Truncate.y"
%include "../Common/SQL/Tables.y"
%include "../Common/SQL/ConstraintStates.y"
%include "../Common/SQL/Deferral.y"
%include "../Common/SQL/Enforcement.y"
%include "../Common/SQL/Periods.y"
%include "../Common/SQL/Indexes.y"
%include "../Common/SQL/Views.y"
%include "../Common/SQL/Sequences.y"
%include "../Common/SQL/Schemas.y"
%include "../Common/SQL/Databases.y"
%include "../Common/SQL/Alter.y"
%include "../Common/SQL/Drop.y"
%include "../Common/SQL/Comments.y"
%include "../Common/SQL/Routines.y"
%include "../Common/SQL/Triggers.y"
%include "../Common/SQL/ForeignServers.y"
%include "../Common/SQL/Rights.y"
%include "../Common/SQL/Transactions.y"
%include "../Common/SQL/Cursors.y"
%include "../Common/SQL/Prepared.y"
%include "../Common/SQL/StatementLists.y"
%include "../Common/SQL/PlBlocks.y"
%include "../Common/SQL/Diagnostics.y"
%include "Syntax/Statements.y"
%include "Syntax/Names.y"
%include "Syntax/Literals.y"
%include "Syntax/Types.y"
%include "Syntax/Expressions.y"
%include "Syntax/FunctionCalls.y"
%include "Syntax/Json.y"
%include "Syntax/Queries.y"
%include "Syntax/From.y"
%include "Syntax/DataChanges.y"
%include "Syntax/Tables.y"
%include "Syntax/Indexes.y"
%include "Syntax/Views.y"
%include "Syntax/Sequences.y"
%include "Syntax/Options.y"
%include "Syntax/Routines.y"
%include "Syntax/PlBodies.y"
%include "Syntax/PlDeclarations.y"
%include "Syntax/PlStatements.y"
%include "Syntax/PlLoops.y"
%include "Syntax/PlCursors.y"
%include "Syntax/PlDiagnostics.y"
%include "Syntax/Triggers.y"
%include "Syntax/Schemas.y"
%include "Syntax/Replication.y"
%include "Syntax/ForeignData.y"
%include "Syntax/TypesAndOperators.y"
%include "Syntax/Alter.y"
%include "Syntax/Drop.y"
%include "Syntax/Comments.y"
%include "Syntax/Rights.y"
%include "Syntax/Transactions.y"
%include "Syntax/Settings.y"
%include "Syntax/Copy.y"
%include "Syntax/Prepared.y"
%include "Syntax/Cursors.y"
%include "Syntax/Upkeep.y"
%include "Syntax/Session.y"
%include "Syntax/KeywordClasses.y"
%%
