# The seasonal wizard's state: any working document through its Context, any settings file
# through its history; each written out and read back.
orv_add_fuzzer(fuzz_szn_context ${CMAKE_CURRENT_LIST_DIR}/SznContextFuzz.cpp orv_seasonal RUNS 100000)
orv_add_fuzzer(fuzz_szn_history ${CMAKE_CURRENT_LIST_DIR}/SznHistoryFuzz.cpp orv_seasonal RUNS 6000)
# The seasonal wizard: any request and Context, a history in the store, a user walking it.
orv_add_fuzzer(fuzz_szn_wizard ${CMAKE_CURRENT_LIST_DIR}/SznWizardFuzz.cpp orv_seasonal_templates RUNS 20000)
