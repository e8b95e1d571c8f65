# The brewery folder that is installed, made anew whenever a source of it changes.
set(brewery ${PROJECT_BINARY_DIR}/brewery)
file(GLOB_RECURSE brewery_sources CONFIGURE_DEPENDS
    ${PROJECT_SOURCE_DIR}/data/databases/*.csv
    ${PROJECT_SOURCE_DIR}/data/databases/*.txt
    ${PROJECT_SOURCE_DIR}/data/samples/*.txt
    ${PROJECT_SOURCE_DIR}/data/artwork/*.svg)
add_custom_command(OUTPUT ${brewery}.made
    COMMAND ${CMAKE_COMMAND} -E rm -rf ${brewery}
    COMMAND make-brewery ${PROJECT_SOURCE_DIR}/data ${brewery}
    COMMAND render-artwork ${PROJECT_SOURCE_DIR}/data/artwork ${brewery}
    COMMAND ${CMAKE_COMMAND} -E touch ${brewery}.made
    DEPENDS make-brewery render-artwork ${brewery_sources}
    COMMENT "Making the brewery folder"
    VERBATIM)
add_custom_target(brewery ALL DEPENDS ${brewery}.made)
