# Readers of user text in the dialog kit: edit fields with numbers, the native settings file.
orv_add_fuzzer(fuzz_float_parse ${CMAKE_CURRENT_LIST_DIR}/FloatParseFuzz.cpp orv_dlgkit)
orv_add_fuzzer(fuzz_settings_file ${CMAKE_CURRENT_LIST_DIR}/SettingsFileFuzz.cpp orv_dlgkit)
# Fonts in host XML: CFontInfo's reader, its LOGFONT conversion and writer, the font cache.
orv_add_fuzzer(fuzz_font_info ${CMAKE_CURRENT_LIST_DIR}/FontInfoFuzz.cpp orv_dlgkit_fake)
