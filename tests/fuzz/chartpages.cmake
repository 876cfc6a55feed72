# The chart draw page's properties: any document read, written and read back.
orv_add_fuzzer(fuzz_chartdraw_props ${CMAKE_CURRENT_LIST_DIR}/ChartDrawPropsFuzz.cpp orv_chartpages RUNS 50000)

# The number format page and the price formatter.
# The number format page's properties: any document, read from any of its nodes, written, read back.
orv_add_fuzzer(fuzz_numfmt_props ${CMAKE_CURRENT_LIST_DIR}/NumFmtPropsFuzz.cpp orv_chartpages RUNS 50000)

# The axes pages.

# The general, data window and point break pages.
