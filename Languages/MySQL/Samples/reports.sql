-- Figures of a shop.
CREATE DATABASE figures CHARACTER SET utf8mb4;
USE figures;
CREATE TABLE shop (id INT PRIMARY KEY, town VARCHAR(30), parent INT);
CREATE TABLE sale (id INT PRIMARY KEY, shop_id INT, day DATE, amount DECIMAL(9,2), kind CHAR(1));
INSERT INTO shop VALUES (1, 'Kiel', NULL), (2, 'Ulm', 1), (3, 'Köln', 1), (4, 'Bonn', 3);
INSERT INTO sale VALUES (1, 1, '2024-01-01', 10, 'a'), (2, 1, '2024-01-02', 20, 'b'), (3, 2, '2024-02-01', 5, 'a'), (4, 4, '2024-02-03', 7, NULL);

SELECT s.town, COUNT(*) AS sales, SUM(x.amount) total, AVG(x.amount) 'mean', MAX(x.day) AS "last"
FROM shop s INNER JOIN sale x ON x.shop_id = s.id
WHERE x.day BETWEEN '2024-01-01' AND '2024-12-31' AND x.kind <=> 'a'
GROUP BY s.town, x.kind WITH ROLLUP
HAVING total > 3 OR COUNT(DISTINCT x.kind, x.day) > 1;

SELECT day, amount, ROW_NUMBER() OVER (ORDER BY amount DESC) AS place, RANK() OVER w AS r, NTILE(4) OVER w,
       SUM(amount) OVER (PARTITION BY shop_id ORDER BY day ROWS BETWEEN UNBOUNDED PRECEDING AND CURRENT ROW) running,
       LAG(amount, 1) OVER (ORDER BY day) before_it, FIRST_VALUE(amount) OVER (w ROWS 2 PRECEDING),
       AVG(amount) OVER (ORDER BY day ROWS BETWEEN 1 PRECEDING AND 1 FOLLOWING)
FROM sale WINDOW w AS (PARTITION BY kind ORDER BY amount DESC), v AS (w);

WITH RECURSIVE tree (id, town, depth, path) AS (
    SELECT id, town, 0, CAST(town AS CHAR(200)) FROM shop WHERE parent IS NULL
    UNION ALL
    SELECT s.id, s.town, depth + 1, CONCAT(path, ' > ', s.town) FROM shop s JOIN tree t ON t.id = s.parent
), totals AS (SELECT shop_id, SUM(amount) sum FROM sale GROUP BY 1)
SELECT REPEAT(' ', depth) indent, tree.town, IFNULL(totals.sum, 0) FROM tree LEFT JOIN totals ON tree.id = totals.shop_id ORDER BY path;

(SELECT town FROM shop ORDER BY town LIMIT 2) UNION DISTINCT (SELECT kind FROM sale LIMIT 1, 2) ORDER BY 1 DESC LIMIT 3 OFFSET 1;
SELECT id FROM shop EXCEPT SELECT shop_id FROM sale;
SELECT id FROM shop INTERSECT SELECT shop_id FROM sale ORDER BY id;
SELECT * FROM (VALUES (1, 'one'), (2, 'two')) AS v JOIN (shop CROSS JOIN sale) ON v.`1` = shop.id;
VALUES (1, 2), (3, 4) ORDER BY 1 DESC;

SELECT town, (SELECT SUM(amount) FROM sale WHERE shop_id = shop.id) AS total
FROM shop WHERE EXISTS (SELECT 1 FROM sale WHERE shop_id = shop.id) AND id = ANY (SELECT shop_id FROM sale)
  AND (id, town) IN (SELECT id, town FROM shop) AND id <> ALL (SELECT parent FROM shop WHERE parent IS NOT NULL)
ORDER BY FIELD(town, 'Ulm', 'Kiel'), town COLLATE utf8mb4_bin;

SELECT GROUP_CONCAT(DISTINCT town ORDER BY town DESC SEPARATOR '; ') FROM shop;
SELECT GROUP_CONCAT(town, '!' ORDER BY 1 LIMIT 2) FROM shop;
SELECT MEDIAN(amount) OVER (PARTITION BY kind), PERCENTILE_CONT(0.5) WITHIN GROUP (ORDER BY amount) OVER (PARTITION BY kind) FROM sale;
SELECT CASE kind WHEN 'a' THEN 'first' WHEN 'b' THEN 'second' ELSE 'none' END k, COUNT(*) FROM sale GROUP BY k;
SELECT SQL_CALC_FOUND_ROWS DISTINCT YEAR(day) y, MONTH(day) AS m FROM sale ORDER BY NULL LIMIT 1;
SELECT STRAIGHT_JOIN SQL_NO_CACHE * FROM shop STRAIGHT_JOIN sale ON shop.id = sale.shop_id NATURAL LEFT JOIN (SELECT 1 AS one) one;
SELECT * FROM (shop, sale) JOIN (shop t, sale u) ON 1 WHERE .shop.id = figures . sale . id;
SELECT * FROM {OJ shop t LEFT OUTER JOIN sale u ON t.id = u.shop_id};
SELECT * FROM sale LIMIT ROWS EXAMINED 100;
SELECT * FROM sale ORDER BY id OFFSET 1 ROW FETCH NEXT 2 ROWS ONLY;
SELECT id FROM sale ORDER BY kind FETCH FIRST 1 ROW WITH TIES;
SELECT amount FROM sale PROCEDURE ANALYSE(10, 2000);
-- MySQL only
SELECT LAG(amount, 1, 0) RESPECT NULLS OVER (ORDER BY day) FROM sale;
-- MySQL only
SELECT s.town, l.top FROM shop s, LATERAL (SELECT MAX(amount) FROM sale WHERE shop_id = s.id) AS l (top);
-- MySQL only
TABLE shop ORDER BY town LIMIT 2;
-- MySQL only
SELECT * FROM (VALUES ROW(1, 2), ROW(3, 4)) AS v (a, b) UNION TABLE shop;
