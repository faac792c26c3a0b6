-- The small store that every database test starts from. It runs as one text before each test, in a
-- database that has the schema and whatever the test before left in it. The workstation's clock in
-- a test stands at 2024-05-17; the dates here are chosen around that day.

-- Deleted, not truncated: a few rows go faster that way than a table is made anew. Lines go with
-- their headers.
DELETE FROM PEM22; DELETE FROM PEM23; DELETE FROM PES13; DELETE FROM PEM13; DELETE FROM PES23;
DELETE FROM ME; DELETE FROM IV; DELETE FROM CMM; DELETE FROM DT900;
DELETE FROM PR; DELETE FROM KIND; DELETE FROM CT; DELETE FROM CTCOM; DELETE FROM CTM;
DELETE FROM RCT; DELETE FROM RCTI; DELETE FROM HCT; DELETE FROM ST; DELETE FROM BAS;
DELETE FROM UP; DELETE FROM CTP; DELETE FROM RCTP; DELETE FROM SAFEIV;
DELETE FROM NOTICE; DELETE FROM SETCONFIGNOTICE;

-- Settings: whole numbers in every column, VAT of 10 % that is cut to whole won.
INSERT INTO BAS (BAS_CODE, BAS_NAME1, BAS_OP1, BAS_OP2, BAS_OP3, BAS_OP4) VALUES
  ('Z401', '수량',         '',    '',   '0', '3'),
  ('Z402', '단가',         '',    '',   '0', '3'),
  ('Z403', '금액',         '',    '',   '0', '3'),
  ('Z404', '율',           '',    '',   '2', '3'),
  ('ZA05', '전표최대행수', '100', '',   '',  ''),
  ('Z103', '부가세',       '',    '10', '',  '0'),
  ('E001', '현금',         '',    '',   '',  ''),   -- a family to choose from: name order is not
  ('E002', '카드',         '',    '',   '',  '');   -- code order

-- Head office, the store of the tests, and a neighbour that has no details.
INSERT INTO RCT (RCT_CODE, RCT_NAME, RCT_CEO, RCT_NO, RCT_SADDR1, RCT_SADDR2, RCT_GUBUN, RCT_DANLV)
VALUES
  ('1000', '본사',     '최본부', '101-81-00001', '서울 중구',   '을지로 1',   '0', ''),
  ('1001', '성수역점', '김성수', '206-12-34567', '서울 성동구', '성수동 2가', '1', '0003'),
  ('1002', '왕십리점', '이왕십', '206-98-76543', '서울 성동구', '왕십리 3',   '1', '0102');
INSERT INTO RCTI (RCT_CODE, RCTI_CPHONE) VALUES ('1000', '02-700-1000'), ('1001', '02-700-1001');

-- The default depot of 1001 is neither its first code nor its first name.
INSERT INTO HCT (RCT_CODE, HCT_CODE, HCT_NAME, HCT_BAS) VALUES
  ('1001', '100101', '매장',   '1'),
  ('1001', '100100', '냉동고', '0'),
  ('1001', '100102', '창고',   '0'),
  ('1002', '100201', '매장',   '1');

INSERT INTO ST (ST_CODE, ST_PWD, ST_NAME, ST_CP, RCT_CODE, ST_ASPLVL) VALUES
  ('u01', '1111', '김하나', '010-1111-0001', '1001', '1'),
  ('u02', '2222', '이두리', '010-2222-0002', '1001', '3'),
  ('u09', '9999', '김아홉', NULL,            '1002', '3');
-- The second person list; one name holds percent signs.
INSERT INTO CTM (ST_CODE, ST_NAME, ST_CP) VALUES
  ('m01', '정미래', '010-3333-0001'), ('m02', '%미래%', '010-3333-0002');

