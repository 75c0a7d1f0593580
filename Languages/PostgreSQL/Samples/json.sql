-- A weather service: readings come in as JSON, and go out as JSON.
create table readings (
    station text,
    taken   timestamp with time zone,
    body    jsonb,
    raw     json check (raw is json object with unique keys)
);

-- What a text is.
select body is json, body is not json value, raw is json array without unique, raw is not json scalar with unique,
       raw is json without unique keys, raw is json value as checked, raw is json "keys"
from readings
where not station is json object;

-- Building.
select json_object(), json_object('{wind, 3}'), json_object('wind' value 3, 'rain' value 0.5 format json),
       json_object('wind': speed, 'rain':amount, station:place, station:"Place" null on null),
       json_object('gust' value gust, 'unit' value 'km/h' absent on null with unique keys returning jsonb),
       json_object('a': 1 without unique returning text format json encoding utf8), json_object('b' value 2 returning bytea),
       json_object(returning text),
       json_object('n': 0, 'ne': 45, 'e': 90, 'se': 135, 's': 180, 'sw': 225, 'w': 270, 'nw': 315, 'calm': -1),
       json_array('n', 'ne', 'e', 'se', 's', 'sw', 'w', 'nw', null)
from readings;

select json_array(), json_array(1, '{"b": 2}' format json, null), json_array(speed, gust absent on null returning jsonb),
       json_array(speed null on null), json_array(speed returning text), json_array(returning text),
       json_array(select speed from readings order by taken), json_array(values (1), (2) returning jsonb);

select station, json_arrayagg(speed), json_arrayagg(speed order by taken desc),
       json_arrayagg(body format json null on null returning jsonb),
       json_arrayagg(speed order by taken absent on null) filter (where speed > 0),
       json_objectagg(taken value speed), json_objectagg(taken: speed absent on null with unique keys) over w,
       json_objectagg('gust' value gust returning jsonb) filter (where gust > 0) over (partition by station)
from readings
group by station
window w as (order by station);

select json('{"n": 1}'), json('{"n": 1}' format json with unique keys), json_scalar(17.5), json_serialize(body),
       json_serialize(body format json returning bytea), json '[1, 2]', body::json[];

-- Asking.
select station from readings
where json_exists(body, '$.rain')
  and json_exists(body, 'strict $.wind[*] ? (@ > $least)' passing 10 as least, raw format json as "other")
  and json_exists(body, '$.snow' passing 1 as x unknown on error) and json_exists(body, '$.hail' false on error);

select json_value(body, '$.wind'), json_value(body, '$.wind' returning int), json_value(body, '$.w' passing 1 as x),
       json_value(body, '$.when' returning timestamp without time zone error on empty null on error),
       json_value(body, '$.a' passing 1 as a, 2 as b returning numeric default -1 on empty default 0 on error),
       json_value(body, '$.b' true on error), json_value(body, '$.c' passing 3 as c error on empty);

select json_query(body, '$'), json_query(body, '$.a' passing 1 as a), json_query(body, '$.b' with wrapper),
       json_query(body, '$.c' returning jsonb format json without wrapper keep quotes),
       json_query(body, '$.d' passing 1 as d with conditional array wrapper empty array on empty empty on error),
       json_query(body, '$.e' with unconditional wrapper), json_query(body, '$.f' without array wrapper),
       json_query(body, '$.g' with array wrapper), json_query(body, '$.h' with conditional wrapper),
       json_query(body, '$.i' with unconditional array wrapper error on error),
       json_query(body, '$.j' returning text omit quotes on scalar string empty object on error),
       json_query(body, '$.k' keep quotes on scalar string), json_query(body, '$.m' returning json), json_query(body, '$.l' returning text omit quotes);

select hours.*, days.day
from readings,
     json_table(body, '$.hours[*]' as hours passing 3 as first, 7 as last
         columns (
             number for ordinality,
             speed  int path '$.speed' default 0 on empty error on error,
             gust   int,
             notes  text format json path '$.notes' with wrapper keep quotes null on empty,
             plain  json format json,
             short  text without wrapper,
             calm   boolean exists,
             rainy  boolean exists path '$.rain' false on error,
             foggy  boolean exists path '$.fog',
             icy    boolean exists error on error,
             nested path '$.gusts[*]' as gusts columns (at time path '$.at',
                 nested '$.directions[*]' columns (direction text))
         )) as hours,
     lateral json_table(body, '$.days[*]' columns (day date) error on error) days,
     json_table(raw format json, '$' columns (nested text)),
     lateral json_table(raw, '$' as root columns (nested int));
select * from json_arrayagg('fair'), json_object('{calm, 0}') calm,
    xmltable('/log/day' passing body columns day date path '@date', note text default 'dry');
