# Tests of the DLL's module: class factory, manifests and UI activation context (host_tests,
# defined in CMakeLists.txt), registration by regsvr32 and activation registration-free.

# host_tests carries the UI manifest as its own resource 2, as the DLL does: the activation
# scope, linked into the program, finds it in the module that holds its code.
set(host_tests_rc ${CMAKE_CURRENT_BINARY_DIR}/host_tests.rc)
file(WRITE ${host_tests_rc} "2 24 \"${PROJECT_SOURCE_DIR}/src/host/OrvChartDlgs.ui.manifest\"\n")
target_sources(host_tests PRIVATE ${host_tests_rc})
target_link_libraries(host_tests PRIVATE oleaut32)

# Registration and unregistration with Wine's regsvr32, per user and for the machine, compared
# against full listings of the classes. Serial: it changes the prefix's registry, which the
# other registering tests (and any activation test) share.
add_executable(host_registration_tests ${CMAKE_CURRENT_LIST_DIR}/RegistrationTests.cpp)
target_link_libraries(host_registration_tests PRIVATE orv_idl orv_com advapi32 GTest::gtest_main)
set_target_properties(host_registration_tests PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${ORV_RUNTIME_DIR})
add_dependencies(host_registration_tests OrvChartDlgs)
orv_add_test(host_registration_tests)
set_tests_properties(host_registration_tests PROPERTIES RUN_SERIAL TRUE)

# A host program with an application manifest naming the OrvChartDlgs assembly: activation with
# nothing registered. Serial: a registration by another test would hide a failure here.
set(host_regfree_rc ${CMAKE_CURRENT_BINARY_DIR}/host_regfree_tests.rc)
file(WRITE ${host_regfree_rc} "1 24 \"${ORV_HOST_APP_MANIFEST}\"\n")
set_property(SOURCE ${host_regfree_rc} APPEND PROPERTY OBJECT_DEPENDS ${ORV_HOST_APP_MANIFEST})
add_executable(host_regfree_tests ${CMAKE_CURRENT_LIST_DIR}/RegFreeTests.cpp ${host_regfree_rc})
target_link_libraries(host_regfree_tests PRIVATE orv_idl orv_com advapi32 GTest::gtest_main)
set_target_properties(host_regfree_tests PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${ORV_RUNTIME_DIR})
add_dependencies(host_regfree_tests OrvChartDlgs)
orv_add_test(host_regfree_tests)
set_tests_properties(host_regfree_tests PROPERTIES RUN_SERIAL TRUE)
