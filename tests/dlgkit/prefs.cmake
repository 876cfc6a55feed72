# Tests of prompts, the colour table, fonts and the registry key wrapper.
list(APPEND ORV_DLGKIT_TEST_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/PromptsTest.cpp
  ${CMAKE_CURRENT_LIST_DIR}/CxRegKeyTest.cpp
  ${CMAKE_CURRENT_LIST_DIR}/FontInfoTest.cpp)
list(APPEND ORV_DLGKIT_WIN32_TEST_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/win32/FontOpsWin32Test.cpp)
# Tests of the colour pickers.
list(APPEND ORV_DLGKIT_TEST_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/ColorPickerTest.cpp)
list(APPEND ORV_DLGKIT_WIN32_TEST_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/win32/ColorPickerWin32Test.cpp
  ${CMAKE_CURRENT_LIST_DIR}/win32/ColorPickerWin32Test.rc)
