# The line study sheet's reader of host XML: load, build the pages, run them headless to OK.
orv_add_fuzzer(fuzz_lsps_load ${CMAKE_CURRENT_LIST_DIR}/LsPsLoadFuzz.cpp orv_linestudies orv_dlgkit_fake)
