/*!999999\- enable the sandbox mode */ 
-- A dump of bikes, shortened.
-- ------------------------------------------------------

/*!40101 SET @OLD_CHARACTER_SET_CLIENT=@@CHARACTER_SET_CLIENT */;
/*!40101 SET NAMES utf8mb4 */;
/*!40014 SET @OLD_FOREIGN_KEY_CHECKS=@@FOREIGN_KEY_CHECKS, FOREIGN_KEY_CHECKS=0 */;
/*M!100616 SET @OLD_NOTE_VERBOSITY=@@NOTE_VERBOSITY, NOTE_VERBOSITY=0 */;

CREATE DATABASE /*!32312 IF NOT EXISTS*/ `bikes` /*!40100 DEFAULT CHARACTER SET utf8mb4 COLLATE utf8mb4_unicode_ci */;
USE `bikes`;

DROP TABLE IF EXISTS `lock$log`;
/*!40101 SET @saved_cs_client     = @@character_set_client */;
CREATE TABLE `lock$log` (
  `id` int(10) unsigned NOT NULL AUTO_INCREMENT,
  `text` varchar(100) DEFAULT 'it''s; -- open',
  `raw` blob DEFAULT NULL,
  PRIMARY KEY (`id`),
  KEY `text` (`text`(10))
) ENGINE=InnoDB AUTO_INCREMENT=4 DEFAULT CHARSET=utf8mb4;

LOCK TABLES `lock$log` WRITE;
/*!40000 ALTER TABLE `lock$log` DISABLE KEYS */;
INSERT INTO `lock$log` VALUES (1,'a\'b\\',_binary '\0\Z\n'),(2,NULL,0xDEADBEEF),(3,'/* no comment */',NULL);
/*!40000 ALTER TABLE `lock$log` ENABLE KEYS */;
UNLOCK TABLES;
/*!50003 SET @saved_sql_mode       = @@sql_mode */ ;
DELIMITER ;;
/*!50003 CREATE*/ /*!50017 DEFINER=`root`@`localhost`*/ /*!50003 TRIGGER lock_log BEFORE INSERT ON `lock$log`
FOR EACH ROW BEGIN
  IF NEW.`text` = '' THEN SET NEW.`text` = NULL; END IF;
END */;;
DELIMITER ;
/*!50001 CREATE VIEW `last_lock` AS select max(`lock$log`.`id`) AS `id` from `lock$log` */;
/*!40014 SET FOREIGN_KEY_CHECKS=@OLD_FOREIGN_KEY_CHECKS */;
-- Dump completed
