#pragma once
// Resource ids of the sample chart page (SampleChartPage.rc).
#define IDD_SAMPLE_CHART_PAGE 5100
#define IDC_SAMPLE_VALUE 5101
#define IDC_SAMPLE_FLAG 5102
#define IDS_SAMPLE_CHART_PAGE_TITLE 5100
