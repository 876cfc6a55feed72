# Tests of the sheet: one table of user sessions played on the headless sheet and on the
# platform's sheet.
list(APPEND ORV_DLGKIT_TEST_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/SheetSequences.cpp
  ${CMAKE_CURRENT_LIST_DIR}/SheetSequenceTest.cpp)
list(APPEND ORV_DLGKIT_WIN32_TEST_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/SheetSequences.cpp
  ${CMAKE_CURRENT_LIST_DIR}/win32/SheetSequenceWin32Test.cpp
  ${CMAKE_CURRENT_LIST_DIR}/win32/SheetSequenceWin32Test.rc)
