# Tests of data exchange, the controls seam, page driving, dialog templates as fakes, the settings
# store and the clock.
list(APPEND ORV_DLGKIT_TEST_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/DataExchangeTest.cpp
  ${CMAKE_CURRENT_LIST_DIR}/StrHashTest.cpp
  ${CMAKE_CURRENT_LIST_DIR}/FakeControlsTest.cpp
  ${CMAKE_CURRENT_LIST_DIR}/LinePropTest.cpp
  ${CMAKE_CURRENT_LIST_DIR}/MessageBoxLayoutTest.cpp
  ${CMAKE_CURRENT_LIST_DIR}/SettingsStoreTest.cpp
  ${CMAKE_CURRENT_LIST_DIR}/SyntheticChartDataTest.cpp
  ${CMAKE_CURRENT_LIST_DIR}/TemplateLayoutTest.cpp
)
list(APPEND ORV_DLGKIT_WIN32_TEST_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/DataExchangeWin32Test.cpp
  ${CMAKE_CURRENT_LIST_DIR}/DialogHostWin32Test.cpp
  ${CMAKE_CURRENT_LIST_DIR}/MessageBoxWin32Test.cpp
  ${CMAKE_CURRENT_LIST_DIR}/SettingsStoreWin32Test.cpp
  ${CMAKE_CURRENT_LIST_DIR}/TemplateLayoutWin32Test.cpp
  ${CMAKE_CURRENT_LIST_DIR}/TemplateFixture.rc
)
