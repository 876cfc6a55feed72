# Data exchange, the controls seam, page driving, settings store and clock (see README.md).
list(APPEND ORV_DLGKIT_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/Controls.cpp
  ${CMAKE_CURRENT_LIST_DIR}/FloatParse.cpp
  ${CMAKE_CURRENT_LIST_DIR}/LineProp.cpp
  ${CMAKE_CURRENT_LIST_DIR}/MessageBoxLayout.cpp
  ${CMAKE_CURRENT_LIST_DIR}/SettingsStore.cpp
)
list(APPEND ORV_DLGKIT_WIN32_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/win32/ClockWin32.cpp
  ${CMAKE_CURRENT_LIST_DIR}/win32/ControlsWin32.cpp
  ${CMAKE_CURRENT_LIST_DIR}/win32/DialogHost.cpp
  ${CMAKE_CURRENT_LIST_DIR}/win32/MessageBoxWin32.cpp
  ${CMAKE_CURRENT_LIST_DIR}/win32/SettingsStoreWin32.cpp
  # The portable headers' copies of the platform's constants, checked against its own headers.
  ${CMAKE_CURRENT_LIST_DIR}/win32/ControlsMirror.cpp
  ${CMAKE_CURRENT_LIST_DIR}/win32/MessageBoxMirror.cpp
  ${CMAKE_CURRENT_LIST_DIR}/win32/PageMirror.cpp
  ${CMAKE_CURRENT_LIST_DIR}/win32/WindowOpsMirror.cpp
)
list(APPEND ORV_DLGKIT_NATIVE_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/native/ClockNative.cpp
  ${CMAKE_CURRENT_LIST_DIR}/native/MessageBoxNative.cpp
  ${CMAKE_CURRENT_LIST_DIR}/native/SettingsStoreNative.cpp
)
list(APPEND ORV_DLGKIT_FAKE_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/fake/ControlsFake.cpp
  ${CMAKE_CURRENT_LIST_DIR}/fake/HeadlessRunner.cpp
  ${CMAKE_CURRENT_LIST_DIR}/fake/TemplateLayout.cpp
)
