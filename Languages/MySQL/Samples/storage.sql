# Where the server of a cluster keeps its files. MariaDB has none of it.
-- MySQL only
create logfile group undo_group add undofile 'undo_1.log' initial_size = 128M undo_buffer_size 8M engine ndbcluster;
-- MySQL only
alter logfile group undo_group add undofile 'undo_2.log' wait engine = ndbcluster;
-- MySQL only
create tablespace cold add datafile 'cold_1.dat' use logfile group undo_group
    extent_size = 1M initial_size 512M autoextend_size = 64M nodegroup = 0 no_wait comment = 'Last year' engine = ndbcluster;
-- MySQL only
alter tablespace cold add datafile 'cold_2.dat' initial_size 1G engine ndbcluster;
-- MySQL only
alter tablespace cold drop datafile 'cold_1.dat' engine = ndbcluster;
-- MySQL only
create tablespace warm add datafile 'warm.ibd' file_block_size = 8192 encryption = 'Y';
-- MySQL only
alter tablespace warm rename to tepid;
-- MySQL only
alter tablespace tepid encryption 'N' engine_attribute = '{"tier": 2}';
-- MySQL only
create undo tablespace undo_3 add datafile 'undo_3.ibu';
-- MySQL only
alter undo tablespace undo_3 set inactive;
-- MySQL only
alter undo tablespace undo_3 set active engine innodb;
-- MySQL only
create or replace spatial reference system 990001
    name 'Site grid' definition 'PROJCS["Site grid"]' organization 'Survey' identified by 17 description 'Of 1998';
-- MySQL only
create spatial reference system if not exists 990002 name 'Site' definition 'GEOGCS["Site"]';
select 'nothing for MariaDB here';
