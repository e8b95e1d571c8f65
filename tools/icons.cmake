# The icons of the desktop in all sizes; the drawings themselves are installed beside them.
add_executable(render-icons render_icons.cpp)
target_link_libraries(render-icons PRIVATE wortlex_options Qt6::Svg)
set(icons ${PROJECT_BINARY_DIR}/icons)
set(drawings ${PROJECT_SOURCE_DIR}/data/artwork/application)
set(of_mimetypes mimetypes/application-x-wortlex)
add_custom_command(OUTPUT ${icons}.made
    BYPRODUCTS ${window_icons}
    COMMAND render-icons ${drawings}/wortlex.svg ${icons} apps/wortlex
    COMMAND render-icons ${drawings}/recipe.svg ${icons} ${of_mimetypes}-recipe
    COMMAND render-icons ${drawings}/session.svg ${icons} ${of_mimetypes}-session
    COMMAND ${CMAKE_COMMAND} -E touch ${icons}.made
    DEPENDS render-icons ${drawings}/wortlex.svg ${drawings}/recipe.svg ${drawings}/session.svg
    COMMENT "Drawing the icons"
    VERBATIM)
add_custom_target(icons ALL DEPENDS ${icons}.made)
