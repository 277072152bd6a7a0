-- The demo office of the manual's pictures: one group, one deductor company, its deductees, and
-- a 26Q Statement of the first quarter of 2026-27 with two challans and three deductee rows.
-- Read by scripts/manual-screenshots.sh into a store that the program has brought up to date.
BEGIN;

INSERT INTO mstGroup (GroupID, GroupName) VALUES (1, 'DEMO CLIENTS');

INSERT INTO mstCompany (AsstID, GroupID, CompID, TanNO, PanNo, CompName, BranchDiv,
    Address1, Address2, Address3, Address4, Address5, StateCode, StateID, Pincode, STD, Phone,
    eMail, PersonName, Designation, pAddress1, pAddress2, pAddress3, pAddress4, pAddress5,
    pStateCode, PStateID, pPincode, pSTD, pPhone, PeMail, AssessingOfficerCode, TDSCircle,
    FilePrefix, DStatus, DStateID, DStateCode)
VALUES (1, 1, 1, 'PNES12345C', 'AAFCS1234K', 'SHREE GANESH TRADERS PVT LTD', 'HEAD OFFICE',
    'OFFICE 14, FIRST FLOOR', 'LAXMI CHAMBERS', 'FERGUSSON COLLEGE ROAD', 'SHIVAJINAGAR', 'PUNE',
    '19', 19, '411004', '020', '25531234', 'accounts@ganeshtraders.in',
    'ANIL DESHPANDE', 'DIRECTOR', 'FLAT 7, SAI KRUPA', 'PRABHAT ROAD', 'ERANDWANE', '', 'PUNE',
    '19', 19, '411004', '020', '25439876', 'anil@ganeshtraders.in', 'PN-W-12', 'WARD 2(1)',
    'SGT', 'K', 19, '19');

INSERT INTO mstDeductee (GroupId, DeducteeID, PAN, PanRef, DeducteeName, Address1, Address2,
    Address3, Address4, Address5, DeducteeCode, State, StateCode, PIN)
VALUES (1, 1, 'AAAFK4321P', '', 'KULKARNI BUILDERS', 'PLOT 22', 'MIDC', 'BHOSARI', '', 'PUNE',
        '02', 'MAHARASHTRA', '19', '411026'),
       (1, 2, 'AABCM7788Q', '', 'MEHTA ROADWAYS PVT LTD', '5 TRANSPORT NAGAR', 'NIGDI', '', '',
        'PUNE', '01', 'MAHARASHTRA', '19', '411044'),
       (1, 3, 'ACTPJ2468L', '', 'JOSHI AND ASSOCIATES', '301 KAPIL TOWERS', 'DHOLE PATIL ROAD',
        '', '', 'PUNE', '02', 'MAHARASHTRA', '19', '411001');

INSERT INTO TranBasicInfoE26 (BasicIfoID, CompID, AsstID, TanNO, PanNo, BranchDiv, CompName,
    Address1, Address2, Address3, Address4, Address5, StateCode, Pincode, phone, email, Std,
    Employer, Salary, Status, PersonName, Designation, pAddress1, pAddress2, pAddress3,
    pAddress4, pAddress5, pStateCode, pPincode, pPhone, pEmail, pStd, NoChallan, NoDeductee,
    AsstYear, FAYear, AppRcptNo, RevisedRtn, RevisedRcptNo, TDSCircle, Quarter)
VALUES (1, 1, 1, 'PNES12345C', 'AAFCS1234K', 'HEAD OFFICE', 'SHREE GANESH TRADERS PVT LTD',
    'OFFICE 14, FIRST FLOOR', 'LAXMI CHAMBERS', 'FERGUSSON COLLEGE ROAD', 'SHIVAJINAGAR', 'PUNE',
    '19', '411004', '25531234', 'accounts@ganeshtraders.in', '020', 1, 0, 1,
    'ANIL DESHPANDE', 'DIRECTOR', 'FLAT 7, SAI KRUPA', 'PRABHAT ROAD', 'ERANDWANE', '', 'PUNE',
    '19', '411004', '25439876', 'anil@ganeshtraders.in', '020', 2, 3, '202728', '202627',
    '0', 'N', '0', 'WARD 2(1)', 'Q1');

INSERT INTO TranChallanE26 (ChallnID, BasicIfoID, CompID, AsstID, SlNo, Section,
    AmountDeducted, TrVoucherNo, DtTrVoucher, BankCode, Surcharge, EduCess, Interest, Others,
    Total, ChqDDNo, BookEntry, TotTax, TotIncomeTax, TotSurcharge, TotCess, CtrlTot, ExInterest,
    ExtOthers, Remarks, TransferVoucherNo)
VALUES (1, 1, 1, 1, 1, '94C', 3000, '00417', '2026-05-07', '0510032', 0, 0, 0, 0, 3000,
        '104512', 'N', 3000, 3000, 0, 0, 3000, 0, 0, 'APRIL', ''),
       (2, 1, 1, 1, 2, '94J', 7500, '00562', '2026-06-05', '0510032', 0, 0, 0, 0, 7500,
        '104539', 'N', 7500, 7500, 0, 0, 7500, 0, 0, 'MAY', '');

INSERT INTO TranDeducteeE26 (DeducteeID, BasicIfoID, CompID, AsstID, ChallanId, SrlNo, Section,
    DeducteeNo, DeducteeCode, PAN, PANRef, DeducteeName, Address1, Address2, Address3, Address4,
    Address5, State, StateCode, PIN, AmtOfPayment, PaymentDt, Rate, TaxAmount, TaxDeductDt,
    TaxPaidToCGDt, BankBranchCode, BankChallanNo, NonDeductionflg, BookEntry, Tax, Surcharge,
    Cess, Total)
VALUES (1, 1, 1, 1, 1, 1, '94C', 1, '02', 'AAAFK4321P', '', 'KULKARNI BUILDERS', 'PLOT 22',
        'MIDC', 'BHOSARI', '', 'PUNE', 'MAHARASHTRA', '19', '411026', 100000, '2026-04-18', 2,
        2000, '2026-04-18', '2026-05-07', '0510032', '00417', '', 'O', 2000, 0, 0, 2000),
       (2, 1, 1, 1, 1, 2, '94C', 2, '01', 'AABCM7788Q', '', 'MEHTA ROADWAYS PVT LTD',
        '5 TRANSPORT NAGAR', 'NIGDI', '', '', 'PUNE', 'MAHARASHTRA', '19', '411044', 50000,
        '2026-04-25', 2, 1000, '2026-04-25', '2026-05-07', '0510032', '00417', '', 'O', 1000,
        0, 0, 1000),
       (3, 1, 1, 1, 2, 1, '94J', 3, '02', 'ACTPJ2468L', '', 'JOSHI AND ASSOCIATES',
        '301 KAPIL TOWERS', 'DHOLE PATIL ROAD', '', '', 'PUNE', 'MAHARASHTRA', '19', '411001',
        75000, '2026-05-20', 10, 7500, '2026-05-20', '2026-06-05', '0510032', '00562', '', 'O',
        7500, 0, 0, 7500);

COMMIT;
