-- Views over sales.
CREATE DATABASE IF NOT EXISTS sales DEFAULT CHARACTER SET = utf8mb4;
USE sales;
CREATE TABLE client (client_id INT PRIMARY KEY, name VARCHAR(50), country CHAR(2), active BOOL DEFAULT TRUE);
CREATE TABLE invoice (invoice_id INT PRIMARY KEY, client_id INT, issued DATE, total DECIMAL(10, 2));

CREATE VIEW active_client AS SELECT client_id, name, country FROM client WHERE active WITH CHECK OPTION;

CREATE OR REPLACE ALGORITHM = MERGE SQL SECURITY INVOKER
VIEW invoice_line (client, month_of_issue, total) AS
    SELECT c.name, DATE_FORMAT(i.issued, '%Y-%m'), i.total FROM invoice i JOIN client c ON c.client_id = i.client_id;

CREATE ALGORITHM = TEMPTABLE DEFINER = CURRENT_USER() VIEW monthly AS
SELECT client, month_of_issue, SUM(total) AS total, COUNT(*) AS invoices
FROM invoice_line
GROUP BY client, month_of_issue
HAVING SUM(total) > 0;

CREATE VIEW IF NOT EXISTS ranked AS
WITH by_client AS (SELECT client_id, SUM(total) AS total FROM invoice GROUP BY client_id)
SELECT client_id, total, RANK() OVER (ORDER BY total DESC) AS place FROM by_client;

CREATE VIEW both_sides AS SELECT name FROM client UNION ALL (SELECT client FROM monthly ORDER BY total DESC LIMIT 10);

ALTER VIEW active_client AS SELECT client_id, name FROM client WHERE active = 1 WITH CASCADED CHECK OPTION;
ALTER ALGORITHM = UNDEFINED DEFINER = CURRENT_USER SQL SECURITY DEFINER VIEW ranked (client_id, place) AS
    SELECT client_id, ROW_NUMBER() OVER w FROM invoice WINDOW w AS (ORDER BY total);
-- MySQL only
CREATE OR REPLACE VIEW all_clients AS TABLE client;

/*!50001 CREATE ALGORITHM=UNDEFINED */
/*!50013 DEFINER=`root`@`localhost` SQL SECURITY DEFINER */
/*!50001 VIEW `dumped` AS select `client`.`name` AS `name` from `client` where (`client`.`country` = 'DE') */;

SELECT * FROM ranked;
DROP VIEW IF EXISTS both_sides, dumped;
