-- A database for each tenant.
CREATE DATABASE tenant_a;
CREATE DATABASE IF NOT EXISTS tenant_b CHARACTER SET latin1 COLLATE latin1_german1_ci;
CREATE SCHEMA tenant_c DEFAULT CHARSET = utf8mb4 DEFAULT COLLATE = 'utf8mb4_unicode_ci';
CREATE SCHEMA IF NOT EXISTS `tenant-d` CHAR SET binary;
CREATE OR REPLACE DATABASE tenant_e COMMENT = 'for trials' CHARSET DEFAULT;
-- MySQL only
CREATE DATABASE tenant_f DEFAULT ENCRYPTION = 'Y';

ALTER DATABASE tenant_a CHARACTER SET = utf8mb4 COLLATE = utf8mb4_bin;
ALTER SCHEMA tenant_b DEFAULT CHARACTER SET utf8mb4;
USE tenant_c;
ALTER DATABASE COLLATE utf8mb4_general_ci;
ALTER DATABASE DEFAULT CHARACTER SET latin1 COMMENT 'old';
-- MySQL only
ALTER DATABASE tenant_a READ ONLY = 1;
-- MySQL only
ALTER SCHEMA tenant_a READ ONLY DEFAULT ENCRYPTION 'N';

DELIMITER $$
CREATE PROCEDURE tenant_c.make_tenant(IN tenant VARCHAR(60))
BEGIN
    SET @statement = CONCAT('CREATE DATABASE IF NOT EXISTS `tenant_', REPLACE(tenant, '`', '``'), '`');
    PREPARE make FROM @statement;
    EXECUTE make;
    DEALLOCATE PREPARE make;
END $$
DELIMITER ;
CALL tenant_c.make_tenant('g');
DROP DATABASE tenant_g;
DROP SCHEMA IF EXISTS tenant_a;
DROP DATABASE `tenant-d`;
