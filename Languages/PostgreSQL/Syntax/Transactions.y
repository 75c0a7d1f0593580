/* Transactions. */

transaction_statement { NODE; }
    : (T__COMMIT | T__ROLLBACK) transaction_words?
    | T__ABORT transaction_words?
    | T__START T__TRANSACTION transaction_mode_list?
    | T__SAVEPOINT savepoint_name
    | T__RELEASE T__SAVEPOINT savepoint_name
    | T__RELEASE savepoint_name
    | T__ROLLBACK transaction_word? T__TO T__SAVEPOINT? savepoint_name
    | T__PREPARE T__TRANSACTION string_literal
    | (T__COMMIT | T__ROLLBACK) T__PREPARED string_literal ;
begin_end_statement { NODE(transaction_statement); }
    : T__BEGIN transaction_word? transaction_mode_list?
    | T__END transaction_words? ;
transaction_word: T__WORK | T__TRANSACTION ;
%parts transaction_words: transaction_word transaction_chain %node transaction_statement ;
transaction_chain { NODE; }: T__AND T__NO? T__CHAIN ;
transaction_mode_list { NODE; }: (transaction_mode_list T__COMMA?)? transaction_mode ;
transaction_mode { NODE; }
    : T__ISOLATION T__LEVEL isolation_level
    | T__READ T__ONLY
    | T__READ T__WRITE
    | T__NOT? T__DEFERRABLE ;
isolation_level { NODE; }
    : T__READ T__UNCOMMITTED
    | T__READ T__COMMITTED
    | T__REPEATABLE T__READ
    | T__SERIALIZABLE ;
