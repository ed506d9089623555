# SPDX-License-Identifier: MIT
# The encoder counts Huffman symbols in the library's place, through structures of its internal header.
# Their layout may change between releases that share a soname, so the code that they were compiled for
# is linked into the program.
find_path(JPEG_INCLUDE_DIR jpegint.h REQUIRED)
find_path(JPEG_CONFIG_INCLUDE_DIR jconfig.h REQUIRED)
find_library(JPEG_STATIC_LIBRARY NAMES libjpeg.a REQUIRED)

file(STRINGS ${JPEG_CONFIG_INCLUDE_DIR}/jconfig.h JPEG_VERSION_LINE REGEX "define LIBJPEG_TURBO_VERSION ")
string(REGEX REPLACE ".*LIBJPEG_TURBO_VERSION +" "" JPEG_VERSION "${JPEG_VERSION_LINE}")
if(JPEG_VERSION VERSION_LESS 2.1 OR NOT JPEG_VERSION VERSION_LESS 2.2)
  message(FATAL_ERROR "libjpeg-turbo 2.1 is needed, found ${JPEG_VERSION}")
endif()

add_library(static_jpeg STATIC IMPORTED)
set_target_properties(static_jpeg PROPERTIES IMPORTED_LOCATION ${JPEG_STATIC_LIBRARY})
target_include_directories(static_jpeg SYSTEM INTERFACE ${JPEG_INCLUDE_DIR})
