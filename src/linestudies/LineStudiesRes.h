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
