# Prompts, the colour table, fonts and the small registry key wrapper (see README.md).
list(APPEND ORV_DLGKIT_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/Prompts.cpp
  ${CMAKE_CURRENT_LIST_DIR}/FontInfo.cpp)
list(APPEND ORV_DLGKIT_NATIVE_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/native/FontOpsNative.cpp)
list(APPEND ORV_DLGKIT_WIN32_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/win32/FontOpsWin32.cpp)
list(APPEND ORV_DLGKIT_FAKE_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/fake/FakeFontOps.cpp)
# The colour pickers: the portable grid and drop-down, and their windows (see README.md).
list(APPEND ORV_DLGKIT_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/ColorPicker.cpp
  ${CMAKE_CURRENT_LIST_DIR}/PageColorButtons.cpp)
list(APPEND ORV_DLGKIT_WIN32_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/win32/ColorPickerWin32.cpp
  ${CMAKE_CURRENT_LIST_DIR}/win32/PageColorButtonsWin32.cpp
  ${CMAKE_CURRENT_LIST_DIR}/win32/ColorPickerMirror.cpp)
