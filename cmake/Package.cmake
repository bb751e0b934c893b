# Installing: the library, its headers, the CMake package (find_package(ZrProj)), the pkg-config file (zrproj), the
# command and the documentation. An installed tree can be moved as a whole.
include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/ZrProj)
set(doc_dir ${CMAKE_INSTALL_DATAROOTDIR}/doc/zrproj)

install(TARGETS zrproj EXPORT ZrProj)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/zrproj TYPE INCLUDE)
install(FILES LICENSE README.md CHANGELOG.md DESTINATION ${doc_dir})
install(DIRECTORY docs/ DESTINATION ${doc_dir} PATTERN generator EXCLUDE)

# The library needs nothing of others, so the exported targets are the whole package.
install(EXPORT ZrProj NAMESPACE ZrProj:: FILE ZrProjConfig.cmake DESTINATION ${package_dir})
write_basic_package_version_file(ZrProjConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/ZrProjConfigVersion.cmake DESTINATION ${package_dir})

file(RELATIVE_PATH prefix_from_pc ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
string(REGEX REPLACE "/$" "" prefix_from_pc ${prefix_from_pc})
file(RELATIVE_PATH libdir_from_prefix ${CMAKE_INSTALL_PREFIX} ${CMAKE_INSTALL_FULL_LIBDIR})
file(RELATIVE_PATH includedir_from_prefix ${CMAKE_INSTALL_PREFIX} ${CMAKE_INSTALL_FULL_INCLUDEDIR})
configure_file(cmake/zrproj.pc.in zrproj.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/zrproj.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

if(TARGET zrproj-cli)
    file(RELATIVE_PATH libdir_from_bin ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
    set_target_properties(zrproj-cli PROPERTIES INSTALL_RPATH $ORIGIN/${libdir_from_bin})
    install(TARGETS zrproj-cli)
endif()
