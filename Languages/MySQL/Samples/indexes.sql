-- Indexes of a shop's tables, made and dropped one by one.
CREATE DATABASE shop_indexes;
USE shop_indexes;
CREATE TABLE product (
    product_id INT NOT NULL,
    sku VARCHAR(30),
    name VARCHAR(200),
    about TEXT,
    tags VARCHAR(100),
    price DECIMAL(9, 2),
    place POINT NOT NULL,
    made DATETIME,
    PRIMARY KEY pk (product_id) USING BTREE KEY_BLOCK_SIZE = 8
) ENGINE=Aria DEFAULT CHARSET=latin1;
CREATE INDEX product_name ON product (name);
CREATE UNIQUE INDEX IF NOT EXISTS product_sku ON product (sku(10)) USING BTREE COMMENT 'sku as printed';
CREATE FULLTEXT INDEX product_about ON product (about, tags);
CREATE SPATIAL INDEX product_place ON product (place);
CREATE OR REPLACE INDEX product_name USING BTREE ON product (name(50) ASC, price DESC) IGNORED;
CREATE INDEX product_made ON product (made) ALGORITHM = COPY LOCK = SHARED;
CREATE OR REPLACE UNIQUE INDEX product_sku ON product (sku) WAIT 5;
ALTER TABLE product ALTER INDEX product_name NOT IGNORED;
ALTER TABLE product
    ADD INDEX IF NOT EXISTS by_price (price),
    ADD KEY USING BTREE (tags),
    ADD UNIQUE INDEX IF NOT EXISTS by_id (product_id, sku) COMMENT 'both',
    RENAME INDEX product_name TO by_name;
DROP INDEX product_about ON product;
DROP INDEX IF EXISTS product_place ON product;
-- MySQL only
CREATE INDEX product_lower ON product ((LOWER(name)), (price * 2) DESC) VISIBLE;
-- MySQL only
CREATE FULLTEXT INDEX product_words ON product (about) WITH PARSER ngram INVISIBLE;
-- MySQL only
DROP INDEX product_words ON product ALGORITHM = INPLACE LOCK = NONE;
DROP INDEX `PRIMARY` ON product;
