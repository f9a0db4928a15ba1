-- Reference database of the Tarvex Mission Editor: tables and saved queries.
--
-- The file is run with foreign keys on (the program opens it the same way).
-- Units used throughout:
--   * positions in signed decimal degrees, north and east positive;
--   * Airfields.Elevation in whole metres above mean sea level;
--   * GrndTypes.XOffset/YOffset in layout units: one layout unit is one minute
--     of arc in a mission file and is shown to the designer as 1000 metres or
--     3280.8 feet. XOffset points ahead (north for a landscape layout),
--     YOffset to the right;
--   * frmPatterns stations in whole metres from the leader: frmX ahead
--     (negative behind the leader), frmY to the right, frmZ up.
--
-- Tables keep SQLite's hidden row id, so a query without ORDER BY returns rows
-- in the order they were inserted and an editable key (AcID, GrndNames.ID) can
-- change without moving the row.
--
-- Booleans are 0/1 so that "Add2Combo=True" and "IsDefault=False" compare.

BEGIN;

CREATE TABLE tblFamily (
    UnitRole TEXT NOT NULL,
    Family INTEGER NOT NULL UNIQUE
);

CREATE TABLE tblAllegiance (
    AirforceName TEXT NOT NULL,
    Allegiance INTEGER NOT NULL UNIQUE
);

CREATE TABLE Aircraft (
    AcID INTEGER NOT NULL UNIQUE CHECK (AcID BETWEEN 1 AND 32767),
    ShortName TEXT NOT NULL,
    LongName TEXT NOT NULL DEFAULT '',
    Family INTEGER NOT NULL DEFAULT 1 CHECK (Family BETWEEN 1 AND 3),
    Allegiance INTEGER NOT NULL DEFAULT 1 CHECK (Allegiance BETWEEN 1 AND 3),
    Gun NUMERIC NOT NULL DEFAULT 0,
    Cannon NUMERIC NOT NULL DEFAULT 0,
    Rockets NUMERIC NOT NULL DEFAULT 0,
    Bombs NUMERIC NOT NULL DEFAULT 0,
    -- New aircraft come from the simulator's own folders and are flyable.
    Add2Combo INTEGER NOT NULL DEFAULT 1 CHECK (Add2Combo IN (0, 1))
);

-- Runway types; Units is how many aircraft line up side by side on it
-- (units_across of a runway section).
CREATE TABLE RunwayTypes (
    TypeID INTEGER NOT NULL UNIQUE,
    TypeName TEXT NOT NULL,
    Units INTEGER NOT NULL DEFAULT 1
);

-- Recnum is the 1-based position of the row in ORDER BY Name: the airfield
-- combos turn a list index into Recnum without a search.
CREATE TABLE Airfields (
    Recnum INTEGER NOT NULL UNIQUE,
    Name TEXT NOT NULL UNIQUE,
    RwyID INTEGER NOT NULL UNIQUE CHECK (RwyID BETWEEN 1 AND 32767),
    RwyLat REAL NOT NULL,
    RwyLon REAL NOT NULL,
    TypeID INTEGER NOT NULL DEFAULT 1,
    Elevation INTEGER NOT NULL DEFAULT 0,
    -- Runway heading in degrees; a whole heading reads back whole.
    ROT NUMERIC NOT NULL DEFAULT 0
);

-- Corner texts pass unchanged into map_1/map_left/map_bottom/map_right.
CREATE TABLE Maps (
    Recnum INTEGER NOT NULL UNIQUE CHECK (Recnum BETWEEN 1 AND 255),
    Name TEXT NOT NULL UNIQUE,
    "Top" TEXT NOT NULL,
    "Left" TEXT NOT NULL,
    "Bottom" TEXT NOT NULL,
    "Right" TEXT NOT NULL
);

-- Catalogue of stationary unit types. StationaryName is the simulator's own
-- name of the type (name= of a ground unit type), Allegiance its side.
CREATE TABLE Stationary (
    UnitType INTEGER NOT NULL UNIQUE CHECK (UnitType >= 4000),
    FullName TEXT NOT NULL,
    StationaryName TEXT NOT NULL,
    Allegiance INTEGER NOT NULL DEFAULT 1 CHECK (Allegiance BETWEEN 1 AND 3)
);

