-- Rows of a default installation of the Tarvex Mission Editor.
--
-- Units: airfield positions in signed decimal degrees (north and east
-- positive); Airfields.Elevation in whole metres above mean sea level;
-- GrndTypes offsets in layout units (one minute of arc in a mission file,
-- 1000 m in the editor's read-outs), XOffset ahead, YOffset to the right;
-- frmPatterns stations in metres from the leader, frmX ahead (negative
-- behind), frmY to the right (negative left), frmZ up.

BEGIN;

-- The aircraft form appends "All Families"/"All Allegiances" behind these
-- and takes list index 3 as no filter, so exactly three rows each, in order.
INSERT INTO tblFamily (UnitRole, Family) VALUES
    ('Fighter', 1),
    ('Bomber', 2),
    ('Other', 3);

INSERT INTO tblAllegiance (AirforceName, Allegiance) VALUES
    ('RAF', 1),
    ('Luftwaffe', 2),
    ('USAAF', 3);

-- Aircraft and moving units. Gun and Cannon are rounds carried, Rockets the
-- number of rockets, Bombs the bomb load in kilograms. Flyable aircraft are
-- offered for new pilots (Add2Combo 1); ground and sea units are not.
INSERT INTO Aircraft (AcID, ShortName, LongName, Family, Allegiance, Gun, Cannon, Rockets, Bombs, Add2Combo) VALUES
    (1, 'SpitfireMkI', 'Supermarine Spitfire Mk.I', 1, 1, 2400, 0, 0, 0, 1),
    (2, 'SpitfireMkIIa', 'Supermarine Spitfire Mk.IIa', 1, 1, 2800, 0, 0, 0, 1),
    (3, 'SpitfireMkVb', 'Supermarine Spitfire Mk.Vb', 1, 1, 1400, 120, 0, 0, 1),
    (4, 'HurricaneMkI', 'Hawker Hurricane Mk.I', 1, 1, 2672, 0, 0, 0, 1),
    (5, 'HurricaneMkIIb', 'Hawker Hurricane Mk.IIb', 1, 1, 3984, 0, 0, 0, 1),
    (6, 'HurricaneMkIIc', 'Hawker Hurricane Mk.IIc', 1, 1, 0, 364, 0, 0, 1),
    (7, 'DefiantMkI', 'Boulton Paul Defiant Mk.I', 1, 1, 2400, 0, 0, 0, 1),
    (8, 'GladiatorMkII', 'Gloster Gladiator Mk.II', 1, 1, 2000, 0, 0, 0, 1),
    (9, 'BlenheimMkIF', 'Bristol Blenheim Mk.IF night fighter', 1, 1, 2900, 0, 0, 0, 1),
    (10, 'BeaufighterMkIF', 'Bristol Beaufighter Mk.IF', 1, 1, 6000, 240, 0, 0, 1),
    (11, 'WhirlwindMkI', 'Westland Whirlwind Mk.I', 1, 1, 0, 240, 0, 0, 1),
    (12, 'TyphoonMkIb', 'Hawker Typhoon Mk.Ib', 1, 1, 0, 560, 8, 454, 1),
    (20, 'BlenheimMkIV', 'Bristol Blenheim Mk.IV', 2, 1, 1800, 0, 0, 454, 1),
    (21, 'WellingtonMkIc', 'Vickers Wellington Mk.Ic', 2, 1, 4000, 0, 0, 2041, 1),
    (22, 'HampdenMkI', 'Handley Page Hampden Mk.I', 2, 1, 2500, 0, 0, 1814, 1),
    (23, 'WhitleyMkV', 'Armstrong Whitworth Whitley Mk.V', 2, 1, 3000, 0, 0, 3175, 1),
    (24, 'BattleMkI', 'Fairey Battle Mk.I', 2, 1, 500, 0, 0, 454, 1),
    (25, 'AnsonMkI', 'Avro Anson Mk.I', 2, 1, 1000, 0, 0, 163, 1),
    (40, 'Bf109E3', 'Messerschmitt Bf 109 E-3', 1, 2, 1000, 120, 0, 0, 1),
    (41, 'Bf109E4', 'Messerschmitt Bf 109 E-4', 1, 2, 1000, 120, 0, 0, 1),
    (42, 'Bf109E4B', 'Messerschmitt Bf 109 E-4/B fighter-bomber', 1, 2, 1000, 120, 0, 250, 1),
    (43, 'Bf109F4', 'Messerschmitt Bf 109 F-4', 1, 2, 1000, 200, 0, 0, 1),
    (44, 'Bf110C4', 'Messerschmitt Bf 110 C-4', 1, 2, 4750, 360, 0, 0, 1),
    (45, 'Bf110C4B', 'Messerschmitt Bf 110 C-4/B fighter-bomber', 1, 2, 4750, 360, 0, 1000, 1),
    (46, 'Fw190A3', 'Focke-Wulf Fw 190 A-3', 1, 2, 1800, 680, 0, 0, 1),
    (60, 'He111H2', 'Heinkel He 111 H-2', 2, 2, 4500, 0, 0, 2000, 1),
    (61, 'He111P2', 'Heinkel He 111 P-2', 2, 2, 3750, 0, 0, 2000, 1),
    (62, 'Do17Z2', 'Dornier Do 17 Z-2', 2, 2, 4000, 0, 0, 1000, 1),
    (63, 'Ju88A1', 'Junkers Ju 88 A-1', 2, 2, 3000, 0, 0, 1800, 1),
    (64, 'Ju87B2', 'Junkers Ju 87 B-2 Stuka', 2, 2, 1900, 0, 0, 450, 1),
    (80, 'P38F', 'Lockheed P-38F Lightning', 1, 3, 2000, 150, 0, 0, 1),
    (81, 'P47D', 'Republic P-47D Thunderbolt', 1, 3, 3400, 0, 0, 454, 1),
    (82, 'P51B', 'North American P-51B Mustang', 1, 3, 1260, 0, 0, 0, 1),
    (90, 'B17F', 'Boeing B-17F Flying Fortress', 2, 3, 6380, 0, 0, 2722, 1),
    (91, 'B24D', 'Consolidated B-24D Liberator', 2, 3, 5200, 0, 0, 3629, 1),
    (92, 'B26B', 'Martin B-26B Marauder', 2, 3, 4700, 0, 0, 1814, 1),
    (100, 'BedfordOY', 'Bedford OY 3-ton lorry', 3, 1, 0, 0, 0, 0, 0),
    (101, 'BedfordQL', 'Bedford QL troop carrier', 3, 1, 0, 0, 0, 0, 0),
    (102, 'MatildaII', 'Infantry Tank Mk.II Matilda II', 3, 1, 2925, 93, 0, 0, 0),
    (103, 'CrusaderI', 'Cruiser Tank Mk.VI Crusader I', 3, 1, 4950, 110, 0, 0, 0),
    (104, 'Collier', 'Coastal collier of an east coast convoy', 3, 1, 0, 0, 0, 0, 0),
    (105, 'DestroyerVW', 'V and W class convoy escort destroyer', 3, 1, 4000, 400, 0, 0, 0),
    (106, 'ThamesBarge', 'Thames sailing barge', 3, 1, 0, 0, 0, 0, 0),
    (107, 'RiverTug', 'Thames river tug', 3, 1, 0, 0, 0, 0, 0),
    (120, 'OpelBlitz', 'Opel Blitz 3-ton lorry', 3, 2, 0, 0, 0, 0, 0),
    (121, 'Kuebelwagen', 'Volkswagen Kuebelwagen Typ 82', 3, 2, 0, 0, 0, 0, 0),
    (122, 'PzKpfwIIIF', 'Panzerkampfwagen III Ausf. F', 3, 2, 3750, 99, 0, 0, 0),
    (123, 'PzKpfwIVD', 'Panzerkampfwagen IV Ausf. D', 3, 2, 2700, 80, 0, 0, 0),
    (124, 'SdKfz251', 'SdKfz 251 half-track', 3, 2, 2010, 0, 0, 0, 0),
    (125, 'Schnellboot', 'S-Boot motor torpedo boat', 3, 2, 0, 1000, 0, 0, 0),
    (126, 'BR52Loco', 'Reichsbahn class 52 locomotive', 3, 2, 0, 0, 0, 0, 0),
    (127, 'G10Wagon', 'Reichsbahn G10 covered goods wagon', 3, 2, 0, 0, 0, 0, 0),
    (128, 'FlatWagon', 'Reichsbahn flat wagon', 3, 2, 0, 0, 0, 0, 0),
    (129, 'FlakWagon', 'Reichsbahn flak wagon with 2cm Flakvierling', 3, 2, 0, 3000, 0, 0, 0);

-- Runway types: Units is how many aircraft take off side by side.
INSERT INTO RunwayTypes (TypeID, TypeName, Units) VALUES
    (1, 'Grass field', 3),
    (2, 'Single paved runway', 2),
    (3, 'Three paved runways', 2);

-- Airfields. Recnum is the 1-based position in ORDER BY Name (binary
-- collation): the airfield combos are filled in that order and turn a list
-- index into Recnum without a search, so rows are listed here in that order.
-- Names are plain ASCII. A new path starts at list row 16 (Croydon) and ends at
-- row 8 (Bradwell Bay). Elevation in metres; ROT the runway heading in degrees.
INSERT INTO Airfields (Recnum, Name, RwyID, RwyLat, RwyLon, TypeID, Elevation, ROT) VALUES
    (1, 'Abbeville-Drucat', 201, 50.1436, 1.8317, 1, 67, 200),
    (2, 'Amiens-Glisy', 202, 49.8731, 2.3869, 1, 63, 240),
    (3, 'Andover', 101, 51.2094, -1.4519, 1, 84, 250),
    (4, 'Antwerp-Deurne', 203, 51.1894, 4.4603, 2, 12, 290),
    (5, 'Audembert', 204, 50.8530, 1.6920, 1, 40, 240),
    (6, 'Beauvais-Tille', 205, 49.4544, 2.1128, 1, 109, 220),
    (7, 'Biggin Hill', 102, 51.3308, 0.0325, 1, 182, 210),
    (8, 'Boscombe Down', 103, 51.1522, -1.7474, 1, 124, 230),
    (9, 'Bradwell Bay', 104, 51.7350, 0.8950, 1, 5, 250),
    (10, 'Brussels-Evere', 206, 50.8800, 4.4200, 2, 60, 250),
    (11, 'Caen-Carpiquet', 207, 49.1733, -0.4500, 1, 78, 300),
    (12, 'Calais-Marck', 208, 50.9622, 1.9544, 1, 3, 240),
    (13, 'Cherbourg-Maupertus', 209, 49.6503, -1.4703, 1, 140, 280),
    (14, 'Chievres', 210, 50.5758, 3.8310, 1, 59, 270),
    (15, 'Coquelles', 211, 50.9250, 1.8000, 1, 20, 230),
    (16, 'Cormeilles-en-Vexin', 212, 49.0964, 2.0403, 1, 99, 230),
    (17, 'Croydon', 105, 51.3567, -0.1169, 1, 100, 240),
    (18, 'Debden', 106, 51.9911, 0.2714, 2, 118, 230),
    (19, 'Desvres', 213, 50.6680, 1.8300, 1, 110, 240),
    (20, 'Detling', 107, 51.3036, 0.5972, 1, 190, 220),
    (21, 'Dinard-Pleurtuit', 214, 48.5877, -2.0800, 1, 67, 300),
    (22, 'Duxford', 108, 52.0908, 0.1319, 1, 38, 240),
    (23, 'Eastchurch', 109, 51.3950, 0.8450, 1, 12, 270),
    (24, 'Evreux', 215, 49.0287, 1.2198, 1, 141, 220),
    (25, 'Ford', 110, 50.8156, -0.5906, 1, 9, 230),
    (26, 'Gatwick', 111, 51.1481, -0.1903, 1, 60, 260),
    (27, 'Gravesend', 112, 51.4181, 0.3867, 1, 56, 240),
    (28, 'Guines', 216, 50.8500, 1.8700, 1, 70, 240),
    (29, 'Hawkinge', 113, 51.1125, 1.1561, 1, 168, 220),
    (30, 'Hornchurch', 114, 51.5364, 0.2056, 1, 12, 230),
    (31, 'Kenley', 115, 51.3050, -0.0939, 2, 170, 210),
    (32, 'Le Havre-Octeville', 217, 49.5339, 0.0881, 1, 95, 230),
    (33, 'Le Touquet', 218, 50.5175, 1.6206, 2, 11, 320),
    (34, 'Lille-Vendeville', 219, 50.5633, 3.0869, 2, 48, 260),
    (35, 'Lympne', 116, 51.0800, 1.0133, 1, 107, 240),
    (36, 'Manston', 117, 51.3422, 1.3461, 1, 54, 286),
    (37, 'Mardyck', 220, 51.0200, 2.2600, 1, 3, 250),
    (38, 'Marquise', 221, 50.8150, 1.6950, 1, 60, 240),
    (39, 'Martlesham Heath', 118, 52.0600, 1.2700, 1, 27, 220),
    (40, 'Merville', 222, 50.6183, 2.6422, 1, 15, 260),
    (41, 'Middle Wallop', 119, 51.1394, -1.5700, 1, 90, 230),
    (42, 'North Weald', 120, 51.7217, 0.1542, 2, 98, 200),
    (43, 'Northolt', 121, 51.5530, -0.4182, 2, 38, 255),
    (44, 'Odiham', 122, 51.2342, -0.9428, 1, 123, 270),
    (45, 'Redhill', 123, 51.2136, -0.1389, 1, 68, 260),
    (46, 'Rochford', 124, 51.5714, 0.6956, 1, 15, 240),
    (47, 'Rouen-Boos', 223, 49.3842, 1.1747, 1, 157, 220),
    (48, 'Schiphol', 224, 52.3081, 4.7642, 3, -4, 240),
    (49, 'St. Inglevert', 225, 50.8833, 1.7333, 1, 120, 240),
    (50, 'St. Omer', 226, 50.7289, 2.2358, 1, 75, 240),
    (51, 'Stapleford Tawney', 125, 51.6525, 0.1558, 1, 56, 210),
    (52, 'Tangmere', 126, 50.8456, -0.7064, 3, 15, 250),
    (53, 'Thorney Island', 127, 50.8142, -0.9247, 3, 3, 250),
    (54, 'Villacoublay', 227, 48.7742, 2.1917, 2, 179, 280),
    (55, 'Warmwell', 128, 50.6942, -2.3444, 1, 63, 240),
    (56, 'West Malling', 129, 51.2700, 0.4017, 1, 94, 250),
    (57, 'Westhampnett', 130, 50.8597, -0.7592, 1, 34, 240),
    (58, 'Wissant', 228, 50.8820, 1.6760, 1, 50, 240);

-- The eight theatre maps in the order of the map combos. The corner texts
-- go into map_1, map_left, map_bottom and map_right of a mission: top and
-- bottom latitude, and the longitudes of the bottom left and bottom right
-- corners, in the two-decimal coordinate text of a waypoint.
INSERT INTO Maps (Recnum, Name, "Top", "Left", "Bottom", "Right") VALUES
    (1, 'Map1Bob', 'N52 28.00', 'W01 38.00', 'N49 56.00', 'E02 29.00'),
    (2, 'Map2Bob', 'N51 22.00', 'W02 31.00', 'N48 32.00', 'E02 04.00'),
    (3, 'Map3Bob', 'N51 46.00', 'W00 36.00', 'N50 30.00', 'E01 27.00'),
    (4, 'Map4Bob', 'N51 51.00', 'W03 12.00', 'N49 10.00', 'E01 11.00'),
    (5, 'Map1BfE', 'N55 33.00', 'W03 56.00', 'N44 13.00', 'E13 35.00'),
    (6, 'Map2BfE', 'N53 01.00', 'W04 00.00', 'N47 18.00', 'E04 12.00'),
    (7, 'Map3BfE', 'N50 28.00', 'W04 08.00', 'N45 23.00', 'E02 03.00'),
    (8, 'Map4BfE', 'N54 34.00', 'E03 36.00', 'N47 24.00', 'E14 17.00');

-- Formation patterns: how many pilots each holds (at most 20, since unit
-- ids of one group are 20 apart) and the station of each pilot in metres
-- from the leader: frmX ahead, frmY right, frmZ up.
INSERT INTO frmNames (frmID, TotalUnits) VALUES
    (7000, 12),
    (7002, 12),
    (7003, 12),
    (7004, 18),
    (7005, 9),
    (7007, 6),
    (7009, 8),
    (7010, 12),
    (7011, 12),
    (7050, 20),
    (7051, 16),
    (7052, 12),
    (7053, 12),
    (7054, 8),
    (7056, 8);

-- 7000 Finger Four
INSERT INTO frmPatterns (frmID, frmX, frmY, frmZ) VALUES
    (7000, 0, 0, 0),
    (7000, -40, -60, 0),
    (7000, -40, 60, 10),
    (7000, -80, 120, 20),
    (7000, -150, -300, 100),
    (7000, -190, -360, 100),
    (7000, -190, -240, 110),
    (7000, -230, -180, 120),
    (7000, -150, 300, 150),
    (7000, -190, 240, 150),
    (7000, -190, 360, 160),
    (7000, -230, 420, 170);

-- 7002 English Vic
INSERT INTO frmPatterns (frmID, frmX, frmY, frmZ) VALUES
    (7002, 0, 0, 0),
    (7002, -20, -25, 0),
    (7002, -20, 25, 0),
    (7002, -60, 80, 0),
    (7002, -80, 55, 0),
    (7002, -80, 105, 0),
    (7002, -60, -80, 0),
    (7002, -80, -105, 0),
    (7002, -80, -55, 0),
    (7002, -120, 0, -20),
    (7002, -140, -25, -20),
    (7002, -140, 25, -20);

-- 7003 English Formation 2
INSERT INTO frmPatterns (frmID, frmX, frmY, frmZ) VALUES
    (7003, 0, 0, 0),
    (7003, -20, -25, 0),
    (7003, -20, 25, 0),
    (7003, -70, 0, -15),
    (7003, -90, -25, -15),
    (7003, -90, 25, -15),
    (7003, -140, 0, -30),
    (7003, -160, -25, -30),
    (7003, -160, 25, -30),
    (7003, -210, 0, -45),
    (7003, -230, -25, -45),
    (7003, -230, 25, -45);

-- 7004 B-17 Compact Formation
INSERT INTO frmPatterns (frmID, frmX, frmY, frmZ) VALUES
    (7004, 0, 0, 0),
    (7004, -50, -60, 0),
    (7004, -50, 60, 0),
    (7004, -130, -30, -45),
    (7004, -180, -90, -45),
    (7004, -180, 30, -45),
    (7004, -100, 180, 45),
    (7004, -150, 120, 45),
    (7004, -150, 240, 45),
    (7004, -230, 150, 0),
    (7004, -280, 90, 0),
    (7004, -280, 210, 0),
    (7004, -100, -180, -45),
    (7004, -150, -240, -45),
    (7004, -150, -120, -45),
    (7004, -230, -210, -90),
    (7004, -280, -270, -90),
    (7004, -280, -150, -90);

-- 7005 German Bomber V
INSERT INTO frmPatterns (frmID, frmX, frmY, frmZ) VALUES
    (7005, 0, 0, 0),
    (7005, -40, -50, 0),
    (7005, -40, 50, 0),
    (7005, -150, -180, 20),
    (7005, -190, -230, 20),
    (7005, -190, -130, 20),
    (7005, -150, 180, 20),
    (7005, -190, 130, 20),
    (7005, -190, 230, 20);

-- 7007 Ketten
INSERT INTO frmPatterns (frmID, frmX, frmY, frmZ) VALUES
    (7007, 0, 0, 0),
    (7007, -40, -50, 0),
    (7007, -40, 50, 0),
    (7007, -120, 0, 30),
    (7007, -160, -50, 30),
    (7007, -160, 50, 30);

-- 7009 Line Abreast
INSERT INTO frmPatterns (frmID, frmX, frmY, frmZ) VALUES
    (7009, 0, 0, 0),
    (7009, 0, 80, 0),
    (7009, 0, -80, 0),
    (7009, 0, 160, 0),
    (7009, 0, -160, 0),
    (7009, 0, 240, 0),
    (7009, 0, -240, 0),
    (7009, 0, 320, 0);

-- 7010 Line Astern (Malan's Formation)
INSERT INTO frmPatterns (frmID, frmX, frmY, frmZ) VALUES
    (7010, 0, 0, 0),
    (7010, -50, 0, -5),
    (7010, -100, 0, -10),
    (7010, -150, 0, -15),
    (7010, 0, -120, 0),
    (7010, -50, -120, -5),
    (7010, -100, -120, -10),
    (7010, -150, -120, -15),
    (7010, 0, 120, 0),
    (7010, -50, 120, -5),
    (7010, -100, 120, -10),
    (7010, -150, 120, -15);

-- 7011 Single File
INSERT INTO frmPatterns (frmID, frmX, frmY, frmZ) VALUES
    (7011, 0, 0, 0),
    (7011, -60, 0, -5),
    (7011, -120, 0, -10),
    (7011, -180, 0, -15),
    (7011, -240, 0, -20),
    (7011, -300, 0, -25),
    (7011, -360, 0, -30),
    (7011, -420, 0, -35),
    (7011, -480, 0, -40),
    (7011, -540, 0, -45),
    (7011, -600, 0, -50),
    (7011, -660, 0, -55);

-- 7050 Vehicle Convoy
INSERT INTO frmPatterns (frmID, frmX, frmY, frmZ) VALUES
    (7050, 0, 0, 0),
    (7050, -25, 0, 0),
    (7050, -50, 0, 0),
    (7050, -75, 0, 0),
    (7050, -100, 0, 0),
    (7050, -125, 0, 0),
    (7050, -150, 0, 0),
    (7050, -175, 0, 0),
    (7050, -200, 0, 0),
    (7050, -225, 0, 0),
    (7050, -250, 0, 0),
    (7050, -275, 0, 0),
    (7050, -300, 0, 0),
    (7050, -325, 0, 0),
    (7050, -350, 0, 0),
    (7050, -375, 0, 0),
    (7050, -400, 0, 0),
    (7050, -425, 0, 0),
    (7050, -450, 0, 0),
    (7050, -475, 0, 0);

-- 7051 Tank Battalion
INSERT INTO frmPatterns (frmID, frmX, frmY, frmZ) VALUES
    (7051, 0, 0, 0),
    (7051, -30, -25, 0),
    (7051, -30, 25, 0),
    (7051, -60, 0, 0),
    (7051, -120, 0, 0),
    (7051, -150, -25, 0),
    (7051, -150, 25, 0),
    (7051, -180, 0, 0),
    (7051, -240, 0, 0),
    (7051, -270, -25, 0),
    (7051, -270, 25, 0),
    (7051, -300, 0, 0),
    (7051, -360, 0, 0),
    (7051, -390, -25, 0),
    (7051, -390, 25, 0),
    (7051, -420, 0, 0);

-- 7052 English ship convoy
INSERT INTO frmPatterns (frmID, frmX, frmY, frmZ) VALUES
    (7052, 0, 0, 0),
    (7052, 0, -900, 0),
    (7052, 0, 900, 0),
    (7052, -550, 0, 0),
    (7052, -550, -900, 0),
    (7052, -550, 900, 0),
    (7052, -1100, 0, 0),
    (7052, -1100, -900, 0),
    (7052, -1100, 900, 0),
    (7052, -1650, 0, 0),
    (7052, -1650, -900, 0),
    (7052, -1650, 900, 0);

-- 7053 German Train
INSERT INTO frmPatterns (frmID, frmX, frmY, frmZ) VALUES
    (7053, 0, 0, 0),
    (7053, -22, 0, 0),
    (7053, -34, 0, 0),
    (7053, -46, 0, 0),
    (7053, -58, 0, 0),
    (7053, -70, 0, 0),
    (7053, -82, 0, 0),
    (7053, -94, 0, 0),
    (7053, -106, 0, 0),
    (7053, -118, 0, 0),
    (7053, -130, 0, 0),
    (7053, -142, 0, 0);

-- 7054 English river convoy
INSERT INTO frmPatterns (frmID, frmX, frmY, frmZ) VALUES
    (7054, 0, 0, 0),
    (7054, -150, 0, 0),
    (7054, -300, 0, 0),
    (7054, -450, 0, 0),
    (7054, -600, 0, 0),
    (7054, -750, 0, 0),
    (7054, -900, 0, 0),
    (7054, -1050, 0, 0);

-- 7056 German Train for TM's
INSERT INTO frmPatterns (frmID, frmX, frmY, frmZ) VALUES
    (7056, 0, 0, 0),
    (7056, -22, 0, 0),
    (7056, -34, 0, 0),
    (7056, -46, 0, 0),
    (7056, -58, 0, 0),
    (7056, -70, 0, 0),
    (7056, -82, 0, 0),
    (7056, -94, 0, 0);

-- Stationary unit types. FullName is what the lists show (one name may
-- stand for a British and a German type); StationaryName is the simulator's
-- own name of the type; Allegiance 1 British, 2 German.
INSERT INTO Stationary (UnitType, FullName, StationaryName, Allegiance) VALUES
    (4001, '3.7 inch heavy AA gun', 'QF37inAA', 1),
    (4002, '40mm Bofors light AA gun', 'Bofors40mm', 1),
    (4003, 'Lewis gun AA post', 'LewisAAPost', 1),
    (4004, 'Searchlight', 'SearchlightUK', 1),
    (4005, 'Chain Home transmitter mast', 'CHTxMast', 1),
    (4006, 'Chain Home receiver mast', 'CHRxMast', 1),
    (4007, 'Radar receiver block', 'CHRxBlock', 1),
    (4008, 'Barrage balloon', 'BarrageBalloon', 1),
    (4009, 'Bellman hangar', 'HangarBellman', 1),
    (4010, 'C-type hangar', 'HangarTypeC', 1),
    (4011, 'Blister hangar', 'HangarBlister', 1),
    (4012, 'Watch office', 'WatchOffice', 1),
    (4013, 'Aviation fuel dump', 'FuelDumpUK', 1),
    (4014, 'Bomb store', 'BombStoreUK', 1),
    (4015, 'Barrack block', 'BarracksUK', 1),
    (4016, 'Spitfire Mk.I parked', 'StaticSpitfire', 1),
    (4017, 'Hurricane Mk.I parked', 'StaticHurricane', 1),
    (4018, 'Fuel bowser', 'BowserUK', 1),
    (4019, 'Fighter blast pen', 'BlastPen', 1),
    (4020, 'Factory shed', 'FactoryShed', 1),
    (4021, 'Factory chimney', 'FactoryChimney', 1),
    (4022, 'Gasholder', 'Gasholder', 1),
    (4023, 'Warehouse', 'WarehouseUK', 1),
    (4024, 'Dockside crane', 'DockCraneUK', 1),
    (4025, 'Cargo ship moored', 'MooredFreighter', 1),
    (4026, 'Oil storage tank', 'OilTankUK', 1),
    (4027, 'Railway goods shed', 'GoodsShedUK', 1),
    (4028, 'Goods wagon', 'GoodsWagonUK', 1),
    (4029, 'Steam locomotive', 'LocoUK', 1),
    (4030, 'Army bell tent', 'BellTent', 1),
    (4031, 'Nissen hut', 'NissenHut', 1),
    (4032, 'Army lorry parked', 'ParkedBedford', 1),
    (4033, 'Pillbox', 'PillboxUK', 1),
    (4034, 'Gun operations room', 'GunOpsRoom', 1),
    (4051, '8.8cm Flak 36 heavy AA gun', 'Flak88', 2),
    (4052, '2cm Flak 30 light AA gun', 'Flak20', 2),
    (4053, '3.7cm Flak 36 medium AA gun', 'Flak37', 2),
    (4054, 'Flak predictor', 'FlakPredictor', 2),
    (4055, 'Searchlight', 'SearchlightDE', 2),
    (4056, 'Freya radar', 'FreyaRadar', 2),
    (4057, 'Wuerzburg radar', 'WuerzburgRadar', 2),
    (4058, 'Luftwaffe hangar', 'HangarDE', 2),
    (4059, 'Tent hangar', 'TentHangar', 2),
    (4060, 'Airfield control tower', 'TowerDE', 2),
    (4061, 'Fuel drum dump', 'FuelDrums', 2),
    (4062, 'Bf 109 E parked', 'StaticBf109', 2),
    (4063, 'He 111 parked', 'StaticHe111', 2),
    (4064, 'Ju 87 B parked', 'StaticJu87', 2),
    (4065, 'Fuel tanker lorry', 'BowserDE', 2),
    (4066, 'Barrack hut', 'BarracksDE', 2),
    (4067, 'Bomb dump', 'BombStoreDE', 2),
    (4068, '28cm coastal gun', 'CoastalGun28', 2),
    (4069, 'Invasion barge', 'InvasionBarge', 2),
    (4070, 'Harbour crane', 'DockCraneFR', 2),
    (4071, 'Harbour fuel tank', 'OilTankFR', 2),
    (4072, 'Steam locomotive', 'LocoFR', 2),
    (4073, 'Goods wagon', 'GoodsWagonFR', 2),
    (4074, 'Concrete bunker', 'BunkerDE', 2),
    (4075, 'Command post', 'CommandPostDE', 2);

-- Default ground layouts. Landscape layouts (GUType 1) are placed anywhere;
-- airfield layouts (GUType 2 one runway, 3 three runways) stand on an
-- airfield and are stored a quarter turn from its runway: the runway runs
-- along YOffset, and the editor turns them onto the runway heading.
INSERT INTO GrndNames (ID, LayoutName, UnitTotal, IsDefault, GUType) VALUES
    (1, 'Heavy AA Battery 3.7in', 0, 1, 1),
    (2, 'Light AA Site Bofors', 0, 1, 1),
    (3, 'Chain Home Radar Station', 0, 1, 1),
    (4, 'Aircraft Factory', 0, 1, 1),
    (5, 'Army Camp', 0, 1, 1),
    (6, 'Harbour Docks', 0, 1, 1),
    (7, 'Railway Goods Yard', 0, 1, 1),
    (8, 'Oil Depot Thameshaven', 0, 1, 1),
    (9, 'Searchlight Site', 0, 1, 1),
    (10, 'Flak Battery 8.8cm', 0, 1, 1),
    (11, 'Light Flak Site 2cm', 0, 1, 1),
    (12, 'Freya Radar Station', 0, 1, 1),
    (13, 'Invasion Barge Harbour', 0, 1, 1),
    (14, 'Coastal Battery Cap Gris-Nez', 0, 1, 1),
    (15, 'Railway Marshalling Yard France', 0, 1, 1),
    (16, 'RAF Sector Station', 0, 1, 3),
    (17, 'RAF Satellite Field', 0, 1, 2),
    (18, 'Luftwaffe Fighter Field', 0, 1, 2),
    (19, 'Luftwaffe Bomber Field', 0, 1, 3),
    (20, 'Luftwaffe Stuka Field', 0, 1, 2);

-- 1 Heavy AA Battery 3.7in
INSERT INTO GrndTypes (ID, UnitType, Points, Heading, XOffset, YOffset, DamageID) VALUES
    (1, 4001, 1, 45, 0.0424, 0.0424, 0),
    (1, 4001, 1, 135, -0.0424, 0.0424, 0),
    (1, 4001, 1, 225, -0.0424, -0.0424, 0),
    (1, 4001, 1, 315, 0.0424, -0.0424, 0),
    (1, 4034, 1, 0, 0.0, 0.0, 0),
    (1, 4003, 1, 0, 0.1, -0.08, 0),
    (1, 4003, 1, 180, -0.1, 0.08, 0),
    (1, 4015, 0, 90, -0.12, -0.1, 0),
    (1, 4032, 0, 90, -0.14, -0.05, 0);

-- 2 Light AA Site Bofors
INSERT INTO GrndTypes (ID, UnitType, Points, Heading, XOffset, YOffset, DamageID) VALUES
    (2, 4002, 1, 0, 0.05, 0.0, 0),
    (2, 4002, 1, 120, -0.025, 0.0433, 0),
    (2, 4002, 1, 240, -0.025, -0.0433, 0),
    (2, 4003, 1, 0, 0.0, 0.0, 0),
    (2, 4031, 0, 90, -0.08, 0.03, 0);

-- 3 Chain Home Radar Station
INSERT INTO GrndTypes (ID, UnitType, Points, Heading, XOffset, YOffset, DamageID) VALUES
    (3, 4005, 2, 0, 0.0, -0.09, 0),
    (3, 4005, 2, 0, 0.0, -0.03, 0),
    (3, 4005, 2, 0, 0.0, 0.03, 0),
    (3, 4005, 2, 0, 0.0, 0.09, 0),
    (3, 4006, 2, 0, -0.25, -0.06, 0),
    (3, 4006, 2, 0, -0.25, -0.02, 0),
    (3, 4006, 2, 0, -0.25, 0.02, 0),
    (3, 4006, 2, 0, -0.25, 0.06, 0),
    (3, 4007, 2, 90, -0.2, 0.05, 0),
    (3, 4002, 1, 0, 0.1, 0.15, 0),
    (3, 4002, 1, 180, -0.35, -0.12, 0),
    (3, 4003, 1, 0, 0.05, -0.15, 0),
    (3, 4003, 1, 0, -0.3, 0.12, 0),
    (3, 4031, 0, 90, -0.15, 0.15, 0),
    (3, 4031, 0, 90, -0.15, 0.19, 0),
    (3, 4033, 1, 0, 0.15, 0.0, 0);

-- 4 Aircraft Factory
INSERT INTO GrndTypes (ID, UnitType, Points, Heading, XOffset, YOffset, DamageID) VALUES
    (4, 4020, 2, 90, -0.05, -0.12, 0),
    (4, 4020, 2, 90, -0.05, 0.0, 0),
    (4, 4020, 2, 90, -0.05, 0.12, 0),
    (4, 4020, 2, 90, 0.05, -0.12, 0),
    (4, 4020, 2, 90, 0.05, 0.0, 0),
    (4, 4020, 2, 90, 0.05, 0.12, 0),
    (4, 4021, 1, 0, 0.12, -0.15, 0),
    (4, 4021, 1, 0, 0.12, 0.15, 0),
    (4, 4023, 1, 0, -0.15, -0.1, 0),
    (4, 4023, 1, 0, -0.15, 0.1, 0),
    (4, 4022, 1, 0, 0.2, 0.25, 0),
    (4, 4002, 1, 0, 0.25, -0.25, 0),
    (4, 4002, 1, 180, -0.25, 0.25, 0),
    (4, 4001, 1, 0, -0.3, -0.3, 0),
    (4, 4008, 0, 45, 0.2475, 0.2475, 0),
    (4, 4008, 0, 135, -0.2475, 0.2475, 0),
    (4, 4008, 0, 225, -0.2475, -0.2475, 0),
    (4, 4008, 0, 315, 0.2475, -0.2475, 0);

-- 5 Army Camp
INSERT INTO GrndTypes (ID, UnitType, Points, Heading, XOffset, YOffset, DamageID) VALUES
    (5, 4030, 0, 0, 0.0, -0.1, 0),
    (5, 4030, 0, 0, 0.0, -0.06, 0),
    (5, 4030, 0, 0, 0.0, -0.02, 0),
    (5, 4030, 0, 0, 0.0, 0.02, 0),
    (5, 4030, 0, 0, 0.0, 0.06, 0),
    (5, 4030, 0, 0, -0.04, -0.1, 0),
    (5, 4030, 0, 0, -0.04, -0.06, 0),
    (5, 4030, 0, 0, -0.04, -0.02, 0),
    (5, 4030, 0, 0, -0.04, 0.02, 0),
    (5, 4030, 0, 0, -0.04, 0.06, 0),
    (5, 4031, 0, 90, 0.08, -0.06, 0),
    (5, 4031, 0, 90, 0.08, -0.02, 0),
    (5, 4031, 0, 90, 0.08, 0.02, 0),
    (5, 4031, 0, 90, 0.08, 0.06, 0),
    (5, 4032, 1, 180, -0.12, -0.05, 0),
    (5, 4032, 1, 180, -0.12, -0.02, 0),
    (5, 4032, 1, 180, -0.12, 0.01, 0),
    (5, 4032, 1, 180, -0.12, 0.04, 0),
    (5, 4003, 1, 0, 0.15, 0.12, 0),
    (5, 4003, 1, 0, -0.18, -0.12, 0);

-- 6 Harbour Docks
INSERT INTO GrndTypes (ID, UnitType, Points, Heading, XOffset, YOffset, DamageID) VALUES
    (6, 4024, 1, 270, 0.0, -0.15, 0),
    (6, 4024, 1, 270, 0.0, -0.05, 0),
    (6, 4024, 1, 270, 0.0, 0.05, 0),
    (6, 4024, 1, 270, 0.0, 0.15, 0),
    (6, 4025, 3, 90, 0.0, 0.05, 0),
    (6, 4025, 3, 90, 0.0, -0.07, 0),
    (6, 4025, 3, 90, 0.0, -0.19, 0),
    (6, 4023, 1, 0, -0.08, -0.16, 0),
    (6, 4023, 1, 0, -0.08, -0.05, 0),
    (6, 4023, 1, 0, -0.08, 0.06, 0),
    (6, 4026, 2, 0, -0.22, -0.05, 0),
    (6, 4026, 2, 0, -0.22, 0.01, 0),
    (6, 4026, 2, 0, -0.22, 0.07, 0),
    (6, 4001, 1, 0, -0.3, -0.2, 0),
    (6, 4001, 1, 0, -0.3, 0.2, 0),
    (6, 4008, 0, 0, 0.1, 0.2, 0),
    (6, 4008, 0, 0, -0.15, 0.3, 0);

-- 7 Railway Goods Yard
INSERT INTO GrndTypes (ID, UnitType, Points, Heading, XOffset, YOffset, DamageID) VALUES
    (7, 4027, 2, 90, 0.06, 0.0, 0),
    (7, 4028, 1, 90, 0.0, -0.2, 0),
    (7, 4028, 1, 90, 0.0, -0.18, 0),
    (7, 4028, 1, 90, 0.0, -0.16, 0),
    (7, 4028, 1, 90, 0.0, -0.14, 0),
    (7, 4028, 1, 90, 0.0, -0.12, 0),
    (7, 4028, 1, 90, 0.0, -0.1, 0),
    (7, 4028, 1, 90, 0.0, -0.08, 0),
    (7, 4028, 1, 90, 0.0, -0.06, 0),
    (7, 4028, 1, 90, -0.03, -0.15, 0),
    (7, 4028, 1, 90, -0.03, -0.13, 0),
    (7, 4028, 1, 90, -0.03, -0.11, 0),
    (7, 4028, 1, 90, -0.03, -0.09, 0),
    (7, 4028, 1, 90, -0.03, -0.07, 0),
    (7, 4028, 1, 90, -0.03, -0.05, 0),
    (7, 4029, 2, 90, 0.0, -0.03, 0),
    (7, 4029, 2, 270, -0.03, -0.03, 0),
    (7, 4003, 1, 0, 0.1, 0.1, 0);

-- 8 Oil Depot Thameshaven
INSERT INTO GrndTypes (ID, UnitType, Points, Heading, XOffset, YOffset, DamageID) VALUES
    (8, 4026, 2, 0, -0.06, -0.06, 0),
    (8, 4026, 2, 0, -0.06, 0.0, 0),
    (8, 4026, 2, 0, -0.06, 0.06, 2),
    (8, 4026, 2, 0, 0.0, -0.06, 0),
    (8, 4026, 2, 0, 0.0, 0.0, 2),
    (8, 4026, 2, 0, 0.0, 0.06, 0),
    (8, 4026, 2, 0, 0.06, -0.06, 2),
    (8, 4026, 2, 0, 0.06, 0.0, 0),
    (8, 4026, 2, 0, 0.06, 0.06, 0),
    (8, 4025, 2, 90, 0.15, 0.0, 1),
    (8, 4002, 1, 0, -0.15, -0.15, 0),
    (8, 4002, 1, 0, -0.15, 0.15, 0);

-- 9 Searchlight Site
INSERT INTO GrndTypes (ID, UnitType, Points, Heading, XOffset, YOffset, DamageID) VALUES
    (9, 4004, 1, 0, 0.0, 0.0, 0),
    (9, 4003, 1, 0, 0.03, 0.02, 0),
    (9, 4031, 0, 90, -0.03, 0.01, 0);

-- 10 Flak Battery 8.8cm
INSERT INTO GrndTypes (ID, UnitType, Points, Heading, XOffset, YOffset, DamageID) VALUES
    (10, 4051, 1, 0, 0.07, 0.0, 0),
    (10, 4051, 1, 90, 0.0, 0.07, 0),
    (10, 4051, 1, 180, -0.07, 0.0, 0),
    (10, 4051, 1, 270, 0.0, -0.07, 0),
    (10, 4054, 1, 0, 0.0, 0.0, 0),
    (10, 4052, 1, 0, 0.12, 0.12, 0),
    (10, 4052, 1, 0, -0.12, -0.12, 0),
    (10, 4066, 0, 90, -0.15, 0.1, 0);

-- 11 Light Flak Site 2cm
INSERT INTO GrndTypes (ID, UnitType, Points, Heading, XOffset, YOffset, DamageID) VALUES
    (11, 4052, 1, 45, 0.0212, 0.0212, 0),
    (11, 4052, 1, 135, -0.0212, 0.0212, 0),
    (11, 4052, 1, 225, -0.0212, -0.0212, 0),
    (11, 4052, 1, 315, 0.0212, -0.0212, 0),
    (11, 4075, 0, 0, 0.0, 0.0, 0);

-- 12 Freya Radar Station
INSERT INTO GrndTypes (ID, UnitType, Points, Heading, XOffset, YOffset, DamageID) VALUES
    (12, 4056, 2, 0, 0.0, -0.05, 0),
    (12, 4056, 2, 0, 0.0, 0.05, 0),
    (12, 4057, 2, 0, -0.08, 0.0, 0),
    (12, 4075, 1, 90, -0.05, 0.08, 0),
    (12, 4066, 0, 90, -0.12, 0.08, 0),
    (12, 4066, 0, 90, -0.12, 0.12, 0),
    (12, 4052, 1, 0, 0.1, 0.1, 0),
    (12, 4052, 1, 0, 0.1, -0.1, 0),
    (12, 4074, 1, 0, 0.05, 0.0, 0);

-- 13 Invasion Barge Harbour
INSERT INTO GrndTypes (ID, UnitType, Points, Heading, XOffset, YOffset, DamageID) VALUES
    (13, 4069, 1, 0, 0.0, -0.12, 0),
    (13, 4069, 1, 0, 0.0, -0.08, 0),
    (13, 4069, 1, 0, 0.0, -0.04, 0),
    (13, 4069, 1, 0, 0.0, 0.0, 0),
    (13, 4069, 1, 0, 0.0, 0.04, 0),
    (13, 4069, 1, 0, 0.0, 0.08, 0),
    (13, 4069, 1, 0, 0.03, -0.12, 0),
    (13, 4069, 1, 0, 0.03, -0.08, 0),
    (13, 4069, 1, 0, 0.03, -0.04, 0),
    (13, 4069, 1, 0, 0.03, 0.0, 0),
    (13, 4069, 1, 0, 0.03, 0.04, 0),
    (13, 4069, 1, 0, 0.03, 0.08, 0),
    (13, 4070, 1, 90, -0.05, -0.1, 0),
    (13, 4070, 1, 90, -0.05, 0.0, 0),
    (13, 4070, 1, 90, -0.05, 0.1, 0),
    (13, 4071, 1, 0, -0.15, -0.05, 0),
    (13, 4071, 1, 0, -0.15, 0.05, 0),
    (13, 4052, 1, 0, 0.1, -0.2, 0),
    (13, 4052, 1, 0, 0.1, 0.2, 0),
    (13, 4053, 1, 0, -0.2, 0.0, 0);

-- 14 Coastal Battery Cap Gris-Nez
INSERT INTO GrndTypes (ID, UnitType, Points, Heading, XOffset, YOffset, DamageID) VALUES
    (14, 4068, 3, 300, 0.0, -0.12, 0),
    (14, 4068, 3, 300, 0.0, -0.04, 0),
    (14, 4068, 3, 300, 0.0, 0.04, 0),
    (14, 4068, 3, 300, 0.0, 0.12, 0),
    (14, 4074, 1, 300, -0.06, 0.0, 0),
    (14, 4075, 1, 300, -0.1, 0.05, 0),
    (14, 4051, 1, 0, -0.2, -0.15, 0),
    (14, 4051, 1, 0, -0.2, 0.15, 0),
    (14, 4052, 1, 0, 0.05, 0.2, 0),
    (14, 4052, 1, 0, 0.05, -0.2, 0);

-- 15 Railway Marshalling Yard France
INSERT INTO GrndTypes (ID, UnitType, Points, Heading, XOffset, YOffset, DamageID) VALUES
    (15, 4072, 2, 90, 0.0, -0.03, 0),
    (15, 4072, 2, 270, -0.04, 0.05, 0),
    (15, 4073, 1, 90, 0.0, -0.01, 0),
    (15, 4073, 1, 90, 0.0, 0.005, 0),
    (15, 4073, 1, 90, 0.0, 0.02, 0),
    (15, 4073, 1, 90, 0.0, 0.035, 0),
    (15, 4073, 1, 90, 0.0, 0.05, 0),
    (15, 4073, 1, 90, 0.0, 0.065, 0),
    (15, 4073, 1, 90, 0.0, 0.08, 0),
    (15, 4073, 1, 90, 0.0, 0.095, 0),
    (15, 4073, 1, 90, 0.0, 0.11, 0),
    (15, 4073, 1, 90, 0.0, 0.125, 0),
    (15, 4073, 1, 90, -0.04, -0.15, 0),
    (15, 4073, 1, 90, -0.04, -0.135, 0),
    (15, 4073, 1, 90, -0.04, -0.12, 0),
    (15, 4073, 1, 90, -0.04, -0.105, 0),
    (15, 4073, 1, 90, -0.04, -0.09, 0),
    (15, 4073, 1, 90, -0.04, -0.075, 0),
    (15, 4052, 1, 0, 0.08, 0.1, 0),
    (15, 4053, 1, 0, -0.1, -0.1, 0);

-- 16 RAF Sector Station
INSERT INTO GrndTypes (ID, UnitType, Points, Heading, XOffset, YOffset, DamageID) VALUES
    (16, 4010, 2, 180, 0.3, -0.15, 0),
    (16, 4010, 2, 180, 0.3, -0.03, 0),
    (16, 4010, 2, 180, 0.3, 0.09, 0),
    (16, 4012, 1, 180, 0.2, 0.15, 0),
    (16, 4013, 1, 0, 0.35, 0.3, 0),
    (16, 4014, 1, 0, 0.45, -0.4, 0),
    (16, 4015, 0, 180, 0.42, -0.1, 0),
    (16, 4015, 0, 180, 0.42, -0.02, 0),
    (16, 4015, 0, 180, 0.42, 0.06, 0),
    (16, 4019, 1, 0, -0.25, -0.4, 0),
    (16, 4019, 1, 0, -0.25, -0.24, 0),
    (16, 4019, 1, 0, -0.25, -0.08, 0),
    (16, 4019, 1, 0, -0.25, 0.08, 0),
    (16, 4019, 1, 0, -0.25, 0.24, 0),
    (16, 4019, 1, 0, -0.25, 0.4, 0),
    (16, 4016, 1, 0, -0.25, -0.4, 0),
    (16, 4016, 1, 0, -0.25, -0.24, 0),
    (16, 4016, 1, 0, -0.25, -0.08, 0),
    (16, 4016, 1, 0, -0.25, 0.08, 0),
    (16, 4016, 1, 0, -0.25, 0.24, 0),
    (16, 4016, 1, 0, -0.25, 0.4, 0),
    (16, 4018, 1, 90, 0.2, -0.3, 0),
    (16, 4018, 1, 90, 0.2, 0.3, 0),
    (16, 4002, 1, 0, -0.6, -0.6, 0),
    (16, 4002, 1, 0, -0.6, 0.6, 0),
    (16, 4002, 1, 0, 0.6, -0.6, 0),
    (16, 4002, 1, 0, 0.6, 0.6, 0),
    (16, 4003, 1, 0, 0.15, -0.55, 0),
    (16, 4003, 1, 0, -0.15, 0.55, 0),
    (16, 4003, 1, 0, 0.5, 0.0, 0);

-- 17 RAF Satellite Field
INSERT INTO GrndTypes (ID, UnitType, Points, Heading, XOffset, YOffset, DamageID) VALUES
    (17, 4011, 1, 180, 0.25, -0.2, 0),
    (17, 4011, 1, 180, 0.25, -0.05, 0),
    (17, 4011, 1, 180, 0.25, 0.1, 0),
    (17, 4031, 0, 180, 0.35, -0.1, 0),
    (17, 4031, 0, 180, 0.35, -0.05, 0),
    (17, 4031, 0, 180, 0.35, 0.0, 0),
    (17, 4031, 0, 180, 0.35, 0.05, 0),
    (17, 4017, 1, 0, -0.2, -0.35, 0),
    (17, 4017, 1, 0, -0.2, -0.21, 0),
    (17, 4017, 1, 0, -0.2, -0.07, 0),
    (17, 4017, 1, 0, -0.2, 0.07, 0),
    (17, 4017, 1, 0, -0.2, 0.21, 0),
    (17, 4017, 1, 0, -0.2, 0.35, 0),
    (17, 4012, 1, 180, 0.18, 0.25, 0),
    (17, 4018, 1, 90, 0.2, 0.35, 0),
    (17, 4002, 1, 0, 0.4, 0.5, 0),
    (17, 4002, 1, 0, -0.4, -0.5, 0),
    (17, 4003, 1, 0, 0.3, -0.45, 0),
    (17, 4003, 1, 0, -0.3, 0.45, 0);

-- 18 Luftwaffe Fighter Field
INSERT INTO GrndTypes (ID, UnitType, Points, Heading, XOffset, YOffset, DamageID) VALUES
    (18, 4059, 1, 180, 0.25, -0.3, 0),
    (18, 4059, 1, 180, 0.25, -0.1, 0),
    (18, 4059, 1, 180, 0.25, 0.1, 0),
    (18, 4059, 1, 180, 0.25, 0.3, 0),
    (18, 4062, 1, 0, -0.2, -0.42, 0),
    (18, 4062, 1, 0, -0.2, -0.3, 0),
    (18, 4062, 1, 0, -0.2, -0.18, 0),
    (18, 4062, 1, 0, -0.2, -0.06, 0),
    (18, 4062, 1, 0, -0.2, 0.06, 0),
    (18, 4062, 1, 0, -0.2, 0.18, 0),
    (18, 4062, 1, 0, -0.2, 0.3, 0),
    (18, 4062, 1, 0, -0.2, 0.42, 0),
    (18, 4061, 1, 0, 0.35, -0.35, 0),
    (18, 4061, 1, 0, 0.35, -0.05, 0),
    (18, 4061, 1, 0, 0.35, 0.25, 0),
    (18, 4060, 1, 180, 0.18, 0.35, 0),
    (18, 4075, 1, 180, 0.3, 0.45, 0),
    (18, 4066, 0, 180, 0.45, -0.1, 0),
    (18, 4066, 0, 180, 0.45, 0.05, 0),
    (18, 4065, 1, 90, 0.2, -0.45, 0),
    (18, 4065, 1, 90, 0.2, 0.45, 0),
    (18, 4052, 1, 0, -0.55, -0.55, 0),
    (18, 4052, 1, 0, -0.55, 0.55, 0),
    (18, 4052, 1, 0, 0.55, -0.55, 0),
    (18, 4052, 1, 0, 0.55, 0.55, 0);

-- 19 Luftwaffe Bomber Field
INSERT INTO GrndTypes (ID, UnitType, Points, Heading, XOffset, YOffset, DamageID) VALUES
    (19, 4058, 2, 180, 0.32, -0.2, 0),
    (19, 4058, 2, 180, 0.32, 0.0, 0),
    (19, 4058, 2, 180, 0.32, 0.2, 0),
    (19, 4063, 2, 0, -0.3, -0.45, 0),
    (19, 4063, 2, 0, -0.3, -0.3375, 0),
    (19, 4063, 2, 0, -0.3, -0.225, 0),
    (19, 4063, 2, 0, -0.3, -0.1125, 0),
    (19, 4063, 2, 0, -0.3, 0.0, 0),
    (19, 4063, 2, 0, -0.3, 0.1125, 0),
    (19, 4063, 2, 0, -0.3, 0.225, 0),
    (19, 4063, 2, 0, -0.3, 0.3375, 0),
    (19, 4063, 2, 0, -0.3, 0.45, 0),
    (19, 4067, 1, 0, 0.5, -0.45, 0),
    (19, 4061, 1, 0, 0.45, 0.4, 0),
    (19, 4060, 1, 180, 0.2, 0.3, 0),
    (19, 4066, 0, 180, 0.5, -0.1, 0),
    (19, 4066, 0, 180, 0.5, 0.1, 0),
    (19, 4065, 1, 90, 0.22, -0.4, 0),
    (19, 4051, 1, 0, -0.7, -0.7, 0),
    (19, 4051, 1, 0, -0.7, 0.7, 0),
    (19, 4051, 1, 0, 0.7, -0.7, 0),
    (19, 4051, 1, 0, 0.7, 0.7, 0),
    (19, 4052, 1, 0, -0.4, -0.6, 0),
    (19, 4052, 1, 0, -0.4, 0.6, 0),
    (19, 4052, 1, 0, 0.4, -0.6, 0),
    (19, 4052, 1, 0, 0.4, 0.6, 0);

-- 20 Luftwaffe Stuka Field
INSERT INTO GrndTypes (ID, UnitType, Points, Heading, XOffset, YOffset, DamageID) VALUES
    (20, 4064, 1, 0, -0.2, -0.4, 0),
    (20, 4064, 1, 0, -0.2, -0.3, 0),
    (20, 4064, 1, 0, -0.2, -0.2, 0),
    (20, 4064, 1, 0, -0.2, -0.1, 0),
    (20, 4064, 1, 0, -0.2, 0.0, 0),
    (20, 4064, 1, 0, -0.2, 0.1, 0),
    (20, 4064, 1, 0, -0.2, 0.2, 0),
    (20, 4064, 1, 0, -0.2, 0.3, 0),
    (20, 4064, 1, 0, -0.2, 0.4, 0),
    (20, 4059, 1, 180, 0.25, -0.15, 0),
    (20, 4059, 1, 180, 0.25, 0.05, 0),
    (20, 4067, 1, 0, 0.4, -0.35, 0),
    (20, 4061, 1, 0, 0.35, 0.35, 0),
    (20, 4075, 1, 180, 0.2, 0.3, 0),
    (20, 4066, 0, 180, 0.45, 0.0, 0),
    (20, 4052, 1, 0, 0.5, 0.5, 0),
    (20, 4052, 1, 0, -0.5, -0.5, 0),
    (20, 4053, 1, 0, 0.5, -0.5, 0);

-- A layout is found again on load by the sum of its unit types.
UPDATE GrndNames SET UnitTotal =
    (SELECT COALESCE(SUM(UnitType), 0) FROM GrndTypes WHERE GrndTypes.ID = GrndNames.ID);

COMMIT;
