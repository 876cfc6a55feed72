# Prompts, the colour table, fonts and the small registry key wrapper (see README.md).
list(APPEND ORV_DLGKIT_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/Prompts.cpp)
