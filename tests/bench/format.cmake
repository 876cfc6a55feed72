# The date and time formatters, one call per id; the price formatter against snprintf.
add_executable(bench_format ${CMAKE_CURRENT_LIST_DIR}/format_bench.cpp ${CMAKE_CURRENT_LIST_DIR}/price_bench.cpp)
target_link_libraries(bench_format PRIVATE orv_format benchmark::benchmark benchmark::benchmark_main)
