# What `cmake --install` puts where. The programs find the rest from their own place, so a prefix can be moved.
include(GNUInstallDirs)
set(desktop ${PROJECT_SOURCE_DIR}/data/desktop)
set(drawings ${PROJECT_SOURCE_DIR}/data/artwork/application)
set(icon_theme ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
set(doc ${CMAKE_INSTALL_DATADIR}/doc/wortlex)

# Pages and changes as Debian has them; gzip without names and times makes the same file every time.
find_program(GZIP gzip REQUIRED)
set(pages "")
foreach(page man/wortlex.1 man/wortlex-report.1 changelog.Debian)
    get_filename_component(name ${page} NAME)
    set(packed ${PROJECT_BINARY_DIR}/desktop/${name}.gz)
    add_custom_command(OUTPUT ${packed}
        COMMAND ${GZIP} -9nc ${desktop}/${page} > ${packed}
        DEPENDS ${desktop}/${page}
        VERBATIM)
    list(APPEND pages ${packed})
endforeach()
file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/desktop)
add_custom_target(desktop-files ALL DEPENDS ${pages})

install(TARGETS wortlex wortlex-report RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(DIRECTORY ${PROJECT_BINARY_DIR}/brewery/ DESTINATION ${CMAKE_INSTALL_DATADIR}/wortlex/brewery)
install(FILES ${desktop}/wortlex.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${desktop}/org.wortlex.Wortlex.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${desktop}/wortlex.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages)
install(DIRECTORY ${PROJECT_BINARY_DIR}/icons/ DESTINATION ${icon_theme})
install(FILES ${drawings}/wortlex.svg DESTINATION ${icon_theme}/scalable/apps)
foreach(kind recipe session)
    install(FILES ${drawings}/${kind}.svg DESTINATION ${icon_theme}/scalable/mimetypes
        RENAME application-x-wortlex-${kind}.svg)
endforeach()
install(FILES ${PROJECT_BINARY_DIR}/desktop/wortlex.1.gz ${PROJECT_BINARY_DIR}/desktop/wortlex-report.1.gz
    DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES ${desktop}/copyright ${PROJECT_BINARY_DIR}/desktop/changelog.Debian.gz DESTINATION ${doc})

# A desktop learns of file types and their programs from caches; packages have triggers for that.
install(CODE [[
    if("$ENV{DESTDIR}" STREQUAL "" AND NOT CMAKE_INSTALL_PREFIX MATCHES "_CPack_Packages")
        set(share ${CMAKE_INSTALL_PREFIX}/share)
        execute_process(COMMAND update-mime-database ${share}/mime ERROR_QUIET)
        execute_process(COMMAND update-desktop-database ${share}/applications ERROR_QUIET)
    endif()]])
