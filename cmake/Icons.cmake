# The one icon drawing, resources/icons/<bundle id>.svg, is built into the app for its window
# icon (ui/AppIcon renders it) and becomes every raster size at build time: the hicolor PNGs a
# Linux install ships and, where a tool for it exists, the macOS .icns.
set(DUSTLARK_ICON_SVG ${CMAKE_SOURCE_DIR}/resources/icons/${DUSTLARK_BUNDLE_ID}.svg)
qt_add_resources(dustlark_ui "icon" PREFIX "/icons" BASE resources/icons FILES ${DUSTLARK_ICON_SVG})

add_executable(dustlark-icon-render scripts/icons/IconRender.cpp)
target_link_libraries(dustlark-icon-render PRIVATE Qt6::Gui Qt6::Svg)

# Renders the drawing at SIZE pixels into OUTPUT and appends OUTPUT to the list named OUT_LIST.
function(dustlark_icon_png size output out_list)
    get_filename_component(folder ${output} DIRECTORY)
    add_custom_command(OUTPUT ${output}
        COMMAND ${CMAKE_COMMAND} -E make_directory ${folder}
        COMMAND dustlark-icon-render ${DUSTLARK_ICON_SVG} ${size} ${output}
        DEPENDS dustlark-icon-render ${DUSTLARK_ICON_SVG}
        COMMENT "Drawing the ${size} px icon" VERBATIM)
    set(${out_list} ${${out_list}} ${output} PARENT_SCOPE)
endfunction()

set(DUSTLARK_ICON_SIZES 16 22 24 32 48 64 128 256 512)
set(DUSTLARK_HICOLOR_DIR ${CMAKE_BINARY_DIR}/icons/hicolor)
set(icon_files)
if(NOT APPLE)
    foreach(size IN LISTS DUSTLARK_ICON_SIZES)
        dustlark_icon_png(${size} ${DUSTLARK_HICOLOR_DIR}/${size}x${size}/apps/${DUSTLARK_BUNDLE_ID}.png icon_files)
    endforeach()
endif()

# The .icns: iconutil on a Mac, png2icns (icnsutils) elsewhere; without either there is none and
# DUSTLARK_ICNS stays empty. Where it exists it goes into the bundle's Resources as the
# bundle's icon.
find_program(ICONUTIL iconutil)
find_program(PNG2ICNS png2icns)
set(DUSTLARK_ICNS "")
if(ICONUTIL)
    set(iconset ${CMAKE_BINARY_DIR}/icons/Dustlark.iconset)
    set(iconset_files)
    foreach(size 16 32 128 256 512)
        math(EXPR double "${size} * 2")
        dustlark_icon_png(${size} ${iconset}/icon_${size}x${size}.png iconset_files)
        dustlark_icon_png(${double} ${iconset}/icon_${size}x${size}@2x.png iconset_files)
    endforeach()
    set(DUSTLARK_ICNS ${CMAKE_BINARY_DIR}/icons/Dustlark.icns)
    add_custom_command(OUTPUT ${DUSTLARK_ICNS}
        COMMAND ${ICONUTIL} -c icns ${iconset} -o ${DUSTLARK_ICNS}
        DEPENDS ${iconset_files} VERBATIM)
elseif(PNG2ICNS)
    set(icns_pngs)
    foreach(size 16 32 48 128 256 512)
        dustlark_icon_png(${size} ${CMAKE_BINARY_DIR}/icons/icns/${size}.png icns_pngs)
    endforeach()
    set(DUSTLARK_ICNS ${CMAKE_BINARY_DIR}/icons/Dustlark.icns)
    add_custom_command(OUTPUT ${DUSTLARK_ICNS}
        COMMAND ${PNG2ICNS} ${DUSTLARK_ICNS} ${icns_pngs}
        DEPENDS ${icns_pngs} VERBATIM)
endif()
if(DUSTLARK_ICNS)
    list(APPEND icon_files ${DUSTLARK_ICNS})
    if(APPLE)
        target_sources(dustlark PRIVATE ${DUSTLARK_ICNS})
        set_source_files_properties(${DUSTLARK_ICNS} PROPERTIES MACOSX_PACKAGE_LOCATION Resources)
        set_target_properties(dustlark PROPERTIES MACOSX_BUNDLE_ICON_FILE Dustlark.icns)
    endif()
endif()
add_custom_target(dustlark_icons ALL DEPENDS ${icon_files})