-- Partners. CT_DANCK is the price policy, of CT_DANLV the last two characters are the price level.
-- '희' begins no tab and closes the last one, so a name with it is on no tab at all.
INSERT INTO CT (CT_CODE, CT_NAME, CT_JUMIN, CT_PHONE, CT_FAX, CT_MAIL, CT_ZIP, CT_ADDR1, CT_ADDR2,
                CT_DANCK, CT_DANLV, CT_GUBUN) VALUES
  ('C0001', '한빛상사', '110-81-11111', '02-555-0101', '02-555-0199', 'ask@hb.example', '04780',
            '서울 성동구', '뚝섬로 1', '1', '0102', '0'),
  ('C0002', '한빛식품',   '', '02-555-0202', NULL, NULL, '', '경기 광주시', '초월읍', '5', '3',  '0'),
  ('C0003', '나래유통',   '', '031-777-0303', '',  '',   '', '경기 이천시', '부발읍', '4', '12', '1'),
  ('C0004', '다온물산',   '', '031-777-0404', '',  '',   '', '',            '',       '',  '',   '0'),
  ('C0005', '힐링푸드',   '', '',             '',  '',   '', '',            '',       '0', '1',  '0'),
  ('C0006', '희망상회',   '', '',             '',  '',   '', '',            '',       '0', '1',  '0'),
  ('C0007', 'ABC무역',    '', '',             '',  '',   '', '',            '',       '0', '1',  '0'),
  ('C0008', '하나식자재', '', '',             '',  '',   '', '',            '',       '0', '1',  '0');
-- Their details: C0004 is of a level that is not offered, C0007 has none.
INSERT INTO CTCOM (CT_CODE, CT_CEO, CT_CEOPHONE, CT_TMAN, CT_TPHONE, CT_TMAIL, CT_LEVEL2, GP_CODE)
VALUES
  ('C0001', '한대표', '010-5555-0101', '한담당', '010-5555-0102', 'tm@hb.example', '0', 'G1'),
  ('C0002', NULL,     NULL,            NULL,     NULL,            NULL,            '1', 'G2'),
  ('C0003', '나대표', '',              '',       '',              '',              '0', 'G1'),
  ('C0004', '다대표', '',              '',       '',              '',              '9', 'G1'),
  ('C0005', '',       '',              '',       '',              '',              '0', ''),
  ('C0006', '',       '',              '',       '',              '',              '0', ''),
  ('C0008', '',       '',              '',       '',              '',              '1', 'G2');

-- Categories of three levels, and the root.
INSERT INTO KIND (KD_ID, KD_NAME, KD_LVL) VALUES
  ('000000000000000', '전체',   '0'),
  ('100000000000000', '식품',   '1'),
  ('100010000000000', '음료',   '2'),
  ('100010001000000', '생수',   '3'),
  ('100020000000000', '곡류',   '2'),
  ('200000000000000', '생활',   '1'),
  ('200010000000000', '주방',   '2');