-- UnitTotal is the sum of the UnitType values of the layout's units: a
-- fingerprint by which a loaded mission finds its layout again, not a count.
CREATE TABLE GrndNames (
    ID INTEGER NOT NULL UNIQUE CHECK (ID BETWEEN 1 AND 9999),
    LayoutName TEXT NOT NULL,
    UnitTotal INTEGER NOT NULL DEFAULT 0,
    IsDefault INTEGER NOT NULL DEFAULT 0 CHECK (IsDefault IN (0, 1)),
    GUType INTEGER NOT NULL DEFAULT 1 CHECK (GUType BETWEEN 1 AND 255)
);

CREATE INDEX GrndNames_UnitTotal ON GrndNames (UnitTotal);

-- Units of a layout. A type missing from Stationary is allowed: a mission may
-- bring one in, and its layout must still load and save.
CREATE TABLE GrndTypes (
    ID INTEGER NOT NULL REFERENCES GrndNames (ID) ON DELETE CASCADE ON UPDATE CASCADE,
    UnitType INTEGER NOT NULL,
    Points INTEGER NOT NULL DEFAULT 0 CHECK (Points BETWEEN 0 AND 255),
    Heading INTEGER NOT NULL DEFAULT 0,
    XOffset REAL NOT NULL DEFAULT 0,
    YOffset REAL NOT NULL DEFAULT 0,
    DamageID INTEGER NOT NULL DEFAULT 0 CHECK (DamageID BETWEEN 0 AND 2)
);

CREATE INDEX GrndTypes_ID ON GrndTypes (ID);
-- By type and then layout, so that the first row of a type in layout order is found
-- without sorting every unit of that type.
CREATE INDEX GrndTypes_UnitType ON GrndTypes (UnitType, ID);

CREATE TABLE frmNames (
    frmID INTEGER NOT NULL UNIQUE,
    TotalUnits INTEGER NOT NULL CHECK (TotalUnits BETWEEN 1 AND 20)
);

-- Stations of a pattern: the k-th row of a frmID, in stored order, is the
-- place of the k-th pilot.
CREATE TABLE frmPatterns (
    frmID INTEGER NOT NULL REFERENCES frmNames (frmID) ON DELETE CASCADE,
    frmX INTEGER NOT NULL DEFAULT 0,
    frmY INTEGER NOT NULL DEFAULT 0,
    frmZ INTEGER NOT NULL DEFAULT 0
);

-- Mission summaries, rebuilt whole by the scan of the missions folder.
CREATE TABLE tblMissions (
    MissionID INTEGER PRIMARY KEY AUTOINCREMENT,
    Title TEXT,
    Type TEXT,
    Summary TEXT,
    Objective TEXT,
    "Date" TEXT,
    "Time" TEXT,
    Reqrd NUMERIC,
    Clouds NUMERIC,
    Wind NUMERIC,
    Visibility NUMERIC,
    Allegiance NUMERIC,
    Map INTEGER,
    Filename TEXT
);

---------------------------------------------------------------------------
-- Saved queries.
--
-- An edit through a view arrives as
--   UPDATE view SET changed = ? WHERE every original column IS ?
--   DELETE FROM view WHERE every original column IS ?
--   INSERT INTO view (assigned columns) VALUES (...)
-- so each INSTEAD OF trigger finds its base row from OLD, and takes a column
-- from NEW only where NEW differs from OLD.
---------------------------------------------------------------------------

-- A free layout id: one above the highest while that stays below 10000,
-- else the lowest gap.
CREATE VIEW qryNextGuID AS
SELECT CASE
    WHEN (SELECT COALESCE(MAX(ID), 0) FROM GrndNames) < 9999
        THEN (SELECT COALESCE(MAX(ID), 0) + 1 FROM GrndNames)
    ELSE (SELECT MIN(g.ID) + 1
          FROM (SELECT 0 AS ID UNION ALL SELECT ID FROM GrndNames) AS g
          WHERE g.ID < 9999
            AND NOT EXISTS (SELECT 1 FROM GrndNames AS h WHERE h.ID = g.ID + 1))
END AS NextID;

-- A free aircraft id, by the same rule within the 16-bit range.
CREATE VIEW qryNextAcID AS
SELECT CASE
    WHEN (SELECT COALESCE(MAX(AcID), 0) FROM Aircraft) < 32767
        THEN (SELECT COALESCE(MAX(AcID), 0) + 1 FROM Aircraft)
    ELSE (SELECT MIN(a.AcID) + 1
          FROM (SELECT 0 AS AcID UNION ALL SELECT AcID FROM Aircraft) AS a
          WHERE a.AcID < 32767
            AND NOT EXISTS (SELECT 1 FROM Aircraft AS b WHERE b.AcID = a.AcID + 1))
