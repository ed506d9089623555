# SPDX-License-Identifier: MIT
# What travels inside books is one file that needs nothing of the reader's machine but its kernel: it
# is linked statically, the C library too.
find_package(Boost 1.74 REQUIRED)
find_path(QRCODEGEN_INCLUDE_DIR qrcodegen/qrcodegen.h REQUIRED)
find_library(QRCODEGEN_LIBRARY libqrcodegen.a REQUIRED)
find_path(ZLIB_INCLUDE_DIR zlib.h REQUIRED)
find_library(ZLIB_STATIC_LIBRARY libz.a REQUIRED)

add_library(boost_beast INTERFACE)
target_include_directories(boost_beast SYSTEM INTERFACE ${Boost_INCLUDE_DIRS})
target_compile_definitions(boost_beast INTERFACE BOOST_ASIO_NO_DEPRECATED BOOST_ASIO_DISABLE_VISIBILITY)

add_library(static_qrcodegen STATIC IMPORTED)
set_target_properties(static_qrcodegen PROPERTIES IMPORTED_LOCATION ${QRCODEGEN_LIBRARY})
target_include_directories(static_qrcodegen SYSTEM INTERFACE ${QRCODEGEN_INCLUDE_DIR})

add_library(static_zlib STATIC IMPORTED)
set_target_properties(static_zlib PROPERTIES IMPORTED_LOCATION ${ZLIB_STATIC_LIBRARY})
target_include_directories(static_zlib SYSTEM INTERFACE ${ZLIB_INCLUDE_DIR})
