file(READ "${IN}" hex HEX)
string(LENGTH "${hex}" n)
math(EXPR lengte "${n} / 2")
string(REGEX REPLACE "([0-9a-f][0-9a-f])" "0x\\1," bytes "${hex}")
string(REGEX REPLACE "((0x..,){24})" "\\1\n" bytes "${bytes}")
get_filename_component(map "${UIT}" DIRECTORY)
file(MAKE_DIRECTORY "${map}")
file(WRITE "${UIT}.tmp" "// Generated from ${IN}; do not edit.\n#include <cstddef>\n"
  "extern const unsigned char ${SYMBOOL}[] = {\n${bytes}\n};\n"
  "extern const std::size_t ${SYMBOOL}_lengte = ${lengte};\n")
file(RENAME "${UIT}.tmp" "${UIT}")
