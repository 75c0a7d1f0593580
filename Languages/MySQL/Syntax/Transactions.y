/* Transactions, and locks of tables. */

statement: transaction_statement | begin_statement | set_transaction_statement | xa_statement | lock_statement | unlock_statement ;
%replace transaction_word: T__WORK ;
transaction_statement { NODE; }: (T__COMMIT | T__ROLLBACK) transaction_words? connection_release ;
connection_release { NODE(transaction_statement); }: T__NO? T__RELEASE ;
begin_statement { NODE(transaction_statement); }: T__BEGIN T__WORK? ;
transaction_mode { NODE; }: T__WITH T__CONSISTENT T__SNAPSHOT ;
set_transaction_statement { NODE(set_statement); }: T__SET (T__GLOBAL | T__SESSION | T__LOCAL)? T__TRANSACTION transaction_mode_list ;

xa_statement { NODE; }
    : T__XA xa_start xa_id (T__JOIN | T__RESUME)?
    | T__XA T__END xa_id (T__SUSPEND (T__FOR T__MIGRATE)?)?
    | T__XA (T__PREPARE | T__ROLLBACK) xa_id
    | T__XA T__COMMIT xa_id (T__ONE T__PHASE)?
    | T__XA T__RECOVER (T__CONVERT T__XID | T__FORMAT T__EQUAL string_literal)? ;
xa_start: T__START | T__BEGIN | T__BEGIN_LA ;
xa_id { NODE; }: file_text (T__COMMA file_text (T__COMMA T__INTEGER_NUMBER)?)? ;

lock_statement { NODE; }
    : T__LOCK (T__TABLES | T__TABLE) locked_table_list locking_wait?
    | T__LOCK T__INSTANCE T__FOR T__BACKUP ;
%list locked_table_list: locked_table %short %separator T__COMMA ;
locked_table { NODE; }: target_relation lock_mode ;
lock_mode { NODE; }: T__READ T__LOCAL? | T__LOW_PRIORITY? T__WRITE T__CONCURRENT? ;
unlock_statement { NODE; }: T__UNLOCK (T__TABLES | T__TABLE | T__INSTANCE) ;
