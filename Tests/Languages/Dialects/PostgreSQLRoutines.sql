-- Routines, which each dialect writes in its own way.
CREATE OR REPLACE FUNCTION shop.net(gross NUMERIC(9, 2), rate INTEGER) RETURNS NUMERIC(9, 2) IMMUTABLE LANGUAGE plpgsql AS $$
DECLARE
    result NUMERIC(9, 2) DEFAULT 0;
    steps INT;
BEGIN
    IF rate > 0 THEN
        result := gross / rate;
    ELSIF rate IS NULL THEN
        RETURN gross;
    ELSE
        RETURN 0;
    END IF;
    WHILE result > 100 LOOP
        UPDATE shop.orders SET price = price - 1 WHERE id = rate;
    END LOOP;
    RETURN result;
END $$;
CREATE PROCEDURE shop.close_day(IN closing DATE, INOUT done INT, OUT told VARCHAR(10)) LANGUAGE plpgsql AS $$
DECLARE
    found_id BIGINT;
    open_order CURSOR FOR SELECT id FROM shop.orders WHERE price IS NULL;
BEGIN
    OPEN open_order;
    <<each>>
    LOOP
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
END $$;
CREATE TRIGGER order_changed BEFORE UPDATE ON shop.orders FOR EACH ROW EXECUTE FUNCTION shop.stamp();
