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
    -- the client's $1 and an inner $quote$ are comment here
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

-- A block of PL/pgSQL: variables, loops, cursors, messages, exceptions.
create or replace function shop.restock(minimum int, inout ordered int default 0) as $restock$
#variable_conflict use_column
<<main>>
declare
    missing constant int not null := minimum;
    line    stock%rowtype;
    amount  stock.amount%type;
    wanted  cursor (few int) for select * from stock where amount < few order by item;
    problem text collate "C" default '';
begin
    select count(*), sum(s.amount) into strict ordered, amount from stock s where s.amount < missing;
    <<items>>
    for line in wanted(missing) loop
        continue items when line.item is null;
        if line.amount < 0 then
            raise exception 'item % has %', line.item, line.amount using errcode = 'data_exception', hint = 'count again';
        elsif line.amount = 0 then
            insert into orders_out (item) values (line.item) returning orders_out.amount into amount;
        else
            execute format($q$update %I set amount = amount + $1; -- $q$, 'stock') using missing - line.amount;
        end if;
        case amount when 0, 1 then null; else perform pg_notify('stock', line.item::text); end case;
    end loop items;
    for i in reverse 10 .. ordered by 2 loop
        exit main when i < 5;
    end loop;
    get diagnostics ordered = row_count;
exception
    when division_by_zero or sqlstate '22003' then
        get stacked diagnostics problem = message_text;
        raise notice '%', main.problem;
end main;
$restock$ language plpgsql;

create function shop.cheapest(few int) returns setof stock as $$
    with sorted as (select * from stock order by price)
    select * from sorted where amount > $1 limit 3
$$ language sql stable;

create function shop.count_words(words text) returns int as $$ return len(words.split()) $$ language plpython3u;