-- Products of all tax kinds. The barcode of P0001 begins the one of P0002; P0006 is out of use;
-- P0008 has no sale price.
INSERT INTO PR (PR_CODE, PR_NAME, KD_ID, PR_PTNO, PR_BCODE, PR_STD, PR_UNT, PR_MIN, PR_END, PR_TAX,
                PR_TAX2, PR_BCTCODE, PR_OP0, PR_OP1, PR_OP2) VALUES
  ('P0001', '맑은생수',   '100010001000000', '101', '8801000',   '2L*6',  '박스', 1, '0', '0', '0', 'C0001',  480,  700,  900),
  ('P0002', '국산쌀',     '100020000000000', '102', '88010001',  '10kg',  '포',   1, '0', '1', '1', 'C0001', 4500, 5000, 6000),
  ('P0003', '콩나물',     '100020000000000', '103', '88010003',  '300g',  '봉',   1, '0', '1', '1', 'C0001',  250,  300,  400),
  ('P0004', '참기름',     '100000000000000', '104', '88010004',  '320ml', '병',   1, '0', '2', '2', 'C0002', 5000, 5500, 6900),
  ('P0005', '하우스감귤', '100000000000000', '105', '88010005',  '5kg',   '박스', 1, '0', '0', '0', 'C0003',  900, 1000, 1300),
  ('P0006', '옛날간장',   '100000000000000', '106', '88010006',  '1L',    '병',   1, '1', '0', '0', 'C0001', 2000, 2500, 3000),
  ('P0007', '다시마',     '100000000000000', '107', '88010007',  '100g',  '봉',   1, '0', '1', '1', 'C0001', 1800, 2100, 2600),
  ('P0008', '힘찬세제',   '200010000000000', '108', '88010008',  '3kg',   '통',   1, '0', '0', '0', 'C0001', 8000,    0, 9900),
  ('P0009', 'ABC소스',    '100000000000000', '109', '88010009',  '500g',  '병',   1, '0', '2', '2', 'C0007', 2200, 2750, 3300),
  ('P0010', '종이컵',     '200010000000000', '110', '',          '1000입','박스', 1, '0', '0', '0', 'C0003', 9000, 9500, 12000);

-- Level prices: of a product and side the lowest store's row is read, never the one of 1001.
INSERT INTO UP (RCT_CODE, PR_CODE, DP_GUBUN, DP1, DP2, DP10) VALUES
  ('1000', 'P0001', 'C', 610, 605, 600), ('1001', 'P0001', 'C', 999, 999, 999),
  ('1000', 'P0001', 'R', 590, 585, 580), ('1000', 'P0003', 'R', 270, 265, 260);

-- Contracts of C0001 with head office, and what is odd about each.
INSERT INTO CTP (CT_CODE, RCT_CODE, PR_CODE, CTP_GU, CTP_UP, CTP_FDATE, CTP_TDATE) VALUES
  ('C0001', '1000', 'P0001', '',   650, '2024-01-01', '2024-05-17'),  -- in force on its last day
  ('C0001', '1000', 'P0002', '1',    0, '0000-00-00', '0000-00-00'),  -- gives a level: PR_OP2
  ('C0001', '1001', 'P0003', '',   333, '0000-00-00', '0000-00-00'),  -- of the store, not of 1000
  ('C0001', '1000', 'P0004', '',  4444, '2023-01-01', '2024-05-16'),  -- ended yesterday
  ('C0001', '1000', 'P0005', '',  1500, '0000-00-00', '0000-00-00'),  -- valid on every date
  ('C0001', '1000', 'P0006', '',  6666, '2024-01-01', '0000-00-00'),  -- zero in one column alone
  ('C0001', '1000', 'P0007', '',  7777, '0000-00-00', '2024-05-16'),  -- and in the other
  ('C0001', '1000', 'P0008', '2',    0, '0000-00-00', '0000-00-00');  -- a level without a price
INSERT INTO RCTP (RCT_CODE, PR_CODE, CTP_GU, CTP_UP, CTP_FDATE, CTP_TDATE) VALUES
  ('1001', 'P0001', '',  555, '2024-05-17', '2024-12-31'),
  ('1001', 'P0002', '1',   0, '0000-00-00', '0000-00-00'),
  ('1001', 'P0003', '',  222, '2023-01-01', '2024-05-16');

-- Order settings; the last of store 1001 stands without a partner, one row is the neighbour's.
INSERT INTO SAFEIV (RCT_CODE, PR_CODE, CT_CODE, SAFE_QTY, ORD_QTY, ORD_UP) VALUES
  ('1001', 'P0001', 'C0001', 10, 20,    0),
  ('1001', 'P0001', 'C0002', 10, 20,  640),
  ('1001', 'P0002', 'C0001',  5, 10, 4800),
  ('1001', 'P0004', 'C0004',  3,  6, 5200),
  ('1001', 'P0003', '',       8, 16,  280),
  ('1002', 'P0005', 'C0003',  4,  8,  950);

