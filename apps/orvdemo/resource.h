// Resource ids of the demo dialog.
#pragma once

#define IDD_DEMO 100

#define IDC_CALC_GROUP 1000
#define IDC_PERIOD 1001
#define IDC_PERIOD_SPIN 1002
#define IDC_DEVIATION 1003
#define IDC_FIELD 1004
#define IDC_METHOD_GROUP 1010
#define IDC_METHOD_SMA 1011
#define IDC_METHOD_EMA 1012
#define IDC_METHOD_WMA 1013
#define IDC_SHOW_BANDS 1020
#define IDC_EXTEND_RIGHT 1021
#define IDC_CHARTS 1030
#define IDC_RESET 1040
#define IDC_STATUS 1050
