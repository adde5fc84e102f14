# subjectpage_add_skins(<target> <source folder> <output folder>)
#
# Writes one folder a skin into the output folder whenever something in the source folder has changed.
function(subjectpage_add_skins target source out)
    find_package(Python3 3.9 REQUIRED COMPONENTS Interpreter)
    file(GLOB_RECURSE inputs CONFIGURE_DEPENDS ${source}/*.json ${source}/*.svg ${source}/*.in)
    set(generator ${CMAKE_SOURCE_DIR}/tools/make-skins)
    set(stamp ${CMAKE_CURRENT_BINARY_DIR}/${target}.stamp)
    add_custom_command(OUTPUT ${stamp}
        COMMAND Python3::Interpreter ${generator} --source ${source} --out ${out}
        COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
        DEPENDS ${inputs} ${generator}
        COMMENT "Writing the skins" VERBATIM)
    add_custom_target(${target} ALL DEPENDS ${stamp})
    install(DIRECTORY ${out}/ DESTINATION ${CMAKE_INSTALL_DATADIR}/subjectpage/skins)
endfunction()
