# The COM objects of the DLL and what runs them: ChartPages, its events, the sheet dispatcher.
# Included by src/host/CMakeLists.txt; a static library so tests drive the objects directly.
add_library(orv_host_objects STATIC
  ${CMAKE_CURRENT_LIST_DIR}/ChartPages.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ConnectionPoint.cpp
  ${CMAKE_CURRENT_LIST_DIR}/SheetDispatcher.cpp
  ${CMAKE_CURRENT_LIST_DIR}/TypeLibrary.cpp)
target_include_directories(orv_host_objects PUBLIC ${PROJECT_SOURCE_DIR}/src)
target_link_libraries(orv_host_objects PUBLIC orv_idl orv_xml orv_dlgkit orv_host_module ole32 oleaut32 uuid)
if(TARGET orv_linestudies)
  target_link_libraries(orv_host_objects PUBLIC orv_linestudies)
endif()
if(TARGET orv_seasonal)
  target_link_libraries(orv_host_objects PUBLIC orv_seasonal)
endif()

# The one IPropertyPage of the chart pages, over the portable frame of src/chartpages, and the
# COM methods' error reporting (ComError) that every object shares. A library of its own, so that
# a test program links it with a page of its own and nothing else.
add_library(orv_host_pageframe STATIC ${CMAKE_CURRENT_LIST_DIR}/PropertyPage.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ComError.cpp)
target_include_directories(orv_host_pageframe PUBLIC ${PROJECT_SOURCE_DIR}/src)
target_link_libraries(orv_host_pageframe PUBLIC orv_idl orv_xml orv_dlgkit orv_chartpages orv_host_module ole32
  oleaut32 uuid user32)
target_link_libraries(orv_host_objects PUBLIC orv_host_pageframe)
