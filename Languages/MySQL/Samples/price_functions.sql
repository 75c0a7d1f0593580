-- Functions, their alterations, and those of libraries.
CREATE DATABASE prices;
USE prices;
CREATE FUNCTION vat(p_net DECIMAL(10, 2)) RETURNS DECIMAL(10, 2) DETERMINISTIC NO SQL RETURN p_net * 1.2;
CREATE FUNCTION hello(p_name CHAR(20)) RETURNS CHAR(50) CHARACTER SET utf8mb4 COLLATE utf8mb4_bin DETERMINISTIC
    RETURN CONCAT('Hello, ', p_name, '!');

DELIMITER ;;
CREATE DEFINER=`root`@`localhost` FUNCTION `discount`(`p_total` DECIMAL(10,2), `p_kind` ENUM('new','old','vip')) RETURNS double
    READS SQL DATA
    SQL SECURITY INVOKER
    COMMENT 'part of the total, 0 to 1'
BEGIN
  DECLARE rate DOUBLE DEFAULT 0.0;
  CASE p_kind
    WHEN 'new' THEN SET rate = 0.05;
    WHEN 'vip' THEN
      IF p_total > 1000 THEN SET rate = 0.2; ELSE SET rate = 0.1; END IF;
    ELSE
      SET rate = CASE WHEN p_total > 500 THEN 0.02 ELSE 0 END;
  END CASE;
  RETURN rate;
END ;;

CREATE FUNCTION IF NOT EXISTS words_of(p_text TEXT) RETURNS INT UNSIGNED DETERMINISTIC
BEGIN
  DECLARE n, i INT UNSIGNED DEFAULT 0;
  DECLARE inside BOOLEAN DEFAULT FALSE;
  scan: REPEAT
    SET i = i + 1;
    IF SUBSTRING(p_text, i, 1) REGEXP '[a-z]' THEN
      IF NOT inside THEN SET n = n + 1, inside = TRUE; END IF;
    ELSE
      SET inside = FALSE;
    END IF;
  UNTIL i >= CHAR_LENGTH(p_text) END REPEAT scan;
  RETURN n;
END;;

CREATE PROCEDURE primes(IN p_max INT)
BEGIN
  DECLARE candidate INT DEFAULT 2;
  outer_loop: WHILE candidate <= p_max DO
    BEGIN
      DECLARE divisor INT DEFAULT 2;
      WHILE divisor * divisor <= candidate DO
        IF candidate MOD divisor = 0 THEN
          SET candidate = candidate + 1;
          ITERATE outer_loop;
        END IF;
        SET divisor = divisor + 1;
      END WHILE;
    END;
    SELECT candidate;
    SET candidate = candidate + 1;
  END WHILE outer_loop;
END;;
DELIMITER ;

ALTER FUNCTION discount SQL SECURITY DEFINER COMMENT 'of the total';
ALTER PROCEDURE primes NO SQL;
SELECT vat(10), hello('you'), discount(1200, 'vip'), words_of('three small words');
CALL primes(10);
-- MySQL only
CREATE FUNCTION metaphon RETURNS STRING SONAME 'udf_example.so';
-- MySQL only
CREATE AGGREGATE FUNCTION avgcost RETURNS REAL SONAME 'udf_example.so';
DROP FUNCTION IF EXISTS vat;
