-- Takes away whatever an application may have left on a server.
CREATE DATABASE IF NOT EXISTS leftovers;
USE leftovers;
CREATE TABLE a (id INT);
CREATE VIEW b AS SELECT id FROM a;
CREATE INDEX a_id ON a (id);
DROP TRIGGER IF EXISTS leftovers.a_insert;
DROP PROCEDURE IF EXISTS leftovers.fill_a;
DROP FUNCTION IF EXISTS next_a;
DROP EVENT IF EXISTS leftovers.nightly;
DROP VIEW IF EXISTS leftovers.b, leftovers.c RESTRICT;
DROP INDEX a_id ON leftovers.a;
DROP TABLE IF EXISTS leftovers.a, leftovers.z;
DROP TABLE IF EXISTS leftovers.y WAIT 2;
DROP SEQUENCE IF EXISTS leftovers.numbers;
DROP USER IF EXISTS 'reader'@'%', writer@localhost;
DROP ROLE IF EXISTS reporting, 'support';
DROP SERVER IF EXISTS archive_server;
DROP SCHEMA IF EXISTS leftovers;
-- MySQL only
DROP TABLESPACE archive ENGINE = NDB;
-- MySQL only
DROP UNDO TABLESPACE undo_3 ENGINE InnoDB;
-- MySQL only
DROP UNDO TABLESPACE undo_4;
-- MySQL only
DROP TABLESPACE archive_2;
-- MySQL only
DROP RESOURCE GROUP batch FORCE;
-- MySQL only
DROP RESOURCE GROUP batch_2;
-- MySQL only
DROP SPATIAL REFERENCE SYSTEM IF EXISTS 4120;
-- MySQL only
DROP SPATIAL REFERENCE SYSTEM 4121;
-- MySQL only
DROP LOGFILE GROUP lg_2;
-- MySQL only
DROP LOGFILE GROUP lg_1 ENGINE = NDB;
