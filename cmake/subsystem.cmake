# subsystem(name folder [QT] DEPENDS rooms... SOURCES files...)
# One library for one room. What it may include is what it links: `DEPENDS` is also written to a table that the
# guard tools/check_rooms.cmake reads.
function(subsystem name folder)
    cmake_parse_arguments(ROOM "QT" "" "DEPENDS;SOURCES" ${ARGN})
    list(TRANSFORM ROOM_SOURCES PREPEND "${folder}/")
    add_library(${name} STATIC ${ROOM_SOURCES})
    target_include_directories(${name} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
    target_link_libraries(${name} PUBLIC wortlex_options ${ROOM_DEPENDS})
    if(ROOM_QT)
        target_link_libraries(${name} PUBLIC Qt6::Widgets Qt6::Svg Qt6::PrintSupport)
        # Records have members named slots; the toolkit must not make macros of such words.
        target_compile_definitions(${name} PUBLIC QT_NO_KEYWORDS)
    endif()
    list(JOIN ROOM_DEPENDS " " depends)
    set_property(GLOBAL APPEND PROPERTY WORTLEX_ROOMS "${folder} ${name} ${depends}")
endfunction()

# Writes "folder name dependency dependency ..." a line for the guard.
function(write_room_table path)
    get_property(rooms GLOBAL PROPERTY WORTLEX_ROOMS)
    set(table "")
    foreach(room IN LISTS rooms)
        string(APPEND table "${room}\n")
    endforeach()
    file(WRITE ${path} "${table}")
endfunction()
