# klavermol_inbedden(<target> <symbol> <file>)
# Turns a binary file into a C++ source defining
#   extern const unsigned char <symbol>[]; extern const size_t <symbol>_lengte;
# and adds it to <target>. The file is converted at build time.
set(KLAVERMOL_INBED_SCRIPT ${CMAKE_CURRENT_LIST_DIR}/InbeddenScript.cmake)
function(klavermol_inbedden target symbol file)
  set(uit ${CMAKE_CURRENT_BINARY_DIR}/ingebed/${symbol}.cpp)
  add_custom_command(OUTPUT ${uit}
    COMMAND ${CMAKE_COMMAND} -DIN=${file} -DUIT=${uit} -DSYMBOOL=${symbol} -P ${KLAVERMOL_INBED_SCRIPT}
    DEPENDS ${file} ${KLAVERMOL_INBED_SCRIPT}
    COMMENT "Embedding ${symbol}"
    VERBATIM)
  target_sources(${target} PRIVATE ${uit})
endfunction()
