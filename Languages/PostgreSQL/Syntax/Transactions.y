/* Transactions. */

transaction_statement
    : T__ABORT
    | T__ABORT transaction_words                                                { NODE; }
    | T__START T__TRANSACTION                                                   { NODE; }
    | T__START T__TRANSACTION transaction_modes                                 { NODE; }
    | T__COMMIT
    | T__COMMIT transaction_words                                               { NODE; }
    | T__ROLLBACK
    | T__ROLLBACK transaction_words                                             { NODE; }
    | T__SAVEPOINT column_name                                                  { NODE; }
    | T__RELEASE column_name                                                    { NODE; }
    | T__RELEASE T__SAVEPOINT column_name                                       { NODE; }
    | T__ROLLBACK T__TO column_name                                             { NODE; }
    | T__ROLLBACK T__TO T__SAVEPOINT column_name                                { NODE; }
    | T__ROLLBACK transaction_word T__TO column_name                            { NODE; }
    | T__ROLLBACK transaction_word T__TO T__SAVEPOINT column_name               { NODE; }
    | T__PREPARE T__TRANSACTION string_literal                                  { NODE; }
    | T__COMMIT T__PREPARED string_literal                                      { NODE; }
    | T__ROLLBACK T__PREPARED string_literal                                    { NODE; }
    ;
begin_end_statement
    : T__BEGIN                                                                  { NODE(transaction_statement); }
    | T__BEGIN transaction_word                                                 { NODE(transaction_statement); }
    | T__BEGIN transaction_modes                                                { NODE(transaction_statement); }
    | T__BEGIN transaction_word transaction_modes                               { NODE(transaction_statement); }
    | T__END                                                                    { NODE(transaction_statement); }
    | T__END transaction_words                                                  { NODE(transaction_statement); }
    ;
transaction_word
    : T__WORK
    | T__TRANSACTION
    ;
transaction_words
    : transaction_word
    | transaction_chain
    | transaction_word transaction_chain                                        { NODE; }
    ;
transaction_chain
    : T__AND T__CHAIN                                                           { NODE; }
    | T__AND T__NO T__CHAIN                                                     { NODE; }
    ;
transaction_modes
    : transaction_mode
    | transaction_modes transaction_mode                                        { NODE; }
    | transaction_modes T__COMMA transaction_mode                               { NODE; }
    ;
transaction_mode
    : T__ISOLATION T__LEVEL isolation_level                                     { NODE; }
    | T__READ T__ONLY                                                           { NODE; }
    | T__READ T__WRITE                                                          { NODE; }
    | T__DEFERRABLE
    | T__NOT T__DEFERRABLE                                                      { NODE; }
    ;
isolation_level
    : T__READ T__UNCOMMITTED                                                    { NODE; }
    | T__READ T__COMMITTED                                                      { NODE; }
    | T__REPEATABLE T__READ                                                     { NODE; }
    | T__SERIALIZABLE
    ;
