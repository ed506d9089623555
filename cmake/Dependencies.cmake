# SPDX-License-Identifier: MIT
# The one place of minimum versions; the README's table says why each library is used.
find_package(PkgConfig REQUIRED)
find_package(Threads REQUIRED)
find_package(Qt6 6.4 REQUIRED COMPONENTS Core Gui)
pkg_check_modules(LIBXML2 REQUIRED IMPORTED_TARGET libxml-2.0>=2.9.14)
pkg_check_modules(LOG4CPLUS REQUIRED IMPORTED_TARGET log4cplus>=2.0.8)
pkg_check_modules(LIBARCHIVE REQUIRED IMPORTED_TARGET libarchive>=3.6.2)
pkg_check_modules(LCMS2 REQUIRED IMPORTED_TARGET lcms2>=2.14)
include(StaticJPEG)
find_package(CLI11 2.1 REQUIRED)
include(MuPDF)
include(PreviewServerLibraries)

if(LEAFCAST_TESTS)
  find_package(GTest 1.12 REQUIRED)
endif()
