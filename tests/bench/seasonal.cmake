# The seasonal wizard's Context: read and written for year lists of growing length.
add_executable(bench_seasonal ${CMAKE_CURRENT_LIST_DIR}/seasonal_bench.cpp)
target_link_libraries(bench_seasonal PRIVATE orv_seasonal benchmark::benchmark benchmark::benchmark_main)
