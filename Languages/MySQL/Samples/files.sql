-- Rows go to files and come back.
CREATE DATABASE exchange;
USE exchange;
CREATE TABLE visit (id INT PRIMARY KEY, page VARCHAR(100), at DATETIME, ms INT, raw BLOB) DEFAULT CHARSET = utf8mb4;
INSERT INTO visit VALUES (1, '/index.html', '2024-05-01 10:00:00', 15, _binary 'a\0b'), (2, '/a;b', NULL, 7, x'00FF'), (3, 'x"y', NOW(), 0, b'1010');

SELECT * INTO OUTFILE 'visit.txt' FROM visit;
SELECT id, page, at INTO OUTFILE 'visit.csv' CHARACTER SET utf8mb4
    FIELDS TERMINATED BY ',' OPTIONALLY ENCLOSED BY '"' ESCAPED BY '\\' LINES STARTING BY '>' TERMINATED BY '\r\n'
    FROM visit WHERE id < 3;
SELECT id, ms FROM visit ORDER BY id LIMIT 2 INTO OUTFILE 'visit.tab' COLUMNS TERMINATED BY x'09' LINES TERMINATED BY '\n';
(SELECT id FROM visit) INTO OUTFILE 'visit.ids';
SELECT raw FROM visit WHERE id = 1 INTO DUMPFILE 'visit.raw';
SELECT COUNT(*), MAX(ms) FROM visit INTO @visits, @slowest;

DELETE FROM visit;
LOAD DATA INFILE 'visit.txt' INTO TABLE visit;
LOAD DATA INFILE 'visit.csv' REPLACE INTO TABLE exchange.visit CHARACTER SET utf8mb4
    FIELDS TERMINATED BY ',' OPTIONALLY ENCLOSED BY '"' ESCAPED BY '\\' LINES STARTING BY '>' TERMINATED BY '\r\n'
    IGNORE 1 LINES (id, page, @at) SET at = NULLIF(@at, 'NULL'), ms = DEFAULT;
LOAD DATA LOW_PRIORITY INFILE 'visit.tab' IGNORE INTO TABLE visit FIELDS ENCLOSED BY '' IGNORE 1 ROWS (visit.id, ms);
LOAD DATA CONCURRENT INFILE 'visit.ids' IGNORE INTO TABLE visit LINES TERMINATED BY '\n' (id);
LOAD XML INFILE 'visit.txt' INTO TABLE visit ROWS IDENTIFIED BY '<visit>' IGNORE 1 LINES (id, @skipped) SET page = UPPER(@skipped);
SELECT LOAD_FILE('visit.txt') IS NULL;
