# What `cmake --install` leaves: headers, libraries, the CMake packages tsfcore, tsxport and
# tsxtimes, and pkg-config files.

include(CMakePackageConfigHelpers)
set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake")
# The packages may be moved: pkg-config files find the prefix from where they stand.
file(RELATIVE_PATH package_prefix_from_pc "/p/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/p")

# tsxport_install_package(NAME): exports target NAME as NAME::NAME in a package of that name.
function(tsxport_install_package name)
  install(TARGETS ${name} EXPORT ${name}Targets LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}")
  install(
    EXPORT ${name}Targets
    NAMESPACE ${name}::
    DESTINATION "${package_dir}/${name}")
  configure_package_config_file(
    "${PROJECT_SOURCE_DIR}/cmake/${name}Config.cmake.in" "${PROJECT_BINARY_DIR}/${name}Config.cmake"
    INSTALL_DESTINATION "${package_dir}/${name}")
  write_basic_package_version_file("${PROJECT_BINARY_DIR}/${name}ConfigVersion.cmake"
                                   COMPATIBILITY SameMajorVersion)
  install(FILES "${PROJECT_BINARY_DIR}/${name}Config.cmake"
                "${PROJECT_BINARY_DIR}/${name}ConfigVersion.cmake"
          DESTINATION "${package_dir}/${name}")
  configure_file("${PROJECT_SOURCE_DIR}/cmake/${name}.pc.in" "${PROJECT_BINARY_DIR}/${name}.pc"
                 @ONLY)
  install(FILES "${PROJECT_BINARY_DIR}/${name}.pc"
          DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
endfunction()

install(DIRECTORY "${PROJECT_SOURCE_DIR}/include/tsxport"
        DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}")
install(FILES "${PROJECT_BINARY_DIR}/generated/tsxport/Version.h"
        DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/tsxport")
tsxport_install_package(tsxport)

install(DIRECTORY "${PROJECT_SOURCE_DIR}/include/tsxtimes"
        DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}")
tsxport_install_package(tsxtimes)

if(TSXPORT_CORE STREQUAL "embedded")
  install(DIRECTORY "${PROJECT_SOURCE_DIR}/core/include/"
          DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}")
  tsxport_install_package(tsfcore)
  if(TARGET tsxport_command)
    install(TARGETS tsxport_command RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
  endif()
endif()
