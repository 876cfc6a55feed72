# The chart draw page's properties: any document read, written and read back.
orv_add_fuzzer(fuzz_chartdraw_props ${CMAKE_CURRENT_LIST_DIR}/ChartDrawPropsFuzz.cpp orv_chartpages RUNS 50000)

# The number format page and the price formatter.
# The number format page's properties: any document, read from any of its nodes, written, read back.
orv_add_fuzzer(fuzz_numfmt_props ${CMAKE_CURRENT_LIST_DIR}/NumFmtPropsFuzz.cpp orv_chartpages RUNS 50000)

# The axes pages: their properties from any root of any document, read, written and read back;
# a typed price under any code, by the parser and as the Y axis page reads a value edit.
orv_add_fuzzer(fuzz_xaxis_props ${CMAKE_CURRENT_LIST_DIR}/GenXAxisPropsFuzz.cpp orv_chartpages RUNS 50000)
orv_add_fuzzer(fuzz_yaxis_props ${CMAKE_CURRENT_LIST_DIR}/GenYAxisPropsFuzz.cpp orv_chartpages RUNS 50000)
orv_add_fuzzer(fuzz_price_parse ${CMAKE_CURRENT_LIST_DIR}/PriceParseFuzz.cpp orv_chartpages)

# The general, data window and point break pages: each page's reader from any document, and the
# records of the host's field service that the data window's field picker reads.
orv_add_fuzzer(fuzz_chartgen_props ${CMAKE_CURRENT_LIST_DIR}/ChartGenPpgFuzz.cpp orv_chartpages RUNS 50000)
orv_add_fuzzer(fuzz_pointbreak_props ${CMAKE_CURRENT_LIST_DIR}/PointBreakPpgFuzz.cpp orv_chartpages RUNS 50000)
orv_add_fuzzer(fuzz_datawnd_props ${CMAKE_CURRENT_LIST_DIR}/DataWndPgFuzz.cpp orv_chartpages RUNS 50000)
orv_add_fuzzer(fuzz_field_records ${CMAKE_CURRENT_LIST_DIR}/FieldRecordsFuzz.cpp orv_dlgkit RUNS 50000)