-- Orders of store 1001, one in each state, and one of the neighbour.
INSERT INTO PEM22 (PE_ID, PE_CK, PE_PDATE, PE_SDATE, PE_FCTCODE, PE_FCTNAME, PE_TCTCODE, PE_TCTNAME,
                   PE_AMT, PE_TAX, PE_TOT, PE_TMAN, ST_CODE, PE_PRJ, PE_LINK) VALUES
  ('202405171001u01220001', '0', '2024-05-17', '2024-05-17 09:01:00', '1001', '성수역점', 'C0001', '한빛상사', 12000,  700, 12700, ' ', ' ', ' ', ' '),
  ('202405171001u01220002', '1', '2024-05-17', '2024-05-17 09:02:00', '1001', '성수역점', 'C0002', '한빛식품', 10000, 1000, 11000, ' ', ' ', ' ', ' '),
  ('202405161001u01220003', '2', '2024-05-16', '2024-05-16 09:03:00', '1001', '성수역점', 'C0001', '한빛상사', 23000, 1400, 24400, ' ', ' ', ' ', ' '),
  ('202405151001u02220004', '3', '2024-05-15', '2024-05-15 09:04:00', '1001', '성수역점', 'C0003', '나래유통',  5000,  500,  5500, ' ', ' ', ' ', ' '),
  ('202405101001u01220005', '4', '2024-05-10', '2024-05-10 09:05:00', '1001', '성수역점', 'C0001', '한빛상사',  4800,  480,  5280, ' ', ' ', ' ', '202405121001u01230001'),
  ('202405171002u09220001', '0', '2024-05-17', '2024-05-17 09:06:00', '1002', '왕십리점', 'C0001', '한빛상사',  1000,  100,  1100, ' ', ' ', ' ', ' ');
-- PS_EQTY is what logistics has shipped: two of the third order's first line are missing.
INSERT INTO PSM22 (PE_ID, PS_NO, PS_DATE, PR_CODE, PR_NAME, PR_STD, PS_TAXGU, PS_UNT, PS_SQTY,
                   PS_EQTY, PS_UP, PS_AMT, PS_TAX, ST_CODE, PS_HCTCODE, PS_HCTNAME) VALUES
  ('202405171001u01220001', 1, '2024-05-17', 'P0001', '맑은생수',   '2L*6',  '0', '박스', 10,  0,  700,  7000,  700, 'u01', '100101', '매장'),
  ('202405171001u01220001', 2, '2024-05-17', 'P0002', '국산쌀',     '10kg',  '1', '포',    1,  0, 5000,  5000,    0, 'u01', '100101', '매장'),
  ('202405171001u01220002', 1, '2024-05-17', 'P0004', '참기름',     '320ml', '2', '병',    2,  0, 5500, 10000, 1000, 'u01', '100101', '매장'),
  ('202405161001u01220003', 1, '2024-05-16', 'P0001', '맑은생수',   '2L*6',  '0', '박스', 20, 18,  700, 14000, 1400, 'u01', '100101', '매장'),
  ('202405161001u01220003', 2, '2024-05-16', 'P0003', '콩나물',     '300g',  '1', '봉',   30, 30,  300,  9000,    0, 'u01', '100101', '매장'),
  ('202405151001u02220004', 1, '2024-05-15', 'P0005', '하우스감귤', '5kg',   '0', '박스',  5,  5, 1000,  5000,  500, 'u02', '100102', '창고'),
  ('202405101001u01220005', 1, '2024-05-10', 'P0001', '맑은생수',   '2L*6',  '0', '박스', 10, 10,  480,  4800,  480, 'u01', '100101', '매장'),
  ('202405171002u09220001', 1, '2024-05-17', 'P0005', '하우스감귤', '5kg',   '0', '박스',  1,  0, 1000,  1000,  100, 'u09', '100201', '매장');

