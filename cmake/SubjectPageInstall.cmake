# What `cmake --install` puts where: the programs with the plug-in, skins and demonstration pages, and the package
# SubjectPage (targets SubjectPage::core and SubjectPage::ui) for projects outside.

include(CMakePackageConfigHelpers)

set(data_dir ${CMAKE_INSTALL_DATADIR}/subjectpage)
set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/SubjectPage)

# A program finds its libraries beside itself, wherever the prefix is.
set(program_rpath "$ORIGIN/../${CMAKE_INSTALL_LIBDIR}")
foreach(program subject-terminal subject-service)
    if(TARGET ${program})
        set_target_properties(${program} PROPERTIES INSTALL_RPATH "${program_rpath}")
        install(TARGETS ${program} RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
    endif()
endforeach()
if(TARGET subjectpage)
    set_target_properties(subjectpage PROPERTIES INSTALL_RPATH "$ORIGIN/../..")
    install(TARGETS subjectpage LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/subjectpage/plugins)
endif()

set_target_properties(tfconfig tfcore PROPERTIES INSTALL_RPATH "$ORIGIN")
install(TARGETS tfcontract tfconfig tfcore gridcontrol subjectcore subjectui EXPORT SubjectPageTargets
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(DIRECTORY subjectpage/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/subjectpage FILES_MATCHING PATTERN "*.h")
install(DIRECTORY gridcontrol/include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/subjectpage/gridcontrol
        FILES_MATCHING PATTERN "*.h")
# For those who run the service: the loader beside its SQL, the proxy's set-up, the unit.
install(PROGRAMS tools/load-postgresql DESTINATION ${data_dir}/tools)
install(DIRECTORY service/sql service/deploy DESTINATION ${data_dir}/service)
install(DIRECTORY demo/views host/terminal/config DESTINATION ${data_dir})

install(EXPORT SubjectPageTargets NAMESPACE SubjectPage:: DESTINATION ${package_dir})
configure_package_config_file(${CMAKE_SOURCE_DIR}/cmake/SubjectPageConfig.cmake.in
    ${CMAKE_BINARY_DIR}/SubjectPageConfig.cmake INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(${CMAKE_BINARY_DIR}/SubjectPageConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_BINARY_DIR}/SubjectPageConfig.cmake ${CMAKE_BINARY_DIR}/SubjectPageConfigVersion.cmake
        DESTINATION ${package_dir})
