# Dates and times: the calendar, the strftime subset, the date object, the format ids and the
# locale seam (see README.md).
list(APPEND ORV_FORMAT_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/Calendar.cpp
  ${CMAKE_CURRENT_LIST_DIR}/DateMask.cpp
  ${CMAKE_CURRENT_LIST_DIR}/DateObject.cpp
  ${CMAKE_CURRENT_LIST_DIR}/DateFormat.cpp
  ${CMAKE_CURRENT_LIST_DIR}/DateLocale.cpp
)
list(APPEND ORV_FORMAT_WIN32_SOURCES ${CMAKE_CURRENT_LIST_DIR}/win32/DateLocaleWin32.cpp)
list(APPEND ORV_FORMAT_NATIVE_SOURCES ${CMAKE_CURRENT_LIST_DIR}/native/DateLocaleNative.cpp)
