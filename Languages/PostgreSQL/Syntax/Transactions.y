/* Transactions. */

transaction_statement
    : T__ABORT                                                                  { NODE; }
    | T__ABORT transaction_words                                                { NODE; }
    | T__START T__TRANSACTION                                                   { NODE; }
    | T__START T__TRANSACTION transaction_mode_list                             { NODE; }
    | T__COMMIT                                                                 { NODE; }
    | T__COMMIT transaction_words                                               { NODE; }
    | T__ROLLBACK                                                               { NODE; }
    | T__ROLLBACK transaction_words                                             { NODE; }
    | T__SAVEPOINT savepoint_name                                               { NODE; }
    | T__RELEASE savepoint_name                                                 { NODE; }
    | T__RELEASE T__SAVEPOINT savepoint_name                                    { NODE; }
    | T__ROLLBACK T__TO savepoint_name                                          { NODE; }
    | T__ROLLBACK T__TO T__SAVEPOINT savepoint_name                             { NODE; }
    | T__ROLLBACK transaction_word T__TO savepoint_name                         { NODE; }
    | T__ROLLBACK transaction_word T__TO T__SAVEPOINT savepoint_name            { NODE; }
    | T__PREPARE T__TRANSACTION string_literal                                  { NODE; }
    | T__COMMIT T__PREPARED string_literal                                      { NODE; }
    | T__ROLLBACK T__PREPARED string_literal                                    { NODE; }
    ;
begin_end_statement
    : T__BEGIN
      { NODE(transaction_statement); }
    | T__BEGIN transaction_word
      { NODE(transaction_statement); }
    | T__BEGIN transaction_mode_list
      { NODE(transaction_statement); }
    | T__BEGIN transaction_word transaction_mode_list
      { NODE(transaction_statement); }
    | T__END
      { NODE(transaction_statement); }
    | T__END transaction_words
      { NODE(transaction_statement); }
    ;
transaction_word
    : T__WORK
    | T__TRANSACTION
    ;
transaction_words
    : transaction_word
    | transaction_chain
    | transaction_word transaction_chain
      { NODE(transaction_statement); }
    ;
transaction_chain
    : T__AND T__CHAIN                                                           { NODE; }
    | T__AND T__NO T__CHAIN                                                     { NODE; }
    ;
transaction_mode_list
    : transaction_mode                                                          { NODE; }
    | transaction_mode_list transaction_mode                                    { NODE; }
    | transaction_mode_list T__COMMA transaction_mode                           { NODE; }
    ;
transaction_mode
    : T__ISOLATION T__LEVEL isolation_level                                     { NODE; }
    | T__READ T__ONLY                                                           { NODE; }
    | T__READ T__WRITE                                                          { NODE; }
    | T__DEFERRABLE                                                             { NODE; }
    | T__NOT T__DEFERRABLE                                                      { NODE; }
    ;
isolation_level
    : T__READ T__UNCOMMITTED                                                    { NODE; }
    | T__READ T__COMMITTED                                                      { NODE; }
    | T__REPEATABLE T__READ                                                     { NODE; }
    | T__SERIALIZABLE                                                           { NODE; }
    ;
