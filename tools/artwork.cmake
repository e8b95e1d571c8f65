# render-artwork draws the bitmaps of a brewery folder from data/artwork/.
add_executable(render-artwork render_artwork.cpp)
target_link_libraries(render-artwork PRIVATE base desktop)
