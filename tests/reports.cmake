room_tests(reports_tests
    DEPENDS reports
    SOURCES reports/catalogue_test.cpp reports/html_test.cpp reports/page_test.cpp)
target_compile_definitions(reports_tests PRIVATE GOLDEN_FOLDER="${CMAKE_CURRENT_SOURCE_DIR}/reports/golden/")
