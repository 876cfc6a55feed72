# Date and time formats: the program's strftime and the locale's date picture over any text.
orv_add_fuzzer(fuzz_date_mask ${CMAKE_CURRENT_LIST_DIR}/DateMaskFuzz.cpp orv_format)