END AS NextID;

CREATE VIEW qryAllMovingUnits AS
SELECT Aircraft.AcID AS AcID,
       Aircraft.ShortName AS ShortName,
       Aircraft.LongName AS LongName,
       Aircraft.Family AS Family,
       Aircraft.Allegiance AS Allegiance,
       Aircraft.Gun AS Gun,
       Aircraft.Cannon AS Cannon,
       Aircraft.Rockets AS Rockets,
       Aircraft.Bombs AS Bombs,
       tblAllegiance.AirforceName AS AirforceName,
       tblFamily.UnitRole AS UnitRole
FROM Aircraft
LEFT JOIN tblAllegiance ON tblAllegiance.Allegiance = Aircraft.Allegiance
LEFT JOIN tblFamily ON tblFamily.Family = Aircraft.Family;

-- The grid may set a family or allegiance by its id or by its name.
CREATE TRIGGER qryAllMovingUnits_Insert INSTEAD OF INSERT ON qryAllMovingUnits
BEGIN
    INSERT INTO Aircraft (AcID, ShortName, LongName, Family, Allegiance,
                          Gun, Cannon, Rockets, Bombs)
    VALUES (NEW.AcID,
            NEW.ShortName,
            COALESCE(NEW.LongName, NEW.ShortName, ''),
            COALESCE(NEW.Family,
                     (SELECT Family FROM tblFamily WHERE UnitRole = NEW.UnitRole), 1),
            COALESCE(NEW.Allegiance,
                     (SELECT Allegiance FROM tblAllegiance
                      WHERE AirforceName = NEW.AirforceName), 1),
            COALESCE(NEW.Gun, 0),
            COALESCE(NEW.Cannon, 0),
            COALESCE(NEW.Rockets, 0),
            COALESCE(NEW.Bombs, 0));
END;

CREATE TRIGGER qryAllMovingUnits_Update INSTEAD OF UPDATE ON qryAllMovingUnits
BEGIN
    UPDATE Aircraft SET
        AcID = NEW.AcID,
        ShortName = NEW.ShortName,
        LongName = NEW.LongName,
        Family = CASE
            WHEN NEW.Family IS NOT OLD.Family THEN NEW.Family
            WHEN NEW.UnitRole IS NOT OLD.UnitRole THEN
                COALESCE((SELECT Family FROM tblFamily WHERE UnitRole = NEW.UnitRole),
                         OLD.Family)
            ELSE OLD.Family END,
        Allegiance = CASE
            WHEN NEW.Allegiance IS NOT OLD.Allegiance THEN NEW.Allegiance
            WHEN NEW.AirforceName IS NOT OLD.AirforceName THEN
                COALESCE((SELECT Allegiance FROM tblAllegiance
                          WHERE AirforceName = NEW.AirforceName), OLD.Allegiance)
            ELSE OLD.Allegiance END,
        Gun = NEW.Gun,
        Cannon = NEW.Cannon,
        Rockets = NEW.Rockets,
        Bombs = NEW.Bombs
    WHERE AcID = OLD.AcID;
END;

CREATE TRIGGER qryAllMovingUnits_Delete INSTEAD OF DELETE ON qryAllMovingUnits
BEGIN
    DELETE FROM Aircraft WHERE AcID = OLD.AcID;
END;

CREATE VIEW qryAirFields AS
SELECT Airfields.RwyID AS RwyID,
       Airfields.RwyLat AS RwyLat,
       Airfields.RwyLon AS RwyLon,
       Airfields.TypeID AS TypeID,
       Airfields.Elevation AS Elevation,
       Airfields.ROT AS ROT,
       COALESCE(RunwayTypes.Units, 1) AS Units
FROM Airfields
LEFT JOIN RunwayTypes ON RunwayTypes.TypeID = Airfields.TypeID;

CREATE VIEW qryGroundUnitDetails AS
SELECT GrndTypes.ID AS ID,
       GrndTypes.UnitType AS UnitType,
       Stationary.FullName AS FullName,
       GrndTypes.Points AS Points,
       GrndTypes.Heading AS Heading,
       GrndTypes.XOffset AS XOffset,
       GrndTypes.YOffset AS YOffset,
       CASE GrndTypes.DamageID WHEN 1 THEN 'Smoke' WHEN 2 THEN 'Fire' ELSE 'None' END AS Damage,
       GrndTypes.DamageID AS DamageID,
       Stationary.StationaryName AS StationaryName,
       Stationary.Allegiance AS Allegiance
