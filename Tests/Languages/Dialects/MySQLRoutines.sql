-- Routines, which each dialect writes in its own way.
DELIMITER $$
CREATE OR REPLACE FUNCTION shop.net(gross NUMERIC(9, 2), rate INTEGER) RETURNS NUMERIC(9, 2) DETERMINISTIC
BEGIN
    DECLARE result NUMERIC(9, 2) DEFAULT 0;
    DECLARE steps INT;
    IF rate > 0 THEN
        SET result = gross / rate;
    ELSEIF rate IS NULL THEN
        RETURN gross;
    ELSE
        RETURN 0;
    END IF;
    WHILE result > 100 DO
        UPDATE shop.orders SET price = price - 1 WHERE id = rate;
    END WHILE;
    RETURN result;
END $$
CREATE PROCEDURE shop.close_day(IN closing DATE, INOUT done INT, OUT told VARCHAR(10))
BEGIN
    DECLARE found_id BIGINT;
    DECLARE open_order CURSOR FOR SELECT id FROM shop.orders WHERE price IS NULL;
    OPEN open_order;
    `each`: LOOP
        FETCH open_order INTO found_id;
    END LOOP;
    CLOSE open_order;
    CASE WHEN done > 1 THEN
        DELETE FROM shop.orders WHERE id = found_id;
    ELSE
        INSERT INTO shop.log (id) VALUES (found_id);
    END CASE;
    CALL shop.tell(found_id, closing);
    SELECT count(*) INTO done FROM shop.orders;
    COMMIT;
END $$
CREATE TRIGGER order_changed BEFORE UPDATE ON shop.orders FOR EACH ROW SET NEW.changed = shop.stamp() $$
DELIMITER ;
