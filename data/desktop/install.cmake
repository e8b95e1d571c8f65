# What `cmake --install` puts where. The launcher finds the rest from its own place, so a prefix can be moved.
set(desktop ${PROJECT_SOURCE_DIR}/data/desktop)
set(icons ${PROJECT_SOURCE_DIR}/data/artwork/application)
set(icon_theme share/icons/hicolor/scalable)

install(TARGETS wortlex RUNTIME DESTINATION libexec/wortlex)
install(TARGETS wortlex-report RUNTIME DESTINATION bin)
install(PROGRAMS ${desktop}/wortlex.sh DESTINATION bin RENAME wortlex)
install(DIRECTORY ${PROJECT_BINARY_DIR}/brewery/ DESTINATION share/wortlex/brewery)
install(FILES ${desktop}/wortlex.desktop DESTINATION share/applications)
install(FILES ${desktop}/wortlex.xml DESTINATION share/mime/packages)
install(FILES ${icons}/wortlex.svg DESTINATION ${icon_theme}/apps)
install(FILES ${icons}/recipe.svg DESTINATION ${icon_theme}/mimetypes RENAME application-x-wortlex-recipe.svg)
install(FILES ${icons}/session.svg DESTINATION ${icon_theme}/mimetypes RENAME application-x-wortlex-session.svg)

# A desktop learns of file types and their programs from caches; packages have triggers for that.
install(CODE [[
    if("$ENV{DESTDIR}" STREQUAL "")
        set(share ${CMAKE_INSTALL_PREFIX}/share)
        execute_process(COMMAND update-mime-database ${share}/mime ERROR_QUIET)
        execute_process(COMMAND update-desktop-database ${share}/applications ERROR_QUIET)
    endif()]])
