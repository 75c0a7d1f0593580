-- What a load job says before and after.
set names utf8mb4 collate utf8mb4_unicode_ci;
set character set utf8mb4;
set charset 'latin1';
set names default;
set names 'utf8mb4', @stage = 'first';
set character set default;
set @@session.sql_mode = concat(@@sql_mode, ',NO_ZERO_DATE'), time_zone = '+00:00';
/*!40014 SET @OLD_UNIQUE_CHECKS=@@UNIQUE_CHECKS, UNIQUE_CHECKS=0 */;
set @old_foreign_key_checks = @@foreign_key_checks, foreign_key_checks = off, autocommit = on;
set session group_concat_max_len = 1024 * 1024, local lock_wait_timeout := default;
set session sql_mode = 'ANSI_QUOTES';
set sql_mode = ansi_quotes;
set sql_mode = default;
set character_set_results = binary, character_set_client = utf8mb4;

set @total := 0, @rate = 1.19, @`with a blank` = 'x', @'quoted' = null;
set @total = @total + (select count(*) from mysql.user), @both := @one := 1;
set @day = current_date() - interval 1 day, @is_new = not exists (select 1 from mysql.event);
set @pair = json_array(1, 2), @negative = -1;
set timestamp = 1700000000, insert_id = 7;
set timestamp = default;

set statement max_statement_time = 5, sort_buffer_size = 1048576 for select @total, @rate;
set statement sql_mode = '' for set @x = 1;
set default role none;
set role none;

set foreign_key_checks = @old_foreign_key_checks;
/*!40014 SET UNIQUE_CHECKS=@OLD_UNIQUE_CHECKS */;
set sql_log_bin = 0;
