-- What MariaDB's blocks have besides: rows, types by example, loops over ranges and queries, blocks outside of routines.
CREATE OR REPLACE DATABASE orchard COMMENT 'fruit';
USE orchard;
CREATE TABLE tree (tree_id INT PRIMARY KEY, kind VARCHAR(20), height DECIMAL(4, 1));

DELIMITER $$
BEGIN NOT ATOMIC
    DECLARE v_n INT DEFAULT 3;
    FOR i IN 1 .. v_n DO
        INSERT INTO tree VALUES (i, ELT(i, 'apple', 'pear', 'plum'), i * 1.5);
    END FOR;
END$$

IF (SELECT COUNT(*) FROM tree) > 2 THEN
    SELECT 'enough';
ELSE
    SELECT 'plant more';
END IF$$

CREATE OR REPLACE PROCEDURE measure(IN p_kind TYPE OF tree.kind, OUT p_sum DECIMAL(8, 1))
BEGIN
    DECLARE v_height TYPE OF tree.height DEFAULT 0;
    DECLARE v_row ROW TYPE OF tree;
    DECLARE v_pair ROW (kind VARCHAR(20), height DECIMAL(4, 1));
    DECLARE trees CURSOR (c_kind VARCHAR(20), IN c_low INT) FOR SELECT * FROM tree WHERE kind = c_kind AND height > c_low;

    SET p_sum = 0;
    FOR t IN trees(p_kind, 1) DO
        SET p_sum = p_sum + t.height;
    END FOR;
    FOR t IN (SELECT kind, height FROM tree ORDER BY height) DO
        SET v_pair = ROW(t.kind, t.height);
        SELECT v_pair.kind, v_pair.height;
    END FOR;
    OPEN trees(p_kind, 0);
    FETCH trees INTO v_row;
    CLOSE trees;
    down: FOR i IN REVERSE 1 .. 10 DO
        IF i < 5 THEN LEAVE down; ELSEIF i = 7 THEN ITERATE down; END IF;
        SET v_height = v_height + i;
    END FOR down;
END$$

CREATE AGGREGATE FUNCTION IF NOT EXISTS longest(p_text VARCHAR(100)) RETURNS VARCHAR(100) DETERMINISTIC
BEGIN
    DECLARE v_longest VARCHAR(100) DEFAULT '';
    DECLARE CONTINUE HANDLER FOR NOT FOUND RETURN v_longest;
    LOOP
        FETCH GROUP NEXT ROW;
        IF LENGTH(p_text) > LENGTH(v_longest) THEN
            SET v_longest = p_text;
        END IF;
    END LOOP;
END$$

WHILE (SELECT COUNT(*) FROM tree) > 3 DO DELETE FROM tree LIMIT 1; END WHILE$$
REPEAT INSERT INTO tree SELECT MAX(tree_id) + 1, 'fig', 2.5 FROM tree; UNTIL (SELECT COUNT(*) FROM tree) > 5 END REPEAT$$
CASE DAYOFWEEK(CURRENT_DATE) WHEN 1 THEN SELECT 'rest'; ELSE SELECT 'prune'; END CASE$$
DELIMITER ;

CALL measure('pear', @sum);
SELECT longest(kind) FROM tree;
DROP DATABASE orchard;
