#pragma once
// Dialog and control ids of the line study pages. They are the templates' numbers and part of the
// design: a page's dialog id is also its code in the sheet's apply message.

// The Advanced page.
#define IDD_LS_PG_ADVANCED 1352
#define IDC_LS_ATTACH_BOX 4644
#define IDC_LS_ATTACH_SYMBOL 4645
#define IDC_LS_ATTACH_CHART 4646
#define IDC_LS_ATTACH_SCREEN 4647

// The position pages (Day and Intra templates).
#define IDC_LS_POS_LOCK 227
#define IDC_LS_DAY_VALUE 1463
#define IDC_LS_DAY_DATE 1465
#define IDC_LS_VERTEX_0 1480
#define IDC_LS_VERTEX_1 1481
#define IDC_LS_VERTEX_2 1482
#define IDC_LS_VERTEX_3 1483
#define IDC_LS_VERTEX_4 1484
#define IDC_LS_VERTEX_5 1485
#define IDC_LS_INTRA_VALUE 1502
#define IDC_LS_INTRA_DATE 1504
#define IDC_LS_INTRA_TIME 1507
#define IDC_LS_INTRA_SPIN 1508
#define IDC_LS_INTRA_TICK 1510

// The trendline family.
#define IDD_LS_PG_DAY_TREND 1317
#define IDD_LS_PG_DAY_HORZ 1318
#define IDD_LS_PG_DAY_VERT 1319
#define IDD_LS_PG_INTRA_TREND 1326
#define IDD_LS_PG_INTRA_VERT 1327
#define IDD_LS_PG_DAY_VWAP 1363
#define IDD_LS_PG_INTRA_VWAP 1364
#define IDD_LS_PG_DAY_LRC 1365
#define IDD_LS_PG_INTRA_LRC 1366
#define IDC_LS_DAY_TREND_SNAP 2271
#define IDC_LS_DAY_EXTEND_LEFT 2273
#define IDC_LS_DAY_EXTEND_RIGHT 2274
#define IDC_LS_DAY_HORZ_SNAP 2323
#define IDC_LS_INTRA_TREND_SNAP 1531
#define IDC_LS_INTRA_EXTEND_LEFT 1533
#define IDC_LS_INTRA_EXTEND_RIGHT 1534
#define IDC_LS_DAY_VWAP_SNAP 4725
#define IDC_LS_LRC_MULTIPLIER 4741
#define IDC_LS_DAY_LRC_SNAP 4746

// The line tabs (line base, Fibonacci, Gann, pitchfork, parallel) and the graph object line page.
#define IDD_LS_PG_LINE_FIBO 1330
#define IDD_LS_PG_LINE_GANN 1331
#define IDD_LS_PG_LINE_PFORK 1332
#define IDD_LS_PG_LINE_PARALLEL 1396
// Row i of a line tab: IDC_LS_LINE_ROW0 + 10i and on (name, visibility, colour, style, weight,
// ratio); the templates give the rows as numbers.
#define IDC_LS_LINE_ROW0 2400
#define IDC_LS_LINE_PRICE_BOX 227
#define IDC_LS_FIB_EXTEND 1900
#define IDC_LS_FIB_RESET 1901
#define IDC_LS_FIB_SHOW_LABELS 1902
#define IDC_LS_GANN_SHOW_HEADING 4669
#define IDC_LS_PARALLEL_PRICE_BOX 4749
#define IDD_GRAPH_OBJ_LINE_PG 1335
#define IDC_LINE_PG_GROUP 1390
#define IDC_LINE_PG_COLOR 1391
#define IDC_LINE_PG_STYLE 1392
#define IDC_LINE_PG_WEIGHT 1393
#define IDC_LINE_PG_LABEL 1440
#define IDC_LINE_PG_LIST 1441
#define IDC_LINE_PG_SHOW_GRID 1442
#define IDC_LINE_PG_SHOW_PRICE 1443
#define IDC_LINE_PG_STYLE_LABEL 4687
#define IDC_LINE_PG_WEIGHT_LABEL 4688

// The position pages of the studies with several anchors (Fibonacci, Gann, pitchfork, parallel).
// The Gann and pitchfork pages and the parallel channel's pages snap with box 2271 (Day; the
// Intra Gann and pitchfork pages with 1531), as the trendline does.
#define IDD_LS_PG_DAY_FIBO 1314
#define IDD_LS_PG_DAY_GANN 1315
#define IDD_LS_PG_DAY_PFORK 1316
#define IDD_LS_PG_INTRA_FIBO 1323
#define IDD_LS_PG_INTRA_GANN 1324
#define IDD_LS_PG_INTRA_PFORK 1325
#define IDD_LS_PG_DAY_PARALLEL 1394
#define IDD_LS_PG_INTRA_PARALLEL 1395
#define IDC_LS_INTRA_FIBO_SNAP 1541
#define IDC_LS_INTRA_FIBO_FONT 1542
#define IDC_LS_DAY_FIBO_SNAP 2281
#define IDC_LS_DAY_FIBO_FONT 2282
#define IDC_LS_PARALLEL_EXTEND_LEFT 4747
#define IDC_LS_PARALLEL_EXTEND_RIGHT 4748

// The cycle finder and the text page.
#define IDD_LS_PG_DAY_CYCFND 1321
#define IDD_LS_PG_INTRA_CYCFND 1329
#define IDD_LS_PG_TEXT 1333
#define IDC_LS_TXT_FONT 1421
#define IDC_LS_TXT_TRANSP_LABEL 1422
#define IDC_LS_TXT_TRANSP 1423
#define IDC_LS_TXT_TRANSP_SPIN 1424
#define IDC_LS_DAY_CYC_PERIOD 1470
#define IDC_LS_DAY_CYC_SPIN 1471
#define IDC_LS_INTRA_CYC_PERIOD 1517
#define IDC_LS_INTRA_CYC_SPIN 1519
#define IDC_LS_TXT_COLOR 4670
#define IDC_LS_TXT_COLOR_LABEL 4671
