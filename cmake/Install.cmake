# SPDX-License-Identifier: MIT
# What is installed, and the Debian package. The programs and their folder "language" stand together in one private
# folder, so that "the folder that holds the program" is where the help files are and where a control's error texts go;
# bin/ has links to the programs. The invented error texts of samples/ are not installed.
set(QORVIX_FOLDER lib/qorvix)
set(QORVIX_ID com.veltrandor.Qorvix)
set(linux ${PROJECT_SOURCE_DIR}/packaging/linux)
set(debian ${PROJECT_SOURCE_DIR}/packaging/debian)

install(TARGETS qorvix qorvix-cli RUNTIME DESTINATION ${QORVIX_FOLDER})
if(NOT WIN32)
  install(TARGETS qorvix-helpreader RUNTIME DESTINATION ${QORVIX_FOLDER})
endif()
foreach(code en de)
  install(FILES ${PROJECT_BINARY_DIR}/bin/language/${code}/Qorvix.chm DESTINATION ${QORVIX_FOLDER}/language/${code})
endforeach()
install(CODE "
  file(MAKE_DIRECTORY \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/bin\")
  foreach(program qorvix qorvix-cli)
    file(CREATE_LINK ../${QORVIX_FOLDER}/\${program} \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/bin/\${program}\" SYMBOLIC)
  endforeach()")

install(FILES ${linux}/${QORVIX_ID}.desktop DESTINATION share/applications)
install(FILES ${linux}/${QORVIX_ID}.metainfo.xml DESTINATION share/metainfo)
install(FILES ${PROJECT_SOURCE_DIR}/src/app/icons/qorvix.svg DESTINATION share/icons/hicolor/scalable/apps
        RENAME ${QORVIX_ID}.svg)
install(FILES ${linux}/qorvix-cli.bash DESTINATION share/bash-completion/completions RENAME qorvix-cli)
install(FILES ${debian}/copyright DESTINATION share/doc/qorvix)
install(FILES ${debian}/lintian-overrides DESTINATION share/lintian/overrides RENAME qorvix)

# Debian wants manual pages and changelogs packed, without a time stamp. Whoever builds the program has them too, so
# that ./run and a build of all targets both leave what an installation needs.
add_custom_target(packed_files)
add_dependencies(qorvix packed_files)
function(install_packed file name destination)
  set(packed ${PROJECT_BINARY_DIR}/packed/${name}.gz)
  add_custom_command(OUTPUT ${packed} COMMAND gzip -9nc ${file} > ${packed} DEPENDS ${file} VERBATIM)
  add_custom_target(packed-${name} DEPENDS ${packed})
  add_dependencies(packed_files packed-${name})
  install(FILES ${packed} DESTINATION ${destination})
endfunction()
file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/packed)
install_packed(${linux}/qorvix.1 qorvix.1 share/man/man1)
install_packed(${linux}/qorvix-cli.1 qorvix-cli.1 share/man/man1)
install_packed(${debian}/changelog changelog share/doc/qorvix)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME qorvix)
set(CPACK_PACKAGE_CONTACT "The Qorvix developers <developers@qorvix.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "viewer for the event logbook of a ZEK machine-tool control")
set(CPACK_PACKAGE_DESCRIPTION
    "Qorvix lists every event of a logbook, service archive or own archive,
narrows the list with filters, searches it and comments entries.
qorvix-cli does the same for scripts.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The picture plugin is found when the program runs, so no tool sees it.
set(CPACK_DEBIAN_PACKAGE_DEPENDS libqt6svg6)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS qt6-translations-l10n)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
include(CPack)
