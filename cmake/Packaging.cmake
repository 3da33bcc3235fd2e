# Installing like any desktop program: the executable and the data tree template under the prefix,
# a launcher on the path that runs the owner's own copy from a folder in the home folder (the
# program's data root is the folder of its executable), a desktop entry and an icon. The Debian
# package comes from the same rules: `cpack -G DEB` in the build folder.
set(OSTREL_EXECUTABLE OstrelAppointmentScheduler)
set(OSTREL_PACKAGE ostrel-appointment-scheduler)
set(OSTREL_INSTALL_BINDIR bin)
set(OSTREL_INSTALL_LIBDIR lib/${OSTREL_PACKAGE})
set(OSTREL_INSTALL_DATADIR share/${OSTREL_PACKAGE}/data)
file(RELATIVE_PATH OSTREL_BIN_TO_PREFIX /prefix/${OSTREL_INSTALL_BINDIR} /prefix)

configure_file(${PROJECT_SOURCE_DIR}/packaging/launcher.sh.in ${PROJECT_BINARY_DIR}/packaging/${OSTREL_PACKAGE} @ONLY
               FILE_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

install(TARGETS OstrelAppointmentScheduler RUNTIME DESTINATION ${OSTREL_INSTALL_LIBDIR})
install(PROGRAMS ${PROJECT_BINARY_DIR}/packaging/${OSTREL_PACKAGE} DESTINATION ${OSTREL_INSTALL_BINDIR})
install(FILES ${PROJECT_SOURCE_DIR}/data/StatesList.txt ${PROJECT_SOURCE_DIR}/data/GenericContract.rtf
        DESTINATION ${OSTREL_INSTALL_DATADIR})
foreach(folder CompletedInvoices OstrelInvoicer/Narratives Templates/Contracts)
  install(DIRECTORY DESTINATION ${OSTREL_INSTALL_DATADIR}/${folder})
endforeach()
install(FILES ${PROJECT_SOURCE_DIR}/packaging/${OSTREL_PACKAGE}.desktop DESTINATION share/applications)
install(FILES ${PROJECT_SOURCE_DIR}/src/ui/resources/images/icon.png
        DESTINATION share/icons/hicolor/256x256/apps RENAME ${OSTREL_PACKAGE}.png)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME ${OSTREL_PACKAGE})
set(CPACK_PACKAGE_VENDOR "Norlavex")
set(CPACK_PACKAGE_CONTACT "Ostrel maintainers <maintainers@ostrel.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Appointment scheduler for a small service business")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_DEPENDS
    "libqt6core6 (>= 6.4), libqt6gui6 (>= 6.4), libqt6widgets6 (>= 6.4), libqt6printsupport6 (>= 6.4), libqt6serialport6 (>= 6.4), fonts-liberation2")
include(CPack)
