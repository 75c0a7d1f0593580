/* Transactions, without BEGIN: that opens a block in other places, and the dialect tells which. */

transaction_statement { NODE; }
    : (T__COMMIT | T__ROLLBACK) transaction_words?
    | T__START T__TRANSACTION transaction_mode_list?
    | T__SAVEPOINT savepoint_name
    | T__RELEASE T__SAVEPOINT savepoint_name
    | T__ROLLBACK transaction_word? T__TO T__SAVEPOINT? savepoint_name ;
transaction_word: T__WORK | T__TRANSACTION ;
%parts transaction_words: transaction_word transaction_chain %node transaction_statement ;
transaction_chain { NODE; }: T__AND T__NO? T__CHAIN ;
transaction_mode_list { NODE; }: (transaction_mode_list T__COMMA?)? transaction_mode ;
transaction_mode { NODE; }
    : T__ISOLATION T__LEVEL isolation_level
    | T__READ T__ONLY
    | T__READ T__WRITE ;
isolation_level { NODE; }
    : T__READ T__UNCOMMITTED
    | T__READ T__COMMITTED
    | T__REPEATABLE T__READ
    | T__SERIALIZABLE ;
