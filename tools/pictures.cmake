# picture-windows saves pictures of the windows; has-display tells run.sh whether to make do with them.
add_executable(picture-windows picture_windows.cpp)
target_link_libraries(picture-windows PRIVATE windows_main)
add_executable(has-display has_display.cpp)
target_link_libraries(has-display PRIVATE wortlex_options Qt6::Gui)

# Pictures of the handbook, made anew after a change of these windows. They are kept: the program holds them itself.
# Its recipe and its session are those of the tutorials, from a brewery that has nothing else.
set(pictures ${PROJECT_BINARY_DIR}/pictures)
set(of_handbook ${pictures}/main-window.png ${pictures}/recipe-window.png ${pictures}/session-window.png)
set(tutorial ${pictures}/tutorial)
add_custom_target(handbook-pictures
    COMMAND ${CMAKE_COMMAND} -E rm -rf ${tutorial}
    COMMAND ${CMAKE_COMMAND} -E copy_directory ${PROJECT_SOURCE_DIR}/data/databases ${tutorial}/sources/databases
    COMMAND ${CMAKE_COMMAND} -E copy_directory ${PROJECT_SOURCE_DIR}/data/help/tutorial ${tutorial}/sources/samples
    COMMAND make-brewery ${tutorial}/sources ${tutorial}/brewery
    COMMAND picture-windows ${pictures} "${tutorial}/brewery/Recipes/Porch Ale.rec"
            "${tutorial}/brewery/Sessions/Porch Ale, First Brewing.brw"
    COMMAND ${CMAKE_COMMAND} -E copy ${of_handbook} ${PROJECT_SOURCE_DIR}/data/help/pictures
    WORKING_DIRECTORY ${brewery}
    VERBATIM)
add_dependencies(handbook-pictures brewery)
