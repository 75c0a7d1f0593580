-- A day in a shop: rows come, change and go.
CREATE DATABASE shop;
USE shop;
CREATE TABLE customer (id INT PRIMARY KEY AUTO_INCREMENT, email VARCHAR(80) UNIQUE, name VARCHAR(40), credit DECIMAL(9,2) DEFAULT 0, seen DATETIME);
CREATE TABLE product (id INT PRIMARY KEY, title VARCHAR(60) NOT NULL, price DECIMAL(9,2), stock INT DEFAULT 0);
CREATE TABLE sale (id INT PRIMARY KEY AUTO_INCREMENT, customer_id INT, product_id INT, amount INT, sold_at DATETIME, note TEXT);
CREATE TABLE sale_archive (id INT, customer_id INT, product_id INT, amount INT);

INSERT INTO customer VALUES (NULL, 'ada@example.org', 'Ada', 10.50, NOW()), (NULL, 'bob@example.org', 'Bob', DEFAULT, NULL);
INSERT INTO customer (email, name) VALUE ('cy@example.org', CONCAT('C', LOWER('Y')));
INSERT INTO customer () VALUES (), ();
INSERT IGNORE INTO shop.customer (customer.email) VALUES ('ada@example.org');
INSERT customer SET email = 'dan@example.org', customer.name := 'Dan', credit = -5;
INSERT LOW_PRIORITY INTO product VALUES (1, 'Lamp', 19.90, 7), (2, 'Chair\n"oak"', 1.2e2, 0), (3, 'It''s a table', .5, +4);
INSERT HIGH_PRIORITY product (id, title) VALUES (2, 'Chair') ON DUPLICATE KEY UPDATE title = VALUES(title), stock = product.stock + 1;
INSERT INTO product (id, title) SELECT p.id + 100, UPPER(p.title) FROM product p WHERE p.price > 1 ON DUPLICATE KEY UPDATE product.stock = product.stock + 1;
INSERT INTO sale (customer_id, product_id, amount, sold_at)
    WITH wanted AS (SELECT id FROM product WHERE stock > 0)
    SELECT c.id, w.id, 1, NOW() - INTERVAL w.id DAY FROM customer c, wanted w;
INSERT INTO sale (customer_id, product_id, amount) (SELECT 1, 1, 2) UNION ALL (SELECT 2, 2, 3);
INSERT INTO customer (name) VALUES ('Eve'), ('Finn') RETURNING id, name AS "new name", credit + 1;
-- MySQL only
INSERT INTO product (id, title, stock) VALUES (1, 'Lamp', 2), (4, 'Rug', 3) AS fresh (i, t, s) ON DUPLICATE KEY UPDATE stock = product.stock + fresh.s;
-- MySQL only
INSERT INTO product SET id = 5, title = 'Vase' AS fresh ON DUPLICATE KEY UPDATE title = fresh.title;
-- MySQL only
INSERT INTO sale_archive TABLE sale_archive;
-- MySQL only
INSERT INTO product VALUES ROW(6, 'Bed', 200, 1), ROW(7, 'Shelf', 50, 2);

REPLACE INTO product VALUES (3, 'Table', 80, 4), (8, 'Clock', 30, 1);
REPLACE product SET id = 9, title = 'Box', price = DEFAULT;
REPLACE LOW_PRIORITY INTO product (id, title) SELECT 10, 'Bag' RETURNING id;

UPDATE customer SET seen = NOW(), credit = credit + 1 WHERE email LIKE '%@example.org' ORDER BY id DESC LIMIT 2;
UPDATE LOW_PRIORITY IGNORE product AS p SET p.stock = GREATEST(p.stock - 1, 0), p.price = DEFAULT WHERE p.id IN (1, 2);
UPDATE sale s JOIN product p ON p.id = s.product_id LEFT JOIN customer c ON c.id = s.customer_id
    SET s.note = CONCAT_WS(' / ', p.title, c.name), p.stock = p.stock - s.amount WHERE s.amount > 1;
UPDATE customer, (SELECT customer_id, SUM(amount) bought FROM sale GROUP BY customer_id) t
    SET credit = credit + t.bought WHERE customer.id = t.customer_id;

DELETE FROM sale WHERE sold_at < NOW() - INTERVAL 1 YEAR ORDER BY sold_at LIMIT 1000;
DELETE QUICK IGNORE FROM sale_archive;
DELETE s, sale_archive.* FROM sale s LEFT JOIN sale_archive ON s.id = sale_archive.id WHERE s.amount = 0;
DELETE FROM s USING sale AS s INNER JOIN customer c ON c.id = s.customer_id WHERE c.credit < -100;
DELETE FROM customer WHERE email IS NULL AND name IS NULL RETURNING id;
TRUNCATE TABLE sale_archive;
TRUNCATE sale_archive;
