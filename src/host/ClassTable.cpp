#include "host/ClassTable.h"

#include "OrvChartDlgs_h.h"
#include "host/ChartPagesObject.h"
#ifdef ORV_HAVE_CHART_PAGES
#include "chartpages/ChartDrawPg.h"
#include "chartpages/GenXAxisPpg.h"
#include "chartpages/GenYAxisPpg.h"
#include "chartpages/NumFmtPpgX.h"
#include "chartpages/ChartGenPpg.h"
#include "chartpages/DataWndPg.h"
#include "chartpages/PointBreakPpg.h"
#include "host/PropertyPage.h"
#endif

namespace orv::host {

// ChartPages is served once the objects' library is part of the build.
#ifdef ORV_HAVE_CHART_PAGES
constexpr CreatorFn kChartPagesCreator = &CreateChartPages;
constexpr CreatorFn kChartDrawPgCreator = &CreateChartPage<CChartDrawPg>;
// The number format page.
constexpr CreatorFn kNumFmtPpgXCreator = &CreateChartPage<CNumFmtPpgX>;

// The axes pages.
constexpr CreatorFn kGenXAxisPpgCreator = &CreateChartPage<CGenXAxisPpg>;
constexpr CreatorFn kGenYAxisPpgCreator = &CreateChartPage<CGenYAxisPpg>;
// The general, data window and point break pages.
constexpr CreatorFn kChartGenPpgCreator = &CreateChartPage<CChartGenPpg>;
constexpr CreatorFn kPointBreakPpgCreator = &CreateChartPage<CPointBreakPpg>;
constexpr CreatorFn kDataWndPgCreator = &CreateChartPage<CDataWndPg>;
#else
constexpr CreatorFn kChartPagesCreator = nullptr;
constexpr CreatorFn kChartDrawPgCreator = nullptr;
constexpr CreatorFn kGenXAxisPpgCreator = nullptr;
constexpr CreatorFn kGenYAxisPpgCreator = nullptr;
constexpr CreatorFn kNumFmtPpgXCreator = nullptr;
constexpr CreatorFn kChartGenPpgCreator = nullptr;
constexpr CreatorFn kPointBreakPpgCreator = nullptr;
constexpr CreatorFn kDataWndPgCreator = nullptr;
#endif

// The script-driven classes take their whole state from the calling host (a document, chart
// data) and touch nothing else on their own: safe to script and to initialise from data.
// The pages are made by a property frame, never by scripts: no categories.
namespace {

const GUID kScriptSafe[] = {kCatidSafeForScripting, kCatidSafeForInitializing};

constexpr std::span<const GUID> kNone;

// Order: the classes as the type library lists them. A class gets its creator here when it is built.
const ClassEntry kClasses[] = {
    {&CLSID_ChartPages, L"ChartPages", L"ChartPages Class", true, kScriptSafe, kNone, kChartPagesCreator},
    {&CLSID_CmnDateRangeDlg, L"CmnDateRangeDlg", L"CmnDateRangeDlg Class", true, kScriptSafe, kNone, nullptr},
    {&CLSID_ChartDrawPg, L"ChartDrawPg", L"ChartDrawPg Class", false, kNone, kNone, kChartDrawPgCreator},
    {&CLSID_ChartGenPpg, L"ChartGenPpg", L"ChartGenPpg Class", false, kNone, kNone, kChartGenPpgCreator},
    {&CLSID_DataWndPg, L"DataWndPg", L"DataWndPg Class", false, kNone, kNone, kDataWndPgCreator},
    {&CLSID_GenXAxisPpg, L"GenXAxisPpg", L"GenXAxisPpg Class", false, kNone, kNone, kGenXAxisPpgCreator},
    {&CLSID_GenYAxisPpg, L"GenYAxisPpg", L"GenYAxisPpg Class", false, kNone, kNone, kGenYAxisPpgCreator},
    {&CLSID_LinePpgX, L"LinePpgX", L"LinePpgX Class", false, kNone, kNone, nullptr},
    {&CLSID_NumFmtPpgX, L"NumFmtPpgX", L"NumFmtPpgX Class", false, kNone, kNone, kNumFmtPpgXCreator},
    {&CLSID_PointBreakPpg, L"PointBreakPpg", L"PointBreakPpg Class", false, kNone, kNone, kPointBreakPpgCreator},
    {&CLSID_TextGenPpg, L"TextGenPpg", L"TextGenPpg Class", false, kNone, kNone, nullptr},
    {&CLSID_XAxisPpgX, L"XAxisPpgX", L"XAxisPpgX Class", false, kNone, kNone, nullptr},
    {&CLSID_YAxisPpgX, L"YAxisPpgX", L"YAxisPpgX Class", false, kNone, kNone, nullptr},
    // Listed by the type library, never registered: no creator, ever.
    {&CLSID_AnalyticsPpg, L"AnalyticsPpg", L"AnalyticsPpg Class", false, kNone, kNone, nullptr},
    {&CLSID_SznWzrdPgSeason, L"SznWzrdPgSeason", L"SznWzrdPgSeason Class", false, kNone, kNone, nullptr},
};

}  // namespace

std::span<const ClassEntry> ModuleClasses() { return kClasses; }

}  // namespace orv::host
