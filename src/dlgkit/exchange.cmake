# Data exchange, the controls seam, page driving, settings store and clock (see README.md).
list(APPEND ORV_DLGKIT_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/FloatParse.cpp
)
