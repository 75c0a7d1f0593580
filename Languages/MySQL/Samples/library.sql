-- A lending library: every kind of column and key that its tables need.
CREATE DATABASE library CHARACTER SET utf8mb4;
USE library;

CREATE TABLE branch (
    branch_id   TINYINT UNSIGNED NOT NULL AUTO_INCREMENT,
    name        VARCHAR(80) NOT NULL COMMENT 'as on the door',
    city        CHAR(40) CHARACTER SET latin1 COLLATE latin1_german1_ci DEFAULT 'Bremen',
    open_days   SET('mon', 'tue', 'wed', 'thu', 'fri', 'sat') NOT NULL DEFAULT 'tue,thu',
    open_from   TIME DEFAULT '09:00:00',
    shelves     SMALLINT UNSIGNED ZEROFILL,
    area        FLOAT(7, 2),
    PRIMARY KEY (branch_id),
    UNIQUE KEY by_name (name(20), city)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_unicode_ci COMMENT='one row for each house';

CREATE TABLE IF NOT EXISTS book (
    book_id     INT(11) NOT NULL AUTO_INCREMENT PRIMARY KEY,
    isbn        CHAR(13) BINARY UNIQUE,
    title       VARCHAR(200) NOT NULL,
    title_key   VARCHAR(200) GENERATED ALWAYS AS (LOWER(title)) STORED,
    pages       INT UNSIGNED DEFAULT NULL,
    sheets      INT AS (pages DIV 2) VIRTUAL COMMENT 'two pages each',
    language    ENUM('de', 'en', 'fr') NOT NULL DEFAULT 'de',
    cover       MEDIUMBLOB,
    summary     TEXT,
    bought      DATE DEFAULT (CURRENT_DATE),
    price       DECIMAL(8,2) DEFAULT 0.00 CHECK (price >= 0),
    changed     TIMESTAMP NOT NULL DEFAULT CURRENT_TIMESTAMP ON UPDATE CURRENT_TIMESTAMP,
    KEY by_title (title) USING BTREE COMMENT 'for the catalogue',
    INDEX (bought DESC, price),
    FULLTEXT KEY words (title, summary)
) ENGINE = InnoDB AUTO_INCREMENT = 1000, ROW_FORMAT = DYNAMIC;

CREATE TABLE copy (
    copy_id     BIGINT NOT NULL,
    book_id     INT NOT NULL,
    branch_id   TINYINT UNSIGNED NULL,
    state       VARCHAR(10) DEFAULT 'new',
    PRIMARY KEY USING BTREE (copy_id),
    CONSTRAINT copy_book FOREIGN KEY (book_id) REFERENCES book (book_id) ON DELETE CASCADE ON UPDATE RESTRICT,
    FOREIGN KEY copy_branch (branch_id) REFERENCES branch (branch_id) ON DELETE SET NULL,
    CONSTRAINT state_known CHECK (state IN ('new', 'worn', 'lost')),
    CHECK (copy_id > 0)
);

CREATE TABLE copy_draft LIKE copy;
CREATE TEMPORARY TABLE short_books ENGINE=MEMORY AS SELECT book_id, title_key FROM book WHERE pages < 100;
CREATE OR REPLACE TABLE counts (language CHAR(2), books INT, KEY (language)) SELECT language, COUNT(*) AS books FROM book GROUP BY language;
DROP TEMPORARY TABLE IF EXISTS short_books;
DROP TABLE copy_draft, counts;
