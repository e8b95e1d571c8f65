# File by file, the headers of the toolkit are most of the work, and are read once for all rooms. Only its own: those
# of the program are still read by each file that needs them, so that a missing one is missed.
function(precompile_toolkit room)
    if(CMAKE_UNITY_BUILD)
        return()
    endif()
    if(room STREQUAL desktop)
        target_precompile_headers(desktop PRIVATE <QtWidgets> <QtPrintSupport> <QtSvg>)
    else()
        target_precompile_headers(${room} REUSE_FROM desktop)
    endif()
endfunction()

# subsystem(folder [QT] DEPENDS folders... SOURCES files...)
# One library for one room, named after its folder. What it may include is what it links: `DEPENDS` is also written
# to a table that the guard tools/check_rooms.cmake reads.
function(subsystem folder)
    cmake_parse_arguments(ROOM "QT" "" "DEPENDS;SOURCES" ${ARGN})
    string(REPLACE "/" "_" name ${folder})
    list(TRANSFORM ROOM_SOURCES PREPEND "${folder}/")
    string(REPLACE "/" "_" libraries "${ROOM_DEPENDS}")
    add_library(${name} STATIC ${ROOM_SOURCES})
    target_include_directories(${name} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
    target_link_libraries(${name} PUBLIC wortlex_options ${libraries})
    if(ROOM_QT)
        target_link_libraries(${name} PUBLIC Qt6::Widgets Qt6::Svg Qt6::PrintSupport)
        # Records have members named slots; the toolkit must not make macros of such words.
        target_compile_definitions(${name} PUBLIC QT_NO_KEYWORDS)
        precompile_toolkit(${name})
    endif()
    list(JOIN ROOM_DEPENDS " " depends)
    set_property(GLOBAL APPEND PROPERTY WORTLEX_ROOMS "${folder} ${depends}")
endfunction()

# Writes "folder dependency dependency ..." a line for the guard, in the order of the floors.
function(write_room_table path)
    get_property(rooms GLOBAL PROPERTY WORTLEX_ROOMS)
    list(JOIN rooms "\n" table)
    file(WRITE ${path} "${table}\n")
endfunction()
