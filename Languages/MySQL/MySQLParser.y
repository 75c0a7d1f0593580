%define lr.default-reduction consistent
%define api.value.type {int}

%keywords "MySQL.words"
%token T__BEGIN_LA T__DATE_LA T__END_LA T__FOR_LA T__MEMBER_LA T__NOT_LA T__ON_LA T__SOUNDS_LA T__TIME_LA T__TIMESTAMP_LA T__WITH_LA
%token T__IDENTIFIER T__QUOTED_IDENTIFIER
%token T__STRING T__NATIONAL_STRING T__HEX_STRING T__BIT_STRING T__BAD_STRING T__INTRODUCER
%token T__INTEGER_NUMBER T__DECIMAL_NUMBER T__REAL_NUMBER T__HEX_NUMBER T__BIT_NUMBER
%token T__PLACEHOLDER T__USER_VARIABLE T__SYSTEM_VARIABLE T__HINT
%token T__COLON_EQUAL T__JSON_ARROW T__JSON_TEXT_ARROW T__DOT_DOT T__NULL_SAFE_EQUAL T__LESS_EQUAL T__GREATER_EQUAL T__NOT_EQUAL
%token T__SHIFT_LEFT T__SHIFT_RIGHT T__BAR_BAR T__AMPERSAND_AMPERSAND T__BAR T__AMPERSAND T__CARET T__TILDE T__EXCLAMATION
%token T__PLUS T__MINUS T__ASTERISK T__SLASH T__PERCENT T__LESS T__GREATER T__EQUAL
%token T__LPAREN T__RPAREN T__LBRACE T__RBRACE T__COMMA T__DOT T__COLON T__AT_SIGN T__SEMICOLON T__STATEMENT_DELIMITER
%token T__CLIENT_SEND T__CLIENT_COMMAND T__DELIMITER T__DELIMITER_TEXT T__BAD_CHARACTER

/* Binding power, weakest first. */
%precedence LOWEST
/* KEY belongs to a UNIQUE before it. */
%precedence T__KEY
/* SET PASSWORD gives no value to a variable of that name. */
%precedence T__PASSWORD
/* After a plug-in AS tells its text, not in whose name a right is given. */
%precedence T__AS
/* Strings next to each other are one. */
%right T__STRING T__NATIONAL_STRING
%precedence T__VALUE
/* A semicolon right before the delimiter belongs to it. */
%precedence T__SEMICOLON
%precedence T__STATEMENT_DELIMITER T__CLIENT_SEND
%precedence T__SET
%precedence T__CUBE T__ROLLUP
%right T__RANGE T__ROWS T__GROUPS T__PARTITION
%left T__UNION T__EXCEPT
%left T__INTERSECT
%right T__COLON_EQUAL
%left T__OR T__BAR_BAR
%left T__XOR
%left T__AND T__AMPERSAND_AMPERSAND
%right T__NOT
%left T__OPERATOR_SYMBOL
%left T__EQUAL T__NULL_SAFE_EQUAL T__NOT_EQUAL T__LESS T__GREATER T__LESS_EQUAL T__GREATER_EQUAL T__IS
%left T__BETWEEN T__IN T__LIKE T__REGEXP T__RLIKE T__MEMBER_LA T__SOUNDS_LA T__NOT_LA
%precedence T__ESCAPE
%precedence T__UNBOUNDED
%precedence T__PRECEDING T__FOLLOWING
%left T__BAR
%left T__AMPERSAND
%left T__SHIFT_LEFT T__SHIFT_RIGHT
%left T__PLUS T__MINUS
%left T__ASTERISK T__SLASH T__PERCENT T__DIV T__MOD
%left T__CARET
%right UMINUS T__TILDE
%right T__EXCLAMATION
%left T__BINARY T__COLLATE
%precedence T__INTERVAL
%left T__LPAREN T__RPAREN
%left T__DOT
/* A join may go without its condition. */
%precedence CONDITIONLESS
%left T__JOIN T__CROSS T__LEFT T__RIGHT T__INNER T__NATURAL T__STRAIGHT_JOIN
%left T__ON T__USING

%warnings 15
%start SQL_ROOT
%%

%include "../Common/SQL/Script.y"
%include "../Common/SQL/Names.y"
%include "../Common/SQL/Literals.y"
%include "../Common/SQL/Types.y"
%include "../Common/SQL/Expressions.y"
%include "../Common/SQL/FunctionCalls.y"
%include "../Common/SQL/Windows.y"
%include "../Common/SQL/Aggregates.y"
%include "../Common/SQL/Queries.y"
%include "../Common/SQL/TableQueries.y"
%include "../Common/SQL/Fetch.y"
%include "../Common/SQL/Locking.y"
%include "../Common/SQL/From.y"
%include "../Common/SQL/Lateral.y"
%include "../Common/SQL/JsonTables.y"
%include "../Common/SQL/DataChanges.y"
%include "../Common/SQL/Conflicts.y"
%include "../Common/SQL/Truncate.y"
%include "../Common/SQL/Transactions.y"
%include "../Common/SQL/Prepared.y"
%include "Syntax/Client.y"
%include "Syntax/Names.y"
%include "Syntax/Literals.y"
%include "Syntax/Types.y"
%include "Syntax/Expressions.y"
%include "Syntax/FunctionCalls.y"
%include "Syntax/Queries.y"
%include "Syntax/From.y"

/* Rows. */
%include "Syntax/DataChanges.y"
%include "Syntax/Files.y"
%include "Syntax/Transactions.y"
%include "Syntax/Sessions.y"

/* Tables. */
%include "../Common/SQL/Tables.y"
%include "../Common/SQL/ConstraintStates.y"
%include "../Common/SQL/Enforcement.y"
%include "../Common/SQL/Periods.y"
%include "../Common/SQL/Indexes.y"
%include "../Common/SQL/Alter.y"
%include "../Common/SQL/Drop.y"
%include "../Common/SQL/Sequences.y"
%include "Syntax/Tables.y"
%include "Syntax/TableOptions.y"
%include "Syntax/Partitions.y"
%include "Syntax/Indexes.y"
%include "Syntax/AlterTable.y"
%include "Syntax/TableUpkeep.y"
%include "Syntax/Sequences.y"

/* What holds code. */
%include "../Common/SQL/Views.y"
%include "../Common/SQL/Routines.y"
%include "../Common/SQL/Triggers.y"
%include "../Common/SQL/Databases.y"
%include "../Common/SQL/Cursors.y"
%include "../Common/SQL/StatementLists.y"
%include "../Common/SQL/PsmBlocks.y"
%include "../Common/SQL/Diagnostics.y"
%include "Syntax/Views.y"
%include "Syntax/Routines.y"
%include "Syntax/Triggers.y"
%include "Syntax/Events.y"
%include "Syntax/Blocks.y"
%include "Syntax/BodyStatements.y"
%include "Syntax/Databases.y"

/* The server. */
%include "../Common/SQL/Rights.y"
%include "../Common/SQL/ForeignServers.y"
%include "Syntax/Users.y"
%include "Syntax/Rights.y"
%include "Syntax/Settings.y"
%include "Syntax/Show.y"
%include "Syntax/Replication.y"
%include "Syntax/Administration.y"
%%
