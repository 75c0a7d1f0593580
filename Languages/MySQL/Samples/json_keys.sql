-- Documents in columns, and indexes on what is in them.
CREATE DATABASE documents;
USE documents;
CREATE TABLE document (
    id INT AUTO_INCREMENT,
    body JSON NOT NULL,
    author VARCHAR(60) AS (JSON_VALUE(body, '$.author')) PERSISTENT,
    tags VARCHAR(200) AS (JSON_UNQUOTE(JSON_EXTRACT(body, '$.tags'))) VIRTUAL,
    size INT UNSIGNED AS (LENGTH(body)) STORED UNIQUE KEY,
    CHECK (JSON_VALID(body)),
    CONSTRAINT CHECK (author IS NULL OR author <> ''),
    PRIMARY KEY (id),
    KEY by_author (author)
);
INSERT INTO document (body) VALUES ('{"author": "Anna", "tags": ["a", "b"]}');
CREATE TABLE author SELECT DISTINCT author AS name FROM document;
CREATE TABLE tag (id INT, PRIMARY KEY (id)) IGNORE SELECT 1 AS id UNION ALL SELECT 1;
CREATE TABLE pair (a INT, b INT) ENGINE=InnoDB REPLACE AS VALUES (1, 2), (3, 4);
CREATE TABLE recent AS WITH d AS (SELECT id, author FROM document ORDER BY id DESC LIMIT 10) SELECT * FROM d;
CREATE TABLE nothing (SELECT 1 AS x WHERE FALSE);
CREATE TABLE IF NOT EXISTS pair_copy (LIKE pair);
-- MySQL only
CREATE TABLE customer (
    id BIGINT PRIMARY KEY,
    info JSON DEFAULT (JSON_OBJECT()),
    zip VARCHAR(5) GENERATED ALWAYS AS (info->>'$.zip'),
    INDEX zips ((CAST(info->'$.zips' AS UNSIGNED ARRAY))),
    UNIQUE KEY mixed (id, (LOWER(zip)) DESC)
);
