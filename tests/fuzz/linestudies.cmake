# The line study sheet's reader of host XML: load, build the pages, run them headless to OK.
orv_add_fuzzer(fuzz_lsps_load ${CMAKE_CURRENT_LIST_DIR}/LsPsLoadFuzz.cpp orv_linestudies_templates)
# The position pages of the trendline family: any document, every page edited, OK or Cancel.
orv_add_fuzzer(fuzz_lspages_trendline ${CMAKE_CURRENT_LIST_DIR}/LsPagesFuzz.cpp orv_linestudies_templates)
