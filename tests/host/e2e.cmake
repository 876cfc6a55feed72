# orvhost, the demo host: its own parts, then the component end to end through it
# (real COM activation, the platform's sheet, scripted input). Included by tests/host/CMakeLists.txt.

add_executable(orvhost_tests orvhost/OrvhostPartsTest.cpp orvhost/ScriptDriverTest.cpp orvhost/ScriptDriverTest.rc)
target_link_libraries(orvhost_tests PRIVATE orvhost_core GTest::gtest_main)
set_target_properties(orvhost_tests PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${ORV_RUNTIME_DIR})
orv_add_test(orvhost_tests)
