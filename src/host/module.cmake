# The module of OrvChartDlgs.dll: class table, class factory, registration, resources.
# Included by src/host/CMakeLists.txt after the objects' fragment.

# The UI activation context is used by the objects (their UI entry points) as well as the module,
# so it lives in the module library that both link.
target_sources(orv_host_module PRIVATE ${CMAKE_CURRENT_LIST_DIR}/ActivationContext.cpp)
