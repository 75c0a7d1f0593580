# Accounts with all that MySQL 8 knows of passwords. MariaDB takes the beginnings alone.
create user if not exists clerk;

-- MySQL only
create user clara@'192.168.0.0/255.255.0.0'
    identified with caching_sha2_password by 'one' and identified with authentication_ldap_simple as 'uid=clara'
    default role desk, archive
    require none
    with max_connections_per_hour 20
    failed_login_attempts 4 password_lock_time unbounded
    password history 6 password reuse interval 365 day password require current optional
    attribute '{"floor": 2}';
-- MySQL only
create user dora identified by random password, eva identified with sha256_password by random password
    password expire default account unlock comment 'Both come in May';
-- MySQL only
create user frida identified with authentication_webauthn initial authentication identified by random password;
-- MySQL only
create user gerda identified with 'caching_sha2_password' as 0x244124303035
    password history default password reuse interval default password require current default;

-- MySQL only
alter user clara@'192.168.0.0/255.255.0.0' modify 2 factor identified with authentication_kerberos by 'x'
    add 3 factor identified with authentication_webauthn;
-- MySQL only
alter user if exists dora drop 2 factor;
-- MySQL only
alter user frida 2 factor initiate registration;
-- MySQL only
alter user frida 2 factor finish registration set challenge_response as 'c2lnbmVk';
-- MySQL only
alter user frida 2 factor unregister;
-- MySQL only
alter user eva identified with caching_sha2_password by 'two' replace 'one' retain current password;
-- MySQL only
alter user eva default role all;

alter user clerk identified by 'desk' password expire default;
show create user clerk;
