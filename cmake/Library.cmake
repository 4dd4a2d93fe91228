# Puts the subsystems together: libtsxport.so, and a static archive of the same objects for tests,
# benchmarks and fuzz targets that look behind the public headers.

get_property(TSXPORT_SUBSYSTEMS GLOBAL PROPERTY TSXPORT_SUBSYSTEMS)

add_library(tsxport SHARED)
add_library(tsxport::tsxport ALIAS tsxport)
foreach(subsystem IN LISTS TSXPORT_SUBSYSTEMS)
  target_sources(tsxport PRIVATE $<TARGET_OBJECTS:${subsystem}>)
endforeach()
target_include_directories(
  tsxport
  PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include>
         $<BUILD_INTERFACE:${PROJECT_BINARY_DIR}/generated>
         $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
target_compile_features(tsxport PUBLIC cxx_std_20)
target_link_libraries(tsxport PUBLIC tsfcore::tsfcore)
set_target_properties(tsxport PROPERTIES VERSION ${PROJECT_VERSION}
                                         SOVERSION ${PROJECT_VERSION_MAJOR})
target_link_options(tsxport PRIVATE
                    "LINKER:--version-script=${PROJECT_SOURCE_DIR}/cmake/tsxport.map")
if(NOT TSXPORT_SANITIZE) # the sanitizers' run-time symbols come with the program
  target_link_options(tsxport PRIVATE "LINKER:--no-undefined")
endif()
set_target_properties(tsxport PROPERTIES LINK_DEPENDS "${PROJECT_SOURCE_DIR}/cmake/tsxport.map")

add_library(tsxport_internals STATIC)
foreach(subsystem IN LISTS TSXPORT_SUBSYSTEMS)
  target_sources(tsxport_internals PRIVATE $<TARGET_OBJECTS:${subsystem}>)
endforeach()
target_include_directories(
  tsxport_internals PUBLIC "${PROJECT_SOURCE_DIR}/include" "${PROJECT_BINARY_DIR}/generated"
                           "${PROJECT_SOURCE_DIR}")
target_link_libraries(tsxport_internals PUBLIC tsfcore::tsfcore)
