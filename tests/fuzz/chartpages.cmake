# The chart draw page's properties: any document read, written and read back.
orv_add_fuzzer(fuzz_chartdraw_props ${CMAKE_CURRENT_LIST_DIR}/ChartDrawPropsFuzz.cpp orv_chartpages RUNS 50000)

# The number format page and the price formatter.

# The axes pages.

# The general, data window and point break pages.
