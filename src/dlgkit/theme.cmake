# The dialog base and its theme: COrvDialog<T>, the themed controls, WindowOps, HostServices.
list(APPEND ORV_DLGKIT_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/OrvDialog.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ThemedControls.cpp
  ${CMAKE_CURRENT_LIST_DIR}/HostServices.cpp
  ${CMAKE_CURRENT_LIST_DIR}/FieldRecords.cpp
  ${CMAKE_CURRENT_LIST_DIR}/HostServicesInProcess.cpp)
list(APPEND ORV_DLGKIT_NATIVE_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/native/WindowOpsNative.cpp
  ${CMAKE_CURRENT_LIST_DIR}/native/HostServicesNative.cpp)
list(APPEND ORV_DLGKIT_WIN32_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/win32/WindowOpsWin32.cpp
  ${CMAKE_CURRENT_LIST_DIR}/win32/ThemedControlsWin32.cpp
  ${CMAKE_CURRENT_LIST_DIR}/win32/WindowSubclass.cpp
  ${CMAKE_CURRENT_LIST_DIR}/win32/HostServicesWin32.cpp)
list(APPEND ORV_DLGKIT_FAKE_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/fake/FakeWindowTree.cpp
  ${CMAKE_CURRENT_LIST_DIR}/fake/FakeHostServices.cpp)
