# The ChartPages object driven directly (no registration): creation and aggregation, the
# interface table, dispatch from the type library, events into strict sinks, the dispatcher's
# outcomes and failures. The program carries the type library as its own resource, as the DLL does.
set(host_objects_rc ${CMAKE_CURRENT_BINARY_DIR}/host_objects_tests.rc)
file(WRITE ${host_objects_rc} "1 TYPELIB \"${ORV_TYPELIB}\"\n")
set_property(SOURCE ${host_objects_rc} APPEND PROPERTY OBJECT_DEPENDS ${ORV_TYPELIB})
add_executable(host_objects_tests ${CMAKE_CURRENT_LIST_DIR}/ChartPagesTests.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ChartPagesEventTests.cpp ${host_objects_rc})
add_dependencies(host_objects_tests orv_idl_outputs)
target_link_libraries(host_objects_tests PRIVATE orv_host_objects GTest::gtest_main)
set_target_properties(host_objects_tests PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${ORV_RUNTIME_DIR})
orv_add_test(host_objects_tests)

# A script client by ProgID (JScript under Wine's cscript), after a registration for the machine.
# Serial: it registers the DLL in the prefix that other tests share.
add_test(NAME host_script_client
  COMMAND sh ${CMAKE_CURRENT_LIST_DIR}/script_client.sh $<TARGET_FILE:OrvChartDlgs>
    ${CMAKE_CURRENT_LIST_DIR}/chartpages_client.js)
set_tests_properties(host_script_client PROPERTIES LABELS wine TIMEOUT 120 RUN_SERIAL TRUE)

# The chart pages' IPropertyPage with a sample page of the test's own (its template and title in
# the program's resources, beside the UI manifest as resource 2), a real window as the frame, a
# fake chart object and site.
set(host_pageframe_rc ${CMAKE_CURRENT_BINARY_DIR}/host_pageframe_tests.rc)
file(WRITE ${host_pageframe_rc}
  "#include \"${PROJECT_SOURCE_DIR}/tests/chartpages/SampleChartPage.rc\"\n"
  "2 24 \"${PROJECT_SOURCE_DIR}/src/host/OrvChartDlgs.ui.manifest\"\n")
set_source_files_properties(${host_pageframe_rc} PROPERTIES
  INCLUDE_DIRECTORIES "${PROJECT_SOURCE_DIR}/tests/chartpages"
  OBJECT_DEPENDS "${PROJECT_SOURCE_DIR}/tests/chartpages/SampleChartPage.rc")
add_executable(host_pageframe_tests ${CMAKE_CURRENT_LIST_DIR}/PropertyPageTests.cpp ${host_pageframe_rc})
target_include_directories(host_pageframe_tests PRIVATE ${PROJECT_SOURCE_DIR}/tests/chartpages)
add_dependencies(host_pageframe_tests orv_idl_outputs)
target_link_libraries(host_pageframe_tests PRIVATE orv_host_pageframe orv_com orv_app_capture GTest::gtest_main)
set_target_properties(host_pageframe_tests PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${ORV_RUNTIME_DIR})
orv_add_test(host_pageframe_tests)

# The sample page as a COM class in a DLL of its own, and orvhost showing it in its own frame by
# class id: the page object made through the class factory, its properties served from a document,
# scripted changes, and what the page hands back exactly.
add_library(orv_sample_pages SHARED ${CMAKE_CURRENT_LIST_DIR}/SamplePagesModule.cpp
  ${CMAKE_CURRENT_LIST_DIR}/SamplePages.def ${host_pageframe_rc})
target_include_directories(orv_sample_pages PRIVATE ${PROJECT_SOURCE_DIR}/tests/chartpages)
target_link_libraries(orv_sample_pages PRIVATE orv_host_pageframe)
set_target_properties(orv_sample_pages PROPERTIES PREFIX "" RUNTIME_OUTPUT_DIRECTORY ${ORV_RUNTIME_DIR})
add_test(NAME host_e2e_pageframe
  COMMAND sh ${CMAKE_CURRENT_LIST_DIR}/e2e/pageframe.sh $<TARGET_FILE:orvhost> $<TARGET_FILE:orv_sample_pages>
    ${CMAKE_CURRENT_LIST_DIR}/e2e)
set_tests_properties(host_e2e_pageframe PROPERTIES LABELS wine TIMEOUT 300)

# The component's chart draw page shown by orvhost in its own frame, straight from the DLL: its
# properties served from a document, scripted changes, what the page hands back exactly.
add_test(NAME host_e2e_chartdraw
  COMMAND sh ${CMAKE_CURRENT_LIST_DIR}/e2e/chartdraw.sh $<TARGET_FILE:orvhost> $<TARGET_FILE:OrvChartDlgs>
    ${CMAKE_CURRENT_LIST_DIR}/e2e)
set_tests_properties(host_e2e_chartdraw PROPERTIES LABELS wine TIMEOUT 300)

# The axes pages the same way.
add_test(NAME host_e2e_axes
  COMMAND sh ${CMAKE_CURRENT_LIST_DIR}/e2e/axes.sh $<TARGET_FILE:orvhost> $<TARGET_FILE:OrvChartDlgs>
    ${CMAKE_CURRENT_LIST_DIR}/e2e)
set_tests_properties(host_e2e_axes PROPERTIES LABELS wine TIMEOUT 300)

# The number format page shown by orvhost in its own frame, straight from the DLL: its categories
# served from a document, scripted choices with the sample they show, the format pair handed back.
add_test(NAME host_e2e_numfmt
  COMMAND sh ${CMAKE_CURRENT_LIST_DIR}/e2e/numfmt.sh $<TARGET_FILE:orvhost> $<TARGET_FILE:OrvChartDlgs>
    ${CMAKE_CURRENT_LIST_DIR}/e2e)
set_tests_properties(host_e2e_numfmt PROPERTIES LABELS wine TIMEOUT 300)

# The chart general, point break and data window pages in orvhost's frame, the same way.
add_test(NAME host_e2e_chartgen
  COMMAND sh ${CMAKE_CURRENT_LIST_DIR}/e2e/chartgen.sh $<TARGET_FILE:orvhost> $<TARGET_FILE:OrvChartDlgs>
    ${CMAKE_CURRENT_LIST_DIR}/e2e)
set_tests_properties(host_e2e_chartgen PROPERTIES LABELS wine TIMEOUT 300)
