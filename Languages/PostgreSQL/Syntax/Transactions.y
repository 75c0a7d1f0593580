/* What PostgreSQL adds to transactions. */

transaction_statement { NODE; }
    : T__ABORT transaction_words?
    | T__RELEASE savepoint_name
    | T__PREPARE T__TRANSACTION string_literal
    | (T__COMMIT | T__ROLLBACK) T__PREPARED string_literal ;
begin_end_statement { NODE(transaction_statement); }
    : T__BEGIN transaction_word? transaction_mode_list?
    | T__END transaction_words? ;
transaction_mode { NODE; }: T__NOT? T__DEFERRABLE ;
