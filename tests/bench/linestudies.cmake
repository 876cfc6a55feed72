# The line study pages whose documents grow with their lines: a line tab's TVector of lines and
# the graph object line page's LineList, read and written for growing numbers of lines.
add_executable(bench_linestudies ${CMAKE_CURRENT_LIST_DIR}/linestudies_bench.cpp)
target_link_libraries(bench_linestudies PRIVATE orv_linestudies benchmark::benchmark benchmark::benchmark_main)
