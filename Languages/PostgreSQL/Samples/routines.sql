-- Routines, triggers, rights.
create schema if not exists shop authorization current_user;

create type shop.state as enum ('open', 'paid', 'sent');

create domain shop.amount as numeric(12, 2) not null check (value >= 0);

create or replace function shop.vat(net numeric, rate numeric default 0.19)
    returns numeric
    language sql immutable parallel safe
    return round(net * (1 + rate), 2);

create function shop.mark_paid(order_id bigint) returns void
begin atomic
    update orders set state = 'paid' where id = order_id;
    insert into payments (order_id, paid_at) values (order_id, default);
end;

create function shop.touch() returns trigger language plpgsql as $body$
begin
    -- the client's $1 and an inner $quote$ are text here
    new.changed := now();
    execute $q$select ';'$q$;
    return new;
end
$body$;

create trigger touch before insert or update of total on orders
    for each row when (old.* is distinct from new.*) execute function shop.touch();

create index concurrently if not exists orders_placed on orders using brin (placed desc nulls last, lower(note) text_ops)
    with (pages_per_range = 32) where state <> 'sent';

alter table orders
    add column if not exists state shop.state default 'open',
    alter column total type shop.amount using total::numeric,
    add constraint positive check (total > 0) not valid;

grant select, insert (id, total), update on table orders to clerk, group sales with grant option;
comment on function shop.vat(numeric, numeric) is 'gross from net';

explain (analyze, format json) select * from generate_series(1, 10) with ordinality as g(n, i);

merge into stock s using deliveries d on s.item = d.item
when matched and s.amount + d.amount = 0 then delete
when matched then update set amount = s.amount + d.amount
when not matched then insert (item, amount) values (d.item, d.amount);

do $$ begin raise notice '%', 1; end $$;
