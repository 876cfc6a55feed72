# The line study sheet: any document, every page edited, OK or Cancel.
orv_add_fuzzer(fuzz_lspages_trendline ${CMAKE_CURRENT_LIST_DIR}/LsPagesFuzz.cpp orv_linestudies_templates)

# The line tabs and the graph object line page.
orv_add_fuzzer(fuzz_lspages_lines ${CMAKE_CURRENT_LIST_DIR}/LsLineTabsFuzz.cpp orv_linestudies_templates)

# The position pages of the studies with several anchors.
# The same driver over its own seeds: Fibonacci, Gann, pitchfork and parallel channel pages.
orv_add_fuzzer(fuzz_lspages_anchors ${CMAKE_CURRENT_LIST_DIR}/LsPagesFuzz.cpp orv_linestudies_templates)

# The cycle finder and the text page.
orv_add_fuzzer(fuzz_lspages_cycle_text ${CMAKE_CURRENT_LIST_DIR}/LsCycleTextFuzz.cpp orv_linestudies_templates)
