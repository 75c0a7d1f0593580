-- Errors: raised, caught, told of and passed on.
CREATE DATABASE errors_db;
USE errors_db;
CREATE TABLE account (account_id INT PRIMARY KEY, balance DECIMAL(12, 2) NOT NULL);
CREATE TABLE error_log (at_time DATETIME, code INT, state CHAR(5), message TEXT);

DELIMITER $$
CREATE PROCEDURE log_error(IN p_code INT, IN p_state CHAR(5), IN p_message TEXT)
    INSERT INTO error_log VALUES (NOW(), p_code, p_state, p_message)$$

CREATE PROCEDURE transfer(IN p_from INT, IN p_to INT, IN p_amount DECIMAL(12, 2))
BEGIN
    DECLARE too_little CONDITION FOR SQLSTATE '45001';
    DECLARE duplicate_key CONDITION FOR 1062;
    DECLARE v_code INT;
    DECLARE v_state CHAR(5);
    DECLARE v_message, v_table TEXT;
    DECLARE EXIT HANDLER FOR too_little SELECT 'too little money' AS result;
    DECLARE EXIT HANDLER FOR duplicate_key, SQLWARNING
    BEGIN
        GET DIAGNOSTICS @conditions = NUMBER, @row_count = ROW_COUNT;
        GET CURRENT DIAGNOSTICS CONDITION 1 v_code = MYSQL_ERRNO, v_state = RETURNED_SQLSTATE, v_message = MESSAGE_TEXT;
        ROLLBACK;
        CALL log_error(v_code, v_state, v_message);
        RESIGNAL SET MESSAGE_TEXT = 'transfer failed';
    END;
    DECLARE EXIT HANDLER FOR SQLSTATE VALUE '22003', SQLEXCEPTION
    BEGIN
        DECLARE v_n INT DEFAULT 1;
        GET DIAGNOSTICS CONDITION v_n v_table = TABLE_NAME, v_message = MESSAGE_TEXT;
        ROLLBACK;
        RESIGNAL;
    END;

    IF p_amount IS NULL OR p_amount <= 0 THEN
        SET v_message = CONCAT('an amount is more than nothing, not ', IFNULL(p_amount, 'NULL'));
        SIGNAL SQLSTATE VALUE '45000' SET MESSAGE_TEXT = v_message, MYSQL_ERRNO = 5000, CLASS_ORIGIN = 'bank';
    END IF;
    START TRANSACTION;
    IF (SELECT balance FROM account WHERE account_id = p_from FOR UPDATE) < p_amount THEN
        SIGNAL too_little;
    END IF;
    UPDATE account SET balance = balance + IF(account_id = p_from, -p_amount, p_amount) WHERE account_id IN (p_from, p_to);
    COMMIT;
END$$

-- MySQL only
CREATE PROCEDURE outer_error()
BEGIN
    DECLARE EXIT HANDLER FOR SQLEXCEPTION
    BEGIN
        GET STACKED DIAGNOSTICS CONDITION 1 @text = MESSAGE_TEXT;
        RESIGNAL SQLSTATE '45002' SET MESSAGE_TEXT = @text, CONSTRAINT_NAME = '', SCHEMA_NAME = 'errors_db';
    END;
    CALL transfer(1, 2, 0);
END$$
DELIMITER ;

INSERT INTO account VALUES (1, 100), (2, 50);
CALL transfer(1, 2, 30);
CALL transfer(1, 2, 300);
SELECT * FROM account;
