# Date and time formats: the program's strftime and the locale's date picture over any text.
orv_add_fuzzer(fuzz_date_mask ${CMAKE_CURRENT_LIST_DIR}/DateMaskFuzz.cpp orv_format)
# Prices: FormatPrice over any value, format and precision.
orv_add_fuzzer(fuzz_format_price ${CMAKE_CURRENT_LIST_DIR}/FormatPriceFuzz.cpp orv_format RUNS 50000)
