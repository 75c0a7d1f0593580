-- Questions and changes of an ordinary day.
SELECT SQL_CALC_FOUND_ROWS b.model, COUNT(*) AS `how many`, AVG(r.fee) 'mean fee'
FROM bicycle b STRAIGHT_JOIN ride r ON r.bicycle_id = b.bicycle_id
WHERE r.began >= '2024-01-01' - INTERVAL 7 DAY AND r.fee IS NOT NULL AND b.extras NOT LIKE '%seat%'
GROUP BY b.model WITH ROLLUP
HAVING `how many` > 3
LIMIT 10, 5;

SELECT /*+ NO_INDEX_MERGE(r) */ rider.name, JSON_UNQUOTE(JSON_EXTRACT(rider.settings, '$.lang')) AS lang,
       IF(credit > 0, 'in credit', CASE WHEN credit = 0 THEN 'even' ELSE "owes" END) AS state
FROM rider IGNORE INDEX (rider_phone) NATURAL JOIN (SELECT rider_id, MAX(began) last FROM ride GROUP BY rider_id) r
WHERE MATCH (about) AGAINST ('+cargo -child' IN BOOLEAN MODE) OR email REGEXP '^[a-z]+@' && phone <=> NULL
FOR UPDATE;

WITH RECURSIVE days (d) AS (
    SELECT DATE '2024-03-01'
    UNION ALL
    SELECT d + INTERVAL 1 DAY FROM days WHERE d < '2024-03-31'
)
SELECT d, COUNT(ride_id) AS rides, SUM(COUNT(ride_id)) OVER (ORDER BY d ROWS BETWEEN 6 PRECEDING AND CURRENT ROW) AS week
FROM days LEFT JOIN ride ON DATE(began) = d
GROUP BY d;

SELECT GROUP_CONCAT(DISTINCT name ORDER BY name SEPARATOR ', ') INTO @names FROM station;
SELECT @n := 1, @@session.sql_mode, @`my names`, 7 DIV 2, 7 % 2, ~1 & 0xFF | b'101' ^ 1 << 2, _latin1 x'E9' COLLATE latin1_bin, N'na' 'tional';

INSERT INTO station (name, place, docks) VALUES
    ('Harbour \'East\'', POINT(9.99, 53.54), 20),
    ("Town ""Hall""", POINT(9.99, 53.55), DEFAULT),
    ('C:\\depot
second line', ST_GeomFromText('POINT(10 53.6)'), 8)
ON DUPLICATE KEY UPDATE docks = VALUES(docks), is_open = NOT is_open;
INSERT IGNORE INTO rider SET email = 'ada@example.org', name = 'Ada', settings = '{"lang": "en"}';
REPLACE INTO rider (rider_id, email, name) VALUES (1, 'bob@example.org', 'Bob');
INSERT INTO ride (bicycle_id, rider_id, began, from_station) SELECT bicycle_id, 1, NOW(), station_id FROM bicycle LIMIT 1;

UPDATE ride r JOIN bicycle b USING (bicycle_id) SET r.fee = r.fee * 0.9, b.price = b.price - 1 WHERE b.model = 'cargo';
UPDATE LOW_PRIORITY rider SET credit = credit + 5 ORDER BY rider_id LIMIT 3;
DELETE r, b FROM ride AS r INNER JOIN bicycle AS b ON r.bicycle_id = b.bicycle_id WHERE b.price < 10;
DELETE FROM ride WHERE ended IS NULL AND began < NOW() - INTERVAL '1 12' DAY_HOUR LIMIT 100;
LOAD DATA LOCAL INFILE '/srv/rides.csv' INTO TABLE ride CHARACTER SET utf8mb4
    FIELDS TERMINATED BY ';' OPTIONALLY ENCLOSED BY '"' ESCAPED BY '\\' LINES TERMINATED BY '\r\n' IGNORE 1 LINES
    (bicycle_id, rider_id, @b, from_station) SET began = STR_TO_DATE(@b, '%d.%m.%Y');

START TRANSACTION; SAVEPOINT s; ROLLBACK TO s; COMMIT AND CHAIN; ROLLBACK;
SET NAMES utf8mb4; SET @a = 1, SESSION sort_buffer_size = 1024 * 1024, @@global.max_connections = 200;
SHOW FULL COLUMNS FROM ride LIKE 'b%'; EXPLAIN SELECT 1; DESCRIBE ride;
CREATE USER 'clerk'@'%' IDENTIFIED BY 'secret'; GRANT SELECT, INSERT (fee) ON bikes.ride TO 'clerk'@'%'; FLUSH PRIVILEGES;
