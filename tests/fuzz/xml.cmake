# The XML layer: the value reader, and loading host text followed by every reader.
orv_add_fuzzer(fuzz_xml_parse_value xml_parse_value_fuzz.cpp orv_xml RUNS 1000000)
orv_add_fuzzer(fuzz_xml_load xml_load_fuzz.cpp orv_xml RUNS 200000)
