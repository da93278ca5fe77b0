# The .deb, made by CPack from the install rules; scripts/package.sh builds, checks and tests it.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME dustlark)
set(CPACK_PACKAGE_VENDOR "The Dustlark developers")
set(CPACK_PACKAGE_CONTACT "${DUSTLARK_MAINTAINER}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "desktop disk cleaner that selects nothing for you")
set(CPACK_PACKAGE_DESCRIPTION_FILE ${CMAKE_SOURCE_DIR}/resources/linux/package-description)
set(CPACK_PACKAGE_HOMEPAGE_URL "${DUSTLARK_HOMEPAGE}")
execute_process(COMMAND dpkg --print-architecture OUTPUT_VARIABLE DUSTLARK_DEB_ARCH
    OUTPUT_STRIP_TRAILING_WHITESPACE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)  # dustlark_<version>_<architecture>.deb
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
# The libraries the programs link, as dpkg-shlibdeps finds them, rather than a list kept by hand.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Qt loads its SQLite driver as a plugin, which dpkg-shlibdeps cannot see; the scan history needs it.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libqt6sql6-sqlite")
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
include(CPack)

# Installs the package into a fresh root and runs it from there. Only the package build
# registers it (scripts/package.sh), so an ordinary test run never needs a .deb.
option(DUSTLARK_PACKAGE_TEST "Register the test of the installed .deb (label: package)" OFF)
if(DUSTLARK_PACKAGE_TEST)
    enable_testing()
    add_test(NAME installed_package
        COMMAND bash ${CMAKE_SOURCE_DIR}/tests/package/installed-package.sh
            ${CMAKE_BINARY_DIR}/${CPACK_PACKAGE_NAME}_${PROJECT_VERSION}_${DUSTLARK_DEB_ARCH}.deb
            ${CMAKE_SOURCE_DIR} ${CMAKE_BINARY_DIR})
    set_tests_properties(installed_package PROPERTIES LABELS package TIMEOUT 300)
endif()
