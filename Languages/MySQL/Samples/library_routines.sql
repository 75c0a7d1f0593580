-- A lending library: procedures with cursors, handlers and loops.
CREATE DATABASE IF NOT EXISTS library CHARACTER SET utf8mb4 COLLATE utf8mb4_general_ci;
USE library;

CREATE TABLE member (member_id INT PRIMARY KEY, name VARCHAR(60) NOT NULL, blocked BOOL DEFAULT FALSE);
CREATE TABLE loan (loan_id INT AUTO_INCREMENT PRIMARY KEY, member_id INT, due DATE NOT NULL, returned DATE);
CREATE TABLE fine (loan_id INT PRIMARY KEY, amount DECIMAL(7, 2) NOT NULL);

DELIMITER $$

CREATE PROCEDURE fine_late_members(IN p_day DATE, IN p_rate DECIMAL(5, 2), OUT p_count INT)
    MODIFIES SQL DATA
    COMMENT 'writes a fine for each loan that is late'
BEGIN
    DECLARE v_loan INT;
    DECLARE v_late INT DEFAULT 0;
    DECLARE v_done TINYINT(1) DEFAULT 0;
    DECLARE late CURSOR FOR
        SELECT loan_id, DATEDIFF(p_day, due) FROM loan WHERE returned IS NULL AND due < p_day ORDER BY due;
    DECLARE CONTINUE HANDLER FOR NOT FOUND SET v_done = 1;

    SET p_count = 0;
    OPEN late;
    read_loop: LOOP
        FETCH late INTO v_loan, v_late;
        IF v_done THEN
            LEAVE read_loop;
        END IF;
        IF v_late <= 3 THEN
            ITERATE read_loop;
        END IF;
        INSERT INTO fine (loan_id, amount) VALUES (v_loan, v_late * p_rate)
            ON DUPLICATE KEY UPDATE amount = VALUES(amount);
        SET p_count = p_count + 1;
    END LOOP read_loop;
    CLOSE late;
END$$

CREATE PROCEDURE block_members(p_limit DECIMAL(7, 2))
main: BEGIN
    DECLARE EXIT HANDLER FOR SQLEXCEPTION
    BEGIN
        ROLLBACK;
        RESIGNAL;
    END;
    IF p_limit <= 0 THEN LEAVE main; END IF;
    START TRANSACTION;
    UPDATE member m SET m.blocked = TRUE
        WHERE (SELECT SUM(f.amount) FROM fine f JOIN loan l USING (loan_id) WHERE l.member_id = m.member_id) > p_limit;
    COMMIT;
END main$$

DELIMITER ;

CALL fine_late_members(CURRENT_DATE, 0.20, @fined);
CALL block_members(25);
DROP PROCEDURE block_members;
