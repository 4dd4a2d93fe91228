# The literal versions, once for all who compare with them: tests, benchmarks and fuzz targets, which
# are built with or without each other.
include_guard(GLOBAL)

add_library(tsxport_literal STATIC "${CMAKE_CURRENT_LIST_DIR}/LiteralReaders.cpp"
                                   "${CMAKE_CURRENT_LIST_DIR}/LiteralWriter.cpp"
                                   "${CMAKE_CURRENT_LIST_DIR}/LiteralXml.cpp")
target_include_directories(tsxport_literal PUBLIC "${PROJECT_SOURCE_DIR}")
target_link_libraries(tsxport_literal PRIVATE tsxport_warnings)
