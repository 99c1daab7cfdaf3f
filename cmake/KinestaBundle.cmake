# Kinesta.app: the application with the command line, translations, examples and icon in it.
if(NOT KINESTA_BUILD_APPLICATION)
    install(TARGETS kinesta)
    return()
endif()
set(packaging ${CMAKE_SOURCE_DIR}/packaging/macos)

# A bundle says where updates come from, or nothing of them.
set(KINESTA_UPDATE_ENTRIES "")
if(KINESTA_UPDATE_FEED AND KINESTA_UPDATE_KEY)
    string(REPLACE "&" "&amp;" feed "${KINESTA_UPDATE_FEED}")  # an address may have both
    string(REPLACE "<" "&lt;" feed "${feed}")
    set(KINESTA_UPDATE_ENTRIES "<key>SUFeedURL</key>
    <string>${feed}</string>
    <key>SUPublicEDKey</key>
    <string>${KINESTA_UPDATE_KEY}</string>")
endif()
set_target_properties(kinesta-application PROPERTIES
    MACOSX_BUNDLE ON
    OUTPUT_NAME Kinesta
    RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}
    MACOSX_BUNDLE_INFO_PLIST ${packaging}/Info.plist.in
    BUILD_RPATH "@executable_path/../Frameworks"
    INSTALL_RPATH "@executable_path/../Frameworks")
add_dependencies(programs kinesta-application)
# A folder of its own, because "kinesta" and "Kinesta" are one name to most file systems there.
set_target_properties(kinesta PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/Kinesta.app/Contents/Helpers)

function(put_into_resources file folder)
    target_sources(kinesta-application PRIVATE ${file})
    set_source_files_properties(${file} PROPERTIES MACOSX_PACKAGE_LOCATION Resources/${folder})
endfunction()
file(GLOB_RECURSE examples CONFIGURE_DEPENDS RELATIVE ${CMAKE_SOURCE_DIR} ${CMAKE_SOURCE_DIR}/examples/*)
foreach(example ${examples})
    get_filename_component(folder ${example} DIRECTORY)
    put_into_resources(${CMAKE_SOURCE_DIR}/${example} ${folder})
endforeach()

find_program(RSVG_CONVERT rsvg-convert)
find_program(ICONUTIL iconutil)
if(RSVG_CONVERT AND ICONUTIL)
    set(icon ${CMAKE_BINARY_DIR}/Kinesta.icns)
    file(GLOB drawings ${CMAKE_SOURCE_DIR}/packaging/icons/*.svg)
    add_custom_command(OUTPUT ${icon} DEPENDS ${packaging}/make-icons ${drawings}
        COMMAND ${packaging}/make-icons ${CMAKE_BINARY_DIR}/Kinesta.iconset ${icon})
    put_into_resources(${icon} "")
else()
    message(STATUS "Kinesta.app gets no icon: rsvg-convert (of librsvg) or iconutil is missing.")
endif()

set(KINESTA_UPDATE_FRAMEWORK "" CACHE PATH "The update framework to put into the bundle; empty for none")
if(KINESTA_UPDATE_FRAMEWORK)
    get_filename_component(framework "${KINESTA_UPDATE_FRAMEWORK}" ABSOLUTE)  # no slash at its end, or cp takes its parts
    get_filename_component(name "${framework}" NAME)
    set(frameworks $<TARGET_BUNDLE_CONTENT_DIR:kinesta-application>/Frameworks)
    add_custom_command(TARGET kinesta-application POST_BUILD
        COMMAND ${CMAKE_COMMAND} -E make_directory ${frameworks}
        COMMAND ${CMAKE_COMMAND} -E rm -rf ${frameworks}/${name}
        COMMAND cp -R ${framework} ${frameworks}/)  # CMake would not keep its links
endif()
install(TARGETS kinesta-application BUNDLE DESTINATION .)
