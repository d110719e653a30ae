-- Brings a server database made by an earlier version of the program up to the schema of
-- schema.postgresql.sql. Every statement may run again on a database that has it already; the
-- program runs the script when it finds a column of the schema missing, one workstation at a
-- time.

-- The row version of jobs and schedules.
ALTER TABLE tAutoJobJob ADD COLUMN IF NOT EXISTS Zeilenversion integer NOT NULL DEFAULT 0;
ALTER TABLE tAutoJobSchedule ADD COLUMN IF NOT EXISTS Zeilenversion integer NOT NULL DEFAULT 0;
CREATE OR REPLACE FUNCTION zeilenversion_weiterzaehlen() RETURNS trigger
    LANGUAGE plpgsql
AS $$
BEGIN
    IF NEW.Zeilenversion = OLD.Zeilenversion THEN
        NEW.Zeilenversion := OLD.Zeilenversion + 1;
    END IF;
    RETURN NEW;
END;
$$;
DROP TRIGGER IF EXISTS trAutoJobJob_Zeilenversion ON tAutoJobJob;
CREATE TRIGGER trAutoJobJob_Zeilenversion BEFORE UPDATE ON tAutoJobJob
    FOR EACH ROW EXECUTE FUNCTION zeilenversion_weiterzaehlen();
DROP TRIGGER IF EXISTS trAutoJobSchedule_Zeilenversion ON tAutoJobSchedule;
CREATE TRIGGER trAutoJobSchedule_Zeilenversion BEFORE UPDATE ON tAutoJobSchedule
    FOR EACH ROW EXECUTE FUNCTION zeilenversion_weiterzaehlen();

-- The words of the log entries' texts, for the log data viewer's search.
CREATE INDEX IF NOT EXISTS ixJobAgentLogDaten_Suche ON SYS_JobAgentLogDaten USING GIN (to_tsvector('simple',
    coalesce(Herkunft, '') || ' ' || coalesce(AuftragKennung, '') || ' ' || coalesce(Kategorie, '')
    || ' ' || coalesce(Name, '') || ' ' || coalesce(Text, '') || ' ' || coalesce(Zusatz, '')));
