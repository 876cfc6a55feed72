# The chart draw page's properties: any document read, written and read back.
orv_add_fuzzer(fuzz_chartdraw_props ${CMAKE_CURRENT_LIST_DIR}/ChartDrawPropsFuzz.cpp orv_chartpages RUNS 50000)

# The number format page and the price formatter.

# The axes pages.

# The general, data window and point break pages: each page's reader from any document, and the
# records of the host's field service that the data window's field picker reads.
orv_add_fuzzer(fuzz_chartgen_props ${CMAKE_CURRENT_LIST_DIR}/ChartGenPpgFuzz.cpp orv_chartpages RUNS 50000)
orv_add_fuzzer(fuzz_pointbreak_props ${CMAKE_CURRENT_LIST_DIR}/PointBreakPpgFuzz.cpp orv_chartpages RUNS 50000)
orv_add_fuzzer(fuzz_datawnd_props ${CMAKE_CURRENT_LIST_DIR}/DataWndPgFuzz.cpp orv_chartpages RUNS 50000)
orv_add_fuzzer(fuzz_field_records ${CMAKE_CURRENT_LIST_DIR}/FieldRecordsFuzz.cpp orv_dlgkit RUNS 50000)
