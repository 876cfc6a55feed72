# The seasonal wizard: any request and Context, a history in the store, a user walking it.
orv_add_fuzzer(fuzz_szn_wizard ${CMAKE_CURRENT_LIST_DIR}/SznWizardFuzz.cpp orv_seasonal_templates RUNS 20000)
