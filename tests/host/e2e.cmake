# orvhost, the demo host: its own parts, then the component end to end through it
# (real COM activation, the platform's sheet, scripted input). Included by tests/host/CMakeLists.txt.

add_executable(orvhost_tests orvhost/OrvhostPartsTest.cpp orvhost/ScriptDriverTest.cpp orvhost/ScriptDriverTest.rc
  orvhost/HostServiceObjectsTest.cpp)
# orv_dlgkit: the component's own client of the host services, against orvhost's.
target_link_libraries(orvhost_tests PRIVATE orvhost_core orv_dlgkit GTest::gtest_main)
set_target_properties(orvhost_tests PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${ORV_RUNTIME_DIR})
orv_add_test(orvhost_tests)

# The component end to end through orvhost: activation through the DLL's manifest and straight
# from the DLL, the platform's sheet driven by script, the exact events a C++ sink receives.
add_test(NAME host_e2e_orvhost
  COMMAND sh ${CMAKE_CURRENT_LIST_DIR}/e2e/e2e.sh $<TARGET_FILE:orvhost> ${CMAKE_CURRENT_LIST_DIR}/e2e)
set_tests_properties(host_e2e_orvhost PROPERTIES LABELS wine TIMEOUT 300)

# The line tabs through orvhost: three studies' line tabs edited by script, colours chosen with the
# platform's colour buttons, the exact events.
add_test(NAME host_e2e_line_tabs
  COMMAND sh ${CMAKE_CURRENT_LIST_DIR}/e2e/linetabs.sh $<TARGET_FILE:orvhost> ${CMAKE_CURRENT_LIST_DIR}/e2e)
set_tests_properties(host_e2e_line_tabs PROPERTIES LABELS wine TIMEOUT 300)

# The studies with several anchors through orvhost: a Fibonacci study by date, a pitchfork and a
# parallel channel by bar, their position tabs alone and whole sheets with the line tabs (a colour
# chosen with the real colour button), edited by script and applied.
add_test(NAME host_e2e_anchors
  COMMAND sh ${CMAKE_CURRENT_LIST_DIR}/e2e/anchors.sh $<TARGET_FILE:orvhost> ${CMAKE_CURRENT_LIST_DIR}/e2e)
set_tests_properties(host_e2e_anchors PROPERTIES LABELS wine TIMEOUT 300)

# The seasonal wizard through orvhost: the five forms and the count form walked to Finish, Cancel on
# middle pages, the history a run leaves and the next run takes up, in the user's registry.
# Exit code 77 (skipped): the year turned while it ran, so its expectations may be a year off.
add_test(NAME host_e2e_seasonal
  COMMAND sh ${CMAKE_CURRENT_LIST_DIR}/e2e/seasonal.sh $<TARGET_FILE:orvhost> ${CMAKE_CURRENT_LIST_DIR}/e2e)
set_tests_properties(host_e2e_seasonal PROPERTIES LABELS wine TIMEOUT 300 SKIP_RETURN_CODE 77)

# Pictures of the nine trendline family pages, each in the platform's sheet, for a person to
# look at: <build>/tests/host/pictures/<page>.png.
add_test(NAME host_e2e_page_pictures
  COMMAND sh ${CMAKE_CURRENT_LIST_DIR}/e2e/pictures.sh $<TARGET_FILE:orvhost> ${CMAKE_CURRENT_BINARY_DIR}/pictures)
set_tests_properties(host_e2e_page_pictures PROPERTIES LABELS wine TIMEOUT 300)
