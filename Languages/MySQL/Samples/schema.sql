-- Bicycles for rent: stations, bicycles, riders and their rides.
CREATE DATABASE IF NOT EXISTS `bikes` DEFAULT CHARACTER SET utf8mb4 COLLATE utf8mb4_unicode_ci;
USE bikes;

CREATE TABLE station (
    station_id   SMALLINT UNSIGNED NOT NULL AUTO_INCREMENT,
    name         VARCHAR(60) NOT NULL,
    place        POINT NOT NULL,
    docks        TINYINT UNSIGNED NOT NULL DEFAULT 12 COMMENT 'places for bicycles',
    opened       DATE,
    is_open      BOOLEAN NOT NULL DEFAULT TRUE,
    PRIMARY KEY (station_id),
    UNIQUE KEY station_name (name),
    SPATIAL INDEX station_place (place)
) ENGINE=InnoDB AUTO_INCREMENT=100 COMMENT='where bicycles stand';

CREATE TABLE bicycle (
    bicycle_id   INT UNSIGNED NOT NULL AUTO_INCREMENT PRIMARY KEY,
    model        ENUM('town', 'cargo', 'child''s') NOT NULL DEFAULT 'town',
    extras       SET('basket', 'seat') DEFAULT NULL,
    bought       DATE NOT NULL,
    price        DECIMAL(8, 2) UNSIGNED NOT NULL,
    price_gross  DECIMAL(8, 2) AS (price * 1.19) VIRTUAL,
    station_id   SMALLINT UNSIGNED,
    changed      TIMESTAMP(3) NOT NULL DEFAULT CURRENT_TIMESTAMP(3) ON UPDATE CURRENT_TIMESTAMP(3),
    KEY by_station (station_id, model),
    CONSTRAINT bicycle_station FOREIGN KEY (station_id) REFERENCES station (station_id) ON DELETE SET NULL ON UPDATE CASCADE,
    CONSTRAINT bicycle_price CHECK (price > 0)
) ENGINE = InnoDB;

CREATE TABLE rider (
    rider_id     INT UNSIGNED NOT NULL AUTO_INCREMENT,
    email        VARCHAR(190) CHARACTER SET ascii COLLATE ascii_general_ci NOT NULL,
    `name`       VARCHAR(100) NOT NULL,
    about        TEXT,
    settings     JSON,
    credit       DECIMAL(7,2) NOT NULL DEFAULT '0.00',
    PRIMARY KEY (rider_id),
    UNIQUE INDEX rider_email (email(100)) USING BTREE,
    FULLTEXT KEY rider_about (about)
);

CREATE TABLE ride (
    ride_id      BIGINT UNSIGNED NOT NULL AUTO_INCREMENT,
    bicycle_id   INT UNSIGNED NOT NULL,
    rider_id     INT UNSIGNED NOT NULL,
    began        DATETIME NOT NULL,
    ended        DATETIME,
    from_station SMALLINT UNSIGNED NOT NULL,
    to_station   SMALLINT UNSIGNED,
    fee          DECIMAL(6, 2),
    PRIMARY KEY (ride_id, began),
    KEY ride_rider (rider_id, began DESC)
)
PARTITION BY RANGE (YEAR(began)) (
    PARTITION before_2024 VALUES LESS THAN (2024),
    PARTITION in_2024 VALUES LESS THAN (2025),
    PARTITION later VALUES LESS THAN MAXVALUE
);

CREATE OR REPLACE ALGORITHM = MERGE SQL SECURITY INVOKER VIEW open_station (id, name, bicycles) AS
    SELECT s.station_id, s.name, COUNT(b.bicycle_id)
    FROM station s LEFT JOIN bicycle AS b USING (station_id)
    WHERE s.is_open
    GROUP BY s.station_id, s.name;

ALTER TABLE rider
    ADD COLUMN phone VARCHAR(30) NULL AFTER email,
    ADD INDEX rider_phone (phone),
    MODIFY about MEDIUMTEXT;
CREATE INDEX ride_bicycle ON ride (bicycle_id) COMMENT 'for repairs';
ALTER TABLE ride DROP PARTITION before_2024;