-- Goods received from C0001: the received order's slip, an older one of 1001, and the newest, which
-- the neighbour paid.
INSERT INTO PEM23 (PE_ID, PE_CK, PE_PDATE, PE_SDATE, PE_FCTCODE, PE_FCTNAME, PE_TCTCODE, PE_TCTNAME,
                   PE_AMT, PE_TAX, PE_TOT, PE_PAYGU, ST_CODE, PE_LINK) VALUES
  ('202405121001u01230001', '1', '2024-05-12', '2024-05-12 10:00:00', '1001', '성수역점', 'C0001', '한빛상사', 4800, 480, 5280, 'E005', 'u01', '202405101001u01220005'),
  ('202404021001u01230001', '1', '2024-04-02', '2024-04-02 10:00:00', '1001', '성수역점', 'C0001', '한빛상사', 8500, 850, 9350, 'E005', 'u01', ''),
  ('202405141002u09230001', '1', '2024-05-14', '2024-05-14 10:00:00', '1002', '왕십리점', 'C0001', '한빛상사',  490,  49,  539, 'E005', 'u09', '');
INSERT INTO PSM23 (PE_ID, PS_NO, PS_DATE, PR_CODE, PR_NAME, PR_STD, PS_TAXGU, PS_UNT, PS_SQTY,
                   PS_EQTY, PS_UP, PS_AMT, PS_TAX, ST_CODE, PS_HCTCODE, PS_HCTNAME) VALUES
  ('202405121001u01230001', 1, '2024-05-12', 'P0001', '맑은생수', '2L*6', '0', '박스', 10, 10, 480, 4800, 480, 'u01', '100101', '매장'),
  ('202404021001u01230001', 1, '2024-04-02', 'P0008', '힘찬세제', '3kg',  '0', '통',    1,  1, 8500, 8500, 850, 'u01', '100101', '매장'),
  ('202405141002u09230001', 1, '2024-05-14', 'P0001', '맑은생수', '2L*6', '0', '박스',  1,  1, 490,  490,  49, 'u09', '100201', '매장');

-- Stock and the month's balance as those receipts of 1001 left them.
INSERT INTO IV (RCT_CODE, HCT_CODE, PR_CODE, PR_NAME, PR_STD, PR_UNT, BSQTY, INQTY, OTQTY) VALUES
  ('1001', '100101', 'P0001', '맑은생수', '2L*6 ', '박스', 5, 10, 3),
  ('1001', '100101', 'P0008', '힘찬세제', '3kg ',  '통',   0,  1, 0);
INSERT INTO CMM (CM_FCTCODE, CM_TCTCODE, CM_MGU, CM_MM, CM_M13, CM_M23, CM_CK) VALUES
  ('1001', 'C0001', 'C', '202405', 0, 5280, '0'),
  ('1001', 'C0001', 'C', '202404', 0, 9350, '0');

-- Two notices for store 1001, the second with quotes as head office's editor stores them, and one
-- for the neighbour alone.
ALTER TABLE SETCONFIGNOTICE ADD COLUMN IF NOT EXISTS CID_1001 CHAR(1) NOT NULL DEFAULT 'F',
                            ADD COLUMN IF NOT EXISTS CID_1002 CHAR(1) NOT NULL DEFAULT 'F';
INSERT INTO NOTICE (NID, SUBJECT, WDAY, content) VALUES
  (1, '추석 휴무 안내', '2024-05-10 09:30:00', '물류는 쉽니다.'),
  (2, '\\''신상품\\'' 안내', '2024-05-16 18:05:00', '신상품 \\"유자차\\"\t입고'),
  (3, '왕십리점 공지', '2024-05-17 08:00:00', '점검');
INSERT INTO SETCONFIGNOTICE (NID, CID_1001, CID_1002) VALUES (1, 'T', 'T'), (2, 'T', 'F'), (3, 'F', 'T');
