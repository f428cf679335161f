# What `cmake --install` puts where, and the Debian package made of it.
#
#   bin/kalhost
#   LIBDIR/libkalplatform.so.N, libkalframework.so.N     (and their -dev links)
#   LIBDIR/kaldlgstat2/libKalDlgStat2.so, libkalqtview.so
#   INCLUDEDIR/kaldlgstat2/{platform,host,framework,ids}/*.h
#   LIBDIR/cmake/KalDlgStat2/   find_package(KalDlgStat2): KalDlgStat2::framework, ::platform
#   LIBDIR/pkgconfig/kaldlgstat2.pc
#   DATADIR/kaldlgstat2/resources/, DOCDIR/, MANDIR/man1/kalhost.1,
#   DATADIR/bash-completion/completions/kalhost
include(CMakePackageConfigHelpers)

set(KAL_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/KalDlgStat2)

# The libraries another module builds on.
install(TARGETS kalplatform kalframework EXPORT KalDlgStat2Targets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development)
foreach(layer platform host framework)
    install(DIRECTORY ${PROJECT_SOURCE_DIR}/${layer}/ DESTINATION ${KAL_INSTALL_INCLUDEDIR}/${layer}
            COMPONENT development FILES_MATCHING PATTERN "*.h")
endforeach()
install(FILES ${KAL_CONTROL_ID_HEADERS} DESTINATION ${KAL_INSTALL_INCLUDEDIR}/ids COMPONENT development)
install(EXPORT KalDlgStat2Targets NAMESPACE KalDlgStat2:: DESTINATION ${KAL_CMAKE_DIR} COMPONENT development)
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/KalDlgStat2Config.cmake.in
                              ${CMAKE_BINARY_DIR}/KalDlgStat2Config.cmake INSTALL_DESTINATION ${KAL_CMAKE_DIR})
write_basic_package_version_file(${CMAKE_BINARY_DIR}/KalDlgStat2ConfigVersion.cmake
                                 COMPATIBILITY SameMinorVersion)
install(FILES ${CMAKE_BINARY_DIR}/KalDlgStat2Config.cmake ${CMAKE_BINARY_DIR}/KalDlgStat2ConfigVersion.cmake
        DESTINATION ${KAL_CMAKE_DIR} COMPONENT development)
# Relative to the .pc file, so that a moved tree still finds itself.
file(RELATIVE_PATH KAL_PREFIX_FROM_PKGCONFIG /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
configure_file(${PROJECT_SOURCE_DIR}/cmake/kaldlgstat2.pc.in ${CMAKE_BINARY_DIR}/kaldlgstat2.pc @ONLY)
install(FILES ${CMAKE_BINARY_DIR}/kaldlgstat2.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
        COMPONENT development)

# The module and the host that runs it.
set_target_properties(KalDlgStat2 PROPERTIES INSTALL_RPATH "$ORIGIN/${KAL_LIBDIR_FROM_MODULEDIR}")
install(TARGETS KalDlgStat2 LIBRARY DESTINATION ${KAL_INSTALL_MODULEDIR} COMPONENT runtime)
set_target_properties(kalhost PROPERTIES INSTALL_RPATH "$ORIGIN/${KAL_LIBDIR_FROM_BINDIR}")
install(TARGETS kalhost RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime)
if(TARGET kalqtview)
    set_target_properties(kalqtview PROPERTIES INSTALL_RPATH "$ORIGIN/${KAL_LIBDIR_FROM_MODULEDIR}")
    install(TARGETS kalqtview LIBRARY DESTINATION ${KAL_INSTALL_MODULEDIR} COMPONENT runtime)
endif()

install(DIRECTORY ${PROJECT_SOURCE_DIR}/resources/ DESTINATION ${CMAKE_INSTALL_DATADIR}/kaldlgstat2/resources
        COMPONENT runtime)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs/ DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT runtime
        PATTERN "kalhost.1" EXCLUDE)
install(FILES ${PROJECT_SOURCE_DIR}/README.md DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT runtime)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/samples/ DESTINATION ${CMAKE_INSTALL_DOCDIR}/samples COMPONENT runtime)
install(FILES ${PROJECT_SOURCE_DIR}/docs/kalhost.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT runtime)
install(FILES ${PROJECT_SOURCE_DIR}/refhost/kalhost.bash-completion
        DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME kalhost COMPONENT runtime)

# ./dev.sh package: one Debian package with everything.
set(CPACK_PACKAGE_NAME kaldlgstat2)
set(CPACK_PACKAGE_VENDOR "KalDlgStat2 developers")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Statistics-dialogs module, its framework libraries and the kalhost reference host")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_INSTALL_DIRECTORY kaldlgstat2)
set(CPACK_GENERATOR DEB)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "KalDlgStat2 developers <kaldlgstat2@localhost>")
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libc6, libstdc++6, libcsv3")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "libqt6widgets6")
set(CPACK_DEB_COMPONENT_INSTALL OFF)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
include(CPack)
