# Settings shared by every target of the project.

if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
  add_compile_options(-Wall -Wextra -Wno-unused-parameter)
endif()

if(ORV_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-omit-frame-pointer -fno-sanitize-recover=undefined)
  add_link_options(-fsanitize=address,undefined)
endif()

if(ORV_FUZZ)
  # Everything is built with coverage for libFuzzer; only the fuzz targets link its main.
  add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

if(WIN32)
  # Narrow Win32 API, Vista and later (RegisterTypeLibForUser, task dialogs), no min/max macros.
  add_compile_definitions(_WIN32_WINNT=0x0601 WINVER=0x0601 NOMINMAX WIN32_LEAN_AND_MEAN _CRT_SECURE_NO_WARNINGS)
  if(MINGW)
    # The C++ runtime is linked statically: the DLL imports only system DLLs.
    add_link_options(-static -static-libgcc -static-libstdc++)
  endif()
endif()

# The DLL, the programs that load it and the demos share one folder, as on a user's machine.
set(ORV_RUNTIME_DIR ${CMAKE_BINARY_DIR}/bin)

# orv_add_test(<target> [gtest_discover_tests options...]): registers a test program with ctest.
# Natively each GoogleTest case is its own ctest test (further options, such as TEST_PREFIX, go to
# gtest_discover_tests); a Windows program runs whole, through Wine (see cmake/wine-run.sh), with
# the prefix that tools/wine-session.sh prepares.
function(orv_add_test target)
  if(WIN32)
    add_test(NAME ${target} COMMAND ${target})
    set_tests_properties(${target} PROPERTIES LABELS wine TIMEOUT 300)
  else()
    include(GoogleTest)
    gtest_discover_tests(${target} DISCOVERY_TIMEOUT 60 ${ARGN})
  endif()
endfunction()
