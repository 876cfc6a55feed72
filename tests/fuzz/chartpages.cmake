# The chart draw page's properties: any document read, written and read back.
orv_add_fuzzer(fuzz_chartdraw_props ${CMAKE_CURRENT_LIST_DIR}/ChartDrawPropsFuzz.cpp orv_chartpages RUNS 50000)
