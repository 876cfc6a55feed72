# Prices: FormatPrice and its codes (see README.md).
list(APPEND ORV_FORMAT_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/FormatPrice.cpp
  ${CMAKE_CURRENT_LIST_DIR}/PriceParse.cpp)
