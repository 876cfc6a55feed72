# The kit's property sheet: SheetRunner over PropertySheetA, its native stand-in, the headless
# runner for tests.
list(APPEND ORV_DLGKIT_WIN32_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/win32/SheetRunnerWin32.cpp)
list(APPEND ORV_DLGKIT_NATIVE_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/native/SheetRunnerNative.cpp)
list(APPEND ORV_DLGKIT_FAKE_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/fake/HeadlessSheetRunner.cpp
  ${CMAKE_CURRENT_LIST_DIR}/fake/SyntheticChartData.cpp)
