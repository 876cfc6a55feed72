# Tests of the dialog base and its theme.
list(APPEND ORV_DLGKIT_TEST_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/OrvDialogTest.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ThemedControlsTest.cpp
  ${CMAKE_CURRENT_LIST_DIR}/HostServicesTest.cpp)
list(APPEND ORV_DLGKIT_WIN32_TEST_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/win32/OrvDialogWin32Test.cpp
  ${CMAKE_CURRENT_LIST_DIR}/win32/WindowSubclassWin32Test.cpp)
