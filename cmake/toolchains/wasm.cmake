# WebAssembly by Debian's emscripten.
include(/usr/share/emscripten/cmake/Modules/Platform/Emscripten.cmake)

# Debian's headers are the host's; RapidJSON is nothing but headers, so it is linked by itself.
set(JOURNAL_RAPIDJSON_INCLUDE ${CMAKE_BINARY_DIR}/include)
file(MAKE_DIRECTORY ${JOURNAL_RAPIDJSON_INCLUDE})
file(CREATE_LINK /usr/include/rapidjson ${JOURNAL_RAPIDJSON_INCLUDE}/rapidjson SYMBOLIC)
