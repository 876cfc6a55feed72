# The XML layer's paths whose cost grows with the document.
add_executable(bench_xml ${CMAKE_CURRENT_LIST_DIR}/xml_bench.cpp)
target_link_libraries(bench_xml PRIVATE orv_xml benchmark::benchmark benchmark::benchmark_main)
