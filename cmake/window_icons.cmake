# The sizes of the icon that the program carries for its windows, of those that the desktop gets.
set(window_icons "")
foreach(size 16 32 48 64 128)
    list(APPEND window_icons ${PROJECT_BINARY_DIR}/icons/${size}x${size}/apps/wortlex.png)
endforeach()
