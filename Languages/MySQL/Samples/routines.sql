-- Routines, triggers and events, as the client takes them.
USE bikes
DELIMITER $$

CREATE FUNCTION fee_of(p_minutes INT UNSIGNED, p_model VARCHAR(10)) RETURNS DECIMAL(6, 2)
    DETERMINISTIC
    COMMENT 'what a ride costs'
BEGIN
    DECLARE v_rate DECIMAL(6, 2) DEFAULT 0.10;
    IF p_model = 'cargo' THEN
        SET v_rate = 0.25;
    ELSEIF p_model IS NULL THEN
        RETURN NULL;
    ELSE
        SET v_rate = CASE WHEN p_minutes > 600 THEN 0.05 ELSE v_rate END;
    END IF;
    RETURN p_minutes * v_rate;
END$$

CREATE DEFINER = CURRENT_USER PROCEDURE close_rides(IN p_before DATETIME, INOUT p_count INT, OUT p_text TEXT)
    MODIFIES SQL DATA
    SQL SECURITY INVOKER
main: BEGIN
    DECLARE v_done BOOL DEFAULT FALSE;
    DECLARE v_ride BIGINT UNSIGNED;
    DECLARE too_many CONDITION FOR SQLSTATE '45000';
    DECLARE c_open CURSOR FOR SELECT ride_id FROM ride WHERE ended IS NULL AND began < p_before;
    DECLARE CONTINUE HANDLER FOR NOT FOUND SET v_done = TRUE;
    DECLARE EXIT HANDLER FOR SQLEXCEPTION, 1062
    BEGIN
        GET DIAGNOSTICS CONDITION 1 p_text = MESSAGE_TEXT;
        ROLLBACK;
        RESIGNAL;
    END;

    IF p_before IS NULL THEN LEAVE main; END IF;
    START TRANSACTION;
    OPEN c_open;
    rides: LOOP
        FETCH c_open INTO v_ride;
        IF v_done THEN
            LEAVE rides;
        END IF;
        UPDATE ride SET ended = p_before, fee = fee_of(TIMESTAMPDIFF(MINUTE, began, p_before), 'town') WHERE ride_id = v_ride;
        SET p_count = p_count + 1;
        CASE
            WHEN p_count > 1000 THEN SIGNAL too_many SET MESSAGE_TEXT = 'too many rides; look first';
            WHEN p_count % 100 = 0 THEN ITERATE rides;
            ELSE BEGIN END;
        END CASE;
    END LOOP rides;
    CLOSE c_open;
    WHILE p_count > 10 DO SET p_count = p_count - 10; END WHILE;
    REPEAT SET p_count = p_count + 1; UNTIL p_count >= 10 END REPEAT;
    COMMIT;
END main$$

CREATE TRIGGER ride_began BEFORE INSERT ON ride FOR EACH ROW
    SET NEW.began = COALESCE(NEW.began, NOW())$$

CREATE TRIGGER ride_ended AFTER UPDATE ON ride FOR EACH ROW
BEGIN
    IF NOT (OLD.to_station <=> NEW.to_station) THEN
        UPDATE bicycle SET station_id = NEW.to_station WHERE bicycle_id = NEW.bicycle_id;
    END IF;
END$$

CREATE EVENT nightly ON SCHEDULE EVERY 1 DAY STARTS '2024-01-01 03:00:00' ON COMPLETION PRESERVE DO
BEGIN
    SET @n = 0;
    CALL close_rides(NOW() - INTERVAL 1 DAY, @n, @t);
END; $$
DELIMITER ;

SET @n = 0;
CALL close_rides('2024-01-01', @n, @t);
PREPARE s FROM 'SELECT ? + ?'; SET @a = 1; EXECUTE s USING @a, @a; DEALLOCATE PREPARE s;
DROP TRIGGER IF EXISTS ride_began; DROP EVENT nightly; DROP FUNCTION fee_of;
