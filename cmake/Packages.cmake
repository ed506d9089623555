# SPDX-License-Identifier: MIT
# Debian packages, by cpack. Two, because the command line runs on servers, where nobody wants the web
# engine of the window's preview.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME leafcast)
set(CPACK_PACKAGE_CONTACT "The Leafcast developers <maintainers@leafcast.example>")
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
# Each package has a summary of its own, as the first line of its description.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL leafcast)
if(LEAFCAST_WINDOWS)
  list(APPEND CPACK_COMPONENTS_ALL desktop)
endif()
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
# Named are only those that no library tells of: data, plug-ins and programs.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)

set(CPACK_DEBIAN_LEAFCAST_PACKAGE_NAME leafcast)
set(CPACK_DEBIAN_LEAFCAST_PACKAGE_DEPENDS libgs-common)
set(CPACK_DEBIAN_LEAFCAST_PACKAGE_RECOMMENDS xdg-utils)
set(CPACK_DEBIAN_LEAFCAST_PACKAGE_SUGGESTS leafcast-desktop)
set(CPACK_COMPONENT_LEAFCAST_DESCRIPTION
"turns a PDF into a page-turning digital book
Catalogues, magazines and school books become books to leaf through, on
tablets and desktops, in any browser: with search, links, a table of
contents, zoom, and text for screen readers. A book is a folder that works
on any web server and straight from disk, or a package that opens by a
double click.

This is the command line, which needs no display. The window with the live
preview is in the package leafcast-desktop.")

set(CPACK_DEBIAN_DESKTOP_PACKAGE_NAME leafcast-desktop)
set(CPACK_DEBIAN_DESKTOP_PACKAGE_DEPENDS
  "leafcast (= ${PROJECT_VERSION}), hicolor-icon-theme, libqt6svg6")
set(CPACK_DEBIAN_DESKTOP_PACKAGE_RECOMMENDS "qt6-wayland, qt6-translations-l10n, xdg-utils")
set(CPACK_COMPONENT_DESKTOP_DESCRIPTION
"turns a PDF into a page-turning digital book, with a live preview
Import a PDF, or pictures; choose pages and quality, a template and a style;
change its settings beside a live preview; look at it on a tablet of the same
network; and publish a folder for any web server, or a package that opens by a
double click.")

include(CPack)
