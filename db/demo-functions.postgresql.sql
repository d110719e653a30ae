-- The functions of SQLite that demo.sql uses, for PostgreSQL. Applied after
-- schema.postgresql.sql and before demo.sql, only where the demo data is
-- loaded: the system's own statements do not use them.
--
--   datetime(time, modifier...)   the local or UTC time as SQLite computes it,
--                                 in whole seconds, as timestamp(0)
--   strftime(format, time, modifier...)
--                                 the same time as text; %Y %m %d %H %M %S %%
--   "char"(code...)               the text of the given character codes
--
-- time is 'now' (UTC, as in SQLite) or a date text read as the same naive
-- time. Modifiers: 'localtime', 'utc', 'start of day', 'start of month',
-- 'start of year', '+N days' / hours / minutes / seconds / months / years
-- (singular too, N may be negative or fractional). Months and years are
-- added as PostgreSQL adds them: the 31st plus a month gives the last day of
-- the next month, where SQLite overflows into the month after; the demo data
-- adds months and years only to the first of a month.

CREATE FUNCTION sqlite_zeit(zeit text, modifikatoren text[]) RETURNS timestamp without time zone
    LANGUAGE plpgsql STABLE
    AS $$
DECLARE
    t timestamp without time zone;
    m text;
    teile text[];
BEGIN
    IF lower(zeit) = 'now' THEN
        t := now() AT TIME ZONE 'UTC';
    ELSE
        t := zeit::timestamp without time zone;
    END IF;
    FOREACH m IN ARRAY coalesce(modifikatoren, '{}') LOOP
        m := lower(btrim(m));
        teile := regexp_match(m, '^([+-]?[0-9]+(?:\.[0-9]+)?) +(day|hour|minute|second|month|year)s?$');
        IF teile IS NOT NULL THEN
            t := t + (teile[1] || ' ' || teile[2])::interval;
        ELSIF m = 'localtime' THEN
            t := (t AT TIME ZONE 'UTC')::timestamp without time zone;
        ELSIF m = 'utc' THEN
            t := t::timestamp with time zone AT TIME ZONE 'UTC';
        ELSIF m = 'start of day' THEN
            t := date_trunc('day', t);
        ELSIF m = 'start of month' THEN
            t := date_trunc('month', t);
        ELSIF m = 'start of year' THEN
            t := date_trunc('year', t);
        ELSE
            RAISE EXCEPTION 'unknown modifier of a SQLite time: %', m;
        END IF;
    END LOOP;
    RETURN date_trunc('second', t);
END
$$;

CREATE FUNCTION datetime(zeit text, VARIADIC modifikatoren text[] DEFAULT '{}')
    RETURNS timestamp(0) without time zone
    LANGUAGE sql STABLE
    AS $$ SELECT sqlite_zeit(zeit, modifikatoren)::timestamp(0) without time zone $$;

CREATE FUNCTION strftime(format text, zeit text, VARIADIC modifikatoren text[] DEFAULT '{}')
    RETURNS text
    LANGUAGE sql STABLE
    AS $$
SELECT replace(replace(replace(replace(replace(replace(replace(replace(format,
           '%%', chr(1)),
           '%Y', to_char(t, 'YYYY')), '%m', to_char(t, 'MM')), '%d', to_char(t, 'DD')),
           '%H', to_char(t, 'HH24')), '%M', to_char(t, 'MI')), '%S', to_char(t, 'SS')),
       chr(1), '%')
  FROM (SELECT sqlite_zeit(zeit, modifikatoren) AS t) z
$$;

CREATE FUNCTION "char"(VARIADIC codes integer[]) RETURNS text
    LANGUAGE sql IMMUTABLE
    AS $$ SELECT string_agg(chr(c), '' ORDER BY n) FROM unnest(codes) WITH ORDINALITY AS u (c, n) $$;
