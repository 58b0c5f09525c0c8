# Compiles data/po/<domain>/<lang>.po into the layout the program searches:
#   <prefix>/share/Zelvano/Klavermol/locale/<lang>/LC_MESSAGES/<domain>.mo
# (the build tree has the same layout below its own share/).
find_program(KLAVERMOL_MSGFMT msgfmt REQUIRED)
file(GLOB_RECURSE klavermol_po CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/data/po/*/*.po)
set(klavermol_mo)
foreach(po ${klavermol_po})
  get_filename_component(taal ${po} NAME_WE)
  get_filename_component(domeinmap ${po} DIRECTORY)
  get_filename_component(domein ${domeinmap} NAME)
  set(mo ${KLAVERMOL_LOCALE_DIR}/${taal}/LC_MESSAGES/${domein}.mo)
  add_custom_command(OUTPUT ${mo}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${KLAVERMOL_LOCALE_DIR}/${taal}/LC_MESSAGES
    COMMAND ${KLAVERMOL_MSGFMT} --check-format -o ${mo} ${po}
    DEPENDS ${po}
    COMMENT "Compiling the ${domein} catalogue for ${taal}"
    VERBATIM)
  list(APPEND klavermol_mo ${mo})
endforeach()
add_custom_target(klavermol_catalogi ALL DEPENDS ${klavermol_mo})
file(MAKE_DIRECTORY ${KLAVERMOL_LOCALE_DIR})
install(DIRECTORY ${KLAVERMOL_LOCALE_DIR}/ DESTINATION ${CMAKE_INSTALL_DATADIR}/Zelvano/Klavermol/locale)
