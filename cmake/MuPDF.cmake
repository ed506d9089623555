# SPDX-License-Identifier: MIT
# Debian ships MuPDF as static libraries without a pkg-config file that names what they need.
find_path(MUPDF_INCLUDE_DIR mupdf/fitz.h REQUIRED)
find_library(MUPDF_LIBRARY mupdf REQUIRED)
find_library(MUPDF_THIRD_LIBRARY mupdf-third REQUIRED)

file(STRINGS ${MUPDF_INCLUDE_DIR}/mupdf/fitz/version.h MUPDF_VERSION_LINE REGEX "#define FZ_VERSION \"")
string(REGEX REPLACE ".*\"(.*)\".*" "\\1" MUPDF_VERSION "${MUPDF_VERSION_LINE}")
# The page map is filled in the way of this release.
if(MUPDF_VERSION VERSION_LESS 1.21 OR NOT MUPDF_VERSION VERSION_LESS 1.22)
  message(FATAL_ERROR "MuPDF 1.21 is needed, found ${MUPDF_VERSION}")
endif()

set(MUPDF_NEEDS)
foreach(library mujs gumbo jbig2dec openjp2 harfbuzz freetype z m)
  find_library(MUPDF_NEEDS_${library} ${library} REQUIRED)
  list(APPEND MUPDF_NEEDS ${MUPDF_NEEDS_${library}})
endforeach()

# Imported ones, so that CMake keeps what needs before what is needed.
add_library(mupdf_third STATIC IMPORTED)
set_target_properties(mupdf_third PROPERTIES IMPORTED_LOCATION ${MUPDF_THIRD_LIBRARY})

add_library(mupdf STATIC IMPORTED)
set_target_properties(mupdf PROPERTIES IMPORTED_LOCATION ${MUPDF_LIBRARY})
target_include_directories(mupdf SYSTEM INTERFACE ${MUPDF_INCLUDE_DIR})
target_link_libraries(mupdf INTERFACE mupdf_third static_jpeg ${MUPDF_NEEDS})
