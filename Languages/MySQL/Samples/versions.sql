-- Tables that remember: MariaDB's system versioning, periods, and keys that hold at one time.
CREATE DATABASE versions;
USE versions;

CREATE TABLE tariff (
    tariff_id INT PRIMARY KEY,
    fee DECIMAL(6, 2) NOT NULL,
    note TEXT WITHOUT SYSTEM VERSIONING
) WITH SYSTEM VERSIONING;

CREATE TABLE contract (
    contract_id INT,
    fee DECIMAL(6, 2),
    row_from TIMESTAMP(6) GENERATED ALWAYS AS ROW START INVISIBLE,
    row_to TIMESTAMP(6) GENERATED ALWAYS AS ROW END INVISIBLE,
    PERIOD FOR SYSTEM_TIME (row_from, row_to)
) WITH SYSTEM VERSIONING;

CREATE TABLE room_booking (
    room INT NOT NULL,
    guest VARCHAR(40) INVISIBLE DEFAULT '',
    arrives DATE,
    leaves DATE,
    PERIOD FOR stay (arrives, leaves),
    UNIQUE KEY one_guest (room, stay WITHOUT OVERLAPS)
);

CREATE TABLE meter_history (
    meter INT,
    reading INT
) WITH SYSTEM VERSIONING
PARTITION BY SYSTEM_TIME INTERVAL 1 MONTH STARTS TIMESTAMP'2024-01-01 00:00:00' AUTO;

CREATE TABLE price_history (
    item INT,
    price INT
) WITH SYSTEM VERSIONING
PARTITION BY SYSTEM_TIME LIMIT 100000 (
    PARTITION p0 HISTORY,
    PARTITION p1 HISTORY,
    PARTITION now CURRENT
);

SELECT * FROM tariff FOR SYSTEM_TIME AS OF '2024-06-01 00:00:00';
ALTER TABLE price_history ADD PARTITION (PARTITION p2 HISTORY);
ALTER TABLE room_booking DROP INDEX one_guest;
ALTER TABLE room_booking DROP PERIOD FOR stay;
ALTER TABLE room_booking ADD SYSTEM VERSIONING;
ALTER TABLE room_booking DROP SYSTEM VERSIONING;
ALTER TABLE room_booking ADD PERIOD FOR stay (arrives, leaves);
