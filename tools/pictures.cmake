# picture-windows saves pictures of the windows; has-display tells run.sh whether to make do with them.
add_executable(picture-windows picture_windows.cpp)
target_link_libraries(picture-windows PRIVATE windows_main)
add_executable(has-display has_display.cpp)
target_link_libraries(has-display PRIVATE wortlex_options Qt6::Gui)