FROM GrndTypes
LEFT JOIN Stationary ON Stationary.UnitType = GrndTypes.UnitType;

-- A unit row has no key of its own: OLD's GrndTypes fields identify it. The
-- grid may name a type by its descriptive name and a damage by its text.
CREATE TRIGGER qryGroundUnitDetails_Insert INSTEAD OF INSERT ON qryGroundUnitDetails
BEGIN
    INSERT INTO GrndTypes (ID, UnitType, Points, Heading, XOffset, YOffset, DamageID)
    VALUES (NEW.ID,
            COALESCE(NEW.UnitType,
                     (SELECT MIN(UnitType) FROM Stationary WHERE FullName = NEW.FullName)),
            COALESCE(NEW.Points, 0),
            COALESCE(NEW.Heading, 0),
            COALESCE(NEW.XOffset, 0),
            COALESCE(NEW.YOffset, 0),
            COALESCE(NEW.DamageID,
                     CASE NEW.Damage WHEN 'Smoke' THEN 1 WHEN 'Fire' THEN 2 ELSE 0 END));
END;

CREATE TRIGGER qryGroundUnitDetails_Update INSTEAD OF UPDATE ON qryGroundUnitDetails
BEGIN
    UPDATE GrndTypes SET
        ID = NEW.ID,
        UnitType = CASE
            WHEN NEW.UnitType IS NOT OLD.UnitType THEN NEW.UnitType
            WHEN NEW.FullName IS NOT OLD.FullName THEN
                COALESCE((SELECT MIN(UnitType) FROM Stationary WHERE FullName = NEW.FullName),
                         OLD.UnitType)
            ELSE OLD.UnitType END,
        Points = NEW.Points,
        Heading = NEW.Heading,
        XOffset = NEW.XOffset,
        YOffset = NEW.YOffset,
        DamageID = CASE
            WHEN NEW.DamageID IS NOT OLD.DamageID THEN NEW.DamageID
            WHEN NEW.Damage IS NOT OLD.Damage THEN
                CASE NEW.Damage WHEN 'Smoke' THEN 1 WHEN 'Fire' THEN 2 ELSE 0 END
            ELSE OLD.DamageID END
    WHERE ID IS OLD.ID AND UnitType IS OLD.UnitType AND Points IS OLD.Points
      AND Heading IS OLD.Heading AND XOffset IS OLD.XOffset
      AND YOffset IS OLD.YOffset AND DamageID IS OLD.DamageID;
END;

CREATE TRIGGER qryGroundUnitDetails_Delete INSTEAD OF DELETE ON qryGroundUnitDetails
BEGIN
    DELETE FROM GrndTypes
    WHERE ID IS OLD.ID AND UnitType IS OLD.UnitType AND Points IS OLD.Points
      AND Heading IS OLD.Heading AND XOffset IS OLD.XOffset
      AND YOffset IS OLD.YOffset AND DamageID IS OLD.DamageID;
END;

-- The offsets window: Expr1 and Expr2 are XOffset and YOffset in metres
-- (metric) or feet (imperial). Edits reach XOffset/YOffset; an edit of Expr1
-- or Expr2 alone is carried back into layout units.
CREATE VIEW qryGUOffsetsMetric AS
SELECT GrndTypes.ID AS ID,
       Stationary.FullName AS FullName,
       GrndTypes.XOffset AS XOffset,
       GrndTypes.YOffset AS YOffset,
       GrndTypes.XOffset * 1000.0 AS Expr1,
       GrndTypes.YOffset * 1000.0 AS Expr2,
       GrndNames.IsDefault AS IsDefault
FROM GrndTypes
JOIN GrndNames ON GrndNames.ID = GrndTypes.ID
LEFT JOIN Stationary ON Stationary.UnitType = GrndTypes.UnitType;

CREATE VIEW qryGUOffsetsImp AS
SELECT GrndTypes.ID AS ID,
       Stationary.FullName AS FullName,
       GrndTypes.XOffset AS XOffset,
       GrndTypes.YOffset AS YOffset,
       GrndTypes.XOffset * 3280.8 AS Expr1,
       GrndTypes.YOffset * 3280.8 AS Expr2,
       GrndNames.IsDefault AS IsDefault
