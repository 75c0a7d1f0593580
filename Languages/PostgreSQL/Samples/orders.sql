-- A small shop: tables, data, questions.
create table customers (
    id      bigint generated always as identity primary key,
    name    text not null check (name <> ''),
    "E-Mail" varchar(120) unique
);

create table orders (
    id       bigint primary key,
    customer bigint not null references customers (id) on delete cascade,
    placed   timestamp with time zone default current_timestamp,
    total    numeric(12, 2) not null
);

insert into customers (name, "E-Mail") values
    ('Ada', 'ada@example.org'),
    ('Björn', 'bjoern@example.org'),
    ('O''Neill', null);

/* How much did each customer spend,
   /* and how does that rank? */ */
with spent as (
    select c.name, sum(o.total) filter (where o.placed > now() - interval '1 year') as amount
    from customers c
         left join orders o on o.customer = c.id
    group by c.name
    having count(*) > 0
)
select name, amount, rank() over (order by amount desc nulls last) as "place"
from spent
where amount not between 0 and 10 and name ilike 'a%'
order by 2 desc, name
limit 10;

update orders set total = total * 1.05 where placed::date = date '2024-02-29' returning id, total;
delete from orders o using customers c where o.customer = c.id and c.name = $$O'Neill$$;
