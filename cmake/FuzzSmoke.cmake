# One fuzz smoke run, for ctest. It empties the scratch corpus, so that every run starts from the
# seeds alone, and runs the fuzzer over scratch and seeds with the given options. A run with the
# same seed then makes the same inputs only if the program's addresses are the same each time
# (libFuzzer mixes traced comparisons and call targets into its choices), so where setarch can
# turn address randomisation off for the child, it does.
#   cmake -D FUZZER=<program> -D SCRATCH=<dir> -D SEEDS=<dir or empty> -D OPTIONS=<list> -P FuzzSmoke.cmake
file(REMOVE_RECURSE "${SCRATCH}")
file(MAKE_DIRECTORY "${SCRATCH}")
set(launcher)
find_program(SETARCH setarch)
if(SETARCH)
  execute_process(COMMAND "${SETARCH}" -R true RESULT_VARIABLE usable OUTPUT_QUIET ERROR_QUIET)
  if(usable EQUAL 0)
    set(launcher "${SETARCH}" -R)
  endif()
endif()
execute_process(COMMAND ${launcher} "${FUZZER}" ${OPTIONS} "${SCRATCH}" ${SEEDS} RESULT_VARIABLE result)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "${FUZZER} ${OPTIONS}: ${result}")
endif()
