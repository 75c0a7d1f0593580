-- What keeps a stock right: triggers of all kinds.
CREATE DATABASE stock;
USE stock;
CREATE TABLE item (item_id INT PRIMARY KEY, on_hand INT NOT NULL DEFAULT 0, touched DATETIME);
CREATE TABLE movement (movement_id INT AUTO_INCREMENT PRIMARY KEY, item_id INT NOT NULL, quantity INT NOT NULL, note VARCHAR(80));
CREATE TABLE journal (at_time TIMESTAMP DEFAULT CURRENT_TIMESTAMP, what VARCHAR(200));

CREATE TRIGGER movement_note BEFORE INSERT ON movement FOR EACH ROW SET NEW.note = COALESCE(NEW.note, 'none');

DELIMITER //
CREATE TRIGGER movement_check BEFORE INSERT ON movement
FOR EACH ROW FOLLOWS movement_note
BEGIN
    IF NEW.quantity = 0 THEN
        SIGNAL SQLSTATE '45000' SET MESSAGE_TEXT = 'a movement moves something';
    ELSEIF NEW.quantity < 0 AND (SELECT on_hand FROM item WHERE item_id = NEW.item_id) + NEW.quantity < 0 THEN
        SIGNAL SQLSTATE '45000' SET MESSAGE_TEXT = 'not enough in stock', MYSQL_ERRNO = 5001;
    END IF;
END //

CREATE TRIGGER stock.movement_done AFTER INSERT ON stock.movement FOR EACH ROW
BEGIN
    UPDATE item SET on_hand = on_hand + NEW.quantity, touched = NOW() WHERE item_id = NEW.item_id;
    INSERT INTO journal (what) VALUES (CONCAT('moved ', NEW.quantity, ' of ', NEW.item_id));
END; //

CREATE DEFINER = CURRENT_USER TRIGGER movement_undone AFTER DELETE ON movement FOR EACH ROW
    UPDATE item SET on_hand = on_hand - OLD.quantity WHERE item_id = OLD.item_id//

CREATE OR REPLACE TRIGGER item_changed BEFORE UPDATE ON item FOR EACH ROW
checks: BEGIN
    IF OLD.on_hand <=> NEW.on_hand THEN LEAVE checks; END IF;
    CASE
        WHEN NEW.on_hand < 10 THEN INSERT INTO journal (what) VALUES (CONCAT('order ', NEW.item_id));
        WHEN NEW.on_hand > 1000 THEN INSERT INTO journal (what) VALUES (CONCAT('too many of ', NEW.item_id));
        ELSE BEGIN END;
    END CASE;
END checks//

CREATE TRIGGER IF NOT EXISTS journal_first BEFORE DELETE ON journal FOR EACH ROW SET @deleted = @deleted + 1//
CREATE TRIGGER journal_second BEFORE DELETE ON journal FOR EACH ROW PRECEDES journal_first SET @deleted = 0//
DELIMITER ;

INSERT INTO item (item_id, on_hand) VALUES (1, 5), (2, 900);
INSERT INTO movement (item_id, quantity) VALUES (1, 20), (2, -100);
DELETE FROM movement WHERE item_id = 1;
DROP TRIGGER IF EXISTS movement_note;
