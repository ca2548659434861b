-- Documents of the example catalog's first release, with assemblies and parts that several of them
-- share, for a link database on SQLite or PostgreSQL. The tables are made as the programs make them;
-- what else belongs to a link database the programs add when they open it first.

CREATE TABLE IF NOT EXISTS plm_document(GEO_ID TEXT PRIMARY KEY, PRJ_PATH TEXT, VERSION TEXT,
  LINE_ID INTEGER, LINE_SUBID INTEGER, XVARSET TEXT, CADSYSTEM TEXT, PDMSYSTEM TEXT, PDMID1 TEXT,
  PDMID2 TEXT, PDMID3 TEXT, PDMID4 TEXT, PDMID5 TEXT, GEOFEATURES TEXT, NBDEFAULTLANG TEXT);

CREATE TABLE IF NOT EXISTS plm_hierarchy(PARENT TEXT, CHILD TEXT);

-- Line 4 of the hexagon bolts is M6; its range offers lengths from 30 to 60.
INSERT INTO plm_document(GEO_ID, PRJ_PATH, VERSION, LINE_ID, LINE_SUBID, XVARSET, CADSYSTEM, PDMSYSTEM, PDMID1, PDMID2, PDMID3, GEOFEATURES, NBDEFAULTLANG) VALUES
  ('bolt-m6-30', 'standardparts/screws/iso4014.prj', 'v21-11', 4, 0, '{Dia=M6}{L=30}', 'native', 'vault', '100-0630', 'A', 'released', 'solid', 'Hexagon bolt M6 x 30'),
  ('bolt-m6-40', 'standardparts/screws/iso4014.prj', 'v21-11', 4, 0, '{Dia=M6}{L=40}', 'native', 'vault', '100-0640', 'B', 'released', 'solid', 'Hexagon bolt M6 x 40'),
  ('bolt-m6-40-step', 'standardparts/screws/iso4014.prj', 'v21-11', 4, 0, '{Dia=M6}{L=40}', 'step', 'vault', '100-0640', 'B', 'released', 'solid', 'Hexagon bolt M6 x 40, neutral format'),
  ('bolt-m6-60', 'standardparts/screws/iso4014.prj', 'v21-11', 4, 0, '{Dia=M6}{L=60}', 'native', 'archive', '100-0660', 'A', 'in work', 'solid', 'Hexagon bolt M6 x 60'),
  ('set-m6', 'standardparts/screws/iso4014.prj', 'v21-11', 4, 0, '{Dia=M6}{L=40}', 'native', 'vault', '200-0006', 'A', 'released', 'assembly', 'Bolt M6 x 40 with nut and washer'),
  ('joint-m6', 'standardparts/screws/iso4014.prj', 'v21-11', 4, 0, '{Dia=M6}{L=40}', 'native', 'vault', '200-0106', 'A', 'in work', 'assembly', 'Joint of two plates, M6');

INSERT INTO plm_document(GEO_ID, PRJ_PATH, VERSION, LINE_ID, LINE_SUBID, XVARSET, CADSYSTEM, PDMSYSTEM, PDMID1, PDMID2, PDMID3, GEOFEATURES, NBDEFAULTLANG) VALUES
  ('nut-m6', 'standardparts/nuts/iso4032.prj', 'v21-11', 7, 0, '{Dia=M6}', 'native', 'vault', '110-0006', 'A', 'released', 'solid', 'Hexagon nut M6'),
  ('washer-6', 'standardparts/washers/din125.prj', 'v21-11', 4, 0, '{Nenn=6}', 'native', 'vault', '120-0006', 'A', 'released', 'solid', 'Washer 6'),
  ('drawing-m6', 'standardparts/nuts/iso4032.prj', 'v21-11', 7, 0, '{Dia=M6}', 'native', 'vault', '110-0006-D', 'A', 'released', 'drawing', 'Drawing of the nut');

-- The set and the joint share nut and bolt; the washer belongs to the set alone.
INSERT INTO plm_hierarchy(PARENT, CHILD) VALUES
  ('set-m6', 'bolt-m6-40'), ('set-m6', 'nut-m6'), ('set-m6', 'washer-6'),
  ('joint-m6', 'bolt-m6-40'), ('joint-m6', 'nut-m6'), ('nut-m6', 'drawing-m6');
