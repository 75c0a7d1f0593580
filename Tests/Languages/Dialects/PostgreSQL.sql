-- Statements that both dialects have.
CREATE TABLE shop.customers (
    id          INTEGER PRIMARY KEY,
    name        VARCHAR(80) NOT NULL,
    email       VARCHAR(120) UNIQUE,
    credit      NUMERIC(8, 2) DEFAULT 0.00 CHECK (credit >= 0),
    born        DATE,
    changed     TIMESTAMP DEFAULT CURRENT_TIMESTAMP
);
CREATE TABLE shop.orders (
    id          BIGINT NOT NULL,
    line        INT DEFAULT 1 NOT NULL,
    customer_id INTEGER NOT NULL,
    kind        CHAR(1) DEFAULT 'a',
    "of day"    DATE,
    price       DECIMAL(9, 2),
    weight      DOUBLE PRECISION,
    total       DECIMAL(11, 2) GENERATED ALWAYS AS (price * line) STORED,
    sale_id     INT REFERENCES shop.sales (id) ON DELETE SET NULL,
    CONSTRAINT orders_key PRIMARY KEY (id, line),
    CONSTRAINT orders_customer FOREIGN KEY (customer_id) REFERENCES shop.customers (id) ON DELETE CASCADE ON UPDATE SET NULL,
    CONSTRAINT known_kind CHECK (kind IN ('a', 'b') AND price > 0),
    UNIQUE (customer_id, "of day")
);
CREATE TABLE shop.passed AS SELECT id, price FROM shop.orders WHERE kind = 'b';
CREATE TEMPORARY TABLE IF NOT EXISTS "day sums" (sums NUMERIC(12, 2), note TEXT);
CREATE INDEX orders_by_day ON shop.orders ("of day", price DESC);
CREATE UNIQUE INDEX orders_by_kind ON shop.orders (kind);
ALTER TABLE shop.orders ADD COLUMN note TEXT, ADD CONSTRAINT dear CHECK (price < 10000), DROP COLUMN weight;
ALTER TABLE shop.orders ALTER COLUMN line SET DEFAULT 2;
ALTER TABLE shop.orders ADD CONSTRAINT orders_note FOREIGN KEY (note) REFERENCES notes (id);
ALTER TABLE shop.orders RENAME COLUMN note TO remark;
ALTER TABLE shop.orders RENAME TO purchases;
CREATE VIEW shop.dear (id, name, total) AS
    SELECT c.id, c.name, sum(o.price) FROM shop.customers c JOIN shop.orders AS o ON o.customer_id = c.id
    WHERE o.price > 100 GROUP BY c.id, c.name HAVING count(*) > 2;

WITH RECURSIVE numbers (n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM numbers WHERE n < 5),
    days AS (SELECT "of day" FROM shop.orders)
SELECT DISTINCT c.name AS who, count(*) amount, rank() OVER (PARTITION BY c.id ORDER BY o.price DESC) AS place,
    CASE WHEN o.price > 10 THEN 'dear' WHEN o.price IS NULL THEN 'none' ELSE 'cheap' END sort,
    shop.net(o.price, 19), CAST(o.price AS CHAR(10)), sum(o.price) OVER w, -o.line "in ""short"""
FROM shop.customers AS c
    INNER JOIN shop.orders o ON o.customer_id = c.id AND o.price BETWEEN 1 AND 5
    LEFT JOIN parts p USING (id, line)
    CROSS JOIN numbers, (SELECT id FROM other) AS d
WHERE c.name LIKE 'A%' AND c.id IN (SELECT customer_id FROM returns) AND NOT EXISTS (SELECT 1 FROM bans b WHERE b.id = c.id)
GROUP BY c.name, o.price HAVING count(*) > 1
WINDOW w AS (ORDER BY o.id ROWS BETWEEN 1 PRECEDING AND CURRENT ROW)
ORDER BY c.name DESC, 2 LIMIT 10 OFFSET 5 FOR UPDATE;
SELECT a FROM t1 UNION SELECT b FROM t2 EXCEPT SELECT c FROM t3 ORDER BY 1;
SELECT t1.* FROM t1 NATURAL JOIN t2;
SELECT (SELECT max(price) FROM shop.orders), (a + 2) * 3;
TABLE t1;

INSERT INTO shop.orders (id, line, price) VALUES (1, 2, 3.5), (4, 5, DEFAULT);
INSERT INTO shop.archive (id) SELECT o.id FROM shop.orders o WHERE o.price < 0;
UPDATE shop.orders AS o SET price = o.price * 2, note = DEFAULT WHERE o.id = 7;
DELETE FROM shop.orders WHERE id = 8;
TRUNCATE TABLE shop.log;
CALL shop.close_day('2024-01-01', 1);

GRANT SELECT, UPDATE (name) ON shop.customers TO clerk, "chief clerk" WITH GRANT OPTION;
REVOKE DELETE ON shop.orders FROM clerk;
START TRANSACTION;
SAVEPOINT half;
ROLLBACK TO SAVEPOINT half;
RELEASE SAVEPOINT half;
COMMIT;
ROLLBACK;
DROP TABLE IF EXISTS shop.log, shop.archive;
DROP VIEW shop.dear;
DROP FUNCTION IF EXISTS shop.net;
DROP PROCEDURE shop.close_day;
