-- Functions of SQLite that PostgreSQL lacks, so that the SQL of view documents runs on both. They stand in the schema
-- of the data; tools/load-postgresql makes them.

CREATE FUNCTION instr(text, text) RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE AS 'SELECT strpos($1, $2)';

CREATE FUNCTION ifnull(anycompatible, anycompatible) RETURNS anycompatible LANGUAGE sql IMMUTABLE PARALLEL SAFE
  AS 'SELECT coalesce($1, $2)';

-- PostgreSQL rounds a double precision to whole numbers only.
CREATE FUNCTION round(double precision, integer) RETURNS double precision LANGUAGE sql IMMUTABLE PARALLEL SAFE STRICT
  AS 'SELECT CAST(round(CAST($1 AS numeric), $2) AS double precision)';

CREATE FUNCTION group_concat_step(text, text, text) RETURNS text LANGUAGE sql IMMUTABLE PARALLEL SAFE
  AS 'SELECT CASE WHEN $1 IS NULL THEN $2 WHEN $2 IS NULL THEN $1 ELSE $1 || $3 || $2 END';

CREATE AGGREGATE group_concat(text, text) (SFUNC = group_concat_step, STYPE = text);
