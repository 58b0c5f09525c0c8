# Desktop integration and packaging. Executables, images and catalogues
# install themselves where they are built; this adds the desktop entry, the
# AppStream metainfo and the Debian package.
set(KLAVERMOL_APP_ID nl.zelvano.Klavermol)
install(FILES ${CMAKE_SOURCE_DIR}/data/desktop/${KLAVERMOL_APP_ID}.desktop
        DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${CMAKE_SOURCE_DIR}/data/desktop/${KLAVERMOL_APP_ID}.metainfo.xml
        DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME klavermol)
set(CPACK_PACKAGE_VENDOR Zelvano)
set(CPACK_PACKAGE_CONTACT "Zelvano <klavermol@zelvano.nl>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Writes CMake files for large existing C, C++ and assembly code bases")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION devel)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "wx3.2-i18n")
include(CPack)

# The installation, checked as a test. The language numbers the test pins
# are the toolkit's own, written at build time.
add_executable(klavermol-taalnummers ${CMAKE_SOURCE_DIR}/tools/taalnummers.cpp)
target_link_libraries(klavermol-taalnummers PRIVATE wx_basis)
add_custom_command(TARGET klavermol-taalnummers POST_BUILD
  COMMAND klavermol-taalnummers ${CMAKE_BINARY_DIR}/taalnummers)
add_test(NAME Installatie.InstallsAndStartsInGermanAndDutch
         COMMAND ${CMAKE_SOURCE_DIR}/tools/eigenscherm.sh ${CMAKE_SOURCE_DIR}/tools/installatietest.sh ${CMAKE_BINARY_DIR})
set_tests_properties(Installatie.InstallsAndStartsInGermanAndDutch PROPERTIES LABELS gui)
