# Readers of user text in the dialog kit: edit fields with numbers, the native settings file.
orv_add_fuzzer(fuzz_float_parse ${CMAKE_CURRENT_LIST_DIR}/FloatParseFuzz.cpp orv_dlgkit)
orv_add_fuzzer(fuzz_settings_file ${CMAKE_CURRENT_LIST_DIR}/SettingsFileFuzz.cpp orv_dlgkit)
