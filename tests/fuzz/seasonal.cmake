# The seasonal wizard's state: any working document through its Context, any settings file
# through its history; each written out and read back.
orv_add_fuzzer(fuzz_szn_context ${CMAKE_CURRENT_LIST_DIR}/SznContextFuzz.cpp orv_seasonal RUNS 100000)
orv_add_fuzzer(fuzz_szn_history ${CMAKE_CURRENT_LIST_DIR}/SznHistoryFuzz.cpp orv_seasonal RUNS 6000)
