# The module of OrvChartDlgs.dll: class table, class factory, registration, resources.
# Included by src/host/CMakeLists.txt after the objects' fragment.

# What the objects and the tests share with the DLL: the UI activation context (used by the
# objects' UI entry points), the class factory and registration over any class table.
target_sources(orv_host_module PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/ActivationContext.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ClassFactory.cpp
  ${CMAKE_CURRENT_LIST_DIR}/Registration.cpp)
target_link_libraries(orv_host_module PUBLIC orv_idl orv_dlgkit ole32 oleaut32 advapi32 uuid)

# The DLL's own: its class table (which names the objects' creators) and its resources.
list(APPEND ORV_HOST_MODULE_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/ClassTable.cpp
  ${CMAKE_CURRENT_LIST_DIR}/OrvChartDlgs.rc)
if(TARGET orv_host_objects)
  set_property(SOURCE ${CMAKE_CURRENT_LIST_DIR}/ClassTable.cpp APPEND PROPERTY COMPILE_DEFINITIONS ORV_HAVE_CHART_PAGES)
endif()

# The assembly manifest names the processor architecture of this build.
if(CMAKE_SIZEOF_VOID_P EQUAL 8)
  set(ORV_MANIFEST_ARCH amd64)
else()
  set(ORV_MANIFEST_ARCH x86)
endif()
set(ORV_MANIFEST_DIR ${CMAKE_CURRENT_BINARY_DIR}/manifest CACHE INTERNAL "the DLL's generated assembly manifest")
configure_file(${CMAKE_CURRENT_LIST_DIR}/OrvChartDlgs.manifest.in ${ORV_MANIFEST_DIR}/OrvChartDlgs.manifest @ONLY)
configure_file(${CMAKE_CURRENT_LIST_DIR}/HostApp.manifest.sample ${ORV_MANIFEST_DIR}/HostApp.manifest COPYONLY)
set(ORV_HOST_APP_MANIFEST ${ORV_MANIFEST_DIR}/HostApp.manifest CACHE INTERNAL
  "a host program's manifest that names the OrvChartDlgs assembly (registration-free use)")

# The dialog templates of the line study pages, the chart pages and the seasonal wizard join the DLL's
# resources once they exist; the globs make CMake look again when a file appears.
file(GLOB orv_linestudies_rc CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/linestudies/*.rc ${PROJECT_SOURCE_DIR}/src/linestudies/*.h)
file(GLOB orv_chartpages_rc CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/chartpages/*.rc ${PROJECT_SOURCE_DIR}/src/chartpages/*.h)
file(GLOB orv_seasonal_rc CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/seasonal/*.rc ${PROJECT_SOURCE_DIR}/src/seasonal/*.h)
set(orv_rc_depends ${ORV_TYPELIB} ${ORV_MANIFEST_DIR}/OrvChartDlgs.manifest ${CMAKE_CURRENT_LIST_DIR}/OrvChartDlgs.ui.manifest
  ${orv_linestudies_rc} ${orv_seasonal_rc} ${orv_chartpages_rc} ${PROJECT_SOURCE_DIR}/src/dlgkit/win32/ColorPicker.rc)
set(orv_rc_definitions)
if(EXISTS ${PROJECT_SOURCE_DIR}/src/linestudies/LineStudies.rc)
  list(APPEND orv_rc_definitions ORV_HAVE_LINESTUDIES_RC)
endif()
if(EXISTS ${PROJECT_SOURCE_DIR}/src/chartpages/ChartPages.rc)
  list(APPEND orv_rc_definitions ORV_HAVE_CHARTPAGES_RC)
endif()
if(EXISTS ${PROJECT_SOURCE_DIR}/src/seasonal/Seasonal.rc)
  list(APPEND orv_rc_definitions ORV_HAVE_SEASONAL_RC)
endif()
# windres finds the files named by the script (type library, manifests) on its include path;
# it writes no dependency file, hence the explicit list.
set_source_files_properties(${CMAKE_CURRENT_LIST_DIR}/OrvChartDlgs.rc PROPERTIES
  INCLUDE_DIRECTORIES "${PROJECT_SOURCE_DIR}/src;${ORV_IDL_GENERATED_DIR};${ORV_MANIFEST_DIR};${CMAKE_CURRENT_LIST_DIR}"
  COMPILE_DEFINITIONS "${orv_rc_definitions}"
  OBJECT_DEPENDS "${orv_rc_depends}")
