# Install rules of the Linux build: the two programs, the desktop entry, the AppStream
# metainfo, the icon in every hicolor size, the man pages and the package's changelog and
# copyright. Everything the installed programs read at run time (translations, licence texts,
# the icon) is built into them, so nothing points back into the build folder.
include(GNUInstallDirs)

set(DUSTLARK_HOMEPAGE "https://dustlark.app" CACHE STRING "The project's web site, for the package and the metainfo")
set(DUSTLARK_SCREENSHOT_URL "${DUSTLARK_HOMEPAGE}/screenshots" CACHE STRING
    "Where the site serves docs/screenshots/, for the software centres")
set(DUSTLARK_MAINTAINER "The Dustlark developers <packages@dustlark.app>" CACHE STRING
    "Who answers for the package: the .deb's Maintainer and the changelog's signature")

set(linux_in ${CMAKE_SOURCE_DIR}/resources/linux)
set(linux_out ${CMAKE_BINARY_DIR}/linux)
# The changelog wants the release date as RFC 2822, weekday and all.
execute_process(COMMAND date -u -R -d "${DUSTLARK_RELEASE_DATE} 12:00"
    OUTPUT_VARIABLE DUSTLARK_RELEASE_DATE_RFC2822 OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
configure_file(${linux_in}/${DUSTLARK_BUNDLE_ID}.metainfo.xml.in ${linux_out}/${DUSTLARK_BUNDLE_ID}.metainfo.xml @ONLY)
configure_file(${linux_in}/changelog.in ${linux_out}/changelog @ONLY)
configure_file(${linux_in}/dustlark.1.in ${linux_out}/dustlark.1 @ONLY)
configure_file(${linux_in}/dustlark-cli.1.in ${linux_out}/dustlark-cli.1 @ONLY)

# Debian wants man pages and changelogs compressed, without a time stamp in the gzip header so
# the same sources make the same package.
set(compressed)
foreach(file dustlark.1 dustlark-cli.1 changelog)
    add_custom_command(OUTPUT ${linux_out}/${file}.gz
        COMMAND gzip -9 -n -c ${linux_out}/${file} > ${linux_out}/${file}.gz
        DEPENDS ${linux_out}/${file})
    list(APPEND compressed ${linux_out}/${file}.gz)
endforeach()
add_custom_target(dustlark_install_files ALL DEPENDS ${compressed})

install(TARGETS dustlark dustlark-cli RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(FILES ${linux_in}/${DUSTLARK_BUNDLE_ID}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${linux_out}/${DUSTLARK_BUNDLE_ID}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${DUSTLARK_ICON_SVG} DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
install(DIRECTORY ${DUSTLARK_HICOLOR_DIR}/ DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
install(FILES ${linux_out}/dustlark.1.gz ${linux_out}/dustlark-cli.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES ${linux_out}/changelog.gz ${linux_in}/copyright DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/dustlark)

include(${CMAKE_CURRENT_LIST_DIR}/Package.cmake)
