room_tests(brewery_tests
    DEPENDS frame_report
    SOURCES
        tools/make_brewery_test.cpp
        frame/report/report_test.cpp
        reports/catalogue_command_test.cpp)
target_compile_definitions(brewery_tests PRIVATE
    MAKE_BREWERY="$<TARGET_FILE:make-brewery>"
    WORTLEX_REPORT="$<TARGET_FILE:wortlex-report>"
    DATA_FOLDER="${PROJECT_SOURCE_DIR}/data/")
add_dependencies(brewery_tests make-brewery wortlex-report)