FROM GrndTypes
JOIN GrndNames ON GrndNames.ID = GrndTypes.ID
LEFT JOIN Stationary ON Stationary.UnitType = GrndTypes.UnitType;

-- The offsets views show no UnitType: a row is found by its layout, its
-- offsets and the descriptive name of its type.
CREATE TRIGGER qryGUOffsetsMetric_Insert INSTEAD OF INSERT ON qryGUOffsetsMetric
BEGIN
    INSERT INTO GrndTypes (ID, UnitType, XOffset, YOffset)
    VALUES (NEW.ID,
            (SELECT MIN(UnitType) FROM Stationary WHERE FullName = NEW.FullName),
            COALESCE(NEW.XOffset, NEW.Expr1 / 1000.0, 0),
            COALESCE(NEW.YOffset, NEW.Expr2 / 1000.0, 0));
END;

CREATE TRIGGER qryGUOffsetsMetric_Update INSTEAD OF UPDATE ON qryGUOffsetsMetric
BEGIN
    UPDATE GrndTypes SET
        XOffset = CASE
            WHEN NEW.XOffset IS NOT OLD.XOffset THEN NEW.XOffset
            WHEN NEW.Expr1 IS NOT OLD.Expr1 THEN NEW.Expr1 / 1000.0
            ELSE OLD.XOffset END,
        YOffset = CASE
            WHEN NEW.YOffset IS NOT OLD.YOffset THEN NEW.YOffset
            WHEN NEW.Expr2 IS NOT OLD.Expr2 THEN NEW.Expr2 / 1000.0
            ELSE OLD.YOffset END
    WHERE ID IS OLD.ID AND XOffset IS OLD.XOffset AND YOffset IS OLD.YOffset
      AND (SELECT FullName FROM Stationary
           WHERE Stationary.UnitType = GrndTypes.UnitType) IS OLD.FullName;
END;

CREATE TRIGGER qryGUOffsetsMetric_Delete INSTEAD OF DELETE ON qryGUOffsetsMetric
BEGIN
    DELETE FROM GrndTypes
    WHERE ID IS OLD.ID AND XOffset IS OLD.XOffset AND YOffset IS OLD.YOffset
      AND (SELECT FullName FROM Stationary
           WHERE Stationary.UnitType = GrndTypes.UnitType) IS OLD.FullName;
END;

CREATE TRIGGER qryGUOffsetsImp_Insert INSTEAD OF INSERT ON qryGUOffsetsImp
BEGIN
    INSERT INTO GrndTypes (ID, UnitType, XOffset, YOffset)
    VALUES (NEW.ID,
            (SELECT MIN(UnitType) FROM Stationary WHERE FullName = NEW.FullName),
            COALESCE(NEW.XOffset, NEW.Expr1 / 3280.8, 0),
            COALESCE(NEW.YOffset, NEW.Expr2 / 3280.8, 0));
END;

CREATE TRIGGER qryGUOffsetsImp_Update INSTEAD OF UPDATE ON qryGUOffsetsImp
BEGIN
    UPDATE GrndTypes SET
        XOffset = CASE
            WHEN NEW.XOffset IS NOT OLD.XOffset THEN NEW.XOffset
            WHEN NEW.Expr1 IS NOT OLD.Expr1 THEN NEW.Expr1 / 3280.8
            ELSE OLD.XOffset END,
        YOffset = CASE
            WHEN NEW.YOffset IS NOT OLD.YOffset THEN NEW.YOffset
            WHEN NEW.Expr2 IS NOT OLD.Expr2 THEN NEW.Expr2 / 3280.8
            ELSE OLD.YOffset END
    WHERE ID IS OLD.ID AND XOffset IS OLD.XOffset AND YOffset IS OLD.YOffset
      AND (SELECT FullName FROM Stationary
           WHERE Stationary.UnitType = GrndTypes.UnitType) IS OLD.FullName;
END;

CREATE TRIGGER qryGUOffsetsImp_Delete INSTEAD OF DELETE ON qryGUOffsetsImp
BEGIN
    DELETE FROM GrndTypes
    WHERE ID IS OLD.ID AND XOffset IS OLD.XOffset AND YOffset IS OLD.YOffset
      AND (SELECT FullName FROM Stationary
           WHERE Stationary.UnitType = GrndTypes.UnitType) IS OLD.FullName;
END;

COMMIT;
